// SPDX-License-Identifier: GPL-3.0-or-later
// How far a JPEG photo has come from another one: compare-photos FIRST SECOND [TOP]. Prints, for what lies below the
// first TOP rows of pixels, the PSNR of all three colours in dB ("inf" for the same pixels), the mean SSIM of luma over
// windows of 8 x 8 pixels, and the share of blocks with the same coefficients, 0 where size or sampling differ.
#include "pictures/picture_reader.h"
#include "support/stored_jpeg.h"

#include <QFile>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace zelto;

double psnr(const QImage& first, const QImage& second, int top) {
    double sum = 0.0;
    for (int y = top; y < first.height(); ++y) {
        const uchar* one = first.constScanLine(y);
        const uchar* other = second.constScanLine(y);
        for (int i = 0; i < first.width() * 4; ++i) sum += (one[i] - other[i]) * (one[i] - other[i]);
    }
    const double samples = 3.0 * first.width() * (first.height() - top);
    return 10.0 * std::log10(255.0 * 255.0 * samples / sum);
}

double luma(QRgb pixel) {
    return 0.299 * qRed(pixel) + 0.587 * qGreen(pixel) + 0.114 * qBlue(pixel);
}

// Wang, Bovik, Sheikh and Simoncelli 2004, with plain windows.
double ssimOf(const QImage& first, const QImage& second, int left, int top) {
    constexpr int Side = 8;
    constexpr double C1 = 0.01 * 255 * 0.01 * 255;
    constexpr double C2 = 0.03 * 255 * 0.03 * 255;
    double x = 0.0, y = 0.0, xx = 0.0, yy = 0.0, xy = 0.0;
    for (int row = top; row < top + Side; ++row) {
        const auto* one = reinterpret_cast<const QRgb*>(first.constScanLine(row)) + left;
        const auto* other = reinterpret_cast<const QRgb*>(second.constScanLine(row)) + left;
        for (int i = 0; i < Side; ++i) {
            const double a = luma(one[i]);
            const double b = luma(other[i]);
            x += a, y += b, xx += a * a, yy += b * b, xy += a * b;
        }
    }
    constexpr double Count = Side * Side;
    x /= Count, y /= Count, xx = xx / Count - x * x, yy = yy / Count - y * y, xy = xy / Count - x * y;
    return (2 * x * y + C1) * (2 * xy + C2) / ((x * x + y * y + C1) * (xx + yy + C2));
}

double ssim(const QImage& first, const QImage& second, int top) {
    double sum = 0.0;
    qint64 count = 0;
    for (int y = top; y + 8 <= first.height(); y += 4) {
        for (int x = 0; x + 8 <= first.width(); x += 4, ++count) sum += ssimOf(first, second, x, y);
    }
    return sum / static_cast<double>(count);
}

double sameBlocks(const StoredJpeg& first, const StoredJpeg& second, int top) {
    if (first.size != second.size || first.components.size() != second.components.size()) return 0.0;
    qint64 same = 0;
    qint64 count = 0;
    for (std::size_t i = 0; i < first.components.size(); ++i) {
        const StoredJpeg::Component& one = first.components[i];
        const StoredJpeg::Component& other = second.components[i];
        if (one.blocks != other.blocks) return 0.0;
        for (int y = (top + one.pixels.height() - 1) / one.pixels.height(); y < one.blocks.height(); ++y) {
            for (int x = 0; x < one.blocks.width(); ++x, ++count)
                same += one.table == other.table && one.at(x, y) == other.at(x, y) ? 1 : 0;
        }
    }
    return static_cast<double>(same) / static_cast<double>(count);
}

QByteArray contents(const char* path) {
    QFile file(QString::fromLocal8Bit(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return EXIT_FAILURE;
    const int top = argc > 3 ? std::atoi(argv[3]) : 0;
    const QByteArray first = contents(argv[1]);
    const QByteArray second = contents(argv[2]);
    const Result<Picture> one = decodePicture(first);
    const Result<Picture> other = decodePicture(second);
    if (!one || !other || one->image.size() != other->image.size()) {
        std::fprintf(stderr, "compare-photos: these are no two photos of one size\n");
        return EXIT_FAILURE;
    }
    std::printf("%.2f %.5f %.4f\n", psnr(one->image, other->image, top), ssim(one->image, other->image, top),
                sameBlocks(storedJpeg(first), storedJpeg(second), top));
    return EXIT_SUCCESS;
}
