// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/output_options_controller.h"

#include "app/common/enabling.h"
#include "app/common/messages.h"
#include "app/common/remembered_dialog.h"
#include "app/dialogs/example_view.h"
#include "app/dialogs/folder_field.h"
#include "app/dialogs/output_panel.h"
#include "app/dialogs/rename_panel.h"
#include "app/dialogs/resize_field.h"
#include "app/dialogs/resize_panel.h"
#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_controller.h"
#include "batch/output_name.h"
#include "metadata/metadata_transfer.h"
#include "persistence/output_options_check.h"
#include "pictures/picture_names.h"
#include "pictures/picture_reader.h"
#include "pictures/picture_writer.h"
#include "platform/application_folders.h"
#include "platform/dates.h"
#include "platform/file_reference.h"
#include "platform/path_parts.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QDate>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(outputOptions, "zelto.options")

Result<QString> defaultsPath() {
    return applicationFolder(ZeltoFolder).map([](const QString& folder) {
        return folder + OutputSettingsFileName;
    });
}

// What the dialog starts from where nothing is stored.
OutputSettings initialSettings() {
    OutputSettings settings = startingOutputSettings();
    const QByteArray last = storedPreference(preference::LastOutDirectoryData).value_or(QByteArray());
    settings.options.OutputPath = resolveFileReference(last).value_or(QString());
    return settings;
}

// Those that are to be written, where each keeps its format.
int photosWithoutMetadata(const std::vector<Image>& photos) {
    return static_cast<int>(std::count_if(photos.begin(), photos.end(), [](const Image& photo) {
        const QString extension = pathExtension(lastPathComponent(photo.ImagePath)).toLower();
        const auto format = pictureFormatForExtension(writtenExtension(extension));
        return photo.ApplyWatermark && format && metadataWay(*format) == MetadataWay::None;
    }));
}

}  // namespace

