// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_document.h"

#include "app/common/change_value.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

// Undo steps kept. A step holds a whole state, but texts, logos and icons in it are shared with its
// neighbours.
constexpr int HistoryLimit = 500;

}  // namespace

StackChange changeBetween(const StackState& before, const StackState& after) {
    StackChange change;
    const auto& old = before.Stack.Watermarks;
    const auto& now = after.Stack.Watermarks;
    change.list = old.size() != now.size();
    for (std::size_t i = 0; !change.list && i < now.size(); ++i) {
        if (!(old[i] == now[i])) change.records.push_back(static_cast<int>(i));
    }
    change.filter = before.Stack.SelectedFilter != after.Stack.SelectedFilter ||
                    before.Stack.Off.SelectedFilter != after.Stack.Off.SelectedFilter;
    change.effects =
        before.Stack.Effects != after.Stack.Effects || before.Stack.Off.Effects != after.Stack.Off.Effects;
    change.metadata = before.Metadata != after.Metadata || before.Stack.Metadata != after.Stack.Metadata;
    return change;
}

std::vector<int> changedWatermarks(const StackState& before, const StackState& after) {
    std::vector<Watermark> old = before.Stack.Watermarks;
    const std::vector<Watermark>& now = after.Stack.Watermarks;
    std::vector<int> changed;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const auto same = std::find(old.begin(), old.end(), now[i]);
        if (same == old.end()) {
            changed.push_back(static_cast<int>(i));
        } else {
            old.erase(same);
        }
    }
    return changed;
}

WatermarkDocument::WatermarkDocument(QObject* parent) : QObject(parent) {
    history_.setUndoLimit(HistoryLimit);
}

std::shared_ptr<const WatermarkStack> WatermarkDocument::snapshot() const {
    if (!snapshot_) snapshot_ = std::make_shared<const WatermarkStack>(state_.Stack);
    return snapshot_;
}

bool WatermarkDocument::change(const QString& name, const Mutate& mutate, const QString& mergeKey) {
    StackState next = state_;
    mutate(next);
    return push(name, std::move(next), mergeKey, false);
}

bool WatermarkDocument::push(const QString& name, StackState next, const QString& mergeKey,
                             bool isOtherStack) {
    next.Stack.Metadata = next.Metadata && next.Metadata->Enabled;
    if (next == state_) return false;
    const auto take = [this, isOtherStack](const StackState& state) {
        const StackState before = state_;
        apply(state);
        if (!isPushing_ && !isOtherStack) Q_EMIT steppedThrough(before);
    };
    const QScopedValueRollback pushing(isPushing_, true);
    history_.push(new ChangeValue<StackState>(name, take, state_, std::move(next), mergeKey));
    return true;
}

void WatermarkDocument::setSetting(const QString& path) {
    if (path == setting_) return;
    setting_ = path;
    Q_EMIT settingChanged();
}

void WatermarkDocument::load(const QString& name, const StackState& state, const QString& setting) {
    if (state == state_) {
        setSetting(setting);
        return;
    }
    history_.beginMacro(name);
    history_.push(new ChangeValue<QString>(
        name, [this](const QString& path) { setSetting(path); }, setting_, setting));
    push(name, state, {}, true);
    history_.endMacro();
}

void WatermarkDocument::amendRecord(int index, const std::function<void(Watermark&)>& amend) {
    if (!contains(index)) return;
    Watermark& record = state_.Stack.Watermarks[static_cast<std::size_t>(index)];
    Watermark amended = record;
    amend(amended);
    if (amended == record) return;
    record = std::move(amended);
    StackChange change;
    change.records.push_back(index);
    announce(change);
}

void WatermarkDocument::apply(const StackState& state) {
    StackChange change = changeBetween(state_, state);
    if (change == StackChange{}) return;
    state_ = state;
    if (!contains(currentWatermark_)) currentWatermark_ = NoWatermark;
    announce(change);
}

void WatermarkDocument::announce(const StackChange& change) {
    snapshot_.reset();
    Q_EMIT changed(change);
}

}  // namespace zelto
