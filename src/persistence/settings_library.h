// SPDX-License-Identifier: GPL-3.0-or-later
// The saved settings: one folder of setting files. A setting's name is its file's name without the extension, which may
// be written in any letter case. setting_file.h reads and writes the files. Any thread; two programs may share the
// folder.
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

namespace zelto {

struct WatermarkStack;

// The setting every run keeps its stack under.
inline constexpr QLatin1String LastWatermarkSetting("Last Watermark");

// Whether a file of that name, or path, is a setting file.
bool isSettingFileName(const QString& fileName);

class SettingsLibrary {
  public:
    // `folder` is the path of an existing folder, with or without "/" at its end.
    explicit SettingsLibrary(QString folder);

    // The names of all settings, sorted. Error: ErrorCode::NotFound when the folder cannot be read.
    Result<QStringList> names() const;

    // The path of the setting `name`: of its file where there is one, else of the file to be made for it.
    // Error: ErrorCode::InvalidValue for a name that is empty, holds a path separator or is not a file name.
    Result<QString> path(const QString& name) const;

    // Whether there is a file for `name`; a folder of that name is none.
    bool contains(const QString& name) const;

    // Deletes the setting's file. Error: that of path(), ErrorCode::NotFound or ErrorCode::CannotWrite.
    Result<void> remove(const QString& name) const;

    // Copies every setting file of `folder` into the library, or the other way. A name that is taken gets the
    // first number from 1 on that makes it free; no file is ever replaced. Returns how many were copied. One
    // that cannot be copied does not keep the others from it. Error: ErrorCode::NotFound when either folder
    // cannot be read, ErrorCode::InvalidValue when both are the same, ErrorCode::CannotWrite with the first
    // file that failed.
    Result<qsizetype> importFrom(const QString& folder) const;
    Result<qsizetype> exportTo(const QString& folder) const;

  private:
    QString folder_;
};

// Saves `stack` as the setting "Last Watermark" in the folder `settingsFolder`. A failure is logged: nothing that
// asks for it can do anything about it.
void saveLastWatermark(const WatermarkStack& stack, const QString& settingsFolder);

}  // namespace zelto
