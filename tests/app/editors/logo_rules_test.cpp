// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_rules.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

Watermark logoOf(int width, int height) {
    Watermark logo(watermark_type::Image);
    logo.Resize = true;
    logo.ResizeFormat = logo_resize::Absolute;
    setLogo(logo, QStringLiteral("/logo.png"), {}, {width, height});
    return logo;
}

TEST(LogoRules, OneSideFollowsTheOther) {
    struct Row {
        int width, height;  // of the file
        bool keepsAspect;
        void (*change)(Watermark&, double);
        double typed;
        float resizeWidth, resizeHeight;
    };
    const Row rows[] = {
        {400, 100, true, AbsWidthDidChange, 200, 200, 50},
        {400, 100, true, AbsHeightDidChange, 50, 200, 50},
        {300, 200, true, AbsWidthDidChange, 100, 100, 67},  // 66.7 is rounded up
        {3, 1, true, AbsWidthDidChange, 1, 1, 1},
        {300, 200, false, AbsWidthDidChange, 100, 100, 200},
        {300, 200, false, AbsHeightDidChange, 90, 300, 90},
        {300, 200, true, AbsWidthDidChange, 0, 300, 200},  // the file's own
        {300, 200, true, AbsHeightDidChange, -5, 300, 200},
        // 14450 exactly; the product, rounded to single precision, is a little more.
        {9765, 7225, true, AbsWidthDidChange, 19530, 19530, 14451},
        {0, 0, true, AbsWidthDidChange, 70, 70, 0},  // no file yet
    };
    for (const Row& row : rows) {
        Watermark logo = logoOf(row.width, row.height);
        logo.PreserverAspectRatio = row.keepsAspect;
        row.change(logo, row.typed);
        EXPECT_EQ(logo.ResizeWidth, row.resizeWidth) << row.width << 'x' << row.height << ' ' << row.typed;
        EXPECT_EQ(logo.ResizeHeight, row.resizeHeight) << row.width << 'x' << row.height << ' ' << row.typed;
    }
}

TEST(LogoRules, EachKindOfSizeKeepsItsNumbers) {
    Watermark logo(watermark_type::Image);
    setLogo(logo, QStringLiteral("/logo.png"), {}, {400, 100});
    EXPECT_EQ(logo.ResizeWidth, 0.0F) << "nothing is resized yet";
    ResizeFields fields = resizeFields(logo, {25.0F, 0.0F, 0.0F});
    EXPECT_EQ(fields, (ResizeFields{25.0F, 400.0F, 100.0F}));
    chkResizeChecked(logo, true, fields);
    EXPECT_EQ(logo.ResizeWidth, 0.25F);
    EXPECT_EQ(logo.ResizeFormat, logo_resize::Proportional);
    PropSizeDidChange(logo, 0.9);
    EXPECT_EQ(logo.ResizeWidth, 0.25F) << "less than 1 per cent is passed over";
    ResizeTypeChanged(logo, logo_resize::Absolute, fields);
    EXPECT_EQ(logo.ResizeWidth, 400.0F);
    AbsWidthDidChange(logo, 200.0);
    fields = resizeFields(logo, fields);
    ResizeTypeChanged(logo, logo_resize::Proportional, fields);
    EXPECT_EQ(logo.ResizeWidth, 0.25F);
    ResizeTypeChanged(logo, logo_resize::Absolute, resizeFields(logo, fields));
    EXPECT_EQ(logo.ResizeWidth, 200.0F);
    EXPECT_EQ(logo.ResizeHeight, 50.0F);
    setLogo(logo, QStringLiteral("/other.png"), {}, {30, 20});
    EXPECT_EQ(logo.ResizeWidth, 30.0F) << "another file starts with its own size";
}

}  // namespace
}  // namespace zelto
