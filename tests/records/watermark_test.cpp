// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/watermark.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(Watermark, EveryTypeStartsTopLeftAndEnabledWithItsOwnIcon) {
    QList<QImage> icons;
    for (const std::int32_t type : {0, 1, 2, 3, 7}) {
        const Watermark w(type);
        EXPECT_TRUE(w.Position == 1 && w.IsEnabled) << type;
        EXPECT_EQ(w.TypeImage.isNull(), type == 7) << type;
        EXPECT_FALSE(icons.contains(w.TypeImage)) << type;
        icons.append(w.TypeImage);
    }
}

}  // namespace
}  // namespace zelto
