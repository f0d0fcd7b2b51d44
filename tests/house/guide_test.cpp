// SPDX-License-Identifier: GPL-3.0-or-later
// The guide is installed as one folder: its pages and pictures refer to nothing outside it, and its contents name every
// page.
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

QSet<QString> references(const QString& page) {
    static const QRegularExpression link(uR"re(\]\(([^)#\s]+)[^)]*\))re"_s);
    QFile file(page);
    if (!file.open(QFile::ReadOnly)) return {};
    QSet<QString> found;
    for (auto match = link.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
        found.insert(match.next().captured(1));
    return found;
}

TEST(Guide, ReferencesLeadToFilesOfItsOwnFolderAndItsContentsNameEveryPage) {
    const QDir guide(QStringLiteral(ZELTO_SOURCE_DIR "/docs/guide"));
    const QSet<QString> contents = references(guide.filePath(u"index.md"_s));
    for (const QString& page : guide.entryList({u"*.md"_s}, QDir::Files)) {
        EXPECT_TRUE(page == u"index.md" || contents.contains(page))
            << qPrintable(page) << " is not in index.md";
        for (const QString& reference : references(guide.filePath(page))) {
            if (reference.startsWith(u"https://"_s)) continue;
            EXPECT_TRUE(!reference.contains(u".."_s) && QFile::exists(guide.filePath(reference)))
                << qPrintable(page) << " refers to " << qPrintable(reference);
        }
    }
    EXPECT_GE(contents.size(), 7);
}

}  // namespace
}  // namespace zelto
