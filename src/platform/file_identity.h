// SPDX-License-Identifier: GPL-3.0-or-later
// Telling whether two paths lead to the same file. Paths are not compared as texts: links, "..", a second name of one
// file, and file systems that ignore letter case (memory cards, network shares) all give one file several spellings.
// Looks at the disk; any thread.
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

namespace zelto {

// Which file a path leads to. Compare identities while neither file is being written: a file that is replaced keeps
// its place and becomes another file.
struct FileIdentity {
    // The directory entry: its folder's device and inode and its name, in one letter case where the folder ignores
    // case. Two outputs take each other's place exactly if this is equal. Never empty.
    QByteArray place;
    // Device and inode of the file behind it, links followed; empty where there is none.
    QByteArray file;
};

// Of a path that need not exist; of its folders, those that do not exist count as part of the name. Whether a folder
// ignores case is asked of its file system once per process: by looking a name in it up in the other case; in a folder
// that has none by its own name; and where that says nothing, as with an empty card, by creating a file for a moment.
FileIdentity fileIdentity(const QString& path);

// Whether the two are one file or one place.
bool isSameFile(const FileIdentity& one, const FileIdentity& other);

// Files to look others up in.
class FileSet {
  public:
    void insert(const FileIdentity& identity);
    bool contains(const FileIdentity& identity) const;

  private:
    QSet<QByteArray> keys_;
};

}  // namespace zelto
