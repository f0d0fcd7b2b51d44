// SPDX-License-Identifier: GPL-3.0-or-later
// What the programs say is marked, and the translations are complete and keep what a text must keep.
#include "house/source_text.h"
#include "support/testing.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace zelto {
namespace {

const QString Root = QStringLiteral(ZELTO_SOURCE_DIR "/");

struct Entry {
    QString source;
    QStringList forms;  // more than one where a number decides
    bool isFinished = true;
};

std::vector<Entry> entriesOf(const QString& path) {
    std::vector<Entry> entries;
    QXmlStreamReader xml(contentOf(path));
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement()) continue;
        if (xml.name() == u"source") entries.push_back({xml.readElementText(), {}, true});
        if (xml.name() == u"translation") {
            Entry& entry = entries.back();
            entry.isFinished = !xml.attributes().hasAttribute(u"type"_s);
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            entry.forms = text.trimmed().split(QRegularExpression(u"\\n\\s+"_s));
        }
    }
    return entries;
}

// What a text holds that its translation must hold too.
QStringList placeholders(const QString& text) {
    static const QRegularExpression one(u"%L?[1-9]|%[vm]|<[^>]+>"_s);
    QStringList found;
    for (auto match = one.globalMatch(text); match.hasNext();) found.append(match.next().captured());
    found.sort();
    return found;
}

bool hasMnemonic(const QString& text) {
    return text.contains(QRegularExpression(u"&[^&\\s]"_s));
}

TEST(Translations, AreCurrentCompleteAndKeepWhatTextsHold) {
    const QTemporaryDir folder;
    for (const auto& [language, forms] : {std::pair("en", 2), {"de", 2}, {"ar", 6}}) {
        const QString name = u"zelto_%1.ts"_s.arg(QLatin1String(language));
        const QString copy = folder.filePath(name);
        ASSERT_TRUE(QFile::copy(Root + u"translations/"_s + name, copy));
        QStringList arguments = QStringLiteral(ZELTO_LUPDATE_ARGUMENTS).split(u'|');
        if (name == u"zelto_en.ts") arguments.append(u"-pluralonly"_s);
        ASSERT_EQ(QProcess::execute(QStringLiteral(ZELTO_LUPDATE), arguments + QStringList{u"-ts"_s, copy}),
                  0);
        const std::vector<Entry> entries = entriesOf(copy);
        EXPECT_GT(entries.size(), 10U);
        for (const Entry& entry : entries) {
            const std::string what = entry.source.toStdString() + " in " + name.toStdString();
            EXPECT_TRUE(entry.isFinished && !entry.forms.first().isEmpty()) << "no translation of " << what;
            const bool isCounted = entry.source.contains(u"%n"_s) || entry.source.contains(u"%Ln"_s);
            EXPECT_EQ(entry.forms.size(), isCounted ? forms : 1) << what;
            for (const QString& form : entry.forms) {
                EXPECT_EQ(placeholders(form), placeholders(entry.source)) << what;
                EXPECT_EQ(hasMnemonic(form), hasMnemonic(entry.source)) << what;
            }
        }
        EXPECT_EQ(entriesOf(Root + u"translations/"_s + name).size(), entries.size())
            << "texts went away: build the target update_translations";
    }
}

TEST(Translations, NoSentenceIsLeftUnmarked) {
    static const QRegularExpression literal(
        uR"re((?:QStringLiteral|QLatin1String)\(\s*"((?:[^"\\]|\\.)*)"|\bu"((?:[^"\\]|\\.)*)"_s)re"_s);
    static const QRegularExpression sentence(
        u"[A-Za-z]{2,}[,:]? [a-z]{2,}|” [a-z]|^[A-Z][a-z]+ [A-Z]?[a-z]+$"_s);
    // What goes into files, and the files whose sentences are another program's or for the log.
    const QStringList kept = {u"Last Watermark"_s, u"Longer Side"_s, u"Same as source image"_s,
                              u"QToolButton::menu-indicator { image: none; }"_s, u"This is no request."_s};
    const QStringList unread = {u"metadata_transfer.cpp"_s, u"macro_expander.cpp"_s, u"completions.cpp"_s,
                                u"manual_texts.cpp"_s};
    int literals = 0;
    QDirIterator sources(Root + u"src"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString path = sources.next();
        if (unread.contains(sources.fileName())) continue;
        for (auto match = literal.globalMatch(contentOf(path)); match.hasNext(); ++literals) {
            const auto found = match.next();
            const QString text = found.captured(1) + found.captured(2);
            EXPECT_FALSE(sentence.match(text).hasMatch() && !kept.contains(text))
                << qPrintable(path) << " says “" << qPrintable(text) << "” in English only";
        }
    }
    EXPECT_GT(literals, 300) << "the sources are not where they were looked for";
}

}  // namespace
}  // namespace zelto
