// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/tiling.h"

#include "pictures/lengths.h"
#include "pictures/picture_additions.h"
#include "render/canvas.h"
#include "render/qr_code.h"
#include "render/reduced_canvas.h"
#include "render/shape.h"
#include "render/text_block.h"

#include <QBrush>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

bool hasSizeOf(const QImage& picture, QSizeF size) {
    return picture.width() == wholePixels(size.width()) && picture.height() == wholePixels(size.height());
}

// Draws only what shows of a picture stretched to `size`, however large that is.
void drawStretched(QPainter& painter, const QImage& picture, QSizeF size, const ContentPlace& place) {
    const double scaleX = size.width() / picture.width();
    const double scaleY = size.height() / picture.height();
    const QRectF seen = place.toPicture.inverted().mapRect(QRectF(place.visible));
    const QRectF seenSource(seen.x() / scaleX, seen.y() / scaleY, seen.width() / scaleX,
                            seen.height() / scaleY);
    const QRect source = visiblePixels(seenSource.adjusted(-1, -1, 1, 1), picture.rect());
    const QRectF target(source.x() * scaleX, source.y() * scaleY, source.width() * scaleX,
                        source.height() * scaleY);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setTransform(place.toPicture);
    painter.drawImage(target, picture, QRectF(source));
}

void drawPicture(QPainter& painter, const QImage& picture, QSizeF size, const ContentPlace& place) {
    const QRectF area = place.toPicture.mapRect(QRectF(QPointF(0.0, 0.0), size));
    if (picture.isNull() || visiblePixels(area, place.visible).isEmpty()) return;
    painter.save();
    painter.setClipRect(place.visible);
    if (place.toPicture.type() <= QTransform::TxTranslate && hasSizeOf(picture, size)) {
        // Content stands on the lower edge of its frame, so that is where a rounded-up picture stands too.
        drawPictureAt(painter, QPointF(area.left(), area.bottom() - picture.height()).toPoint(), picture);
    } else {
        drawStretched(painter, picture, size, place);
    }
    painter.restore();
}

// The surface with a picture already turned, as many times as it may be drawn.
TilingView withTurnedPicture(TilingView surface) {
    surface.rotation %= 360;
    const auto* picture = std::get_if<QImage>(&surface.tilingImage);
    if (picture == nullptr || surface.rotation == 0 || !hasSizeOf(*picture, surface.contentSize))
        return surface;
    QImage turned = allocated(imageRotatedByDegrees(*picture, -surface.rotation));
    surface.contentSize = turned.size();
    surface.tilingImage = std::move(turned);
    surface.rotation = 0;
    return surface;
}

// One cell of a surface, in whole pixels, and the bounding box of its turned content.
struct Cell {
    double width;
    double height;
    QSizeF turned;

    explicit Cell(const TilingView& surface) : turned(rotatedSize(surface.contentSize, surface.rotation)) {
        width = wholePixels(turned.width() + gap(surface.horizontalSpacing));
        height = wholePixels(turned.height() + gap(surface.verticalSpacing));
    }

    // Beyond any photo's size a gap only costs precision.
    static double gap(std::int64_t spacing) { return std::min(static_cast<double>(spacing), 1e9); }

    bool isEmpty() const { return turned.isEmpty() || !(width >= 1.0 && height >= 1.0); }
};

// The content in the cell whose bottom-left corner is `corner`: turned about the centre of its bounding box,
// which lies in the cell's lower left, and cut at the cell's edges.
void drawCell(QPainter& painter, const TilingView& surface, const Cell& cell, QPointF corner,
              const QRect& visible) {
    const QRectF bounds(corner.x(), corner.y() - cell.height, cell.width, cell.height);
    ContentPlace place;
    place.visible = visiblePixels(bounds, visible);
    place.cutToContent = true;
    if (place.visible.isEmpty()) return;
    place.toPicture.translate(corner.x() + cell.turned.width() / 2.0,
                              corner.y() - cell.turned.height() / 2.0);
    place.toPicture.rotate(static_cast<double>(surface.rotation));
    place.toPicture.translate(-surface.contentSize.width() / 2.0, -surface.contentSize.height() / 2.0);
    drawContent(painter, surface.tilingImage, surface.contentSize, place);
}

// The grid of cells over the pixels to fill: `corner` is the bottom-left corner of the first cell that shows,
// from where the grid goes right and up.
struct Grid {
    QPointF corner;
    int columns;
    int rows;

