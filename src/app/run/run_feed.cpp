// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_feed.h"

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

constexpr qint64 DeliveryMilliseconds = 50;

}  // namespace

RunFeed::RunFeed(QObject* parent) : QObject(parent) {
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &RunFeed::deliver);
}

template <class Change>
void RunFeed::note(Pending urgency, Change change) {
    {
        const std::lock_guard lock(mutex_);
        if (awaitedStarts_ > 0) return;
        change(news_);
        if (pending_ >= urgency) return;
        pending_ = urgency;
    }
    QMetaObject::invokeMethod(this, &RunFeed::schedule, Qt::QueuedConnection);
}

// A run begins only after the thread of the one before it has ended.
void RunFeed::expectRun() {
    const std::lock_guard lock(mutex_);
    news_ = {};
    ++awaitedStarts_;
}

void RunFeed::runStarted(bool resumed) {
    const std::lock_guard lock(mutex_);
    if (!resumed) --awaitedStarts_;
}

void RunFeed::showGlance(qint64 row, const QImage& glance) {
    note(Pending::News, [&](RunNews& news) { news.glance = Glance{row, glance}; });
}

void RunFeed::photoStarted(qint64 row) {
    note(Pending::News, [row](RunNews& news) { news.photoInHand = row; });
}

void RunFeed::photoFinished(const PhotoOutcome& outcome) {
    note(Pending::News, [&](RunNews& news) { news.outcomes.push_back(outcome); });
}

void RunFeed::progressed(qint64 done) {
    note(Pending::News, [done](RunNews& news) { news.done = done; });
}

void RunFeed::successiveFail() {
    note(Pending::UrgentNews, [](RunNews& news) { news.asks = true; });
}

void RunFeed::combinedPdfFailed(const QString& reason) {
    note(Pending::News, [&](RunNews& news) { news.pdfFailure = reason; });
}

void RunFeed::runEnded(const RunReport& report) {
    note(Pending::UrgentNews, [&](RunNews& news) { news.report = report; });
}

void RunFeed::schedule() {
    const bool isUrgent = [this] {
        const std::lock_guard lock(mutex_);
        return pending_ == Pending::UrgentNews;
    }();
    if (isUrgent || !sinceDelivery_.isValid() || sinceDelivery_.hasExpired(DeliveryMilliseconds)) {
        deliver();
    } else if (!due_.isActive()) {
        due_.start(static_cast<int>(std::max<qint64>(0, DeliveryMilliseconds - sinceDelivery_.elapsed())));
    }
}

void RunFeed::deliver() {
    due_.stop();
    RunNews news;
    {
        const std::lock_guard lock(mutex_);
        if (pending_ == Pending::Nothing) return;
        news = std::exchange(news_, {});
        pending_ = Pending::Nothing;
    }
    Q_EMIT arrived(news);
    // From here on, so that showing news never takes all of the main thread's time.
    sinceDelivery_.start();
}

}  // namespace zelto
