// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/exiftool_pool.h"

#include "platform/application_folders.h"
#include "platform/words.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(exiftoolLog, "zelto.exiftool")

// A third one would hardly end better, and every photo would wait its minute.
constexpr int MostTimeOuts = 2;

constexpr std::chrono::seconds TimeAfterInterrupt{2};

}  // namespace

QString exiftoolProgram() {
    const QString named = qEnvironmentVariable("ZELTO_EXIFTOOL");
    if (!named.isEmpty()) return named;
    const QString shipped = resourceFolder() + QStringLiteral("/Exif/exiftool");
    if (QFileInfo(shipped).isExecutable()) return shipped;
    const QString installed = QStandardPaths::findExecutable(QStringLiteral("exiftool"));
    return installed.isEmpty() ? shipped : installed;
}

ExiftoolPool::ExiftoolPool(int processes, QString program)
    : program_(std::move(program)), free_(static_cast<std::size_t>(std::max(processes, 1))) {}

ExiftoolPool::~ExiftoolPool() {
    for (const auto& process : free_) {
        if (process) process->finish();
    }
}

std::unique_ptr<ExiftoolProcess> ExiftoolPool::take() {
    std::unique_lock lock(mutex_);
    freed_.wait(lock, [this] { return !free_.empty(); });
    auto process = std::move(free_.back());
    free_.pop_back();
    return process;
}

void ExiftoolPool::giveBack(std::unique_ptr<ExiftoolProcess> process) {
    const std::lock_guard lock(mutex_);
    // Running ones last: they are taken first, so that no more are started than are needed.
    free_.insert(process ? free_.end() : free_.begin(), std::move(process));
    freed_.notify_one();
}

tl::unexpected<Error> ExiftoolPool::failed(const QString& why) const {
    return fail(ErrorCode::ProgramFailed, why.arg(program_), program_);
}

void ExiftoolPool::warmUp() {
    if (!QFileInfo(program_).isExecutable()) return;
    auto process = take();
    const auto back = qScopeGuard([&] { giveBack(std::move(process)); });
    if (!process) process = ExiftoolProcess::start(program_).value_or(nullptr);
}

ExiftoolPool::Clock::time_point ExiftoolPool::deadline(Clock::time_point asked) const {
    const Clock::duration interrupted = interrupted_;
    return interrupted == Clock::duration()
               ? asked
               : std::min(asked, Clock::time_point(interrupted) + TimeAfterInterrupt);
}

Result<QString> ExiftoolPool::run(const QStringList& arguments, std::chrono::milliseconds timeout) {
    if (!QFileInfo(program_).isExecutable()) {
        std::call_once(missingIsLogged_, [this] {
            qCWarning(exiftoolLog, "exiftool is missing (“%s”): outputs are written without metadata.",
                      qUtf8Printable(program_));
        });
        return failed(Words::tr("“%1” is missing."));
    }
    if (timeOuts_ >= MostTimeOuts)
        return failed(Words::tr("“%1” was given up after it had not answered twice."));
    if (deadline(Clock::now() + timeout) <= Clock::now())
        return failed(Words::tr("“%1” was not given the time."));
    const int number = [this] {
        const std::lock_guard lock(mutex_);
        return ++lastNumber_;
    }();
    const Result<QByteArray> command = exiftoolCommand(arguments, number);
    if (!command) return tl::unexpected(command.error());

    auto process = take();
    const auto back = qScopeGuard([&] { giveBack(std::move(process)); });
    Result<QString> result = failed(Words::tr("“%1” ended while it was needed."));
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!process) {
            Result<std::unique_ptr<ExiftoolProcess>> started = ExiftoolProcess::start(program_);
            if (!started) {
                result = tl::unexpected(started.error());
                break;
            }
            process = *std::move(started);
        }
        const auto answer = process->run(*command, number,
                                         [this, asked = Clock::now() + timeout] { return deadline(asked); });
        if (answer) {
            result = QString::fromUtf8(*answer);
            break;
        }
        process->kill();
        process.reset();
        if (answer.error() == ExiftoolProcess::Failure::TimedOut) {
            if (interrupted_.load() == Clock::duration()) ++timeOuts_;
            result = failed(Words::tr("“%1” did not answer in time."));
            break;
        }
    }
    return result;
}

}  // namespace zelto
