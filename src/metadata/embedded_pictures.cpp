// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/embedded_pictures.h"

#include "metadata/jpeg_segments.h"
#include "pictures/picture_writer.h"

#include <algorithm>
#include <cstring>

namespace zelto {
namespace {

// The largest side of what is put in: a preview of the size of a screen would be made for one that is hardly seen.
constexpr int LargestSide = 640;
constexpr int SmallestSide = 8;
constexpr int Qualities[] = {85, 60, 35};

// Samples of a large picture first: averaging all of its pixels would take longer than encoding it.
QImage reduced(const QImage& picture, QSize box) {
    constexpr int SamplesASide = 4;
    const QSize size =
        picture.size().scaled(box.boundedTo(picture.size()), Qt::KeepAspectRatio).expandedTo({1, 1});
    const QSize sampled = (size * SamplesASide).boundedTo(picture.size());
    return picture.scaled(sampled, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// A version of `picture` within `box` pixels whose file has at most `bytes` bytes; empty where there is none.
QByteArray smallVersion(const QImage& picture, QSize box, qsizetype bytes) {
    for (box = box.boundedTo({LargestSide, LargestSide}); std::max(box.width(), box.height()) >= SmallestSide;
         box /= 2) {
        const QImage small = reduced(picture, box);
        for (const int quality : Qualities) {
            const Result<QByteArray> file =
                encodePicture(small, PictureFormat::Jpeg, {.jpegQuality = quality});
            if (file && file->size() <= bytes) return *file;
        }
    }
    return {};
}

}  // namespace

void replaceEmbeddedPictures(QByteArray& bytes, qsizetype from, qsizetype end, const QImage& picture) {
    // A picture starts one byte before its first 0xD8, which a marker follows.
    qsizetype at = from;
    while (at + 2 < end) {
        const QByteArrayView rest = QByteArrayView(bytes).first(end).sliced(at);
        const auto* const found = static_cast<const char*>(
            std::memchr(rest.data() + 1, 0xD8, static_cast<std::size_t>(rest.size() - 2)));
        if (found == nullptr) return;
        at += found - rest.data() - 1;
        const auto embedded = static_cast<uchar>(found[1]) == 0xFF
                                  ? jpegAt(rest.sliced(found - rest.data() - 1))
                                  : std::nullopt;
        if (!embedded) {
            ++at;
            continue;
        }
        const QByteArray instead =
            smallVersion(picture, embedded->size, embedded->length).leftJustified(embedded->length, '\0');
        bytes.replace(at, embedded->length, instead);
        at += embedded->length;
    }
}

bool holdsPictureAsText(QByteArrayView metadata) {
    // How the first bytes of a file look in base64.
    return metadata.contains("/9j/") || metadata.contains("iVBORw0KGgo");
}

}  // namespace zelto
