// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/copyright_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

class CopyrightFile : public ::testing::Test {
  protected:
    void write(const QByteArray& content) {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(CopyrightFileName);
};

TEST_F(CopyrightFile, KeepsEveryTextInItsOwnElementAndReadsEnabledAsSwitchedOn) {
    const QByteArray names[] = {
        "CopyrightText",     "CopyrightTextStatus", "CopyrightURL",    "Creator",         "CreatorAddress",
        "CreatorCity",       "CreatorCountry",      "CreatorJobTitle", "CreatorMail",     "CreatorPhone",
        "CreatorPostalCode", "CreatorState",        "CreatorWebsite",  "RightsUsageTerms"};
    QByteArray document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Copyright>\n";
    for (const QByteArray& name : names)
        document += "    <" + name + ">" + name.toLower() + "</" + name + ">\n";
    document += "    <Enabled>0</Enabled>\n</Copyright>\n";
    CopyRightMetaData metadata{false,
                               QStringLiteral("copyrighttext"),
                               QStringLiteral("copyrighttextstatus"),
                               QStringLiteral("copyrighturl"),
                               QStringLiteral("rightsusageterms"),
                               QStringLiteral("creator"),
                               QStringLiteral("creatoraddress"),
                               QStringLiteral("creatorcity"),
                               QStringLiteral("creatorcountry"),
                               QStringLiteral("creatorjobtitle"),
                               QStringLiteral("creatormail"),
                               QStringLiteral("creatorphone"),
                               QStringLiteral("creatorpostalcode"),
                               QStringLiteral("creatorstate"),
                               QStringLiteral("creatorwebsite")};
    ASSERT_TRUE(SaveCopyRightMetadata(metadata, path_));
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray written = file.readAll();
    EXPECT_EQ(written.simplified().toStdString(), document.simplified().toStdString());

    CopyRightMetaData read;
    ASSERT_TRUE(LoadMetadata(read, path_));
    metadata.Enabled = true;
    EXPECT_EQ(read, metadata);
}

TEST_F(CopyrightFile, OnlyTheWordFalseSwitchesOff) {
    for (const auto& [text, enabled] :
         {std::pair{"False", false}, {"false", true}, {"0", true}, {"", true}}) {
        write(QByteArray("<Copyright><Other/><Enabled>") + text +
              "</Enabled><Creator>A\nB</Creator></Copyright>");
        CopyRightMetaData metadata;
        metadata.CopyrightText = QStringLiteral("kept");
        ASSERT_TRUE(LoadMetadata(metadata, path_));
        EXPECT_EQ(metadata.Enabled, enabled) << text;
        EXPECT_EQ(metadata.Creator, QStringLiteral("A\nB"));
        EXPECT_EQ(metadata.CopyrightText, QStringLiteral("kept"));
    }
}

TEST_F(CopyrightFile, MissingOrBrokenLeavesTheRecordAsItIs) {
    CopyRightMetaData metadata;
    metadata.Creator = QStringLiteral("kept");
    const CopyRightMetaData before = metadata;
    EXPECT_TRUE(LoadMetadata(metadata, path_));
    EXPECT_EQ(metadata, before);
    write("<Copyright><Creator>new</Creator><Enabled>1</Enabled>");
    const Result<void> loaded = LoadMetadata(metadata, path_);
    ASSERT_FALSE(loaded);
    EXPECT_EQ(loaded.error().code, ErrorCode::InvalidFile);
    EXPECT_EQ(metadata, before);
}

}  // namespace
}  // namespace zelto
