// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/folder_window_controller.h"

#include "app/common/messages.h"
#include "app/dialogs/folder_field.h"
#include "batch/folder_scan.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace zelto {
namespace {

struct FormatBox {
    MarkedText text;
    bool ScanFormats::*ticked;
};
constexpr std::array FormatBoxes = {
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&JPEG")), &ScanFormats::Jpeg},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&PNG")), &ScanFormats::Png},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&TIFF")), &ScanFormats::Tiff},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&GIF")), &ScanFormats::Gif},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "B&MP")), &ScanFormats::Bmp},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&HEIC")), &ScanFormats::Heic},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "A&VIF")), &ScanFormats::Avif},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&WebP")), &ScanFormats::Webp},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "JPEG &XL")), &ScanFormats::Jxl},
    FormatBox{MarkedText(QT_TRANSLATE_NOOP("Words", "&Raw")), &ScanFormats::Raw},
};
constexpr std::size_t MainFormats = 5;  // in the first row of boxes

}  // namespace

FolderWindowController::FolderWindowController(QWidget* parent)
    : QDialog(parent),
      folder_(new FolderField(tr("Folder of Photos"), this)),
      includeSubFolders_(new QCheckBox(tr("Include &sub-folders"), this)) {
    setWindowTitle(tr("Add Folder"));
    auto* form = new QFormLayout;
    auto* folderLabel = new QLabel(tr("&Folder:"), this);
    folderLabel->setBuddy(&folder_->edit());
    form->addRow(folderLabel, folder_);
    form->addRow(QString(), includeSubFolders_);
    auto* boxes = new QHBoxLayout;
    auto* more = new QHBoxLayout;
    const ScanFormats first;
    for (const FormatBox& format : FormatBoxes) {
        auto* box = new QCheckBox(format.text, this);
        box->setChecked(first.*format.ticked);
        if (format.ticked == &ScanFormats::Gif) {
            box->setToolTip(tr("A folder's GIF photos are passed over; add them one by one."));
        } else if (format.ticked == &ScanFormats::Raw) {
            box->setToolTip(tr("The previews in cameras' raw files."));
        }
        (formats_.size() < MainFormats ? boxes : more)->addWidget(box);
        formats_.push_back(box);
    }
    boxes->addStretch(1);
    more->addStretch(1);
    form->addRow(tr("Formats:"), boxes);
    form->addRow(tr("More formats:"), more);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("&Add Photos"), QDialogButtonBox::AcceptRole)->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addStrut(480);
    column->addLayout(form);
    column->addStretch(1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FolderWindowController::GetinputandCloseWindow);
    connect(buttons, &QDialogButtonBox::rejected, this, &FolderWindowController::reject);

    const QString last = storedPreference(preference::LastAddedFolder).value_or(QString());
    if (QFileInfo(last).isDir()) folder_->setPath(last);
    folder_->edit().selectAll();
    includeSubFolders_->setChecked(storedPreference(preference::AddsSubFolders).value_or(false));
}

void FolderWindowController::GetinputandCloseWindow() {
    if (GetIputFoldername().isEmpty()) {
        showAlert(this, Words::tr("Input Folder cannot be empty"),
                  Words::tr("Please select the folder from where the Images are to be added"));
        folder_->setFocus();
    } else if (GetExtensionList().isEmpty()) {
        showAlert(this, Words::tr("File Extension list cannot be empty"),
                  Words::tr("Please select atleast one Extension to be included"));
        formats_.front()->setFocus();
    } else {
        setPreference(preference::LastAddedFolder, GetIputFoldername());
        setPreference(preference::AddsSubFolders, CheckToIncludeSubDirectories());
        accept();
    }
}

QString FolderWindowController::GetIputFoldername() const {
    return folder_->path();
}

bool FolderWindowController::CheckToIncludeSubDirectories() const {
    return includeSubFolders_->isChecked();
}

QString FolderWindowController::GetExtensionList() const {
    ScanFormats formats;
    for (std::size_t i = 0; i < formats_.size(); ++i) {
        formats.*FormatBoxes.at(i).ticked = formats_[i]->isChecked();
    }
    return zelto::GetExtensionList(formats);
}

void FolderWindowController::reject() {
    folder_->setPath(QString());
    QDialog::reject();
}

}  // namespace zelto
