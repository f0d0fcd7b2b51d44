// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/hands.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPointer>

#include <algorithm>

namespace zelto {

QString withoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&'));
}

QWidget& findControl(const QWidget& window, const char* name,
                     const std::function<bool(const QWidget&)>& fits) {
    const QList<QWidget*> all = window.findChildren<QWidget*>();
    const auto nameOf = {
        +[](const QWidget& widget) { return widget.objectName(); },
        +[](const QWidget& widget) { return widget.accessibleName(); },
        +[](const QWidget& widget) { return withoutMnemonic(widget.property("text").toString()); },
    };
    for (const auto& isCalled : nameOf) {
        for (QWidget* widget : all) {
            if (isCalled(*widget) == QLatin1String(name) && fits(*widget)) return *widget;
        }
    }
    qFatal("there is no control \"%s\"", name);
}

QWidget& control(const QWidget& window, const char* name) {
    QWidget& found = findControl(window, name, [](const QWidget&) { return true; });
    return found.focusProxy() == nullptr ? found : *found.focusProxy();
}

QAbstractButton& button(const QWidget& window, const char* name) {
    return control<QAbstractButton>(window, name);
}

void click(const QWidget& window, const char* name) {
    QAbstractButton& clicked = button(window, name);
    EXPECT_TRUE(clicked.isEnabled()) << name;
    // A check box may be wider than what can be clicked of it.
    QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(8, clicked.height() / 2));
}

void press(const QWidget& window, const char* name, Qt::Key key) {
    control(window, name).setFocus();
    QTest::keyClick(&control(window, name), key);
}

void retype(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

void type(const QWidget& window, const char* name, const QString& text) {
    EXPECT_TRUE(control(window, name).isEnabled()) << name;
    retype(control(window, name), text);
}

void choose(const QWidget& window, const char* name, int row) {
    auto& named = control<QWidget>(window, name);
    auto* list = qobject_cast<QComboBox*>(&named);
    if (list == nullptr) list = named.findChild<QComboBox*>();
    EXPECT_TRUE(list->isEnabled()) << name;
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(list, Qt::Key_Down);
}

void pickColor(const QWidget& window, const char* name, const QColor& color, Qt::Key close) {
    click(window, name);
    const auto* panel = window.findChild<QWidget*>(QLatin1String(name) + QLatin1String("Panel"));
    ASSERT_NE(panel, nullptr) << name;
    ASSERT_TRUE(panel->isVisible()) << name;
    const QString alpha = QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
    type(*panel, "Hex", color.name() + alpha);
    QTest::keyClick(&control(*panel, "Hex"), close);
    EXPECT_FALSE(panel->isVisible()) << name;
}

bool says(const QWidget& window, const QString& text) {
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&text](const QLabel* label) {
        return label->isVisible() && label->text().startsWith(text);
    });
}

std::shared_ptr<bool> whenAnyOpened(const std::function<bool(QWidget&)>& drive) {
    auto came = std::make_shared<bool>(false);
    auto* timer = new QTimer(qApp);
    // Those that are open now; a later window may come to lie where one of them lay.
    QList<QPointer<QWidget>> before;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) before += window;
    }
    QObject::connect(timer, &QTimer::timeout, timer, [timer, came, before, drive] {
        QWidget* window = QApplication::activeModalWidget();
        for (QWidget* each : QApplication::topLevelWidgets()) {
            const bool isNewDialog = qobject_cast<QDialog*>(each) != nullptr && each->isVisible();
            if (window == nullptr && isNewDialog && !before.contains(each)) window = each;
        }
        if (window == nullptr || before.contains(window) || !window->isVisible()) return;
        timer->stop();
        timer->deleteLater();
        *came = true;
        if (drive(*window)) return;
        *came = false;
        ADD_FAILURE() << "another window came: " << window->metaObject()->className();
        window->close();
    });
    timer->start(5);
    return came;
}

AnsweredMessages::AnsweredMessages(QMessageBox::StandardButton answer) : answer_(answer) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { press(); });
    timer_.start(5);
}

void AnsweredMessages::press() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    QStringList buttons;
    for (const QAbstractButton* each : box->buttons()) buttons.append(withoutMnemonic(each->text()));
    seen_.append(box->text() + QLatin1Char('|') + box->informativeText() + QLatin1Char('|') +
                 buttons.join(QLatin1Char(',')));
    QTest::mouseClick(box->button(answer_), Qt::LeftButton);
}

}  // namespace zelto
