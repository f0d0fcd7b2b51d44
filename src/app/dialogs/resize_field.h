// SPDX-License-Identifier: GPL-3.0-or-later
// A field for a length in per cent or pixels. Whatever is typed becomes a whole number at once: no number is
// 0, a negative percentage 100. An empty field is 0, and a length of 0 pixels is shown as an empty field. Main
// thread only.
#pragma once

#include <QSpinBox>

namespace zelto {

class ResizeField : public QSpinBox {
    Q_OBJECT

  public:
    enum class Unit { PerCent, Pixels };

    // `name` is what screen readers call the field.
    ResizeField(Unit unit, const QString& name, QWidget* parent = nullptr);

    QValidator::State validate(QString& text, int& position) const override;
    int valueFromText(const QString& text) const override;
    QString textFromValue(int value) const override;

  private:
    QString withoutUnit(QString text) const;

    Unit unit_;
};

}  // namespace zelto
