// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/text_block.h"

#include "pictures/picture_additions.h"
#include "render/canvas.h"
#include "render/font_size.h"
#include "render/lengths.h"
#include "render/opacity.h"
#include "render/photo_shadow.h"
#include "render/qt_color.h"
#include "render/reduced_canvas.h"
#include "render/text_layout.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

constexpr double DefaultFontSize = 12.0;
constexpr double LargestFontSize = 1e6;  // a letter far larger than any photo
constexpr double LabelInset = 2.0;       // the text from the left and right edge of its label
constexpr double BlockMargin = 10.0;     // by which a block is wider than its text
constexpr int ShadowBlur = 5;
constexpr QPoint ShadowOffset(5, -5);  // right and up

double pointSize(const Watermark& record, QSizeF reference) {
    const double size = fontSizeOf(record);
    if (!record.IsRelative) return std::min(size, LargestFontSize);
    const bool byWidth = sideNamed(record.FontRelativeSize, reference) == Side::Width;
    const double side = byWidth ? reference.width() : reference.height();
    constexpr double PointsOfSide = 0.75;
    return std::min(size / 100.0 * (side * PointsOfSide), LargestFontSize);
}

TextAttributes defaultAttributes() {
    return {.font = {.pointSize = DefaultFontSize},
            .foreground = Color::black(),
            .alignment = text_alignment::Natural};
}

TextAttributes attributesOf(const Watermark& record, QSizeF reference) {
    TextAttributes attributes = defaultAttributes();
    attributes.underline = record.FontUnderline;
    attributes.strikethrough = record.FontStrikethrough;
    if (!isFontInstalled(record.FontFamily)) return attributes;
    attributes.font = withTraits({.family = record.FontFamily, .pointSize = pointSize(record, reference)},
                                 record.FontBold, record.FontItalic);
    if (record.TextColor) {
        attributes.foreground = *record.TextColor;
        attributes.foreground.Alpha = static_cast<float>(opacityOf(record.Transparency));
        attributes.alignment = record.Alignment;
    }
    if (record.Shadow) attributes.shadow = record.ShadowColor;
    return attributes;
}

int shadowReach(const TextBlock& block) {
    return block.attributes.shadow ? ShadowBlur + ShadowOffset.x() : 0;
}

QRectF blockRect(const TextBlock& block) {
    return {QPointF(0.0, 0.0), block.size};
}

// A transparent picture of some pixels of the one that is drawn on, and where it lies there. It takes a group
// of drawings that are blended onto the picture as one.
struct Group {
    QRect pixels;
    QImage image;

    explicit Group(const QRect& area)
        : pixels(area), image(area.isEmpty() ? QImage() : clearCanvas(area.size())) {}

    QTransform fromPicture() const { return QTransform::fromTranslate(-pixels.x(), -pixels.y()); }

    // Leaves out what is transparent and has nothing drawn on it within `reach` pixels.
    void tighten(int reach) {
        const QRect ink = inkBox();
        const QRect kept = ink.adjusted(-reach, -reach, reach, reach).intersected(image.rect());
        image = ink.isEmpty() ? QImage() : allocated(image.copy(kept));
        pixels = kept.translated(pixels.topLeft());
    }

  private:
    QRect inkBox() const {
        int top = image.height();
        int bottom = -1;
        int left = image.width();
        int right = -1;
        const auto isInk = [](QRgb pixel) { return pixel != 0; };
        for (int y = 0; y < image.height(); ++y) {
            const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            const auto* const end = row + image.width();
            const auto* const first = std::find_if(row, end, isInk);
            if (first == end) continue;
            top = std::min(top, y);
            bottom = y;
            left = std::min(left, static_cast<int>(first - row));
            const auto* last = end;
            while (last - row > right + 1 && !isInk(*(last - 1))) --last;
            right = std::max(right, static_cast<int>(last - row) - 1);
        }
        return bottom < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
    }
};

void drawLabelText(QPainter& painter, const TextBlock& block, const QTransform& toDevice,
                   const QRect& visible) {
    QColor color = toQColor(block.attributes.foreground);
    color.setAlphaF(1.0F);
    painter.setTransform(toDevice);
    drawText(painter, block.text, block.attributes, color,
             blockRect(block).adjusted(LabelInset, 0, -LabelInset, 0),
             toDevice.inverted().mapRect(QRectF(visible)));
    painter.setTransform({});
}

