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

struct NameRow {
    QLatin1String extension;
    bool isOffered;
    bool isScanned;
    bool falls;  // back on JPEG where it cannot be written
};

// In the order in which choosers list them.
constexpr std::array Names = {
    NameRow{QLatin1String("jpg"), true, true, false},  NameRow{QLatin1String("gif"), true, false, false},
    NameRow{QLatin1String("jpeg"), true, true, false}, NameRow{QLatin1String("png"), true, true, false},
    NameRow{QLatin1String("tif"), true, true, false},  NameRow{QLatin1String("tiff"), true, true, false},
    NameRow{QLatin1String("bmp"), false, true, false}, NameRow{QLatin1String("giff"), false, true, false},
    NameRow{QLatin1String("heic"), true, true, true},  NameRow{QLatin1String("heif"), true, true, true},
    NameRow{QLatin1String("avif"), true, true, true},  NameRow{QLatin1String("webp"), true, true, true},
    NameRow{QLatin1String("jxl"), true, true, true},   NameRow{QLatin1String("dng"), true, false, true},
    NameRow{QLatin1String("cr2"), true, false, true},  NameRow{QLatin1String("cr3"), true, false, true},
    NameRow{QLatin1String("crw"), true, false, true},  NameRow{QLatin1String("nef"), true, false, true},
    NameRow{QLatin1String("nrw"), true, false, true},  NameRow{QLatin1String("arw"), true, false, true},
    NameRow{QLatin1String("sr2"), true, false, true},  NameRow{QLatin1String("raf"), true, false, true},
    NameRow{QLatin1String("orf"), true, false, true},  NameRow{QLatin1String("rw2"), true, false, true},
    NameRow{QLatin1String("pef"), true, false, true},  NameRow{QLatin1String("srw"), true, false, true},
    NameRow{QLatin1String("mrw"), true, false, true},  NameRow{QLatin1String("x3f"), true, false, true},
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

QString writtenExtension(QStringView extension) {
    const NameRow* row = rowOf(extension);
    const bool isReplaced = row != nullptr && row->falls && !pictureFormatForExtension(extension);
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
