// SPDX-License-Identifier: GPL-3.0-or-later
/// What is drawn of an outline: all that is visible, nothing much else, and even dashes.
#include "selection/MaskPictures.h"
#include "selection/OutlineSimplifier.h"
#include "selection/ZPPathBuilder.h"
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <tuple>

using namespace zp;

namespace
{

AffineTransform scaled(double scale, double dx = 0, double dy = 0)
{
    AffineTransform t;
    t.translate(dx, dy);
    t.scale(scale, scale);
    return t;
}

struct Line {
    std::vector<DevicePoint> points;
    double start;
};

std::vector<Line> drawn(const OutlineDrawing& outline, PixelBox box)
{
    std::vector<Line> lines;
    outline.visit(box, [&](std::span<const DevicePoint> line, double start) {
        lines.push_back({{line.begin(), line.end()}, start});
    });
    return lines;
}

BezierPath wand(unsigned seed, int width, int height, int rounds)
{
    std::mt19937 random(seed);
    return ZPPathBuilder(randomMask(random, width, height, 0.5, rounds).view()).path();
}

constexpr PixelBox kEverything{-100000, -100000, 100000, 100000};

double distanceTo(const std::vector<Line>& lines, double x, double y)
{
    double best = 1e9;
    for (const Line& line : lines)
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            const DevicePoint a = line.points[i - 1], b = line.points[i];
            const double dx = b.x - a.x, dy = b.y - a.y, length = dx * dx + dy * dy;
            const double t = length > 0 ? std::clamp(((x - a.x) * dx + (y - a.y) * dy) / length, 0.0, 1.0) : 0;
            best = std::min(best, std::hypot(a.x + t * dx - x, a.y + t * dy - y));
        }
    return best;
}

} // namespace

TEST(OutlineDrawing, HoldsEveryCornerWhereThereIsRoomForIt)
{
    const BezierPath path = wand(3, 300, 200, 1);
    OutlineDrawing outline;
    outline.setPath(path, scaled(2, 10, -5));
    // Every segment of the path once, with the length of its subpath up to it.
    using Segment = std::tuple<float, float, float, float>;
    std::multimap<Segment, double> expected;
    for (const auto& loop : subpaths(path)) {
        double along = 0;
        for (std::size_t i = 1; i < loop.size(); ++i) {
            const Point a = loop[i - 1], b = loop[i];
            expected.insert({{2 * a.x + 10, 2 * a.y - 5, 2 * b.x + 10, 2 * b.y - 5}, along});
            along += 2 * std::hypot(b.x - a.x, b.y - a.y);
        }
    }
    std::size_t found = 0;
    for (const Line& line : drawn(outline, kEverything)) {
        ASSERT_LE(line.points.size(), OutlineDrawing::kChunk + 1);
        double along = line.start;
        for (std::size_t i = 1; i < line.points.size(); ++i, ++found) {
            const DevicePoint a = line.points[i - 1], b = line.points[i];
            const auto range = expected.equal_range({float(a.x), float(a.y), float(b.x), float(b.y)});
            ASSERT_NE(range.first, range.second) << a.x << " " << a.y;
            ASSERT_NEAR(range.first->second, along, 1e-6);
            along += std::hypot(b.x - a.x, b.y - a.y);
        }
    }
    EXPECT_EQ(found, expected.size());
}

TEST(OutlineDrawing, ShowsWhatLiesInTheBoxAndLittleElse)
{
    const BezierPath path = wand(4, 500, 400, 1);
    OutlineDrawing outline;
    outline.setPath(path, scaled(3));
    const PixelBox box{600, 500, 700, 560};
    const std::vector<Line> lines = drawn(outline, box), all = drawn(outline, kEverything);
    std::set<std::tuple<double, double, double, double>> shown;
    std::size_t count = 0;
    for (const Line& line : lines)
        for (std::size_t i = 1; i < line.points.size(); ++i, ++count)
            shown.insert({line.points[i - 1].x, line.points[i - 1].y, line.points[i].x, line.points[i].y});
    std::size_t inside = 0, total = 0;
    for (const Line& line : all)
        for (std::size_t i = 1; i < line.points.size(); ++i, ++total) {
            const DevicePoint a = line.points[i - 1], b = line.points[i];
            if (std::max(a.x, b.x) < box.x0 || std::min(a.x, b.x) > box.x1 || std::max(a.y, b.y) < box.y0 ||
                std::min(a.y, b.y) > box.y1)
                continue;
            ++inside;
            ASSERT_TRUE(shown.contains({a.x, a.y, b.x, b.y}));
        }
    EXPECT_GT(inside, 20u);
    EXPECT_LT(count, total / 20);
}

