// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/settings_library.h"

#include "persistence/xml_document.h"
#include "platform/whole_file.h"
#include "support/testing.h"

namespace zelto {
namespace {

class Library : public ::testing::Test {
  protected:
    static void write(const QString& folder, const char* name, const QByteArray& content = "x") {
        ASSERT_TRUE(writeWholeFile(folder + u'/' + QString::fromUtf8(name), content));
    }
    static QByteArray content(const QString& folder, const char* name) {
        return readXmlFile(folder + u'/' + QString::fromUtf8(name)).value_or("(none)");
    }
    static QStringList list(const char* names) { return QString::fromUtf8(names).split(u'|'); }

    QTemporaryDir settings_;
    QTemporaryDir other_;
    SettingsLibrary library_{settings_.path()};
};

TEST_F(Library, ListsEverySettingOnceWhateverTheCaseOfItsExtension) {
    for (const char* name : {"b.zcs", "A.ZCS", "b.Zcs", "c d.é.zcs", ".hidden.zcs", "x.xml", ".zcs", "zcs"}) {
        write(settings_.path(), name);
    }
    QDir(settings_.path()).mkdir(QStringLiteral("folder.zcs"));
    EXPECT_EQ(library_.names(), list(".hidden|A|b|c d.é"));
    EXPECT_EQ(SettingsLibrary(QStringLiteral("/no/such")).names().error().code, ErrorCode::NotFound);
}

TEST_F(Library, FindsAndDeletesAFileOfAnyExtensionCaseAndPrefersTheUsualOne) {
    write(settings_.path(), "a.ZCS");
    QDir(settings_.path()).mkdir(QStringLiteral("folder.zcs"));
    EXPECT_EQ(library_.path(QStringLiteral("a")), settings_.filePath(QStringLiteral("a.ZCS")));
    EXPECT_EQ(library_.path(QStringLiteral("new")), settings_.filePath(QStringLiteral("new.zcs")));
    EXPECT_TRUE(library_.contains(QStringLiteral("a")));
    EXPECT_FALSE(library_.contains(QStringLiteral("A")));
    EXPECT_FALSE(library_.contains(QStringLiteral("folder")));
    write(settings_.path(), "a.zcs");
    EXPECT_TRUE(library_.remove(QStringLiteral("a")));
    EXPECT_EQ(library_.path(QStringLiteral("a")), settings_.filePath(QStringLiteral("a.ZCS")));
    EXPECT_TRUE(library_.remove(QStringLiteral("a")));
    EXPECT_EQ(library_.remove(QStringLiteral("a")).error().code, ErrorCode::NotFound);
    EXPECT_FALSE(library_.remove(QStringLiteral("folder")));
}

TEST_F(Library, RefusesNamesThatLeadElsewhere) {
    write(other_.path(), "a.zcs");
    for (const QString& name :
         list("|../a|/a|a/b|a\\b") + QStringList{other_.filePath(QStringLiteral("a")), QString(QChar(0))}) {
        EXPECT_EQ(library_.path(name).error().code, ErrorCode::InvalidValue) << name.toStdString();
        EXPECT_FALSE(library_.remove(name));
        EXPECT_FALSE(library_.contains(name));
    }
    EXPECT_EQ(content(other_.path(), "a.zcs"), "x");
}

TEST_F(Library, ImportNumbersTakenNamesAndNeverReplacesAFile) {
    write(settings_.path(), "a.zcs", "old");
    write(settings_.path(), "b2.zcs", "old");
    QDir(settings_.path()).mkdir(QStringLiteral("d.zcs"));
    const char* const sources[] = {"a.zcs", "b.ZCS", "b.zcs", "d.zcs", "note.txt"};
    for (const char* name : sources) write(other_.path(), name, name);
    EXPECT_EQ(library_.importFrom(other_.path()), 4);
    EXPECT_EQ(library_.importFrom(other_.path()), 4);
    const std::pair<const char*, const char*> rows[] = {
        {"a.zcs", "old"},    {"a1.zcs", "a.zcs"}, {"a2.zcs", "a.zcs"}, {"b.ZCS", "b.ZCS"},
        {"b1.zcs", "b.zcs"}, {"b2.zcs", "old"},   {"b3.ZCS", "b.ZCS"}, {"b4.zcs", "b.zcs"},
        {"d1.zcs", "d.zcs"}, {"d2.zcs", "d.zcs"}};
    for (const auto& [name, bytes] : rows) EXPECT_EQ(content(settings_.path(), name), bytes) << name;
    EXPECT_EQ(QDir(settings_.path()).entryList(QDir::Files | QDir::Hidden).size(),
              qsizetype(std::size(rows)));
}

TEST_F(Library, ExportGoesTheOtherWayAndOneBadFileDoesNotStopTheOthers) {
    write(settings_.path(), "a.zcs", "a");
    write(settings_.path(), "c.zcs", "c");
    QFile big(settings_.filePath(QStringLiteral("b.zcs")));
    // Sparse: too large for a setting.
    ASSERT_TRUE(big.open(QIODevice::WriteOnly) && big.resize(qint64{1} << 30));
    const Result<qsizetype> exported = library_.exportTo(other_.path());
    ASSERT_FALSE(exported);
    EXPECT_TRUE(exported.error().path.endsWith(QStringLiteral("b.zcs")));
    EXPECT_EQ(content(other_.path(), "a.zcs"), "a");
    EXPECT_EQ(content(other_.path(), "c.zcs"), "c");
    EXPECT_EQ(library_.exportTo(settings_.path()).error().code, ErrorCode::InvalidValue);
    EXPECT_EQ(library_.exportTo(QStringLiteral("/no/such")).error().code, ErrorCode::NotFound);
}

}  // namespace
}  // namespace zelto
