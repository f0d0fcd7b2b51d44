// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_queue.h"

#include <gtest/gtest.h>

#include <future>
#include <stdexcept>

namespace zelto {
namespace {

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

MetadataRequest request(const QString& source, const QString& output) {
    return {output, source, 0, 72.0, {}};
}

TEST(MetadataQueue, WaitsOnlyForTheFilesThatAreStillWorkedOn) {
    std::promise<void> gate;
    const std::shared_future<void> opened = gate.get_future().share();
    std::atomic<int> done = 0;
    MetadataQueue queue(4, [&](const MetadataRequest& asked) {
        if (asked.output == "/nowhere/slow"_L1) opened.wait();
        ++done;
        return Result<void>();
    });
    queue.add(request(u"/nowhere/source"_s, u"/nowhere/slow"_s));
    constexpr int Others = 40;  // more than one thread is left with
    for (int i = 0; i < Others; ++i) queue.add(request(u"/nowhere/a"_s, u"/nowhere/quick%1"_s.arg(i)));
    queue.waitFor(u"/nowhere/a"_s);
    EXPECT_EQ(done, Others);
    auto output = std::async(std::launch::async, [&] { queue.waitFor(u"/nowhere/slow"_s); });
    auto source = std::async(std::launch::async, [&] { queue.waitFor(u"/nowhere/source"_s); });
    EXPECT_EQ(output.wait_for(20ms), std::future_status::timeout);
    EXPECT_EQ(source.wait_for(0ms), std::future_status::timeout);
    gate.set_value();
    output.get();
    source.get();
    EXPECT_EQ(done, Others + 1);
}

TEST(MetadataQueue, CarriesOutEveryRequestOnAFewThreadsWhateverFails) {
    std::atomic<int> done = 0;
    std::atomic<int> atOnce = 0;
    std::atomic<int> most = 0;
    {
        MetadataQueue queue(2, [&](const MetadataRequest& asked) -> Result<void> {
            most = std::max<int>(most, ++atOnce);
            std::this_thread::sleep_for(1ms);
            --atOnce;
            ++done;
            if (asked.resolution > 72.0) throw std::runtime_error("no memory");
            if (asked.output.endsWith(u'3')) return fail(ErrorCode::ProgramFailed, u"no"_s);
            return {};
        });
        for (int i = 0; i < 50; ++i) {
            MetadataRequest asked = request(u"/nowhere/in"_s, u"/nowhere/%1"_s.arg(i));
            asked.resolution += i % 10;
            queue.add(asked);
            if (i == 25) {
                queue.settle();
                EXPECT_EQ(done, 26);
            }
        }
    }
    EXPECT_EQ(done, 50) << "the destructor completes what is queued";
    EXPECT_EQ(most, 2);
}

}  // namespace
}  // namespace zelto
