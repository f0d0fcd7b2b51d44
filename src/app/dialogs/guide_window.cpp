// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/guide_window.h"

#include "app/common/messages.h"
#include "app/dialogs/guide_page.h"
#include "platform/application_folders.h"
#include "platform/languages.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace zelto {
namespace {

const QString FirstPage = QStringLiteral("index.md");

// In the language spoken, or in English where there is no edition in it.
QString guideFolder() {
    const QString english = resourceFolder() + QStringLiteral("/guide");
    const QString own = english + QLatin1Char('/') + spokenLanguage();
    return QFileInfo(QDir(own).filePath(FirstPage)).isFile() ? own : english;
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
    connect(contents, &QPushButton::clicked, this, [this] { showPage(FirstPage); });
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
    constexpr int FrameAndTitle = 100;
    const QSize room = screen()->availableSize() - QSize(0, FrameAndTitle);
    resize(QSize(GuidePage::MostPictureWidth + 120, 760).boundedTo(room));
    page_->setFocus();
}

void GuideWindow::showPage(const QString& name) {
    page_->setSource(QUrl::fromLocalFile(QDir(guideFolder()).filePath(name)));
}

void openGuide(QWidget* window) {
    auto* guide = window->findChild<GuideWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (guide == nullptr) {
        if (!QFileInfo(QDir(guideFolder()).filePath(FirstPage)).isFile()) {
            showAlert(
                window, GuideWindow::tr("Guide"),
                GuideWindow::tr("The guide is not installed: there is no folder “%1”.").arg(guideFolder()));
            return;
        }
        guide = new GuideWindow(window);
        guide->showPage(FirstPage);
    }
    guide->show();
    guide->raise();
    guide->activateWindow();
}

}  // namespace zelto
