// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/effect_diagnostics.h"

#include "render/photo_effects.h"
#include "support/test_pictures.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

QImage stored(const QString& folder, const char* name, QImage::Format format) {
    return QImage(folder + u'/' + QLatin1String(name)).convertToFormat(format);
}

TEST(EffectDiagnostics, BothPicturesReplaceEarlierOnes) {
    const QTemporaryDir folder;
    const QImage photo = drawnScene({60, 40});
    PhotoEffects effect;
    effect.BlurRadius = 6;
    effect.Direction = 135;
    const QImage framed = ImagewithBorderEffect(photo, effect);
    QRect image;
    QRect border;
    const QImage shadowed = imagewithEffects(photo, effect, image, border, true);

    ASSERT_TRUE(writeEffectDiagnostics(photo, effect, false, folder.path()));
    EXPECT_EQ(stored(folder.path(), "file.png", framed.format()), framed);
    EXPECT_EQ(stored(folder.path(), "effect.png", framed.format()), framed);

    ASSERT_TRUE(writeEffectDiagnostics(photo, effect, true, folder.path()));
    EXPECT_EQ(stored(folder.path(), "file.png", framed.format()), framed);
    EXPECT_EQ(stored(folder.path(), "effect.png", shadowed.format()).size(), shadowed.size());
    EXPECT_EQ(stored(folder.path(), "effect.png", shadowed.format()).copy(3, 3, 80, 60),
              shadowed.copy(3, 3, 80, 60));
}

}  // namespace
}  // namespace zelto
