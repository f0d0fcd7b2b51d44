// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/shape_editor.h"

#include "app/common/enabling.h"
#include "app/common/icons.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/size_field.h"
#include "app/editors/controls/starting_place.h"
#include "app/editors/controls/tile_button.h"
#include "app/editors/controls/transparency_slider.h"
#include "app/editors/controls/watermark_page.h"
#include "render/shape.h"
#include "render/tiling.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace zelto {
namespace {

constexpr std::int64_t FewestSides = 3;
constexpr NumberKind SideCount{static_cast<double>(FewestSides), 100};

struct Choice {
    const char* title;
    std::int64_t code;
};
constexpr std::array Kinds = {
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Rectangle"), shape_type::Rectangle},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Ellipse"), shape_type::Ellipse},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Polygon"), shape_type::Polygon},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Line"), shape_type::Line},
};
// By `Watermark::GradeintType`.
constexpr std::array GradientDirections = {
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Left to right"), gradient_type::LeftToRight},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Top to bottom"), gradient_type::TopToBottom},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Lower right to upper left"),
           gradient_type::LowerRightToUpperLeft},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Upper right to lower left"),
           gradient_type::UpperRightToLowerLeft},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "From the centre"), gradient_type::FromCentre},
};

QImage drawnAlone(const Watermark& record) {
    const std::optional<ShapeImage> shape = GetShapeImage(record, {});
    return shape ? pictureOf(*shape, shape->size) : QImage();
}

// The drawing of a kind of shape for its button.
QImage kindDrawing(std::int32_t kind) {
    Watermark shape(watermark_type::Shape);
    shape.ShapeType = kind;
    shape.Sides = 6;
    shape.Width = 88.0F;
    shape.Height = kind == shape_type::Line ? 12.0F : kind == shape_type::Polygon ? 88.0F : 60.0F;
    shape.Transparency = 1.0F;
    const QImage drawn = drawnAlone(shape);
    constexpr int Side = 96;
    QRect middle(0, 0, Side, Side);
    middle.moveCenter(drawn.rect().center());
    return drawn.copy(middle);
}

// What a gradient looks like, for the list of directions.
QIcon gradientIcon(const Watermark& record, std::int64_t direction) {
    Watermark shape = record;
    shape.ShapeType = shape_type::Rectangle;
    shape.SolidBackground = false;
    shape.GradeintType = direction;
    shape.ResizeWidthByPercent = false;
    shape.ResizeHeightByPercent = false;
    shape.Width = 64.0F;
    shape.Height = 64.0F;
    shape.Rotation = 0;
    shape.Transparency = 1.0F;
    return QIcon(QPixmap::fromImage(drawnAlone(shape)));
}

class ShapeEditor : public WatermarkPage {
    Q_DECLARE_TR_FUNCTIONS(zelto::ShapeEditor)

  public:
    explicit ShapeEditor(WatermarkController& controller);

  protected:
    void showReference(QSizeF reference) override;

  private:
    QWidget* makeShape();
    QLayout* makeKinds(QWidget* box);
    QWidget* makeLook();
    QLayout* makeFill(QWidget* box);
    QComboBox* makeDirections(QWidget* box);
    QWidget* makePlace();
    ColorWell* makeColor(const char* name, const QString& title, std::optional<Color> Watermark::*field);
    SizeField* makeSize(const char* name, const QString& shareTitle, float Watermark::*pixels,
                        float Watermark::*share, bool Watermark::*isRelative);

    SizeField* width_ = nullptr;
    SizeField* height_ = nullptr;
};

ShapeEditor::ShapeEditor(WatermarkController& controller)
    : WatermarkPage(QStringLiteral("ShapeEditor"), tr("Shape"), controller) {
    addGroup(QStringLiteral("Content"), tr("Content")).setContent(makeShape());
    addGroup(QStringLiteral("Look"), tr("Look")).setContent(makeLook());
    addGroup(QStringLiteral("Place"), tr("Place")).setContent(makePlace());
    setFocusProxy(&width_->number());
}

