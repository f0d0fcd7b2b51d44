// SPDX-License-Identifier: GPL-3.0-or-later
// The two pictures that the effect step leaves in the user's home folder, to help find out what it did:
// "file.png", the photo on its border, and "effect.png", the finished effect. Encoding them takes seconds for
// a large photo: call this in the background, for the newest photo only. Any thread, one call at a time.
#pragma once

#include "platform/result.h"
#include "records/photo_effects.h"
#include "records/watermark_stack.h"

#include <QDir>
#include <QImage>
#include <QString>

namespace zelto {

// Writes both files into `folder`, for their owner's eyes only, replacing those of an earlier call. Another program's
// file of that name is kept beside it, as keepUnderOtherName() does. `framed` and `result` may be the same picture.
// Error: as encodePicture and replaceFile; the first that fails ends it.
Result<void> writeEffectDiagnostics(const QImage& framed, const QImage& result,
                                    const QString& folder = QDir::homePath());

// The same for a filtered photo whose effect pictures are no longer at hand. `final` as in imagewithEffects.
Result<void> writeEffectDiagnostics(const QImage& photo, const PhotoEffects& effect, bool final,
                                    const QString& folder = QDir::homePath());

// The same for a photo's file and the whole stack; nothing for a stack without an effect. The photo is read once more.
// Error: also as readPicture.
Result<void> writeEffectDiagnosticsOf(const QString& photo, const WatermarkStack& stack);

}  // namespace zelto
