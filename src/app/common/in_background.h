// SPDX-License-Identifier: GPL-3.0-or-later
// Work that takes too long for the main thread: it runs in the thread pool, and its result comes back to the main
// thread.
//
//   inBackground(this, [path] { return readPicture(path); }, [this](const Result<Picture>& read) { show(read); });
//
// The work holds copies of what it needs and never touches its owner, which may be deleted meanwhile.
#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <utility>

namespace zelto {

// Calls `answer()` on the main thread once that is free; not at all if `owner` has been deleted by then. May be called
// from any thread.
template <class Owner, class Answer>
void answerOnMainThread(const QPointer<Owner>& owner, Answer answer) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [owner, answer = std::move(answer)] {
            if (owner) answer();
        },
        Qt::QueuedConnection);
}

// Runs `work()` in the thread pool, then `answer(result)` on the main thread unless `owner` has been deleted by then.
// To be called from the main thread.
template <class Owner, class Work, class Answer>
void inBackground(Owner* owner, Work work, Answer answer) {
    QThreadPool::globalInstance()->start(
        [owner = QPointer<Owner>(owner), work = std::move(work), answer = std::move(answer)] {
            answerOnMainThread(owner, [answer, result = work()] { answer(result); });
        });
}

}  // namespace zelto
