// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/result_bar.h"

#include "app/common/elided_label.h"
#include "app/common/hearing.h"
#include "app/common/icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

namespace zelto {

ResultBar::ResultBar(QWidget* parent)
    : QWidget(parent),
      sign_(new QLabel(this)),
      counts_(new QLabel(this)),
      message_(new ElidedLabel(this, Qt::ElideRight)),
      show_(new QPushButton(tr("&Show"), this)),
      retry_(new QPushButton(tr("Retr&y Failed"), this)),
      open_(new QPushButton(this)) {
    QFont bold = counts_->font();
    bold.setBold(true);
    counts_->setFont(bold);
    counts_->setTextFormat(Qt::PlainText);
    show_->setToolTip(tr("Show only the photos that failed or were written with warnings"));
    retry_->setToolTip(tr("Run once more for the photos that failed, with the same options"));
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("✕"));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close (Escape)"));
    close->setAccessibleName(tr("Close the summary"));
    auto* escape = new QShortcut(Qt::Key_Escape, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 10, 6);
    row->addWidget(sign_);
    row->addWidget(counts_);
    row->addWidget(message_, 1);
    for (QPushButton* button : {show_, retry_, open_}) row->addWidget(button);
    row->addWidget(close);
    connect(show_, &QPushButton::clicked, this, &ResultBar::showTroubles);
    connect(retry_, &QPushButton::clicked, this, &ResultBar::retryFailed);
    connect(open_, &QPushButton::clicked, this, &ResultBar::openResults);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(escape, &QShortcut::activated, this, &QWidget::hide);
    hide();
}

void ResultBar::tell(const RunResult& result) {
    constexpr int SignSide = 18;
    const char* sign = result.failed > 0 ? "failed" : result.warned > 0 ? "warning" : "written";
    sign_->setPixmap(colorIcon(QLatin1String(sign)).pixmap(QSize(SignSide, SignSide), devicePixelRatioF()));
    counts_->setText(result.counts);
    QString line = result.message;
    message_->setText(line.replace(QLatin1Char('\n'), QLatin1String(". ")));
    show_->setVisible(result.failed + result.warned > 0);
    retry_->setVisible(result.failed > 0);
    open_->setText(result.open);
    open_->setVisible(!result.open.isEmpty());
    setAccessibleDescription(result.message + QStringLiteral("\n\n") + result.counts);
    announce(*this, tr("Result of the run: %1").arg(result.counts));
    show();
}

}  // namespace zelto
