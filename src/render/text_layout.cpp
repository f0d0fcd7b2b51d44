// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/text_layout.h"

#include "records/watermark.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QSet>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

QStringList linesOf(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar lineBreak :
         {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
        text.replace(lineBreak, u'\n');
    }
    return text.split(u'\n');
}

// Qt makes fonts of whole pixel sizes only, so text is laid out at this size and scaled. It is large enough
// for the finest design grid in use and gives way for very long lines, whose width must fit Qt's 26.6
// fixed-point numbers.
int layoutSide(const QStringList& lines) {
    constexpr qsizetype FinestGrid = 2048;
    constexpr qsizetype WidestLine = qsizetype{1} << 24;
    qsizetype longest = 1;
    for (const QString& line : lines) longest = std::max(longest, line.size());
    return static_cast<int>(std::clamp<qsizetype>(WidestLine / longest, 1, FinestGrid));
}

QFont layoutFont(const TextFont& font, int side) {
    QFont made(font.family.isEmpty() ? QStringLiteral("sans-serif") : font.family);
    made.setPixelSize(side);
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setHintingPreference(QFont::PreferNoHinting);
    made.setStyleStrategy(QFont::StyleStrategy(QFont::PreferOutline | QFont::NoSubpixelAntialias));
    return made;
}

// A text ready to be laid out line by line. `scale` leads from layout units to the text's own pixels, in
// which everything else is.
struct Setting {
    QStringList lines;
    QFont font;
    QFontMetricsF metrics;  // in layout units
    double scale;
    double ascent;  // from the top of a line's box to its baseline
    double lineHeight;

    Setting(const QString& text, const TextFont& wanted)
        : lines(linesOf(text)),
          font(layoutFont(wanted, layoutSide(lines))),
          metrics(font),
          scale(wanted.pointSize / font.pixelSize()),
          ascent(std::round(metrics.ascent() * scale)),
          lineHeight(ascent + std::round(metrics.descent() * scale) + std::round(metrics.leading() * scale)) {
    }
};

// One line laid out; lengths are layout units.
class Line {
  public:
    Line(const QString& text, const Setting& setting) : layout_(text, setting.font) {
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setWrapMode(QTextOption::NoWrap);
        // The desktop's direction of reading must not change what is written on photos.
        option.setTextDirection(Qt::LeftToRight);
        option.setUseDesignMetrics(true);
        constexpr double TabStop = 28.0;  // pixels
        option.setTabStopDistance(TabStop / setting.scale);
        layout_.setTextOption(option);
        layout_.setCacheEnabled(true);
        layout_.beginLayout();
        line_ = layout_.createLine();
        layout_.endLayout();
    }

    double width() const { return line_.isValid() ? line_.horizontalAdvance() : 0.0; }

    // Draws from the left end of the baseline at (0, 0).
    void draw(QPainter& painter, const QColor& color, const QRectF& visible) const {
        const QPointF baseline(0.0, -line_.ascent());
        painter.setPen(color);
        for (const QGlyphRun& run : layout_.glyphRuns()) drawRun(painter, run, baseline, visible);
    }

  private:
    static void drawRun(QPainter& painter, const QGlyphRun& run, QPointF baseline, const QRectF& visible) {
        const QRawFont font = run.rawFont();
        if (holdsPictures(font)) {
            painter.drawGlyphRun(baseline, run);
            return;
        }
        const double reach = std::max(font.maxCharWidth(), 2.0 * font.pixelSize());
        const QRectF reachable = visible.adjusted(-reach, -reach, reach, reach);
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        QPainterPath outlines;
        outlines.setFillRule(Qt::WindingFill);
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            const QPointF position = positions[i] + baseline;
            if (!reachable.contains(position)) continue;
            outlines.addPath(font.pathForGlyph(glyphs[i]).translated(position));
        }
        painter.fillPath(outlines, painter.pen().color());
    }

    // Emoji fonts hold bitmaps. To be asked before any outline is: Qt remembers the empty outline of such a glyph
    // and draws nothing from then on.
    static bool holdsPictures(const QRawFont& font) {
        return !font.fontTable("CBLC").isEmpty() || !font.fontTable("sbix").isEmpty();
    }

    QTextLayout layout_;
    QTextLine line_;
};

// Whether a letter leaves ink where a font has it. Blanks, controls and marks that only steer others do not.
bool hasInk(char32_t letter) {
    switch (QChar::category(letter)) {
        case QChar::Separator_Space:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
        case QChar::Other_Control:
        case QChar::Other_Format:
            return false;
        default:
            break;
    }
    const bool isVariationSelector =
        (letter >= 0xFE00 && letter <= 0xFE0F) || (letter >= 0xE0100 && letter <= 0xE01EF);
    constexpr char32_t GraphemeJoiner = 0x034F;
    return !isVariationSelector && letter != GraphemeJoiner;
}

