// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_group.h"

#include "app/common/in_background.h"
#include "app/common/messages.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/controls/photo_side_box.h"
#include "app/editors/controls/value_page.h"
#include "pictures/picture_names.h"
#include "pictures/picture_reader.h"
#include "platform/preferences.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zelto {
namespace {

constexpr double LogoStartPercent = 25.0;

Result<Logo> readLogo(const QString& path) {
    const Result<QSize> size = readPictureSize(path);
    if (!size) return tl::unexpected(size.error());
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) return fail(ErrorCode::NotFound, file.errorString(), path);
    return Logo{path, file.readAll(), *size};
}

QString startFolder(const QString& current) {
    const QFileInfo file(current);
    if (file.exists()) return file.path();
    return storedPreference(preference::LastLogoDirectory).value_or(QDir::homePath());
}

}  // namespace

void chooseLogo(QWidget* window, const QString& current, std::function<void(const Logo&)> take) {
    const QString path =
        QFileDialog::getOpenFileName(window, LogoGroup::tr("Choose Image"), startFolder(current),
                                     LogoGroup::tr("Images") + QLatin1Char(' ') + chooserPattern());
    if (path.isEmpty()) return;
    inBackground(
        window, [path] { return readLogo(path); },
        [window, path, take = std::move(take)](const Result<Logo>& logo) {
            if (!logo) {
                showAlert(window, LogoGroup::tr("This image cannot be used"),
                          path + QLatin1Char('\n') + logo.error().message);
                return;
            }
            setPreference(preference::LastLogoDirectory, QFileInfo(path).path());
            take(*logo);
        });
}

void startLogoSize(Watermark& logo, QSizeF photo) {
    constexpr double Dot = 0.05;
    constexpr double Large = 0.5;
    const double share = std::max(static_cast<double>(logo.Width) / photo.width(),
                                  static_cast<double>(logo.Height) / photo.height());
    if (photo.isEmpty() || (share >= Dot && share <= Large)) return;
    logo.Resize = true;
    logo.ResizeFormat = logo_resize::Proportional;
    logo.ImageProportionalResize = QString(photo_side::Width);
    PropSizeDidChange(logo, LogoStartPercent);
}

// Controls are made in the order the eye and the Tab key go through them.
LogoFileGroup::LogoFileGroup(RecordBinder<Watermark>& binder, QWidget* parent)
    : QWidget(parent),
      binder_(binder),
      path_(named("ImagePath", new QLineEdit(this))),
      choose_(named("SelectImage", new QPushButton(tr("Choose…"), this))),
      sample_(new LogoSample(this)) {
    path_->setReadOnly(true);
    path_->setPlaceholderText(tr("No image chosen"));
    path_->setAccessibleName(tr("Image"));
    choose_->setAutoDefault(false);
    sample_->setFixedHeight(fontMetrics().height() * 7);
    auto* row = new QHBoxLayout;
    row->addWidget(path_, 1);
    row->addWidget(choose_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(sample_);
    connect(choose_, &QPushButton::clicked, this, &LogoFileGroup::SelectImageWatermark);
    binder_.follow([this](const Watermark& record) {
        sample_->load(record);
        const QString path = QDir::toNativeSeparators(record.ImagePath);
        if (path == path_->text()) return;
        path_->setText(path);
        path_->setToolTip(path);
    });
}

LogoGroup::LogoGroup(RecordBinder<Watermark>& binder, LogoSample& sample, QWidget* parent)
    : QWidget(parent), binder_(binder) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(makeColors(sample));
    column->addWidget(makeResize());
}

