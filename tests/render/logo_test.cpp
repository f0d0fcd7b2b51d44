// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/logo.h"

#include "support/ink.h"
#include "support/records.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <atomic>
#include <cmath>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zelto {
namespace {

TEST(Logo, SizesByTheRecordsRules) {
    struct Row {
        std::int64_t format;
        float width, height;
        const char* side;
        QSizeF reference, size;  // of a logo of 400 x 100
    };
    for (const Row& row : {
             Row{0, 0.25F, 0, "Width", {2000, 1000}, {500, 125}},
             Row{0, 0.2F, 0, "Width", {1000, 1000}, {200, 50}},  // 0.2 is a little more in single precision
             Row{1, 0.25F, 0, "Height", {2000, 1000}, {1000, 250}},
             Row{0, 0.25F, 0, "Longer Side", {1000, 2000}, {2000, 500}},
             Row{0, 0.25F, 0, "Longer Side", {2000, 2000}, {500, 125}},
             Row{0, 0.25F, 0, "Proportional", {2000, 1000}, {}},
             Row{0, std::nanf(""), 0, "Width", {2000, 1000}, {}},
             Row{0, HUGE_VALF, 0, "Width", {2000, 1000}, {}},
             Row{2, 300, 300, "Width", {2000, 1000}, {300, 300}}, Row{2, 300, -1, "Width", {2000, 1000}, {}},
             Row{0, 0.001F, 0, "Width", {1000, 1000}, {1, 1}},  // a thin line does not vanish
         }) {
        Watermark record(watermark_type::Image);
        record.ResizeFormat = row.format;
        record.ResizeWidth = row.width;
        record.ResizeHeight = row.height;
        record.ImageProportionalResize = QString::fromLatin1(row.side);
        EXPECT_EQ(logoSize(record, {400, 100}, row.reference), QSizeF(400, 100));
        record.Resize = true;
        EXPECT_EQ(logoSize(record, {400, 100}, row.reference), row.size) << row.side << row.width;
    }
}

TEST(Logo, ComesFromItsBytesFirstAndFromItsPathElse) {
    const QTemporaryDir folder;
    LogoCache cache;
    Watermark record = logoRecord(drawnScene({40, 20}));
    record.ImagePath = folder.filePath(QStringLiteral("logo.png"));
    ASSERT_TRUE(drawnScene({60, 50}).save(record.ImagePath));
    EXPECT_EQ(largestDifference(loadLogo(record, {200, 100}, cache).picture, drawnScene({40, 20})), 0);
    record.ImageData = "no picture at all";
    EXPECT_EQ(loadLogo(record, {200, 100}, cache).loadedSize, QSize(60, 50));
    // A logo that is saved anew is noticed although it has been kept.
    ASSERT_TRUE(drawnScene({33, 44}).save(record.ImagePath));
    EXPECT_EQ(loadLogo(record, {200, 100}, cache).loadedSize, QSize(33, 44));
    QFile::remove(record.ImagePath);
    EXPECT_TRUE(loadLogo(record, {200, 100}, cache).picture.isNull());
}

TEST(Logo, LosesItsColorThenItsColorsThenItsOpacity) {
    const QRgb pixels[] = {qRgb(255, 255, 255), qRgb(254, 255, 255), qRgb(200, 30, 90)};
    LogoCache cache;
    Watermark record =
        logoRecord(pictureOf({3, 1}, QImage::Format_ARGB32, [&](int x, int) { return pixels[x]; }));
    record.IsTransparent = true;
    record.TransparentColor = Color::white();
    const QImage open = loadLogo(record, {200, 100}, cache).picture;
    EXPECT_EQ(open.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(open.pixel(1, 0), qRgb(254, 255, 255));
    record.CreateBW = true;
    const QColor grey = loadLogo(record, {200, 100}, cache).picture.pixelColor(2, 0);
    EXPECT_TRUE(grey.saturation() == 0 && grey.alpha() == 255);
    record.Transparency = 0.5F;
    const QColor faded = loadLogo(record, {200, 100}, cache).picture.pixelColor(2, 0);
    EXPECT_NEAR(faded.alpha(), 128, 1);
    EXPECT_NEAR(faded.red(), grey.red(), 2) << "within the rounding of premultiplied halves";
}

TEST(Logo, FarLargerThanThePhotoIsStretchedWhileItIsDrawn) {
    LogoCache cache;
    Watermark record = logoRecord(drawnScene({40, 20}));
    record.Resize = true;
    record.ResizeFormat = 2;
    record.ResizeWidth = 4e6F;
    record.ResizeHeight = 2e6F;
    EXPECT_EQ(loadLogo(record, {200, 100}, cache).picture.size(), QSize(40, 20));
    const QImage photo = composed(record, plainPhoto({200, 100}, Qt::green));
    EXPECT_LE(largestDifference(photo.copy(0, 99, 1, 1), drawnScene({40, 20}).copy(0, 19, 1, 1)), 1);
}

TEST(LogoCache, MakesAPictureOnceForAllThreadsAndKeepsThoseUsedLast) {
    LogoCache cache(2 * plainPhoto({100, 100}).sizeInBytes());
    std::atomic<int> made = 0;
    const auto get = [&](const char* path) {
        LogoKey key;
        key.path = QString::fromLatin1(path);
        return cache.picture(key, [&] {
            ++made;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            return plainPhoto({100, 100});
        });
    };
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) threads.emplace_back([&] { get("a"); });
    threads.clear();
    EXPECT_EQ(made, 1);
    for (const char* path : {"b", "a", "c", "a"}) get(path);
    EXPECT_EQ(made, 3);
    get("b");
    EXPECT_EQ(made, 4) << "b was used longest ago when c came";
    EXPECT_THROW(cache.picture({}, []() -> QImage { throw std::runtime_error("disk"); }), std::runtime_error);
    const auto make = [] { return plainPhoto({3, 4}); };
    EXPECT_EQ(cache.picture({}, make).size(), QSize(3, 4)) << "a failure is not kept";
}

}  // namespace
}  // namespace zelto
