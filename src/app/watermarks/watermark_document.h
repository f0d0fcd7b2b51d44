// SPDX-License-Identifier: GPL-3.0-or-later
// What the user composes: the stack of watermarks with its filter, frame and copyright data, the place being
// edited, and the history of all of it. Every change goes through here, is announced by one signal that says
// what changed, and can be undone. Views and editors read it and never keep a copy; threads get snapshots.
// Main thread only.
#pragma once

#include "records/copyright_metadata.h"
#include "records/watermark_stack.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zelto {

// Everything an undo step brings back.
struct StackState {
    // `Stack.SelectedFilter` is the filter applied to the photos, `Stack.Metadata` whether `Metadata` is
    // switched on.
    WatermarkStack Stack;
    int SelectedFilter = 0;  // the filter of the filter row, applied or not; 0 for no such row
    std::optional<CopyRightMetaData> Metadata;

    bool operator==(const StackState&) const = default;
};

// The difference between two states.
struct StackChange {
    bool list = false;              // records came, went or were moved to other places
    std::vector<int> records = {};  // with `list` unset: the records that are no longer what they were
    bool filter = false;
    bool effects = false;
    bool metadata = false;

    bool operator==(const StackChange&) const = default;
};

StackChange changeBetween(const StackState& before, const StackState& after);

class WatermarkDocument : public QObject {
    Q_OBJECT

  public:
    // No record is being edited.
    static constexpr int NoWatermark = -1;

    explicit WatermarkDocument(QObject* parent = nullptr);

    const StackState& state() const { return state_; }
    const std::vector<Watermark>& watermarks() const { return state_.Stack.Watermarks; }
    int count() const { return static_cast<int>(watermarks().size()); }
    bool contains(int index) const { return index >= 0 && index < count(); }

    // The stack as it is now, for other threads: it never changes, a later change makes another.
    std::shared_ptr<const WatermarkStack> snapshot() const;

    int currentWatermark() const { return currentWatermark_; }
    void setCurrentWatermark(int index) { currentWatermark_ = index; }

    // Lets `mutate` change the state, as an undo step called `name`. Steps of the same non-empty `mergeKey`
    // that follow each other become one. False, and no step, when nothing changed.
    using Mutate = std::function<void(StackState&)>;
    bool change(const QString& name, const Mutate& mutate, const QString& mergeKey = {});

    // Corrects a record without a step of its own: for values found out, not chosen, such as the size of a
    // logo.
    void amendRecord(int index, const std::function<void(Watermark&)>& amend);

    // The history; it takes the changes of the photo list too, so that one undo goes back whatever came last.
    QUndoStack& history() { return history_; }

  Q_SIGNALS:
    void changed(const zelto::StackChange& change);

  private:
    void apply(const StackState& state);
    void announce(const StackChange& change);

    StackState state_;
    int currentWatermark_ = NoWatermark;
    mutable std::shared_ptr<const WatermarkStack> snapshot_;
    QUndoStack history_;
};

}  // namespace zelto
