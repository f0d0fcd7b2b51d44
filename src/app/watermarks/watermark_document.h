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
    WatermarkStack Stack;  // its `Metadata` says whether the one below is switched on
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

// The watermarks of `after`, ascending, that are not in `before`, neither there nor at another place.
std::vector<int> changedWatermarks(const StackState& before, const StackState& after);

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

    // The setting file that the stack was loaded from or saved to last; empty for none. Saving it under another name is
    // no step of the history, but undoing the loading of another stack brings the name back as well.
    const QString& setting() const { return setting_; }
    void setSetting(const QString& path);
    // Replaces the state and the setting in one step.
    void load(const QString& name, const StackState& state, const QString& setting);

    // The history; it takes the changes of the photo list too, so that one undo goes back whatever came last.
    QUndoStack& history() { return history_; }

  Q_SIGNALS:
    void changed(const zelto::StackChange& change);
    // After changed(): the history went back, or forth again, by a step that was not the loading of another stack.
    void steppedThrough(const zelto::StackState& before);
    void settingChanged();

  private:
    bool push(const QString& name, StackState next, const QString& mergeKey, bool isOtherStack);
    void apply(const StackState& state);
    void announce(const StackChange& change);

    StackState state_;
    QString setting_;
    int currentWatermark_ = NoWatermark;
    bool isPushing_ = false;  // a step is being done for the first time
    mutable std::shared_ptr<const WatermarkStack> snapshot_;
    QUndoStack history_;
};

}  // namespace zelto
