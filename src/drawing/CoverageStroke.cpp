// SPDX-License-Identifier: GPL-3.0-or-later
/// Strokes by AGG's stroker and dasher, with what they do not bear kept away from them.
#include "drawing/CoverageStroke.h"
#include "drawing/BitmapContext.h"
#include <agg_conv_dash.h>
#include <agg_conv_stroke.h>
#include <agg_path_storage.h>

namespace zp
{

namespace
{
/// More dashes than this in one path look solid anyway and would take seconds.
constexpr double kMostDashes = 200'000;
/// Path units; beyond, single precision knows no pixels any more.
constexpr double kFarthest = 1e7;

double scaleOf(const AffineTransform& t)
{
    const double scale = std::sqrt(std::abs(t.m11 * t.m22 - t.m12 * t.m21));
    return scale > 1e-6 && std::isfinite(scale) ? scale : 1;
}

/// The path as lines for AGG, and apart from them the subpaths that are a single point, which AGG does not draw.
struct Lines {
    agg::path_storage storage;
    std::vector<CurvePoint> dots;
    double length = 0;
    bool broken = false;

    void build(const BezierPath& path, double tolerance)
    {
        path.forEach([&](PathElement kind, const Point* p) {
            switch (kind) {
            case PathElement::MoveTo:
                finish(false);
                start = pen = wide(p[0]);
                drawn = moved = false;
                open = true;
                break;
            case PathElement::LineTo:
                line(wide(p[0]));
                break;
            case PathElement::CurveTo:
                flattenCurve(pen, wide(p[0]), wide(p[1]), wide(p[2]), tolerance, [&](CurvePoint q) { line(q); });
                break;
            case PathElement::ClosePath:
                drawn = true;
                finish(true);
                pen = start;
                break;
            }
        });
        finish(false);
    }

private:
    CurvePoint start, pen;
    bool open = false, drawn = false, moved = false;

    CurvePoint wide(Point p)
    {
        if (std::isnan(p.x) || std::isnan(p.y)) broken = true;
        return {std::clamp(double(p.x), -kFarthest, kFarthest), std::clamp(double(p.y), -kFarthest, kFarthest)};
    }
    void line(CurvePoint q)
    {
        drawn = true;
        const double d = std::hypot(q.x - pen.x, q.y - pen.y);
        if (d == 0) return;
        if (!moved) storage.move_to(pen.x, pen.y);
        moved = true;
        storage.line_to(q.x, q.y);
        length += d;
        pen = q;
    }
    void finish(bool close)
    {
        if (!open) return;
        if (moved && close) {
            length += std::hypot(start.x - pen.x, start.y - pen.y);
            storage.close_polygon();
        }
        if (drawn && !moved) dots.push_back(start);
        open = false;
    }
};

template <class Source>
void addOutline(CoverageRaster& raster, Source& source, const BezierPath& path, const AffineTransform& t, double scale)
{
    agg::conv_stroke<Source> stroke(source);
    stroke.width(double(path.lineWidth()));
    stroke.line_join(path.lineJoin() == LineJoin::Round   ? agg::round_join
                     : path.lineJoin() == LineJoin::Bevel ? agg::bevel_join
                                                          : agg::miter_join_revert);
    stroke.line_cap(path.lineCap() == LineCap::Round    ? agg::round_cap
                    : path.lineCap() == LineCap::Square ? agg::square_cap
                                                        : agg::butt_cap);
    stroke.inner_join(agg::inner_round);
    stroke.miter_limit(std::max(1.0, double(path.miterLimit())));
    stroke.approximation_scale(std::max(4.0, 4 * scale));
    stroke.rewind(0);
    double x = 0, y = 0;
    for (unsigned command; !agg::is_stop(command = stroke.vertex(&x, &y));) {
        if (agg::is_vertex(command)) {
            const CurvePoint p{t.m11 * x + t.m21 * y + t.tX, t.m12 * x + t.m22 * y + t.tY};
            agg::is_move_to(command) ? raster.moveTo(p) : raster.lineTo(p);
        }
    }
    raster.closeSubpath();
}

void addDot(CoverageRaster& raster, CurvePoint c, const BezierPath& path, const AffineTransform& t)
{
    const float w = path.lineWidth();
    const Rect box = makeRect(float(c.x) - w * 0.5f, float(c.y) - w * 0.5f, w, w);
    if (path.lineCap() == LineCap::Round)
        raster.addPath(BezierPath::withOvalInRect(box), t);
    else if (path.lineCap() == LineCap::Square)
        raster.addPath(BezierPath::withRect(box), t);
}
} // namespace

void addStroke(CoverageRaster& raster, const BezierPath& path, const AffineTransform& transform)
{
    const double width = double(path.lineWidth());
    if (!(width > 0) || !(width < kFarthest)) return;
    const double scale = scaleOf(transform);
    Lines lines;
    lines.build(path, std::min(0.02 / scale, 0.25 * width));
    if (lines.broken) return;

    double period = 0;
    bool dashed = !path.lineDash().empty();
    for (const float d : path.lineDash()) {
        dashed = dashed && d >= 0 && std::isfinite(d);
        period += double(d);
    }
    // AGG's dasher never returns from a period of nothing, and would take ages over one of next to nothing.
    const auto& dash = path.lineDash();
    dashed = dashed && period > 0 && lines.length / period * double(dash.size()) <= kMostDashes &&
             std::isfinite(path.dashPhase());
    if (dashed) {
        agg::conv_dash<agg::path_storage> dasher(lines.storage);
        // An odd number of lengths is gone through twice, so that drawn and skipped change places. AGG holds 32.
        const std::size_t count = dash.size() % 2 ? dash.size() * 2 : dash.size();
        for (std::size_t i = 0; i + 1 < count && i < 32; i += 2)
            dasher.add_dash(double(dash[i % dash.size()]), double(dash[(i + 1) % dash.size()]));
        const double wholePeriod = dash.size() % 2 ? 2 * period : period;
        double phase = std::fmod(double(path.dashPhase()), wholePeriod);
        if (phase < 0) phase += wholePeriod;
        dasher.dash_start(phase);
        addOutline(raster, dasher, path, transform, scale);
    } else {
        addOutline(raster, lines.storage, path, transform, scale);
    }
    for (const CurvePoint dot : lines.dots) addDot(raster, dot, path, transform);
}

Rect strokeBounds(const BezierPath& path)
{
    if (path.isEmpty()) return {};
    const double width = double(path.lineWidth());
    if (!(width > 0)) return {};
    // Half the width, more at the points of mitres and the corners of square caps, and a pixel of anti-aliasing.
    double reach = width / 2;
    if (path.lineJoin() == LineJoin::Miter) reach *= std::max(1.0, double(path.miterLimit()));
    if (path.lineCap() == LineCap::Square) reach = std::max(reach, width * 0.7072);
    const Rect box = path.bounds();
    return box.inset(-float(reach + 1));
}

} // namespace zp
