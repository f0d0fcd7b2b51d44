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
        bool isLatest;
    };
    const Row rows[] = {
        {page("200 OK", "6.1\n"), true},
        {page("200 OK", "6.2"), false},
        {page("200 OK", "6.10"), false},
        {page("404 Not Found", "6.1"), false},
        {{}, false},
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
        EXPECT_EQ(box()->text(),
                  row.isLatest ? QStringLiteral("Version Check") : QStringLiteral("Zelto Update"));
        EXPECT_EQ(
            box()->informativeText(),
            row.isLatest
                ? QStringLiteral("You are using the latest version of Zelto")
                : QStringLiteral("A new version of Zelto is available. Would you like to download it now?"));
        QTest::keyClick(box(), Qt::Key_Return);
        const QUrl download = QUrl(vendor.address()).resolved(QUrl(QStringLiteral("/")));
        EXPECT_EQ(browser.opened, row.isLatest ? QUrl() : download);
    }
}

}  // namespace
}  // namespace zelto

#include "version_check_test.moc"
