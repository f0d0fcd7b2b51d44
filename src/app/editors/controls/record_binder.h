// SPDX-License-Identifier: GPL-3.0-or-later
// Ties controls to the fields of a record, one line for each control:
//
//   binder.bind(bold, &Watermark::FontBold);
//   binder.bind(grid, &Watermark::Position, setPresetPosition);
//   binder.follow([=](const Watermark& record) { sides->setEnabled(record.ShapeType == shape_type::Polygon); });
//
// What the user does to a control becomes an edit of its field, and load() shows a record in all controls without
// telling anyone. A field without a control is never touched. The controls outlive neither the binder nor what the
// functions given to it refer to. Main thread only.
#pragma once

#include "app/editors/controls/number_field.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

#include <cmath>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace zelto {

// For each kind of control: how it shows a value, and how it tells of a value that the user chose. Controls of this
// program do both alike, with a function `load` and a signal `chosen`.
namespace binding {

template <class Control, class Value>
void show(Control& control, const Value& value) {
    control.load(value);
}
template <class Control, class Take>
requires requires {
    &Control::chosen;
}
void onChosen(Control& control, Take take) {
    QObject::connect(&control, &Control::chosen, &control, take);
}

template <class Number>
void show(NumberField& field, const Number& value) {
    field.load(static_cast<double>(value));
}
template <class Take>
void onChosen(NumberField& field, Take take) {
    QObject::connect(&field, &NumberField::valueChanged, &field, take);
}

// Check boxes and the like.
template <class Button>
requires std::is_base_of_v<QAbstractButton, Button>
void show(Button& button, const bool& isOn) {
    button.setChecked(isOn);
}
template <class Take>
void onChosen(QAbstractButton& button, Take take) {
    QObject::connect(&button, &QAbstractButton::clicked, &button, take);
}

inline void show(QGroupBox& box, bool isOn) {
    box.setChecked(isOn);
}
template <class Take>
void onChosen(QGroupBox& box, Take take) {
    QObject::connect(&box, &QGroupBox::clicked, &box, take);
}

template <class Take>
void onChosen(QLineEdit& line, Take take) {
    QObject::connect(&line, &QLineEdit::textEdited, &line, take);
}
inline void show(QLineEdit& line, const QString& text) {
    if (line.text() != text) line.setText(text);
}

// The values of a list are the data of its items. One that the list does not hold selects none.
template <class Value>
void show(QComboBox& list, const Value& value) {
    list.setCurrentIndex(list.findData(QVariant::fromValue(value)));
}
template <class Take>
void onChosen(QComboBox& list, Take take) {
    QObject::connect(&list, &QComboBox::activated, &list,
                     [&list, take](int row) { take(list.itemData(row)); });
}

// The values of a group of buttons are their ids. One that no button has leaves all of them off.
template <class Code>
void show(QButtonGroup& buttons, const Code& code) {
    if (QAbstractButton* button = buttons.button(static_cast<int>(code))) {
        button->setChecked(true);
    } else if (QAbstractButton* checked = buttons.checkedButton()) {
        buttons.setExclusive(false);
        checked->setChecked(false);
        buttons.setExclusive(true);
    }
}
template <class Take>
void onChosen(QButtonGroup& buttons, Take take) {
    QObject::connect(&buttons, &QButtonGroup::idClicked, &buttons, take);
}

// What a control hands over, as a value of its field.
template <class Value, class Chosen>
Value fieldValue(const Chosen& chosen) {
    if constexpr (std::is_same_v<Chosen, QVariant>) {
        return chosen.template value<Value>();
    } else if constexpr (std::is_integral_v<Value> && std::is_floating_point_v<Chosen>) {
        return static_cast<Value>(std::llround(chosen));
    } else {
        return static_cast<Value>(chosen);
    }
}

}  // namespace binding

template <class Record>
class RecordBinder {
  public:
    using Edit = std::function<void(Record&)>;

    // Every edit goes through `perform`, which is to load the record afterwards.
    explicit RecordBinder(std::function<void(const Edit&)> perform) : perform_(std::move(perform)) {}
    RecordBinder(const RecordBinder&) = delete;
    RecordBinder& operator=(const RecordBinder&) = delete;

    void load(const Record& record) const {
        for (const auto& show : shows_) show(record);
    }

    // An edit that no bound control makes.
    void edit(const Edit& edit) const { perform_(edit); }

    // A control for a field.
    template <class Control, class Value>
    void bind(Control* control, Value Record::*field) {
        bind(control, field, [field](Record& record, const auto& chosen) {
            record.*field = binding::fieldValue<Value>(chosen);
        });
    }
    // A control that shows `get(record)`, a function or a field, and what it does to a record: `set(record, chosen)`.
    template <class Control, class Get, class Set>
    void bind(Control* control, Get get, Set set) {
        follow([control, get](const Record& record) { binding::show(*control, std::invoke(get, record)); });
        onChosen(control, set);
    }
    // Only the second half of that.
    template <class Control, class Set>
    void onChosen(Control* control, Set set) {
        binding::onChosen(*control, [this, set](const auto& chosen) {
            perform_([&](Record& record) { std::invoke(set, record, chosen); });
        });
    }

    // Calls `show` with each record that is loaded, after what was bound before.
    void follow(std::function<void(const Record&)> show) { shows_.push_back(std::move(show)); }

  private:
    std::function<void(const Edit&)> perform_;
    std::vector<std::function<void(const Record&)>> shows_;
};

}  // namespace zelto
