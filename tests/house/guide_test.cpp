// SPDX-License-Identifier: GPL-3.0-or-later
// The guide is installed as one folder: its pages refer to nothing outside it.
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

TEST(Guide, WhereverItsContentsLeadIsAFileOfItsOwnFolder) {
    const QDir guide(QStringLiteral(ZELTO_SOURCE_DIR "/docs/guide"));
    QStringList pages(u"index.md"_s);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        for (const QString& reference : references(guide.filePath(pages[i]))) {
            if (reference.startsWith(u"https://"_s)) continue;
            EXPECT_TRUE(!reference.contains(u".."_s) && QFile::exists(guide.filePath(reference)))
                << qPrintable(pages[i]) << " refers to " << qPrintable(reference);
            if (reference.endsWith(u".md"_s) && !pages.contains(reference)) pages.append(reference);
        }
    }
    EXPECT_GT(pages.size(), 7);
}

}  // namespace
}  // namespace zelto
