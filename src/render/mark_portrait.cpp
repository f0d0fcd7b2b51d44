// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/mark_portrait.h"

#include "records/length_field.h"
#include "render/composition.h"
#include "render/layer_builder.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>
#include <new>

namespace zelto {
namespace {

// The mark is drawn about this large, in pixels, and then made smaller: small letters and thin lines stay smooth.
constexpr double DrawnSide = 128.0;
constexpr double LargestSide = 4.0 * DrawnSide;  // of the layer, whatever a record asks for
constexpr int Reach = 12;                        // that a text's shadow may leave its box
constexpr double LeastThickness = DrawnSide / 10.0;
constexpr int Letters = 2;

QString firstLetters(const QString& text) {
    const QString plain = text.simplified().remove(QLatin1Char(' '));
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, plain);
    qsizetype end = 0;
    for (int i = 0; i < Letters; ++i) {
        const qsizetype next = letters.toNextBoundary();
        if (next < 0) break;
        end = next;
    }
    return plain.left(end);
}

// The sides of a shape in proportion; those that follow the photo are taken on one of 3 to 2.
void fitShape(Watermark& shape) {
    const double width = shape.ResizeWidthByPercent ? shape.ResizeWidth * 1500.0 : shape.Width;
    const double height = shape.ResizeHeightByPercent ? shape.ResizeHeight * 1000.0 : shape.Height;
    const double longer = std::max(width, height);
    if (!(longer > 0.0)) return;
    const auto fitted = [longer](double length) {
        return length > 0.0 ? static_cast<float>(std::max(length / longer * DrawnSide, LeastThickness))
                            : 0.0F;
    };
    shape.Width = fitted(width);
    shape.Height = fitted(height);
    shape.ResizeWidthByPercent = shape.ResizeHeightByPercent = false;
}

// The record as it is drawn for its portrait.
Watermark posed(const Watermark& shown, const QString& text) {
    Watermark record = likenessOf(shown);
    switch (record.Type) {
        case watermark_type::Text:
            record.Text = firstLetters(text);
            record.IsRelative = false;
            record.FontSize = static_cast<std::int64_t>(DrawnSide * 0.75);
            record.FontSizeFraction.reset();
            break;
        case watermark_type::Shape:
            fitShape(record);
            break;
        case watermark_type::QrCode:
            record.Text = text;
            record.Rotation = 0;
            record.ResizeFormat = qr_resize::Absolute;
            record.ResizeWidth = static_cast<float>(DrawnSide);
            break;
        default:
            record.Resize = true;
            record.ResizeFormat = logo_resize::Proportional;
            record.ImageProportionalResize = photo_side::Width;
            record.ResizeWidth = 1.0F;
            break;
    }
    return record;
}

QImage drawn(const Watermark& record, LogoCache& logos) {
    WatermarkStack stack;
    stack.Watermarks.push_back(record);
    BuiltLayer layer = GetWatermarkViewfromWatermark(
        record, {.reference = {DrawnSide, DrawnSide}, .macros = {}, .logos = &logos});
    if (!layer.view || layer.view->frame.isEmpty()) return {};
    const QSizeF size = layer.view->frame.size().boundedTo({LargestSide, LargestSide});
    layer.view->frame.moveTopLeft({0.0, 0.0});
    PhotoScene scene;
    const QSize box(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())));
    scene.referenceRect = QRect({Reach, Reach}, box);
    scene.layers.push_back(std::move(layer.view));
    QImage picture(box + QSize(2 * Reach, 2 * Reach), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    addWatermarkTo(picture, scene, stack);
    return picture;
}

// What there is to see of a picture; null for an empty one.
QRect inkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(line[x]) > 0) ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

// Light marks stand on a dark ground and dark ones on a light one.
QColor groundFor(const QImage& mark) {
    qint64 light = 0;
    qint64 seen = 0;
    for (int y = 0; y < mark.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(mark.constScanLine(y));
        for (int x = 0; x < mark.width(); ++x) {
            light += qGray(line[x]);  // premultiplied
            seen += qAlpha(line[x]);
        }
    }
    return light * 2 > seen ? QColor(0x4A, 0x4F, 0x58) : QColor(0xE6, 0xE8, 0xEC);
}

}  // namespace

Watermark likenessOf(Watermark record) {
    record.IsEnabled = true;
    record.LabelName.clear();
    record.Transparency = 1.0F;
    record.HorizontalTiling = record.VerticalTiling = false;
    record.Position = 1;
    record.CustomPositionLeft = record.CustomPositionTop = 0;
    const auto clear = [&record](const auto& lengths) {
        for (const length_field::WatermarkLength& length : lengths) {
            record.*length.Pixels = 0;
            (record.*length.Share).reset();
        }
    };
    clear(length_field::Paddings);
    clear(length_field::Spacings);
    return record;
}

QImage markPortrait(const Watermark& record, const QString& text, int side, LogoCache& logos) try {
    QImage mark = drawn(posed(record, text), logos);
    const QRect ink = inkOf(mark);
    if (ink.isEmpty()) return {};
    const int margin = std::max(1, side / 12);
    const QSize room(side - 2 * margin, side - 2 * margin);
    const QSize size = ink.size().scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    mark = mark.copy(ink).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);

    QImage portrait(side, side, QImage::Format_ARGB32_Premultiplied);
    portrait.fill(Qt::transparent);
    QPainter painter(&portrait);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groundFor(mark));
    painter.drawRoundedRect(portrait.rect(), side / 8.0, side / 8.0);
    painter.drawImage((side - size.width()) / 2, (side - size.height()) / 2, mark);
    return portrait;
} catch (const std::bad_alloc&) {
    return {};
}

}  // namespace zelto
