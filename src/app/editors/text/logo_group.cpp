// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_group.h"

#include "app/editors/controls/editor_dialog.h"
#include "app/window/dialog_set.h"
#include "pictures/picture_reader.h"
#include "platform/preferences.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zelto {
namespace {

constexpr NumberKind PercentOfSide{1, 1'000, 1, QLatin1String(" %")};
constexpr double StartPercent = 25.0;
constexpr QLatin1String Sides[] = {QLatin1String("Width"), QLatin1String("Height"),
                                   QLatin1String("Longer Side")};
constexpr QLatin1String LogoTypes(
    "(*.jpg *.JPG *.gif *.GIF *.jpeg *.JPEG *.png *.PNG *.tif *.TIF *.tiff *.TIFF)");

struct LogoFile {
    QByteArray bytes;
    QSize size;
};

Result<LogoFile> readLogoFile(const QString& path) {
    const Result<QSize> size = readPictureSize(path);
    if (!size) return tl::unexpected(size.error());
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) return fail(ErrorCode::NotFound, file.errorString(), path);
    return LogoFile{file.readAll(), *size};
}

}  // namespace

void startLogo(Watermark& record) {
    record.ImagePath = QLatin1String("");
}

// Controls are made in the order the eye and the Tab key go through them.
LogoGroup::LogoGroup(QWidget* parent) : QWidget(parent), sample_(new LogoSample(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makePath());
    column->addWidget(sample_, 1);
    column->addWidget(makeColors());
    column->addWidget(makeResize());
}

QWidget* LogoGroup::makePath() {
    auto* widget = new QWidget(this);
    path_ = new QLineEdit(widget);
    path_->setObjectName(QStringLiteral("ImagePath"));
    path_->setReadOnly(true);
    path_->setPlaceholderText(tr("No image chosen"));
    path_->setAccessibleName(tr("Image"));
    auto* choose = new QPushButton(tr("C&hoose…"), widget);
    choose->setObjectName(QStringLiteral("SelectImage"));
    choose->setAutoDefault(false);
    widget->setFocusProxy(choose);
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(path_, 1);
    row->addWidget(choose);
    connect(choose, &QPushButton::clicked, this, &LogoGroup::SelectImageWatermark);
    return widget;
}

QWidget* LogoGroup::makeColors() {
    auto* widget = new QWidget(this);
    transparent_ = new QCheckBox(tr("&Make a colour transparent:"), widget);
    transparentColor_ = new ColorWell(tr("Transparent Colour"), widget);
    grayscale_ = new QCheckBox(tr("&Grayscale"), widget);
    transparent_->setObjectName(QStringLiteral("IsTransparent"));
    transparentColor_->setObjectName(QStringLiteral("TransparentColor"));
    grayscale_->setObjectName(QStringLiteral("CreateBW"));
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(transparent_);
    row->addWidget(transparentColor_);
    row->addStretch();
    row->addWidget(grayscale_);
    connect(transparent_, &QCheckBox::clicked, this,
            [this](bool on) { Q_EMIT edited([on](Watermark& record) { record.IsTransparent = on; }); });
    connect(grayscale_, &QCheckBox::clicked, this,
            [this](bool on) { Q_EMIT edited([on](Watermark& record) { record.CreateBW = on; }); });
    const auto take = [this](const Color& color) {
        Q_EMIT edited([color](Watermark& record) { record.TransparentColor = color; });
    };
    connect(transparentColor_, &ColorWell::colorChosen, this, take);
    connect(sample_, &LogoSample::colorPicked, this, take);
    return widget;
}

NumberField* LogoGroup::makeAbsolute(const QString& name, const QString& label,
                                     void (*change)(Watermark&, float)) {
    auto* field = new NumberField(number_kind::Length, resize_);
    field->setObjectName(name);
    field->setAccessibleName(label);
    connect(field, &NumberField::valueChanged, this, [this, change](double length) {
        Q_EMIT edited([change, length](Watermark& record) { change(record, static_cast<float>(length)); });
    });
    return field;
}

