// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/watermark_window_controller.h"

#include "app/editors/macros/macro_controller.h"
#include "app/editors/text/logo_group.h"
#include "app/editors/text/text_style_group.h"

#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace zelto {
namespace {

// What was typed, character for character: the editor's own plain text turns hard blanks into soft ones. An
// emptied text is there and empty.
QString typedText(const QPlainTextEdit& edit) {
    QString text = edit.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.isEmpty() ? QString(QLatin1String("")) : text;
}

QString titleOf(const WatermarkSession& session) {
    const bool isText = session.record().Type == watermark_type::Text;
    if (isText) {
        return session.isNew() ? WatermarkWindowController::tr("Add Text")
                               : WatermarkWindowController::tr("Edit Text");
    }
    return session.isNew() ? WatermarkWindowController::tr("Add Image")
                           : WatermarkWindowController::tr("Edit Image");
}

QString nameOf(const WatermarkSession& session) {
    return session.record().Type == watermark_type::Text ? QStringLiteral("TextEditor")
                                                         : QStringLiteral("ImageEditor");
}

}  // namespace

// Controls are made in the order the eye and the Tab key go through them.
WatermarkWindowController::WatermarkWindowController(const EditorCall& call, WatermarkSession& session)
    : EditorDialog(call, session, nameOf(session), titleOf(session)), session_(session) {
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    const bool isText = session.record().Type == watermark_type::Text;
    if (isText) addText(*column);
    auto* pages = new QTabWidget(content);
    pages->setObjectName(QStringLiteral("Pages"));
    if (isText) {
        pages->addTab(makeLookPage(style_ = new TextStyleGroup(pages)), tr("Font"));
        pages->addTab(new MacroController(call.photoPath, call.photoRow, *text_, pages), tr("Macros"));
    } else {
        pages->addTab(makeLookPage(logo_ = new LogoGroup(pages)), tr("Image"));
    }
    pages->addTab(makePlacePage(), tr("Position"));
    column->addWidget(pages, 1);
    setContent(content);
    if (isText) text_->setFocus();
}

void WatermarkWindowController::addText(QVBoxLayout& column) {
    auto* label = new QLabel(tr("&Text:"), this);
    text_ = new QPlainTextEdit(this);
    text_->setObjectName(QStringLiteral("Text"));
    text_->setAccessibleName(tr("Text"));
    text_->setTabChangesFocus(true);
    text_->setFixedHeight(text_->fontMetrics().lineSpacing() * 4 + 2 * text_->frameWidth() + 8);
    label->setBuddy(text_);
    column.addWidget(label);
    column.addWidget(text_);
    connect(text_, &QPlainTextEdit::textChanged, this,
            [this] { edit([text = typedText(*text_)](Watermark& record) { record.Text = text; }); });
}

template <class Group>
QWidget* WatermarkWindowController::makeLookPage(Group* group) {
    connect(group, &Group::edited, this, &WatermarkWindowController::edit);
    auto* page = new QWidget(this);
    transparency_ = new TransparencySlider(page);
    transparency_->slider().setObjectName(QStringLiteral("Transparency"));
    connect(transparency_, &TransparencySlider::transparencyChosen, this,
            [this](float value) { edit([value](Watermark& record) { record.Transparency = value; }); });
    auto* form = new QFormLayout;
    addRow(*form, tr("Transparenc&y:"), transparency_);
    auto* column = new QVBoxLayout(page);
    column->addWidget(group, 1);
    column->addLayout(form);
    return page;
}

QWidget* WatermarkWindowController::makePlacePage() {
    auto* page = new QWidget(this);
    auto* turn = new QGroupBox(tr("Rotation"), page);
    rotation_ = new RotationControl(turn);
    rotation_->field().setObjectName(QStringLiteral("Rotation"));
    position_ = new PositionGroup(PositionGroup::Tiling::Offered, page);
    (new QVBoxLayout(turn))->addWidget(rotation_);
    auto* column = new QVBoxLayout(page);
    column->addWidget(turn);
    column->addWidget(position_, 1);
    connect(rotation_, &RotationControl::rotationChosen, this,
            [this](qint64 degrees) { edit([degrees](Watermark& record) { record.Rotation = degrees; }); });
    connect(position_, &PositionGroup::edited, this, &WatermarkWindowController::edit);
    return page;
}

void WatermarkWindowController::LoadWatermarkSettings() {
    const Watermark record = session_.record();
    if (text_ != nullptr) {
        if (typedText(*text_) != record.Text) text_->setPlainText(record.Text);
        style_->load(record);
    } else {
        logo_->load(record);
    }
    transparency_->load(record.Transparency);
    rotation_->load(record.Rotation);
    position_->load(record);
}

// A new logo starts with the choice of its file.
void WatermarkWindowController::showEvent(QShowEvent* event) {
    EditorDialog::showEvent(event);
    if (logo_ == nullptr || event->spontaneous() || !session_.isNew() || session_.isInList()) return;
    QTimer::singleShot(0, logo_, [logo = logo_] { logo->SelectImageWatermark(); });
}

void editText(const EditorCall& call) {
    WatermarkSession session(call, watermark_type::Text, startText);
    WatermarkWindowController(call, session).run();
}

void editLogo(const EditorCall& call) {
    WatermarkSession session(call, watermark_type::Image, startLogo);
    WatermarkWindowController(call, session).run();
}

}  // namespace zelto
