// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that adds the photos of a folder: which folder, with its sub-folders or not, and which formats.
// Main thread only.
#pragma once

#include <QDialog>

#include <vector>

class QCheckBox;

namespace zelto {

class FolderField;

class FolderWindowController : public QDialog {
    Q_OBJECT

  public:
    explicit FolderWindowController(QWidget* parent = nullptr);

    // Checks what was chosen and, when it is good, closes the dialog with it.
    void GetinputandCloseWindow();

    // The folder; empty when the dialog was dismissed.
    QString GetIputFoldername() const;
    bool CheckToIncludeSubDirectories() const;
    QString GetExtensionList() const;

    void reject() override;

  private:
    FolderField* folder_;
    QCheckBox* includeSubFolders_;
    std::vector<QCheckBox*> formats_;
};

}  // namespace zelto
