// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/qr_code_editor.h"

#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/photo_reference.h"
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/size_field.h"
#include "app/editors/macros/macro_controller.h"
#include "app/editors/qr_rules.h"
#include "macros/macro_expander.h"
#include "render/qr_code.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace zelto {
namespace {

// A pause in typing after which the code is judged: that takes longer than a keystroke may.
constexpr int JudgeAfter = 150;  // milliseconds

class QrCodeEditor : public EditorDialog {
    Q_DECLARE_TR_FUNCTIONS(zelto::QrCodeEditor)

  public:
    QrCodeEditor(const EditorCall& call, WatermarkSession& session);

  protected:
    void load() override;

  private:
    QWidget* makeContent();
    QWidget* makeLook();
    void openMacros();
    void judge();

    WatermarkSession& session_;
    RecordBinder<Watermark> binder_;
    const QSizeF reference_;
    const MacroContext macros_;  // of the selected photo
    QPlainTextEdit* text_ = nullptr;
    QLabel* judgementIcon_ = nullptr;
    QLabel* judgement_ = nullptr;
    SizeField* size_ = nullptr;
    QCheckBox* hasBackground_ = nullptr;
    ColorWell* background_ = nullptr;
    PositionGroup* position_ = nullptr;
    QTimer judgeSoon_;
    Color lastBackground_ = Color::white();
};

QrCodeEditor::QrCodeEditor(const EditorCall& call, WatermarkSession& session)
    : EditorDialog(call, session, QStringLiteral("QrCodeEditor"), tr("QR Code")),
      session_(session),
      binder_([&session](const WatermarkEdit& edit) { session.edit(edit); }),
      reference_(photoReference(call)),
      macros_({.photoPath = call.photoPath,
               .pixelSize = reference_.toSize(),
               .pointSize = reference_,
               .row = call.photoRow,
               .listSize = call.photoRow + 1,
               .now = QDateTime::currentDateTime(),
               .locale = {},
               .properties = std::make_shared<LazyImageProperties>(call.photoPath)}) {
    judgeSoon_.setSingleShot(true);
    judgeSoon_.setInterval(JudgeAfter);
    connect(&judgeSoon_, &QTimer::timeout, this, &QrCodeEditor::judge);
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeContent(), 1);
    column->addWidget(makeLook());
    position_ = new PositionGroup(PositionGroup::Tiling::None, this);
    connect(position_, &PositionGroup::edited, &session_, &WatermarkSession::edit);
    column->addWidget(position_);
    setContent(content);
    judge();
}

QWidget* QrCodeEditor::makeContent() {
    auto* box = new QGroupBox(tr("Content"), this);
    text_ = new QPlainTextEdit(box);
    text_->setObjectName(QStringLiteral("Text"));
    text_->setAccessibleName(tr("Content of the code"));
    text_->setPlaceholderText(tr("https://www.example.com"));
    text_->setTabChangesFocus(true);
    text_->setMinimumHeight(3 * text_->fontMetrics().lineSpacing());
    connect(text_, &QPlainTextEdit::textChanged, this,
            [this] { session_.edit([this](Watermark& record) { record.Text = text_->toPlainText(); }); });

    judgementIcon_ = new QLabel(box);
    judgement_ = new QLabel(box);
    judgement_->setObjectName(QStringLiteral("Judgement"));
    judgement_->setWordWrap(true);
    judgement_->setMinimumHeight(2 * judgement_->fontMetrics().lineSpacing());
    auto* macros = new QPushButton(tr("&Macros..."), box);
    macros->setObjectName(QStringLiteral("Macros"));
    macros->setToolTip(tr("Insert what differs from photo to photo, such as its name"));
    macros->setAutoDefault(false);
    connect(macros, &QPushButton::clicked, this, &QrCodeEditor::openMacros);
    auto* row = new QHBoxLayout;
    row->addWidget(judgementIcon_);
    row->addWidget(judgement_, 1);
    row->addWidget(macros);

    auto* column = new QVBoxLayout(box);
    column->addWidget(text_, 1);
    column->addLayout(row);
    return box;
}

QWidget* QrCodeEditor::makeLook() {
    auto* box = new QGroupBox(tr("Look"), this);
    size_ = new SizeField(tr("% of photo width"), reference_.width(), box);
    size_->setObjectName(QStringLiteral("Size"));
    connect(size_, &SizeField::sizeChosen, this, [this](double length, bool isRelative) {
        session_.edit([=](Watermark& record) {
            record.ResizeFormat = isRelative ? 0 : 1;
            record.ResizebyWidth = record.ResizebyWidth || isRelative;
            record.ResizeWidth = static_cast<float>(length);
        });
    });

    hasBackground_ = new QCheckBox(tr("&Background:"), box);
    hasBackground_->setObjectName(QStringLiteral("HasBackground"));
    background_ = new ColorWell(tr("Background of the code"), box);
    background_->setObjectName(QStringLiteral("ShadowColor"));
    binder_.bind(background_, &Watermark::ShadowColor);
    connect(hasBackground_, &QCheckBox::clicked, this, [this](bool on) {
        session_.edit([on, color = lastBackground_](Watermark& record) {
            record.ShadowColor = on ? std::optional(color) : std::nullopt;
        });
    });

    auto* form = new QFormLayout(box);
    addRow(*form, tr("&Size:"), size_);
    form->addRow(hasBackground_, background_);
    return box;
}

void QrCodeEditor::openMacros() {
    auto* dialog = new RememberedDialog(QStringLiteral("QrCodeMacros"), tr("Macros"), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(dialog);
    column->addWidget(new MacroController(macros_.photoPath, macros_.row, *text_, dialog));
    dialog->open();
}

void QrCodeEditor::load() {
    const Watermark record = session_.record();
    binder_.load(record);
    if (text_->toPlainText() != record.Text) {
        const QSignalBlocker quiet(text_);
        text_->setPlainText(record.Text);
    }
    size_->load(record.ResizeWidth, record.ResizeFormat == 0);
    if (record.ShadowColor) lastBackground_ = *record.ShadowColor;
    hasBackground_->setChecked(record.ShadowColor.has_value());
    background_->setEnabled(record.ShadowColor.has_value());
    position_->load(record);
    judgeSoon_.start();
}

void QrCodeEditor::judge() {
    const Watermark record = session_.record();
    const QrJudgement judgement(ParseMacros(record.Text, macros_).text, qrSide(record, reference_),
                                reference_, record.ShadowColor);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    judgementIcon_->setPixmap(style()
                                  ->standardIcon(judgement.isProblem() ? QStyle::SP_MessageBoxWarning
                                                                       : QStyle::SP_MessageBoxInformation)
                                  .pixmap(side));
    judgement_->setText(judgement.message());
}

}  // namespace

void editQrCode(const EditorCall& call) {
    WatermarkSession session(call, watermark_type::QrCode);
    QrCodeEditor(call, session).run();
}

}  // namespace zelto
