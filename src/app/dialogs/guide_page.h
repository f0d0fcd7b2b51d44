// SPDX-License-Identifier: GPL-3.0-or-later
// A page of the guide as it is read: its pictures no wider than its text and sharp on every screen; addresses of the web
// go to the user's browser. Main thread only.
#pragma once

#include <QTextBrowser>

namespace zelto {

class GuidePage : public QTextBrowser {
    Q_OBJECT

  public:
    static constexpr int MostPictureWidth = 760;

    explicit GuidePage(QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
};

}  // namespace zelto