// The text at its opacity and its shadow under it. The group is drawn opaque first, so that letters that
// overlap do not show through each other; the shadow takes its strength from the letters' opacity.
void drawLabelGroup(QPainter& painter, const TextBlock& block, const ContentPlace& place,
                    const QRectF& bounds) {
    const int reach = shadowReach(block);
    const QRect visible = place.visible.adjusted(-reach, -reach, reach, reach);
    Group group(visiblePixels(bounds, visible));
    if (group.image.isNull()) return;
    {
        QPainter ink(&group.image);
        drawLabelText(ink, block, place.toPicture * group.fromPicture(), group.image.rect());
    }
    group.tighten(reach);
    if (group.image.isNull()) return;
    group.image = imageWithOpacity(std::move(group.image), block.attributes.foreground.Alpha);
    if (block.attributes.shadow) {
        Color color = *block.attributes.shadow;
        color.Alpha = 1.0F;
        const QPointF offset =
            place.toPicture.map(QPointF(ShadowOffset)) - place.toPicture.map(QPointF(0.0, 0.0));
        QImage canvas = allocated(QImage(group.image.size(), QImage::Format_ARGB32_Premultiplied));
        drawPictureWithShadow(canvas, group.image, {},
                              {.offset = offset.toPoint(), .blur = ShadowBlur, .color = color});
        group.image = std::move(canvas);
    }
    drawPictureAt(painter, group.pixels.topLeft(), group.image);
}

void drawLabel(QPainter& painter, const TextBlock& block, const ContentPlace& place) {
    const double alpha = block.attributes.foreground.Alpha;
    if (alpha <= 0.0) return;
    if (alpha >= 1.0 && !block.attributes.shadow) {
        drawLabelText(painter, block, place.toPicture, place.visible);
        return;
    }
    const double more = place.cutToContent ? 0.0 : overhang(block);
    const QRectF bounds = blockRect(block).adjusted(-more, -more, more, more);
    drawLabelGroup(painter, block, place, place.toPicture.mapRect(bounds));
}

// White below left, black above right, the face between them; hollow letters have their face taken out
// instead.
void drawEmboss(QPainter& painter, const TextBlock& block, const ContentPlace& place) {
    Group group(visiblePixels(place.toPicture.mapRect(blockRect(block)), place.visible));
    if (group.image.isNull()) return;
    const double depth = std::max(1.0, std::trunc(block.attributes.font.pointSize * 0.01));
    QPainter relief(&group.image);
    relief.setTransform(place.toPicture * group.fromPicture());
    relief.setClipRect(blockRect(block));
    const QRectF visible = relief.transform().inverted().mapRect(QRectF(group.image.rect()));
    const auto drawCopy = [&](double steps, const QColor& color) {
        const QRectF box = blockRect(block).adjusted(0, 0, -BlockMargin, 0);
        drawText(relief, block.text, block.attributes, color, box.translated(steps * depth, -steps * depth),
                 visible);
    };
    drawCopy(0, Qt::white);
    drawCopy(2, Qt::black);
    if (block.hollow) relief.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    drawCopy(1, block.hollow ? QColor(Qt::black) : toQColor(block.faceColor));
    relief.end();
    painter.setOpacity(block.opacity);
    drawPictureAt(painter, group.pixels.topLeft(), group.image);
}

}  // namespace

TextBlock makeTextBlock(const Watermark& record, const QString& text, QSizeF reference) {
    TextBlock block;
    block.text = text;
    block.attributes = attributesOf(record, reference);
    const QSizeF measured = measuredText(text, block.attributes.font);
    block.size = QSizeF(measured.width() + BlockMargin, measured.height());
    block.embossed = record.TextEffect != text_effect::None;
    block.hollow = record.UseTransparentColor;
    block.faceColor = record.TextColor.value_or(Color::black());
    block.opacity = opacityOf(record.Transparency);
    return block;
}

double overhang(const TextBlock& block) {
    // Letters of slanted and written faces reach out of their line's box by less than their size.
    return block.embossed ? 0.0 : block.attributes.font.pointSize + shadowReach(block);
}

void drawTextBlock(QPainter& painter, const TextBlock& block, const ContentPlace& place) {
    const SavedPainter saved(painter);
    painter.setClipRect(place.visible);
    if (place.cutToContent) {
        painter.setTransform(place.toPicture);
        painter.setClipRect(blockRect(block), Qt::IntersectClip);
        painter.setTransform({});
    }
    block.embossed ? drawEmboss(painter, block, place) : drawLabel(painter, block, place);
}

}  // namespace zelto
