// SPDX-License-Identifier: GPL-3.0-or-later
// The controls the editors share, by themselves.
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/transparency_slider.h"
#include "app/hands.h"
#include "support/testing.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace zelto {
namespace {

class Field : public ::testing::Test {
  protected:
    Field() {
        auto* column = new QVBoxLayout(&dialog);
        for (QWidget* widget : {static_cast<QWidget*>(field), other}) column->addWidget(widget);
        field->setObjectName(u"field"_s);
        field->load(5.0);
        QObject::connect(field, &NumberField::valueChanged, &dialog,
                         [this](double value) { told.push_back(value); });
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    QWidget dialog;
    NumberField* field = new NumberField(number_kind::Size, &dialog);
    QWidget* other = new QLineEdit(&dialog);
    std::vector<double> told;
};

TEST_F(Field, WrongInputStaysIsExplainedAndChangesNothing) {
    const QString expected = u"A number from 1 to 100000"_s;
    for (const char* wrong : {"x", "1x", "0", "-3", "0.5.5"}) {
        type(dialog, "field", QLatin1String(wrong));
        EXPECT_TRUE(says(dialog, expected)) << wrong;
        EXPECT_EQ(field->cleanText(), QLatin1String(wrong));
    }
    EXPECT_THAT(told, ElementsAre(1.0)) << "the 1 of 1x";
    other->setFocus();
    EXPECT_EQ(field->text(), u"1 px"_s);
    EXPECT_FALSE(says(dialog, expected));
    type(dialog, "field", u"12"_s);
    EXPECT_FALSE(says(dialog, expected));
    EXPECT_THAT(told, ElementsAre(1.0, 12.0));
}

TEST_F(Field, OnlyTheFieldInUseScrolls) {
    const auto scroll = [this] {
        QWheelEvent event(QPointF(5, 5), field->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &event);
    };
    other->setFocus();
    scroll();
    EXPECT_TRUE(told.empty());
    field->setFocus();
    scroll();
    EXPECT_THAT(told, ElementsAre(6.0));
}

TEST(RotationControl, ItsPartsShowWhatTheOthersChoose) {
    RotationControl rotation;
    std::vector<qint64> told;
    QObject::connect(&rotation, &RotationControl::chosen, &rotation,
                     [&told](qint64 degrees) { told.push_back(degrees); });
    const auto shown = [&rotation] {
        return u"%1 %2 %3"_s.arg(rotation.field().value())
            .arg(rotation.dial().value())
            .arg(rotation.presets().currentText());
    };
    for (const auto& [degrees, expected] : {std::pair(0, "0 0 Straight"),
                                            {-45, "-45 -45 Rising diagonally"},
                                            {315, "315 -45 Rising diagonally"},
                                            {360, "360 0 Straight"},
                                            {33, "33 33 "},
                                            {-3600 + 90, "90 90 Downward"}}) {
        rotation.load(degrees);
        EXPECT_EQ(shown(), QLatin1String(expected)) << degrees;
    }
    EXPECT_TRUE(told.empty());
    rotation.load(0);
    QTest::keyClick(&rotation.dial(), Qt::Key_Down);
    QTest::keyClick(&rotation.dial(), Qt::Key_PageUp);
    EXPECT_EQ(shown(), u"14 14 "_s);
    QTest::keyClick(&rotation.presets(), Qt::Key_End);
    EXPECT_EQ(shown(), u"180 -180 Upside down"_s);
    EXPECT_THAT(told, ElementsAre(359, 14, 180));
}

// Rotation, transparency and position, bound as every editor binds them.
class BoundControls : public ::testing::Test {
  protected:
    BoundControls() {
        auto* column = new QVBoxLayout(&editor);
        for (QWidget* part : std::initializer_list<QWidget*>{rotation, transparency, position}) {
            column->addWidget(part);
        }
        column->addWidget(position->makeTiling());
        rotation->setObjectName(u"Rotation"_s);
        transparency->field().setObjectName(u"Percent"_s);
        binder.bind(rotation, &Watermark::Rotation);
        binder.bind(transparency, &Watermark::Transparency);
        editor.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
    }

