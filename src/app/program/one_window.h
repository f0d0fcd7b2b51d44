// SPDX-License-Identifier: GPL-3.0-or-later
// One window for everything that is opened: a start of the program hands what it was asked for to the window that is
// open already, if there is one of this user, with these preferences, on this display. They meet at a socket in the
// user's runtime folder, which nobody else may enter; who is at its other end is checked all the same.
#pragma once

#include "app/program/start_request.h"

#include <QLocalServer>
#include <QObject>

namespace zelto {

class OneWindow : public QObject {
    Q_OBJECT

  public:
    explicit OneWindow(QObject* parent = nullptr);

    // True where another window has taken the request: this process has nothing to do any more. False where it is to
    // open a window, and then asked() brings what later starts want. A window that does not answer in five seconds is
    // left alone, and so is this process: two windows are better than none.
    bool handOver(const StartRequest& request);

  Q_SIGNALS:
    void asked(const zelto::StartRequest& request);

  private:
    void receive();

    const QString place_;  // of the socket; empty where there is no folder for it
    QLocalServer server_;
};

}  // namespace zelto
