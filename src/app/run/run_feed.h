// SPDX-License-Identifier: GPL-3.0-or-later
// Brings what a run tells on its own thread to the main thread: gathered, and a few times per second at most, so that
// the window keeps up with any number of photos. What the user has to see at once, a question or the end, is not
// held back. Lives on the main thread; the observer's functions are called by the run.
#pragma once

#include "batch/batch_observer.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <mutex>
#include <optional>
#include <vector>

namespace zelto {

// What a photo becomes, about as large as a screen.
struct Glance {
    qint64 row = 0;
    QImage picture;
};

// What has happened since it was last told.
struct RunNews {
    std::vector<PhotoOutcome> outcomes;  // in the order they came about
    std::optional<qint64> photoInHand;   // its row
    std::optional<Glance> glance;
    std::optional<qint64> done;         // rows that have had their turn
    bool asks = false;                  // three photos in a row failed
    std::optional<QString> pdfFailure;  // why the combined PDF could not be written
    std::optional<RunReport> report;    // the worker has ended
};

class RunFeed : public QObject, public BatchObserver {
    Q_OBJECT

  public:
    explicit RunFeed(QObject* parent = nullptr);

    // A new run is about to be started: what one before it still tells is passed over.
    void expectRun();
    // The picture of the photo that is being written. Called on the run's thread.
    void showGlance(qint64 row, const QImage& glance);

    void runStarted(bool resumed) override;
    void photoStarted(qint64 row) override;
    void photoFinished(const PhotoOutcome& outcome) override;
    void progressed(qint64 done) override;
    void successiveFail() override;
    void combinedPdfFailed(const QString& reason) override;
    void runEnded(const RunReport& report) override;

  Q_SIGNALS:
    void arrived(const zelto::RunNews& news);

  private:
    enum class Pending { Nothing, News, UrgentNews };

    template <class Change>
    void note(Pending urgency, Change change);
    void schedule();
    void deliver();

    std::mutex mutex_;       // guards the next three
    int awaitedStarts_ = 0;  // runs that have been announced and have not begun
    RunNews news_;
    Pending pending_ = Pending::Nothing;

    QTimer due_;
    QElapsedTimer sinceDelivery_;
};

}  // namespace zelto
