// SPDX-License-Identifier: GPL-3.0-or-later
// Ties controls to the fields of a record, one line a control: what the user does to a control becomes an edit
// of its field, and loading shows a record in all of them. Fields without a control are never touched. Main
// thread only.
#pragma once

#include "app/editors/controls/color_well.h"
#include "app/editors/controls/number_field.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>

#include <cmath>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace zelto {

template <class Record>
class RecordBinder {
  public:
    using Edit = std::function<void(Record&)>;

    // Every edit goes through `perform`, which is to load the record afterwards.
    explicit RecordBinder(std::function<void(const Edit&)> perform) : perform_(std::move(perform)) {}

    void load(const Record& record) const {
        for (const auto& show : loaders_) show(record);
    }

    template <class Number>
    void bind(NumberField* field, Number Record::*value) {
        loaders_.push_back([=](const Record& record) { field->load(static_cast<double>(record.*value)); });
        QObject::connect(field, &NumberField::valueChanged, field, [=, perform = perform_](double number) {
            perform([=](Record& record) {
                if constexpr (std::is_integral_v<Number>) {
                    record.*value = static_cast<Number>(std::llround(number));
                } else {
                    record.*value = static_cast<Number>(number);
                }
            });
        });
    }

    void bind(QAbstractButton* check, bool Record::*value) {
        loaders_.push_back([=](const Record& record) { check->setChecked(record.*value); });
        QObject::connect(check, &QAbstractButton::clicked, check, [=, perform = perform_](bool on) {
            perform([=](Record& record) { record.*value = on; });
        });
    }

    void bind(ColorWell* well, std::optional<Color> Record::*value) {
        loaders_.push_back([=](const Record& record) { well->load(record.*value); });
        QObject::connect(well, &ColorWell::colorChosen, well, [=, perform = perform_](const Color& color) {
            perform([=](Record& record) { record.*value = color; });
        });
    }

    // An emptied text is absent.
    void bind(QLineEdit* line, QString Record::*value) {
        loaders_.push_back([=](const Record& record) {
            if (line->text() != record.*value) line->setText(record.*value);
        });
        QObject::connect(line, &QLineEdit::textEdited, line, [=, perform = perform_](const QString& text) {
            perform([=](Record& record) { record.*value = text.isEmpty() ? QString() : text; });
        });
    }

    // Codes are the data of the list's items.
    template <class Code>
    void bind(QComboBox* list, Code Record::*value) {
        loaders_.push_back([=](const Record& record) {
            list->setCurrentIndex(list->findData(QVariant::fromValue(record.*value)));
        });
        QObject::connect(list, &QComboBox::activated, list, [=, perform = perform_](int row) {
            perform([=](Record& record) { record.*value = list->itemData(row).template value<Code>(); });
        });
    }

    // Codes are the ids of the buttons.
    template <class Code>
    void bind(QButtonGroup* buttons, Code Record::*value) {
        loaders_.push_back([=](const Record& record) {
            if (QAbstractButton* button = buttons->button(static_cast<int>(record.*value))) {
                button->setChecked(true);
            }
        });
        QObject::connect(buttons, &QButtonGroup::idClicked, buttons, [=, perform = perform_](int id) {
            perform([=](Record& record) { record.*value = static_cast<Code>(id); });
        });
    }

  private:
    std::function<void(const Edit&)> perform_;
    std::vector<std::function<void(const Record&)>> loaders_;
};

}  // namespace zelto
