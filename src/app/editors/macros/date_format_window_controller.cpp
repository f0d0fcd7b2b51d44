// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/macros/date_format_window_controller.h"

#include "macros/date_format.h"
#include "platform/dates.h"
#include "platform/preferences.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include <utility>

namespace zelto {
namespace {

constexpr QLatin1String CommonFormats[] = {
    DefaultDateFormat,           QLatin1String("Y-M-D"), QLatin1String("D.M.Y"),     QLatin1String("M/D/Y"),
    QLatin1String("DD, D MM Y"), QLatin1String("MM Y"),  QLatin1String("D MM Y H:N")};

QComboBox* makeFormatField(QWidget* parent) {
    auto* field = new QComboBox(parent);
    field->setObjectName(QStringLiteral("DateFormat"));
    field->setEditable(true);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->setCompleter(nullptr);
    for (const QLatin1String format : CommonFormats) field->addItem(format);
    // Brackets end a format, angle brackets a macro.
    static const QRegularExpression allowed(QStringLiteral(R"([^\[\]<>]*)"));
    field->setValidator(new QRegularExpressionValidator(allowed, field));
    field->setEditText(storedPreference(preference::LastDateFormat).value_or(DefaultDateFormat));
    field->lineEdit()->selectAll();
    return field;
}

}  // namespace

DateFormatWindowControlller::DateFormatWindowControlller(QString macroName, const QDateTime& now,
                                                         QWidget* parent)
    : QDialog(parent),
      macroName_(std::move(macroName)),
      now_(now),
      locale_(userDateLocale()),
      dateFormat_(makeFormatField(this)),
      dateFormatSample_(new QLabel(this)) {
    setWindowTitle(tr("Date Format"));
    dateFormatSample_->setObjectName(QStringLiteral("DateFormatSample"));
    dateFormatSample_->setTextFormat(Qt::PlainText);
    QFont bold = dateFormatSample_->font();
    bold.setBold(true);
    dateFormatSample_->setFont(bold);

    auto* form = new QFormLayout;
    form->addRow(tr("&Format:"), dateFormat_);
    form->addRow(tr("Sample:"), dateFormatSample_);

    auto* legend = new QGroupBox(tr("Letters of a format"), this);
    auto* grid = new QGridLayout(legend);
    const QStringList lines = dateFormatLegend(now_, locale_);
    const auto half = static_cast<int>(lines.size() / 2);
    for (int i = 0; i < lines.size(); ++i) {
        legend_ += new QLabel(lines[i], legend);
        legend_.last()->setTextFormat(Qt::PlainText);
        grid->addWidget(legend_.last(), i % half, i / half);
    }

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("&Insert"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &DateFormatWindowControlller::SetMacroandClose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* rows = new QVBoxLayout(this);
    rows->addLayout(form);
    rows->addWidget(legend);
    rows->addStretch();
    rows->addWidget(buttons);

    connect(dateFormat_, &QComboBox::editTextChanged, this, &DateFormatWindowControlller::GetDatePreview);
    GetDatePreview();
}

void DateFormatWindowControlller::GetDatePreview() {
    dateFormatSample_->setText(dateMacroText(macroName_, dateFormat_->currentText(), now_, locale_));
}

void DateFormatWindowControlller::SetMacroandClose() {
    const QString format = dateFormat_->currentText();
    macroName_ = macroWithDateFormat(macroName_, format);
    setPreference(preference::LastDateFormat, format);
    flushPreferences();
    accept();
}

}  // namespace zelto
