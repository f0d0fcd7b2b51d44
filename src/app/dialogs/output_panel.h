// SPDX-License-Identifier: GPL-3.0-or-later
// The first part of the output options: the folder, the format and what it asks for, and the metadata. Main
// thread only.
#pragma once

#include "records/output_options.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;

namespace zelto {

class FolderField;

class OutputPanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit OutputPanel(QWidget* parent = nullptr);

    // Only what belongs here is loaded and stored.
    void load(const OutputOptions& options);
    void store(OutputOptions& options) const;

    // Whether there is copyright data to write: the choice of the metadata warns where it asks for some.
    void setMetadataPresent(bool present);
    // How many of the photos keep no metadata in a file of their own format.
    void setPhotosWithoutMetadata(int count);
    // Whether the outputs become the pages of one file.
    bool combines() const;

    FolderField& folder() { return *folder_; }

  Q_SIGNALS:
    void changed();

  private:
    QLayout* makeFormatRow();
    QLayout* makeMetadataColumn();
    // Shows what the chosen format asks for.
    void SetOutputFormat();
    void showMetadataNote();

    FolderField* folder_;
    QCheckBox* keepStructure_;
    QComboBox* format_;
    QLabel* qualityLabel_;
    QSpinBox* quality_;
    QCheckBox* combine_;
    QCheckBox* lossless_;
    QComboBox* metadata_;
    QLabel* noteIcon_;
    QLabel* note_;
    bool isMetadataPresent_ = true;
    int photosWithoutMetadata_ = 0;
};

}  // namespace zelto
