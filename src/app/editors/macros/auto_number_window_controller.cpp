// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/macros/auto_number_window_controller.h"

#include "macros/auto_number.h"
#include "platform/preferences.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace zelto {
namespace {

qint64 lastAutoNumber() {
    return storedPreference(preference::LastAutoNumber).value_or(0);
}

// A field for a whole number. A minus sign can be typed, but no number below 1 stays.
QLineEdit* makeField(const QString& name, const QString& text, QWidget* parent) {
    auto* field = new QLineEdit(text, parent);
    static const QRegularExpression wholeNumber(QStringLiteral("-?[0-9]{0,18}"));
    field->setValidator(new QRegularExpressionValidator(wholeNumber, field));
    field->setObjectName(name);
    return field;
}

}  // namespace

AutoNumberWindowController::AutoNumberWindowController(QWidget* parent)
    : QDialog(parent),
      txtDigits_(makeField(QStringLiteral("txtDigits"), AutoNumberFields().digits, this)),
      txtStartingNumber_(makeField(QStringLiteral("txtStartingNumber"), AutoNumberFields().start, this)),
      txtIncrement_(makeField(QStringLiteral("txtIncrement"), AutoNumberFields().increment, this)),
      chkContinue_(new QCheckBox(this)),
      lblMacro_(new QLabel(this)),
      sample_(new QLabel(this)) {
    setWindowTitle(tr("Auto Number"));
    const qint64 last = lastAutoNumber();
    chkContinue_->setText(last > 0 ? tr("&Continue after the last number used, %1").arg(last)
                                   : tr("&Continue after the last number used"));
    chkContinue_->setObjectName(QStringLiteral("chkContinue"));
    lblMacro_->setObjectName(QStringLiteral("lblMacro"));
    lblMacro_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblMacro_->setTextFormat(Qt::PlainText);

    auto* fields = new QFormLayout;
    fields->addRow(tr("Number of &digits:"), txtDigits_);
    fields->addRow(tr("&Starting number:"), txtStartingNumber_);
    fields->addRow(QString(), chkContinue_);
    fields->addRow(tr("I&ncrement:"), txtIncrement_);
    fields->addRow(tr("First photos:"), sample_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    btnInsertMacro_ = buttons->addButton(tr("&Insert"), QDialogButtonBox::AcceptRole);
    btnInsertMacro_->setObjectName(QStringLiteral("btnInsertMacro"));
    btnInsertMacro_->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* rows = new QVBoxLayout(this);
    rows->addLayout(fields);
    rows->addWidget(lblMacro_);
    rows->addStretch();
    rows->addWidget(buttons);

    for (QLineEdit* field : {txtDigits_, txtStartingNumber_, txtIncrement_}) {
        connect(field, &QLineEdit::textChanged, this, [this, field] { fieldDidChange(*field); });
    }
    connect(chkContinue_, &QCheckBox::toggled, this, &AutoNumberWindowController::ContinueLastNumber);
    GenerateAutoMacro();
    txtDigits_->selectAll();
}

void AutoNumberWindowController::fieldDidChange(QLineEdit& field) {
    QString corrected = autoNumberField(field.text());
    if (&field == txtDigits_ && corrected.toLongLong() > MaximumAutoDigits) {
        corrected = QString::number(MaximumAutoDigits);
    }
    if (corrected != field.text()) {
        field.setText(corrected);
        // What is typed next replaces a number that nobody has typed.
        field.selectAll();
    }
    GenerateAutoMacro();
}

void AutoNumberWindowController::GenerateAutoMacro() {
    macroName_ =
        zelto::GenerateAutoMacro({txtDigits_->text(), txtStartingNumber_->text(), txtIncrement_->text()});
    lblMacro_->setText(autoMacroLabel(macroName_));
    QStringList numbers;
    for (int row = 0; row < 3; ++row) numbers += autoNumberAt(macroName_, row).text;
    sample_->setText(numbers.join(QStringLiteral(", ")) + QStringLiteral(" …"));
}

void AutoNumberWindowController::ContinueLastNumber(bool on) {
    txtStartingNumber_->setText(zelto::ContinueLastNumber(on, lastAutoNumber()));
    GenerateAutoMacro();
}

}  // namespace zelto