TEST(OutlineDrawing, FarAwayKeepsWithinAPixelOfTheOutline)
{
    const BezierPath path = wand(5, 400, 300, 1);
    for (const double scale : {0.7, 0.25, 0.06}) {
        OutlineDrawing outline;
        outline.setPath(path, scaled(scale));
        const std::vector<Line> lines = drawn(outline, kEverything);
        std::size_t corners = 0;
        std::mt19937 random(1);
        double worst = 0;
        for (const auto& loop : subpaths(path)) {
            corners += loop.size();
            if (random() % 4) continue;
            const Point p = loop[random() % loop.size()];
            worst = std::max(worst, distanceTo(lines, p.x * scale, p.y * scale));
        }
        EXPECT_LT(worst, 1.5) << scale; // a dot stands for those within its pixel
        if (scale < 0.5) {
            EXPECT_LT(outline.pointCount(), corners / 2) << scale;
        }
    }
}

TEST(OutlineDrawing, DotsAreDrawnOncePerPixel)
{
    TestMask grains(1000, 1000);
    for (int y = 0; y < 1000; y += 2)
        for (int x = 0; x < 1000; x += 2) grains.bytes[std::size_t(y * 1000 + x)] = 0;
    OutlineDrawing outline;
    outline.setPath(ZPPathBuilder(grains.view()).path(), scaled(0.05));
    EXPECT_LE(outline.pointCount(), 2u * 52 * 52);
    EXPECT_GE(outline.pointCount(), 2u * 49 * 49);
    outline.setPath(ZPPathBuilder(grains.view()).path(), scaled(4));
    EXPECT_EQ(outline.pointCount(), 5u * 500 * 500);
}

TEST(OutlineDrawing, CurvesAreSmoothAtEveryZoom)
{
    const BezierPath oval = BezierPath::withOvalInRect(makeRect(0, 0, 200, 200));
    for (const double scale : {0.1, 1.0, 16.0}) {
        OutlineDrawing outline;
        outline.setPath(oval, scaled(scale));
        const std::vector<Line> lines = drawn(outline, kEverything);
        for (int i = 0; i < 360; ++i) {
            const double a = i * M_PI / 180;
            ASSERT_LT(distanceTo(lines, scale * (100 + 100 * std::cos(a)), scale * (100 + 100 * std::sin(a))),
                      0.3 + 0.06 * scale); // the oval itself is that far from a circle
        }
    }
}

TEST(OutlineDrawing, TurnedAndMirroredOutlinesAreMapped)
{
    AffineTransform map;
    map.translate(50, 60);
    map.rotateByDegrees(30);
    map.scale(-2, 1.5);
    OutlineDrawing outline;
    const BezierPath path = BezierPath::withRect(makeRect(0, 0, 40, 10));
    outline.setPath(path, map);
    const std::vector<Line> lines = drawn(outline, kEverything);
    ASSERT_EQ(lines.size(), 1u);
    ASSERT_EQ(lines[0].points.size(), 5u);
    const Point corner = map.apply(Point{40, 10});
    EXPECT_NEAR(lines[0].points[2].x, corner.x, 1e-4);
    EXPECT_NEAR(lines[0].points[2].y, corner.y, 1e-4);
}

TEST(OutlineDrawing, NoticesEveryChange)
{
    OutlineDrawing outline;
    BezierPath path = BezierPath::withRect(makeRect(0, 0, 40, 10));
    outline.setPath(path, scaled(1));
    EXPECT_EQ(outline.dirtyBoxes({0, 0, 100, 100}).front().y0, 0);
    AffineTransform down;
    down.translate(0, 50);
    path.transform(down);
    outline.setPath(path, scaled(1));
    EXPECT_EQ(drawn(outline, kEverything)[0].points[0].y, 50);
    EXPECT_GE(outline.dirtyBoxes({0, 0, 100, 100}).front().y0, 47);
    outline.setPath(path, scaled(1, 0, 20));
    EXPECT_EQ(drawn(outline, kEverything)[0].points[0].y, 70);
    EXPECT_GE(outline.dirtyBoxes({0, 0, 100, 100}).front().y0, 63);
    const Point moved{3, 55};
    path.setAssociatedPoints({&moved, 1}, 2);
    outline.setPath(path, scaled(1));
    EXPECT_EQ(drawn(outline, kEverything)[0].points[2].x, 3);
    outline.clear();
    EXPECT_TRUE(outline.isEmpty());
    EXPECT_TRUE(outline.dirtyBoxes({0, 0, 100, 100}).empty());
}

