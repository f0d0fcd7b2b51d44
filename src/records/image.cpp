// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/image.h"

#include "records/resource_picture.h"

#include <array>
#include <utility>

namespace zelto {

QImage statusImage(PhotoStatus status) {
    static const std::array<QImage, 3> pictures = {resourcePicture(QStringLiteral("Zelto16.png")),
                                                   resourcePicture(QStringLiteral("Checkmark1.gif")),
                                                   resourcePicture(QStringLiteral("x1.gif"))};
    return pictures.at(static_cast<std::size_t>(status));
}

Image::Image(QString path)
    : ImagePath(std::move(path)),
      StsImage(statusImage(PhotoStatus::NotProcessed)),
      ErrorMessage(QLatin1String("")) {}

}  // namespace zelto
