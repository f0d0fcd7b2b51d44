// SPDX-License-Identifier: GPL-3.0-or-later
// The state the whole program shares: first-start bookkeeping, the settings folder, and the tips with the
// order they are shown in. Main thread only.
#pragma once

#include "platform/result.h"

#include <QMap>
#include <QRandomGenerator>
#include <QString>

#include <functional>

namespace zelto {

class MyGlobalInstance {
  public:
    bool FirstRun = true;         // this is the first start
    qint64 CurrentTip = 0;        // of the tip on show
    QMap<QString, QString> Tips;  // tip id -> text
    QMap<QString, QString> Nums;  // display index -> tip id
    QString SettingDirectory;     // ends in "/"; empty where there is none

    // Finds or makes the settings folder, notes it here and, on success, among the preferences.
    Result<void> findSettingDirectory();

    // On the first start notes what is known and writes the preferences later starts find.
    void SetFirstRunInfo();

    // Reads the tips of an XML document: each child of the root has an "ID", counted from 0, and the tip as
    // its text. Puts them in a new order and goes to the first one. A document that cannot be read holds no
    // tips.
    void ReadTips(const QByteArray& document);

    // Draws an id for each of `count` display indexes; some tips may be drawn twice and others not at all.
    using Draw = std::function<quint32()>;
    void GetShuffledArray(
        qint64 count, const Draw& draw = [] { return QRandomGenerator::global()->generate(); });

    QString GetCurrentTip(qint64 index) const;
    // Goes on to the next tip, after the last one to the first.
    QString nextTip();
};

}  // namespace zelto
