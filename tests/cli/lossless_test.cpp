// SPDX-License-Identifier: GPL-3.0-or-later
// --jpeg-lossless through the program: which photos it is done for, what the report says, and what goes with the photo.
#include "cli/batch_program.h"
#include "support/ink.h"
#include "support/stored_jpeg.h"
#include "support/test_pictures.h"

#include <QColorSpace>

namespace zelto {
namespace {

class Lossless : public BatchProgram {
  protected:
    // The photo at `index` of a report: how its JPEG came about, and why.
    static std::pair<QString, QString> way(const QJsonObject& report, int index) {
        const QJsonObject photo = report[u"photos"][index].toObject();
        return {photo[u"jpeg"].toString(), photo[u"jpegReason"].toString()};
    }
    QByteArray written(const QString& name) const { return filesBelow(QStringLiteral("out")).value(name); }
};

TEST_F(Lossless, PhotosItCannotBeDoneForAreEncodedAsEverAndTheReportSaysWhy) {
    const QByteArray photo =
        jpegBytes(drawnScene({160, 96}), {.fullChroma = false, .profile = adobeRgbProfile()});
    const QString plain = makeFile(QStringLiteral("in/plain.jpg"), photo);
    const QString turned = makeFile(QStringLiteral("in/turned.jpg"),
                                    jpegBytes(drawnScene({90, 70}), {.fullChroma = false, .orientation = 3}));
    const QString png = makePhoto(QStringLiteral("pixels.png"));
    const std::pair<QStringList, const char*> runs[] = {
        {{}, nullptr},
        {{QStringLiteral("--longest-side"), QStringLiteral("160")}, nullptr},
        {{QStringLiteral("--metadata"), QStringLiteral("none")}, nullptr},
        {{QStringLiteral("--longest-side"), QStringLiteral("80")}, "It is resized."}};
    for (const auto& [options, reason] : runs) {
        const QStringList usual =
            QStringList{QStringLiteral("-f"), QStringLiteral("jpg"), plain, turned, png} + options;
        EXPECT_EQ(way(report(usual, 0), 0), std::pair(QString(), QString()));
        const Files before = filesBelow(QStringLiteral("out"));
        const QJsonObject said = report(QStringList{QStringLiteral("--jpeg-lossless")} + usual, 0);
        EXPECT_EQ(way(said, 0),
                  std::pair(reason == nullptr ? QStringLiteral("lossless") : QStringLiteral("encoded"),
                            QString::fromLatin1(reason)));
        EXPECT_EQ(way(said, 1).first, QLatin1String("encoded"));
        EXPECT_EQ(way(said, 2),
                  std::pair(QStringLiteral("encoded"), QStringLiteral("The photo is no JPEG.")));
        EXPECT_EQ(written(QStringLiteral("turned.jpg")), before[QStringLiteral("turned.jpg")]);
        EXPECT_EQ(written(QStringLiteral("pixels.jpg")), before[QStringLiteral("pixels.jpg")]);
        EXPECT_EQ(written(QStringLiteral("plain.jpg")) == before[QStringLiteral("plain.jpg")],
                  reason != nullptr);
        if (reason != nullptr) continue;
        // The mark is 10 pixels wide in the corner, so two sampling units of 16 hold it.
        const QByteArray file = written(QStringLiteral("plain.jpg"));
        const QRect changed = storedJpeg(file).differenceFrom(storedJpeg(photo));
        EXPECT_EQ(changed, QRect(144, 80, 16, 16));
        const QImage shown = QImage::fromData(file).convertedToColorSpace(QColorSpace::SRgb);
        EXPECT_LE(largestDifference(shown.pixel(156, 92), qRgb(255, 0, 0)), 30);
        EXPECT_TRUE(QImage::fromData(file).colorSpace().isValid());
        EXPECT_NE(QImage::fromData(file).colorSpace(), QColorSpace(QColorSpace::SRgb));
    }
    EXPECT_EQ(
        way(report({QStringLiteral("--jpeg-lossless"), QStringLiteral("-f"), QStringLiteral("png"), plain},
                   0),
            0),
        std::pair(QString(), QString()));
}

// Tiles that stand apart and a turned text: everywhere else the photo's own blocks.
TEST_F(Lossless, AStackOfLayersLeavesWhatItDoesNotDrawOn) {
    WatermarkStack stack;
    Watermark text(watermark_type::Text);
    text.Text = QStringLiteral("© Zelto");
    text.FontFamily = QStringLiteral("DejaVu Sans");
    text.FontSize = 20;
    text.Rotation = 30;
    text.HorizontalTiling = text.VerticalTiling = true;
    text.HorizontalSpacing = text.VerticalSpacing = 150;
    stack.Watermarks = {text};
    useSetting(stack);
    const QByteArray photo = jpegBytes(drawnScene({800, 608}));
    const QString path = makeFile(QStringLiteral("in/a.jpg"), photo);
    run({path, QStringLiteral("-q"), QStringLiteral("100")});
    const QImage usual = output(QStringLiteral("a.jpg"));
    EXPECT_EQ(way(report({QStringLiteral("--jpeg-lossless"), path}, 0), 0).first, QLatin1String("lossless"));
    const StoredJpeg before = storedJpeg(photo);
    const StoredJpeg after = storedJpeg(written(QStringLiteral("a.jpg")));
    const QImage unmarked = QImage::fromData(photo);
    int kept = 0;
    for (int y = 0; y < 608 / 8; ++y) {
        for (int x = 0; x < 800 / 8; ++x) {
            const QRect block(x * 8, y * 8, 8, 8);
            const bool isDrawnOn = largestDifference(usual.copy(block), unmarked.copy(block)) > 30;
            const bool isKept = before.components[0].at(x, y) == after.components[0].at(x, y);
            EXPECT_FALSE(isDrawnOn && isKept) << x << "," << y;
            kept += isKept ? 1 : 0;
        }
    }
    EXPECT_GT(kept, 76 * 100 * 7 / 10);
    EXPECT_LT(kept, 76 * 100);
}

}  // namespace
}  // namespace zelto
