// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/qr_code_editor.h"

#include "app/common/in_background.h"
#include "app/common/newest_worker.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/photo_reference.h"
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/size_field.h"
#include "app/editors/controls/typed_text.h"
#include "app/editors/macros/macro_controller.h"
#include "app/editors/qr_rules.h"
#include "macros/photo_macros.h"
#include "platform/dates.h"
#include "render/qr_code.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace zelto {
namespace {

class QrCodeEditor : public RecordPanel {
    Q_DECLARE_TR_FUNCTIONS(zelto::QrCodeEditor)

  public:
    QrCodeEditor(const EditorCall& call, WatermarkSession& session);

  private:
    QWidget* makeContent();
    QLayout* makeJudgement(QWidget* box);
    QWidget* makeLook();
    void openMacros();
    std::function<void(const Watermark&)> judge();
    void say(const QrJudgement& judgement);

    const QString photoPath_;
    const qint64 photoRow_;
    const QSizeF reference_;
    TypedText* text_ = nullptr;
    QLabel* judgementIcon_ = nullptr;
    QLabel* judgement_ = nullptr;
    // Reading the photo for its macros and judging a code take longer than a keystroke may.
    NewestWorker<Watermark> judge_;
};

QrCodeEditor::QrCodeEditor(const EditorCall& call, WatermarkSession& session)
    : RecordPanel(QStringLiteral("QrCodeEditor"), tr("QR Code"), session),
      photoPath_(call.photoPath),
      photoRow_(call.photoRow),
      reference_(photoReference(call)),
      judge_(judge()) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeContent(), 1);
    column->addWidget(makeLook());
    column->addWidget(new PositionGroup(binder(), PositionGroup::Tiling::None, this));
    binder().follow([this](const Watermark& record) { judge_.post(record); });
    setFocusProxy(text_);
}

// For the worker's thread: judges the record it is given and has the panel say so.
std::function<void(const Watermark&)> QrCodeEditor::judge() {
    return [self = QPointer(this), path = photoPath_, row = photoRow_, reference = reference_,
            macros = std::optional<MacroContext>()](const Watermark& code) mutable {
        if (!macros) macros = photoMacroContext(path, row, QDateTime::currentDateTime(), userDateLocale());
        const QrJudgement judgement(ParseMacros(code.Text, *macros).text, qrSide(code, reference), reference,
                                    code.ShadowColor);
        answerOnMainThread(self, [self, judgement] { self->say(judgement); });
    };
}

QWidget* QrCodeEditor::makeContent() {
    auto* box = new QGroupBox(tr("Content"), this);
    text_ = new TypedText(box);
    text_->setObjectName(QStringLiteral("Text"));
    text_->setAccessibleName(tr("Content of the code"));
    text_->setPlaceholderText(tr("https://www.example.com"));
    text_->setMinimumHeight(3 * text_->fontMetrics().lineSpacing());
    binder().bind(text_, &Watermark::Text);
    auto* column = new QVBoxLayout(box);
    column->addWidget(text_, 1);
    column->addLayout(makeJudgement(box));
    return box;
}

QLayout* QrCodeEditor::makeJudgement(QWidget* box) {
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
    return row;
}

QWidget* QrCodeEditor::makeLook() {
    auto* box = new QGroupBox(tr("Look"), this);
    auto* size = new SizeField(tr("% of photo width"), reference_.width(), box);
    size->setObjectName(QStringLiteral("Size"));
    binder().bind(
        size,
        [](const Watermark& record) {
            return Length{record.ResizeWidth, record.ResizeFormat == qr_resize::Relative};
        },
        [](Watermark& record, const Length& length) {
            record.ResizeFormat = length.isRelative ? qr_resize::Relative : qr_resize::Absolute;
            record.ResizebyWidth = record.ResizebyWidth || length.isRelative;
            record.ResizeWidth = static_cast<float>(length.value);
        });
    auto* form = new QFormLayout(box);
    addRow(*form, tr("&Size:"), size);
    auto* hasBackground = new QCheckBox(tr("&Background:"), box);
    hasBackground->setObjectName(QStringLiteral("HasBackground"));
    auto* background = new ColorWell(tr("Background of the code"), box);
    background->setObjectName(QStringLiteral("ShadowColor"));
    binder().bind(background, &Watermark::ShadowColor);
    // The colour that switching the background on again brings back.
    const auto last = std::make_shared<Color>(Color::white());
    binder().bind(
        hasBackground, [](const Watermark& record) { return record.ShadowColor.has_value(); },
        [last](Watermark& record, bool on) {
            record.ShadowColor = on ? std::optional(*last) : std::nullopt;
        });
    binder().follow([=](const Watermark& record) {
        if (record.ShadowColor) *last = *record.ShadowColor;
        background->setEnabled(record.ShadowColor.has_value());
    });
    form->addRow(hasBackground, background);
    return box;
}

void QrCodeEditor::openMacros() {
    auto* dialog = new RememberedDialog(QStringLiteral("QrCodeMacros"), tr("Macros"), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(dialog);
    column->addWidget(new MacroController(photoPath_, photoRow_, *text_, dialog));
    dialog->open();
}

void QrCodeEditor::say(const QrJudgement& judgement) {
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
    runEditor(call, session, new QrCodeEditor(call, session));
}

}  // namespace zelto
