// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/input_hint.h"

#include <QEvent>

#include <algorithm>

namespace zelto {

InputHint::InputHint(QWidget* field) : QObject(field), field_(field) {
    field->installEventFilter(this);
}

InputHint::~InputHint() {
    delete bubble_;
}

void InputHint::say(const QString& text) {
    if (text == text_) return;
    text_ = text;
    field_->setAccessibleDescription(text);
    if (text.isEmpty()) {
        delete bubble_;
        return;
    }
    if (bubble_ == nullptr) {
        bubble_ = new QLabel(field_->window());
        bubble_->setObjectName(QStringLiteral("InputHint"));
        bubble_->setAttribute(Qt::WA_TransparentForMouseEvents);
        bubble_->setAutoFillBackground(true);
        bubble_->setBackgroundRole(QPalette::ToolTipBase);
        bubble_->setForegroundRole(QPalette::ToolTipText);
        bubble_->setFrameShape(QFrame::Box);
        bubble_->setMargin(4);
    }
    bubble_->setText(text);
    place();
    bubble_->show();
    bubble_->raise();
}

// Under the field, or above it where the window ends.
void InputHint::place() {
    if (bubble_ == nullptr) return;
    const QWidget* window = field_->window();
    bubble_->resize(bubble_->sizeHint());
    const QPoint corner = field_->mapTo(window, QPoint(0, field_->height() + 2));
    const int right = std::max(0, window->width() - bubble_->width());
    const bool fits = corner.y() + bubble_->height() <= window->height();
    bubble_->move(std::clamp(corner.x(), 0, right),
                  fits ? corner.y() : corner.y() - field_->height() - 4 - bubble_->height());
}

bool InputHint::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
            place();
            break;
        case QEvent::Hide:
        case QEvent::FocusOut:
            say({});
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace zelto
