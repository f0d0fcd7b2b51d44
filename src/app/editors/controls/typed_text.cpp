// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/typed_text.h"

#include <QSignalBlocker>

namespace zelto {

TypedText::TypedText(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Q_EMIT chosen(text()); });
}

void TypedText::load(const QString& text) {
    if (text == this->text()) return;
    const QSignalBlocker quiet(this);
    setPlainText(text);
}

QString TypedText::text() const {
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.isEmpty() ? QString(QLatin1String("")) : text;
}

}  // namespace zelto
