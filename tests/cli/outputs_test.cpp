// SPDX-License-Identifier: GPL-3.0-or-later
// What is written, and where: read back with Qt's own readers.
#include "cli/batch_program.h"
#include "persistence/output_settings_file.h"
#include "support/ink.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QDate>
#include <QImageReader>
#include <QJsonObject>

namespace zelto {
namespace {

using Outputs = BatchProgram;

TEST_F(Outputs, EveryFormatHoldsTheMarkedPhoto) {
    const QStringList photos = {makePhoto(u"a.JPG"_s), makePhoto(u"b.png"_s), makePhoto(u"c.tif"_s),
                                makePhoto(u"d.bmp"_s)};
    struct Row {
        const char *format, *files, *qtFormat;  // the last of the first file
    };
    const Row rows[] = {{"same", "a.jpg b.png c.tif d.bmp", "jpeg"},
                        {"jpg", "a.jpg b.jpg c.jpg d.jpg", "jpeg"},
                        {"tiff", "a.tiff b.tiff c.tiff d.tiff", "tiff"},
                        {"gif", "a.gif b.gif c.gif d.gif", "gif"}};
    for (const Row& row : rows) {
        QDir(path(u"out"_s)).removeRecursively();
        EXPECT_EQ(run(QStringList{u"-f"_s, QLatin1String(row.format)} + photos).exitStatus, 0);
        EXPECT_EQ(outputs(), words(row.files)) << row.format;
        EXPECT_EQ(QImageReader::imageFormat(path(u"out/"_s + words(row.files).first())), row.qtFormat);
        for (const QString& name : outputs()) EXPECT_TRUE(isMarked(output(name))) << name.toStdString();
    }
}

TEST_F(Outputs, SizeNameQualityAndResolutionAreAsAsked) {
    const QString photo =
        makeFile(u"in/beach.jpg"_s, jpegBytes(drawnScene({400, 300}), {.jfifDensity = 300}));
    struct Row {
        const char *arguments, *file;
        QSize size;
        qint64 leastBytes, mostBytes;
    };
    const Row rows[] = {
        {"--longest-side 100 --keep-aspect", "beach.jpg", {100, 75}, 0, 20'000},
        {"--resize-pixels 800x0 --keep-aspect --no-enlarge -q 100", "beach.jpg", {400, 300}, 40'000, 400'000},
        {"--resize-percent 50x10 -q 1 --rename [O]_[###]ä", "beach_001ä.jpg", {200, 30}, 0, 5'000}};
    for (const Row& row : rows) {
        QDir(path(u"out"_s)).removeRecursively();
        EXPECT_EQ(run(words(row.arguments) + QStringList(photo)).exitStatus, 0) << row.arguments;
        ASSERT_EQ(outputs(), QStringList(QString::fromUtf8(row.file))) << row.arguments;
        const QImage written = output(outputs().first());
        EXPECT_EQ(written.size(), row.size) << row.arguments;
        EXPECT_NEAR(written.dotsPerMeterX() * 0.0254, 300.0, 0.5) << row.arguments;
        const qint64 bytes = QFileInfo(path(u"out/"_s + outputs().first())).size();
        EXPECT_TRUE(bytes >= row.leastBytes && bytes <= row.mostBytes) << row.arguments << ' ' << bytes;
    }
}

TEST_F(Outputs, FoldersAreScannedAndMirrored) {
    makePhoto(u"a.png"_s);
    makePhoto(u"sub/deep/a.png"_s);
    makePhoto(u"sub/b.bmp"_s);
    QFile(makePhoto(u"d.png"_s)).rename(path(u"in/d.gif"_s));
    const QString in = path(u"in"_s);

    EXPECT_EQ(run({in}).exitStatus, 0);
    EXPECT_EQ(outputs(), QStringList(u"a.png"_s));
    EXPECT_EQ(run({u"-r"_s, u"--keep-structure"_s, in}).exitStatus, 0);
    EXPECT_EQ(outputs(), words("a.png in/a.png in/sub/b.bmp in/sub/deep/a.png"));
    QDir(path(u"out"_s)).removeRecursively();
    EXPECT_EQ(run({u"-r"_s, u"--extensions"_s, u"bmp,gif"_s, in}).exitStatus, 0);
    EXPECT_EQ(outputs(), QStringList(u"b.bmp"_s));
}

TEST_F(Outputs, AnOptionsFileIsTheStartingPoint) {
    OutputSettings settings;
    settings.options.OutputPath = path(u"elsewhere"_s);
    settings.options.OutputFormat = u"jpg"_s;
    settings.options.Rename = true;
    settings.options.RenameFormat = u"[O]-[D]"_s;
    settings.options.JPEGQuality = 95;
    const QString file = path(u"OutputSettings.xml"_s);
    ASSERT_TRUE(QDir().mkpath(settings.options.OutputPath));
    ASSERT_TRUE(saveOutputSettings(settings, file));
    const QStringList arguments = {u"-s"_s, path(u"mark.zcs"_s), u"--options"_s, file, makePhoto(u"a.png"_s)};
    ASSERT_EQ(runBare(arguments).exitStatus, 0);
    const QString today = QDate::currentDate().toString(u"MMddyyyy"_s);
    EXPECT_TRUE(isMarked(QImage(path(u"elsewhere/a-%1.jpg"_s.arg(today)))));

    ASSERT_EQ(run(arguments.mid(2) + words("--rename x -f png")).exitStatus, 0);
    EXPECT_EQ(outputs(), QStringList(u"x.png"_s));
}

TEST_F(Outputs, ACombineBoxThatTheFormatHidesDoesNotCount) {
    const QString photo = makePhoto(u"a.png"_s);
    const QString other = makePhoto(u"sub/a.png"_s);
    const auto withFormat = [&](const char* format) {
        const QByteArray file = QByteArray("<OutputSettings><CombineToSinglePDF>1</CombineToSinglePDF>") +
                                "<OutputFormat>" + format + "</OutputFormat></OutputSettings>";
        return QStringList{u"--options"_s, makeFile(u"options.xml"_s, file), photo, other};
    };
    EXPECT_EQ(run(words("--keep-structure --shard 0/1") + withFormat("jpg")).exitStatus, 0);
    EXPECT_EQ(outputs(), words("in/a.jpg in/sub/a.jpg"));
    EXPECT_EQ(run(words("--shard 1/2") + withFormat("jpg")).exitStatus, 0);
    EXPECT_EQ(run(words("--shard 1/2") + withFormat("PDF")).exitStatus, 2);
    EXPECT_EQ(run(withFormat("PDF")).exitStatus, 0);
    EXPECT_TRUE(outputs().contains(u"WatermarkedPhotos.pdf"_s));
}

TEST_F(Outputs, PdfsHaveAPageAPhoto) {
    const QStringList photos = {makePhoto(u"a.png"_s, {64, 48}), makePhoto(u"b.png"_s, {48, 64}),
                                makeFile(u"in/c.png"_s, "no photo")};
    EXPECT_EQ(run(words("-f pdf") + photos).exitStatus, 1);
    EXPECT_EQ(outputs(), words("a.pdf b.pdf"));
    makeFile(u"out/WatermarkedPhotos.pdf"_s, "taken");
    const QStringList combined = words("-f pdf --combine-pdf -j 2") + photos;
    const QString pdf = path(u"out/WatermarkedPhotos1.pdf"_s);
    EXPECT_EQ(report(QStringList(u"--dry-run"_s) + combined, 0)["photos"_L1][1]["output"_L1].toString(), pdf);
    const QJsonObject written = report(combined, 1);
    EXPECT_EQ(written["combinedPdf"_L1].toString(), pdf);
    EXPECT_EQ(written["photos"_L1][1]["output"_L1].toString(), pdf);
    EXPECT_EQ(outputs(), words("WatermarkedPhotos.pdf WatermarkedPhotos1.pdf a.pdf b.pdf"));
    // One pixel a point, each page of its photo's size.
    ASSERT_EQ(runProgram(u"pdftoppm"_s, words("-r 72 -png") + QStringList{pdf, path(u"page"_s)}).exitStatus,
              0);
    for (const auto& [page, size] :
         {std::pair{u"page-1.png"_s, QSize(64, 48)}, {u"page-2.png"_s, {48, 64}}}) {
        const QImage drawn(path(page));
        EXPECT_EQ(drawn.size(), size);
        EXPECT_TRUE(isMarked(drawn)) << page.toStdString();
    }
}

TEST_F(Outputs, TheEffectsPicturesOfTheLastPhotoStandInTheHomeFolder) {
    const QDir home(path(u"home"_s));
    ASSERT_TRUE(home.mkpath(u"."_s));
    const ProgramEnvironment environment = {{u"HOME"_s, home.path()}};
    const QString photo = makePhoto(u"a.png"_s, {100, 80});
    EXPECT_EQ(run({photo}, environment).exitStatus, 0);
    EXPECT_TRUE(home.isEmpty()) << "without an effect there is nothing to look into";

    WatermarkStack stack;
    stack.SelectedFilter = 8;
    stack.Effects.emplace();  // a border of 10 on every side
    stack.Effects->BlurRadius = stack.Effects->Distance = 4;
    useSetting(stack);
    makeFile(u"home/file.png"_s, "the user's own");
    const QString damaged = makeFile(u"in/b.png"_s, "no photo");
    EXPECT_EQ(run({makePhoto(u"0.png"_s), photo, damaged}, environment).exitStatus, 1);
    EXPECT_EQ(home.entryList(QDir::Files | QDir::Hidden), words("effect.png file.png file.png~"));
    EXPECT_EQ(filesBelow(u"home"_s).value(u"file.png~"_s), "the user's own");
    constexpr auto Others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    for (const auto& name : {u"file.png"_s, u"effect.png"_s})
        EXPECT_FALSE(QFile::permissions(home.filePath(name)) & Others) << name.toStdString();
    EXPECT_EQ(QImage(home.filePath(u"file.png"_s)).size(), QSize(120, 100));
    EXPECT_EQ(largestDifference(QImage(home.filePath(u"effect.png"_s)), output(u"a.png"_s)), 0);

    // The photo is framed once, not what has replaced it; a home that takes no files is no matter.
    EXPECT_EQ(run({u"-o"_s, path(u"in"_s), u"--overwrite-originals"_s, photo}, environment).exitStatus, 0);
    EXPECT_EQ(QImage(photo).size(), QImage(home.filePath(u"effect.png"_s)).size());
    const ProgramRun homeless = run({photo}, {{u"HOME"_s, u"/nowhere"_s}});
    EXPECT_EQ(homeless.exitStatus, 0);
    EXPECT_FALSE(homeless.errors.contains("file.png")) << homeless.errors.toStdString();
}

}  // namespace
}  // namespace zelto
