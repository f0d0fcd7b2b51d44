// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/text_editor.h"

#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/typed_text.h"
#include "app/editors/macros/macro_controller.h"
#include "app/editors/text/text_start.h"
#include "app/editors/text/text_style_group.h"
#include "app/editors/text/watermark_window_controller.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace zelto {
namespace {

// What was edited is what the next new text looks like.
class TextSession : public WatermarkSession {
  public:
    explicit TextSession(const EditorCall& call) : WatermarkSession(call, watermark_type::Text, startText) {}

    void finish() override {
        if (isInList() && hasChanged()) rememberTextStyle(record());
        WatermarkSession::finish();
    }
};

class TextEditor : public WatermarkWindowController {
    Q_DECLARE_TR_FUNCTIONS(zelto::TextEditor)

  public:
    TextEditor(const EditorCall& call, WatermarkSession& session);

  private:
    TypedText* makeText();
};

// Controls are made in the order the eye and the Tab key go through them.
TextEditor::TextEditor(const EditorCall& call, WatermarkSession& session)
    : WatermarkWindowController(QStringLiteral("TextEditor"),
                                session.isNew() ? tr("Add Text") : tr("Edit Text"), session) {
    TypedText* text = makeText();
    auto* label = new QLabel(tr("&Text:"), this);
    label->setBuddy(text);
    QTabWidget* pages = makePages();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(label);
    column->addWidget(text);
    column->addWidget(pages, 1);
    pages->addTab(makeLookPage(new TextStyleGroup(binder(), this)), tr("Font"));
    pages->addTab(new MacroController(call.photoPath, call.photoRow, *text, this), tr("Macros"));
    pages->addTab(makePlacePage(), tr("Position"));
    setFocusProxy(text);
}

TypedText* TextEditor::makeText() {
    auto* text = new TypedText(this);
    text->setObjectName(QStringLiteral("Text"));
    text->setAccessibleName(tr("Text"));
    text->setFixedHeight(text->fontMetrics().lineSpacing() * 4 + 2 * text->frameWidth() + 8);
    binder().bind(text, &Watermark::Text);
    return text;
}

}  // namespace

void editText(const EditorCall& call) {
    TextSession session(call);
    runEditor(call, session, new TextEditor(call, session));
}

}  // namespace zelto
