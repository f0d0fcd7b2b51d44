// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/text_editor.h"

#include "app/editors/controls/starting_place.h"
#include "app/editors/controls/typed_text.h"
#include "app/editors/macros/macro_controller.h"
#include "app/editors/text/text_start.h"
#include "app/editors/text/text_style_group.h"
#include "app/editors/text/watermark_window_controller.h"

#include <QCoreApplication>

#include <utility>

namespace zelto {
namespace {

class TextEditor : public WatermarkWindowController {
    Q_DECLARE_TR_FUNCTIONS(zelto::TextEditor)

  public:
    explicit TextEditor(WatermarkController& controller);

    void end() override;
    void showFor(const SelectedPhoto& photo) override;

  protected:
    void put(const Watermark& record) override;

  private:
    QWidget* makeContent();

    TypedText* text_ = nullptr;
    MacroController* macros_ = nullptr;
    std::optional<Watermark> edited_;  // as this visit has left it
};

TextEditor::TextEditor(WatermarkController& controller)
    : WatermarkWindowController(QStringLiteral("TextEditor"), tr("Text"), controller) {
    addGroup(QStringLiteral("Content"), tr("Content")).setContent(makeContent());
    addLook([this](QWidget* parent) { return new TextStyleGroup(binder(), parent); });
    addPlaceAndTiling();
    setFocusProxy(text_);
}

QWidget* TextEditor::makeContent() {
    auto* content = new QWidget(this);
    text_ = new TypedText(content);
    text_->setObjectName(QStringLiteral("Text"));
    text_->setAccessibleName(tr("Text"));
    text_->setFixedHeight(text_->fontMetrics().lineSpacing() * 3 + 2 * text_->frameWidth() + 8);
    binder().bind(text_, &Watermark::Text);
    auto* macros = new FoldGroup(QStringLiteral("Macros"), tr("Macros"), FoldGroup::AtFirst::Folded, content);
    macros_ = new MacroController(*text_, content);
    macros->setContent(macros_);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text_);
    column->addWidget(macros);
    return content;
}

void TextEditor::showFor(const SelectedPhoto& photo) {
    WatermarkWindowController::showFor(photo);
    macros_->showFor(photo);
}

void TextEditor::put(const Watermark& record) {
    edited_ = record;
    WatermarkWindowController::put(record);
}

// What was edited is what the next new text looks like.
void TextEditor::end() {
    if (const auto edited = std::exchange(edited_, std::nullopt)) rememberTextStyle(*edited);
    WatermarkWindowController::end();
}

void addText(const EditorCall& call) {
    Watermark record = WatermarkController::startingWatermark(watermark_type::Text);
    startText(record);
    placeWhereSeen(record, call);
    call.put(record);
}

}  // namespace

Editor textEditor() {
    return {[](WatermarkController& controller) { return new TextEditor(controller); }, addText};
}

}  // namespace zelto
