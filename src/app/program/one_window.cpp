// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/one_window.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QLockFile>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTimer>

#include <sys/socket.h>
#include <unistd.h>

#include <memory>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(oneWindow, "zelto.onewindow")

constexpr int AnswerMilliseconds = 5000;
constexpr int RequestMilliseconds = 10000;  // in which a whole request has to come
constexpr int MostConnections = 16;         // at a time
const QByteArray Taken("taken\n");

// Different displays, and different preferences, have windows of their own.
QString socketPlace() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) return {};
    QByteArray display = qgetenv("WAYLAND_DISPLAY") + ' ' + qgetenv("DISPLAY");
    display += ' ' + QGuiApplication::platformName().toUtf8() + ' ';
    display += QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toUtf8();
    const QByteArray mark = QCryptographicHash::hash(display, QCryptographicHash::Sha256).toHex().left(16);
    return folder + QStringLiteral("/zelto-window-") + QString::fromLatin1(mark);
}

bool isThisUsers(const QLocalSocket& socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    const auto descriptor = static_cast<int>(socket.socketDescriptor());
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::geteuid();
}

bool isTaken(QLocalSocket& socket, const StartRequest& request) {
    const QDeadlineTimer end(AnswerMilliseconds);
    socket.write(requestBytes(request));
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(static_cast<int>(end.remainingTime()))) return false;
    }
    while (socket.bytesAvailable() < Taken.size()) {
        if (!socket.waitForReadyRead(static_cast<int>(end.remainingTime()))) break;
    }
    return socket.read(Taken.size()) == Taken;
}

}  // namespace

OneWindow::OneWindow(QObject* parent) : QObject(parent), place_(socketPlace()) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.setMaxPendingConnections(MostConnections);
    connect(&server_, &QLocalServer::newConnection, this, &OneWindow::receive);
}

bool OneWindow::handOver(const StartRequest& request) {
    if (place_.isEmpty()) return false;
    // Of two that start at the same instant, the second finds the first one listening.
    QLockFile start(place_ + QStringLiteral(".lock"));
    if (!start.tryLock(AnswerMilliseconds)) return false;
    QLocalSocket socket;
    socket.connectToServer(place_);
    if (socket.waitForConnected(AnswerMilliseconds)) {
        start.unlock();
        return isThisUsers(socket) && isTaken(socket, request);
    }
    // A socket without a window behind it was left by one that crashed.
    if (socket.error() == QLocalSocket::ConnectionRefusedError) QLocalServer::removeServer(place_);
    if (!server_.listen(place_)) qCWarning(oneWindow, "%s", qUtf8Printable(server_.errorString()));
    return false;
}

void OneWindow::receive() {
    while (QLocalSocket* const socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto connections = server_.findChildren<QLocalSocket*>(QString(), Qt::FindDirectChildrenOnly);
        if (connections.size() > MostConnections || !isThisUsers(*socket)) {
            socket->abort();
            continue;
        }
        QTimer::singleShot(RequestMilliseconds, socket, &QLocalSocket::abort);
        const auto come = std::make_shared<QByteArray>();
        const auto read = [this, socket, come] {
            come->append(socket->read(MostRequestBytes + 1 - come->size()));
            const auto request = readRequest(*come);
            if (!request) {
                qCWarning(oneWindow, "what came over the socket is no request");
                socket->abort();
            } else if (*request) {
                socket->write(Taken);
                socket->disconnectFromServer();
                Q_EMIT asked(**request);
            }
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read();
    }
}

}  // namespace zelto
