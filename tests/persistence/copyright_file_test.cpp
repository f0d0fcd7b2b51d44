// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/copyright_file.h"

#include "persistence/xml_document.h"
#include "platform/whole_file.h"
#include "support/testing.h"

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
    for (const auto& [element, enabled] : {std::pair{"<Enabled>False</Enabled>", false},
                                           {"<Enabled>false</Enabled>", true},
                                           {"<Enabled>0</Enabled>", true},
                                           {"<Enabled/>", true},
                                           {"", true}}) {
        write(QByteArray("<Copyright><Other/>") + element + "<Creator>A\nB</Creator></Copyright>");
        EXPECT_EQ(copyrightToUse(path_)->Enabled, enabled) << element;
        CopyRightMetaData metadata;
        metadata.CopyrightText = QStringLiteral("kept");
        ASSERT_TRUE(LoadMetadata(metadata, path_));
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
