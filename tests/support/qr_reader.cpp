// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/qr_reader.h"

#include <QPainter>

#include <zbar.h>

namespace zelto {

QStringList readQrCodes(const QImage& picture) {
    constexpr int QuietZone = 20;  // readers ask for free space around a symbol
    QImage page(picture.size().grownBy({QuietZone, QuietZone, QuietZone, QuietZone}), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter(&page).drawImage(QuietZone, QuietZone, picture);
    const QImage grey = page.convertToFormat(QImage::Format_Grayscale8);
    QByteArray luma;
    for (int y = 0; y < grey.height(); ++y) {
        luma.append(reinterpret_cast<const char*>(grey.constScanLine(y)), grey.width());
    }
    zbar::Image image(static_cast<unsigned>(grey.width()), static_cast<unsigned>(grey.height()), "Y800",
                      luma.constData(), static_cast<unsigned long>(luma.size()));
    zbar::ImageScanner scanner;
    scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
    scanner.set_config(zbar::ZBAR_QRCODE, zbar::ZBAR_CFG_ENABLE, 1);
    // The bytes as they are: zbar takes short texts of other scripts for Shift-JIS or Big5.
    scanner.set_config(zbar::ZBAR_QRCODE, zbar::ZBAR_CFG_BINARY, 1);
    scanner.scan(image);
    QStringList texts;
    for (auto symbol = image.symbol_begin(); symbol != image.symbol_end(); ++symbol) {
        texts.append(QString::fromStdString(symbol->get_data()));
    }
    return texts;
}

}  // namespace zelto
