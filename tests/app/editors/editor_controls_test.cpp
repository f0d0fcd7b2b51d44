// SPDX-License-Identifier: GPL-3.0-or-later
// The controls the editors share, by themselves.
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/transparency_slider.h"
#include "app/editors/editor_test.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace zelto {
namespace {

using ::testing::ElementsAre;

class Field : public ::testing::Test {
  protected:
    Field() {
        auto* column = new QVBoxLayout(&dialog);
        for (QWidget* widget : {static_cast<QWidget*>(field), other}) column->addWidget(widget);
        field->setObjectName(QStringLiteral("field"));
        field->load(5.0);
        QObject::connect(field, &NumberField::valueChanged, &dialog,
                         [this](double value) { told.push_back(value); });
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    QString hint() const {
        const auto* label = dialog.findChild<QLabel*>(QStringLiteral("InputHint"));
        return label != nullptr && label->isVisible() ? label->text() : QString();
    }

    QWidget dialog;
    NumberField* field = new NumberField(number_kind::Size, &dialog);
    QWidget* other = new QLineEdit(&dialog);
    std::vector<double> told;
};

TEST_F(Field, WrongInputStaysIsExplainedAndChangesNothing) {
    const QString expected = QStringLiteral("A number from 1 to 100000");
    for (const char* wrong : {"x", "1x", "0", "-3", "0.5.5"}) {
        type(dialog, "field", QLatin1String(wrong));
        EXPECT_EQ(hint(), expected) << wrong;
        EXPECT_EQ(field->cleanText(), QLatin1String(wrong));
    }
    EXPECT_THAT(told, ElementsAre(1.0)) << "the 1 of 1x";
    other->setFocus();
    EXPECT_EQ(field->text(), QStringLiteral("1 px"));
    EXPECT_EQ(hint(), QString());
    type(dialog, "field", QStringLiteral("12"));
    EXPECT_EQ(hint(), QString());
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
    QObject::connect(&rotation, &RotationControl::rotationChosen, &rotation,
                     [&told](qint64 degrees) { told.push_back(degrees); });
    const auto shown = [&rotation] {
        return QStringLiteral("%1 %2 %3")
            .arg(rotation.field().value())
            .arg((rotation.dial().value() + 180) % 360)
            .arg(rotation.presets().currentText());
    };
    struct Row {
        qint64 degrees;
        const char* shown;
    };
    for (const Row& row : {Row{0, "0 0 Straight"}, Row{-45, "-45 315 Rising diagonally"},
                           Row{315, "315 315 Rising diagonally"}, Row{360, "360 0 Straight"},
                           Row{33, "33 33 "}, Row{-3600 + 90, "90 90 Downward"}}) {
        rotation.load(row.degrees);
        EXPECT_EQ(shown(), QLatin1String(row.shown)) << row.degrees;
    }
    EXPECT_TRUE(told.empty());
    rotation.load(0);
    QTest::keyClick(&rotation.dial(), Qt::Key_Down);
    QTest::keyClick(&rotation.dial(), Qt::Key_PageUp);
    EXPECT_EQ(shown(), QStringLiteral("14 14 "));
    QTest::keyClick(&rotation.presets(), Qt::Key_End);
    EXPECT_EQ(shown(), QStringLiteral("180 180 Upside down"));
    EXPECT_THAT(told, ElementsAre(359, 14, 180));
}

TEST(PositionGroup, TilingIsOfferedWithItsRules) {
    PositionGroup group(PositionGroup::Tiling::Offered);
    Watermark record(watermark_type::Text);
    record.Position = 7;
    QObject::connect(&group, &PositionGroup::edited, &group, [&](const WatermarkEdit& edit) {
        edit(record);
        group.load(record);
    });
    group.load(record);
    group.show();
    EXPECT_FALSE(control(group, "HorizontalSpacing").isVisible());
    click(group, "HorizontalTiling");
    EXPECT_EQ(record.Position, 2);
    EXPECT_TRUE(group.grid().cell(2).isChecked());
    EXPECT_FALSE(group.grid().cell(1).isEnabled());
    EXPECT_FALSE(control(group, "CustomPosition").isEnabled());
    type(group, "HorizontalSpacing", QStringLiteral("-15"));
    EXPECT_EQ(record.HorizontalSpacing, -15);
    group.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&group));
    group.grid().cell(2).setFocus();
    QTest::keyClick(&group.grid().cell(2), Qt::Key_Down);
    EXPECT_EQ(record.Position, 5) << "from cell to cell with the keyboard";
    click(group, "VerticalTiling");
    type(group, "VerticalSpacing", QStringLiteral("20"));
    type(group, "PaddingRight", QStringLiteral("3"));
    EXPECT_TRUE(record.VerticalTiling);
    EXPECT_EQ(record.VerticalSpacing, 20);
    EXPECT_EQ(record.PaddingRight, 3);
    EXPECT_EQ(record.Position, 5);
}

TEST(TransparencySlider, TheFigureIsThatOfTheRecord) {
    TransparencySlider slider;
    float told = -1.0F;
    QObject::connect(&slider, &TransparencySlider::transparencyChosen, &slider,
                     [&told](float transparency) { told = transparency; });
    slider.load(0.333F);
    EXPECT_EQ(slider.label(), QStringLiteral("67%"));
    EXPECT_EQ(told, -1.0F);
    QTest::keyClick(&slider.slider(), Qt::Key_End);
    EXPECT_EQ(slider.label(), QStringLiteral("100%"));
    EXPECT_EQ(told, 0.0F);
}

}  // namespace
}  // namespace zelto
