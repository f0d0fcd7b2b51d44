// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/saved_settings.h"

#include "options/nearest_word.h"
#include "persistence/setting_file.h"
#include "persistence/settings_library.h"
#include "platform/application_folders.h"
#include "platform/words.h"

#include <QFileInfo>

namespace zelto {
namespace {

bool looksLikeAPath(const QString& setting) {
    return setting.contains(QLatin1Char('/')) || setting.endsWith(SettingFileExtension, Qt::CaseInsensitive);
}

QString noSuchSetting(const QString& setting, const QStringList& names) {
    if (names.isEmpty())
        return Words::tr("there is no setting and no file “%1” (none is saved yet)").arg(setting);
    const QString saved = names.join(QStringLiteral(", "));
    const QString meant = nearestWord(setting, names);
    return meant.isEmpty()
               ? Words::tr("there is no setting and no file “%1” (saved are: %2)").arg(setting, saved)
               : Words::tr("there is no setting and no file “%1”; did you mean “%2”? (saved are: %3)")
                     .arg(setting, meant, saved);
}

}  // namespace

Result<SavedSettings> savedSettings() {
    SavedSettings saved{applicationFolderPath(SettingsFolder), {}};
    if (!QFileInfo::exists(saved.folder)) return saved;
    return SettingsLibrary(saved.folder).names().map([&](QStringList names) {
        saved.names = std::move(names);
        return saved;
    });
}

Result<QString> settingPath(const QString& nameOrFile) {
    const bool isFile = QFileInfo(nameOrFile).isFile();
    if (isFile && looksLikeAPath(nameOrFile)) return nameOrFile;
    const SettingsLibrary library(applicationFolderPath(SettingsFolder));
    if (library.contains(nameOrFile)) return library.path(nameOrFile);
    if (isFile) return nameOrFile;
    return fail(ErrorCode::NotFound,
                noSuchSetting(nameOrFile, savedSettings().value_or(SavedSettings()).names), nameOrFile);
}

}  // namespace zelto
