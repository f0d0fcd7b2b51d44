// SPDX-License-Identifier: GPL-3.0-or-later
// The inspector below the watermark list, driven with mouse and keys.
#include "app/editor_fixture.h"
#include "app/editors/controls/fold_group.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QWheelEvent>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

class InspectorTest : public EditorTest {
  protected:
    void pressHere(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(window.focusWidget(), key, with);
    }
    QString title() {
        return window.inspector().page() ? window.inspector().page()->windowTitle() : QString();
    }
};

TEST_F(InspectorTest, EscapeGoesOneStepOut) {
    window.actions()[Act::AddText]->trigger();
    pressHere(Qt::Key_Escape);
    EXPECT_TRUE(records().empty()) << "nothing was done to it";
    window.actions()[Act::AddText]->trigger();
    QTest::keyClicks(window.focusWidget(), u"Hi"_s);
    pressHere(Qt::Key_Escape);
    EXPECT_EQ(record().Text, u"Hi"_s);
    EXPECT_EQ(window.focusWidget(), &window.watermarkList());
    pressHere(Qt::Key_Escape);
    EXPECT_TRUE(records().empty() && title().isEmpty());
    history().redo();
    EXPECT_EQ(record().Text, u"Hi"_s) << "and is not lost";
    window.watermarks().selectWatermark(0);
    EXPECT_EQ(title(), u"Text"_s);
    window.watermarkList().setFocus();
    pressHere(Qt::Key_Escape);
    EXPECT_TRUE(title().isEmpty());
    EXPECT_EQ(records().size(), 1U) << "what is not new stays";
}

TEST_F(InspectorTest, TheWheelScrollsAcrossFieldsThatHaveNoFocus) {
    window.actions()[Act::AddText]->trigger();
    const Watermark before = record();
    for (QWidget* field : window.inspector().page()->findChildren<QWidget*>()) {
        if (!field->inherits("QComboBox") && !field->inherits("QSlider") && !field->inherits("QDial"))
            continue;
        QWheelEvent wheel({2, 2}, field->mapToGlobal(QPointF(2, 2)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &wheel);
    }
    EXPECT_TRUE(record() == before);
}

TEST_F(InspectorTest, AVisitIsOneStepUntilSomethingElseIsUsed) {
    window.actions()[Act::AddShape]->trigger();
    window.actions()[Act::AddShape]->trigger();
    EXPECT_NE(record(0).Position, record(1).Position) << "not on top of the last one";
    window.watermarks().selectWatermark(0);
    const QWidget& page = *window.inspector().page();
    const int before = history().count();
    type(page, "Width", u"30"_s);
    type(page, "Height", u"40"_s);
    EXPECT_EQ(history().count(), before + 1);
    window.photoList().setFocus();
    press(page, "Rotation", Qt::Key_Up);
    EXPECT_EQ(history().count(), before + 2);
    pressHere(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(record(0).Rotation, 0) << "the field has nothing of its own to undo";
    EXPECT_EQ(record(0).ResizeHeight, 0.4F);
    window.actions()[Act::MoveDown]->trigger();
    type(page, "Width", u"50"_s);
    EXPECT_EQ(record(1).ResizeWidth, 0.5F) << "it moved, and is edited where it is";
    EXPECT_EQ(record(0).ResizeWidth, 0.25F);
    window.watermarks().RemoveSelectedWatermarks();
    click(window.inspector(), "Rectangle");
    EXPECT_FALSE(control(window.inspector(), "Revert").isEnabled()) << "another one is another visit";
}

TEST_F(InspectorTest, PagesFitTheColumnAndShareTheirFoldedGroups) {
    window.resize(1280, 720);
    for (const Act act :
         {Act::AddText, Act::AddShape, Act::AddQrCode, Act::AddFilter, Act::AddEffects, Act::AddCopyright}) {
        window.actions()[act]->trigger();
        QCoreApplication::processEvents();
        const QWidget& page = *window.inspector().page();
        EXPECT_LE(page.width(), page.parentWidget()->width()) << qPrintable(page.windowTitle());
        EXPECT_TRUE(page.isAncestorOf(window.focusWidget())) << qPrintable(page.windowTitle());
    }
    EXPECT_GT(window.previewView().width(), 500) << "most of the window is the photo";
    const auto isFolded = [this](int index) {
        window.watermarks().selectWatermark(index);
        return window.inspector().page()->findChild<FoldGroup*>(u"LookGroup"_s)->isFolded();
    };
    EXPECT_FALSE(isFolded(1));
    click(*window.inspector().page(), "LookTitle");
    EXPECT_TRUE(isFolded(0));
    press(*window.inspector().page(), "LookTitle", Qt::Key_Right);
    EXPECT_FALSE(isFolded(1));
    window.resize(600, 400);
    QCoreApplication::processEvents();
    EXPECT_LE(window.minimumSizeHint().width(), 558) << "a small screen has room for all of it";
}

}  // namespace
}  // namespace zelto
