// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/qr_code_editor.h"

#include "app/common/in_background.h"
#include "app/common/newest_worker.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/controls/position_group.h"
#include "app/editors/controls/size_field.h"
#include "app/editors/controls/starting_place.h"
#include "app/editors/controls/typed_text.h"
#include "app/editors/controls/watermark_page.h"
#include "app/editors/macros/macro_controller.h"
#include "app/editors/qr_rules.h"
#include "macros/photo_macros.h"
#include "platform/dates.h"
#include "render/qr_code.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStyle>
#include <QVBoxLayout>

namespace zelto {
namespace {

// What a code is judged by.
struct Judged {
    Watermark code;
    SelectedPhoto photo;
    QSizeF reference;
};

class QrCodeEditor : public WatermarkPage {
    Q_DECLARE_TR_FUNCTIONS(zelto::QrCodeEditor)

  public:
    explicit QrCodeEditor(WatermarkController& controller);

    void showFor(const SelectedPhoto& photo) override;

  protected:
    void showReference(QSizeF reference) override;

  private:
    QWidget* makeContent();
    QLayout* makeJudgement(QWidget* box);
    QWidget* makeLook();
    void askForJudgement(const Watermark& code);
    std::function<void(const Judged&)> judge();
    void say(const QrJudgement& judgement);

    TypedText* text_ = nullptr;
    MacroController* macros_ = nullptr;
    SizeField* size_ = nullptr;
    QLabel* judgementIcon_ = nullptr;
    QLabel* judgement_ = nullptr;
    QSizeF reference_;
    // Reading the photo for its macros and judging a code take longer than a keystroke may.
    NewestWorker<Judged> judge_;
};

QrCodeEditor::QrCodeEditor(WatermarkController& controller)
    : WatermarkPage(QStringLiteral("QrCodeEditor"), tr("QR Code"), controller), judge_(judge()) {
    addGroup(QStringLiteral("Content"), tr("Content")).setContent(makeContent());
    addGroup(QStringLiteral("Look"), tr("Look")).setContent(makeLook());
    addGroup(QStringLiteral("Place"), tr("Place")).setContent(new PositionGroup(binder(), this));
    binder().follow([this](const Watermark& record) { askForJudgement(record); });
    setFocusProxy(text_);
}

void QrCodeEditor::showFor(const SelectedPhoto& photo) {
    WatermarkPage::showFor(photo);
    macros_->showFor(photo);
}

void QrCodeEditor::showReference(QSizeF reference) {
    reference_ = reference;
    size_->setReference(reference.width());
    askForJudgement(value());
}

void QrCodeEditor::askForJudgement(const Watermark& code) {
    judge_.post({code, photo(), reference_});
}

// For the worker's thread: judges the record it is given and has the page say so.
std::function<void(const Judged&)> QrCodeEditor::judge() {
    return [self = QPointer(this), of = std::optional<SelectedPhoto>(),
            macros = MacroContext()](const Judged& judged) mutable {
        if (of != judged.photo) {
            macros = photoMacroContext(judged.photo.path, judged.photo.row, QDateTime::currentDateTime(),
                                       userDateLocale());
            of = judged.photo;
        }
        const QrJudgement judgement(ParseMacros(judged.code.Text, macros).text,
                                    qrSide(judged.code, judged.reference), judged.reference,
                                    judged.code.ShadowColor);
        answerOnMainThread(self, [self, judgement] { self->say(judgement); });
    };
}

QWidget* QrCodeEditor::makeContent() {
    auto* box = new QWidget(this);
    text_ = new TypedText(box);
    text_->setObjectName(QStringLiteral("Text"));
    text_->setAccessibleName(tr("Content of the code"));
    text_->setPlaceholderText(tr("https://www.example.com"));
    text_->setFixedHeight(text_->fontMetrics().lineSpacing() * 3 + 2 * text_->frameWidth() + 8);
    binder().bind(text_, &Watermark::Text);
    QLayout* judgement = makeJudgement(box);
    auto* macros = new FoldGroup(QStringLiteral("Macros"), tr("Macros"), FoldGroup::AtFirst::Folded, box);
    macros_ = new MacroController(*text_, box);
    macros->setContent(macros_);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text_);
    column->addLayout(judgement);
    column->addWidget(macros);
    return box;
}

QLayout* QrCodeEditor::makeJudgement(QWidget* box) {
    judgementIcon_ = new QLabel(box);
    judgementIcon_->setAccessibleName(tr("Note"));
    judgement_ = new QLabel(box);
    judgement_->setObjectName(QStringLiteral("Judgement"));
    judgement_->setWordWrap(true);
    judgement_->setMinimumHeight(2 * judgement_->fontMetrics().lineSpacing());
    auto* row = new QHBoxLayout;
    row->addWidget(judgementIcon_);
    row->addWidget(judgement_, 1);
    return row;
}

QWidget* QrCodeEditor::makeLook() {
    auto* box = new QWidget(this);
    size_ = new SizeField(tr("% of photo width"), box);
    size_->setObjectName(QStringLiteral("Size"));
    binder().bind(
        size_,
        [](const Watermark& record) {
            return Length{record.ResizeWidth, record.ResizeFormat == qr_resize::Relative};
        },
        [](Watermark& record, const Length& length) {
            record.ResizeFormat = length.isRelative ? qr_resize::Relative : qr_resize::Absolute;
            record.ResizebyWidth = record.ResizebyWidth || length.isRelative;
            record.ResizeWidth = static_cast<float>(length.value);
        });
    auto* form = new QFormLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    addRow(*form, tr("Size:"), size_);
    auto* hasBackground = new QCheckBox(tr("Background:"), box);
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

void QrCodeEditor::say(const QrJudgement& judgement) {
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    judgementIcon_->setAccessibleName(judgement.isProblem() ? tr("Warning") : tr("Note"));
    judgementIcon_->setPixmap(style()
                                  ->standardIcon(judgement.isProblem() ? QStyle::SP_MessageBoxWarning
                                                                       : QStyle::SP_MessageBoxInformation)
                                  .pixmap(side));
    judgement_->setText(judgement.message());
}

void addQrCode(const EditorCall& call) {
    Watermark record = WatermarkController::startingWatermark(watermark_type::QrCode);
    record.Text = QStringLiteral("https://www.example.com");
    placeWhereSeen(record, call);
    call.put(record);
}

}  // namespace

Editor qrCodeEditor() {
    return {[](WatermarkController& controller) { return new QrCodeEditor(controller); }, addQrCode};
}

}  // namespace zelto
