// SPDX-License-Identifier: GPL-3.0-or-later
// The guide is installed as one folder, with an edition in German: the pages of each refer to nothing outside it, call
// things as the window does, and have the same commands.
#include "house/source_text.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

QStringList matches(const QString& text, const QString& pattern) {
    QStringList found;
    const QRegularExpression wanted(pattern, QRegularExpression::DotMatchesEverythingOption);
    for (auto match = wanted.globalMatch(text); match.hasNext();) found.append(match.next().captured(1));
    return found;
}

// The pages of the edition in `folder` that its contents lead to, by their names.
QMap<QString, QString> pagesOf(const QDir& folder) {
    QMap<QString, QString> pages;
    QStringList names(u"index.md"_s);
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString& page = pages[names[i]] = contentOf(folder.filePath(names[i]));
        for (const QString& reference : matches(page, uR"re(\]\(([^)#\s]+)[^)]*\))re"_s)) {
            if (reference.startsWith(u"https://"_s)) continue;
            EXPECT_TRUE(!reference.contains(u".."_s) && QFile::exists(folder.filePath(reference)))
                << qPrintable(folder.filePath(names[i])) << " refers to " << qPrintable(reference);
            if (reference.endsWith(u".md"_s) && !names.contains(reference)) names.append(reference);
        }
    }
    return pages;
}

// Everything the window says, as `kind` of the German translations: "source" or "translation".
QSet<QString> textsOf(QStringView kind) {
    QSet<QString> texts;
    QXmlStreamReader xml(contentOf(QStringLiteral(ZELTO_SOURCE_DIR "/translations/zelto_de.ts")));
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement() || xml.name() != kind) continue;
        const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        texts.insert(QString(text).remove(u'&').remove(u"..."_s).remove(QRegularExpression(u":$"_s)));
    }
    return texts;
}

TEST(Guide, BothEditionsAreWholeNameThingsAsTheWindowDoesAndHaveTheSameCommands) {
    const QString folder = QStringLiteral(ZELTO_SOURCE_DIR "/docs/guide");
    const QMap<QString, QString> english = pagesOf(folder);
    const QMap<QString, QString> german = pagesOf(folder + u"/de"_s);
    EXPECT_GT(english.size(), 7);
    EXPECT_EQ(english.keys(), german.keys());
    const QStringList others = {u"Open With"_s, u"Öffnen mit"_s, u"Zelto"_s, u"pdf"_s};
    for (const auto& [pages, kind] : {std::pair(&english, u"source"), {&german, u"translation"}}) {
        const QSet<QString> texts = textsOf(kind);
        for (const QString& page : *pages) {
            for (const QString& path : matches(page, uR"(\*\*(.+?)\*\*)"_s)) {
                for (const QString& name : path.simplified().remove(u"..."_s).split(u" > "_s))
                    EXPECT_TRUE(texts.contains(name) || others.contains(name)) << qPrintable(name);
            }
        }
    }
    for (const QString& name : english.keys()) {
        for (const QString& commands : {uR"(```\n(.+?)\n```)"_s, uR"(`((?:--|<|\[)[^`]+)`)"_s}) {
            QStringList here = matches(english[name], commands);
            QStringList there = matches(german.value(name), commands);
            for (QStringList* list : {&here, &there}) list->sort();
            EXPECT_EQ(here.join(u'\n').toStdString(), there.join(u'\n').toStdString()) << qPrintable(name);
        }
    }
}

}  // namespace
}  // namespace zelto
