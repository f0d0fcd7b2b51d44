// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_rules.h"

#include <cmath>

namespace zelto {
namespace {

// The side that keeps the proportion of `other` to `own` where this one is `length`.
float inProportion(float length, float other, float own) {
    return std::ceil(length * other / own);
}

void takeFields(Watermark& logo, const ResizeFields& fields) {
    if (isAbsolute(logo)) {
        logo.ResizeWidth = fields.width;
        logo.ResizeHeight = fields.height;
    } else {
        logo.ResizeFormat = logo_resize::Proportional;
        PropSizeDidChange(logo, static_cast<double>(fields.percent));
    }
}

}  // namespace

bool isAbsolute(const Watermark& logo) {
    return logo.ResizeFormat == logo_resize::Absolute;
}

ResizeControls resizeControls(const Watermark& logo) {
    return {.type = logo.Resize,
            .proportional = logo.Resize && !isAbsolute(logo),
            .absolute = logo.Resize && isAbsolute(logo)};
}

ResizeFields resizeFields(const Watermark& logo, const ResizeFields& now) {
    if (isAbsolute(logo)) return {now.percent, logo.ResizeWidth, logo.ResizeHeight};
    ResizeFields fields = now;
    if (logo.ResizeWidth > 0.0F) fields.percent = logo.ResizeWidth * 100.0F;
    if (fields.width < 1.0F || fields.height < 1.0F) {
        fields.width = logo.Width;
        fields.height = logo.Height;
    }
    return fields;
}

void chkResizeChecked(Watermark& logo, bool on, const ResizeFields& fields) {
    logo.Resize = on;
    if (on) takeFields(logo, fields);
}

void ResizeTypeChanged(Watermark& logo, std::int64_t format, const ResizeFields& fields) {
    logo.ResizeFormat = format;
    takeFields(logo, fields);
}

void AbsWidthDidChange(Watermark& logo, double width) {
    auto pixels = static_cast<float>(width);
    if (pixels < 1.0F) {
        pixels = logo.Width;
    } else if (logo.PreserverAspectRatio && logo.Width > 0.0F) {
        logo.ResizeHeight = inProportion(pixels, logo.Height, logo.Width);
    }
    logo.ResizeWidth = pixels;
}

void AbsHeightDidChange(Watermark& logo, double height) {
    auto pixels = static_cast<float>(height);
    if (pixels < 1.0F) {
        pixels = logo.Height;
    } else if (logo.PreserverAspectRatio && logo.Height > 0.0F) {
        logo.ResizeWidth = inProportion(pixels, logo.Width, logo.Height);
    }
    logo.ResizeHeight = pixels;
}

void chkAspectRatioChanged(Watermark& logo, bool on) {
    logo.PreserverAspectRatio = on;
    if (isAbsolute(logo) && logo.ResizeWidth >= 1.0F) {
        AbsWidthDidChange(logo, static_cast<double>(logo.ResizeWidth));
    }
}

void PropSizeDidChange(Watermark& logo, double percent) {
    if (percent >= 1.0) logo.ResizeWidth = static_cast<float>(percent / 100.0);
}

void setLogo(Watermark& logo, const QString& path, const QByteArray& bytes, QSize size) {
    logo.ImagePath = path;
    logo.ImageData = bytes;
    logo.Width = static_cast<float>(size.width());
    logo.Height = static_cast<float>(size.height());
    if (!isAbsolute(logo)) return;
    logo.ResizeWidth = logo.Width;
    logo.ResizeHeight = logo.Height;
}

}  // namespace zelto
