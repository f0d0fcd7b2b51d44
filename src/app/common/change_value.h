// SPDX-License-Identifier: GPL-3.0-or-later
// The one undo command of the window: a value is what it was, or what it became. Whatever can be changed is
// held as a value somewhere and knows how to take another; everything else about undo is the same for all of
// them.
#pragma once

#include <QString>
#include <QUndoCommand>

#include <functional>
#include <utility>

namespace zelto {

template <class Value>
class ChangeValue : public QUndoCommand {
  public:
    using Apply = std::function<void(const Value&)>;

    // `apply` makes a value the current one; it outlives the undo stack. Commands of the same non-empty
    // `mergeKey` that follow each other become one step, which vanishes when it has led back to where it
    // began.
    ChangeValue(const QString& name, Apply apply, Value before, Value after, QString mergeKey = {})
        : QUndoCommand(name),
          apply_(std::move(apply)),
          before_(std::move(before)),
          after_(std::move(after)),
          mergeKey_(std::move(mergeKey)) {}

    void undo() override { apply_(before_); }
    void redo() override { apply_(after_); }

    int id() const override { return mergeKey_.isEmpty() ? -1 : MergeId; }
    bool mergeWith(const QUndoCommand* other) override {
        const auto* next = dynamic_cast<const ChangeValue*>(other);
        if (next == nullptr || next->mergeKey_ != mergeKey_) return false;
        after_ = next->after_;
        setObsolete(before_ == after_);
        return true;
    }

  private:
    static constexpr int MergeId = 1;

    Apply apply_;
    Value before_;
    Value after_;
    QString mergeKey_;
};

}  // namespace zelto
