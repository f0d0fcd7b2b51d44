// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/output_panel.h"

#include "app/common/enabling.h"
#include "app/common/icons.h"
#include "app/dialogs/folder_field.h"
#include "metadata/metadata_transfer.h"
#include "pictures/picture_writer.h"
#include "platform/file_reference.h"
#include "platform/words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

#include <array>

namespace zelto {
namespace {

// The formats that photos are written in, each the extension of its files.
constexpr std::array FormatTitles = {
    SameAsSourceFormat,   QLatin1String("jpg"), QLatin1String("png"), QLatin1String("tif"),
    QLatin1String("bmp"), QLatin1String("gif"), QLatin1String("pdf"),
};
// Those below the line, where this machine can write them.
constexpr std::array MoreFormatTitles = {QLatin1String("webp"), QLatin1String("avif"), QLatin1String("jxl"),
                                         QLatin1String("heic")};

struct MetadataRow {
    MarkedText title;
    std::int64_t tag;
};
constexpr std::array MetadataRows = {
    MetadataRow{MarkedText(QT_TRANSLATE_NOOP("Words", "Include All")), exif_data::IncludeAll},
    MetadataRow{MarkedText(QT_TRANSLATE_NOOP("Words", "Copyright Only")), exif_data::CopyrightOnly},
    MetadataRow{MarkedText(QT_TRANSLATE_NOOP("Words", "Exclude Geolocation")), exif_data::ExcludeGeolocation},
    MetadataRow{MarkedText(QT_TRANSLATE_NOOP("Words", "Exclude All")), exif_data::ExcludeAll},
};

// A photo keeps its format where none is chosen, and most photos are JPEG files.
PictureFormat formatOf(const QString& title) {
    return pictureFormatForExtension(title).value_or(PictureFormat::Jpeg);
}

}  // namespace

OutputPanel::OutputPanel(QWidget* parent)
    : QGroupBox(tr("Output"), parent),
      folder_(new FolderField(tr("Output Folder"), this)),
      keepStructure_(new QCheckBox(tr("&Maintain the directory structure"), this)),
      format_(new QComboBox(this)),
      qualityLabel_(new QLabel(tr("JPEG &quality:"), this)),
      quality_(new QSpinBox(this)),
      combine_(new QCheckBox(tr("&Combine to a single PDF"), this)),
      lossless_(new QCheckBox(tr("Keep &untouched areas as they are (JPEG to JPEG)"), this)),
      metadata_(new QComboBox(this)),
      noteIcon_(new QLabel(this)),
      note_(new QLabel(this)) {
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    const auto addRow = [&](const QString& text, QWidget* buddy, auto* row) {
        auto* label = new QLabel(text, this);
        label->setBuddy(buddy);
        form->addRow(label, row);
    };
    addRow(tr("F&older:"), &folder_->edit(), folder_);
    form->addRow(QString(), keepStructure_);
    addRow(tr("&Format:"), format_, makeFormatRow());
    form->addRow(QString(), lossless_);
    lossless_->setToolTip(
        tr("<p>Only the blocks that a watermark touches are encoded again, with the quality the photo has "
           "already. All else stays as it is, so that a copy of a copy is as good as the first.</p>"
           "<p>This is done for JPEG photos that are neither resized nor filtered nor framed. Others are "
           "encoded as usual, and their rows say why.</p>"
           "<p>Many cameras store colors at half the size. There, colored edges of marks are softer, and on "
           "a grey photo marks are grey.</p>"));
    addRow(tr("Meta&data:"), metadata_, makeMetadataColumn());

    connect(folder_, &FolderField::changed, this, &OutputPanel::changed);
    connect(format_, &QComboBox::currentIndexChanged, this, &OutputPanel::SetOutputFormat);
    connect(metadata_, &QComboBox::currentIndexChanged, this, &OutputPanel::showMetadataNote);
    connect(combine_, &QCheckBox::toggled, this, &OutputPanel::SetOutputFormat);
    connect(keepStructure_, &QCheckBox::toggled, this, &OutputPanel::changed);
}

QLayout* OutputPanel::makeFormatRow() {
    for (const QLatin1String title : FormatTitles)
        format_->addItem(title == SameAsSourceFormat ? tr("Same as source image") : QString(title),
                         QString(title));
    format_->insertSeparator(format_->count());
    for (const QLatin1String title : MoreFormatTitles) {
        if (pictureFormatForExtension(QString(title))) format_->addItem(title, QString(title));
    }
    format_->setAccessibleName(tr("Format"));
    qualityLabel_->setBuddy(quality_);
    quality_->setRange(0, 100);
    quality_->setToolTip(
        tr("0 is the smallest file, 100 the best picture: with WebP, JPEG XL and AVIF, without any loss"));
    auto* row = new QHBoxLayout;
    row->addWidget(format_);
    row->addSpacing(12);
    row->addWidget(qualityLabel_);
    row->addWidget(quality_);
    row->addWidget(combine_);
    row->addStretch(1);
    return row;
}

QLayout* OutputPanel::makeMetadataColumn() {
    for (const MetadataRow& item : MetadataRows)
        metadata_->addItem(item.title, QVariant::fromValue(qint64{item.tag}));
    metadata_->setAccessibleName(tr("Metadata"));
    metadata_->setToolTip(tr("Exclude Geolocation removes every position and keeps the names of places."));
    metadata_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    noteIcon_->setPixmap(colorIcon(QLatin1String("warning")).pixmap(QSize(side, side), devicePixelRatioF()));
    noteIcon_->setAccessibleName(tr("Warning"));
    // The line of the note keeps its place while there is none.
    note_->setMinimumHeight(side);
    auto* note = new QHBoxLayout;
    note->addWidget(noteIcon_);
    note->addWidget(note_, 1);
    auto* column = new QVBoxLayout;
    column->addWidget(metadata_);
    column->addLayout(note);
    return column;
}

bool OutputPanel::combines() const {
    return combine_->isChecked() && formatOf(format_->currentData().toString()) == PictureFormat::Pdf;
}

void OutputPanel::SetOutputFormat() {
    const PictureFormat format = formatOf(format_->currentData().toString());
    const bool ofOthers = hasQuality(format) && format != PictureFormat::Jpeg;
    quality_->setAccessibleName(ofOthers ? tr("Quality") : tr("JPEG quality"));
    qualityLabel_->setText(ofOthers ? tr("&Quality:") : tr("JPEG &quality:"));
    qualityLabel_->setVisible(hasQuality(format));
    quality_->setVisible(hasQuality(format));
    lossless_->setEnabled(format == PictureFormat::Jpeg);
    combine_->setVisible(format == PictureFormat::Pdf);
    enableOr(*keepStructure_, !combines(), tr("All photos become the pages of one file"));
    metadata_->setEnabled(metadataWay(format) != MetadataWay::None);
    showMetadataNote();
}

void OutputPanel::setMetadataPresent(bool present) {
    isMetadataPresent_ = present;
    showMetadataNote();
}

void OutputPanel::setPhotosWithoutMetadata(int count) {
    photosWithoutMetadata_ = count;
    showMetadataNote();
}

void OutputPanel::showMetadataNote() {
    const QString format = format_->currentData().toString();
    const bool hasNone = metadataWay(formatOf(format)) == MetadataWay::None;
    const std::int64_t choice = metadata_->currentData().toLongLong();
    const bool lacksCopyright = !hasNone && !isMetadataPresent_ && choice == exif_data::CopyrightOnly;
    const bool losesSome = format == SameAsSourceFormat && photosWithoutMetadata_ > 0 &&
                           choice != exif_data::ExcludeAll && !lacksCopyright;
    noteIcon_->setVisible(lacksCopyright || losesSome);
    if (hasNone) {
        note_->setText(tr("Files of this format have no metadata."));
    } else if (losesSome) {
        note_->setText(tr("%Ln photo(s) will have none: PNG, BMP and GIF files carry no metadata.", nullptr,
                          photosWithoutMetadata_));
    } else if (lacksCopyright) {
        note_->setText(tr("You have set no copyright data (Add > Copyright)."));
    } else {
        note_->clear();
    }
    Q_EMIT changed();
}

void OutputPanel::load(const OutputOptions& options) {
    folder_->setPath(options.OutputPath);
    keepStructure_->setChecked(options.KeepDirectoryStructure);
    // A format that is not offered leaves the choice as it is.
    const int format = format_->findData(options.OutputFormat);
    if (format >= 0) format_->setCurrentIndex(format);
    quality_->setValue(static_cast<int>(options.JPEGQuality));
    combine_->setChecked(options.CombineToSinglePDF);
    lossless_->setChecked(options.JpegLossless);
    metadata_->setCurrentIndex(metadata_->findData(QVariant::fromValue(qint64{options.ExifDataToInclude})));
    SetOutputFormat();
}

void OutputPanel::store(OutputOptions& options) const {
    options.OutputPath = folder_->path();
    options.OutputFolderData =
        options.OutputPath.isEmpty() ? QByteArray() : fileReference(options.OutputPath);
    options.OutputFormat = format_->currentData().toString();
    options.JPEGQuality = quality_->value();
    options.CombineToSinglePDF = combine_->isChecked();
    options.JpegLossless = lossless_->isChecked();
    options.KeepDirectoryStructure = keepStructure_->isChecked();
    options.ExifDataToInclude = metadata_->currentData().toLongLong();
}

}  // namespace zelto