QWidget* LogoGroup::makeResize() {
    resize_ = new QGroupBox(tr("&Resize"), this);
    resize_->setObjectName(QStringLiteral("Resize"));
    resize_->setCheckable(true);
    auto* proportional = new QRadioButton(tr("&Proportional"), resize_);
    proportional->setObjectName(QStringLiteral("Proportional"));
    propSize_ = new NumberField(PercentOfSide, resize_);
    propSide_ = new QComboBox(resize_);
    auto* absolute = new QRadioButton(tr("&Absolute"), resize_);
    absolute->setObjectName(QStringLiteral("Absolute"));
    absWidth_ = makeAbsolute(QStringLiteral("AbsWidth"), tr("Width"), AbsWidthDidChange);
    absHeight_ = makeAbsolute(QStringLiteral("AbsHeight"), tr("Height"), AbsHeightDidChange);
    keepAspect_ = new QCheckBox(tr("&Keep aspect ratio"), resize_);
    resizeType_ = new QButtonGroup(resize_);
    resizeType_->addButton(proportional, static_cast<int>(logo_resize::Proportional));
    resizeType_->addButton(absolute, static_cast<int>(logo_resize::Absolute));
    propSize_->setObjectName(QStringLiteral("PropSize"));
    propSize_->setAccessibleName(tr("Size in per cent"));
    propSize_->load(StartPercent);
    propSide_->setObjectName(QStringLiteral("ImageProportionalResize"));
    propSide_->setAccessibleName(tr("Side of the photo the size follows"));
    for (const QLatin1String side : Sides) propSide_->addItem(side);
    keepAspect_->setObjectName(QStringLiteral("PreserverAspectRatio"));

    auto* grid = new QGridLayout(resize_);
    grid->addWidget(proportional, 0, 0);
    grid->addWidget(propSize_, 0, 1);
    grid->addWidget(propSide_, 0, 2);
    grid->addWidget(absolute, 1, 0);
    grid->addWidget(absWidth_, 1, 1);
    grid->addWidget(absHeight_, 1, 2);
    grid->addWidget(keepAspect_, 2, 1, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    absWidth_->setPrefix(tr("W "));
    absHeight_->setPrefix(tr("H "));
    connect(resize_, &QGroupBox::clicked, this, [this](bool on) {
        Q_EMIT edited([on, sizes = fields()](Watermark& record) { chkResizeChecked(record, on, sizes); });
    });
    connect(resizeType_, &QButtonGroup::idClicked, this, [this](int format) {
        Q_EMIT edited(
            [format, sizes = fields()](Watermark& record) { ResizeTypeChanged(record, format, sizes); });
    });
    connect(propSize_, &NumberField::valueChanged, this, [this](double percent) {
        Q_EMIT edited([percent](Watermark& record) { PropSizeDidChange(record, percent); });
    });
    connect(propSide_, &QComboBox::activated, this, [this](int chosen) {
        Q_EMIT edited(
            [side = QString(Sides[chosen])](Watermark& record) { record.ImageProportionalResize = side; });
    });
    connect(keepAspect_, &QCheckBox::clicked, this, [this](bool on) {
        Q_EMIT edited([on](Watermark& record) { chkAspectRatioChanged(record, on); });
    });
    return resize_;
}

ResizeFields LogoGroup::fields() const {
    return {static_cast<float>(propSize_->value()), static_cast<float>(absWidth_->value()),
            static_cast<float>(absHeight_->value())};
}

void LogoGroup::load(const Watermark& record) {
    const QString path = QDir::toNativeSeparators(record.ImagePath);
    if (path != path_->text()) {
        path_->setText(path);
        path_->setToolTip(path);
    }
    sample_->load(record);
    transparent_->setChecked(record.IsTransparent);
    transparentColor_->load(record.TransparentColor);
    transparentColor_->setEnabled(record.IsTransparent);
    grayscale_->setChecked(record.CreateBW);

    const ResizeFields sizes = resizeFields(record, fields());
    const ResizeControls controls = resizeControls(record);
    const bool isAbsolute = record.ResizeFormat == logo_resize::Absolute;
    resize_->setChecked(record.Resize);
    resizeType_->button(static_cast<int>(isAbsolute ? logo_resize::Absolute : logo_resize::Proportional))
        ->setChecked(true);
    propSize_->load(static_cast<double>(sizes.percent));
    propSide_->setCurrentText(record.ImageProportionalResize);
    absWidth_->load(static_cast<double>(sizes.width));
    absHeight_->load(static_cast<double>(sizes.height));
    keepAspect_->setChecked(record.PreserverAspectRatio);
    for (QAbstractButton* type : resizeType_->buttons()) type->setEnabled(controls.type);
    propSize_->setEnabled(controls.proportional);
    propSide_->setEnabled(controls.proportional);
    absWidth_->setEnabled(controls.absolute);
    absHeight_->setEnabled(controls.absolute);
    keepAspect_->setEnabled(controls.absolute);
}

QString LogoGroup::startFolder() const {
    const QFileInfo current(path_->text());
    if (current.exists()) return current.path();
    return storedPreference(preference::LastLogoDirectory).value_or(QDir::homePath());
}

bool LogoGroup::SelectImageWatermark() {
    const QString path = QFileDialog::getOpenFileName(window(), tr("Choose Image"), startFolder(),
                                                      tr("Images") + QLatin1Char(' ') + LogoTypes);
    if (path.isEmpty()) return false;
    const Result<LogoFile> logo = readLogoFile(path);
    if (!logo) {
        showAlert(window(), tr("This image cannot be used"), path + QLatin1Char('\n') + logo.error().message);
        return false;
    }
    setPreference(preference::LastLogoDirectory, QFileInfo(path).path());
    Q_EMIT edited([&](Watermark& record) { setLogo(record, path, logo->bytes, logo->size); });
    return true;
}

}  // namespace zelto
