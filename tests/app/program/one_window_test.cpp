// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/one_window.h"

#include "support/testing.h"

#include <QDir>
#include <QLocalSocket>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <future>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

QString socketPath() {
    const QDir runtime(qEnvironmentVariable("XDG_RUNTIME_DIR"));
    const QStringList sockets = runtime.entryList({u"zelto-window-*"_s}, QDir::System);
    return sockets.size() == 1 ? runtime.filePath(sockets.first()) : QString();
}

// A start of the program on a thread of its own, as another process would be.
std::future<bool> startAnother(const StartRequest& request) {
    return std::async(std::launch::async, [request] { return OneWindow().handOver(request); });
}

bool isReady(const std::future<bool>& start) {
    return start.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

// What a window that crashed leaves: a socket that nobody listens at.
void leaveSocket(const QByteArray& path) {
    const int stale = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof address.sun_path);
    std::copy(path.begin(), path.end(), address.sun_path);
    ASSERT_EQ(::bind(stale, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);  // NOLINT
    ::close(stale);
}

TEST(OneWindow, TheFirstStartGetsWhatAllOthersWantAlsoAfterACrash) {
    {
        OneWindow before;
        ASSERT_FALSE(before.handOver({}));
        const QByteArray path = QFile::encodeName(socketPath());
        QFile::remove(socketPath());
        leaveSocket(path);
    }
    std::vector<StartRequest> come;
    OneWindow window;
    QObject::connect(&window, &OneWindow::asked, [&](const StartRequest& asked) { come.push_back(asked); });
    const StartRequest wanted{u"Mine"_s, {u"/a b\n.jpg"_s, u"/ü.zcs"_s}, "token"};
    std::vector<std::future<bool>> starts;
    EXPECT_FALSE(window.handOver({}));
    for (int i = 0; i < 4; ++i) starts.push_back(startAnother(wanted));
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::all_of(starts.begin(), starts.end(), isReady); }, 20000));
    for (auto& start : starts) EXPECT_TRUE(start.get());
    EXPECT_EQ(come, std::vector<StartRequest>(4, wanted));
}

TEST(OneWindow, WhatIsNoRequestIsRefusedAndTheNextOneServed) {
    OneWindow window;
    ASSERT_FALSE(window.handOver({}));
    int come = 0;
    QObject::connect(&window, &OneWindow::asked, [&] { ++come; });
    const QByteArray good = requestBytes({u"Mine"_s, {u"/a.jpg"_s}, {}});
    const QByteArray relative = requestBytes({{}, {u"a.jpg"_s}, {}});
    for (const QByteArray& bytes :
         {QByteArray("GET / HTTP/1.1\r\n"), QByteArray(100, '\0'), relative, good + good,
          "zelto 2\n" + good.mid(8), QByteArray(good).replace("s", "?"),
          good.left(8) + 'p' + QByteArray(MostRequestBytes, 'x')}) {
        QLocalSocket socket;
        socket.connectToServer(socketPath());
        socket.write(bytes);
        EXPECT_TRUE(QTest::qWaitFor([&] { return socket.state() == QLocalSocket::UnconnectedState; }))
            << bytes.left(20).toStdString();
        EXPECT_TRUE(socket.readAll().isEmpty());
    }
    // One that says nothing keeps nobody waiting.
    QLocalSocket silent;
    silent.connectToServer(socketPath());
    silent.write(good.left(9));
    const auto next = startAnother({u"Mine"_s, {}, {}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return isReady(next); }));
    EXPECT_EQ(come, 1);
}

}  // namespace
}  // namespace zelto
