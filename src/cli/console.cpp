// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/console.h"

#include "cli/printable.h"
#include "platform/process_setup.h"
#include "platform/words.h"

#include <QByteArray>

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>

namespace zelto {
namespace {

constexpr auto RedrawInterval = std::chrono::milliseconds(100);
constexpr int DefaultColumns = 80;
constexpr qsizetype LongestBar = 40;

bool isTerminal() {
    return isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb" && !qEnvironmentVariableIsEmpty("TERM");
}

int columns() {
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : DefaultColumns;
}

void print(const QString& text) {
    printError(text.toLocal8Bit());
}

}  // namespace

Console::Console(const ConsoleChoices& choices)
    : quiet_(choices.quiet),
      terminal_(isTerminal()),
      color_(choices.color && terminal_ && qEnvironmentVariableIsEmpty("NO_COLOR")),
      bar_(choices.bar && terminal_ && !quiet_) {}

void Console::begin(qint64 total) {
    const std::lock_guard lock(mutex_);
    pace_.begin(total);
    if (bar_) drawBar();
}

void Console::expect(qint64 photos) {
    const std::lock_guard lock(mutex_);
    pace_.expect(photos);
}

void Console::advance(const QString& line) {
    const std::lock_guard lock(mutex_);
    pace_.advance();
    if (bar_) {
        if (pace_.done() == pace_.total() || Clock::now() - drawn_ >= RedrawInterval) drawBar();
    } else if (!quiet_ && !line.isEmpty()) {
        print(QStringLiteral("[%1/%2] %3\n").arg(pace_.done()).arg(pace_.total()).arg(printable(line)));
    }
}

void Console::problem(const QString& text) {
    const std::lock_guard lock(mutex_);
    clearBar();
    print((color_ ? QStringLiteral("\x1b[1;31mzelto-batch:\x1b[0m ") : QStringLiteral("zelto-batch: ")) +
          printable(text) + QLatin1Char('\n'));
    if (bar_ && pace_.total() > 0) drawBar();
}

void Console::note(const QString& text) {
    if (quiet_) return;
    const std::lock_guard lock(mutex_);
    clearBar();
    print(QStringLiteral("zelto-batch: ") + printable(text) + QLatin1Char('\n'));
    if (bar_ && pace_.total() > 0) drawBar();
}

void Console::end() {
    const std::lock_guard lock(mutex_);
    clearBar();
    pace_.begin(0);
}

QString Console::bar() const {
    QString text = QStringLiteral(" %1/%2").arg(pace_.done()).arg(pace_.total());
    if (const auto figures = pace_.figures()) {
        text += QStringLiteral("  ") +
                Words::tr("%1 photos/s, %2 left").arg(figures->rate(), figures->timeLeft());
    }
    // The last column stays free: filling it would wrap the line on some terminals.
    const qsizetype width = std::min<qsizetype>(LongestBar, columns() - 3 - text.size());
    if (width < 4) return text.trimmed().left(columns() - 1);
    const qsizetype filled = pace_.total() > 0 ? width * pace_.done() / pace_.total() : width;
    const QString full = QString(filled, QLatin1Char('#'));
    const QString rest = QString(width - filled, QLatin1Char('.'));
    return QLatin1Char('[') +
           (color_ ? QStringLiteral("\x1b[32m") + full + QStringLiteral("\x1b[0m") : full) + rest +
           QLatin1Char(']') + text;
}

void Console::drawBar() {
    drawn_ = Clock::now();
    shown_ = true;
    print(QLatin1Char('\r') + bar() + QStringLiteral("\x1b[K"));
}

void Console::clearBar() {
    if (!shown_) return;
    print(QStringLiteral("\r\x1b[K"));
    shown_ = false;
}

}  // namespace zelto
