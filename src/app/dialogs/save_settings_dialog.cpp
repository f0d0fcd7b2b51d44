// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/save_settings_dialog.h"

#include "app/common/messages.h"
#include "platform/words.h"

#include <QCompleter>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zelto {

SaveSettingsDialog::SaveSettingsDialog(const SettingsLibrary& library, QWidget* parent)
    : QDialog(parent), library_(library), name_(new QLineEdit(this)), problem_(new QLabel(this)) {
    setWindowTitle(tr("Save Setting"));
    auto* label = new QLabel(tr("&Name of the setting:"), this);
    label->setBuddy(name_);
    auto* completer = new QCompleter(library_.names().value_or(QStringList()), this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    name_->setCompleter(completer);
    name_->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    name_->setAccessibleName(tr("Name of the setting"));
    problem_->setWordWrap(true);
    problem_->setTextFormat(Qt::PlainText);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    save_ = buttons->button(QDialogButtonBox::Save);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(name_);
    column->addWidget(problem_);
    column->addStretch(1);
    column->addWidget(buttons);
    connect(name_, &QLineEdit::textChanged, this, &SaveSettingsDialog::checkName);
    connect(buttons, &QDialogButtonBox::accepted, this, &SaveSettingsDialog::GetSettingNameandClose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    checkName();
}

void SaveSettingsDialog::checkName() {
    const QString name = name_->text();
    const Result<QString> path = library_.path(name);
    save_->setEnabled(path.has_value());
    if (name.isEmpty()) {
        problem_->setText(tr("Saved settings hold the watermarks, the filter and the border."));
    } else if (!path) {
        problem_->setText(path.error().message);
    } else {
        problem_->setText(library_.contains(name) ? tr("There is a setting of this name.") : QString());
    }
}

void SaveSettingsDialog::GetSettingNameandClose() {
    const Result<QString> path = library_.path(name_->text());
    if (!path) return;
    if (library_.contains(name_->text()) && !confirm(this, Words::tr("A Setting with the same name Exists."),
                                                     Words::tr("Do You want to OverWrite it?"))) {
        return;
    }
    path_ = *path;
    accept();
}

}  // namespace zelto
