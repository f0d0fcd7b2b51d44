// SPDX-License-Identifier: GPL-3.0-or-later
// One entry of the photo list.
#pragma once

#include <QImage>
#include <QString>

namespace zelto {

// How the last run left a photo; each state has its own status picture.
enum class PhotoStatus { NotProcessed, Written, Failed };

// The small picture that stands for `status` in the photo table. Any thread; the pixels are shared.
QImage statusImage(PhotoStatus status);

struct Image {
    explicit Image(QString path);

    QString ImagePath;           // as given when it was added; the entry's identity
    QImage StsImage;             // statusImage() of the last run's outcome
    QString ErrorMessage;        // of the last failure; empty for none
    bool ApplyWatermark = true;  // checked: a run processes this photo
};

}  // namespace zelto
