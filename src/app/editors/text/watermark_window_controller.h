// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of texts and of logos: everything such a record holds, each change at once in the list and on the
// preview. Main thread only.
#pragma once

#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/transparency_slider.h"

class QPlainTextEdit;
class QVBoxLayout;

namespace zelto {

class LogoGroup;
class TextStyleGroup;

class WatermarkWindowController : public EditorDialog {
    Q_OBJECT

  public:
    // For the record of `session`, a text or a logo. The session outlives the editor.
    WatermarkWindowController(const EditorCall& call, WatermarkSession& session);

  protected:
    void load() override { LoadWatermarkSettings(); }
    void showEvent(QShowEvent* event) override;

  private:
    void LoadWatermarkSettings();
    void addText(QVBoxLayout& column);
    template <class Group>
    QWidget* makeLookPage(Group* group);
    QWidget* makePlacePage();
    void edit(const WatermarkEdit& edit) { session_.edit(edit); }

    WatermarkSession& session_;
    QPlainTextEdit* text_ = nullptr;  // of a text, else none
    TextStyleGroup* style_ = nullptr;
    LogoGroup* logo_ = nullptr;  // of a logo, else none
    TransparencySlider* transparency_ = nullptr;
    RotationControl* rotation_ = nullptr;
    PositionGroup* position_ = nullptr;
};

// Open the editor on what the call names.
void editText(const EditorCall& call);
void editLogo(const EditorCall& call);

}  // namespace zelto
