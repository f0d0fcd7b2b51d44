// SPDX-License-Identifier: GPL-3.0-or-later
// The window program: zelto [options] [PHOTO_OR_FOLDER...]
#include "app/common/icons.h"
#include "app/common/right_to_left.h"
#include "app/dialogs/standard_dialogs.h"
#include "app/editors/standard_editors.h"
#include "app/program/app_delegate.h"
#include "app/program/one_window.h"
#include "app/program/window_manual.h"
#include "options/arguments.h"
#include "options/manual_texts.h"
#include "platform/languages.h"
#include "platform/machine_limits.h"
#include "platform/process_setup.h"
#include "platform/words.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <new>
#include <optional>
#include <system_error>

namespace zelto {
namespace {

constexpr int CannotBeUsed = 2;

struct WindowLine {
    StartRequest request;
    bool wantsOwnWindow = false;  // even if there is one already
    QByteArray text;              // to be printed instead of a window
    int exitStatus = EXIT_SUCCESS;
};

WindowLine readLine(const QStringList& arguments) {
    WindowLine line;
    const Result<GivenArguments> given = readArguments(windowManual(), arguments);
    if (!given) {
        const QString hint = Words::tr("try 'zelto --help'");
        line.text = QStringLiteral("zelto: %1\nzelto: %2\n").arg(given.error().message, hint).toLocal8Bit();
        line.exitStatus = CannotBeUsed;
        return line;
    }
    line.request.photos = given->others;
    for (const GivenOption& option : given->options) {
        if (option.name == QLatin1String("setting")) line.request.setting = option.value;
        if (option.name == QLatin1String("new-window")) line.wantsOwnWindow = true;
        if (option.name == QLatin1String("help")) line.text = helpText(windowManual()).toUtf8();
        if (option.name == QLatin1String("version")) line.text = "zelto " ZELTO_VERSION "\n";
        if (option.name == QLatin1String("generate")) {
            line.text = generatedText(windowManual(), option.value);
            if (line.text.isEmpty()) {
                line.text = QByteArray("zelto: --generate: ") + GeneratedKinds + "\n";
                line.exitStatus = CannotBeUsed;
            }
        }
    }
    return line;
}

// Whether the arguments ask for a text, which needs no display.
bool asksForText(int argc, char** argv) {
    return std::any_of(argv + 1, argv + argc, [](const char* argument) {
        const QByteArray text(argument);
        return text == "-h" || text == "--help" || text == "-v" || text == "--version" ||
               text.startsWith("--generate");
    });
}

int print(const WindowLine& line) {
    std::FILE* const where = line.exitStatus == EXIT_SUCCESS ? stdout : stderr;
    std::fwrite(line.text.constData(), 1, static_cast<std::size_t>(line.text.size()), where);
    return line.exitStatus;
}

// For the terminal or the desktop's log: where memory or threads are refused, no window can be counted on.
int cannotStart(const QString& why) {
    printError("zelto: " + why.toLocal8Bit() + '\n');
    return CannotBeUsed;
}

int run(int argc, char** argv) {
    if (asksForText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        speakUsersLanguage();
        const WindowLine line = readLine(QCoreApplication::arguments().mid(1));
        if (!line.text.isEmpty()) return print(line);
    }
    constexpr qint64 NeededBytes = qint64{320} << 20;  // found with `ulimit -v`
    if (const Result<void> enough = checkMemoryToStart(NeededBytes); !enough)
        return cannotStart(enough.error().message);
    // Takes what is Qt's own out of the arguments.
    QApplication application(argc, argv);
    speakUsersLanguage();
    keepButtonWordsWhole();
    QApplication::setApplicationName(QStringLiteral("Zelto"));
    QApplication::setApplicationVersion(QStringLiteral(ZELTO_VERSION));
    QApplication::setWindowIcon(applicationIcon());
    QApplication::setDesktopFileName(QStringLiteral("org.zelto.Zelto"));
    const WindowLine line = readLine(QCoreApplication::arguments().mid(1));
    if (!line.text.isEmpty()) return print(line);
    OneWindow window;
    if (!line.wantsOwnWindow && window.handOver(forAnotherProcess(line.request))) return EXIT_SUCCESS;
    if (const Result<void> started = startDrawingThreads(); !started)
        return cannotStart(started.error().message);
    AppDelegate delegate(standardDialogs(), standardEditors());
    QObject::connect(&window, &OneWindow::asked,
                     [&delegate](const StartRequest& asked) { delegate.open(asked); });
    delegate.start(line.request);
    return QApplication::exec();
}

int runOrSayWhyNot(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::system_error&) {
        return cannotStart(Words::tr("no thread can be started"));
    } catch (const std::bad_alloc&) {
        return cannotStart(Words::tr("there is not enough memory to start"));
    }
}

}  // namespace
}  // namespace zelto

int main(int argc, char** argv) {
    zelto::prepareProcess();
    return zelto::runOrSayWhyNot(argc, argv);
}
