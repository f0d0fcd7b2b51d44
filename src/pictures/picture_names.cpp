// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_names.h"

#include "pictures/picture_writer.h"
#include "platform/path_parts.h"

#include <QImageReader>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

enum class NameGroup {
    Plain,
    Newer,  // becomes a JPEG where it cannot be written, as raw files do
    Raw
};

struct NameRow {
    QLatin1String extension;
    bool isOffered;
    bool isScanned;
    NameGroup group;
};

constexpr NameRow newerRow(const char* extension) {
    return {QLatin1String(extension), true, true, NameGroup::Newer};
}
constexpr NameRow rawRow(const char* extension) {
    return {QLatin1String(extension), true, true, NameGroup::Raw};
}

// In the order in which choosers list them.
constexpr std::array Names = {
    NameRow{QLatin1String("jpg"), true, true, NameGroup::Plain},
    NameRow{QLatin1String("gif"), true, false, NameGroup::Plain},
    NameRow{QLatin1String("jpeg"), true, true, NameGroup::Plain},
    NameRow{QLatin1String("png"), true, true, NameGroup::Plain},
    NameRow{QLatin1String("tif"), true, true, NameGroup::Plain},
    NameRow{QLatin1String("tiff"), true, true, NameGroup::Plain},
    NameRow{QLatin1String("bmp"), false, true, NameGroup::Plain},
    NameRow{QLatin1String("giff"), false, true, NameGroup::Plain},
    newerRow("heic"),
    newerRow("heif"),
    newerRow("avif"),
    newerRow("webp"),
    newerRow("jxl"),
    rawRow("dng"),
    rawRow("cr2"),
    rawRow("cr3"),
    rawRow("crw"),
    rawRow("nef"),
    rawRow("nrw"),
    rawRow("arw"),
    rawRow("sr2"),
    rawRow("raf"),
    rawRow("orf"),
    rawRow("rw2"),
    rawRow("pef"),
    rawRow("srw"),
    rawRow("mrw"),
    rawRow("x3f"),
};

const NameRow* rowOf(QStringView extension) {
    const auto* const row = std::ranges::find_if(Names, [extension](const NameRow& name) {
        return extension.compare(name.extension, Qt::CaseInsensitive) == 0;
    });
    return row == Names.end() ? nullptr : row;
}

}  // namespace

QString chooserPattern() {
    QStringList patterns;
    for (const NameRow& name : Names) {
        if (!name.isOffered) continue;
        const QString extension = name.extension;
        patterns << QStringLiteral("*.") + extension << QStringLiteral("*.") + extension.toUpper();
    }
    return QLatin1Char('(') + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
}

bool isScannedExtension(QStringView extension) {
    const NameRow* row = rowOf(extension);
    return row != nullptr && row->isScanned;
}

QStringList rawExtensions() {
    QStringList extensions;
    for (const NameRow& name : Names) {
        if (name.group == NameGroup::Raw) extensions.append(name.extension);
    }
    return extensions;
}

QString writtenExtension(QStringView extension) {
    const NameRow* row = rowOf(extension);
    const bool isReplaced =
        row != nullptr && row->group != NameGroup::Plain && !pictureFormatForExtension(extension);
    return isReplaced ? QStringLiteral("jpg") : extension.toString().toLower();
}

bool isPictureName(const QString& path) {
    static const QSet<QString> known = [] {
        QSet<QString> extensions;
        for (const QByteArray& format : QImageReader::supportedImageFormats())
            extensions.insert(QString::fromLatin1(format));
        return extensions;
    }();
    const QString extension = pathExtension(lastPathComponent(path)).toLower();
    return known.contains(extension) || rowOf(extension) != nullptr;
}

}  // namespace zelto
