// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/embedded_pictures.h"

#include "metadata/jpeg_segments.h"
#include "pictures/picture_writer.h"

#include <algorithm>

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
            const Result<QByteArray> file = encodePicture(small, PictureFormat::Jpeg, {.quality = quality});
            if (file && file->size() <= bytes) return *file;
        }
    }
    return {};
}

// Replaces what starts in `bytes`: pictures that end there, or those that do not as well.
void replaceIn(QByteArray& bytes, bool onlyComplete, const std::function<QImage()>& picture) {
    // A picture starts one byte before its first 0xD8, which a marker follows.
    for (qsizetype at = bytes.indexOf('\xD8', 1); at > 0; at = bytes.indexOf('\xD8', at + 1)) {
        if (at + 1 >= bytes.size() || bytes[at + 1] != '\xFF') continue;
        const auto embedded = jpegAt(QByteArrayView(bytes).sliced(at - 1));
        if (!embedded || (onlyComplete && !embedded->isComplete)) continue;
        bytes.replace(
            at - 1, embedded->length,
            smallVersion(picture(), embedded->size, embedded->length).leftJustified(embedded->length, '\0'));
        at += embedded->length - 2;
    }
}

}  // namespace

void replaceEmbeddedPictures(QByteArray& file, const std::vector<ByteRange>& metadata,
                             const std::function<QImage()>& picture) {
    QImage made;
    const auto madeOnce = [&] {
        if (made.isNull()) made = picture();
        return made;
    };
    const auto replaceBetween = [&](std::size_t first, std::size_t last, bool onlyComplete) {
        QByteArray joined;
        for (std::size_t i = first; i < last; ++i)
            joined.append(file.data() + metadata[i].first, metadata[i].second - metadata[i].first);
        const QByteArray before = joined;
        replaceIn(joined, onlyComplete, madeOnce);
        if (joined == before) return;
        qsizetype at = 0;
        for (std::size_t i = first; i < last; ++i) {
            const auto [from, end] = metadata[i];
            file.replace(from, end - from, QByteArrayView(joined).sliced(at, end - from));
            at += end - from;
        }
    };
    // A large picture goes on in the next segment. One that is cut off ends with its own.
    replaceBetween(0, metadata.size(), true);
    for (std::size_t i = 0; i < metadata.size(); ++i) replaceBetween(i, i + 1, false);
}

bool holdsPictureAsText(QByteArrayView metadata) {
    // How the first bytes of a file look in base64.
    return metadata.contains("/9j/") || metadata.contains("iVBORw0KGgo");
}

}  // namespace zelto
