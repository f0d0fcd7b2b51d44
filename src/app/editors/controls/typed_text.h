// SPDX-License-Identifier: GPL-3.0-or-later
// A field for a text of several lines that keeps every character as it was typed. (The text field of the toolkit hands
// hard blanks over as soft ones.) Main thread only.
#pragma once

#include <QPlainTextEdit>

namespace zelto {

class TypedText : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit TypedText(QWidget* parent = nullptr);

    // Shows a text without telling anyone.
    void load(const QString& text);
    // Lines end with a line feed. An emptied text is there and empty, not absent.
    QString text() const;

  Q_SIGNALS:
    void chosen(const QString& text);
};

}  // namespace zelto
