// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/effect_diagnostics.h"

#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "render/photo_effects.h"

namespace zelto {

Result<void> writeEffectDiagnostics(const QImage& framed, const QImage& result, const QString& folder) {
    const auto encoded = [](const QImage& picture) { return encodePicture(picture, PictureFormat::Png, {}); };
    const QDir directory(folder);
    Result<QByteArray> bytes = encoded(framed);
    if (!bytes) return tl::unexpected(bytes.error());
    if (auto written = writeWholeFile(directory.filePath(QStringLiteral("file.png")), *bytes); !written)
        return written;
    if (result.cacheKey() != framed.cacheKey()) bytes = encoded(result);
    if (!bytes) return tl::unexpected(bytes.error());
    return writeWholeFile(directory.filePath(QStringLiteral("effect.png")), *bytes);
}

Result<void> writeEffectDiagnostics(const QImage& photo, const PhotoEffects& effect, bool final,
                                    const QString& folder) {
    const QImage framed = ImagewithBorderEffect(photo, effect);
    if (!final || !effect.EnableShadow) return writeEffectDiagnostics(framed, framed, folder);
    QRect image;
    QRect border;
    return writeEffectDiagnostics(framed, imagewithEffects(photo, effect, image, border, final), folder);
}

}  // namespace zelto
