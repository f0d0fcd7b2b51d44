// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_example.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(OutputExample, IsWhatARunWouldWrite) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile(folder.filePath(QStringLiteral("WatermarkedPhotos.pdf"))).open(QFile::WriteOnly));
    const FolderDestinations folders = {{QStringLiteral("/p/trip"), {}}, {QStringLiteral("/p/trip/day"), {}}};
    const OutputPlace place{QStringLiteral("/p/trip/day/beach.JPG"), 6, QDate(2024, 7, 4)};
    PhotoEffects border;
    border.EnableShadow = false;
    border.TopThickness = border.BottomThickness = border.LeftThickness = border.RightThickness = 10;

    struct Row {
        const char* format;
        bool keepsStructure;
        bool combines;
        bool resizes;
        std::optional<PhotoEffects> effects;
        const char* path;  // below the output folder
        QSize size;
    };
    const Row rows[] = {
        {"Same as source image", false, false, false, {}, "beach_007.jpg", {400, 300}},
        {"png", true, false, false, border, "trip/day/beach_007.png", {420, 320}},
        {"tif", false, true, true, border, "beach_007.tif", {200, 150}},
        {"pdf", false, false, false, {}, "beach_007.pdf", {400, 300}},
        {"pdf", false, true, true, {}, "WatermarkedPhotos1.pdf", {200, 150}},
    };
    for (const Row& row : rows) {
        OutputOptions options;
        options.OutputPath = folder.path();
        options.OutputFormat = QLatin1String(row.format);
        options.Rename = true;
        options.RenameFormat = QStringLiteral("[O]_[###]");
        options.KeepDirectoryStructure = row.keepsStructure;
        options.CombineToSinglePDF = row.combines;
        options.ResizeImage = row.resizes;
        options.ResizeWidth = options.ResizeHeight = 50;
        const OutputExample example = outputExample(place, {400, 300}, options, row.effects, folders);
        EXPECT_EQ(example.path, folder.filePath(QLatin1String(row.path)));
        EXPECT_EQ(example.size, row.size) << row.path;
    }
}

}  // namespace
}  // namespace zelto
