// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/rename_panel.h"

#include "batch/rename_pattern.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace zelto {

RenamePanel::RenamePanel(QWidget* parent)
    : QGroupBox(tr("Re&name photos"), parent), pattern_(new QLineEdit(this)), macros_(new QMenu(this)) {
    setCheckable(true);
    auto* label = new QLabel(tr("Name patte&rn:"), this);
    label->setBuddy(pattern_);
    pattern_->setAccessibleName(tr("Name pattern"));
    for (const Macro& macro : renameMacros()) {
        QAction* action = macros_->addAction(macro.MacroName + QLatin1Char('\t') + macro.MacroText);
        connect(action, &QAction::triggered, this,
                [this, name = macro.MacroName] { SetOutputNameFormat(name); });
    }
    auto* insert = new QPushButton(tr("&Insert"), this);
    insert->setAutoDefault(false);
    insert->setMenu(macros_);
    insert->setAccessibleName(tr("Insert a macro"));

    auto* row = new QHBoxLayout(this);
    row->addWidget(label);
    row->addWidget(pattern_, 1);
    row->addWidget(insert);
    connect(this, &QGroupBox::toggled, this, &RenamePanel::changed);
    connect(pattern_, &QLineEdit::textChanged, this, &RenamePanel::changed);
}

void RenamePanel::SetOutputNameFormat(const QString& macro) {
    pattern_->insert(macro);
    pattern_->setFocus();
}

void RenamePanel::load(const OutputOptions& options) {
    setChecked(options.Rename);
    pattern_->setText(options.RenameFormat);
}

void RenamePanel::store(OutputOptions& options) const {
    options.Rename = isChecked();
    options.RenameFormat = pattern_->text();
}

}  // namespace zelto
