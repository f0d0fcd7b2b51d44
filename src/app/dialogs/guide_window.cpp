// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/guide_window.h"

#include "app/common/messages.h"
#include "app/dialogs/guide_page.h"
#include "platform/application_folders.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace zelto {
namespace {

QString guideFolder() {
    return resourceFolder() + QStringLiteral("/guide");
}

}  // namespace

GuideWindow::GuideWindow(QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      page_(new GuidePage(this)) {
    setWindowTitle(tr("Zelto Guide"));
    page_->setAccessibleName(tr("Page of the guide"));

    auto* back = new QPushButton(tr("&Back"), this);
    auto* forward = new QPushButton(tr("&Forward"), this);
    auto* contents = new QPushButton(tr("&Contents"), this);
    auto* close = new QPushButton(tr("C&lose"), this);
    for (QPushButton* each : {back, forward, contents, close}) each->setAutoDefault(false);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(back, &QPushButton::clicked, page_, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, page_, &QTextBrowser::forward);
    connect(contents, &QPushButton::clicked, this, [this] { showPage(QStringLiteral("index.md")); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto* row = new QHBoxLayout;
    row->addWidget(back);
    row->addWidget(forward);
    row->addWidget(contents);
    row->addStretch(1);
    row->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(page_, 1);
    column->addLayout(row);
    resize(GuidePage::MostPictureWidth + 120, 760);
    page_->setFocus();
}

void GuideWindow::showPage(const QString& name) {
    page_->setSource(QUrl::fromLocalFile(QDir(guideFolder()).filePath(name)));
}

void openGuide(QWidget* window) {
    auto* guide = window->findChild<GuideWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (guide == nullptr) {
        const QString first = QStringLiteral("index.md");
        if (!QFileInfo(QDir(guideFolder()).filePath(first)).isFile()) {
            showAlert(
                window, GuideWindow::tr("Guide"),
                GuideWindow::tr("The guide is not installed: there is no folder “%1”.").arg(guideFolder()));
            return;
        }
        guide = new GuideWindow(window);
        guide->showPage(first);
    }
    guide->show();
    guide->raise();
    guide->activateWindow();
}

}  // namespace zelto
