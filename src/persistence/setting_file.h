// SPDX-License-Identifier: GPL-3.0-or-later
// The setting file: one XML document for each saved watermark stack. Reading accepts what this program and its older
// versions wrote. What files of strangers cannot do is told in xml_document.h. Any thread.
#pragma once

#include "platform/result.h"
#include "records/watermark_stack.h"

#include <QByteArray>
#include <QString>

namespace zelto {

// The file extension of setting files, with its dot.
inline constexpr QLatin1String SettingFileExtension(".zcs");

// The document of a stack, in UTF-8.
QByteArray writeSettingDocument(const WatermarkStack& stack);

// The stack of a document; `name` stands for the file in messages. Error: ErrorCode::InvalidFile, naming the
// file, the line and what is wrong there.
Result<WatermarkStack> readSettingDocument(const QByteArray& document, const QString& name);

// Whether a setting of the stack would hold anything but a filter: watermarks, or the effects.
bool hasAnythingToSave(const WatermarkStack& stack);

// Writes the stack to `path`, whole or not at all; does nothing where there isn't anything to save.
Result<void> SaveWatermarkSettings(const WatermarkStack& stack, const QString& path);

// The same for any stack.
Result<void> writeSettingFile(const WatermarkStack& stack, const QString& path);

// Error: ErrorCode::NotFound or those of readSettingDocument.
Result<WatermarkStack> LoadWatermarkSetting(const QString& path);

}  // namespace zelto
