// SPDX-License-Identifier: GPL-3.0-or-later
// Looks for the photos of a folder without keeping the window waiting: on a thread of its own, with a message
// that counts them and can break it off once it takes longer than a moment. Main thread only.
#pragma once

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QStringList>

#include <thread>

namespace zelto {

class FolderImport : public QObject {
    Q_OBJECT

  public:
    // Begins at once and deletes itself when it is over; `window` is the parent of the message. One that is
    // deleted before is broken off.
    FolderImport(const QString& folder, bool includeSubFolders, const QString& extensionList, QWidget* window,
                 QObject* parent);

  Q_SIGNALS:
    // The photos, in the order of the scan. A scan that is broken off or finds nothing never tells.
    void found(const QStringList& photos);

  private:
    void count(qsizetype photos);
    void finish(const QStringList& photos, bool isComplete);

    QProgressDialog progress_;
    std::jthread thread_;  // ends before the message goes
};

}  // namespace zelto