TEST(OutlineDrawing, EmptyAndBrokenPathsDrawNothing)
{
    OutlineDrawing outline;
    outline.setPath(BezierPath{}, scaled(1));
    EXPECT_TRUE(outline.isEmpty());
    BezierPath lone;
    lone.moveTo({5, 5});
    outline.setPath(lone, scaled(1));
    EXPECT_TRUE(outline.isEmpty());
    BezierPath broken;
    broken.moveTo({NAN, 5});
    broken.lineTo({INFINITY, 5});
    broken.lineTo({10, 5});
    broken.lineTo({20, 5});
    broken.closePath();
    outline.setPath(broken, scaled(1));
    for (const Line& line : drawn(outline, kEverything))
        for (const DevicePoint p : line.points) EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
    outline.setPath(BezierPath::withRect(makeRect(-3e38f, -3e38f, 3e38f, 3e38f)), scaled(1));
    outline.dirtyBoxes({0, 0, 100, 100});
    outline.setPath(BezierPath::withRect(makeRect(0, 0, 10, 10)), scaled(0));
    outline.dirtyBoxes({0, 0, 100, 100});
}

TEST(OutlineDrawing, DirtyBoxesCoverTheOutlineAndNotItsBox)
{
    const PixelBox visible{100, 50, 1100, 850};
    const auto check = [&](const BezierPath& path, double scale) {
        OutlineDrawing outline;
        outline.setPath(path, scaled(scale));
        const std::vector<PixelBox> boxes = outline.dirtyBoxes(visible, 2);
        EXPECT_LE(boxes.size(), std::size_t(OutlineDrawing::kMostBoxes));
        std::vector<std::uint8_t> dirty(1200 * 900);
        std::size_t area = 0;
        for (const PixelBox& b : boxes) {
            EXPECT_EQ(b.intersected(visible), b);
            for (int y = b.y0; y < b.y1; ++y)
                for (int x = b.x0; x < b.x1; ++x, ++area) {
                    EXPECT_EQ(dirty[std::size_t(y * 1200 + x)], 0) << "boxes overlap";
                    dirty[std::size_t(y * 1200 + x)] = 1;
                }
        }
        outline.visit(visible, [&](std::span<const DevicePoint> line, double) {
            for (std::size_t i = 1; i < line.size(); ++i)
                for (int step = 0; step <= 200; ++step) {
                    const double t = step / 200.0;
                    const double cx = line[i - 1].x + (line[i].x - line[i - 1].x) * t;
                    const double cy = line[i - 1].y + (line[i].y - line[i - 1].y) * t;
                    if (!(std::abs(cx) < 1e6 && std::abs(cy) < 1e6)) continue;
                    for (int dy = -1; dy <= 1; ++dy)
                        for (int dx = -1; dx <= 1; ++dx) {
                            const int x = int(std::floor(cx)) + dx, y = int(std::floor(cy)) + dy;
                            if (visible.contains(x, y)) {
                                ASSERT_EQ(dirty[std::size_t(y * 1200 + x)], 1) << x << " " << y;
                            }
                        }
                }
        });
        return double(area) / (double(visible.width()) * visible.height());
    };
    EXPECT_LT(check(BezierPath::withRect(makeRect(150, 100, 800, 600)), 1), 0.12);
    EXPECT_LT(check(BezierPath::withOvalInRect(makeRect(150, 100, 800, 600)), 1), 0.25);
    BezierPath slant;
    slant.moveTo({-1e5f, -1e5f});
    slant.lineTo({1e5f, 1e5f});
    EXPECT_LT(check(slant, 1), 0.15);
    EXPECT_EQ(check(BezierPath::withRect(makeRect(2000, 2000, 10, 10)), 1), 0);
    for (const double scale : {0.3, 1.0, 5.0}) check(wand(8, 600, 500, 2), scale);
}
