// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/console.h"

#include <QByteArray>

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace zelto {
namespace {

using Seconds = std::chrono::duration<double>;

constexpr auto RedrawInterval = std::chrono::milliseconds(100);
constexpr int DefaultColumns = 80;
constexpr qsizetype LongestBar = 40;
// From here on a rate is more than noise.
constexpr qint64 PhotosForARate = 2;

bool isTerminal() {
    return isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb" && !qEnvironmentVariableIsEmpty("TERM");
}

int columns() {
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : DefaultColumns;
}

void print(const QString& text) {
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

// 0:04, 12:30, 1:02:03
QString clockTime(double seconds) {
    const auto whole = static_cast<qint64>(seconds + 0.5);
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    const QString minutes =
        whole < 3600 ? QString::number(whole / 60)
                     : QString::number(whole / 3600) + QLatin1Char(':') + twoDigits(whole / 60 % 60);
    return minutes + QLatin1Char(':') + twoDigits(whole % 60);
}

}  // namespace

Console::Console(const ConsoleChoices& choices)
    : quiet_(choices.quiet),
      terminal_(isTerminal()),
      color_(choices.color && terminal_ && qEnvironmentVariableIsEmpty("NO_COLOR")),
      bar_(choices.bar && terminal_ && !quiet_) {}

void Console::begin(qint64 total) {
    const std::lock_guard lock(mutex_);
    start_ = Clock::now();
    total_ = total;
    if (bar_) drawBar();
}

void Console::advance(const QString& line) {
    const std::lock_guard lock(mutex_);
    ++done_;
    if (bar_) {
        if (done_ == total_ || Clock::now() - drawn_ >= RedrawInterval) drawBar();
    } else if (!quiet_ && !line.isEmpty()) {
        print(QStringLiteral("[%1/%2] %3\n").arg(done_).arg(total_).arg(line));
    }
}

void Console::problem(const QString& text) {
    const std::lock_guard lock(mutex_);
    clearBar();
    print((color_ ? QStringLiteral("\x1b[1;31mzelto-batch:\x1b[0m ") : QStringLiteral("zelto-batch: ")) +
          text + QLatin1Char('\n'));
    if (bar_ && total_ > 0) drawBar();
}

void Console::note(const QString& text) {
    if (quiet_) return;
    const std::lock_guard lock(mutex_);
    clearBar();
    print(QStringLiteral("zelto-batch: ") + text + QLatin1Char('\n'));
    if (bar_ && total_ > 0) drawBar();
}

void Console::end() {
    const std::lock_guard lock(mutex_);
    clearBar();
    total_ = 0;
}

QString Console::bar() const {
    QString text = QStringLiteral(" %1/%2").arg(done_).arg(total_);
    const double elapsed = Seconds(Clock::now() - start_).count();
    if (done_ >= PhotosForARate && elapsed > 0) {
        const double rate = static_cast<double>(done_) / elapsed;
        text += QStringLiteral("  %1 photos/s  %2 left")
                    .arg(rate, 0, 'f', rate < 10 ? 1 : 0)
                    .arg(clockTime(static_cast<double>(total_ - done_) / rate));
    }
    // The last column stays free: filling it would wrap the line on some terminals.
    const qsizetype width = std::min<qsizetype>(LongestBar, columns() - 3 - text.size());
    if (width < 4) return text.trimmed().left(columns() - 1);
    const qsizetype filled = total_ > 0 ? width * done_ / total_ : width;
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
