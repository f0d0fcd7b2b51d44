// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"
#include "support/records.h"

namespace zelto {
namespace {

using EveryEditor = EditorTest;

TEST_F(EveryEditor, LookingAtARecordChangesNothing) {
    WatermarkStack stack = everyKind();
    Watermark odd(watermark_type::Shape);
    odd.Transparency = 0.333F;
    odd.Rotation = 1000;
    odd.ResizeWidthByPercent = true;
    odd.ResizeWidth = 0.12345F;
    odd.Height = 33.3F;
    odd.CustomPositionLeft = -5;
    odd.PaddingTop = 1'000'000'000;
    odd.SolidColor.reset();
    odd.GradeintType = 9;
    stack.Watermarks.push_back(odd);
    stack.SelectedFilter = 13;
    stack.Effects.emplace();
    window.watermarks().replaceStack(stack, CopyRightMetaData(), {});
    ASSERT_TRUE(waitForPreview());
    const StackState before = window.document().state();
    const int steps = history().count();
    const Drive lookAround = [this](QWidget&) {
        for (int i = 0; i < 40; ++i) QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    };
    WatermarkController& watermarks = window.watermarks();
    for (int row = 0; row < watermarks.model().rowCount(); ++row) {
        watermarks.selection().setCurrentIndex(watermarks.model().index(row),
                                               QItemSelectionModel::ClearAndSelect);
        edit(Act::EditWatermark, lookAround);
        EXPECT_TRUE(window.document().state() == before) << row;
    }
    edit(Act::AddEffects, lookAround);
    EXPECT_TRUE(window.document().state() == before);
    EXPECT_EQ(history().count(), steps);
}

}  // namespace
}  // namespace zelto
