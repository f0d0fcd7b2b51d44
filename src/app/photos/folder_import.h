// SPDX-License-Identifier: GPL-3.0-or-later
// Looks for photos in folders, or into photos, without keeping the window waiting: on a thread of its own, with a
// message that counts them and can break it off once it takes longer than a moment. Main thread only.
#pragma once

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QStringList>

#include <functional>
#include <thread>

namespace zelto {

class FolderImport : public QObject {
    Q_OBJECT

  public:
    // Looks for the photos, on another thread; calls `goesOn` with the number found so far, and returns once that
    // answers false.
    using GoesOn = std::function<bool(qsizetype photos)>;
    using Scan = std::function<QStringList(const GoesOn& goesOn)>;

    // What its message says.
    struct Texts {
        QString title;
        QString beginning;
        QString (*counted)(int photos);
    };
    static Texts textsForFolders();

    // Begins at once and deletes itself when it is over; `window` is the parent of the message. One that is deleted
    // before is broken off.
    FolderImport(Scan scan, QWidget* window, QObject* parent, Texts texts = textsForFolders());

  Q_SIGNALS:
    // The photos, or what was read of each, in the order of the scan. A scan that is broken off or finds nothing never
    // tells.
    void found(const QStringList& photos);

  private:
    void count(qsizetype photos);
    void finish(const QStringList& photos, bool isComplete);

    Texts texts_;
    QProgressDialog progress_;
    std::jthread thread_;  // ends before the message goes
};

}  // namespace zelto
