// SPDX-License-Identifier: GPL-3.0-or-later
// A few words under a field that say what is wrong with what was typed into it. They float above the other
// controls, so that nothing moves when they come and go. Main thread only.
#pragma once

#include <QLabel>
#include <QPointer>

namespace zelto {

class InputHint : public QObject {
    Q_OBJECT

  public:
    // For a field that owns it.
    explicit InputHint(QWidget* field);
    ~InputHint() override;

    // Shows `text`, and gives it to those who cannot see it as the field's description; hides it when empty.
    void say(const QString& text);
    QString text() const { return text_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void place();

    QWidget* field_;
    QPointer<QLabel> bubble_;  // a child of the field's window
    QString text_;
};

}  // namespace zelto