QLayout* LogoGroup::makeColors(LogoSample& sample) {
    auto* transparent = named("IsTransparent", new QCheckBox(tr("Make transparent:"), this));
    auto* color = named("TransparentColor", new ColorWell(tr("Transparent Colour"), this));
    auto* grayscale = named("CreateBW", new QCheckBox(tr("Grayscale"), this));
    auto* grid = new QGridLayout;
    grid->addWidget(transparent, 0, 0);
    grid->addWidget(color, 0, 1, Qt::AlignLeft);
    grid->addWidget(grayscale, 1, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    binder_.bind(transparent, &Watermark::IsTransparent);
    binder_.bind(color, &Watermark::TransparentColor);
    binder_.onChosen(&sample,
                     [](Watermark& record, const Color& picked) { record.TransparentColor = picked; });
    binder_.bind(grayscale, &Watermark::CreateBW);
    binder_.follow([color](const Watermark& record) { color->setEnabled(record.IsTransparent); });
    return grid;
}

NumberField* LogoGroup::makeSize(const NumberKind& kind, const char* name, const QString& label) {
    auto* field = named(name, new NumberField(kind, this));
    field->setAccessibleName(label);
    return field;
}

QWidget* LogoGroup::makeResize() {
    auto* box = named("Resize", new QGroupBox(tr("Resize"), this));
    box->setCheckable(true);
    auto* proportional = named("Proportional", new QRadioButton(tr("Proportional"), box));
    percent_ = makeSize(number_kind::PercentOfSide, "PropSize", tr("Size in per cent"));
    percent_->load(LogoStartPercent);
    auto* side = named("ImageProportionalResize", makePhotoSideBox(box));
    auto* absolute = named("Absolute", new QRadioButton(tr("Absolute"), box));
    width_ = makeSize(number_kind::Length, "AbsWidth", tr("Width"));
    width_->setPrefix(tr("W "));
    height_ = makeSize(number_kind::Length, "AbsHeight", tr("Height"));
    height_->setPrefix(tr("H "));
    auto* keepAspect = named("PreserverAspectRatio", new QCheckBox(tr("Keep aspect ratio"), box));
    auto* types = new QButtonGroup(box);
    types->addButton(proportional, static_cast<int>(logo_resize::Proportional));
    types->addButton(absolute, static_cast<int>(logo_resize::Absolute));

    auto* grid = new QGridLayout(box);
    grid->addWidget(proportional, 0, 0);
    grid->addWidget(percent_, 0, 1);
    grid->addWidget(side, 1, 1);
    grid->addWidget(absolute, 2, 0);
    grid->addWidget(width_, 2, 1);
    grid->addWidget(height_, 3, 1);
    grid->addWidget(keepAspect, 4, 1);
    grid->setColumnStretch(1, 1);

    // A choice of the kind of size takes the size from the fields of that kind.
    binder_.bind(box, &Watermark::Resize,
                 [this](Watermark& record, bool on) { chkResizeChecked(record, on, fields()); });
    binder_.bind(
        types,
        [](const Watermark& record) {
            return isAbsolute(record) ? logo_resize::Absolute : logo_resize::Proportional;
        },
        [this](Watermark& record, int format) { ResizeTypeChanged(record, format, fields()); });
    binder_.follow([this](const Watermark& record) { showSizes(record); });
    binder_.onChosen(percent_, PropSizeDidChange);
    binder_.bind(side, &Watermark::ImageProportionalResize);
    binder_.onChosen(width_, AbsWidthDidChange);
    binder_.onChosen(height_, AbsHeightDidChange);
    binder_.bind(keepAspect, &Watermark::PreserverAspectRatio, chkAspectRatioChanged);
    binder_.follow([=, this](const Watermark& record) {
        const ResizeControls controls = resizeControls(record);
        for (QWidget* control : {proportional, absolute}) control->setEnabled(controls.type);
        for (QWidget* control : {static_cast<QWidget*>(percent_), static_cast<QWidget*>(side)}) {
            control->setEnabled(controls.proportional);
        }
        for (QWidget* control : {static_cast<QWidget*>(width_), static_cast<QWidget*>(height_),
                                 static_cast<QWidget*>(keepAspect)}) {
            control->setEnabled(controls.absolute);
        }
    });
    return box;
}

ResizeFields LogoGroup::fields() const {
    return {static_cast<float>(percent_->value()), static_cast<float>(width_->value()),
            static_cast<float>(height_->value())};
}

void LogoGroup::showSizes(const Watermark& record) {
    ResizeFields now = fields();
    // An absolute size is that of one logo; another one starts with its own.
    if (record.ImagePath != sizedPath_) now.width = now.height = 0.0F;
    sizedPath_ = record.ImagePath;
    const ResizeFields sizes = resizeFields(record, now);
    percent_->load(static_cast<double>(sizes.percent));
    width_->load(static_cast<double>(sizes.width));
    height_->load(static_cast<double>(sizes.height));
}

void LogoFileGroup::SelectImageWatermark() {
    const QString before = path_->text();
    chooseLogo(window(), before, [self = QPointer(this), before](const Logo& logo) {
        // Another watermark may have come here while the file was read.
        if (!self || self->path_->text() != before) return;
        self->binder_.edit([&logo](Watermark& record) { setLogo(record, logo.path, logo.bytes, logo.size); });
    });
}

}  // namespace zelto
