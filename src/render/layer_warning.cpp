// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/layer_warning.h"

#include "platform/words.h"

namespace zelto {

using namespace Qt::Literals::StringLiterals;

LayerWarning LayerWarning::logoUnreadable(const QString& path) {
    return {"logo-unreadable"_L1, path.isEmpty() ? Words::tr("The logo cannot be read.")
                                                 : Words::tr("The logo “%1” cannot be read.").arg(path)};
}

LayerWarning LayerWarning::emptyText() {
    return {"empty-text"_L1, Words::tr("The text is empty once its macros are filled in.")};
}

LayerWarning LayerWarning::missingLetters(const QStringList& letters) {
    return {"missing-letters"_L1,
            Words::tr("No installed font has these letters: %1").arg(letters.join(u' '))};
}

LayerWarning LayerWarning::codeTooLong() {
    return {"code-too-long"_L1, Words::tr("The text is too long for a QR code.")};
}

LayerWarning LayerWarning::codeTooFine() {
    return {"code-too-fine"_L1,
            Words::tr("The QR code is too small to be read: its squares are finer than a pixel.")};
}

LayerWarning LayerWarning::outside(bool wholly) {
    return {"outside"_L1, wholly ? Words::tr("It lies outside the photo.")
                                 : Words::tr("Less than a tenth of it lies on the photo.")};
}

LayerWarning LayerWarning::noArea() {
    return {"no-area"_L1, Words::tr("The shape has no area.")};
}

LayerWarning LayerWarning::noLayer(const QString& reason) {
    return {"no-layer"_L1, reason};
}

}  // namespace zelto
