// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/layer_warning.h"

namespace zelto {

using namespace Qt::Literals::StringLiterals;

LayerWarning LayerWarning::logoUnreadable(const QString& path) {
    return {"logo-unreadable"_L1,
            path.isEmpty() ? u"The logo cannot be read."_s : u"The logo “%1” cannot be read."_s.arg(path)};
}

LayerWarning LayerWarning::emptyText() {
    return {"empty-text"_L1, u"The text is empty once its macros are filled in."_s};
}

LayerWarning LayerWarning::missingLetters(const QStringList& letters) {
    return {"missing-letters"_L1, u"No installed font has these letters: %1"_s.arg(letters.join(u' '))};
}

LayerWarning LayerWarning::codeTooLong() {
    return {"code-too-long"_L1, u"The text is too long for a QR code."_s};
}

LayerWarning LayerWarning::codeTooFine() {
    return {"code-too-fine"_L1,
            u"The QR code is too small to be read: its squares are finer than a pixel."_s};
}

LayerWarning LayerWarning::outside(bool wholly) {
    return {"outside"_L1,
            wholly ? u"It lies outside the photo."_s : u"Less than a tenth of it lies on the photo."_s};
}

LayerWarning LayerWarning::noArea() {
    return {"no-area"_L1, u"The shape has no area."_s};
}

LayerWarning LayerWarning::noLayer(const QString& reason) {
    return {"no-layer"_L1, reason};
}

}  // namespace zelto
