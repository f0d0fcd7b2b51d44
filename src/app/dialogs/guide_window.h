// SPDX-License-Identifier: GPL-3.0-or-later
// The guide: the Markdown pages that ship beside the program, with their pictures, in a window of their own that stays
// open beside the work, in the language the program speaks or else in English. It needs no network. Main thread only.
#pragma once

#include <QDialog>

class QTextBrowser;

namespace zelto {

class GuideWindow : public QDialog {
    Q_OBJECT

  public:
    explicit GuideWindow(QWidget* parent = nullptr);

    // Shows the page `name` of the guide, "index.md" for its contents.
    void showPage(const QString& name);
    QTextBrowser& page() { return *page_; }

  private:
    QTextBrowser* page_;
};

// Brings the one guide of `window` to the front, or opens it at its contents. Where the guide is not installed, the user
// is told.
void openGuide(QWidget* window);

}  // namespace zelto
