// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/messages.h"

#include "app/common/icons.h"
#include "platform/words.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace zelto {
namespace {

// The role decides where a platform puts a button.
QMessageBox::ButtonRole roleOf(const MessageSheet& message, int button) {
    if (button == message.onEscape && message.buttons.size() > 1) return QMessageBox::RejectRole;
    return button == 0 ? QMessageBox::AcceptRole : QMessageBox::ActionRole;
}

struct IconRow {
    QMessageBox::Icon icon;
    const char* themed;
    const char* own;
};
constexpr std::array Icons = {
    IconRow{QMessageBox::Information, "dialog-information", "information"},
    IconRow{QMessageBox::Question, "dialog-question", "question"},
    IconRow{QMessageBox::Warning, "dialog-warning", "warning"},
};

// The desktop's, and where it has none, one drawn for this program.
QPixmap iconPixmap(const QMessageBox& box, QMessageBox::Icon icon) {
    const auto* row =
        std::find_if(Icons.begin(), Icons.end(), [icon](const IconRow& each) { return each.icon == icon; });
    if (row == Icons.end()) return {};
    const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    return QIcon::fromTheme(QLatin1String(row->themed), colorIcon(QLatin1String(row->own)))
        .pixmap(QSize(side, side), box.devicePixelRatioF());
}

// Gives a message box its words and its icon: the title stands out, the text has room for a sentence.
void dressMessage(QMessageBox& box, QMessageBox::Icon icon, const QString& title, const QString& text) {
    constexpr int LineCharacters = 56;
    box.setIconPixmap(iconPixmap(box, icon));
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(title);
    box.setInformativeText(text);
    if (auto* heading = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
    }
    if (auto* body = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        body->setTextFormat(Qt::PlainText);
        const QFontMetrics metrics = body->fontMetrics();
        body->setMinimumWidth(std::min(metrics.boundingRect(QRect(), Qt::TextExpandTabs, text).width(),
                                       metrics.averageCharWidth() * LineCharacters));
    }
}

int show(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton onEnter) {
    QMessageBox box(parent);
    dressMessage(box, icon, title, text);
    box.setStandardButtons(buttons);
    box.setDefaultButton(onEnter);
    return box.exec();
}

}  // namespace

void showAlert(QWidget* parent, const QString& title, const QString& text) {
    show(parent, QMessageBox::Warning, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

void showMessage(QWidget* parent, const QString& title, const QString& text) {
    show(parent, QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool confirm(QWidget* parent, const QString& title, const QString& text) {
    return show(parent, QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel,
                QMessageBox::Cancel) == QMessageBox::Ok;
}

QMessageBox* openMessageSheet(QWidget* window, const MessageSheet& message,
                              std::function<void(int button)> answered) {
    auto* box = new QMessageBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    dressMessage(*box, message.icon, message.title, message.text);
    std::vector<QAbstractButton*> buttons;
    const QStringList texts = message.buttons.isEmpty() ? QStringList(Words::tr("OK")) : message.buttons;
    for (const QString& text : texts) {
        const int place = static_cast<int>(buttons.size());
        QPushButton* button = box->addButton(text, roleOf(message, place));
        if (place == message.onEnter) box->setDefaultButton(button);
        if (place == message.onEscape) box->setEscapeButton(button);
        buttons.push_back(button);
    }
    QObject::connect(box, &QMessageBox::finished, window,
                     [box, buttons, onEscape = message.onEscape, answered = std::move(answered)] {
                         int answer = onEscape;
                         for (std::size_t i = 0; i < buttons.size(); ++i) {
                             if (buttons[i] == box->clickedButton()) answer = static_cast<int>(i);
                         }
                         answered(answer);
                     });
    box->open();
    return box;
}

}  // namespace zelto
