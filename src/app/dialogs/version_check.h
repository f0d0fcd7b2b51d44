// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the vendor which version is the newest, and tells the user. Main thread only; the window goes on meanwhile.
#pragma once

#include <QUrl>

class QWidget;

namespace zelto {

// Where to ask, and where to send a user who wants the newest version. Either is what the environment says, else what
// the preferences say, else what the program was built with.
struct VersionAddresses {
    QUrl version;   // a text of one line; invalid where there is nobody to ask
    QUrl download;  // a page for the browser; by default the root of the site that was asked
};
VersionAddresses versionAddresses();

// A version that cannot be found out counts as another than this one.
void CheckLatestVersion(QWidget* window);

}  // namespace zelto
