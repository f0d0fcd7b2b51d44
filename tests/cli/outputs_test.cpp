// SPDX-License-Identifier: GPL-3.0-or-later
// What is written, and where: read back with Qt's own readers.
#include "cli/batch_program.h"
#include "persistence/output_settings_file.h"
#include "support/test_pictures.h"

#include <QDate>
#include <QFile>
#include <QImageReader>

#include <utility>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

using Outputs = BatchProgram;

QStringList words(const char* line) {
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST_F(Outputs, EveryFormatHoldsTheMarkedPhoto) {
    const QStringList photos = {makePhoto(u"a.JPG"_s), makePhoto(u"b.png"_s), makePhoto(u"c.tif"_s),
                                makePhoto(u"d.bmp"_s)};
    struct Row {
        const char *format, *files, *qtFormat;  // the last of the first file
    };
    const Row rows[] = {
        {"same", "a.jpg b.png c.tif d.bmp", "jpeg"}, {"jpg", "a.jpg b.jpg c.jpg d.jpg", "jpeg"},
        {"png", "a.png b.png c.png d.png", "png"},   {"tiff", "a.tiff b.tiff c.tiff d.tiff", "tiff"},
        {"bmp", "a.bmp b.bmp c.bmp d.bmp", "bmp"},   {"gif", "a.gif b.gif c.gif d.gif", "gif"}};
    for (const Row& row : rows) {
        QDir(path(u"out"_s)).removeRecursively();
        EXPECT_EQ(run(QStringList{u"-f"_s, QLatin1String(row.format)} + photos).exitStatus, 0);
        EXPECT_EQ(outputs(), words(row.files)) << row.format;
        EXPECT_EQ(QImageReader::imageFormat(path(u"out/"_s + words(row.files).first())), row.qtFormat);
        for (const QString& name : outputs()) {
            EXPECT_EQ(output(name).size(), QSize(64, 48)) << name.toStdString();
            EXPECT_TRUE(isMarked(output(name))) << name.toStdString();
        }
    }
}

TEST_F(Outputs, SizeNameAndResolutionAreAsAsked) {
    const QString photo =
        makeFile(u"in/beach.jpg"_s, jpegBytes(drawnScene({400, 300}), {.jfifDensity = 300}));
    struct Row {
        const char* arguments;
        const char* file;
        QSize size;
    };
    const Row rows[] = {
        {"--longest-side 100 --keep-aspect", "beach.jpg", {100, 75}},
        {"--resize-pixels 100x0 --keep-aspect --rename [O]_[###]", "beach_001.jpg", {100, 75}},
        {"--resize-pixels 50x60 --rename a/b", "a_b.jpg", {50, 60}},
        {"--resize-percent 50x10 --rename ..", "...jpg", {200, 30}},
        {"--longest-side 4000 --keep-aspect --no-enlarge", "beach.jpg", {400, 300}},
        {"-f png --rename [#]ä", "1ä.png", {400, 300}},
    };
    for (const Row& row : rows) {
        QDir(path(u"out"_s)).removeRecursively();
        EXPECT_EQ(run(words(row.arguments) + QStringList(photo)).exitStatus, 0) << row.arguments;
        EXPECT_EQ(outputs(), QStringList(QString::fromUtf8(row.file))) << row.arguments;
        const QImage written = output(QString::fromUtf8(row.file));
        EXPECT_EQ(written.size(), row.size) << row.arguments;
        EXPECT_NEAR(written.dotsPerMeterX() * 0.0254, 300.0, 0.5) << row.arguments;
    }
}

TEST_F(Outputs, QualityDecidesTheSizeOfTheFile) {
    const QString photo = makeFile(u"in/scene.jpg"_s, jpegBytes(drawnScene({300, 200})));
    qint64 smaller = 0;
    for (const char* quality : {"10", "50", "100"}) {
        ASSERT_EQ(run({u"-q"_s, QLatin1String(quality), photo}).exitStatus, 0);
        const qint64 size = QFileInfo(path(u"out/scene.jpg"_s)).size();
        EXPECT_GT(size, std::exchange(smaller, size)) << quality;
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

TEST_F(Outputs, PdfsHaveAPageAPhoto) {
    const QStringList photos = {makePhoto(u"a.png"_s, {64, 48}), makePhoto(u"b.png"_s, {48, 64}),
                                makeFile(u"in/c.png"_s, "no photo")};
    const auto pages = [&](const QString& name) {
        const ProgramRun info = runProgram(u"pdfinfo"_s, {u"-l"_s, u"9"_s, path(u"out/"_s + name)});
        QStringList sizes;
        for (const QByteArray& line : info.output.split('\n')) {
            const qsizetype size = line.indexOf("size:");
            if (line.startsWith("Page ") && size >= 0)
                sizes.append(QString::fromLatin1(line.mid(size + 5)).simplified());
        }
        return sizes.join(QLatin1Char('|'));
    };
    EXPECT_EQ(run(words("-f pdf") + photos).exitStatus, 1);
    EXPECT_EQ(outputs(), words("a.pdf b.pdf"));
    EXPECT_EQ(pages(u"b.pdf"_s), u"48 x 64 pts"_s);

    makeFile(u"out/WatermarkedPhotos.pdf"_s, "taken");
    EXPECT_EQ(run(words("-f pdf --combine-pdf -j 2") + photos).exitStatus, 1);
    EXPECT_EQ(outputs(), words("WatermarkedPhotos.pdf WatermarkedPhotos1.pdf a.pdf b.pdf"));
    EXPECT_EQ(pages(u"WatermarkedPhotos1.pdf"_s), u"64 x 48 pts|48 x 64 pts"_s);
    const ProgramRun drawn = runProgram(
        u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-png"_s, path(u"out/WatermarkedPhotos1.pdf"_s), path(u"page"_s)});
    ASSERT_EQ(drawn.exitStatus, 0);
    EXPECT_TRUE(isMarked(QImage(path(u"page-1.png"_s))));
    EXPECT_TRUE(isMarked(QImage(path(u"page-2.png"_s))));
}

}  // namespace
}  // namespace zelto
