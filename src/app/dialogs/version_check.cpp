// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/version_check.h"

#include "app/common/messages.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QDesktopServices>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProgressDialog>

namespace zelto {
namespace {

constexpr int TimeoutMilliseconds = 10000;
constexpr int PatienceMilliseconds = 500;  // before the user is told what the program waits for
constexpr qint64 LongestAnswer = 256;      // bytes

QUrl configured(const char* variable, const Preference<QString>& preference, const char* builtIn) {
    QString address = qEnvironmentVariable(variable);
    if (address.isEmpty()) address = storedPreference(preference).value_or(QString());
    if (address.isEmpty()) address = QString::fromLatin1(builtIn);
    return address.isEmpty() ? QUrl() : QUrl(address, QUrl::StrictMode);
}

void tellThatNobodyAnswered(QWidget* window, const QString& reason) {
    openMessageSheet(window,
                     {QMessageBox::Warning, Words::tr("Version Check"),
                      Words::tr("The newest version cannot be found out at the moment.\n%1").arg(reason)});
}

void tellWhatIsNewest(QWidget* window, const QString& newest, const QUrl& download) {
    if (newest == QLatin1String(ZELTO_VERSION)) {
        openMessageSheet(window, {QMessageBox::Information, Words::tr("Version Check"),
                                  Words::tr("You are using the latest version of Zelto")});
        return;
    }
    openMessageSheet(window,
                     {QMessageBox::Question,
                      Words::tr("Zelto Update"),
                      Words::tr("A new version of Zelto is available. Would you like to download it now?"),
                      {Words::tr("Download"), Words::tr("Not Now")},
                      0,
                      1},
                     [download](int answer) {
                         if (answer == 0) QDesktopServices::openUrl(download);
                     });
}

}  // namespace

VersionAddresses versionAddresses() {
    VersionAddresses addresses{
        configured("ZELTO_VERSION_ADDRESS", preference::VersionAddress, ZELTO_BUILT_IN_VERSION_ADDRESS),
        configured("ZELTO_DOWNLOAD_ADDRESS", preference::DownloadAddress, ZELTO_BUILT_IN_DOWNLOAD_ADDRESS)};
    if (addresses.download.isEmpty())
        addresses.download = addresses.version.resolved(QUrl(QStringLiteral("/")));
    return addresses;
}

void CheckLatestVersion(QWidget* window) {
    const VersionAddresses addresses = versionAddresses();
    if (!addresses.version.isValid()) {
        openMessageSheet(window, {QMessageBox::Information, Words::tr("Version Check"),
                                  Words::tr("This is version %1. No address is set to ask for a newer one.")
                                      .arg(QLatin1String(ZELTO_VERSION))});
        return;
    }
    auto* busy =
        new QProgressDialog(Words::tr("Asking for the newest version..."), Words::tr("Cancel"), 0, 0, window);
    busy->setWindowModality(Qt::WindowModal);
    busy->setMinimumDuration(PatienceMilliseconds);
    auto* network = new QNetworkAccessManager(busy);
    QNetworkRequest request(addresses.version);
    request.setTransferTimeout(TimeoutMilliseconds);
    QNetworkReply* reply = network->get(request);
    QObject::connect(busy, &QProgressDialog::canceled, busy, &QObject::deleteLater);
    QObject::connect(reply, &QNetworkReply::finished, window,
                     [window, busy, reply, download = addresses.download] {
                         if (busy->wasCanceled()) return;
                         const QString newest = QString::fromUtf8(reply->read(LongestAnswer)).trimmed();
                         busy->hide();
                         busy->deleteLater();
                         if (reply->error() != QNetworkReply::NoError || newest.isEmpty()) {
                             tellThatNobodyAnswered(window, reply->errorString());
                         } else {
                             tellWhatIsNewest(window, newest, download);
                         }
                     });
}

}  // namespace zelto
