// SPDX-License-Identifier: GPL-3.0-or-later
// Why a record leaves no mark on a photo, or one that cannot be seen: the words for programs and for users. Finding out
// is the layer builder's work. A warning never changes what is drawn.
#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>

namespace zelto {

struct LayerWarning {
    QLatin1String kind;  // a word that programs can look for
    QString text;        // a sentence for the user

    static LayerWarning logoUnreadable(const QString& path);
    static LayerWarning emptyText();
    static LayerWarning missingLetters(const QStringList& letters);
    static LayerWarning codeTooLong();
    static LayerWarning codeTooFine();
    static LayerWarning outside(bool wholly);
    static LayerWarning noArea();
    static LayerWarning noLayer(const QString& reason);
};

}  // namespace zelto