void ShapeEditor::showReference(QSizeF reference) {
    width_->setReference(reference.width());
    height_->setReference(reference.height());
}

QWidget* ShapeEditor::makeShape() {
    auto* box = new QWidget(this);
    auto* form = new QFormLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(makeKinds(box));
    auto* sides = new NumberField(SideCount, box);
    sides->setObjectName(QStringLiteral("Sides"));
    sides->setEmptyValue(static_cast<double>(FewestSides));
    binder().bind(sides, &Watermark::Sides);
    width_ = makeSize("Width", tr("% of photo width"), &Watermark::Width, &Watermark::ResizeWidth,
                      &Watermark::ResizeWidthByPercent);
    height_ = makeSize("Height", tr("% of photo height"), &Watermark::Height, &Watermark::ResizeHeight,
                       &Watermark::ResizeHeightByPercent);
    addRow(*form, tr("Sides:"), sides);
    addRow(*form, tr("Width:"), width_);
    addRow(*form, tr("Height:"), height_);
    auto* widthLabel = qobject_cast<QLabel*>(form->labelForField(width_));
    auto* heightLabel = qobject_cast<QLabel*>(form->labelForField(height_));
    binder().follow([=](const Watermark& record) {
        const bool isLine = record.ShapeType == shape_type::Line;
        widthLabel->setText(isLine ? tr("Length:") : tr("Width:"));
        heightLabel->setText(isLine ? tr("Thickness:") : tr("Height:"));
        enableOr(*sides, record.ShapeType == shape_type::Polygon, tr("Only polygons have a number of sides"));
    });
    return box;
}

QLayout* ShapeEditor::makeKinds(QWidget* box) {
    auto* kinds = new QButtonGroup(box);
    auto* row = new QHBoxLayout;
    for (const Choice& kind : Kinds) {
        auto* button =
            new TileButton(lineIcon(kindDrawing(static_cast<std::int32_t>(kind.code))), tr(kind.title), box);
        button->setObjectName(QLatin1String(kind.title));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        kinds->addButton(button, static_cast<int>(kind.code));
        row->addWidget(button);
    }
    binder().bind(kinds, &Watermark::ShapeType, [](Watermark& record, int kind) {
        record.ShapeType = kind;
        if (kind == shape_type::Polygon) record.Sides = std::max(record.Sides, FewestSides);
    });
    return row;
}

SizeField* ShapeEditor::makeSize(const char* name, const QString& shareTitle, float Watermark::*pixels,
                                 float Watermark::*share, bool Watermark::*isRelative) {
    auto* field = new SizeField(shareTitle, this);
    field->setObjectName(QLatin1String(name));
    binder().bind(
        field,
        [=](const Watermark& record) {
            return Length{record.*(record.*isRelative ? share : pixels), record.*isRelative};
        },
        [=](Watermark& record, const Length& length) {
            record.*isRelative = length.isRelative;
            record.*(length.isRelative ? share : pixels) = static_cast<float>(length.value);
        });
    return field;
}

ColorWell* ShapeEditor::makeColor(const char* name, const QString& title,
                                  std::optional<Color> Watermark::*field) {
    auto* well = new ColorWell(title, this);
    well->setObjectName(QLatin1String(name));
    binder().bind(well, field);
    return well;
}

