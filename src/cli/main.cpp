// SPDX-License-Identifier: GPL-3.0-or-later
// zelto-batch: one batch from the command line.
#include "cli/batch_work.h"
#include "cli/command_line.h"
#include "cli/inquiries.h"
#include "cli/report_merge.h"
#include "cli/watch.h"
#include "options/manual_texts.h"
#include "platform/languages.h"
#include "platform/machine_limits.h"
#include "platform/process_setup.h"
#include "platform/words.h"

#include <QGuiApplication>

#include <langinfo.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <functional>
#include <new>
#include <optional>

namespace zelto {
namespace {

bool printResult(const QByteArray& text) {
    const auto size = static_cast<std::size_t>(text.size());
    // Whoever has closed the pipe wants no more of it; the photos are written all the same.
    return (std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) ||
           errno == EPIPE;
}

// Qt asks for a UTF-8 locale and a display, and would complain or fail in a bare environment.
void prepareEnvironment() {
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        // Dates and messages are still written in the language asked for, which need not be installed.
        if (const QByteArray all = qgetenv("LC_ALL"); !all.isEmpty()) {
            qputenv("LC_TIME", all);
            qputenv("LC_MESSAGES", all);
        }
        qunsetenv("LC_ALL");
        qputenv("LC_CTYPE", "C.UTF-8");
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
}

// Where the messages of the engine and of the libraries go; the libraries' small talk goes nowhere.
Console* messageConsole = nullptr;

void showMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const bool ours = context.category != nullptr && std::strncmp(context.category, "zelto", 5) == 0;
    const bool serious = type == QtCriticalMsg || type == QtFatalMsg;
    if (messageConsole != nullptr && (serious || (ours && type == QtWarningMsg)))
        messageConsole->problem(message);
    // A library that cannot go on says so once; there is no crash to report.
    if (type == QtFatalMsg) std::_Exit(exit_status::CannotBeUsed);
}

// A report of why nothing could be run.
BatchReport unusable(const Error& error) {
    BatchReport report;
    report.error = error.message;
    return report;
}

BatchReport work(const CommandLine& line, Console& console) {
    const Result<BatchPlan> plan = planBatch(line);
    if (!plan) return unusable(plan.error());
    for (const ScanProblem& problem : plan->problems)
        console.problem(problem.path + QStringLiteral(": ") + problem.text);
    if (line.dryRun) return dryRun(*plan, console);
    if (const Result<void> started = startDrawingThreads(); !started) return unusable(started.error());
    if (const Result<void> made = makeOutputFolder(*plan); !made) return unusable(made.error());
    if (!line.watch) return runBatch(*plan, line, console);
    std::function<void(const PhotoReport&)> printPhoto;
    // Whoever has closed the pipe keeps no photo from being written.
    if (line.json) printPhoto = [](const PhotoReport& photo) { printResult(toJsonLine(photo)); };
    return watchFolders(*plan, line, console, printPhoto);
}

int show(const BatchReport& report, const CommandLine& line, Console& console) {
    if (!report.error.isEmpty()) console.problem(report.error);
    bool printed = true;
    if (line.json) {
        printed = printResult(line.watch ? toJsonLine(report) : toJson(report));
    } else if (line.dryRun) {
        printed = printResult(dryRunText(report).toUtf8());
    } else if (!line.quiet && report.error.isEmpty()) {
        printed = printResult(toText(report).toUtf8());
    }
    if (!printed) console.problem(Words::tr("the result could not be printed"));
    // The status tells what became of the photos, even where the report cannot be; a dry run is nothing but its report.
    const int status = report.exitStatus();
    return printed || !line.dryRun ? status : std::max(status, exit_status::SomeFailed);
}

int merge(const CommandLine& line, Console& console) {
    const Result<MergedReport> merged = mergeReports(line.inputs);
    if (!merged) {
        BatchReport report = unusable(merged.error());
        console.problem(report.error);
        printResult(toJson(report));
        return report.exitStatus();
    }
    return printResult(merged->json) ? merged->exitStatus
                                     : std::max(merged->exitStatus, exit_status::SomeFailed);
}

// What can be told without looking at anything.
std::optional<QByteArray> textAskedFor(const CommandLine& line) {
    switch (line.task) {
        case Task::Help:
            return helpText(batchManual()).toUtf8();
        case Task::Version:
            return versionText().toUtf8();
        case Task::Generate:
            return generatedText(batchManual(), line.taskArgument);
        default:
            return std::nullopt;
    }
}

int tell(const CommandLine& line, Console& console) {
    const Result<Answer> answer = answerTo(line);
    if (!answer) {
        console.problem(answer.error().message);
        return exit_status::CannotBeUsed;
    }
    if (!answer->note.isEmpty()) console.note(answer->note);
    return printResult(answer->text) ? answer->exitStatus
                                     : std::max(answer->exitStatus, exit_status::SomeFailed);
}

int usageError(const Error& error, bool json) {
    Console console({});
    console.problem(error.message);
    console.note(Words::tr("try 'zelto-batch --help'"));
    if (json) printResult(toJson(unusable(error)));
    return exit_status::CannotBeUsed;
}

// Where memory runs out in a place that nothing can be told from, the run ends: what it has written is whole.
[[noreturn]] void giveUp() noexcept {
    const char* why = "an error";
    try {
        if (std::current_exception()) throw;
    } catch (const std::bad_alloc&) {
        why = "there is not enough memory";
    } catch (const std::exception& exception) {
        why = exception.what();
    } catch (...) {
    }
    ::dprintf(STDERR_FILENO, "zelto-batch: the run cannot go on: %s\n", why);
    std::_Exit(exit_status::SomeFailed);
}

// The last words of a crash, which a library may still come to where memory runs out.
void sayThatItCrashed(int signal) {
    constexpr char Saying[] = "zelto-batch: crashed; the outputs it has written are whole\n";
    [[maybe_unused]] const ssize_t ignored = ::write(STDERR_FILENO, Saying, sizeof Saying - 1);
    ::raise(signal);  // which by now has its usual effect
}

// On a stack of its own, since the usual one may be what ran out.
void sayCrashes() {
    static std::array<char, 16'384> stack;
    const stack_t other{stack.data(), 0, stack.size()};
    ::sigaltstack(&other, nullptr);
    struct sigaction action {};
    action.sa_handler = sayThatItCrashed;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_ONSTACK | SA_NODEFER);
    // GLib ends a program by a trap where it finds no memory.
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGTRAP}) ::sigaction(signal, &action, nullptr);
}

