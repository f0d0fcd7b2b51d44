// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/process_setup.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace zelto {

void prepareProcess() {
    // Opening takes the lowest free number, so in ascending order each gets its own.
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(standard, F_GETFD) < 0)
            ::open("/dev/null", standard == STDIN_FILENO ? O_RDONLY : O_WRONLY);  // NOLINT: kept open
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace zelto
