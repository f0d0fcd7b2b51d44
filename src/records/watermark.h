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
#include <utility>

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

// What `Watermark::Alignment` may hold. No line is ever stretched, so justified lines are set as natural ones
// are: by the direction of their writing.
namespace text_alignment {
inline constexpr std::uint64_t Left = 0;
inline constexpr std::uint64_t Right = 1;
inline constexpr std::uint64_t Centre = 2;
inline constexpr std::uint64_t Justified = 3;
inline constexpr std::uint64_t Natural = 4;
}  // namespace text_alignment

// What `Watermark::TextEffect` may hold. Every number but None embosses; Emboss is the one editors store.
namespace text_effect {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t Emboss = 3;
}  // namespace text_effect

// What `Watermark::GradeintType` may hold; any other number means LeftToRight.
namespace gradient_type {
inline constexpr std::int64_t LeftToRight = 1;
inline constexpr std::int64_t TopToBottom = 2;
inline constexpr std::int64_t LowerRightToUpperLeft = 3;
inline constexpr std::int64_t UpperRightToLowerLeft = 4;
inline constexpr std::int64_t FromCentre = 5;
}  // namespace gradient_type

// What `Watermark::ResizeFormat` may hold for a logo; every number but Absolute is proportional.
namespace logo_resize {
inline constexpr std::int64_t Proportional = 0;
inline constexpr std::int64_t Absolute = 2;
}  // namespace logo_resize

// What `Watermark::ResizeFormat` may hold for a QR code; every number but Relative is in pixels.
namespace qr_resize {
inline constexpr std::int64_t Relative = 0;
inline constexpr std::int64_t Absolute = 1;
}  // namespace qr_resize

// The side of the photo that a relative size follows: FontRelativeSize of a text, ImageProportionalResize of a
// logo.
namespace photo_side {
inline constexpr QLatin1String Width("Width");
inline constexpr QLatin1String Height("Height");
inline constexpr QLatin1String LongerSide("Longer Side");
inline constexpr QLatin1String All[] = {Width, Height, LongerSide};
}  // namespace photo_side

// The encoded bytes of a logo's file. Two copies of the same bytes are recognised by their address, since a stack
// is compared with its earlier state at every edit and a logo may have megabytes.
struct LogoBytes : QByteArray {
    LogoBytes() = default;
    explicit LogoBytes(QByteArray bytes) : QByteArray(std::move(bytes)) {}
    using QByteArray::operator=;

    bool operator==(const LogoBytes& other) const {
        const bool isShared = constData() == other.constData() && size() == other.size();
        return isShared || static_cast<const QByteArray&>(*this) == static_cast<const QByteArray&>(other);
    }
};

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
    std::int64_t FontSize = 0;              // points (= photo pixels); per cent when IsRelative is set
    std::optional<float> FontSizeFraction;  // 0 to 1, to be added to FontSize; none is 0
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
    // The spacings and paddings as shares; see length_field.h.
    std::optional<float> HorizontalSpacingShare;
    std::optional<float> VerticalSpacingShare;
    std::optional<float> PaddingLeftShare;
    std::optional<float> PaddingTopShare;
    std::optional<float> PaddingRightShare;
    std::optional<float> PaddingBottomShare;
    bool IsRelative = false;
    QString FontRelativeSize;  // one of photo_side, or "Fixed"
    QString LabelName;         // the user's own name for it; empty for one made of what it shows
    bool IsEnabled = false;
    std::uint64_t Alignment = text_alignment::Left;
    bool Resize = false;
    bool PreserverAspectRatio = false;
    float Height = 0.0F;
    float Width = 0.0F;
    float ResizeHeight = 0.0F;
    float ResizeWidth = 0.0F;
    std::int64_t ResizeFormat = 0;  // logo: one of logo_resize; QR code: one of qr_resize
    std::int64_t Sides = 0;
    bool ResizebyWidth = false;
    QString ImageProportionalResize;  // one of photo_side; any other text gives the logo no size
    LogoBytes ImageData;
    bool ResizeHeightByPercent = false;
    bool ResizeWidthByPercent = false;
    bool SolidBackground = false;
    bool IsTransparent = false;  // logo: TransparentColor is made transparent
    bool CreateBW = false;
    bool UseTransparentColor = false;  // embossed text: the letters' faces are left out
    std::int32_t ShapeType = 0;
    std::int32_t TextEffect = text_effect::None;
    std::int64_t GradeintType = 0;  // one of gradient_type
    std::optional<Color> SolidColor;
    std::optional<Color> FirstColor;
    std::optional<Color> SecondColor;
    std::optional<Color> TransparentColor;

    bool operator==(const Watermark&) const = default;
};

}  // namespace zelto
