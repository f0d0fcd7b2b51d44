// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/stack_picture.h"

#include "app/common/sample_photo.h"
#include "platform/dates.h"
#include "render/composition.h"

#include <memory>
#include <utility>

namespace zelto {

QImage stackPicture(const WatermarkStack& stack, QSize bound) {
    PhotoRequest request;
    request.path = samplePhotoPath();
    request.now = QDateTime::currentDateTime();
    request.locale = userDateLocale();
    request.stack = std::make_shared<const WatermarkStack>(stack);
    Result<PhotoScene> scene = buildPhotoScene(request);
    if (!scene) return {};
    const QImage picture = MakeWatermarkImage(*std::move(scene), stack);
    return picture.isNull() ? picture : picture.scaled(bound, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace zelto
