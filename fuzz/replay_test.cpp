// SPDX-License-Identifier: GPL-3.0-or-later
// Every input of the corpora and every one that once did harm goes through its target. A file of a few kilobytes may
// take neither much memory nor much of the processor.
#include "support/test_program.h"
#include "targets.h"

#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace zelto {
namespace {

rusage used() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage;
}

TEST(Fuzz, EveryKnownInputIsTakenInMemoryAndTime) {
    for (const FuzzTarget& target : fuzzTargets()) {
        int inputs = 0;
        for (const char* const folder : {"corpus", "hostile"}) {
            QDirIterator files(QStringLiteral(ZELTO_FUZZ_DIR "/%1/%2")
                                   .arg(QLatin1String(folder), QLatin1String(target.name)),
                               QDir::Files);
            for (; files.hasNext(); ++inputs) {
                QFile file(files.next());
                ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
                const time_t before = used().ru_utime.tv_sec;
                target.run(file.readAll());
                EXPECT_LE(used().ru_utime.tv_sec - before, 10)
                    << qPrintable(file.fileName()) << " in seconds";
                ASSERT_LT(used().ru_maxrss, 1 << 20) << qPrintable(file.fileName()) << " in KiB";
            }
        }
        EXPECT_GT(inputs, 0) << target.name;
    }
}

}  // namespace
}  // namespace zelto

int main(int argc, char** argv) {
    return zelto::runTestProgram<QGuiApplication>(argc, argv);
}
