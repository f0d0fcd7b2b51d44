// SPDX-License-Identifier: GPL-3.0-or-later
// Shapes, gradients, filters, borders and shadows, seen in the pixels of written files.
#include "cli/batch_program.h"
#include "support/ink.h"

#include <QDir>
#include <QFileInfo>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QColor PhotoColor(200, 60, 20);
constexpr QColor BorderColor(0, 0, 255);

Color recordColor(const QColor& color) {
    return {color.redF(), color.greenF(), color.blueF(), 1.0F};
}

Watermark shape(std::int32_t kind, float width, float height, std::int32_t position) {
    Watermark record(watermark_type::Shape);
    record.ShapeType = kind;
    record.Width = width;
    record.Height = height;
    record.Position = position;
    record.Transparency = 1.0F;
    record.SolidColor = recordColor(Qt::green);
    return record;
}

Watermark gradient(std::int32_t kind, float side, std::int32_t position, std::int64_t type) {
    Watermark record = shape(kind, side, side, position);
    record.SolidBackground = false;
    record.GradeintType = type;
    record.FirstColor = recordColor(Qt::red);
    record.SecondColor = recordColor(Qt::yellow);
    return record;
}

class Effects : public BatchProgram {
  protected:
    // On each side another width; the shadow falls to the lower right.
    static PhotoEffects frame(bool watermarksOnBorder) {
        PhotoEffects effect;
        effect.LeftThickness = 10;
        effect.TopThickness = 20;
        effect.RightThickness = 30;
        effect.BottomThickness = 40;
        effect.BorderColor = recordColor(BorderColor);
        effect.BlurRadius = 5;
        effect.Distance = 10;
        effect.Direction = 315;
        effect.ApplyWatermarkOnBorder = watermarksOnBorder;
        return effect;
    }
    QString plainPhoto(const QString& name, QSize size = {300, 200}) const {
        QImage photo(size, QImage::Format_RGB32);
        photo.fill(PhotoColor);
        const QString file = makePhoto(name);
        EXPECT_TRUE(photo.save(file));
        return file;
    }
    QImage written(const WatermarkStack& stack, const QString& photo) const {
        useSetting(stack);
        EXPECT_EQ(run({photo}, home_).exitStatus, 0);
        return output(QFileInfo(photo).fileName());
    }
    QImage diagnostic(const QString& name) const { return QImage(path(u"home/"_s + name)); }

    const ProgramEnvironment home_ = {{u"HOME"_s, path(u"home"_s)}};
};

TEST_F(Effects, FilterThenFrameThenShapesOnThePhotoOrOnItsBorder) {
    const QString photo = plainPhoto(u"a.png"_s);
    for (const bool onBorder : {false, true}) {
        SCOPED_TRACE(onBorder);
        WatermarkStack stack;
        stack.SelectedFilter = 8;
        stack.Effects = frame(onBorder);
        stack.Watermarks = {shape(shape_type::Rectangle, 40, 20, 1), shape(shape_type::Line, 50, 4, 9)};
        stack.Watermarks.front().Rotation = 90;
        const QImage picture = written(stack, photo);
        // Growth and offset of a diagonal shadow are half of blur and distance together: 7 and a half, truncated.
        ASSERT_EQ(picture.size(), QSize(340 + 7, 260 + 7));
        const QRect framed(0, 0, 340, 260);
        const QRect area = onBorder ? framed : QRect(10, 20, 300, 200);
        EXPECT_EQ(colorBox(picture.copy(framed.adjusted(0, 0, -170, 0)), Qt::green),
                  QRect(area.topLeft(), QSize(20, 40)));
        EXPECT_EQ(colorBox(picture.copy(170, 0, 170, 260), Qt::green).translated(170, 0),
                  QRect(area.right() - 49, area.bottom() - 3, 50, 4));

        const QColor grey = picture.pixelColor(150, 120);
        EXPECT_TRUE(grey.red() == grey.green() && grey.green() == grey.blue() && grey.red() > 20);
        EXPECT_EQ(colorBox(picture, grey, 0), QRect(10, 20, 300, 200)) << "the filter stays within the photo";
        EXPECT_EQ(picture.pixelColor(5, 250), BorderColor);
        EXPECT_EQ(picture.pixelColor(343, 0).alpha(), 0) << "no shadow above its offset and blur";
        EXPECT_LE(largestDifference(picture.pixel(341, 130), qRgb(0, 0, 0)), 60);
        EXPECT_GT(picture.pixelColor(341, 130).alpha(), picture.pixelColor(346, 130).alpha());
    }
}

