// SPDX-License-Identifier: GPL-3.0-or-later
/// Set operations on paths: known shapes, the conversions' habits, and random shapes against exact areas.
#include "selection/PathBooleans.h"
#include "base/Log.h"
#include "selection/MaskPictures.h"
#include "selection/RectilinearClip.h"
#include "selection/ReferenceArea.h"
#include "selection/ZPPathBuilder.h"
#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>

using namespace zp;

namespace
{

constexpr gpc_op kOperations[] = {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION};

BezierPath rectangle(float x, float y, float w, float h) { return BezierPath::withRect(makeRect(x, y, w, h)); }

BezierPath polygonPath(const std::vector<Point>& points, WindingRule rule)
{
    BezierPath path;
    path.setWindingRule(rule);
    for (std::size_t i = 0; i < points.size(); ++i) i ? path.lineTo(points[i]) : path.moveTo(points[i]);
    path.closePath();
    return path;
}

BezierPath randomPath(std::mt19937& random, int mostCorners)
{
    std::uniform_real_distribution<float> place(0, 100);
    BezierPath path;
    path.setWindingRule(random() % 2 ? WindingRule::EvenOdd : WindingRule::NonZero);
    const bool whole = random() % 3 == 0; // whole numbers give many coinciding edges and corners
    for (int loops = 1 + int(random() % 3); loops > 0; --loops) {
        const int corners = 3 + int(random() % unsigned(mostCorners - 2));
        for (int i = 0; i < corners; ++i) {
            Point p{place(random), place(random)};
            if (whole) p = {std::floor(p.x / 10), std::floor(p.y / 10)};
            i ? path.lineTo(p) : path.moveTo(p);
        }
        path.closePath();
    }
    return path;
}

double signedArea(const std::vector<Point>& loop)
{
    double sum = 0;
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const Point a = loop[i], b = loop[(i + 1) % loop.size()];
        sum += double(a.x) * double(b.y) - double(b.x) * double(a.y);
    }
    return sum / 2;
}

} // namespace

TEST(PathBooleans, UnionOfDisjointRectanglesHasTwoSubpaths)
{
    BezierPath a = rectangle(0, 0, 10, 10), b = rectangle(20, 5, 10, 10);
    const BezierPath both = pathFromUnionWithPath(a, b);
    EXPECT_EQ(countSubPaths(both), 2);
    EXPECT_DOUBLE_EQ(reference::area(both), 200);
    EXPECT_EQ(both.windingRule(), WindingRule::EvenOdd);
    int closed = 0;
    for (int i = 0; i < both.elementCount(); ++i) closed += both.elementAt(i) == PathElement::ClosePath;
    EXPECT_EQ(closed, 2);
}

TEST(PathBooleans, DifferenceWithAnInnerRectangleHasAHole)
{
    BezierPath a = rectangle(0.5f, 0.5f, 30, 30), b = rectangle(10.5f, 10.5f, 5, 5);
    const BezierPath left = pathFromDifferenceWithPath(a, b);
    EXPECT_EQ(countSubPaths(left), 2);
    EXPECT_FALSE(left.contains({12, 12}));
    EXPECT_TRUE(left.contains({5, 5}));
    EXPECT_DOUBLE_EQ(reference::area(left), 875);
}

TEST(PathBooleans, DifferenceWithADistantShapeLeavesTheRegionAsItWas)
{
    BezierPath a = BezierPath::withOvalInRect(makeRect(3, 4, 20, 10)), b = rectangle(100, 100, 5, 5);
    const BezierPath left = pathFromDifferenceWithPath(a, b);
    EXPECT_EQ(countSubPaths(left), 1);
    EXPECT_NEAR(reference::area(left), reference::area(a.flattened()), 1e-3);
}

TEST(PathBooleans, ShapesApartHaveNothingInCommon)
{
    BezierPath a = rectangle(0, 0, 10, 10), b = rectangle(50, 0, 10, 10);
    EXPECT_TRUE(pathFromIntersectionWithPath(a, b).isEmpty());
    EXPECT_FALSE(intersectsPath(a, b));
    EXPECT_EQ(a.flatness(), kBooleanFlatness); // set by the intersection above
}

