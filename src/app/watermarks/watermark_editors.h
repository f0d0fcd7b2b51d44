// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the editors of the watermark list: for something new, or for what a row shows. While an editor is open, all it
// does is one undo step. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

class ImageListController;

class WatermarkEditors {
  public:
    // All outlive it; `window` is the parent of the editors.
    WatermarkEditors(WatermarkController& watermarks, const ImageListController& photos, EditorSet editors,
                     QWidget* window);

    // Whether there is an editor of that kind.
    bool canOpen(EditorKind kind) const { return editors_.count(kind) > 0; }

    void OpenImageWatermarkSettings() { openNew(EditorKind::Image); }
    void OpenTextWatermarkSettings() { openNew(EditorKind::Text); }
    void OpenShapeWatermarkSettings() { openNew(EditorKind::Shape); }
    void AddQrCode() { openNew(EditorKind::QrCode); }
    void OpenFilterWindow() { openNew(EditorKind::Filter); }
    void OpenEffectsSettings() { openNew(EditorKind::Effects); }
    void OpenMetadataWindow() { openNew(EditorKind::Copyright); }
    // Opens the editor of what a row of the list shows.
    void WatermarkListDoubleClicked(int row);
    void editSelected();

  private:
    void openNew(EditorKind kind);
    void open(EditorKind kind);

    WatermarkController& watermarks_;
    const ImageListController& photos_;
    EditorSet editors_;
    QWidget* window_;
};

}  // namespace zelto
