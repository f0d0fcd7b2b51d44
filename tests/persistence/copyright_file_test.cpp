// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/copyright_file.h"

#include "persistence/xml_document.h"
#include "platform/whole_file.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

class CopyrightFile : public ::testing::Test {
  protected:
    void write(const QByteArray& content) { ASSERT_TRUE(writeWholeFile(path_, content)); }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(CopyrightFileName);
};

TEST_F(CopyrightFile, KeepsEveryTextInItsOwnElementAndReadsEnabledAsSwitchedOn) {
    CopyRightMetaData m;
    QString* const texts[] = {&m.CopyrightText,  &m.CopyrightTextStatus, &m.CopyrightURL,
                              &m.Creator,        &m.CreatorAddress,      &m.CreatorCity,
                              &m.CreatorCountry, &m.CreatorJobTitle,     &m.CreatorMail,
                              &m.CreatorPhone,   &m.CreatorPostalCode,   &m.CreatorState,
                              &m.CreatorWebsite, &m.RightsUsageTerms};
    const QByteArrayList names =
        QByteArray(
            "CopyrightText CopyrightTextStatus CopyrightURL Creator CreatorAddress CreatorCity "
            "CreatorCountry CreatorJobTitle CreatorMail CreatorPhone CreatorPostalCode CreatorState "
            "CreatorWebsite RightsUsageTerms")
            .split(' ');
    QByteArray document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?> <Copyright> ";
    for (qsizetype i = 0; i < names.size(); ++i) {
        *texts[i] = QString::fromLatin1(names[i]).toLower();
        document += "<" + names[i] + ">" + names[i].toLower() + "</" + names[i] + "> ";
    }
    document += "<Enabled>0</Enabled> </Copyright>";
    ASSERT_TRUE(SaveCopyRightMetadata(m, path_));
    EXPECT_EQ(readXmlFile(path_)->simplified().toStdString(), document.toStdString());

    CopyRightMetaData read;
    ASSERT_TRUE(LoadMetadata(read, path_));
    m.Enabled = true;
    EXPECT_EQ(read, m);
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
    EXPECT_EQ(LoadMetadata(metadata, path_).error().code, ErrorCode::InvalidFile);
    EXPECT_EQ(metadata, before);
}

}  // namespace
}  // namespace zelto
