// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ink.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace zelto {
namespace {

template <class Wanted>
QRect boxOf(const QImage& picture, Wanted wanted) {
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (wanted(picture.pixel(x, y))) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

}  // namespace

QRect inkBox(const QImage& picture, QColor background, int tolerance) {
    const QRgb paper = background.rgba();
    return boxOf(picture, [=](QRgb pixel) { return largestDifference(pixel, paper) > tolerance; });
}

QRect colorBox(const QImage& picture, QColor color, int tolerance) {
    const QRgb ink = color.rgba();
    return boxOf(picture, [=](QRgb pixel) { return largestDifference(pixel, ink) <= tolerance; });
}

int largestDifference(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

QImage storedValues(QImage picture) {
    picture.reinterpretAsFormat(QImage::Format_ARGB32);
    return picture;
}

int largestDifference(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            largest = std::max(largest, largestDifference(a.pixel(x, y), b.pixel(x, y)));
    }
    return largest;
}

QImage onWhite(const QImage& picture) {
    QImage paper(picture.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, picture);
    return paper;
}

}  // namespace zelto
