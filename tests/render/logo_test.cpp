// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/logo.h"

#include "composed.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zelto {
namespace {

QByteArray png(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

Watermark logoRecord(const QImage& picture) {
    Watermark record(watermark_type::Image);
    record.ImageData = png(picture);
    record.Transparency = 1.0F;
    return record;
}

Logo load(const Watermark& record, QSizeF reference = {2000, 1000}) {
    LogoCache cache;
    return loadLogo(record, reference, cache);
}

TEST(Logo, SizesByTheRecordsRules) {
    struct Row {
        bool resize;
        std::int64_t format;
        float width, height;
        const char* side;
        QSizeF reference;
        QSizeF size;
    };
    const float nan = std::nanf("");
    const float infinite = std::numeric_limits<float>::infinity();
    for (const Row& row : {
             Row{false, 0, 0.25F, 0, "Width", {2000, 1000}, {400, 100}},
             Row{true, 0, 0.25F, 0, "Width", {2000, 1000}, {500, 125}},
             Row{true, 0, 0.2F, 0, "Width", {1000, 1000}, {200, 50}},  // 0.2 is a little more in single
                                                                       // precision
             Row{true, 1, 0.25F, 0, "Height", {2000, 1000}, {1000, 250}},
             Row{true, 0, 0.25F, 0, "Longer Side", {1000, 2000}, {2000, 500}},
             Row{true, 0, 0.25F, 0, "Longer Side", {2000, 2000}, {500, 125}},
             Row{true, 0, 0.25F, 0, "Proportional", {2000, 1000}, {}},
             Row{true, 0, 0.0F, 0, "Width", {2000, 1000}, {}},
             Row{true, 0, nan, 0, "Width", {2000, 1000}, {}},
             Row{true, 0, infinite, 0, "Width", {2000, 1000}, {}},
             Row{true, 2, 300, 300, "Width", {2000, 1000}, {300, 300}},
             Row{true, 2, 300, -1, "Width", {2000, 1000}, {}},
             Row{true, 0, 0.001F, 0, "Width", {1000, 1000}, {1, 1}},  // a thin line does not vanish
         }) {
        Watermark record(watermark_type::Image);
        record.Resize = row.resize;
        record.ResizeFormat = row.format;
        record.ResizeWidth = row.width;
        record.ResizeHeight = row.height;
        record.ImageProportionalResize = QString::fromLatin1(row.side);
        const QSizeF size = logoSize(record, {400, 100}, row.reference);
        EXPECT_EQ(size.isEmpty(), row.size.isEmpty());
        if (row.size.isEmpty()) continue;
        EXPECT_EQ(size, row.size) << row.side << row.width;
    }
}

TEST(Logo, ComesFromItsBytesFirstAndFromItsPathElse) {
    const QTemporaryDir folder;
    const QImage small = drawnScene({40, 20});
    const QImage large = drawnScene({60, 50});
    Watermark record = logoRecord(small);
    record.ImagePath = folder.filePath(QStringLiteral("logo.png"));
    ASSERT_TRUE(large.save(record.ImagePath));
    EXPECT_EQ(largestDifference(load(record).picture, small), 0);
    record.ImageData = "no picture at all";
    LogoCache cache;
    EXPECT_EQ(largestDifference(loadLogo(record, {2000, 1000}, cache).picture, large), 0);
    // A logo that is saved anew is noticed although it has been kept.
    ASSERT_TRUE(drawnScene({33, 44}).save(record.ImagePath));
    EXPECT_EQ(loadLogo(record, {2000, 1000}, cache).loadedSize, QSize(33, 44));
    QFile::remove(record.ImagePath);
    const Logo missing = loadLogo(record, {2000, 1000}, cache);
    EXPECT_TRUE(missing.picture.isNull());
    EXPECT_TRUE(missing.size.isEmpty());
}

TEST(Logo, LosesItsColorThenItsColorsThenItsOpacity) {
    QImage picture(3, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgb(255, 255, 255));
    picture.setPixel(1, 0, qRgb(254, 255, 255));
    picture.setPixel(2, 0, qRgb(200, 30, 90));
    Watermark record = logoRecord(picture);
    record.IsTransparent = true;
    record.TransparentColor = Color::white();
    const QImage open = load(record).picture;
    EXPECT_EQ(qAlpha(open.pixel(0, 0)), 0);
    EXPECT_EQ(open.pixel(1, 0), qRgb(254, 255, 255));
    EXPECT_EQ(open.pixel(2, 0), qRgb(200, 30, 90));

    record.CreateBW = true;
    const QColor grey = load(record).picture.pixelColor(2, 0);
    EXPECT_TRUE(grey.saturation() == 0 && grey.alpha() == 255);
    EXPECT_EQ(qAlpha(load(record).picture.pixel(0, 0)), 0);

    record.Transparency = 0.5F;
    const QColor faded = load(record).picture.pixelColor(2, 0);
    EXPECT_NEAR(faded.alpha(), 128, 1);
    EXPECT_NEAR(faded.red(), grey.red(), 2) << "within the rounding of premultiplied halves";
}

TEST(Logo, FarLargerThanThePhotoIsNotMadeWholeInMemory) {
    Watermark record = logoRecord(drawnScene({40, 20}));
    record.Resize = true;
    record.ResizeFormat = 2;
    record.ResizeWidth = 4e6F;
    record.ResizeHeight = 2e6F;
    const Logo logo = load(record);
    EXPECT_EQ(logo.size, QSizeF(4e6, 2e6));
    EXPECT_EQ(logo.picture.size(), QSize(40, 20));
    // Its lower left corner fills the photo all the same.
    record.Position = 7;
    const QImage photo = composed(record, plainPhoto({200, 100}, Qt::green));
    EXPECT_LE(largestDifference(photo.copy(0, 99, 1, 1), drawnScene({40, 20}).copy(0, 19, 1, 1)), 1);
    record.Rotation = 45;
    EXPECT_EQ(composed(record, plainPhoto({200, 100}, Qt::green)).size(), QSize(200, 100));
}

TEST(LogoCache, MakesAPictureOnceForAllThreadsAndKeepsThoseUsedLast) {
    const qint64 bytes = QImage(100, 100, QImage::Format_RGB32).sizeInBytes();
    LogoCache cache(2 * bytes);
    std::atomic<int> made = 0;
    const auto get = [&](const QString& path) {
        LogoKey key;
        key.path = path;
        return cache.picture(key, [&] {
            ++made;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            return plainPhoto({100, 100});
        });
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) threads.emplace_back([&] { get(QStringLiteral("a")); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(made, 1);
    for (const char* path : {"b", "a", "c", "a"}) get(QString::fromLatin1(path));
    EXPECT_EQ(made, 3);
    get(QStringLiteral("b"));
    EXPECT_EQ(made, 4) << "b was used longest ago when c came";
}

TEST(LogoCache, AFailureIsNotKept) {
    LogoCache cache;
    EXPECT_THROW(cache.picture({}, []() -> QImage { throw std::runtime_error("disk"); }), std::runtime_error);
    EXPECT_EQ(cache.picture({}, [] { return plainPhoto({3, 4}); }).size(), QSize(3, 4));
}

}  // namespace
}  // namespace zelto
