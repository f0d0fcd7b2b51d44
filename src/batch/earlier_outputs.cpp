// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/earlier_outputs.h"

namespace zelto {

void EarlierOutputs::add(const QString& output, const QString& photo) {
    const QByteArray place = fileIdentity(output).place;
    if (!photos_.contains(place)) places_.push_back(place);
    photos_.insert(place, photo);
    if (places_.size() <= most_) return;
    photos_.remove(places_.front());
    places_.pop_front();
}

}  // namespace zelto
