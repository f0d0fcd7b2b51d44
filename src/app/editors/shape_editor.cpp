// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/shape_editor.h"

#include "app/common/icons.h"
#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/photo_reference.h"
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/size_field.h"
#include "app/editors/controls/tile_button.h"
#include "app/editors/controls/transparency_slider.h"
#include "render/shape.h"
#include "render/tiling.h"

#include <QCoreApplication>
#include <QGroupBox>
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
    int code;
};
constexpr std::array Kinds = {
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Rectangle"), shape_type::Rectangle},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Ellipse"), shape_type::Ellipse},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Polygon"), shape_type::Polygon},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Line"), shape_type::Line},
};
// By `Watermark::GradeintType`.
constexpr std::array Directions = {
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Left to right"), 1},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Top to bottom"), 2},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Lower right to upper left"), 3},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "Upper right to lower left"), 4},
    Choice{QT_TRANSLATE_NOOP("zelto::ShapeEditor", "From the centre"), 5},
};

QImage drawnAlone(const Watermark& record) {
    const std::optional<ShapeImage> shape = GetShapeImage(record, {});
    return shape ? pictureOf(*shape, shape->size) : QImage();
}

// The drawing of a kind of shape for its button.
QImage kindDrawing(int kind) {
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
QIcon gradientIcon(const Watermark& record, int direction) {
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

class ShapeEditor : public EditorDialog {
    Q_DECLARE_TR_FUNCTIONS(zelto::ShapeEditor)

  public:
    ShapeEditor(const EditorCall& call, WatermarkSession& session);

  protected:
    void load() override;

  private:
    QWidget* makeShape(QSizeF reference);
    QWidget* makeFill();
    QWidget* makeLook();
    SizeField* makeSize(const char* name, const QString& shareTitle, double reference,
                        float Watermark::*pixels, float Watermark::*share, bool Watermark::*isRelative);
    void showGradients(const Watermark& record);

    WatermarkSession& session_;
    RecordBinder<Watermark> binder_;
    QLabel* widthLabel_ = nullptr;
    QLabel* heightLabel_ = nullptr;
    NumberField* sides_ = nullptr;
    SizeField* width_ = nullptr;
    SizeField* height_ = nullptr;
    QRadioButton* solid_ = nullptr;
    QRadioButton* gradient_ = nullptr;
    ColorWell* solidColor_ = nullptr;
    ColorWell* firstColor_ = nullptr;
    ColorWell* secondColor_ = nullptr;
    QComboBox* direction_ = nullptr;
    RotationControl* rotation_ = nullptr;
    TransparencySlider* transparency_ = nullptr;
    PositionGroup* position_ = nullptr;
    std::optional<std::pair<std::optional<Color>, std::optional<Color>>> shownGradient_;
};

ShapeEditor::ShapeEditor(const EditorCall& call, WatermarkSession& session)
    : EditorDialog(call, session, QStringLiteral("ShapeEditor"), tr("Shape")),
      session_(session),
      binder_([&session](const WatermarkEdit& edit) { session.edit(edit); }) {
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : {makeShape(photoReference(call)), makeFill(), makeLook()}) column->addWidget(part);
    position_ = new PositionGroup(PositionGroup::Tiling::None, this);
    connect(position_, &PositionGroup::edited, &session_, &WatermarkSession::edit);
    column->addWidget(position_);
    setContent(content);
}

QWidget* ShapeEditor::makeShape(QSizeF reference) {
    auto* box = new QGroupBox(tr("Shape"), this);
    auto* kinds = new QButtonGroup(box);
    auto* row = new QHBoxLayout;
    for (const Choice& kind : Kinds) {
        auto* button = new TileButton(lineIcon(kindDrawing(kind.code)), tr(kind.title), box);
        button->setObjectName(QLatin1String(kind.title));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        kinds->addButton(button, kind.code);
        row->addWidget(button);
    }
    binder_.bind(kinds, &Watermark::ShapeType);

    sides_ = new NumberField(SideCount, box);
    sides_->setObjectName(QStringLiteral("Sides"));
    sides_->setEmptyValue(static_cast<double>(FewestSides));
    binder_.bind(sides_, &Watermark::Sides);
    // A polygon needs its sides.
    connect(kinds, &QButtonGroup::idClicked, this, [this](int kind) {
        session_.edit([kind](Watermark& record) {
            if (kind == shape_type::Polygon) record.Sides = std::max(record.Sides, FewestSides);
        });
    });
    width_ = makeSize("Width", tr("% of photo width"), reference.width(), &Watermark::Width,
                      &Watermark::ResizeWidth, &Watermark::ResizeWidthByPercent);
    height_ = makeSize("Height", tr("% of photo height"), reference.height(), &Watermark::Height,
                       &Watermark::ResizeHeight, &Watermark::ResizeHeightByPercent);

    auto* form = new QFormLayout(box);
    form->addRow(row);
    addRow(*form, tr("Si&des:"), sides_);
    addRow(*form, tr("&Width:"), width_);
    addRow(*form, tr("&Height:"), height_);
    widthLabel_ = qobject_cast<QLabel*>(form->labelForField(width_));
    heightLabel_ = qobject_cast<QLabel*>(form->labelForField(height_));
    return box;
}

SizeField* ShapeEditor::makeSize(const char* name, const QString& shareTitle, double reference,
                                 float Watermark::*pixels, float Watermark::*share,
                                 bool Watermark::*isRelative) {
    auto* field = new SizeField(shareTitle, reference, this);
    field->setObjectName(QLatin1String(name));
    connect(field, &SizeField::sizeChosen, this, [=, this](double length, bool relative) {
        session_.edit([=](Watermark& record) {
            record.*isRelative = relative;
            record.*(relative ? share : pixels) = static_cast<float>(length);
        });
    });
    return field;
}

QWidget* ShapeEditor::makeFill() {
    auto* box = new QGroupBox(tr("Fill"), this);
    solid_ = new QRadioButton(tr("&One colour"), box);
    solid_->setObjectName(QStringLiteral("Solid"));
    gradient_ = new QRadioButton(tr("&Gradient"), box);
    gradient_->setObjectName(QStringLiteral("Gradient"));
    solidColor_ = new ColorWell(tr("Colour"), box);
    solidColor_->setObjectName(QStringLiteral("SolidColor"));
    firstColor_ = new ColorWell(tr("First colour of the gradient"), box);
    firstColor_->setObjectName(QStringLiteral("FirstColor"));
    secondColor_ = new ColorWell(tr("Second colour of the gradient"), box);
    secondColor_->setObjectName(QStringLiteral("SecondColor"));
    direction_ = new QComboBox(box);
    direction_->setObjectName(QStringLiteral("GradeintType"));
    direction_->setAccessibleName(tr("Direction of the gradient"));
    for (const Choice& choice : Directions) {
        direction_->addItem(tr(choice.title), QVariant::fromValue(std::int64_t{choice.code}));
    }
    binder_.bind(solidColor_, &Watermark::SolidColor);
    binder_.bind(firstColor_, &Watermark::FirstColor);
    binder_.bind(secondColor_, &Watermark::SecondColor);
    for (QRadioButton* button : {solid_, gradient_}) {
        connect(button, &QRadioButton::clicked, this, [this, isSolid = button == solid_] {
            session_.edit([isSolid](Watermark& record) { record.SolidBackground = isSolid; });
        });
    }
    connect(direction_, &QComboBox::activated, this, [this](int row) {
        session_.edit([this, row](Watermark& record) {
            record.GradeintType = direction_->itemData(row).value<std::int64_t>();
        });
    });

    auto* grid = new QGridLayout(box);
    grid->addWidget(solid_, 0, 0);
    grid->addWidget(solidColor_, 0, 1);
    grid->addWidget(gradient_, 1, 0);
    grid->addWidget(firstColor_, 1, 1);
    grid->addWidget(secondColor_, 1, 2);
    grid->addWidget(direction_, 1, 3);
    grid->setColumnStretch(3, 1);
    return box;
}

QWidget* ShapeEditor::makeLook() {
    auto* box = new QGroupBox(tr("Look"), this);
    rotation_ = new RotationControl(box);
    rotation_->setObjectName(QStringLiteral("Rotation"));
    transparency_ = new TransparencySlider(box);
    transparency_->setObjectName(QStringLiteral("Transparency"));
    connect(rotation_, &RotationControl::rotationChosen, this, [this](qint64 degrees) {
        session_.edit([degrees](Watermark& record) { record.Rotation = degrees; });
    });
    connect(transparency_, &TransparencySlider::transparencyChosen, this, [this](float transparency) {
        session_.edit([transparency](Watermark& record) { record.Transparency = transparency; });
    });
    auto* form = new QFormLayout(box);
    addRow(*form, tr("&Rotation:"), rotation_);
    addRow(*form, tr("Tra&nsparency:"), transparency_);
    return box;
}

void ShapeEditor::load() {
    const Watermark record = session_.record();
    binder_.load(record);
    const bool isLine = record.ShapeType == shape_type::Line;
    widthLabel_->setText(isLine ? tr("&Length:") : tr("&Width:"));
    heightLabel_->setText(isLine ? tr("T&hickness:") : tr("&Height:"));
    width_->load(record.ResizeWidthByPercent ? record.ResizeWidth : record.Width,
                 record.ResizeWidthByPercent);
    height_->load(record.ResizeHeightByPercent ? record.ResizeHeight : record.Height,
                  record.ResizeHeightByPercent);
    sides_->setEnabled(record.ShapeType == shape_type::Polygon);

    (record.SolidBackground ? solid_ : gradient_)->setChecked(true);
    solidColor_->setEnabled(record.SolidBackground);
    for (QWidget* control : std::initializer_list<QWidget*>{firstColor_, secondColor_, direction_}) {
        control->setEnabled(!record.SolidBackground);
    }
    showGradients(record);

    const bool isCircle = record.ShapeType == shape_type::Ellipse && record.Width == record.Height;
    rotation_->setEnabled(!isCircle);
    rotation_->setToolTip(isCircle ? tr("A circle looks the same however it is turned") : QString());
    rotation_->load(record.Rotation);
    transparency_->load(record.Transparency);
    position_->load(record);
}

void ShapeEditor::showGradients(const Watermark& record) {
    // Records that name no direction go from left to right.
    const bool isNamed = record.GradeintType >= 1 && record.GradeintType <= 5;
    direction_->setCurrentIndex(isNamed ? static_cast<int>(record.GradeintType - 1) : 0);
    const auto colors = std::pair(record.FirstColor, record.SecondColor);
    if (shownGradient_ == colors) return;
    shownGradient_ = colors;
    for (const Choice& choice : Directions) {
        direction_->setItemIcon(choice.code - 1, gradientIcon(record, choice.code));
    }
}

}  // namespace

void editShape(const EditorCall& call) {
    WatermarkSession session(call, watermark_type::Shape);
    if (session.isNew()) session.reflect();
    ShapeEditor(call, session).run();
}

}  // namespace zelto