TEST(PathBooleans, OverlapIsSeenThroughTheBoxesFirst)
{
    BezierPath a = rectangle(0, 0, 10, 10), apart = rectangle(50, 0, 10, 10), over = rectangle(5, 5, 10, 10);
    EXPECT_FALSE(intersectsPath(a, apart));
    EXPECT_NE(a.flatness(), kBooleanFlatness); // the boxes told; nothing was converted
    EXPECT_TRUE(intersectsPath(a, over));
    EXPECT_EQ(a.flatness(), kBooleanFlatness);
    // Boxes that meet around shapes that do not.
    BezierPath upper = polygonPath({{0, 0}, {10, 0}, {0, 10}}, WindingRule::NonZero);
    BezierPath lower = polygonPath({{10, 1}, {10, 10}, {1, 10}}, WindingRule::NonZero);
    EXPECT_FALSE(intersectsPath(upper, lower));
    // An edge in common is no overlap.
    BezierPath beside = rectangle(10, 0, 10, 10);
    EXPECT_FALSE(intersectsPath(a, beside));
}

TEST(PathBooleans, FlatnessStaysSet)
{
    for (const gpc_op operation : kOperations) {
        BezierPath a = BezierPath::withOvalInRect(makeRect(0, 0, 20, 20)), b = rectangle(5, 5, 30, 3);
        pathFromPathUsingBooleanOperation(a, b, operation);
        EXPECT_EQ(a.flatness(), 0.1f);
        EXPECT_EQ(b.flatness(), 0.1f);
    }
    BezierPath c = rectangle(0, 0, 1, 1);
    gpcPolygonWithFlatness(c, 0.25f);
    EXPECT_EQ(c.flatness(), 0.25f);
}

TEST(PathBooleans, ClosingSlotsHoldTheFirstPoint)
{
    BezierPath path = rectangle(1, 2, 3, 4);
    path.appendRect(makeRect(10, 20, 1, 1));
    const PolygonPtr polygon = gpcPolygon(path);
    ASSERT_TRUE(polygon);
    ASSERT_EQ(polygon->num_contours, 2);
    EXPECT_EQ(polygon->hole, nullptr);
    for (int c = 0; c < 2; ++c) {
        const gpc_vertex_list& contour = polygon->contour[c];
        ASSERT_EQ(contour.num_vertices, 5);
        EXPECT_EQ(contour.vertex[4].x, contour.vertex[0].x);
        EXPECT_EQ(contour.vertex[4].y, contour.vertex[0].y);
    }
    EXPECT_EQ(polygon->contour[1].vertex[2].x, 11);
    EXPECT_EQ(polygon->contour[1].vertex[2].y, 21);
}

TEST(PathBooleans, OpenSubpathsHaveNoSlotToSpare)
{
    BezierPath path;
    path.moveTo({0, 0});
    path.lineTo({4, 0});
    path.lineTo({4, 4});
    path.moveTo({10, 10});
    path.lineTo({14, 10});
    path.lineTo({14, 14});
    const PolygonPtr polygon = gpcPolygon(path);
    ASSERT_TRUE(polygon);
    EXPECT_EQ(polygon->contour[0].num_vertices, 3);
    EXPECT_EQ(polygon->contour[0].vertex[2].y, 4);
    EXPECT_EQ(polygon->contour[1].num_vertices, 3);
    BezierPath nothing;
    EXPECT_NEAR(reference::area(pathFromUnionWithPath(path, nothing)), 16, 1e-6);
}

TEST(PathBooleans, CountsSubpathsAndTheirElements)
{
    BezierPath path = rectangle(0, 0, 1, 1);
    path.moveTo({5, 5});
    path.lineTo({6, 6});
    EXPECT_EQ(countSubPaths(path), 2);
    EXPECT_EQ(subPathCountStartingAtElement(path, 0), 5);
    EXPECT_EQ(subPathCountStartingAtElement(path, 3), 2);
    EXPECT_EQ(subPathCountStartingAtElement(path, 5), 2);
    EXPECT_EQ(countSubPaths(BezierPath{}), 0);
}

TEST(PathBooleans, ConversionsThatCannotBeSayWhy)
{
    takeLogLines();
    BezierPath two = rectangle(0, 0, 1, 1);
    two.appendRect(makeRect(5, 5, 1, 1));
    EXPECT_EQ(gpcPolygonFromFlatPath(two, 1), nullptr);
    const BezierPath curved = BezierPath::withOvalInRect(makeRect(0, 0, 9, 9));
    EXPECT_EQ(gpcPolygonFromFlatPath(curved, 1), nullptr);
    EXPECT_THAT(takeLogLines(),
                testing::ElementsAre("discrepancy in contour count versus number of subpaths encountered - bailing",
                                     "got a curveto unexpectedly - bailing"));
}