double lineStart(std::uint64_t alignment, bool rightToLeft, const QRectF& box, double width) {
    switch (alignment) {
        case text_alignment::Left:
            return box.left();
        case text_alignment::Right:
            return box.right() - width;
        case text_alignment::Centre:
            return box.center().x() - width / 2.0;
        // A line that ends at a line break is never stretched, so justified text is set like unaligned text.
        default:
            return rightToLeft ? box.right() - width : box.left();
    }
}

}  // namespace

bool isFontInstalled(const QString& family) {
    return !family.isEmpty() && QFontDatabase::hasFamily(family);
}

TextFont withTraits(TextFont font, bool bold, bool italic) {
    if (!bold && !italic) return font;
    bool hasBold = false;
    bool hasItalic = false;
    bool hasBoldItalic = false;
    for (const QString& style : QFontDatabase::styles(font.family)) {
        constexpr int AnySize = 12;
        const bool slanted = QFontDatabase::font(font.family, style, AnySize).style() != QFont::StyleNormal;
        const bool heavy = QFontDatabase::weight(font.family, style) >= QFont::Bold;
        hasBold |= heavy;
        hasItalic |= slanted && !heavy;
        hasBoldItalic |= slanted && heavy;
    }
    font.bold = bold && hasBold;
    font.italic = italic && (font.bold ? hasBoldItalic : hasItalic);
    return font;
}

QStringList missingLetters(const QString& text, const TextFont& font) {
    constexpr qsizetype Most = 5;
    constexpr int AnySide = 64;
    const QFontMetricsF metrics(layoutFont(font, AnySide));
    QSet<char32_t> seen;
    QStringList missing;
    for (const char32_t letter : text.toStdU32String()) {
        if (seen.contains(letter)) continue;
        seen.insert(letter);
        if (!hasInk(letter) || metrics.inFontUcs4(letter)) continue;
        missing.append(QString::fromUcs4(&letter, 1));
        if (missing.size() == Most) break;
    }
    return missing;
}

QSizeF measuredText(const QString& text, const TextFont& font) {
    if (text.isEmpty() || !(font.pointSize > 0.0)) return {0.0, 0.0};
    const Setting setting(text, font);
    double widest = 0.0;
    for (const QString& line : setting.lines) {
        if (!line.isEmpty()) widest = std::max(widest, Line(line, setting).width());
    }
    return {widest * setting.scale, static_cast<double>(setting.lines.size()) * setting.lineHeight};
}

void drawText(QPainter& painter, const QString& text, const TextAttributes& attributes, const QColor& color,
              const QRectF& box, const QRectF& visible) {
    if (text.isEmpty() || !(attributes.font.pointSize > 0.0)) return;
    const Setting setting(text, attributes.font);
    // Ink may reach out of its line's box, so one more line on either side is looked at.
    const double count = static_cast<double>(setting.lines.size());
    const auto lineAt = [&](double y) {
        return std::floor((y - box.top()) / std::max(setting.lineHeight, 1.0));
    };
    const auto first = static_cast<qsizetype>(std::clamp(lineAt(visible.top()) - 1.0, 0.0, count));
    const auto end = static_cast<qsizetype>(std::clamp(lineAt(visible.bottom()) + 2.0, 0.0, count));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform base = painter.transform();
    for (qsizetype i = first; i < end; ++i) {
        const QString& lineText = setting.lines[i];
        if (lineText.isEmpty()) continue;
        const Line line(lineText, setting);
        const double left =
            lineStart(attributes.alignment, lineText.isRightToLeft(), box, line.width() * setting.scale);
        const double baseline = box.top() + static_cast<double>(i) * setting.lineHeight + setting.ascent;
        QTransform toLine = QTransform::fromTranslate(left, baseline);
        toLine.scale(setting.scale, setting.scale);
        painter.setTransform(toLine * base);
        const QRectF seen = toLine.inverted().mapRect(visible);
        line.draw(painter, color, seen);

        const auto rule = [&](double below) {
            const double thickness = setting.metrics.lineWidth();
            const QRectF stroke(0.0, below - thickness / 2.0, line.width(), thickness);
            painter.fillRect(stroke.intersected(seen), color);
        };
        if (attributes.underline) rule(setting.metrics.underlinePos());
        if (attributes.strikethrough) rule(-setting.metrics.strikeOutPos());
    }
    painter.restore();
}

}  // namespace zelto
