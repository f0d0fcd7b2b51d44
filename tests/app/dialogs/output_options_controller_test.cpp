// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/output_options_controller.h"

#include "app/dialogs/example_view.h"
#include "app/dialogs/resize_field.h"
#include "app/dialogs/standard_dialogs.h"
#include "app/hands.h"
#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/dialog_set.h"
#include "platform/application_folders.h"
#include "platform/preferences.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>

namespace zelto {
namespace {

class OutputOptionsDialog : public ::testing::Test {
  protected:
    OutputOptionsDialog() {
        QDir().mkpath(folder.filePath(u"in/day"_s));
        QDir().mkpath(folder.filePath(u"out"_s));
        drawnScene({400, 300}).save(folder.filePath(u"in/a.png"_s));
        drawnScene({400, 300}).save(folder.filePath(u"in/day/beach.png"_s));
        photos.AddImages({folder.filePath(u"in/a.png"_s), folder.filePath(u"in/day/beach.png"_s)});
        photos.ChangeImage(u"1"_s);
        open();
    }

    void open() {
        dialog = std::make_unique<OutputOptionsController>(photos, watermarks);
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    QString out() const { return folder.filePath(u"out"_s); }
    QLineEdit& path() { return control<QLineEdit>(*dialog, "Folder"); }
    ResizeField& size(const char* name) { return control<ResizeField>(*dialog, name); }
    QComboBox& choice(const char* name) { return control<QComboBox>(*dialog, name); }
    void tick(const char* group) {
        for (QGroupBox* box : dialog->findChildren<QGroupBox*>()) {
            if (withoutMnemonic(box->title()) == QLatin1String(group)) box->setChecked(true);
        }
    }
    // What the example says, with the output folder left out.
    QString example() {
        const auto* view = dialog->findChild<ExampleView*>();
        QString text = view->name() + u" | "_s + view->details();
        return text.remove(folder.path());
    }

    QTemporaryDir folder;
    WatermarkDocument document;
    ImageListController photos{document.history()};
    WatermarkController watermarks{document};
    std::unique_ptr<OutputOptionsController> dialog;
    AnsweredMessages messages;
};

TEST_F(OutputOptionsDialog, StartsOnceNothingIsMissingAndRemembersTheFolder) {
    QTest::keyClick(&path(), Qt::Key_Return);
    EXPECT_THAT(messages.take(),
                ElementsAre(u"Output path cannot be empty|Please select the folder for the output|OK"_s));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->getOptions());
    whenOpened<QFileDialog>([this](QFileDialog& chooser) {
        chooser.setDirectory(out());
        chooser.selectFile(out());
        QMetaObject::invokeMethod(&chooser, "accept");
    });
    click(*dialog, "Browse...");
    EXPECT_EQ(path().text(), out());
    EXPECT_EQ(storedPreference(preference::LastOutDirectoryData), out().toUtf8());
    QTest::keyClick(&path(), Qt::Key_Return);
    EXPECT_TRUE(dialog->getOptions());
    EXPECT_EQ(storedPreference(preference::LastOutDirectory), out());
    open();
    EXPECT_EQ(path().text(), out());
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->getOptions());
    open();
    path().setText(out() + u"/new/one"_s);
    QTest::keyClick(&path(), Qt::Key_Return);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    EXPECT_TRUE(QFileInfo(out() + u"/new/one"_s).isDir()) << "a folder that is not there can be made";
    EXPECT_TRUE(dialog->getOptions());
}

TEST_F(OutputOptionsDialog, HandsOverWhatItShows) {
    path().setText(out());
    choice("Format").setCurrentText(u"jpg"_s);
    control<QSpinBox>(*dialog, "JPEG quality").setValue(77);
    choice("Metadata").setCurrentText(u"Exclude Geolocation"_s);
    click(*dialog, "Maintain the directory structure");
    click(*dialog, "Keep untouched areas as they are (JPEG to JPEG)");
    tick("Rename photos");
    retype(control<QLineEdit>(*dialog, "Name pattern"), u"x[#]"_s);
    tick("Resize photos");
    click(*dialog, "Pixels");
    click(*dialog, "Keep the proportions");
    retype(size("Width, pixels"), u"800"_s);
    retype(size("Height, pixels"), u"600"_s);
    click(*dialog, "Start");
    OutputOptions expected;
    expected.OutputPath = out();
    expected.OutputFolderData = out().toUtf8();
    expected.OutputFormat = u"jpg"_s;
    expected.JPEGQuality = 77;
    expected.ExifDataToInclude = exif_data::ExcludeGeolocation;
    expected.KeepDirectoryStructure = true;
    expected.Rename = true;
    expected.RenameFormat = u"x[#]"_s;
    expected.ResizeImage = true;
    expected.ResizeType = resize_type::Pixels;
    expected.ResizeWidth = 800;
    expected.ResizeHeight = 600;
    expected.DontEnlargeSmallImage = true;
    expected.JpegLossless = true;
    EXPECT_EQ(dialog->getOptions(), expected);
}

TEST_F(OutputOptionsDialog, PercentagesAreWholeNumbersAndFollowEachOtherInProportion) {
    tick("Resize photos");
    struct Row {
        bool inProportion;
        const char* field;
        const char* typed;
        const char* width;
        const char* height;
    };
    const Row rows[] = {
        {true, "Height, per cent", "25", "25", "25"},
        {true, "Width, per cent", "-5", "100", "100"},
        {true, "Width, per cent", "12x", "12", "12"},
        {false, "Height, per cent", "none", "12", "0"},
    };
    for (const Row& row : rows) {
        if (button(*dialog, "Keep the proportions").isChecked() != row.inProportion) {
            click(*dialog, "Keep the proportions");
        }
        retype(size(row.field), QLatin1String(row.typed));
        EXPECT_EQ(size("Width, per cent").cleanText(), QLatin1String(row.width)) << row.typed;
        EXPECT_EQ(size("Height, per cent").cleanText(), QLatin1String(row.height)) << row.typed;
    }
    click(*dialog, "Pixels");
    click(*dialog, "Keep the proportions");
    retype(size("Width, pixels"), u"800"_s);
    EXPECT_EQ(size("Height, pixels").cleanText(), QString()) << "pixels never follow";
}

TEST_F(OutputOptionsDialog, DefaultsComeBackButForTheHeight) {
    path().setText(out());
    choice("Format").setCurrentText(u"pdf"_s);
    click(*dialog, "Combine to a single PDF");
    tick("Resize photos");
    retype(size("Width, per cent"), u"40"_s);
    click(*dialog, "Pixels");
    retype(size("Width, pixels"), u"800"_s);
    retype(size("Height, pixels"), u"600"_s);
    click(*dialog, "Set as Default");
    EXPECT_THAT(messages.take(), ElementsAre(u"Output Settings|Settings have been saved|OK"_s));
    open();
    EXPECT_EQ(path().text(), out());
    EXPECT_EQ(dialog->focusWidget(), &path());
    EXPECT_TRUE(button(*dialog, "Combine to a single PDF").isChecked());
    EXPECT_TRUE(button(*dialog, "Pixels").isChecked());
    EXPECT_EQ(size("Width, per cent").value(), 40);
    EXPECT_EQ(size("Width, pixels").value(), 800);
    EXPECT_EQ(size("Height, pixels").cleanText(), QString());

    const QString file = applicationFolder(ZeltoFolder).value_or(QString()) + OutputSettingsFileName;
    ASSERT_TRUE(QFile::remove(file) && QDir().mkpath(file + u"/in the way"_s));
    click(*dialog, "Set as Default");
    EXPECT_THAT(messages.take(), ElementsAre(u"Output Settings|Settings cannot be saved.|OK"_s));
}

TEST_F(OutputOptionsDialog, TheFormatDecidesWhatElseIsAsked) {
    struct Row {
        const char* format;
        bool quality;
        bool combine;
        bool metadata;
    };
    const Row rows[] = {{"Same as source image", true, false, true},
                        {"jpg", true, false, true},
                        {"pdf", false, true, false},
                        {"png", false, false, false},
                        {"tif", false, false, true}};
    for (const Row& row : rows) {
        choice("Format").setCurrentText(QLatin1String(row.format));
        EXPECT_EQ(choice("Format").currentText(), QLatin1String(row.format));
        EXPECT_EQ(control<QSpinBox>(*dialog, "JPEG quality").isVisible(), row.quality) << row.format;
        EXPECT_EQ(button(*dialog, "Combine to a single PDF").isVisible(), row.combine) << row.format;
        EXPECT_EQ(button(*dialog, "Keep untouched areas as they are (JPEG to JPEG)").isEnabled(),
                  row.quality);
        EXPECT_EQ(choice("Metadata").isEnabled(), row.metadata) << row.format;
    }
    // The box that "jpg" hides must not keep the folders from being resolved.
    choice("Format").setCurrentText(u"pdf"_s);
    click(*dialog, "Combine to a single PDF");
    choice("Format").setCurrentText(u"jpg"_s);
    path().setText(out());
    click(*dialog, "Start");
    ASSERT_TRUE(dialog->getOptions());
    EXPECT_FALSE(dialog->getOptions()->CombineToSinglePDF);
}

TEST_F(OutputOptionsDialog, WarnsOfCopyrightThatIsNotThere) {
    for (const auto& [present, chosen, warns] : {std::tuple(false, u"Copyright Only"_s, true),
                                                 {true, u"Copyright Only"_s, false},
                                                 {false, u"Include All"_s, false}}) {
        dialog->setMetadataPresent(present);
        choice("Metadata").setCurrentText(chosen);
        EXPECT_EQ(says(*dialog, u"You have set no copyright data"_s), warns) << qPrintable(chosen);
    }
}

TEST_F(OutputOptionsDialog, TheExampleFollowsEveryEdit) {
    path().setText(out());
    click(*dialog, "Maintain the directory structure");
    EXPECT_EQ(example(), u"beach.png | 400 × 300 pixels, in /out/in/day"_s);
    choice("Format").setCurrentText(u"jpg"_s);
    tick("Resize photos");
    retype(size("Width, per cent"), u"50"_s);
    EXPECT_EQ(example(), u"beach.jpg | 200 × 150 pixels, in /out/in/day"_s);
    tick("Rename photos");
    auto& pattern = control<QLineEdit>(*dialog, "Name pattern");
    pattern.setCursorPosition(0);
    const QList<QAction*> macros = dialog->findChild<QMenu*>()->actions();
    ASSERT_GT(macros.size(), 7);
    macros[3]->trigger();
    QTest::keyClicks(&pattern, u"_"_s);
    EXPECT_EQ(pattern.text(), u"[###]_[O]"_s);
    macros.last()->trigger();
    EXPECT_EQ(pattern.text(), u"[###]_<<PHOTOHEIGHT>>[O]"_s);
    EXPECT_EQ(example(), u"002_300beach.jpg | 200 × 150 pixels, in /out/in/day"_s);
    retype(size("Width, per cent"), u"0"_s);
    EXPECT_EQ(example(), u"002_300beach.jpg | 0 × 0 pixels: no picture can have this size, in /out/in/day"_s);
    QFile(folder.filePath(u"in/day/beach.png"_s)).resize(10);
    open();
    path().setText(out());
    EXPECT_EQ(example(), u"beach.png | This photo cannot be read., in /out"_s);
}

TEST_F(OutputOptionsDialog, TheNextRunStartsFromTheOptionsOfTheLast) {
    QWidget window;
    const auto run = [&](const std::function<void(OutputOptionsController&)>& act) {
        whenOpened<OutputOptionsController>(act);
        return standardDialogs().outputOptions(&window, photos, watermarks, true);
    };
    const auto started = run([this](OutputOptionsController& shown) {
        shown.resize(900, 700);
        control<QLineEdit>(shown, "Folder").setText(out());
        control<QComboBox>(shown, "Format").setCurrentText(u"bmp"_s);
        click(shown, "Start");
    });
    ASSERT_TRUE(started);
    EXPECT_EQ(started->OutputFormat, u"bmp"_s);
    const auto dismissed = run([](OutputOptionsController& shown) {
        EXPECT_EQ(control<QComboBox>(shown, "Format").currentText(), u"bmp"_s);
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    EXPECT_FALSE(dismissed);
    open();
    EXPECT_EQ(dialog->size(), QSize(900, 700));
}

}  // namespace
}  // namespace zelto
