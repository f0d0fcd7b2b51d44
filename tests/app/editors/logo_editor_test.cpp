// SPDX-License-Identifier: GPL-3.0-or-later
// The image editor, driven with mouse and keys.
#include "app/editors/controls/number_field.h"
#include "app/editors/editor_window.h"
#include "app/editors/text/logo_sample.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

class LogoEditorTest : public EditorWindowTest {
  public:
    // Half green, half red.
    QString makeLogo(QSize size = {80, 40}) {
        QImage logo(size, QImage::Format_RGB32);
        logo.fill(QColor(20, 200, 60));
        QPainter(&logo).fillRect(0, 0, size.width() / 2, size.height(), QColor(201, 30, 40));
        const QString path = folder.filePath(u"logo%1.png"_s.arg(size.width()));
        logo.save(path);
        return path;
    }

    // Has the next file chooser take `path`; without one it is cancelled. `first` is done before that.
    static std::shared_ptr<bool> chooseNext(const QString& path, const std::function<void()>& first = {}) {
        return whenOpened<QFileDialog>([path, first](QFileDialog& dialog) {
            EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
            if (first) first();
            if (path.isEmpty()) {
                QTest::keyClick(&dialog, Qt::Key_Escape);
                return;
            }
            auto& name = *dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            name.setText(path);
            QTest::keyClick(&name, Qt::Key_Return);
        });
    }

    // Opens the editor of a new logo, which asks for its file at once, and has `drive` work in it.
    void addLogo(const QString& path, const std::function<void(QWidget&)>& drive = {}) {
        QTimer::singleShot(0, &window, [&] {
            QWidget* editor = QApplication::activeModalWidget();
            const auto chosen = chooseNext(path);
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return *chosen && QApplication::activeModalWidget() == editor; }));
            if (drive) drive(*editor);
            editor->close();
        });
        window.editors().OpenImageWatermarkSettings();
    }

    QColor seenAt(QPoint photoPoint) { return seen().pixelColor(photoPoint); }
};

TEST_F(LogoEditorTest, ANewLogoStartsWithItsFile) {
    addLogo({});
    EXPECT_EQ(count(), 0U) << "no file, no watermark";
    const QString path = makeLogo();
    addLogo(path);
    ASSERT_EQ(count(), 1U);
    EXPECT_EQ(record().ImagePath, path);
    EXPECT_EQ(QImage::fromData(record().ImageData), QImage(path));
    EXPECT_EQ(QSizeF(record().Width, record().Height), QSizeF(80, 40));
    EXPECT_EQ(record().Transparency, 1.0F);
    EXPECT_TRUE(showsWhatIsWritten());
    window.document().history().undo();
    EXPECT_EQ(count(), 0U);
}

TEST_F(LogoEditorTest, AFileThatIsNoPictureIsRefusedAndChangesNothing) {
    addLogo(makeLogo());
    const Watermark before = record();
    const QString bad = folder.filePath(u"bad.png"_s);
    QFile file(bad);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("no picture");
    file.close();
    QString said;
    editRow(0, [&](QWidget& editor) {
        chooseNext(bad, [&] {
            whenOpened<QMessageBox>([&](QMessageBox& alert) {
                said = alert.informativeText();
                alert.close();
            });
        });
        click(editor, "SelectImage");
    });
    EXPECT_TRUE(said.contains(bad)) << qPrintable(said);
    EXPECT_EQ(record(), before);
}

TEST_F(LogoEditorTest, AClickOnTheLogoTakesThatVeryColourOut) {
    Watermark logo(watermark_type::Image);
    logo.ImagePath = makeLogo();
    logo.Transparency = 1.0F;
    logo.Position = 1;
    add(logo);
    ASSERT_TRUE(showsWhatIsWritten());
    const QColor photo(PhotoColor);
    EXPECT_EQ(seenAt({10, 10}), QColor(201, 30, 40));
    editRow(0, [&](QWidget& editor) {
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
        EXPECT_EQ(seenAt({10, 10}), photo);
        EXPECT_EQ(seenAt({70, 10}), QColor(20, 200, 60));
        press(editor, "CreateBW", Qt::Key_Space);
        EXPECT_TRUE(showsWhatIsWritten());
        const QColor grey = seenAt({70, 10});
        EXPECT_NEAR(grey.red(), grey.green(), 1);
    });
}

TEST_F(LogoEditorTest, SizesAreTypedInEitherKind) {
    addLogo(makeLogo(), [this](QWidget& editor) {
        const auto& width = *editor.findChild<NumberField*>(u"AbsWidth"_s);
        const auto& height = *editor.findChild<NumberField*>(u"AbsHeight"_s);
        const auto usable = [&](const char* name) { return control(editor, name).isEnabled(); };
        EXPECT_FALSE(usable("PropSize") || usable("AbsWidth") || usable("Proportional"));
        press(editor, "Resize", Qt::Key_Space);
        EXPECT_TRUE(usable("PropSize") && usable("Absolute"));
        EXPECT_FALSE(usable("AbsWidth") || usable("PreserverAspectRatio"));
        EXPECT_EQ(record().ResizeWidth, 0.25F);
        type(editor, "PropSize", u"30"_s);
        EXPECT_EQ(record().ResizeWidth, 0.3F);
        EXPECT_TRUE(showsWhatIsWritten());

        press(editor, "Absolute", Qt::Key_Space);
        EXPECT_TRUE(usable("AbsWidth") && !usable("PropSize"));
        EXPECT_EQ(record().ResizeFormat, 2);
        EXPECT_EQ(QSizeF(width.value(), height.value()), QSizeF(80, 40));
        type(editor, "AbsWidth", u"201"_s);
        EXPECT_EQ(QSizeF(record().ResizeWidth, record().ResizeHeight), QSizeF(201, 101));
        EXPECT_EQ(height.value(), 101);
        press(editor, "PreserverAspectRatio", Qt::Key_Space);
        type(editor, "AbsHeight", u"9"_s);
        EXPECT_EQ(QSizeF(record().ResizeWidth, record().ResizeHeight), QSizeF(201, 9));
        EXPECT_TRUE(showsWhatIsWritten());

        const auto chosen = chooseNext(makeLogo({50, 30}));
        click(editor, "SelectImage");
        EXPECT_TRUE(*chosen);
        EXPECT_EQ(QSizeF(width.value(), height.value()), QSizeF(50, 30)) << "another file, its own size";
        EXPECT_TRUE(showsWhatIsWritten());
    });
}

}  // namespace
}  // namespace zelto