    Grid(const Cell& cell, QPointF anchor, const QRect& shown) {
        const double aside = std::fmod(shown.left() - anchor.x(), cell.width);
        const double below = std::fmod(anchor.y() - (shown.top() + shown.height()), cell.height);
        corner = QPointF(shown.left() - aside, shown.top() + shown.height() + below);
        columns = static_cast<int>(std::ceil((shown.width() + aside) / cell.width));
        rows = static_cast<int>(std::ceil((shown.height() + below) / cell.height));
    }

    double cells() const { return static_cast<double>(columns) * rows; }
};

double pixelsOf(const QRect& area) {
    return static_cast<double>(area.width()) * area.height();
}

// The visible pixels of a surface whose bottom-left corner is `corner`.
QRect shownPixels(const TilingView& view, QPointF corner, const QRect& visible) {
    const QSizeF whole(wholePixels(view.size.width()), wholePixels(view.size.height()));
    if (whole.isEmpty()) return {};
    return visiblePixels({QPointF(corner.x(), corner.y() - whole.height()), whole}, visible);
}

}  // namespace

void drawContent(QPainter& painter, const LayerContent& content, QSizeF size, const ContentPlace& place) {
    if (const auto* text = std::get_if<TextBlock>(&content)) drawTextBlock(painter, *text, place);
    if (const auto* picture = std::get_if<QImage>(&content)) drawPicture(painter, *picture, size, place);
    if (const auto* shape = std::get_if<ShapeImage>(&content)) drawShape(painter, *shape, place);
    if (const auto* code = std::get_if<QrImage>(&content)) drawQrImage(painter, *code, place);
}

QImage pictureOf(const LayerContent& content, QSizeF size) {
    const QSize whole = QSizeF(wholePixels(size.width()), wholePixels(size.height())).toSize();
    QImage picture = clearCanvas(whole);
    QPainter painter(&picture);
    const QTransform toLowerEdge = QTransform::fromTranslate(0.0, whole.height() - size.height());
    drawContent(painter, content, size, {.toPicture = toLowerEdge, .visible = picture.rect()});
    return picture;
}

bool hasTiles(const TilingView& view) {
    return !view.size.isEmpty() && !Cell(view).isEmpty();
}

void drawTilingView(QPainter& painter, const TilingView& view, QPointF corner, const QRect& visible) {
    const QRect shown = shownPixels(view, corner, visible);
    if (shown.isEmpty()) return;
    const TilingView surface = withTurnedPicture(view);
    const Cell cell(surface);
    if (cell.isEmpty()) return;

    // A cell that shows only a few times is drawn as often. One that repeats is drawn once, as a texture; it
    // is never larger than what it fills.
    constexpr double FewCells = 4.0;
    const Grid grid(cell, corner, shown);
    if (grid.cells() <= FewCells || cell.width * cell.height > pixelsOf(shown)) {
        for (int row = 0; row < grid.rows; ++row) {
            for (int column = 0; column < grid.columns; ++column) {
                const QPointF step(column * cell.width, -row * cell.height);
                drawCell(painter, surface, cell, grid.corner + step, shown);
            }
        }
        return;
    }
    const QRect whole(0, 0, static_cast<int>(cell.width), static_cast<int>(cell.height));
    QImage texture = clearCanvas(reducedSize(whole.size(), reductionOf(painter)));
    {
        QPainter tile(&texture);
        tile.setWindow(whole);
        drawCell(tile, surface, cell, QPointF(0.0, cell.height), whole);
    }
    QBrush brush(texture);
    brush.setTransform(QTransform::fromScale(cell.width / texture.width(), cell.height / texture.height()));
    painter.save();
    painter.setBrushOrigin(grid.corner);
    painter.fillRect(shown, brush);
    painter.restore();
}

std::vector<QRect> tileAreas(const TilingView& view, QPointF corner, const QRect& visible) {
    constexpr double MostTiles = 1000.0;
    const QRect shown = shownPixels(view, corner, visible);
    const Cell cell(view);
    if (shown.isEmpty() || cell.isEmpty()) return {};
    const Grid grid(cell, corner, shown);
    const double inked = grid.cells() * cell.turned.width() * cell.turned.height();
    if (grid.cells() > MostTiles || inked > pixelsOf(shown) / 2.0) return {shown};
    std::vector<QRect> tiles;
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            const QPointF foot = grid.corner + QPointF(column * cell.width, -row * cell.height);
            const QRectF content(QPointF(foot.x(), foot.y() - cell.turned.height()), cell.turned);
            const QRect tile = visiblePixels(content.adjusted(-1, -1, 1, 1), shown);
            if (!tile.isEmpty()) tiles.push_back(tile);
        }
    }
    return tiles;
}

}  // namespace zelto
