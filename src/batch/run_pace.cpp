// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/run_pace.h"

#include <QLocale>

#include <cmath>

namespace zelto {
namespace {

// From here on a rate is more than noise.
constexpr qint64 PhotosForARate = 2;

}  // namespace

void RunPace::begin(qint64 photos, Clock::time_point now) {
    start_ = now;
    done_ = 0;
    total_ = photos;
}

std::optional<RunPace::Figures> RunPace::figures(Clock::time_point now) const {
    const double elapsed = std::chrono::duration<double>(now - start_).count();
    if (done_ < PhotosForARate || elapsed <= 0.0) return std::nullopt;
    const double rate = static_cast<double>(done_) / elapsed;
    return Figures{rate, static_cast<double>(total_ - done_) / rate};
}

QString RunPace::Figures::rate() const {
    return QLocale().toString(photosPerSecond, 'f', photosPerSecond < 10.0 ? 1 : 0);
}

QString RunPace::Figures::timeLeft() const {
    const auto whole = std::llround(secondsLeft);
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    const QString minutes =
        whole < 3600 ? QString::number(whole / 60)
                     : QString::number(whole / 3600) + QLatin1Char(':') + twoDigits(whole / 60 % 60);
    return minutes + QLatin1Char(':') + twoDigits(whole % 60);
}

}  // namespace zelto
