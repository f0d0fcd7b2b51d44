// SPDX-License-Identifier: GPL-3.0-or-later
// One program serves all targets: it takes the one that its own name ends with, as in "fuzz-png".
#include "targets.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

const zelto::FuzzTarget* target = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int arguments = 1;
    static const QGuiApplication application(arguments, *argv);
    const std::string_view program((*argv)[0]);
    for (const zelto::FuzzTarget& candidate : zelto::fuzzTargets()) {
        if (program.ends_with(std::string("fuzz-") + candidate.name)) target = &candidate;
    }
    if (target == nullptr) {
        std::fprintf(stderr, "%s names no target\n", (*argv)[0]);
        std::exit(2);
    }
    return *argc >= 0 ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    target->run(QByteArrayView(data, static_cast<qsizetype>(size)));
    return 0;
}
