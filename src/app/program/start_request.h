// SPDX-License-Identifier: GPL-3.0-or-later
// What somebody who starts the program wants to see, and the form in which one process tells it to another: the line
// "zelto 1", then a letter and a text for each thing wanted, each ended by a zero byte, and one more zero byte. Any
// thread.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace zelto {

struct StartRequest {
    std::optional<QString> setting = {};  // a saved setting's name or the path of a setting file
    QStringList photos = {};     // photos, folders and setting files; absolute, where another process is told
    QByteArray activation = {};  // the desktop's leave to come to the front; empty for none

    bool operator==(const StartRequest&) const = default;
};

// The same for a process that may have been started in another folder, with the leave that the desktop has given to this
// one.
StartRequest forAnotherProcess(StartRequest request);

// More than any command line holds.
inline constexpr qsizetype MostRequestBytes = qsizetype(4) << 20U;

QByteArray requestBytes(const StartRequest& request);

// What has come in so far may be nobody's request, however it goes on: ErrorCode::InvalidValue. Nothing where it may
// still become one.
Result<std::optional<StartRequest>> readRequest(const QByteArray& bytes);

}  // namespace zelto
