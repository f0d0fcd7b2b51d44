// SPDX-License-Identifier: GPL-3.0-or-later
// A field for one number with its unit. Whatever is typed stays as it was typed; while it is not a number in the
// range the value does not change and a hint under the field says what is expected. Main thread only.
#pragma once

#include <QDoubleSpinBox>
#include <QLatin1String>

#include <optional>

namespace zelto {

class InputHint;

// What a number is. The unit follows the number, with the blank before it.
struct NumberKind {
    double smallest;
    double largest;
    int decimals = 0;
    QLatin1String unit = {};
    double step = 1.0;
};

namespace number_kind {
inline constexpr NumberKind Offset{-100'000, 100'000, 0, QLatin1String(" px")};  // may point outward
inline constexpr NumberKind Length{0, 100'000, 0, QLatin1String(" px")};
inline constexpr NumberKind Size{1, 100'000, 0, QLatin1String(" px")};
inline constexpr NumberKind Degrees{-360, 360, 0, QLatin1String("\xB0")};
inline constexpr NumberKind Percent{0.1, 1'000, 1, QLatin1String(" %")};  // of a photo's side
inline constexpr NumberKind PercentOfSide{1, 1'000, 1, QLatin1String(" %"),
                                          0.5};  // of a mark, in steps of a half
}  // namespace number_kind

class NumberField : public QDoubleSpinBox {
    Q_OBJECT

  public:
    explicit NumberField(const NumberKind& kind, QWidget* parent = nullptr);

    // Changes what the number is; the value stays as far as it fits.
    void setKind(const NumberKind& kind);
    // What leaving the field empty means; without this, the number that was there before.
    void setEmptyValue(double value) { emptyValue_ = value; }

    // Shows `value` without telling anyone. A number that is being typed stays as it is when it means `value`.
    void load(double value);

    // What is wrong with the text; empty for nothing.
    QString problem() const;

    // Without zeros behind the point that say nothing.
    QString textFromValue(double value) const override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    void showProblem();

    QString range_;
    std::optional<double> emptyValue_;
    InputHint* hint_;
};

}  // namespace zelto
