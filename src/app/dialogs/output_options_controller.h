// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog before a run: the user confirms its output options while an example shows what becomes of the
// selected photo. The options can be kept as defaults in a file. Main thread only.
#pragma once

#include "persistence/output_settings_file.h"

#include <QDialog>
#include <QSize>

#include <memory>
#include <optional>

namespace zelto {

class ExampleView;
class ImageListController;
class LazyImageProperties;
class OutputPanel;
class RenamePanel;
class ResizePanel;
class WatermarkController;

class OutputOptionsController : public QDialog {
    Q_OBJECT

  public:
    // Shows the defaults. Both outlive the dialog's showings.
    OutputOptionsController(ImageListController& photos, WatermarkController& watermarks,
                            QWidget* parent = nullptr);

    // The options the user started with; none before that, and none when the dialog was dismissed.
    std::optional<OutputOptions> getOptions() const { return options_; }
    void setOptions(std::optional<OutputOptions> options) { options_ = std::move(options); }
    void setMetadataPresent(bool present);

    // Checks the options and, when they are good, closes the dialog with them.
    void StartWatermarking();
    // Keeps what the dialog shows as the defaults, and reads them back.
    void SetasDefault();
    void LoadSettings();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    OutputSettings shownSettings() const;
    void display(const OutputSettings& settings);
    void follow();
    void offerToCreate(const QString& folder);
    QString exampleName(const OutputOptions& options);
    void rememberFolder(const QString& folder) const;

    ImageListController& photos_;
    WatermarkController& watermarks_;
    OutputPanel* output_;
    RenamePanel* rename_;
    ResizePanel* resize_;
    ExampleView* example_;
    QSize photoSize_;  // of the selected photo; invalid where there is none or it cannot be read
    std::shared_ptr<const LazyImageProperties>
        photoProperties_;  // of the selected photo, once they are asked for
    std::optional<OutputOptions> options_;
};

}  // namespace zelto