OutputOptionsController::OutputOptionsController(ImageListController& photos, WatermarkController& watermarks,
                                                 QWidget* parent)
    : QDialog(parent),
      photos_(photos),
      watermarks_(watermarks),
      output_(new OutputPanel(this)),
      rename_(new RenamePanel(this)),
      resize_(new ResizePanel(this)),
      example_(new ExampleView(this)) {
    setWindowTitle(tr("Output Options"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* start = buttons->addButton(tr("&Start"), QDialogButtonBox::AcceptRole);
    start->setDefault(true);
    QPushButton* keep = buttons->addButton(tr("Set &as Default"), QDialogButtonBox::ResetRole);
    keep->setAutoDefault(false);

    auto* column = new QVBoxLayout(this);
    column->addStrut(fontMetrics().averageCharWidth() * 92);
    for (QWidget* part : std::initializer_list<QWidget*>{output_, rename_, resize_, example_}) {
        column->addWidget(part);
    }
    column->addStretch(1);
    column->addWidget(buttons);

    connect(start, &QPushButton::clicked, this, &OutputOptionsController::StartWatermarking);
    connect(keep, &QPushButton::clicked, this, &OutputOptionsController::SetasDefault);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&output_->folder(), &FolderField::chosen, this, &OutputOptionsController::rememberFolder);
    display(initialSettings());
    LoadSettings();
    connect(output_, &OutputPanel::changed, this, &OutputOptionsController::follow);
    connect(rename_, &RenamePanel::changed, this, &OutputOptionsController::follow);
    connect(resize_, &ResizePanel::changed, this, &OutputOptionsController::follow);
    rememberSize(*this, preference::OutputOptionsSize);
    // Groups that are checked from the start would have it.
    output_->folder().setFocus(Qt::TabFocusReason);
}

void OutputOptionsController::setMetadataPresent(bool present) {
    output_->setMetadataPresent(present);
}

OutputSettings OutputOptionsController::shownSettings() const {
    OutputSettings settings;
    output_->store(settings.options);
    rename_->store(settings.options);
    resize_->store(settings);
    return settings;
}

void OutputOptionsController::display(const OutputSettings& settings) {
    output_->load(settings.options);
    rename_->load(settings.options);
    resize_->load(settings);
}

void OutputOptionsController::StartWatermarking() {
    OutputOptions options = shownSettings().options;
    // A box that the format hides must not decide about the folders.
    options.CombineToSinglePDF = output_->combines();
    if (!options.OutputPath.isEmpty() && !QFileInfo::exists(options.OutputPath)) {
        offerToCreate(options.OutputPath);
        return;
    }
    if (const auto problem = outputOptionsProblem(options)) {
        showAlert(this, problem->title, problem->text);
        OutputOptions unresized = options;
        unresized.ResizeImage = false;
        QWidget* culprit = &resize_->longerSide();
        if (outputOptionsProblem(unresized)) culprit = &output_->folder();
        culprit->setFocus();
        return;
    }
    rememberFolder(options.OutputPath);
    options_ = options;
    accept();
}

void OutputOptionsController::offerToCreate(const QString& folder) {
    openMessageSheet(this,
                     {QMessageBox::Question,
                      tr("Create the Folder?"),
                      tr("There is no folder “%1” yet.").arg(folder),
                      {tr("&Create Folder"), tr("Cancel")},
                      0,
                      1},
                     [this, folder](int answer) {
                         output_->folder().setFocus();
                         if (answer != 0) return;
                         if (QDir().mkpath(folder)) {
                             StartWatermarking();
                         } else {
                             showAlert(this, tr("Folder Not Created"),
                                       tr("“%1” cannot be created.").arg(folder));
                         }
                     });
}

void OutputOptionsController::SetasDefault() {
    const Result<void> saved = defaultsPath().and_then(
        [this](const QString& path) { return saveOutputSettings(shownSettings(), path); });
    const QString title = Words::tr("Output Settings");
    if (saved) {
        showMessage(this, title, Words::tr("Settings have been saved"));
    } else {
        qCWarning(outputOptions, "%s", qUtf8Printable(saved.error().message));
        showAlert(this, title, Words::tr("Settings cannot be saved."));
    }
}

void OutputOptionsController::LoadSettings() {
    const Result<OutputSettings> settings = defaultsPath().and_then(
        [this](const QString& path) { return loadOutputSettings(path, shownSettings()); });
    if (settings) {
        display(*settings);
    } else {
        qCWarning(outputOptions, "%s", qUtf8Printable(settings.error().message));
    }
}

void OutputOptionsController::rememberFolder(const QString& folder) const {
    setPreference(preference::LastOutDirectory, folder);
    setPreference(preference::LastOutDirectoryData, fileReference(folder));
}

void OutputOptionsController::showEvent(QShowEvent* event) {
    const QString path = photos_.selectedPath();
    photoProperties_.reset();
    output_->setPhotosWithoutMetadata(photosWithoutMetadata(photos_.images()));
    photoSize_ = path.isEmpty() ? QSize() : readPictureSize(path).value_or(QSize());
    follow();
    QDialog::showEvent(event);
}

// Everything that depends on what is chosen.
void OutputOptionsController::follow() {
    const OutputOptions options = shownSettings().options;
    enableOr(*rename_, !output_->combines(), OutputPanel::tr("All photos become the pages of one file"));
    if (photos_.selectedRow() < 0) {
        example_->setExample({});
        return;
    }
    OutputPlace place{photos_.selectedPath(), photos_.selectedRow(), QDate::currentDate()};
    if (takesNamesFromPhotos(options)) place.name = exampleName(options);
    example_->setExample(outputExample(place, photoSize_, options, watermarks_.GetEffect(),
                                       photos_.model().list().InputOutputDictionary()));
}

// The photo's metadata is read once, not at every key.
QString OutputOptionsController::exampleName(const OutputOptions& options) {
    const NamedPhoto photo{photos_.selectedPath(), photos_.selectedRow(), QDate::currentDate()};
    MacroContext context = renameContext(options.RenameFormat, photo.path, photo.row,
                                         QDateTime::currentDateTime(), userDateLocale());
    if (!photoProperties_) photoProperties_ = context.properties;
    context.properties = photoProperties_;
    return nameFromPhoto(photo, options, context);
}

}  // namespace zelto
