// SPDX-License-Identifier: GPL-3.0-or-later
// The image editor, driven with mouse and keys.
#include "app/editor_fixture.h"
#include "app/editors/controls/number_field.h"
#include "app/editors/text/logo_sample.h"
#include "support/testing.h"

namespace zelto {
namespace {

using LogoEditorTest = EditorTest;

TEST_F(LogoEditorTest, ANewLogoStartsWithItsFile) {
    addLogo({});
    EXPECT_TRUE(records().empty()) << "no file, no watermark";
    const QString path = makeLogo();
    addLogo(path);
    ASSERT_EQ(records().size(), 1U);
    EXPECT_EQ(record().ImagePath, path);
    EXPECT_EQ(QImage::fromData(record().ImageData), QImage(path));
    EXPECT_EQ(QSizeF(record().Width, record().Height), QSizeF(80, 40));
    EXPECT_EQ(record().Transparency, 1.0F);
    EXPECT_TRUE(showsWhatIsWritten());
    history().undo();
    EXPECT_TRUE(records().empty());
}

TEST_F(LogoEditorTest, AFileThatIsNoPictureIsRefusedAndChangesNothing) {
    addLogo(makeLogo());
    const Watermark before = record();
    const QString bad = folder.filePath(u"bad.png"_s);
    QFile file(bad);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("no picture");
    file.close();
    editRecord(0, [&](QWidget& editor) {
        AnsweredMessages messages;
        const auto chosen = chooseNext(bad);
        click(editor, "SelectImage");
        EXPECT_TRUE(*chosen);
        QStringList said;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !(said = messages.take()).isEmpty(); }));
        EXPECT_TRUE(said.join(u' ').contains(bad)) << qPrintable(said.join(u' '));
    });
    EXPECT_EQ(record(), before);
}

TEST_F(LogoEditorTest, AClickOnTheLogoTakesThatVeryColourOut) {
    Watermark logo(watermark_type::Image);
    logo.ImagePath = makeLogo();
    logo.Transparency = 1.0F;
    logo.Position = 1;
    add(logo);
    EXPECT_EQ(seen().pixelColor(10, 10), QColor(201, 30, 40));
    editRecord(0, [&](QWidget& editor) {
        auto& sample = *editor.findChild<LogoSample*>();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !sample.picture().isNull(); }, 5000));
        const QRect place = sample.place();
        const QPoint red = place.topLeft() + QPoint(place.width() / 4, place.height() / 2);
        QTest::mouseClick(&sample, Qt::LeftButton, {}, red);
        EXPECT_EQ(record().TransparentColor, Color::black())
            << "a click picks nothing while no colour is taken out";
        press(editor, "IsTransparent", Qt::Key_Space);
        QTest::mouseClick(&sample, Qt::LeftButton, {}, red);
        EXPECT_TRUE(showsWhatIsWritten());
        EXPECT_EQ(seen().pixel(10, 10), PhotoColor);
        EXPECT_EQ(seen().pixelColor(70, 10), QColor(20, 200, 60));
        press(editor, "CreateBW", Qt::Key_Space);
        EXPECT_TRUE(showsWhatIsWritten());
        const QColor grey = seen().pixelColor(70, 10);
        EXPECT_NEAR(grey.red(), grey.green(), 1);
    });
}

TEST_F(LogoEditorTest, SizesAreTypedInEitherKind) {
    addLogo(makeLogo(), [this](QWidget& editor) {
        const auto& width = control<NumberField>(editor, "AbsWidth");
        const auto& height = control<NumberField>(editor, "AbsHeight");
        const auto usable = [&](const char* name) { return control(editor, name).isEnabled(); };
        const auto chooseLogo = [&](QSize size) {
            const QString path = makeLogo(size);
            chooseNext(path);
            click(editor, "SelectImage");
            EXPECT_TRUE(QTest::qWaitFor([&] { return record().ImagePath == path; }));
            EXPECT_EQ(QSizeF(width.value(), height.value()), size) << "another file, its own size";
        };
        EXPECT_FALSE(usable("PropSize") || usable("AbsWidth") || usable("Proportional"));
        press(editor, "Resize", Qt::Key_Space);
        EXPECT_TRUE(usable("PropSize") && usable("Absolute"));
        EXPECT_FALSE(usable("AbsWidth") || usable("PreserverAspectRatio"));
        EXPECT_EQ(record().ResizeWidth, 0.25F);
        EXPECT_EQ(record().ResizeFormat, 0);
        type(editor, "PropSize", u"30.5"_s);
        choose(editor, "ImageProportionalResize", 2);
        EXPECT_EQ(record().ResizeWidth, 0.305F);
        EXPECT_EQ(record().ImageProportionalResize, u"Longer Side"_s);
        EXPECT_TRUE(showsWhatIsWritten());
        chooseLogo({70, 20});

        press(editor, "Absolute", Qt::Key_Space);
        EXPECT_TRUE(usable("AbsWidth") && !usable("PropSize"));
        EXPECT_EQ(record().ResizeFormat, 2);
        EXPECT_EQ(QSizeF(record().ResizeWidth, record().ResizeHeight), QSizeF(70, 20));
        type(editor, "AbsWidth", u"201"_s);
        EXPECT_EQ(QSizeF(record().ResizeWidth, record().ResizeHeight), QSizeF(201, 58));
        EXPECT_EQ(height.value(), 58);
        press(editor, "PreserverAspectRatio", Qt::Key_Space);
        type(editor, "AbsHeight", u"9"_s);
        EXPECT_EQ(QSizeF(record().ResizeWidth, record().ResizeHeight), QSizeF(201, 9));
        EXPECT_TRUE(showsWhatIsWritten());
        chooseLogo({50, 30});
        EXPECT_TRUE(showsWhatIsWritten());
    });
}

}  // namespace
}  // namespace zelto
