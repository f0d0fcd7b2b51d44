// SPDX-License-Identifier: GPL-3.0-or-later
// Driving modal dialogs: finding controls by what the user reads on them, and answering what comes up while a
// dialog's own event loop runs.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace zelto {

inline QString withoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&'));
}

// The control of a class that screen readers call `name`.
template <class Control>
Control& control(const QWidget& dialog, const char* name) {
    for (Control* found : dialog.findChildren<Control*>()) {
        if (found->accessibleName() == QLatin1String(name)) return *found;
    }
    qFatal("there is no control \"%s\"", name);
}

inline QAbstractButton& button(const QWidget& dialog, const char* text) {
    for (QAbstractButton* found : dialog.findChildren<QAbstractButton*>()) {
        if (withoutMnemonic(found->text()) == QLatin1String(text)) return *found;
    }
    qFatal("there is no button \"%s\"", text);
}

inline void click(const QWidget& dialog, const char* text) {
    QAbstractButton& clicked = button(dialog, text);
    // A check box may be wider than what can be clicked of it.
    QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(10, clicked.height() / 2));
}

// Whether the user can read a text that begins so.
inline bool says(const QWidget& dialog, const QString& text) {
    const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&text](const QLabel* label) {
        return label->isVisible() && label->text().startsWith(text);
    });
}

// Selects all of a field's text and types over it.
inline void retype(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

// Calls `act` with the modal dialog of a class as soon as one is on screen.
template <class Dialog>
void onModal(std::function<void(Dialog&)> act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(5);
}

// While it lives, notes every message box that comes up and presses a button on it.
class AnsweredMessages {
  public:
    explicit AnsweredMessages(QMessageBox::StandardButton answer = QMessageBox::Ok) : answer_(answer) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { press(); });
        timer_.start(5);
    }

    void answerWith(QMessageBox::StandardButton answer) { answer_ = answer; }

    // What has come up since the last call: "title|text|button,button" each.
    QStringList take() { return std::exchange(seen_, {}); }

  private:
    void press() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) return;
        QStringList buttons;
        for (const QAbstractButton* each : box->buttons()) buttons.append(withoutMnemonic(each->text()));
        seen_.append(box->text() + QLatin1Char('|') + box->informativeText() + QLatin1Char('|') +
                     buttons.join(QLatin1Char(',')));
        QTest::mouseClick(box->button(answer_), Qt::LeftButton);
    }

    QMessageBox::StandardButton answer_;
    QStringList seen_;
    QTimer timer_;
};

}  // namespace zelto
