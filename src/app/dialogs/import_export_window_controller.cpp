// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/import_export_window_controller.h"

#include "app/common/messages.h"
#include "app/dialogs/folder_field.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QVBoxLayout>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(settings, "zelto.settings")

struct CopyTexts {
    QString title;
    QString prompt;
    QString success;
    QString failureTitle;
    QString failure;
    QString button;
};

CopyTexts textsOf(CopyMode mode) {
    if (mode == CopyMode::Import) {
        return {Words::tr("Import Settings"),
                Words::tr("Please browse and select the folder from where the settings are to be imported"),
                Words::tr("Settings have been imported into Zelto"),
                Words::tr("Import Error"),
                Words::tr("Error in importing settings. Please try again later."),
                ImportExportWindowController::tr("&Import")};
    }
    return {Words::tr("Export Settings"),
            Words::tr("Please browse and select the folder  where the settings are to be exported"),
            Words::tr("Settings have been exported"),
            Words::tr("Export Error"),
            Words::tr("Error in exporting settings. Please try again later."),
            ImportExportWindowController::tr("&Export")};
}

QString countText(qsizetype count) {
    if (count == 0) return ImportExportWindowController::tr("There are no settings to copy.");
    return ImportExportWindowController::tr("%Ln setting(s) will be copied.", nullptr,
                                            static_cast<int>(count));
}

}  // namespace

ImportExportWindowController::ImportExportWindowController(const SettingsLibrary& library, CopyMode mode,
                                                           QWidget* parent)
    : QDialog(parent),
      library_(library),
      mode_(mode),
      folder_(new FolderField(textsOf(mode).title, this)),
      count_(new QLabel(this)) {
    const CopyTexts texts = textsOf(mode);
    setWindowTitle(texts.title);
    auto* prompt = new QLabel(texts.prompt, this);
    prompt->setBuddy(&folder_->edit());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    copy_ = buttons->addButton(texts.button, QDialogButtonBox::AcceptRole);
    copy_->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(prompt);
    column->addWidget(folder_);
    column->addWidget(count_);
    column->addStretch(1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(folder_, &FolderField::changed, this, &ImportExportWindowController::follow);

    const QString last = storedPreference(preference::LastSettingsFolder).value_or(QString());
    if (QFileInfo(last).isDir()) folder_->setPath(last);
    folder_->edit().selectAll();
    follow();
}

QString ImportExportWindowController::SelectedPath() const {
    return folder_->path();
}

void ImportExportWindowController::follow() {
    const QString folder = SelectedPath();
    const bool isFolder = QFileInfo(folder).isDir();
    const SettingsLibrary source = mode_ == CopyMode::Import ? SettingsLibrary(folder) : library_;
    const qsizetype count = isFolder ? source.names().value_or(QStringList()).size() : 0;
    if (folder.isEmpty()) {
        count_->clear();
    } else {
        count_->setText(isFolder ? countText(count) : tr("There is no such folder."));
    }
    copy_->setEnabled(count > 0);
}

void ImportExportWatermarks(const SettingsLibrary& library, CopyMode mode, QWidget* parent) {
    ImportExportWindowController dialog(library, mode, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    const QString folder = dialog.SelectedPath();
    setPreference(preference::LastSettingsFolder, folder);
    const Result<qsizetype> copied =
        mode == CopyMode::Import ? library.importFrom(folder) : library.exportTo(folder);
    const CopyTexts texts = textsOf(mode);
    if (copied) {
        showMessage(parent, texts.title, texts.success);
    } else {
        qCWarning(settings, "%s", qUtf8Printable(copied.error().message));
        showAlert(parent, texts.failureTitle, texts.failure);
    }
}

}  // namespace zelto
