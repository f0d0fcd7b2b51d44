// SPDX-License-Identifier: GPL-3.0-or-later
// The exiftool of the system, for tests that need metadata written or read by another program than ours.
#pragma once

#include <QString>
#include <QStringList>

namespace zelto {

// Writes tags given as exiftool takes them ("-IPTC:City=Bern", UTF-8) into existing files. False, with a
// message on standard error, where exiftool is missing or refuses.
bool writeTags(const QStringList& tags, const QStringList& paths);

}  // namespace zelto
