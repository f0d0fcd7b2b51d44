// SPDX-License-Identifier: GPL-3.0-or-later
// A page that edits one value of the document, and knows what it was when the visit began. Main thread only.
#pragma once

#include "app/watermarks/editor_page.h"
#include "app/watermarks/watermark_controller.h"

#include <QFormLayout>

#include <optional>

namespace zelto {

template <class Value>
class ValuePage : public EditorPage {
  public:
    void begin(int index) override {
        index_ = index;
        start_ = value();
        load();
    }
    bool hasChanged() const override { return start_ && !(value() == *start_); }
    void revert() override {
        if (start_) put(*start_);
    }

  protected:
    // The controller outlives the page.
    ValuePage(const QString& name, const QString& title, WatermarkController& controller)
        : EditorPage(name, title), controller_(controller) {}

    // What the document has.
    virtual Value value() const = 0;
    // Makes it another, as part of the visit's undo step.
    virtual void put(const Value& value) = 0;

    WatermarkController& controller() const { return controller_; }
    int index() const { return index_; }

  private:
    WatermarkController& controller_;
    int index_ = -1;
    std::optional<Value> start_;
};

// Gives a control that has no accessible name yet that of its label, and the part of it that takes the keys likewise.
void nameAfterLabel(const QString& label, QWidget& control);

// Adds a row whose label is the buddy and the accessible name of its control.
void addRow(QFormLayout& form, const QString& label, QWidget* control);

// `control`, under the name that tests and remembered states know it by.
template <class Control>
Control* named(const char* name, Control* control) {
    control->setObjectName(QLatin1String(name));
    return control;
}

}  // namespace zelto
