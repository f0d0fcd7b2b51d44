// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/editor_test.h"
#include "persistence/copyright_file.h"

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>

namespace zelto {
namespace {

struct LineRow {
    const char* name;
    QString CopyRightMetaData::*text;
};
#define LINE(field)                       \
    LineRow {                             \
#field, &CopyRightMetaData::field \
    }
constexpr LineRow Lines[] = {
    LINE(CopyrightText),  LINE(CopyrightURL), LINE(RightsUsageTerms),  LINE(Creator),
    LINE(CreatorAddress), LINE(CreatorCity),  LINE(CreatorCountry),    LINE(CreatorJobTitle),
    LINE(CreatorMail),    LINE(CreatorPhone), LINE(CreatorPostalCode), LINE(CreatorState),
    LINE(CreatorWebsite),
};
#undef LINE

class CopyrightEditorTest : public EditorTest {
  protected:
    const std::optional<CopyRightMetaData>& metadata() { return window.watermarks().Metadata(); }

    static CopyRightMetaData kept() {
        CopyRightMetaData read;
        EXPECT_TRUE(LoadMetadata(read, copyrightFilePath().value()).has_value());
        return read;
    }
};

TEST_F(CopyrightEditorTest, AllThatIsEnteredIsSetAndKept) {
    CopyRightMetaData expected;
    expected.Enabled = true;
    expected.CopyrightTextStatus = QStringLiteral("Protected");
    edit(
        Act::AddCopyright,
        [&expected](QDialog& editor) {
            for (const LineRow& line : Lines) {
                const QString text = QLatin1String(line.name) + QStringLiteral(" <1> & more");
                type(editor, line.name, text);
                expected.*line.text = text;
            }
            choose(editor, "CopyrightTextStatus", 2);
        },
        Qt::Key_Return);
    EXPECT_TRUE(metadata() == expected);
    EXPECT_TRUE(kept() == expected);

    edit(
        Act::AddCopyright,
        [&expected](QDialog& editor) {
            for (const LineRow& line : Lines) {
                EXPECT_EQ(static_cast<QLineEdit&>(control(editor, line.name)).text(), expected.*line.text);
            }
            type(editor, "CreatorCity", {});
            click(editor, "Enabled");
        },
        Qt::Key_Return);
    expected.CreatorCity = QString();
    expected.Enabled = false;
    EXPECT_TRUE(metadata() == expected);
    EXPECT_TRUE(metadata()->CreatorCity.isNull()) << "an emptied text is not written";
    EXPECT_FALSE(window.document().state().Stack.Metadata);
    history().undo();
    EXPECT_TRUE(metadata()->Enabled);
    history().undo();
    EXPECT_FALSE(metadata().has_value());

    edit(
        Act::AddCopyright, [](QDialog&) {}, Qt::Key_Return);
    expected.Enabled = true;
    EXPECT_TRUE(metadata() == expected) << "what was kept is offered again";
}

TEST_F(CopyrightEditorTest, CancellingChangesNothing) {
    edit(Act::AddCopyright, [](QDialog& editor) { type(editor, "Creator", QStringLiteral("nobody")); });
    EXPECT_FALSE(metadata().has_value());
    EXPECT_NE(kept().Creator, QStringLiteral("nobody"));
    EXPECT_EQ(history().undoText(), QStringLiteral("Add Photo"));
}

TEST_F(CopyrightEditorTest, WhereTheFileCannotBeWrittenTheFormStays) {
    const QString file = copyrightFilePath().value();
    QFile::remove(file);
    ASSERT_TRUE(QDir().mkpath(file + QStringLiteral("/in the way")));
    edit(Act::AddCopyright, [this](QDialog& editor) {
        type(editor, "Creator", QStringLiteral("somebody"));
        const auto told = whenOpened<QMessageBox>([](QMessageBox& box) { box.accept(); });
        press(editor, "Creator", Qt::Key_Return);
        EXPECT_TRUE(*told);
        EXPECT_TRUE(editor.isVisible());
        EXPECT_FALSE(metadata().has_value());
    });
    QDir(file).removeRecursively();
}

}  // namespace
}  // namespace zelto
