// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_name.h"

#include "support/testing.h"

namespace zelto {
namespace {

OutputOptions optionsFor(const QString& format) {
    OutputOptions options;
    options.OutputPath = u"/out"_s;
    options.OutputFormat = format;
    return options;
}

OutputPlace placeOf(const char* source, qint64 row = 6) {
    return {QString::fromUtf8(source), row, QDate(2024, 7, 4)};
}

TEST(OutputName, FillsTheRenamePattern) {
    struct Row {
        const char* source;
        qint64 row;
        const char* pattern;
        const char* name;
    };
    const Row rows[] = {
        {"/p/beach.jpg", 6, "[#] [##] [###] [####]", "7 07 007 0007"},
        {"/p/beach.jpg", 12344, "[#] [##] [###] [####]", "12345 12345 12345 12345"},
        {"/p/beach.jpg", 0, "[D]-[DD]", "07042024-04072024"},
        {"/p/beach.jpg", 0, "\t [O][O] \n", "beachbeach"},
        {"/p/x[#].jpg", 4, "[O]", "x5"},
        {"/p/beach.jpg", 0, "[o][#####]", "[o][#####]"},
        {"/p/beach.jpg", 0, "../[O]/../../etc", ".._beach_.._.._etc"},
        {"/p/größe 100%.jpg", 0, "[O]©", "größe 100%©"},
    };
    for (const Row& row : rows) {
        OutputOptions options = optionsFor(SameAsSourceFormat);
        options.RenameFormat = QString::fromUtf8(row.pattern);
        options.Rename = true;
        EXPECT_EQ(outputName(placeOf(row.source, row.row), options), QString::fromUtf8(row.name))
            << row.pattern;
    }
    OutputOptions options = optionsFor(SameAsSourceFormat);
    options.RenameFormat = u"[#]"_s;
    EXPECT_EQ(outputName(placeOf("/p/beach.jpg"), options), u"beach"_s) << "renaming is off";
}

TEST(OutputPath, TakesItsExtensionFromTheFormat) {
    struct Row {
        const char *source, *format, *path;
    };
    const Row rows[] = {
        {"/p/photo.JPG", "Same as source image", "/out/photo.jpg"},
        {"/p/photo.tar.Tiff", "Same as source image", "/out/photo.tar.tiff"},
        {"/p/photo", "Same as source image", "/out/photo."},
        {"/p/.photo", "jpg", "/out/.photo.jpg"},
        {"/p/photo.jpg", "x/../../jpg", "/out/photo.x_.._.._jpg"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(outputPath(placeOf(row.source), optionsFor(QLatin1String(row.format)), {}),
                  QLatin1String(row.path));
    }
}

TEST(OutputPath, LiesBelowTheDestinationOfItsFolderWhereTheStructureIsKept) {
    FolderDestinations destinations = {{u"/p/a"_s, {}}, {u"/p/a/b"_s, {}}};
    OutputOptions options = optionsFor(u"jpg"_s);
    options.OutputPath = u"/out/"_s;
    const auto path = [&](const char* source) { return outputPath(placeOf(source), options, destinations); };

    EXPECT_EQ(path("/p/a/b/1.jpg"), u"/out/1.jpg"_s);
    options.KeepDirectoryStructure = true;
    EXPECT_EQ(path("/p/a/b/1.jpg"), u"/out/1.jpg"_s) << "as long as nothing is resolved";
    resolveDestinations(destinations, options.OutputPath);
    EXPECT_EQ(path("/p/a/b/1.jpg"), u"/out/a/b/1.jpg"_s);
    EXPECT_EQ(path("/p/a//1.jpg"), u"/out/a/1.jpg"_s);
    EXPECT_EQ(path("/q/1.jpg"), u"/out/1.jpg"_s);
}

TEST(CombinedPdfPath, CountsUpToAFreeName) {
    const QTemporaryDir folder;
    const auto next = [&] { return QDir(folder.path()).relativeFilePath(combinedPdfPath(folder.path())); };
    for (const char* name : {"WatermarkedPhotos.pdf", "WatermarkedPhotos1.pdf", "WatermarkedPhotos2.pdf"}) {
        EXPECT_EQ(next(), QLatin1String(name));
        ASSERT_TRUE(QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(QFile::remove(folder.filePath(u"WatermarkedPhotos1.pdf"_s)));
    EXPECT_EQ(next(), u"WatermarkedPhotos1.pdf"_s);
}

}  // namespace
}  // namespace zelto
