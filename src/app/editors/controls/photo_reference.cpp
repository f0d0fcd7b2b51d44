// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/photo_reference.h"

#include "app/watermarks/watermark_controller.h"
#include "pictures/picture_reader.h"
#include "render/photo_effects.h"

namespace zelto {

QSizeF photoReference(const WatermarkController& watermarks, const SelectedPhoto& selected) {
    const Result<QSize> photo = readPictureSize(selected.path);
    if (!photo) return {};
    const std::optional<PhotoEffects>& effects = watermarks.GetEffect();
    return effects && effects->ApplyWatermarkOnBorder ? framedSize(*photo, *effects) : *photo;
}

}  // namespace zelto
