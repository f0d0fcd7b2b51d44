// SPDX-License-Identifier: GPL-3.0-or-later
// How far a JPEG photo has come from another one: compare-photos FIRST SECOND WANTED. Prints the PSNR of all three
// colours in dB and the mean SSIM of luma over windows of 8 x 8 pixels between SECOND and the picture WANTED, and the
// share of blocks that have the same coefficients in FIRST and SECOND, 0 where size or sampling differ.
#include "pictures/picture_reader.h"
#include "support/stored_jpeg.h"

#include <QFile>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace zelto;

double psnr(const QImage& first, const QImage& second) {
    double sum = 0.0;
    for (int y = 0; y < first.height(); ++y) {
        const uchar* one = first.constScanLine(y);
        const uchar* other = second.constScanLine(y);
        for (int i = 0; i < first.width() * 4; ++i) sum += (one[i] - other[i]) * (one[i] - other[i]);
    }
    const double samples = 3.0 * first.width() * first.height();
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

double ssim(const QImage& first, const QImage& second) {
    double sum = 0.0;
    qint64 count = 0;
    for (int y = 0; y + 8 <= first.height(); y += 4) {
        for (int x = 0; x + 8 <= first.width(); x += 4, ++count) sum += ssimOf(first, second, x, y);
    }
    return sum / static_cast<double>(count);
}

double sameBlocks(const StoredJpeg& first, const StoredJpeg& second) {
    if (first.size != second.size || first.components.size() != second.components.size()) return 0.0;
    qint64 same = 0;
    qint64 count = 0;
    for (std::size_t i = 0; i < first.components.size(); ++i) {
        const StoredJpeg::Component& one = first.components[i];
        const StoredJpeg::Component& other = second.components[i];
        if (one.blocks != other.blocks) return 0.0;
        for (int y = 0; y < one.blocks.height(); ++y) {
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
    if (argc != 4) return EXIT_FAILURE;
    const QByteArray first = contents(argv[1]);
    const QByteArray second = contents(argv[2]);
    const Result<Picture> shown = decodePicture(second);
    const Result<Picture> wanted = decodePicture(contents(argv[3]));
    if (!shown || !wanted || shown->image.size() != wanted->image.size()) {
        std::fprintf(stderr, "compare-photos: these are no two photos of one size\n");
        return EXIT_FAILURE;
    }
    std::printf("%.2f %.5f %.4f\n", psnr(wanted->image, shown->image), ssim(wanted->image, shown->image),
                sameBlocks(storedJpeg(first), storedJpeg(second)));
    return EXIT_SUCCESS;
}
