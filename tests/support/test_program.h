// SPDX-License-Identifier: GPL-3.0-or-later
// Every test program's main: no display, and a home, preferences and application folders of its own that are
// gone when it ends, so that no test reads or leaves anything of the user's.
#pragma once

#include "platform/languages.h"
#include "support/testing.h"

#include <QCoreApplication>

#if defined(__SANITIZE_ADDRESS__)
// HEIC's encoder keeps its parameters when it is closed.
extern "C" __attribute__((used)) inline const char*
__lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:libx265\n";
}
#endif

namespace zelto {

// Runs the tests under an application object of the given class.
template <class Application>
int runTestProgram(int argc, char** argv) {
    const QTemporaryDir home;
    if (!home.isValid()) qFatal("cannot make a temporary home folder for the tests");
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(variable, QFile::encodeName(home.path()));
    }
    if (qEnvironmentVariableIsEmpty("XDG_CACHE_HOME")) {
        // The font cache is the one thing shared with the user: building it anew would cost each test a
        // second.
        qputenv("XDG_CACHE_HOME", QFile::encodeName(QDir::tempPath() + QStringLiteral("/zelto-test-cache")));
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    ::testing::InitGoogleMock(&argc, argv);
    const Application application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Zelto"));
    speakLanguage(QStringLiteral("en"));
    return RUN_ALL_TESTS();
}

}  // namespace zelto
