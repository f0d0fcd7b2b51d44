// SPDX-License-Identifier: GPL-3.0-or-later
// Being told to end by SIGINT, SIGTERM or SIGHUP.
#pragma once

#include <functional>
#include <thread>

namespace zelto {

// As long as it lives, the first such signal calls `onFirst`, on a thread of its own, and the second ends the process
// at once with exit status 130. There is one at a time.
class InterruptWatch {
  public:
    explicit InterruptWatch(std::function<void()> onFirst);
    ~InterruptWatch();

  private:
    std::thread thread_;
};

}  // namespace zelto
