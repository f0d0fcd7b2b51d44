// SPDX-License-Identifier: GPL-3.0-or-later
// What is written, and where: read back with Qt's own readers.
#include "cli/batch_program.h"
#include "persistence/output_settings_file.h"
#include "support/test_pictures.h"

#include <QDate>
#include <QFile>
#include <QImageReader>

namespace zelto {
namespace {

using Outputs = BatchProgram;

QStringList words(const char* line) {
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST_F(Outputs, EveryFormatHoldsTheMarkedPhoto) {
    const QStringList photos = {makePhoto(QStringLiteral("a.JPG")), makePhoto(QStringLiteral("b.png")),
                                makePhoto(QStringLiteral("c.tif")), makePhoto(QStringLiteral("d.bmp"))};
    struct Row {
        const char* format;
        const char* files;
        const char* qtFormat;  // of the first file
    };
    const Row rows[] = {
        {"same", "a.jpg b.png c.tif d.bmp", "jpeg"}, {"jpg", "a.jpg b.jpg c.jpg d.jpg", "jpeg"},
        {"png", "a.png b.png c.png d.png", "png"},   {"tiff", "a.tiff b.tiff c.tiff d.tiff", "tiff"},
        {"bmp", "a.bmp b.bmp c.bmp d.bmp", "bmp"},   {"gif", "a.gif b.gif c.gif d.gif", "gif"}};
    for (const Row& row : rows) {
        QDir(path(QStringLiteral("out"))).removeRecursively();
        EXPECT_EQ(run(QStringList{QStringLiteral("-f"), QLatin1String(row.format)} + photos).exitStatus, 0);
        EXPECT_EQ(outputs(), words(row.files)) << row.format;
        EXPECT_EQ(QImageReader::imageFormat(path(QStringLiteral("out/") + words(row.files).first())),
                  row.qtFormat);
        for (const QString& name : outputs()) {
            EXPECT_EQ(output(name).size(), QSize(64, 48)) << name.toStdString();
            EXPECT_TRUE(isMarked(output(name))) << name.toStdString();
        }
    }
}

TEST_F(Outputs, SizeNameAndResolutionAreAsAsked) {
    const QString photo = path(QStringLiteral("in/beach.jpg"));
    QImage picture(QSize(400, 300), QImage::Format_RGB32);
    picture.fill(Qt::lightGray);
    TestJpeg jpeg;
    jpeg.jfifDensity = 300;
    makeFile(QStringLiteral("in/beach.jpg"), jpegBytes(picture, jpeg));
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
        QDir(path(QStringLiteral("out"))).removeRecursively();
        EXPECT_EQ(run(words(row.arguments) + QStringList(photo)).exitStatus, 0) << row.arguments;
        EXPECT_EQ(outputs(), QStringList(QString::fromUtf8(row.file))) << row.arguments;
        const QImage written = output(QString::fromUtf8(row.file));
        EXPECT_EQ(written.size(), row.size) << row.arguments;
        EXPECT_NEAR(written.dotsPerMeterX() * 0.0254, 300.0, 0.5) << row.arguments;
    }
}

TEST_F(Outputs, QualityDecidesTheSizeOfTheFile) {
    const QString photo = path(QStringLiteral("in/scene.jpg"));
    makeFile(QStringLiteral("in/scene.jpg"), jpegBytes(drawnScene({300, 200})));
    qint64 smaller = 0;
    for (const char* quality : {"10", "50", "90", "100"}) {
        ASSERT_EQ(run({QStringLiteral("-q"), QLatin1String(quality), photo}).exitStatus, 0);
        const qint64 size = QFileInfo(path(QStringLiteral("out/scene.jpg"))).size();
        EXPECT_GT(size, smaller) << quality;
        smaller = size;
    }
}

TEST_F(Outputs, FoldersAreScannedAndMirrored) {
    makePhoto(QStringLiteral("a.png"));
    makePhoto(QStringLiteral("sub/deep/a.png"));
    makePhoto(QStringLiteral("sub/b.bmp"));
    QFile(makePhoto(QStringLiteral("d.png"))).rename(path(QStringLiteral("in/d.gif")));
    const QString in = path(QStringLiteral("in"));

    EXPECT_EQ(run({in}).exitStatus, 0);
    EXPECT_EQ(outputs(), QStringList(QStringLiteral("a.png")));
    EXPECT_EQ(run({QStringLiteral("-r"), QStringLiteral("--keep-structure"), in}).exitStatus, 0);
    EXPECT_EQ(outputs(), words("a.png in/a.png in/sub/b.bmp in/sub/deep/a.png"));
    QDir(path(QStringLiteral("out"))).removeRecursively();
    EXPECT_EQ(
        run({QStringLiteral("-r"), QStringLiteral("--extensions"), QStringLiteral("bmp,gif"), in}).exitStatus,
        0);
    EXPECT_EQ(outputs(), QStringList(QStringLiteral("b.bmp")));
}

TEST_F(Outputs, AnOptionsFileIsTheStartingPoint) {
    OutputSettings settings;
    settings.options.OutputPath = path(QStringLiteral("elsewhere"));
    settings.options.OutputFormat = QStringLiteral("jpg");
    settings.options.Rename = true;
    settings.options.RenameFormat = QStringLiteral("[O]-[D]");
    settings.options.JPEGQuality = 95;
    const QString file = path(QStringLiteral("OutputSettings.xml"));
    ASSERT_TRUE(QDir().mkpath(settings.options.OutputPath));
    ASSERT_TRUE(saveOutputSettings(settings, file));
    const QStringList arguments = {QStringLiteral("-s"), path(QStringLiteral("mark.zcs")),
                                   QStringLiteral("--options"), file, makePhoto(QStringLiteral("a.png"))};
    ASSERT_EQ(runBare(arguments).exitStatus, 0);
    const QString today = QDate::currentDate().toString(QStringLiteral("MMddyyyy"));
    EXPECT_TRUE(isMarked(QImage(path(QStringLiteral("elsewhere/a-%1.jpg").arg(today)))));

    ASSERT_EQ(run(arguments.mid(2) + words("--rename x -f png")).exitStatus, 0);
    EXPECT_EQ(outputs(), QStringList(QStringLiteral("x.png")));
}

TEST_F(Outputs, PdfsHaveAPageAPhoto) {
    const QStringList photos = {makePhoto(QStringLiteral("a.png"), {64, 48}),
                                makePhoto(QStringLiteral("b.png"), {48, 64}),
                                makeFile(QStringLiteral("in/c.png"), "no photo")};
    const auto pages = [&](const QString& name) {
        const ProgramRun info =
            runProgram(QStringLiteral("pdfinfo"),
                       {QStringLiteral("-l"), QStringLiteral("9"), path(QStringLiteral("out/") + name)});
        QStringList sizes;
        for (const QByteArray& line : info.output.split('\n')) {
            if (line.startsWith("Page ") && line.contains("size:")) {
                sizes.append(QString::fromLatin1(line.mid(line.indexOf("size:") + 5)).simplified());
            }
        }
        return sizes.join(QLatin1Char('|'));
    };
    EXPECT_EQ(run(words("-f pdf") + photos).exitStatus, 1);
    EXPECT_EQ(outputs(), words("a.pdf b.pdf"));
    EXPECT_EQ(pages(QStringLiteral("b.pdf")), QStringLiteral("48 x 64 pts"));

    makeFile(QStringLiteral("out/WatermarkedPhotos.pdf"), "taken");
    EXPECT_EQ(run(words("-f pdf --combine-pdf -j 2") + photos).exitStatus, 1);
    EXPECT_EQ(outputs(), words("WatermarkedPhotos.pdf WatermarkedPhotos1.pdf a.pdf b.pdf"));
    EXPECT_EQ(pages(QStringLiteral("WatermarkedPhotos1.pdf")), QStringLiteral("64 x 48 pts|48 x 64 pts"));
    const ProgramRun drawn =
        runProgram(QStringLiteral("pdftoppm"),
                   {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-png"),
                    path(QStringLiteral("out/WatermarkedPhotos1.pdf")), path(QStringLiteral("page"))});
    ASSERT_EQ(drawn.exitStatus, 0);
    EXPECT_TRUE(isMarked(QImage(path(QStringLiteral("page-1.png")))));
    EXPECT_TRUE(isMarked(QImage(path(QStringLiteral("page-2.png")))));
}

}  // namespace
}  // namespace zelto
