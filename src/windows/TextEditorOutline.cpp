// SPDX-License-Identifier: GPL-3.0-or-later
/// Shaping by QTextLayout, outlines by QRawFont, overlaps taken out.
#include "windows/TextEditorOutline.h"
#include "base/AffineTransform.h"
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <vector>

namespace zp
{

namespace
{

// Overlaps are cut at this size and the result scaled: at a few pixels the cutting would merge what lies close
// together.
constexpr qreal kCutSize = 1000;

struct Contour {
    QRectF box;
    qreal area = 0; ///< signed, of the polygon through its points
};

std::vector<Contour> contoursOf(const QPainterPath& path)
{
    std::vector<Contour> contours;
    for (const QPolygonF& polygon : path.toSubpathPolygons()) {
        qreal area = 0;
        for (qsizetype i = 0; i < polygon.size(); ++i) {
            const QPointF a = polygon[i], b = polygon[(i + 1) % polygon.size()];
            area += a.x() * b.y() - b.x() * a.y();
        }
        if (area != 0) contours.push_back({polygon.boundingRect(), area});
    }
    return contours;
}

/// Fonts mean the non-zero rule. Where two contours that turn the same way may touch, the even-odd rule would see a
/// hole.
bool mayOverlap(const QPainterPath& path)
{
    const std::vector<Contour> contours = contoursOf(path);
    for (std::size_t i = 0; i < contours.size(); ++i)
        for (std::size_t j = i + 1; j < contours.size(); ++j)
            if ((contours[i].area > 0) == (contours[j].area > 0) && contours[i].box.intersects(contours[j].box))
                return true;
    return false;
}

QPainterPath evenOddGlyph(const QRawFont& font, quint32 glyph)
{
    QPainterPath path = font.pathForGlyph(glyph);
    path.setFillRule(Qt::WindingFill);
    if (mayOverlap(path)) path = path.simplified();
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

void append(BezierPath& out, const QPainterPath& path, Point start)
{
    const auto at = [&](int i) {
        const QPainterPath::Element e = path.elementAt(i);
        return Point{float(qreal(start.x) + e.x), float(qreal(start.y) - e.y)};
    };
    bool open = false;
    Point first{};
    for (int i = 0; i < path.elementCount(); ++i) {
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            if (open) out.closePath();
            first = at(i);
            out.moveTo(first);
            open = false;
            break;
        case QPainterPath::LineToElement: {
            // The last line back to the start is what closing does.
            const bool ends = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
            if (!ends || at(i) != first) out.lineTo(at(i));
            open = true;
            break;
        }
        case QPainterPath::CurveToElement:
            out.curveTo(at(i + 2), at(i), at(i + 1));
            i += 2;
            open = true;
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    if (open) out.closePath();
}

/// Letters that join (Arabic, or an accent that touches) become one shape, or the even-odd rule would cut them apart.
void join(std::vector<QPainterPath>& shapes, QPainterPath shape)
{
    for (std::size_t i = shapes.size(); i-- > 0 && shapes.size() - i <= 4;) {
        if (!shapes[i].controlPointRect().intersects(shape.controlPointRect()) || !shapes[i].intersects(shape))
            continue;
        shape = shapes[i].united(shape);
        shapes.erase(shapes.begin() + std::ptrdiff_t(i));
    }
    shapes.push_back(std::move(shape));
}

} // namespace

TextOutline outlineOfText(const QString& text, const QFont& font, Point start)
{
    TextOutline outline;
    outline.path.setLineWidth(1);
    outline.path.setWindingRule(WindingRule::EvenOdd);
    QString line = text;
    for (QChar& c : line)
        if (c == '\n' || c == '\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator || c == '\t') c = ' ';
    if (line.isEmpty()) return outline;

    // Laid out large: positions and outlines are then free of any rounding to pixels.
    QFont large = font;
    large.setPixelSize(int(kCutSize));
    large.setHintingPreference(QFont::PreferNoHinting);
    const qreal scale = qreal(font.pixelSize()) / kCutSize;
    QTextLayout layout(line, large);
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::NoWrap);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine only = layout.createLine();
    if (only.isValid()) only.setLineWidth(1e7);
    layout.endLayout();
    if (!only.isValid()) return outline;

    // Right-to-left text stands at the far end of the line: its left end is what belongs to the start.
    const qreal left = only.naturalTextRect().left(), base = only.ascent();
    std::vector<QPainterPath> shapes;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont raw = run.rawFont();
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype i = 0; i < glyphs.size() && i < places.size(); ++i) {
            QPainterPath glyph = evenOddGlyph(raw, glyphs[i]);
            if (glyph.isEmpty()) {
                // A space has no ink either; a picture has ink but no outline.
                if (!raw.boundingRect(glyphs[i]).isEmpty()) outline.outlineless = true;
                continue;
            }
            glyph.translate(places[i].x() - left, places[i].y() - only.y() - base);
            join(shapes, glyph);
        }
    }
    for (const QPainterPath& shape : shapes)
        append(outline.path, QTransform::fromScale(scale, scale).map(shape), start);
    return outline;
}

TextOutline outlineOfLines(const QString& text, const QFont& font, Point start, Qt::Alignment alignment)
{
    TextOutline whole = outlineOfText({}, font, start);
    QFont large = font;
    large.setPixelSize(int(kCutSize));
    const double spacing = QFontMetricsF(large).lineSpacing() * font.pixelSize() / kCutSize;
    struct Line {
        TextOutline outline;
        double width;
    };
    std::vector<Line> lines;
    double widest = 0;
    for (const QString& each : text.split('\n')) {
        Line line{outlineOfText(each, font, {0, 0}), 0};
        if (!line.outline.path.isEmpty()) line.width = double(line.outline.path.bounds().maxX());
        widest = std::max(widest, line.width);
        lines.push_back(std::move(line));
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double room = widest - lines[i].width;
        const double indent = alignment & Qt::AlignHCenter ? room / 2 : alignment & Qt::AlignRight ? room : 0;
        AffineTransform place;
        place.translate(double(start.x) + indent, double(start.y) - double(i) * spacing);
        lines[i].outline.path.transform(place);
        whole.path.append(lines[i].outline.path);
        whole.outlineless |= lines[i].outline.outlineless;
    }
    return whole;
}

bool hasOutlines(const QFont& font)
{
    QFont large = font;
    large.setPixelSize(64);
    const QRawFont raw = QRawFont::fromFont(large);
    if (!raw.isValid()) return false;
    // Any letter or sign that the font has will do; a font of symbols has no "a".
    for (const char32_t sample : {U'a', U'1', U'\u05D0', U'\u0627', U'\u4E00', U'\u2605', U'\uF021', U'.'}) {
        const QList<quint32> glyphs = raw.glyphIndexesForString(QString::fromUcs4(&sample, 1));
        if (!glyphs.isEmpty() && glyphs[0] != 0 && !raw.pathForGlyph(glyphs[0]).isEmpty()) return true;
    }
    return false;
}

} // namespace zp
