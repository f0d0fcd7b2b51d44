// SPDX-License-Identifier: GPL-3.0-or-later
// The rules by which the controls for a logo's size hang together. Pure functions of records; no widgets. All
// arithmetic is in single precision, as the records are.
#pragma once

#include "records/watermark.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <cstdint>

namespace zelto {

// Whether the logo's size is one in pixels; any format but Absolute is a share of a side of the photo.
bool isAbsolute(const Watermark& logo);

// Which of the size controls can be used.
struct ResizeControls {
    bool type = false;
    bool proportional = false;
    bool absolute = false;

    bool operator==(const ResizeControls&) const = default;
};
ResizeControls resizeControls(const Watermark& logo);

// What the size fields hold, those that cannot be used included.
struct ResizeFields {
    float percent = 0.0F;  // of a side of the photo
    float width = 0.0F;    // pixels
    float height = 0.0F;

    bool operator==(const ResizeFields&) const = default;
};
// The fields of `logo`. What it does not tell stays as it is in `now`; an absolute size that is not there, or below 1
// pixel, is that of the logo's file.
ResizeFields resizeFields(const Watermark& logo, const ResizeFields& now);

// Switch resizing on or off, or to `format`, and take the size from the fields of that format. A relative size always
// is of the format Proportional.
void chkResizeChecked(Watermark& logo, bool on, const ResizeFields& fields);
void ResizeTypeChanged(Watermark& logo, std::int64_t format, const ResizeFields& fields);

// A width or height was chosen, pixels; below 1 it is the logo's own. Where the aspect ratio is kept the other
// one follows, rounded up.
void AbsWidthDidChange(Watermark& logo, double width);
void AbsHeightDidChange(Watermark& logo, double height);
// Switches keeping the aspect ratio on or off; the height then follows the width.
void chkAspectRatioChanged(Watermark& logo, bool on);

// A size in per cent of the photo's side was chosen; one below 1 is passed over.
void PropSizeDidChange(Watermark& logo, double percent);

// Another file was chosen: its bytes and its size in pixels.
void setLogo(Watermark& logo, const QString& path, const QByteArray& bytes, QSize size);

}  // namespace zelto
