// SPDX-License-Identifier: GPL-3.0-or-later
// Orientation in every format that can record one.
#include "pictures/upright.h"

#include "pictures/picture_libraries.h"
#include "pictures/picture_reader.h"
#include "support/exiftool.h"
#include "support/ink.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QTransform>

namespace zelto {
namespace {

constexpr QSize Stored(150, 96);  // more rows than a band, and not a multiple of one

// What a viewer sees of `stored`, by Qt's own mirroring and turning.
QImage seen(const QImage& stored, int orientation) {
    // Whether the picture is mirrored first, and by how many degrees it is turned then.
    static constexpr std::pair<bool, int> Turns[] = {{false, 0},  {true, 0},   {false, 180}, {true, 180},
                                                     {true, 270}, {false, 90}, {true, 90},   {false, 270}};
    const auto [isMirrored, degrees] = Turns[orientation - 1];
    return stored.mirrored(isMirrored, false).transformed(QTransform().rotate(degrees));
}

TEST(Upright, EveryOrientationOfEveryFormatIsTurned) {
    const QImage scene = drawnScene(Stored);
    const QTemporaryDir folder;
    QStringList paths;
    for (const QString& name : {u"a.jpg"_s, u"a.png"_s, u"a.tif"_s, u"a.webp"_s}) {
        if (name == u"a.webp"_s && webpLibrary() == nullptr) continue;
        paths += folder.filePath(name);
        ASSERT_TRUE(scene.save(paths.back(), nullptr, 100));
    }
    std::vector<QImage> stored;
    for (const QString& path : paths) stored.push_back(readPicture(path).value_or(Picture()).image);
    EXPECT_EQ(largestDifference(uprightPicture(scene, 9), scene), 0) << "there is no such orientation";
    for (int orientation = 1; orientation <= 8; ++orientation) {
        ASSERT_TRUE(writeTags({u"-Orientation#=%1"_s.arg(orientation)}, paths));
        for (std::size_t i = 0; i < stored.size(); ++i) {
            const QImage picture = readPicture(paths[int(i)]).value_or(Picture()).image;
            EXPECT_EQ(largestDifference(picture, seen(stored[i], orientation)), 0)
                << qPrintable(paths[int(i)]) << orientation;
        }
    }
}

}  // namespace
}  // namespace zelto
