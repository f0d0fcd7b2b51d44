// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"
#include "persistence/copyright_file.h"
#include "support/testing.h"

#include <QLineEdit>

namespace zelto {
namespace {

using Data = CopyRightMetaData;
constexpr std::pair<const char*, QString Data::*> Lines[] = {
    {"CopyrightText", &Data::CopyrightText},
    {"CopyrightURL", &Data::CopyrightURL},
    {"RightsUsageTerms", &Data::RightsUsageTerms},
    {"Creator", &Data::Creator},
    {"CreatorAddress", &Data::CreatorAddress},
    {"CreatorCity", &Data::CreatorCity},
    {"CreatorCountry", &Data::CreatorCountry},
    {"CreatorJobTitle", &Data::CreatorJobTitle},
    {"CreatorMail", &Data::CreatorMail},
    {"CreatorPhone", &Data::CreatorPhone},
    {"CreatorPostalCode", &Data::CreatorPostalCode},
    {"CreatorState", &Data::CreatorState},
    {"CreatorWebsite", &Data::CreatorWebsite},
};

class CopyrightEditorTest : public EditorTest {
  protected:
    const std::optional<Data>& metadata() { return window.watermarks().Metadata(); }
    static Data kept() {
        Data read;
        EXPECT_TRUE(LoadMetadata(read, copyrightFilePath().value()).has_value());
        return read;
    }
    void editData(const Drive& drive) { edit(Act::AddCopyright, drive); }
};

TEST_F(CopyrightEditorTest, AllThatIsEnteredIsSetAndKept) {
    Data expected;
    expected.Enabled = true;
    expected.CopyrightTextStatus = u"Protected"_s;
    editData([&expected](QWidget& editor) {
        for (const auto& [name, text] : Lines) {
            expected.*text = QLatin1String(name) + u" <1> & more"_s;
            type(editor, name, expected.*text);
        }
        choose(editor, "CopyrightTextStatus", 2);
    });
    EXPECT_TRUE(metadata() == expected);
    EXPECT_TRUE(kept() == expected);

    editData([&expected](QWidget& editor) {
        for (const auto& [name, text] : Lines)
            EXPECT_EQ(control<QLineEdit>(editor, name).text(), expected.*text);
        type(editor, "CreatorCity", {});
        click(editor, "Enabled");
    });
    EXPECT_FALSE(metadata()->Enabled);
    EXPECT_TRUE(metadata()->CreatorCity.isNull()) << "an emptied text is not written";
    EXPECT_FALSE(window.document().state().Stack.Metadata);
    history().undo();
    EXPECT_TRUE(metadata()->Enabled);
    history().undo();
    EXPECT_FALSE(metadata().has_value());

    editData([](QWidget&) {});
    expected.CreatorCity.clear();
    EXPECT_TRUE(metadata() == expected) << "what was kept is offered again";
}

TEST_F(CopyrightEditorTest, WhereItCannotBeKeptTheUserIsTold) {
    const QString file = copyrightFilePath().value();
    QFile::remove(file);
    ASSERT_TRUE(QDir().mkpath(file + u"/in the way"_s));
    const auto told = whenOpened<QMessageBox>([](QMessageBox& box) { box.close(); });
    editData([](QWidget& editor) { type(editor, "Creator", u"somebody"_s); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return *told; }));
    EXPECT_EQ(metadata()->Creator, u"somebody"_s) << "and in the photos it is";
    QDir(file).removeRecursively();
}

}  // namespace
}  // namespace zelto