TEST(PathBooleans, EmptyPathsAreNeutral)
{
    BezierPath a = rectangle(0.25f, 0, 10, 10), nothing;
    EXPECT_DOUBLE_EQ(reference::area(pathFromUnionWithPath(a, nothing)), 100);
    EXPECT_DOUBLE_EQ(reference::area(pathFromDifferenceWithPath(a, nothing)), 100);
    EXPECT_TRUE(pathFromIntersectionWithPath(a, nothing).isEmpty());
    EXPECT_TRUE(pathFromDifferenceWithPath(nothing, a).isEmpty());
    EXPECT_TRUE(pathFromUnionWithPath(nothing, nothing).isEmpty());
    EXPECT_FALSE(intersectsPath(a, nothing));
}

TEST(PathBooleans, APathMeetsItself)
{
    BezierPath a = BezierPath::withOvalInRect(makeRect(0, 0, 50, 30));
    const double whole = reference::area(a.flattened(0.1f));
    EXPECT_NEAR(reference::area(pathFromUnionWithPath(a, a)), whole, 1e-2);
    EXPECT_NEAR(reference::area(pathFromIntersectionWithPath(a, a)), whole, 1e-2);
    EXPECT_NEAR(reference::area(pathFromDifferenceWithPath(a, a)), 0, 1e-3);
}

TEST(PathBooleans, EachPathIsTakenByItsOwnRule)
{
    const std::vector<Point> star{{50, 0}, {80, 90}, {3, 35}, {97, 35}, {20, 90}};
    BezierPath nothing;
    BezierPath evenOdd = polygonPath(star, WindingRule::EvenOdd), nonZero = polygonPath(star, WindingRule::NonZero);
    const BezierPath rays = pathFromUnionWithPath(evenOdd, nothing), filled = pathFromUnionWithPath(nonZero, nothing);
    EXPECT_FALSE(rays.contains({50, 50}));
    EXPECT_TRUE(filled.contains({50, 50}));
    EXPECT_NEAR(reference::area(rays), reference::area(evenOdd), 1e-2);
    EXPECT_NEAR(reference::area(filled), reference::area(nonZero), 1e-2);
}

TEST(PathBooleans, RandomShapesHaveTheExactArea)
{
    std::mt19937 random(20111);
    for (int round = 0; round < 600; ++round) {
        BezierPath a = randomPath(random, 12), b = randomPath(random, 12);
        for (const gpc_op operation : kOperations) {
            const double expected = reference::area(operation, a, b);
            const BezierPath result = pathFromPathUsingBooleanOperation(a, b, operation);
            // Every corner may move by the grid's step and by single precision's.
            ASSERT_NEAR(reference::area(result), expected, 0.02) << "round " << round << " operation " << operation;
        }
    }
}

TEST(PathBooleans, RandomShapesHoldTheRightPoints)
{
    std::mt19937 random(77);
    std::uniform_real_distribution<double> place(-5, 105);
    for (int round = 0; round < 100; ++round) {
        BezierPath a = randomPath(random, 25), b = randomPath(random, 25);
        const auto inA = subpaths(a), inB = subpaths(b);
        for (const gpc_op operation : kOperations) {
            const BezierPath result = pathFromPathUsingBooleanOperation(a, b, operation);
            const auto inResult = subpaths(result);
            int wrong = 0;
            for (int i = 0; i < 300; ++i) {
                const double x = place(random), y = place(random);
                const bool expected =
                    reference::isIn(operation, holds(inA, a.windingRule(), x, y), holds(inB, b.windingRule(), x, y));
                wrong += holds(inResult, WindingRule::EvenOdd, x, y) != expected;
            }
            ASSERT_LE(wrong, 1) << "round " << round << " operation " << operation; // one may fall on an edge
        }
    }
}

TEST(PathBooleans, HolesTurnAgainstWhatTheyLieIn)
{
    for (const float shift : {0.0f, 0.25f}) { // along whole pixels and not
        BezierPath a = rectangle(shift, shift, 300, 300), b = rectangle(50 + shift, 50, 20, 20);
        const auto loops = subpaths(pathFromDifferenceWithPath(a, b));
        ASSERT_EQ(loops.size(), 2u);
        EXPECT_LT(signedArea(loops[0]) * signedArea(loops[1]), 0);
    }
}

TEST(PathBooleans, TracedOutlinesCombineToThePixel)
{
    std::mt19937 random(99);
    for (int round = 0; round < 15; ++round) {
        const int width = 20 + int(random() % 120), height = 20 + int(random() % 60);
        const TestMask a = randomMask(random, width, height, 0.5, int(random() % 3));
        const TestMask b = randomMask(random, width, height, 0.4, 2);
        BezierPath pathA = ZPPathBuilder(a.view()).path(), pathB = ZPPathBuilder(b.view()).path();
        for (const gpc_op operation : kOperations) {
            TestMask expected(width, height);
            for (std::size_t i = 0; i < expected.bytes.size(); ++i)
                expected.bytes[i] = reference::isIn(operation, a.bytes[i] != 255, b.bytes[i] != 255) ? 0 : 255;
            const auto loops = subpaths(pathFromPathUsingBooleanOperation(pathA, pathB, operation));
            TestMask actual(width, height);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    if (holds(loops, WindingRule::EvenOdd, x + 0.5, y + 1.5))
                        actual.bytes[std::size_t(y * width + x)] = 0;
            ASSERT_EQ(actual.text(), expected.text()) << "round " << round << " operation " << operation;
        }
    }
}

