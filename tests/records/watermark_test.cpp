// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/watermark.h"

#include "records/image.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

// A record of no known type, without the values every type shares: what "not set by construction" means.
Watermark blank(std::int32_t type) {
    Watermark w(99);
    w.Type = type;
    return w;
}

TEST(Watermark, TypeDecidesItsStartingValuesAndNothingElseIsSet) {
    Watermark image = blank(watermark_type::Image);
    image.TypeImage = Watermark(watermark_type::Image).TypeImage;
    image.ResizebyWidth = true;
    image.ResizeFormat = 1;
    image.PreserverAspectRatio = true;
    image.TransparentColor = Color::black();
    image.ImageProportionalResize = QStringLiteral("Width");
    EXPECT_EQ(Watermark(watermark_type::Image), image);

    Watermark text = blank(watermark_type::Text);
    text.TypeImage = Watermark(watermark_type::Text).TypeImage;
    EXPECT_EQ(Watermark(watermark_type::Text), text);
    EXPECT_TRUE(Watermark(watermark_type::Text).Text.isNull());

    Watermark shape = blank(watermark_type::Shape);
    shape.TypeImage = Watermark(watermark_type::Shape).TypeImage;
    shape.Width = shape.Height = 200.0F;
    shape.SolidColor = shape.FirstColor = Color::white();
    shape.SecondColor = Color::black();
    shape.ShapeType = shape_type::Rectangle;
    shape.SolidBackground = true;
    EXPECT_EQ(Watermark(watermark_type::Shape), shape);

    Watermark qr = blank(watermark_type::QrCode);
    qr.TypeImage = Watermark(watermark_type::QrCode).TypeImage;
    qr.ResizeWidth = 0.2F;
    qr.ResizebyWidth = true;
    qr.ShadowColor = Color::white();
    EXPECT_EQ(Watermark(watermark_type::QrCode), qr);
    EXPECT_FALSE(Watermark(watermark_type::QrCode).Text.isNull());
}

TEST(Watermark, EveryTypeStartsTopLeftAndEnabledWithItsOwnIcon) {
    QList<QImage> icons;
    for (const std::int32_t type : {0, 1, 2, 3}) {
        const Watermark w(type);
        EXPECT_EQ(w.Position, 1);
        EXPECT_TRUE(w.IsEnabled);
        ASSERT_FALSE(w.TypeImage.isNull()) << "type " << type;
        EXPECT_FALSE(icons.contains(w.TypeImage)) << "type " << type;
        icons.append(w.TypeImage);
    }
    for (const std::int32_t type : {-1, 4, 7}) {
        const Watermark w(type);
        EXPECT_EQ(w.Type, type);
        EXPECT_EQ(w.Position, 1);
        EXPECT_TRUE(w.IsEnabled);
        EXPECT_TRUE(w.TypeImage.isNull());
    }
}

TEST(Image, StartsCheckedUnprocessedAndWithoutError) {
    const Image image(QStringLiteral("/p/a.jpg"));
    EXPECT_EQ(image.ImagePath, QStringLiteral("/p/a.jpg"));
    EXPECT_TRUE(image.ApplyWatermark);
    EXPECT_FALSE(image.ErrorMessage.isNull());
    EXPECT_EQ(image.StsImage.size(), QSize(16, 16));
    EXPECT_NE(statusImage(PhotoStatus::Written), statusImage(PhotoStatus::Failed));
}

}  // namespace
}  // namespace zelto
