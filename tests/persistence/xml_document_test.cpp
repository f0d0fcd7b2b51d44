// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/xml_document.h"

#include "support/testing.h"

namespace zelto {
namespace {

constexpr QLatin1String Root("Root");

Result<XmlElement> read(const QByteArray& document) {
    return readXml(document, Root, QStringLiteral("a%1b.zcs"));
}

TEST(XmlDocument, EveryTextReadsBackAsItWas) {
    QString everyCharacter;
    for (int c = 0; c <= 0xFFFF; ++c) everyCharacter.append(QChar(c)).append(u' ');
    const QString texts[] = {
        everyCharacter,
        QStringLiteral("one\r\ntwo\rthree\nfour\t \r"),
        QStringLiteral("  leading and trailing  \n"),
        QStringLiteral("<a href=\"x\">&amp; ]]> 'q' --> &#x1D; &#x26; &#x26;#x26; &#x41; &#x; \\x001D \\\\"),
        QString::fromUtf8("\xF0\x9F\x93\xB7 \xC3\xA9"),
        QStringLiteral("GS1") + QChar(0x1D) + QChar(0) + QStringLiteral("\\x]d2\\\\") + QChar(0xD83D),
        QString(),
    };
    for (const QString& text : texts) {
        const QByteArray document = writeXml(
            Root, [&text](QXmlStreamWriter& writer) { writeXmlElement(writer, QLatin1String("T"), text); });
        const Result<XmlElement> root = read(document);
        ASSERT_TRUE(root) << root.error().message.toStdString();
        ASSERT_EQ(root->children.size(), 1U);
        EXPECT_EQ(root->children[0].text, text) << document.toStdString().substr(0, 200);
        EXPECT_FALSE(root->children[0].text.isNull()) << "an empty text is not an absent one";
    }
    // What other programs write is never taken for an escape.
    EXPECT_EQ(read("<Root><T>&amp;#x26; \\x001D \\\\</T></Root>")->children[0].text,
              QStringLiteral("&#x26; \\x001D \\\\"));
}

TEST(XmlDocument, RefusesWhatIsHostileOrNoXmlAndSaysWhere) {
    QByteArray manyAttributes = "<Root>\n<a ";
    for (int i = 0; i < 100000; ++i) manyAttributes += "a" + QByteArray::number(i) + "='>' ";
    const QByteArray deep = QByteArray("<Root>").append(QByteArray("<a>").repeated(100000));
    const std::pair<QByteArray, const char*> rows[] = {
        {"", "line 1: "},
        {"no xml at all", "line 1: "},
        {"<Root>\n<a>cut sho", "line 2: "},
        {"<Root/>\n\n<Root/>", "line 3: "},
        {"<?xml version=\"1.0\"?>\n<Other/>", "line 2: the file's root is “Other” instead of “Root”"},
        {"<!DOCTYPE Root [<!ENTITY x \"y\">]><Root>&x;</Root>", "line 1: a document type declaration"},
        {"<!-- > --><?p ?>\n<!DOCTYPE Root SYSTEM \"http://x/\"><Root/>",
         "line 2: a document type declaration"},
        {"<Root>\n\n&x;</Root>", "line 3: "},
        {"<Root>\n\xFF\xFE</Root>", "line "},
        {QByteArray("<Root>\n\0</Root>", 15), "line 2: the file is not UTF-8 text"},
        {"<?xml version=\"1.0\" encoding=\"klingon\"?><Root/>", "line 1: "},
        {manyAttributes + "/></Root>", "line 2: a tag is too long"},
        {deep, "line 1: the elements are nested too deeply"},
        {"<Root>" + QByteArray("<a/>").repeated(200'001) + "</Root>",
         "line 1: the file holds too many elements"},
    };
    for (const auto& [document, message] : rows) {
        const Result<XmlElement> root = read(document);
        ASSERT_FALSE(root) << document.left(80).toStdString();
        EXPECT_EQ(root.error().code, ErrorCode::InvalidFile);
        EXPECT_THAT(root.error().message.toStdString(), HasSubstr(std::string("a%1b.zcs, ") + message));
    }
}

TEST(XmlDocument, AcceptsCommentsSectionsAndEveryLetterCaseOfTheRoot) {
    const Result<XmlElement> root = read(
        "\xEF\xBB\xBF<?xml version='1.0'?><!-- <!DOCTYPE a> -->\n<rOOT><n:v type='7>\"'>a<!-- 'x -->b"
        "<![CDATA[<!c]]><w Type=\"8\"/>d</n:v></rOOT>");
    ASSERT_TRUE(root) << root.error().message.toStdString();
    ASSERT_EQ(root->children.size(), 1U);
    EXPECT_EQ(root->children[0].type, QStringLiteral("7>\""));
    EXPECT_EQ(root->children[0].text, QStringLiteral("ab<!cd"));
    EXPECT_EQ(root->children[0].line, 2);
    EXPECT_EQ(root->children[0].children.at(0).type, QStringLiteral("8"));
}

TEST(XmlDocument, ReadsSwitchesAndNumbersOfEveryForm) {
    for (const char* text : {"True", "true", " 1\n", "2"})
        EXPECT_TRUE(toBool(QLatin1String(text), false)) << text;
    for (const char* text : {"False", "FALSE ", "0"}) EXPECT_FALSE(toBool(QLatin1String(text), true)) << text;
    for (const bool fallback : {false, true}) EXPECT_EQ(toBool(QStringLiteral("yes"), fallback), fallback);
    constexpr auto Most = std::numeric_limits<qint64>::max();
    const std::pair<const char*, qint64> numbers[] = {
        {"-12", -12},  {" 7\n", 7},
        {"12.9", 12},  {"1e3", 1000},
        {"nan", 42},   {"", 42},
        {"12px", 42},  {"9223372036854775808", Most},
        {"inf", Most}, {"-1e400", std::numeric_limits<qint64>::min()}};
    for (const auto& [text, value] : numbers) EXPECT_EQ(toInteger(QLatin1String(text), 42), value) << text;
}

}  // namespace
}  // namespace zelto
