// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/inquiries.h"

#include "cli/batch_plan.h"
#include "cli/batch_report.h"
#include "cli/doctor.h"
#include "cli/printable.h"
#include "cli/saved_settings.h"
#include "cli/setting_text.h"
#include "persistence/setting_file.h"
#include "platform/words.h"

#include <QFontDatabase>

namespace zelto {
namespace {

QByteArray asLines(const QStringList& names) {
    QString text;
    for (const QString& name : names) text += printable(name) + QLatin1Char('\n');
    return text.toUtf8();
}

Result<Answer> listSettings() {
    return savedSettings().map([](const SavedSettings& saved) {
        return Answer{asLines(saved.names),
                      saved.names.isEmpty()
                          ? Words::tr("no setting is saved yet; settings are kept in “%1”").arg(saved.folder)
                          : QString()};
    });
}

Answer listFonts() {
    return {asLines(QFontDatabase::families()), {}};
}

Result<Answer> printOptions(const CommandLine& line) {
    return outputSettings(line).map([](const OutputSettings& settings) {
        return Answer{writeOutputSettingsDocument(settings), {}};
    });
}

Result<Answer> printSetting(const QString& nameOrFile) {
    return settingPath(nameOrFile).and_then(LoadWatermarkSetting).map([&](const WatermarkStack& stack) {
        return Answer{settingText(stack, nameOrFile).toUtf8(), {}};
    });
}

Answer examine(const CommandLine& line) {
    const Findings findings = examineMachine(line.output);
    return {findings.text.toUtf8(), {}, findings.isAllThere ? exit_status::Success : exit_status::SomeFailed};
}

}  // namespace

Result<Answer> answerTo(const CommandLine& line) {
    switch (line.task) {
        case Task::ListSettings:
            return listSettings();
        case Task::ListFonts:
            return listFonts();
        case Task::PrintSetting:
            return printSetting(line.taskArgument);
        case Task::PrintOptions:
            return printOptions(line);
        case Task::Doctor:
            return examine(line);
        default:
            return Answer();
    }
}

}  // namespace zelto
