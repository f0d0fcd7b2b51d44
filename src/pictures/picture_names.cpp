// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_names.h"

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
};

// In the order in which choosers list them.
constexpr std::array Names = {
    NameRow{QLatin1String("jpg"), true, true},  NameRow{QLatin1String("gif"), true, false},
    NameRow{QLatin1String("jpeg"), true, true}, NameRow{QLatin1String("png"), true, true},
    NameRow{QLatin1String("tif"), true, true},  NameRow{QLatin1String("tiff"), true, true},
    NameRow{QLatin1String("bmp"), false, true}, NameRow{QLatin1String("giff"), false, true},
};

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
    return std::any_of(Names.begin(), Names.end(), [extension](const NameRow& name) {
        return name.isScanned && extension.compare(name.extension, Qt::CaseInsensitive) == 0;
    });
}

bool isPictureName(const QString& path) {
    static const QSet<QString> known = [] {
        QSet<QString> extensions;
        for (const QByteArray& format : QImageReader::supportedImageFormats())
            extensions.insert(QString::fromLatin1(format));
        return extensions;
    }();
    return known.contains(pathExtension(lastPathComponent(path)).toLower());
}

}  // namespace zelto
