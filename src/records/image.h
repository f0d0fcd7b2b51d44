// SPDX-License-Identifier: GPL-3.0-or-later
// One entry of the photo list.
#pragma once

#include <QString>
#include <QStringList>

#include <utility>

namespace zelto {

// How the last run left a photo.
enum class PhotoStatus { NotProcessed, Written, Failed };

struct Image {
    explicit Image(QString path) : ImagePath(std::move(path)) {}

    QString ImagePath;  // as given when it was added; the entry's identity
    PhotoStatus Status = PhotoStatus::NotProcessed;
    QString ErrorMessage;  // of the last failure; empty for none
    QStringList
        Warnings;  // of the last run: why the output may not be as it was meant, sentences for the user
    bool ApplyWatermark = true;  // checked: a run processes this photo
};

}  // namespace zelto
