// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/folder_import.h"

#include <QElapsedTimer>

#include <utility>

namespace zelto {
namespace {

// A scan that is over sooner shows no message.
constexpr int PatienceMilliseconds = 400;
constexpr int CountMilliseconds = 100;  // between two counts

}  // namespace

FolderImport::Words FolderImport::wordsForFolders() {
    return {tr("Add Folder"), tr("Looking for photos..."), tr("1 photo found"), tr("%L1 photos found")};
}

FolderImport::FolderImport(Scan scan, QWidget* window, QObject* parent, Words words)
    : QObject(parent), words_(std::move(words)), progress_(window) {
    progress_.setWindowModality(Qt::WindowModal);
    progress_.setWindowTitle(words_.title);
    progress_.setLabelText(words_.beginning);
    progress_.setMinimumWidth(progress_.fontMetrics().averageCharWidth() * 60);
    progress_.setRange(0, 0);
    progress_.setAutoReset(false);
    progress_.setMinimumDuration(PatienceMilliseconds);
    progress_.setValue(0);
    connect(&progress_, &QProgressDialog::canceled, this, [this] { thread_.request_stop(); });

    thread_ = std::jthread([this, scan = std::move(scan)](const std::stop_token& stop) {
        QElapsedTimer sinceCount;
        sinceCount.start();
        const auto goesOn = [&](qsizetype photos) {
            if (sinceCount.elapsed() >= CountMilliseconds) {
                sinceCount.restart();
                QMetaObject::invokeMethod(this, [this, photos] { count(photos); });
            }
            return !stop.stop_requested();
        };
        const QStringList photos = scan(goesOn);
        const bool isComplete = !stop.stop_requested();
        QMetaObject::invokeMethod(this, [this, photos, isComplete] { finish(photos, isComplete); });
    });
}

void FolderImport::count(qsizetype photos) {
    progress_.setLabelText(photos == 1 ? words_.one : words_.many.arg(photos));
}

void FolderImport::finish(const QStringList& photos, bool isComplete) {
    progress_.hide();
    // Breaking off counts until the very end.
    if (isComplete && !progress_.wasCanceled() && !photos.isEmpty()) Q_EMIT found(photos);
    deleteLater();
}

}  // namespace zelto
