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

FolderImport::Texts FolderImport::textsForFolders() {
    return {tr("Add Folder"), tr("Looking for photos..."),
            [](int photos) { return tr("%Ln photo(s) found", nullptr, photos); }};
}

FolderImport::FolderImport(Scan scan, QWidget* window, QObject* parent, Texts texts)
    : QObject(parent), texts_(std::move(texts)), progress_(window) {
    progress_.setWindowModality(Qt::WindowModal);
    progress_.setWindowTitle(texts_.title);
    progress_.setLabelText(texts_.beginning);
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
    progress_.setLabelText(texts_.counted(static_cast<int>(photos)));
}

void FolderImport::finish(const QStringList& photos, bool isComplete) {
    progress_.hide();
    // Breaking off counts until the very end.
    if (isComplete && !progress_.wasCanceled() && !photos.isEmpty()) Q_EMIT found(photos);
    deleteLater();
}

}  // namespace zelto
