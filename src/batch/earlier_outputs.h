// SPDX-License-Identifier: GPL-3.0-or-later
// Which photo has written which output in runs before this one, as far as a watched folder's runs are one to its user:
// two photos with the same output are told apart from one photo that is written again. Only the latest are remembered;
// older outputs are files that stand there like any other. One thread at a time.
#pragma once

#include "platform/file_identity.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <deque>

namespace zelto {

class EarlierOutputs {
  public:
    explicit EarlierOutputs(std::size_t most = 20'000) : most_(most) {}

    void add(const QString& output, const QString& photo);

    // The photo whose output has the place (see FileIdentity); empty where none of those remembered has.
    QString photoAt(const QByteArray& place) const { return photos_.value(place); }

  private:
    const std::size_t most_;
    QHash<QByteArray, QString> photos_;
    std::deque<QByteArray> places_;  // the oldest first
};

}  // namespace zelto
