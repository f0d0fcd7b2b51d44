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
    CopyRightMetaData metadata;
    const std::pair<const char*, QString*> fields[] = {{"CopyrightText", &metadata.CopyrightText},
                                                       {"CopyrightTextStatus", &metadata.CopyrightTextStatus},
                                                       {"CopyrightURL", &metadata.CopyrightURL},
                                                       {"Creator", &metadata.Creator},
                                                       {"CreatorAddress", &metadata.CreatorAddress},
                                                       {"CreatorCity", &metadata.CreatorCity},
                                                       {"CreatorCountry", &metadata.CreatorCountry},
                                                       {"CreatorJobTitle", &metadata.CreatorJobTitle},
                                                       {"CreatorMail", &metadata.CreatorMail},
                                                       {"CreatorPhone", &metadata.CreatorPhone},
                                                       {"CreatorPostalCode", &metadata.CreatorPostalCode},
                                                       {"CreatorState", &metadata.CreatorState},
                                                       {"CreatorWebsite", &metadata.CreatorWebsite},
                                                       {"RightsUsageTerms", &metadata.RightsUsageTerms}};
    QByteArray document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?> <Copyright> ";
    for (const auto& [name, text] : fields) {
        *text = QString::fromLatin1(name).toLower();
        document += QByteArray("<") + name + ">" + text->toUtf8() + "</" + name + "> ";
    }
    document += "<Enabled>0</Enabled> </Copyright>";
    ASSERT_TRUE(SaveCopyRightMetadata(metadata, path_));
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().simplified().toStdString(), document.toStdString());

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
