// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/tips_dialog.h"

#include "app/common/icon_label.h"
#include "app/common/my_global_instance.h"
#include "platform/preferences.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zelto {
namespace {

constexpr int IconSide = 48;
constexpr int TipCharacters = 52;  // a line

}  // namespace

TipsDialog::TipsDialog(MyGlobalInstance& shared, QWidget* parent)
    : QDialog(parent), shared_(shared), tip_(new QLabel(this)) {
    setWindowTitle(tr("Tips"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeTip(), 1);
    column->addSpacing(12);
    column->addLayout(makeButtons());
    showTip();
}

QLayout* TipsDialog::makeTip() {
    auto* icon = new IconLabel(QLatin1String("tips"), IconSide, this);
    icon->setAccessibleName(tr("Tip"));
    icon->setAlignment(Qt::AlignTop);
    auto* heading = new QLabel(tr("Did you know?"), this);
    QFont large = heading->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.3);
    heading->setFont(large);

    tip_->setWordWrap(true);
    tip_->setTextFormat(Qt::PlainText);
    tip_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    tip_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    tip_->setAccessibleName(tr("Tip"));
    // Room for the longest tip, so that the buttons stay where they are.
    const int width = tip_->fontMetrics().averageCharWidth() * TipCharacters;
    int height = 0;
    for (const QString& text : shared_.Tips) {
        tip_->setText(text);
        height = std::max(height, tip_->heightForWidth(width));
    }
    tip_->setMinimumSize(width, height);

    auto* text = new QVBoxLayout;
    text->addWidget(heading);
    text->addWidget(tip_, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(icon);
    row->addLayout(text, 1);
    return row;
}

QLayout* TipsDialog::makeButtons() {
    auto* atStart = new QCheckBox(tr("&Show tips at start-up"), this);
    atStart->setChecked(storedPreference(preference::ShowTips).value_or(false));
    auto* next = new QPushButton(tr("&Next Tip"), this);
    next->setAutoDefault(false);
    auto* close = new QPushButton(tr("&Close"), this);
    close->setDefault(true);
    close->setFocus();
    connect(atStart, &QCheckBox::toggled, this, [](bool on) { setPreference(preference::ShowTips, on); });
    connect(next, &QPushButton::clicked, this, [this] {
        shared_.nextTip();
        showTip();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addWidget(atStart);
    row->addStretch(1);
    row->addWidget(next);
    row->addWidget(close);
    return row;
}

void TipsDialog::showTip() {
    tip_->setText(shared_.GetCurrentTip(shared_.CurrentTip));
}

}  // namespace zelto
