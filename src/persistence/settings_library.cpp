// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/settings_library.h"

#include "persistence/setting_file.h"
#include "persistence/xml_document.h"
#include "platform/whole_file.h"
#include "platform/words.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <optional>
#include <utility>

namespace zelto {

bool isSettingFileName(const QString& fileName) {
    return fileName.size() > SettingFileExtension.size() &&
           fileName.endsWith(SettingFileExtension, Qt::CaseInsensitive);
}

namespace {

Q_LOGGING_CATEGORY(settingsLog, "zelto.settings")

QString settingName(const QString& fileName) {
    return fileName.chopped(SettingFileExtension.size());
}

// The file names of the settings in `folder`, sorted by name.
Result<QStringList> settingFiles(const QString& folder) {
    const QDir directory(folder);
    if (!directory.exists() || !directory.isReadable()) {
        return fail(ErrorCode::NotFound, Words::tr("The folder “%1” cannot be read.").arg(folder), folder);
    }
    QStringList files = directory.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    files.removeIf([](const QString& file) { return !isSettingFileName(file); });
    return files;
}

// The setting names of `folder` that a new file must not take, files or not.
QStringList takenNames(const QString& folder) {
    QStringList taken =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    taken.removeIf([](const QString& file) { return !isSettingFileName(file); });
    for (QString& name : taken) name = settingName(name);
    return taken;
}

QString freeName(const QString& name, const QStringList& taken) {
    QString candidate = name;
    for (qint64 n = 1; taken.contains(candidate); ++n) candidate = name + QString::number(n);
    return candidate;
}

Result<qsizetype> copySettings(const QString& source, const QString& target) {
    const Result<QStringList> files = settingFiles(source);
    if (!files) return tl::unexpected(files.error());
    if (const auto targetFiles = settingFiles(target); !targetFiles)
        return tl::unexpected(targetFiles.error());
    if (QFileInfo(source).canonicalFilePath() == QFileInfo(target).canonicalFilePath()) {
        return fail(ErrorCode::InvalidValue, Words::tr("The settings are already in “%1”.").arg(target),
                    target);
    }
    QStringList taken = takenNames(target);
    qsizetype copied = 0;
    std::optional<Error> firstError;
    for (const QString& file : *files) {
        const QString name = freeName(settingName(file), taken);
        const QString targetPath = QDir(target).filePath(name + file.right(SettingFileExtension.size()));
        const Result<void> copy =
            readXmlFile(QDir(source).filePath(file)).and_then([&targetPath](const QByteArray& content) {
                return writeWholeFile(targetPath, content);
            });
        if (copy) {
            taken.append(name);
            ++copied;
        } else if (!firstError) {
            firstError = copy.error();
        }
    }
    if (firstError) return fail(ErrorCode::CannotWrite, firstError->message, firstError->path);
    return copied;
}

}  // namespace

SettingsLibrary::SettingsLibrary(QString folder) : folder_(std::move(folder)) {}

Result<QStringList> SettingsLibrary::names() const {
    return settingFiles(folder_).map([](QStringList names) {
        for (QString& name : names) name = settingName(name);
        std::stable_sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
            return a.compare(b, Qt::CaseInsensitive) < 0;
        });
        names.removeDuplicates();
        return names;
    });
}

Result<QString> SettingsLibrary::path(const QString& name) const {
    const auto isForbidden = [](QChar c) { return c == u'/' || c == u'\\' || c.isNull(); };
    if (name.isEmpty() || std::any_of(name.cbegin(), name.cend(), isForbidden)) {
        return fail(ErrorCode::InvalidValue, Words::tr("A setting cannot be named “%1”.").arg(name));
    }
    const QDir directory(folder_);
    const QString usual = directory.filePath(name + SettingFileExtension);
    if (QFileInfo(usual).isFile()) return usual;
    const QStringList files = settingFiles(folder_).value_or(QStringList());
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&name](const QString& file) { return settingName(file) == name; });
    return found == files.end() ? usual : directory.filePath(*found);
}

bool SettingsLibrary::contains(const QString& name) const {
    const Result<QString> file = path(name);
    return file && QFileInfo(*file).isFile();
}

Result<void> SettingsLibrary::remove(const QString& name) const {
    const Result<QString> found = path(name);
    if (!found) return tl::unexpected(found.error());
    QFile file(*found);
    if (!QFileInfo(*found).isFile()) {
        return fail(ErrorCode::NotFound, Words::tr("There is no setting “%1”.").arg(name), *found);
    }
    if (!file.remove()) {
        return fail(ErrorCode::CannotWrite,
                    Words::tr("The setting “%1” cannot be deleted: %2").arg(name, file.errorString()),
                    *found);
    }
    return {};
}

Result<qsizetype> SettingsLibrary::importFrom(const QString& folder) const {
    return copySettings(folder, folder_);
}

Result<qsizetype> SettingsLibrary::exportTo(const QString& folder) const {
    return copySettings(folder_, folder);
}

void saveLastWatermark(const WatermarkStack& stack, const QString& settingsFolder) {
    const Result<void> saved =
        SettingsLibrary(settingsFolder).path(LastWatermarkSetting).and_then([&](const QString& path) {
            return SaveWatermarkSettings(stack, path);
        });
    if (!saved) qCWarning(settingsLog, "%s", qUtf8Printable(saved.error().message));
}

}  // namespace zelto
