// SPDX-License-Identifier: GPL-3.0-or-later
// Temporary files and folders that a program which was killed cannot remove any more, and how another one can tell: the
// owner holds a lock on what it uses, which the system takes from the dead, and the name tells the machine, since not
// every shared disk carries locks to the others. Any thread.
#pragma once

#include <QByteArray>
#include <QList>

namespace zelto {

// A few letters that stand for this machine since its start; part of the name of every such file and folder.
QByteArray machineMark();

// Locks the open file or folder that was just made at `path`. False where another program has removed it meanwhile:
// make another one then. Where the file system has no locks, the entry counts as locked.
bool lockAsOwner(int descriptor, const QByteArray& path);

// Whether the open entry of this user called `name` belongs to nobody any more. One of another machine does so after a
// day without a change.
bool isAbandoned(int descriptor, const QByteArray& name);

// The names in a folder, hidden ones, "." and ".." among them.
QList<QByteArray> namesIn(const QByteArray& folder);

}  // namespace zelto
