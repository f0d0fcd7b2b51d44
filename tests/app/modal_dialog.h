// SPDX-License-Identifier: GPL-3.0-or-later
// Driving dialogs that block whoever opened them.
#pragma once

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace zelto {

// Has `drive` work on the next modal window of class `Dialog`, as soon as it is open; to be called before it
// is opened. The result tells, later, whether it came; a window of another class is closed and fails the test.
template <class Dialog, class Drive>
std::shared_ptr<bool> whenOpened(Drive drive) {
    auto came = std::make_shared<bool>(false);
    auto* timer = new QTimer(qApp);
    const QWidgetList before = QApplication::topLevelWidgets();
    QObject::connect(timer, &QTimer::timeout, timer, [timer, came, before, drive = std::move(drive)] {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr || before.contains(window) || !window->isVisible()) return;
        timer->stop();
        timer->deleteLater();
        auto* dialog = dynamic_cast<Dialog*>(window);
        if (dialog == nullptr) {
            ADD_FAILURE() << "another window came: " << window->metaObject()->className();
            window->close();
            return;
        }
        *came = true;
        drive(*dialog);
    });
    timer->start(5);
    return came;
}

}  // namespace zelto