TEST(PathBooleans, BothWaysAgreeOnOutlinesAlongWholePixels)
{
    std::mt19937 random(31);
    for (int round = 0; round < 40; ++round) {
        const TestMask a = randomMask(random, 60, 40, 0.5, 1), b = randomMask(random, 60, 40, 0.5, 1);
        BezierPath pathA = ZPPathBuilder(a.view()).path(), pathB = ZPPathBuilder(b.view()).path();
        const PolygonPtr polygonA = gpcPolygon(pathA), polygonB = gpcPolygon(pathB);
        for (const gpc_op operation : kOperations) {
            gpc_polygon fast, slow;
            ASSERT_TRUE(clipRectilinear(operation, *polygonA, *polygonB, fast));
            // A vertex off the whole numbers, on a straight edge far from all else, keeps the bits out of it.
            gpc_vertex odd[5] = {{-100.5, -100}, {-90, -100}, {-90, -90}, {-100.5, -90}, {-100.5, -100}};
            gpc_vertex_list contours[1] = {{5, odd}};
            gpc_polygon extra;
            extra.num_contours = 1, extra.contour = contours;
            gpc_polygon subject;
            gpc_polygon_clip(GPC_UNION, polygonA.get(), &extra, &subject);
            gpc_polygon_clip(operation, &subject, polygonB.get(), &slow);
            const double bonus = operation == GPC_INT ? 0 : 105;
            EXPECT_NEAR(reference::area(bezierPathWithGPCPolygon(slow)),
                        reference::area(bezierPathWithGPCPolygon(fast)) + bonus, 1e-3);
            gpc_free_polygon(&fast);
            gpc_free_polygon(&subject);
            gpc_free_polygon(&slow);
        }
    }
}

TEST(PathBooleans, BrokenAndDistantVerticesAreSurvived)
{
    const float inf = INFINITY, nan = NAN;
    BezierPath broken = polygonPath({{0, 0}, {nan, 5}, {inf, 3}, {10, 0}, {10, 10}, {0, 10}}, WindingRule::NonZero);
    BezierPath far =
        polygonPath({{-3e38f, -3e38f}, {3e38f, -3e38f}, {3e38f, 3e38f}, {-3e38f, 3e38f}}, WindingRule::EvenOdd);
    const BezierPath common = pathFromIntersectionWithPath(broken, far);
    EXPECT_NEAR(reference::area(common), 100, 1e-3);
    const gpc_polygon empty;
    gpc_polygon result;
    gpc_polygon_clip(GPC_UNION, &empty, &empty, &result);
    EXPECT_EQ(result.num_contours, 0);
    gpc_free_polygon(&result);
}

TEST(PathBooleans, LargeOutlinesLoseNoArea)
{
    const auto wobbly = [](double cx, double cy, int waves) {
        BezierPath path;
        for (int i = 0; i < 20000; ++i) {
            const double angle = 2 * M_PI * i / 20000, r = 1300 * (1 + 0.3 * std::sin(waves * angle));
            const Point p{float(cx + 1.4 * r * std::cos(angle)), float(cy + r * std::sin(angle))};
            i ? path.lineTo(p) : path.moveTo(p);
        }
        path.closePath();
        return path;
    };
    BezierPath a = wobbly(3000, 2000, 40), b = wobbly(3150, 2080, 43);
    const double inA = std::fabs(signedArea(subpaths(a)[0])), inB = std::fabs(signedArea(subpaths(b)[0]));
    const auto sum = [](const BezierPath& path) { // holes turn the other way
        double total = 0;
        for (const auto& loop : subpaths(path)) total += signedArea(loop);
        return std::fabs(total);
    };
    const double both = sum(pathFromUnionWithPath(a, b)), common = sum(pathFromIntersectionWithPath(a, b));
    const double either = sum(pathFromExclusiveOrWithPath(a, b));
    // A thousandth of a pixel along outlines some 60,000 pixels long would be 60; the loss is far below that.
    EXPECT_NEAR(both + common, inA + inB, 0.5);
    EXPECT_NEAR(both - common, either, 0.5);
}