TEST_F(Effects, GradientsRunFromEndToEndAndPolygonsHaveTheirCorners) {
    WatermarkStack stack;
    constexpr float Side = 80;
    struct Row {
        Watermark record;
        std::vector<std::pair<QPoint, QColor>> pixels;  // from the shape's top left
    };
    const Row rows[] = {
        {gradient(shape_type::Rectangle, Side, 1, 1), {{{1, 40}, Qt::red}, {{78, 40}, Qt::yellow}}},
        {gradient(shape_type::Rectangle, Side, 3, 2), {{{40, 1}, Qt::red}, {{40, 78}, Qt::yellow}}},
        {gradient(shape_type::Rectangle, Side, 5, 3), {{{78, 78}, Qt::red}, {{1, 1}, Qt::yellow}}},
        {gradient(shape_type::Rectangle, Side, 7, 4), {{{78, 1}, Qt::red}, {{1, 78}, Qt::yellow}}},
        {gradient(shape_type::Ellipse, Side, 9, 5), {{{40, 40}, Qt::red}, {{4, 4}, PhotoColor}}},
        {gradient(shape_type::Polygon, Side, 4, 2),
         {{{40, 2}, Qt::red}, {{40, 77}, Qt::yellow}, {{12, 12}, PhotoColor}}},
    };
    for (const Row& row : rows) stack.Watermarks.push_back(row.record);
    stack.Watermarks.back().Sides = 4;
    const QImage picture = written(stack, plainPhoto(u"a.png"_s, {300, 300}));
    constexpr int Slope = 12;  // how far a pixel or two from its end a gradient has gone
    for (const Row& row : rows) {
        const int cell = row.record.Position - 1;
        const QPoint corner((cell % 3) * 110, (cell / 3) * 110);
        SCOPED_TRACE(cell);
        for (const auto& [point, color] : row.pixels) {
            EXPECT_LE(largestDifference(picture.pixel(corner + point), color.rgba()), Slope) << point.x();
        }
    }
}

TEST_F(Effects, TheEffectsPicturesOfTheLastPhotoStandInTheHomeFolder) {
    ASSERT_TRUE(QDir().mkpath(path(u"home"_s)));
    const QString photo = plainPhoto(u"a.png"_s);
    const QString last = plainPhoto(u"b.png"_s, {100, 80});
    const QString damaged = makeFile(u"in/c.png"_s, "no photo");
    WatermarkStack stack;
    stack.Watermarks = {shape(shape_type::Ellipse, 40, 40, 5)};
    EXPECT_EQ(written(stack, photo).size(), QSize(300, 200));
    EXPECT_TRUE(QDir(path(u"home"_s)).isEmpty()) << "without an effect there is nothing to look into";

    stack.SelectedFilter = 8;
    stack.Effects = frame(false);
    useSetting(stack);
    EXPECT_EQ(run({photo, last, damaged}, home_).exitStatus, 1);
    EXPECT_EQ(QDir(path(u"home"_s)).entryList(QDir::Files | QDir::Hidden),
              QStringList({u"effect.png"_s, u"file.png"_s}));
    const QSize framed(140, 140);
    EXPECT_EQ(diagnostic(u"file.png"_s).size(), framed);
    EXPECT_EQ(diagnostic(u"file.png"_s).pixelColor(2, 2), BorderColor);
    stack.Watermarks.clear();
    EXPECT_EQ(largestDifference(diagnostic(u"effect.png"_s), written(stack, last)), 0);
    EXPECT_EQ(largestDifference(diagnostic(u"file.png"_s), diagnostic(u"effect.png"_s).copy({{}, framed})),
              0);

    // The photo is framed once, not what has replaced it; a home that takes no files is no matter.
    const QStringList inPlace = {u"-s"_s,       path(u"mark.zcs"_s),        u"-o"_s,
                                 path(u"in"_s), u"--overwrite-originals"_s, last};
    EXPECT_EQ(runBare(inPlace, home_).exitStatus, 0);
    EXPECT_EQ(QImage(last).size(), diagnostic(u"effect.png"_s).size());
    const ProgramRun homeless = run({photo}, {{u"HOME"_s, u"/nowhere"_s}});
    EXPECT_EQ(homeless.exitStatus, 0);
    EXPECT_FALSE(homeless.errors.contains("file.png")) << homeless.errors.toStdString();
}

}  // namespace
}  // namespace zelto