    Watermark record{watermark_type::Shape};
    RecordBinder<Watermark> binder{[this](const auto& edit) {
        edit(record);
        binder.load(record);
    }};
    QWidget editor;
    RotationControl* rotation = new RotationControl(&editor);
    TransparencySlider* transparency = new TransparencySlider(&editor);
    PositionGroup* position = new PositionGroup(binder, &editor);
};

TEST_F(BoundControls, EachChangesItsFieldsAndNoOthers) {
    using W = Watermark;
    struct Row {
        const char* name;
        const char* typed;  // none for a click
        std::function<void(W&)> expected;
        std::function<void(W&)> start = [](W&) {};
    };
    const auto custom = [](W& w) { w.Position = CustomPosition; };
    const auto tiled = [](W& w) { w.HorizontalTiling = w.VerticalTiling = true; };
    const auto text = [](W& w) { w.Type = watermark_type::Text; };
    const Row rows[] = {
        {"Rotation", "-30", [](W& w) { w.Rotation = -30; }},
        {"Percent", "35", [](W& w) { w.Transparency = 0.65F; }},
        {"Cell9", nullptr, [](W& w) { w.Position = 9; }},
        {"Cell5", nullptr, [](W& w) { w.Position = 5, w.Alignment = 2; }, text},
        {"PaddingTop", "7", [](W& w) { w.PaddingTop = 7; }},
        {"PaddingLeft", "-8", [](W& w) { w.PaddingLeft = -8; }},
        {"PaddingBottom", "5", [](W& w) { w.PaddingBottom = 5; }, tiled},
        {"PaddingRight", "3", [](W& w) { w.PaddingRight = 3; }, tiled},
        {"PaddingTop", "2.5", [](W& w) { w.PaddingTopShare = 0.025F; },
         [](W& w) { w.PaddingTopShare = 0.0F; }},
        {"CustomPosition", nullptr, custom},
        {"CustomPositionLeft", "40", [](W& w) { w.CustomPositionLeft = 40; }, custom},
        {"CustomPositionTop", "30", [](W& w) { w.CustomPositionTop = 30; }, custom},
        {"HorizontalTiling", nullptr, [](W& w) { w.HorizontalTiling = true, w.Position = 2; }},
        {"VerticalTiling", nullptr, [](W& w) { w.VerticalTiling = true, w.Position = 4; }},
        {"HorizontalSpacing", "-15", [](W& w) { w.HorizontalSpacing = -15; }, tiled},
        {"VerticalSpacing", "20", [](W& w) { w.VerticalSpacing = 20; }, tiled},
    };
    for (const Row& row : rows) {
        record = W(watermark_type::Shape);
        row.start(record);
        binder.load(record);
        W expected = record;
        row.expected(expected);
        row.typed != nullptr ? type(editor, row.name, QLatin1String(row.typed)) : click(editor, row.name);
        EXPECT_TRUE(record == expected) << row.name;
    }
}

TEST_F(BoundControls, ThePlaceShowsWhatCanBeUsed) {
    const auto usable = [this](const char* name) { return control(editor, name).isEnabled(); };
    record.Type = watermark_type::Text;
    record.Position = 7;
    record.Alignment = 2;
    binder.load(record);
    EXPECT_TRUE(usable("PaddingBottom") && !usable("PaddingTop"));
    click(editor, "CustomPosition");
    EXPECT_TRUE(usable("CustomPositionTop") && !usable("Cell7"));
    click(editor, "PresetPosition");
    EXPECT_EQ(record.Position, 7) << "back where it was";
    EXPECT_EQ(record.Alignment, 2U) << "which chooses no alignment";
    EXPECT_TRUE(button(editor, "Cell7").isChecked());

    EXPECT_FALSE(control(editor, "HorizontalSpacing").isVisible());
    click(editor, "HorizontalTiling");
    EXPECT_TRUE(control(editor, "HorizontalSpacing").isVisible());
    EXPECT_TRUE(button(editor, "Cell2").isChecked() && !usable("Cell1") && !usable("CustomPosition"));
    press(editor, "Cell2", Qt::Key_Down);
    EXPECT_EQ(record.Position, 5) << "from cell to cell with the keyboard";
}

TEST(TransparencySlider, SliderAndFieldShowTheRecord) {
    TransparencySlider slider;
    std::vector<float> told;
    QObject::connect(&slider, &TransparencySlider::chosen, &slider,
                     [&told](float transparency) { told.push_back(transparency); });
    slider.load(0.333F);
    EXPECT_EQ(slider.field().text(), u"67%"_s);
    EXPECT_TRUE(told.empty());
    QTest::keyClick(&slider.slider(), Qt::Key_End);
    EXPECT_EQ(slider.field().text(), u"100%"_s);
    slider.field().setValue(50.0);
    EXPECT_EQ(slider.slider().value(), 50);
    EXPECT_THAT(told, ElementsAre(0.0F, 0.5F));
    for (int percent = 0; percent <= 100; ++percent) {
        EXPECT_EQ(transparencyPercent(transparencyOf(percent)), percent);
    }
    EXPECT_EQ(transparencyPercent(2.0F), 0) << "more than opaque";
}

}  // namespace
}  // namespace zelto
