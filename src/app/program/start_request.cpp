// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/start_request.h"

#include <QFile>
#include <QFileInfo>

namespace zelto {
namespace {

const QByteArray Head("zelto 1\n");

enum Kind : char { Setting = 's', Photo = 'p', Activation = 'a' };

}  // namespace

StartRequest forAnotherProcess(StartRequest request) {
    if (request.setting && QFileInfo(*request.setting).isFile())
        request.setting = QFileInfo(*request.setting).absoluteFilePath();
    for (QString& photo : request.photos) photo = QFileInfo(photo).absoluteFilePath();
    request.activation = qgetenv("XDG_ACTIVATION_TOKEN");
    return request;
}

QByteArray requestBytes(const StartRequest& request) {
    QByteArray bytes = Head;
    const auto add = [&bytes](Kind kind, const QByteArray& text) {
        bytes.append(kind).append(text).append('\0');
    };
    if (request.setting) add(Setting, QFile::encodeName(*request.setting));
    for (const QString& photo : request.photos) add(Photo, QFile::encodeName(photo));
    if (!request.activation.isEmpty()) add(Activation, request.activation);
    return bytes.append('\0');
}

Result<std::optional<StartRequest>> readRequest(const QByteArray& bytes) {
    const auto wrong = [] { return fail(ErrorCode::InvalidValue, QStringLiteral("This is no request.")); };
    if (bytes.size() > MostRequestBytes || !bytes.startsWith(Head.left(bytes.size()))) return wrong();
    // Where it does not end yet, what is in between is not looked at each time a little more has come.
    const bool ends = bytes.endsWith(QByteArray(2, '\0')) || bytes == Head + '\0';
    if (!ends) return std::optional<StartRequest>();
    StartRequest request;
    qsizetype at = Head.size();
    while (at < bytes.size()) {
        const qsizetype end = bytes.indexOf('\0', at);
        if (end < 0) break;
        if (end == at) {
            if (end + 1 != bytes.size()) return wrong();
            return std::optional(request);
        }
        const QByteArray text = bytes.mid(at + 1, end - at - 1);
        switch (bytes[at]) {
            case Setting:
                request.setting = QFile::decodeName(text);
                break;
            case Photo:
                if (!text.startsWith('/')) return wrong();
                request.photos.append(QFile::decodeName(text));
                break;
            case Activation:
                request.activation = text;
                break;
            default:
                return wrong();
        }
        at = end + 1;
    }
    return std::optional<StartRequest>();
}

}  // namespace zelto
