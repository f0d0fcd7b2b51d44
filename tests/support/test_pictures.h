// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures made on the spot for tests and benchmarks: a drawn scene that behaves like a photo (smooth
// gradients, hard edges, fine detail, grain), and JPEG files with whatever a camera may put into them. The
// same size gives the same pixels on every run.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <functional>

namespace zelto {

// An RGB32 landscape of `size` pixels. No two corners are alike, so a picture turned the wrong way is
// noticed.
QImage drawnScene(QSize size);

// The same with alpha (premultiplied ARGB32): clear outside an ellipse, half transparent at its rim, opaque
// within.
QImage drawnSceneWithAlpha(QSize size);

// Each pixel's stored value is that of `pixel` at its place, from the top left.
QImage pictureOf(QSize size, QImage::Format format, const std::function<QRgb(int x, int y)>& pixel);

struct TestJpeg {
    int quality = 90;
    bool fullChroma = true;  // 4:4:4, else 4:2:0
    int across = 0;          // another sampling: blocks of luma for one of chroma; 0 for the above
    int down = 0;
    bool progressive = false;
    bool optimized = false;     // with Huffman tables made for this picture
    unsigned restartUnits = 0;  // sampling units between two restart markers, 0 for none
    bool adobe = false;         // with an Adobe marker
    bool grey = false;
    int orientation = 0;       // the EXIF value 1 to 8; 0 leaves EXIF out unless another field asks for it
    int exifDpi = 0;           // EXIF resolution in inches, 0 for none
    int jfifDensity = 0;       // JFIF resolution, 0 for none
    int jfifDensityY = 0;      // 0: as jfifDensity
    int jfifUnit = 1;          // 1 dots per inch, 2 dots per centimetre
    bool dcfAdobeRgb = false;  // EXIF says "uncalibrated, R03", as cameras set to Adobe RGB do
    QByteArray profile = {};   // ICC profile to embed
};

// A JPEG file of `picture`'s pixels as they are stored (the orientation is only recorded).
QByteArray jpegBytes(const QImage& picture, const TestJpeg& options = {});

// A CMYK JPEG of `width` x `height` pixels of 4 bytes each: C, M, Y, K with 255 for full ink. `adobe` stores
// them inverted and says so, as Photoshop does; `ycck` stores them as luma, chroma and black.
QByteArray cmykJpegBytes(const QByteArray& pixels, QSize size, bool adobe, bool ycck,
                         const QByteArray& profile = {});

// `png` with one more chunk, behind its header; `type` has four letters.
QByteArray withPngChunk(QByteArray png, const char* type, const QByteArray& data);

// The bytes of an Adobe RGB (1998) compatible ICC profile.
QByteArray adobeRgbProfile();

}  // namespace zelto
