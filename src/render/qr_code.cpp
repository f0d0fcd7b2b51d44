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
    double side = record.ResizeWidth;
    if (record.ResizeFormat == 0) side = record.ResizebyWidth ? side * reference.width() : 0.0;
    return side > 0.0 && std::isfinite(side) ? side : 0.0;
}

QImage qrImageForString(const QString& text, double side, const std::optional<Color>& background) {
    side = withoutDust(side);
    if (canvasSide(side) == 0) return {};
    const std::optional<QrSymbol> symbol = encodeQrSymbol(text);
    if (!symbol) return {};
    const int surface = std::max(symbol->width, canvasSide(side));
    QImage picture(surface, surface, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) return {};
    picture.fill(background ? toQColor(*background) : QColor(Qt::transparent));

    const double border = std::trunc(side / 20.0);
    const double drawn = side - 2.0 * border;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(border,
                      surface - border - drawn);  // the free border is measured from the lower left corner
    painter.scale(drawn / surface, drawn / surface);
    drawQRCode(*symbol, painter, surface);
    painter.end();
    return picture;
}

}  // namespace zelto
