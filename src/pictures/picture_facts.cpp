// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_facts.h"

#include "pictures/color_profile.h"

#include <QColorSpace>
#include <QtEndian>

#include <utility>

namespace zelto {

std::optional<PictureFacts> readBmpFacts(QIODevice& device) {
    // The resolution stands behind the fields that the shortest of the headers ends with.
    constexpr qsizetype HeaderSizeAt = 14;
    constexpr qsizetype DotsPerMeterAt = 38;
    const QByteArray header = device.read(DotsPerMeterAt + 8);
    PictureFacts facts;
    if (header.size() == DotsPerMeterAt + 8 &&
        qFromLittleEndian<quint32>(header.constData() + HeaderSizeAt) >= 40) {
        const char* dots = header.constData() + DotsPerMeterAt;
        facts.dpiX = qFromLittleEndian<qint32>(dots) / InchesPerMeter;
        facts.dpiY = qFromLittleEndian<qint32>(dots + 4) / InchesPerMeter;
    }
    return facts;
}

PictureNeeds needsOf(QSize stored, const PictureFacts& facts, qint64 memory) {
    constexpr qint64 BytesToTurn = 8;  // a pixel, here and there
    const qint64 turned = facts.orientation == 1 ? 0 : pixelCount(stored) * BytesToTurn;
    PictureNeeds needs{uprightSize(stored, facts.orientation), std::max(memory, turned)};
    setResolution(needs, facts.dpiX, facts.dpiY, facts.orientation);
    return needs;
}

std::optional<Picture> finishedSrgbPicture(QImage stored, const PictureFacts& facts) {
    if (stored.isNull()) return std::nullopt;
    Picture picture{uprightPicture(std::move(stored), facts.orientation)};
    if (picture.image.hasAlphaChannel()) picture.image.convertTo(QImage::Format_ARGB32_Premultiplied);
    setResolution(picture, facts.dpiX, facts.dpiY, facts.orientation);
    return picture;
}

std::optional<Picture> finishedPicture(QImage stored, const PictureFacts& facts) {
    const QByteArray profile = facts.profile ? *facts.profile : stored.colorSpace().iccProfile();
    stored.setColorSpace({});
    return finishedSrgbPicture(convertedToSrgb(std::move(stored), profile), facts);
}

}  // namespace zelto