int run(int argc, char** argv) {
    prepareEnvironment();
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
    Result<CommandLine> line;
    {
        // What is wrong with a line is told in the user's language before anything larger is begun.
        int noArguments = 1;
        const QCoreApplication speaker(noArguments, argv);
        speakUsersLanguage();
        line = parseCommandLine(arguments);
        if (!line) return usageError(line.error(), asksForJson(arguments));
        if (const std::optional<QByteArray> text = textAskedFor(*line))
            return printResult(*text) ? exit_status::Success : exit_status::SomeFailed;
    }

    Console console({line->quiet, line->color, line->progress && !line->watch});
    if (line->task == Task::MergeReports) return merge(*line, console);
    if (const Result<void> enough = checkMemoryToStart(); !enough)
        return show(unusable(enough.error()), *line, console);
    messageConsole = &console;
    qInstallMessageHandler(showMessage);
    // The arguments are ours; Qt is to find nothing for itself among them.
    int argumentsForQt = 1;
    const QGuiApplication application(argumentsForQt, argv);
    speakUsersLanguage();
    if (line->task != Task::Run) return tell(*line, console);
    BatchReport report = work(*line, console);
    report.shard = line->shard;
    const int status = show(report, *line, console);
    messageConsole = nullptr;
    return status;
}

}  // namespace
}  // namespace zelto

int main(int argc, char** argv) {
    zelto::prepareProcess();
    zelto::keepLibrariesQuiet();
    std::set_terminate(zelto::giveUp);
    zelto::sayCrashes();
    try {
        return zelto::run(argc, argv);
    } catch (const std::bad_alloc&) {
        ::dprintf(STDERR_FILENO, "zelto-batch: there is not enough memory\n");
        return zelto::exit_status::CannotBeUsed;
    } catch (const std::exception& exception) {
        zelto::printError(QByteArray("zelto-batch: ") + exception.what() + '\n');
        return zelto::exit_status::CannotBeUsed;
    }
}
