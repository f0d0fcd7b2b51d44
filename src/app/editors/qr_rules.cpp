// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/qr_rules.h"

#include "render/qr_code.h"

#include <QLocale>

#include <cmath>

namespace zelto {
namespace {

// The most bytes that fit into the largest symbol at the lowest level of correction.
constexpr int LargestContent = 2953;
// Photo pixels a square needs to come through JPEG compression and a camera.
constexpr double SmallestModule = 3.0;
// Readers look for dark squares on a bright ground.
constexpr double DarkestGround = 0.5;

double brightness(const Color& color) {
    return 0.2126 * static_cast<double>(color.Red) + 0.7152 * static_cast<double>(color.Green) +
           0.0722 * static_cast<double>(color.Blue);
}

}  // namespace

QrJudgement::QrJudgement(const QString& text, double side, QSizeF photo,
                         const std::optional<Color>& background) {
    if (text.isEmpty()) {
        warn(tr("Type what the code is to say, such as a web address."));
        return;
    }
    const std::optional<QrSymbol> symbol = encodeQrSymbol(text);
    if (!symbol) {
        warn(tr("Too long for a QR code: the text has %1 bytes, %2 fit.")
                 .arg(text.toUtf8().size())
                 .arg(LargestContent));
        return;
    }
    const double drawn = side - 2.0 * std::trunc(side / 20.0);
    const double module = drawn / symbol->width;
    if (module < SmallestModule) {
        const int needed = static_cast<int>(std::ceil(SmallestModule * symbol->width / 0.9));
        if (photo.isEmpty()) {
            warn(tr("Too small to be read: this text needs at least %L1 pixels.").arg(needed));
        } else {
            const double share = std::ceil(1000.0 * needed / photo.width()) / 10.0;
            warn(tr("Too small to be read: this text needs at least %L1 pixels (%L2% of this photo's width).")
                     .arg(needed)
                     .arg(share));
        }
    } else if (!photo.isEmpty() && side > std::min(photo.width(), photo.height())) {
        warn(tr("Larger than the photo: a part of the code would be cut off."));
    } else if (background && brightness(*background) < DarkestGround) {
        warn(tr("The background is too dark: choose a brighter one."));
    } else if (!background) {
        message_ = tr("Without a background it can be read on bright parts of photos only.");
    } else {
        const QString side = QLocale().toString(std::floor(module * 10.0) / 10.0, 'g', 6);
        message_ = tr("%1 × %1 squares of %2 pixels each.").arg(symbol->width).arg(side);
    }
}

void QrJudgement::warn(const QString& message) {
    isProblem_ = true;
    message_ = message;
}

}  // namespace zelto
