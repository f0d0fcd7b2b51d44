// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/result_viewer.h"

#include "platform/path_parts.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QUrl>

namespace zelto {
namespace {

// Where folders have to be opened one by one, no desktop is covered with windows.
constexpr qsizetype MostFolders = 5;

void openPath(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void openFoldersOf(const QStringList& paths) {
    QStringList folders;
    for (const QString& path : paths) {
        const QString folder = withoutLastPathComponent(path);
        if (!folders.contains(folder)) folders.append(folder);
        if (folders.size() == MostFolders) break;
    }
    for (const QString& folder : folders) openPath(folder);
}

// What file managers of all desktops answer to:
// https://www.freedesktop.org/wiki/Specifications/file-manager-interface/
void revealInFileManager(const QStringList& paths) {
    QStringList addresses;
    for (const QString& path : paths)
        addresses.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    QDBusMessage show = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    show << addresses << QString();
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(show));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [paths](QDBusPendingCallWatcher* call) {
                         if (call->isError()) openFoldersOf(paths);
                         call->deleteLater();
                     });
}

}  // namespace

ResultViewer desktopResultViewer() {
    return {openPath, revealInFileManager};
}

void ShowOutputImages(const RunReport& report, const ResultViewer& viewer) {
    if (report.OutPutImageList.isEmpty()) return;
    if (report.opensCombinedPdf()) {
        viewer.open(report.OutPutImageList.first());
    } else {
        viewer.reveal(report.OutPutImageList);
    }
}

}  // namespace zelto
