// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/hand_edits.h"

#include "render/font_size.h"
#include "render/lengths.h"
#include "render/placement.h"

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

// A length in whole pixels, at least one, times `factor`; returns by how much it has grown.
template <class Number>
double scaleWhole(Number& pixels, double factor) {
    const auto before = std::max(1.0, static_cast<double>(pixels));
    const double after = std::max(1.0, std::round(before * factor));
    pixels = static_cast<Number>(after);
    return after / before;
}

// A share of the photo, kept to a hundredth of a per cent.
double scaleShare(float& share, double factor) {
    const auto before = static_cast<double>(share);
    const double after = std::max(1e-4, std::round(before * factor * 1e4) / 1e4);
    share = static_cast<float>(after);
    return before > 0.0 ? after / before : 1.0;
}

// A font size in tenths of a per cent of the photo, or in whole points.
double scaleFont(Watermark& record, double factor) {
    const double before = fontSizeOf(record);
    const double steps = record.IsRelative ? 10.0 : 1.0;
    const double after = std::max(1.0, std::round(before * factor * steps) / steps);
    setFontSize(record, after);
    return before > 0.0 ? after / before : 1.0;
}

QSizeF resizeShape(Watermark& record, QSizeF factors) {
    return {record.ResizeWidthByPercent ? scaleShare(record.ResizeWidth, factors.width())
                                        : scaleWhole(record.Width, factors.width()),
            record.ResizeHeightByPercent ? scaleShare(record.ResizeHeight, factors.height())
                                         : scaleWhole(record.Height, factors.height())};
}

QSizeF resizeLogo(Watermark& record, QSizeF factors, QSizeF reference) {
    if (record.Resize && record.ResizeFormat == logo_resize::Absolute) {
        return {scaleWhole(record.ResizeWidth, factors.width()),
                scaleWhole(record.ResizeHeight, factors.height())};
    }
    if (!record.Resize) {
        record.Resize = true;
        record.ResizeFormat = logo_resize::Proportional;
        record.ImageProportionalResize = photo_side::Width;
        record.ResizeWidth = record.Width / static_cast<float>(reference.width());
    }
    const double factor = scaleShare(record.ResizeWidth, factors.width());
    return {factor, factor};
}

}  // namespace

bool isFreelySized(const Watermark& record) {
    const bool isFixedLogo =
        record.Type == watermark_type::Image && record.Resize && record.ResizeFormat == logo_resize::Absolute;
    return record.Type == watermark_type::Shape || isFixedLogo;
}

bool canBeTurned(const Watermark& record) {
    if (record.HorizontalTiling || record.VerticalTiling) return false;
    const bool isCircle = record.Type == watermark_type::Shape && record.ShapeType == shape_type::Ellipse &&
                          record.Width == record.Height;
    return record.Type != watermark_type::QrCode && !isCircle;
}

QSizeF resizeBy(Watermark& record, QSizeF factors, QSizeF reference) {
    if (record.Type == watermark_type::Shape) return resizeShape(record, factors);
    if (record.Type == watermark_type::Image) return resizeLogo(record, factors, reference);
    if (record.Type == watermark_type::Text) {
        const double factor = scaleFont(record, factors.width());
        return {factor, factor};
    }
    const double factor = record.ResizeFormat == qr_resize::Relative
                              ? scaleShare(record.ResizeWidth, factors.width())
                              : scaleWhole(record.ResizeWidth, factors.width());
    return {factor, factor};
}

void turnTo(Watermark& record, std::int64_t degrees) {
    const std::int64_t turn = ((degrees % 360) + 360) % 360;
    record.Rotation = turn > 180 ? turn - 360 : turn;
}

void stepAside(Watermark& record, QSizeF reference) {
    constexpr float Share = 0.025F;
    constexpr std::int64_t PixelsWithoutPhoto = 30;
    const std::int64_t pixels =
        reference.isEmpty()
            ? PixelsWithoutPhoto
            : std::llround(relativeLength(Share, std::min(reference.width(), reference.height())));
    if (record.Position == CustomPosition) {
        record.CustomPositionLeft += pixels;
        record.CustomPositionTop += pixels;
        return;
    }
    const auto widen = [&record, pixels](const length_field::WatermarkLength& padding) {
        record.*padding.Pixels += pixels;
        if (record.*padding.Share) *(record.*padding.Share) += Share;
    };
    const std::optional<Place> place = presetPlace(record.Position);
    if (!place) return;
    widen(place->horizontal == Anchor::Far ? length_field::PaddingRight : length_field::PaddingLeft);
    widen(place->vertical == Anchor::Near ? length_field::PaddingBottom : length_field::PaddingTop);
}

}  // namespace zelto