QLayout* ShapeEditor::makeFill(QWidget* box) {
    auto* solid = new QRadioButton(tr("One colour"), box);
    solid->setObjectName(QStringLiteral("Solid"));
    ColorWell* solidColor = makeColor("SolidColor", tr("Colour"), &Watermark::SolidColor);
    auto* gradient = new QRadioButton(tr("Gradient"), box);
    gradient->setObjectName(QStringLiteral("Gradient"));
    ColorWell* first = makeColor("FirstColor", tr("First colour of the gradient"), &Watermark::FirstColor);
    ColorWell* second =
        makeColor("SecondColor", tr("Second colour of the gradient"), &Watermark::SecondColor);
    QComboBox* directions = makeDirections(box);
    auto* fills = new QButtonGroup(box);
    fills->addButton(solid, 1);
    fills->addButton(gradient, 0);
    binder().bind(fills, &Watermark::SolidBackground);
    binder().follow([=](const Watermark& record) {
        solidColor->setEnabled(record.SolidBackground);
        for (QWidget* control : std::initializer_list<QWidget*>{first, second, directions}) {
            control->setEnabled(!record.SolidBackground);
        }
    });
    auto* grid = new QGridLayout;
    grid->addWidget(solid, 0, 0);
    grid->addWidget(solidColor, 0, 1);
    grid->addWidget(gradient, 1, 0);
    grid->addWidget(first, 1, 1);
    grid->addWidget(second, 1, 2);
    grid->addWidget(directions, 2, 0, 1, 4);
    grid->setColumnStretch(3, 1);
    return grid;
}

// Each direction with a picture of the record's gradient.
QComboBox* ShapeEditor::makeDirections(QWidget* box) {
    auto* list = new QComboBox(box);
    list->setObjectName(QStringLiteral("GradeintType"));
    list->setAccessibleName(tr("Direction of the gradient"));
    for (const Choice& choice : GradientDirections)
        list->addItem(tr(choice.title), QVariant::fromValue(choice.code));
    // Records that name no direction go from left to right.
    const auto direction = [list](const Watermark& record) {
        const QVariant code = QVariant::fromValue(record.GradeintType);
        return list->findData(code) < 0 ? list->itemData(0) : code;
    };
    binder().bind(list, direction, [](Watermark& record, const QVariant& code) {
        record.GradeintType = code.value<std::int64_t>();
    });
    using Colors = std::pair<std::optional<Color>, std::optional<Color>>;
    binder().follow([list, shown = std::optional<Colors>()](const Watermark& record) mutable {
        const Colors colors(record.FirstColor, record.SecondColor);
        if (shown == colors) return;
        shown = colors;
        for (int row = 0; row < list->count(); ++row) {
            list->setItemIcon(row, gradientIcon(record, list->itemData(row).value<std::int64_t>()));
        }
    });
    return list;
}

QWidget* ShapeEditor::makeLook() {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(makeFill(box));
    auto* transparency = new TransparencySlider(box);
    transparency->setObjectName(QStringLiteral("Transparency"));
    binder().bind(transparency, &Watermark::Transparency);
    auto* form = new QFormLayout;
    addRow(*form, tr("Transparency:"), transparency);
    column->addLayout(form);
    return box;
}

QWidget* ShapeEditor::makePlace() {
    auto* box = new QWidget(this);
    auto* position = new PositionGroup(binder(), box);
    auto* rotation = new RotationControl(box);
    rotation->setObjectName(QStringLiteral("Rotation"));
    binder().bind(rotation, &Watermark::Rotation);
    binder().follow([rotation](const Watermark& record) {
        const bool isCircle = record.ShapeType == shape_type::Ellipse && record.Width == record.Height;
        enableOr(*rotation, !isCircle, tr("A circle looks the same however it is turned"));
    });
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(position);
    column->addWidget(rotation);
    return box;
}

// A part of the photo's sides, which is seen on a photo of any size.
void addShape(const EditorCall& call) {
    Watermark record = WatermarkController::startingWatermark(watermark_type::Shape);
    record.ResizeWidthByPercent = true;
    record.ResizeWidth = 0.25F;
    record.ResizeHeightByPercent = true;
    record.ResizeHeight = 0.15F;
    placeWhereSeen(record, call);
    call.put(record);
}

}  // namespace

Editor shapeEditor() {
    return {[](WatermarkController& controller) { return new ShapeEditor(controller); }, addShape};
}

}  // namespace zelto
