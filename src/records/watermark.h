// SPDX-License-Identifier: GPL-3.0-or-later
// One layer of a watermark stack: a logo, a text, a shape or a QR code. A plain record: editors write it,
// renderers read it, setting files store it. A text that is "absent" is a null QString; a present, empty one
// is not null. Lengths are photo pixels, angles whole degrees, opacities and relative sizes fractions (1 =
// opaque, 1 = the side).
#pragma once

#include "records/color.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <cstdint>
#include <optional>

namespace zelto {

// What `Watermark::Type` may hold. A record read from elsewhere may hold any other number, which draws
// nothing.
namespace watermark_type {
inline constexpr std::int32_t Image = 0;
inline constexpr std::int32_t Text = 1;
inline constexpr std::int32_t Shape = 2;
inline constexpr std::int32_t QrCode = 3;
}  // namespace watermark_type

// What `Watermark::ShapeType` may hold.
namespace shape_type {
inline constexpr std::int32_t Rectangle = 1;
inline constexpr std::int32_t Ellipse = 2;
inline constexpr std::int32_t Polygon = 3;
inline constexpr std::int32_t Line = 4;  // a bar: Width is its length, Height its thickness
}  // namespace shape_type

// What `Watermark::Position` may hold besides 1 to 9, the cells of a 3 x 3 grid numbered row by row from the
// top left.
inline constexpr std::int32_t CustomPosition = 10;

struct Watermark {
    // A record with the starting values of `type`; a type outside 0 to 3 has only those every type shares.
    explicit Watermark(std::int32_t type);

    std::int32_t Type = 0;
    QString ImagePath;
    QImage TypeImage;  // small icon for the watermark list
    QString Text;      // of a text, and the content of a QR code; may hold macros
    QString FontFamily;
    std::int64_t FontSize = 0;  // points (= photo pixels); per cent when IsRelative is set
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontStrikethrough = false;
    bool Shadow = false;
    std::optional<Color> TextColor;
    std::optional<Color> ShadowColor;  // for a QR code: its background, absent for a transparent one
    float Transparency = 0.0F;         // opacity: 0 unseen, 1 opaque
    std::int64_t Rotation = 0;         // positive turns clockwise as seen on the photo
    std::int32_t Position = 0;
    std::int64_t CustomPositionLeft = 0;
    std::int64_t CustomPositionTop = 0;
    bool HorizontalTiling = false;
    std::int64_t HorizontalSpacing = 0;
    bool VerticalTiling = false;
    std::int64_t VerticalSpacing = 0;
    std::int64_t PaddingLeft = 0;
    std::int64_t PaddingTop = 0;
    std::int64_t PaddingRight = 0;
    std::int64_t PaddingBottom = 0;
    QString LabelName;
    QString SettingName;
    bool IsRelative = false;
    QString FontRelativeSize;  // "Fixed", "Width", "Height" or "Longer Side"
    bool IsEnabled = false;
    std::uint64_t Alignment = 0;  // 0 left, 1 right, 2 centre, 3 justified, 4 natural
    bool Resize = false;
    bool PreserverAspectRatio = false;
    float Height = 0.0F;
    float Width = 0.0F;
    float ResizeHeight = 0.0F;
    float ResizeWidth = 0.0F;
    std::int64_t ResizeFormat =
        0;  // logo: 2 absolute pixels, else relative; QR code: 0 relative, else pixels
    std::int64_t Sides = 0;
    bool ResizebyWidth = false;
    QString ImageProportionalResize;  // "Proportional", "Width", "Height" or "Longer Side"
    QByteArray ImageData;             // the encoded bytes of the logo file
    bool ResizeHeightByPercent = false;
    bool ResizeWidthByPercent = false;
    bool SolidBackground = false;
    bool IsTransparent = false;  // logo: TransparentColor is made transparent
    bool CreateBW = false;
    bool UseTransparentColor = false;  // embossed text: the letters' faces are left out
    std::int32_t ShapeType = 0;
    std::int32_t TextEffect = 0;    // 0 plain, any other value embossed (3 is what the editor stores)
    std::int64_t GradeintType = 0;  // 1 left to right, 2 top to bottom, 3 and 4 diagonal, 5 radial
    std::optional<Color> SolidColor;
    std::optional<Color> FirstColor;
    std::optional<Color> SecondColor;
    std::optional<Color> TransparentColor;

    bool operator==(const Watermark&) const = default;
};

}  // namespace zelto
