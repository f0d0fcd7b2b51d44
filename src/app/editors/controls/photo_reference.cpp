// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/photo_reference.h"

#include "app/watermarks/watermark_controller.h"
#include "pictures/picture_reader.h"

namespace zelto {

QSizeF photoReference(const EditorCall& call) {
    const Result<QSize> photo = readPictureSize(call.photoPath);
    if (!photo) return {};
    QSizeF size(*photo);
    const std::optional<PhotoEffects>& effects = call.controller.GetEffect();
    if (effects && effects->ApplyWatermarkOnBorder) {
        size += QSizeF(static_cast<double>(effects->LeftThickness + effects->RightThickness),
                       static_cast<double>(effects->TopThickness + effects->BottomThickness));
    }
    return size;
}

}  // namespace zelto
