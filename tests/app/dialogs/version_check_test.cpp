// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/version_check.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

namespace zelto {
namespace {

// Answers every request with the same bytes; none to an empty answer, so that the connection breaks off.
class OneAnswer {
  public:
    explicit OneAnswer(QByteArray answer) : answer_(std::move(answer)) {
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket* socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                socket->write(answer_);
                socket->disconnectFromHost();
            });
        });
        server_.listen(QHostAddress::LocalHost);
    }
    QString address() const {
        return QStringLiteral("http://127.0.0.1:%1/site/version.txt").arg(server_.serverPort());
    }

  private:
    QByteArray answer_;
    QTcpServer server_;
};

class Browser : public QObject {
    Q_OBJECT

  public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    Q_SLOT void open(const QUrl& address) { opened = address; }
    QUrl opened;
};

QByteArray page(const char* status, const char* text) {
    return QByteArray("HTTP/1.1 ") + status + "\r\nConnection: close\r\n\r\n" + text;
}

TEST(VersionCheck, ComparesWhatTheVendorSaysWithThisVersion) {
    struct Row {
        QByteArray answer;
        const char* title;
        const char* text;  // how it begins
    };
    constexpr auto Newer = "A new version of Zelto is available. Would you like to download it now?";
    constexpr auto Unknown = "The newest version cannot be found out at the moment.\n";
    const Row rows[] = {
        {page("200 OK", "6.1\n"), "Version Check", "You are using the latest version of Zelto"},
        {page("200 OK", "6.10"), "Zelto Update", Newer},
        {page("200 OK", "\n"), "Version Check", Unknown},
        {{}, "Version Check", Unknown},
    };
    QWidget window;
    window.show();
    Browser browser;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.answer.constData());
        const OneAnswer vendor(row.answer);
        qputenv("ZELTO_VERSION_ADDRESS", vendor.address().toLatin1());
        browser.opened.clear();
        CheckLatestVersion(&window);
        const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
        ASSERT_TRUE(QTest::qWaitFor([&] { return box() != nullptr; }, 10000));
        EXPECT_EQ(box()->text(), QLatin1String(row.title));
        EXPECT_TRUE(box()->informativeText().startsWith(QLatin1String(row.text)));
        const bool isNewer = row.text == Newer;
        QTest::keyClick(box(), Qt::Key_Return);
        const QUrl download = QUrl(vendor.address()).resolved(QUrl(QStringLiteral("/")));
        EXPECT_EQ(browser.opened, isNewer ? download : QUrl());
    }
}

}  // namespace
}  // namespace zelto

#include "version_check_test.moc"
