// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/qr_code.h"

#include "render/lengths.h"
#include "render/qt_color.h"

#include <QPainter>
#include <QPainterPath>
#include <qrencode.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace zelto {
namespace {

// Lengths of a code in pixels of its surface.
struct Measures {
    double surface;  // side, whole pixels
    double border;   // left free on every side
    double drawn;    // side of what is inside the border

    explicit Measures(const QrImage& code)
        : surface(std::max(static_cast<double>(code.symbol.width), wholePixels(code.side))),
          border(std::trunc(code.side / 20.0)),
          drawn(code.side - 2.0 * border) {}
};

}  // namespace

std::optional<QrSymbol> encodeQrSymbol(const QString& text) {
    if (text.isEmpty()) return std::nullopt;
    constexpr int SmallestVersion = 0;
    constexpr int CaseSensitive = 1;
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeString(text.toUtf8().constData(), SmallestVersion, QR_ECLEVEL_L, QR_MODE_8,
                            CaseSensitive),
        &QRcode_free);
    if (!code) return std::nullopt;
    return QrSymbol{code->width, QByteArray(reinterpret_cast<const char*>(code->data),
                                            qsizetype{code->width} * code->width)};
}

void drawQRCode(const QrSymbol& symbol, QPainter& painter, double size) {
    const int whole = static_cast<int>(std::floor(size));
    const int module = whole / symbol.width;
    const int rest = whole % symbol.width;
    const int offset = rest == 0 ? 0 : static_cast<int>((size - module * symbol.width) * 0.5);
    // One path: squares that touch then join without a seam, also where the painter scales them.
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (int row = 0; row < symbol.width; ++row) {
        for (int column = 0; column < symbol.width; ++column) {
            if ((symbol.modules[row * symbol.width + column] & 1) == 0) continue;
            path.addRect(offset + column * module, offset + row * module, module, module);
        }
    }
    painter.fillPath(path, Qt::black);
}

double qrSide(const Watermark& record, QSizeF reference) {
    if (record.ResizeFormat != qr_resize::Relative) return drawnLength(withoutDust(record.ResizeWidth));
    return record.ResizebyWidth ? drawnLength(relativeLength(record.ResizeWidth, reference.width())) : 0.0;
}

std::optional<QrImage> qrImageForString(const QString& text, double side,
                                        const std::optional<Color>& background) {
    side = drawnLength(side);
    if (side == 0.0) return std::nullopt;
    std::optional<QrSymbol> symbol = encodeQrSymbol(text);
    if (!symbol) return std::nullopt;
    return QrImage{*std::move(symbol), side, background};
}

double moduleSide(const QrImage& code) {
    const Measures measures(code);
    const int units = static_cast<int>(measures.surface) / code.symbol.width;
    return units * measures.drawn / measures.surface;
}

void drawQrImage(QPainter& painter, const QrImage& code, const ContentPlace& place) {
    const Measures measures(code);
    const QRectF square = place.toPicture.mapRect(QRectF(0.0, 0.0, code.side, code.side));
    if (visiblePixels(square.adjusted(-1, -1, 1, 1), place.visible).isEmpty()) return;
    painter.save();
    painter.setClipRect(place.visible);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(place.toPicture);
    // A surface that is larger by less than a pixel stands on the lower edge; one of more pixels is shrunk.
    const double shrinking = measures.surface > wholePixels(code.side) ? code.side / measures.surface : 1.0;
    painter.translate(0.0, code.side - measures.surface * shrinking);
    painter.scale(shrinking, shrinking);
    if (code.background) {
        painter.fillRect(QRectF(0.0, 0.0, measures.surface, measures.surface), toQColor(*code.background));
    }
    // The free border is measured from the lower left corner.
    painter.translate(measures.border, measures.surface - measures.border - measures.drawn);
    painter.scale(measures.drawn / measures.surface, measures.drawn / measures.surface);
    drawQRCode(code.symbol, painter, measures.surface);
    painter.restore();
}

}  // namespace zelto
