// SPDX-License-Identifier: GPL-3.0-or-later
/// Rectangles, transforms and paths as values.
#include "base/Geometry.h"
#include "base/AffineTransform.h"
#include "base/BezierPath.h"
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace zp;

namespace
{
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
} // namespace

TEST(Geometry, IntegralRectFloorsNearEdgesAndCeilsFarOnes)
{
    EXPECT_EQ(integralRect(makeRect(1.2f, -1.2f, 3.1f, 2.1f)), makeRect(1, -2, 4, 3));
    EXPECT_EQ(integralRect(makeRect(1, 2, 3, 4)), makeRect(1, 2, 3, 4));
    EXPECT_EQ(integralRect(makeRect(1.5f, 2, 0, 4)), Rect{});
    EXPECT_EQ(integralRect(makeRect(1, 2, kNaN, 4)), Rect{});
    EXPECT_EQ(integralRect(makeRect(kNaN, 2, 3, 4)), Rect{});
}

TEST(Geometry, UnionIgnoresEmptyRectangles)
{
    EXPECT_EQ(unionRect(makeRect(0, 0, 2, 2), makeRect(5, 5, 0, 9)), makeRect(0, 0, 2, 2));
    EXPECT_EQ(unionRect(makeRect(0, 0, 2, 2), makeRect(5, 5, 1, 1)), makeRect(0, 0, 6, 6));
    EXPECT_EQ(unionRect(makeRect(7, 7, 0, 0), makeRect(5, 5, -1, 1)), Rect{});
}

TEST(Geometry, IntersectionOfRectanglesThatTouchIsZero)
{
    EXPECT_EQ(intersectionRect(makeRect(0, 0, 2, 2), makeRect(2, 0, 2, 2)), Rect{});
    EXPECT_EQ(intersectionRect(makeRect(0, 0, 3, 2), makeRect(2, 1, 2, 2)), makeRect(2, 1, 1, 1));
    EXPECT_FALSE(intersects(makeRect(0, 0, 2, 2), makeRect(2, 0, 2, 2)));
}

TEST(Geometry, RectangleTextUsesShortNumbers)
{
    EXPECT_EQ(stringFromRect(makeRect(0, 1.5f, 200, 3)), "{{0, 1.5}, {200, 3}}");
    EXPECT_EQ(stringFromRect({}), "{{0, 0}, {0, 0}}");
}

TEST(Geometry, PixelBoxesStayInsideThePicture)
{
    EXPECT_EQ(pixelBoxOf(makeRect(1.5f, 1.5f, 1, 1), 10, 10), (PixelBox{1, 1, 3, 3}));
    EXPECT_EQ(pixelBoxOf(makeRect(-5, -5, 7, 8), 10, 10), (PixelBox{0, 0, 2, 3}));
    EXPECT_EQ(pixelBoxOf(makeRect(20, 0, 7, 8), 10, 10), PixelBox{});
    EXPECT_EQ(pixelBoxOf(makeRect(kNaN, 0, 7, 8), 10, 10), PixelBox{});
    EXPECT_EQ(pixelBoxOf(makeRect(0, 0, kNaN, 8), 10, 10), PixelBox{});
    EXPECT_EQ(pixelBoxOf(makeRect(0, 0, kInfinity, kInfinity), 10, 12), (PixelBox{0, 0, 10, 12}));
    EXPECT_EQ(pixelBoxOf(makeRect(-1e30f, -1e30f, 2e30f, 2e30f), 10, 12), (PixelBox{0, 0, 10, 12}));
    EXPECT_EQ(pixelBoxOf(makeRect(-kInfinity, 0, kInfinity, 5), 10, 12), PixelBox{});
}

TEST(AffineTransform, LaterCallsApplyToPointsFirst)
{
    AffineTransform t;
    t.translate(10, 0);
    t.scale(2, 2);
    EXPECT_EQ(t.apply(Point{1, 1}), (Point{12, 2}));
    AffineTransform u;
    u.scale(2, 2);
    u.translate(10, 0);
    EXPECT_EQ(u.apply(Point{1, 1}), (Point{22, 2}));
}

TEST(AffineTransform, TurnsFromXTowardsY)
{
    AffineTransform t;
    t.rotateByRadians(std::acos(-1.0) / 2);
    const Point p = t.apply(Point{1, 0});
    EXPECT_NEAR(p.x, 0, 1e-6);
    EXPECT_NEAR(p.y, 1, 1e-6);
}

TEST(AffineTransform, RightAnglesAreExact)
{
    for (const auto& [degrees, x, y] : {std::tuple{90.0, 0.0f, 1.0f},
                                        {180.0, -1.0f, 0.0f},
                                        {270.0, 0.0f, -1.0f},
                                        {-90.0, 0.0f, -1.0f},
                                        {360.0, 1.0f, 0.0f},
                                        {450.0, 0.0f, 1.0f}}) {
        AffineTransform t;
        t.rotateByDegrees(degrees);
        EXPECT_EQ(t.apply(Point{1, 0}), (Point{x, y})) << degrees;
    }
}

TEST(AffineTransform, InverseLeadsBack)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> number(-3, 3);
    for (int i = 0; i < 200; ++i) {
        AffineTransform t{number(random), number(random),       number(random),
                          number(random), 100 * number(random), 100 * number(random)};
        if (std::abs(t.m11 * t.m22 - t.m12 * t.m21) < 0.05) continue;
        bool ok = false;
        const Point back = t.inverted(&ok).apply(t.apply(Point{7, -3}));
        EXPECT_TRUE(ok);
        EXPECT_NEAR(back.x, 7, 0.01);
        EXPECT_NEAR(back.y, -3, 0.01);
    }
    bool ok = true;
    const AffineTransform flat{1, 2, 2, 4, 5, 6};
    EXPECT_TRUE(flat.inverted(&ok).isIdentity());
    EXPECT_FALSE(ok);
}

TEST(AffineTransform, AppendAppliesAfterwards)
{
    AffineTransform t, s;
    t.translate(1, 2);
    s.scale(3, 3);
    t.append(s);
    EXPECT_EQ(t.apply(Point{1, 1}), (Point{6, 9}));
}

TEST(AffineTransform, BoxOfATurnedRectangle)
{
    AffineTransform t;
    t.rotateByDegrees(90);
    EXPECT_EQ(t.apply(makeRect(0, 0, 4, 2)), makeRect(-2, 0, 2, 4));
}

TEST(BezierPath, RectangleHasFiveElementsInOrder)
{
    const BezierPath path = BezierPath::withRect(makeRect(1, 2, 3, 4));
    ASSERT_EQ(path.elementCount(), 5);
    const Point expected[] = {{1, 2}, {4, 2}, {4, 6}, {1, 6}, {1, 2}};
    const PathElement kinds[] = {PathElement::MoveTo, PathElement::LineTo, PathElement::LineTo, PathElement::LineTo,
                                 PathElement::ClosePath};
    for (int i = 0; i < 5; ++i) {
        std::array<Point, 3> points;
        EXPECT_EQ(path.elementAt(i, points), kinds[i]);
        EXPECT_EQ(points[0], expected[i]);
    }
    EXPECT_EQ(path.bounds(), makeRect(1, 2, 3, 4));
}

TEST(BezierPath, OnlyTheLastOfTwoMovesStays)
{
    BezierPath path;
    path.moveTo({1, 1});
    path.moveTo({2, 2});
    EXPECT_EQ(path.elementCount(), 1);
    EXPECT_EQ(path.currentPoint(), (Point{2, 2}));
    EXPECT_EQ(path.bounds(), makeRect(2, 2, 0, 0));
}

TEST(BezierPath, LinesWithoutAStartAreIgnored)
{
    BezierPath path;
    path.lineTo({1, 1});
    path.curveTo({1, 1}, {2, 2}, {3, 3});
    path.closePath();
    EXPECT_TRUE(path.isEmpty());
    EXPECT_EQ(path.bounds(), Rect{});
    EXPECT_EQ(path.currentPoint(), Point{});
}

TEST(BezierPath, AfterAClosePenIsBackAtTheStart)
{
    BezierPath path;
    path.moveTo({1, 1});
    path.lineTo({5, 1});
    path.closePath();
    path.closePath();
    EXPECT_EQ(path.elementCount(), 3);
    EXPECT_EQ(path.currentPoint(), (Point{1, 1}));
    path.lineTo({1, 9});
    ASSERT_EQ(path.elementCount(), 5);
    std::array<Point, 3> points;
    EXPECT_EQ(path.elementAt(3, points), PathElement::MoveTo);
    EXPECT_EQ(points[0], (Point{1, 1}));
}

TEST(BezierPath, ElementsAreFoundInAnyOrderAndAfterRewriting)
{
    BezierPath path;
    path.moveTo({0, 0});
    path.curveTo({10, 0}, {0, 5}, {10, 5});
    path.closePath();
    path.moveTo({20, 20});
    path.lineTo({30, 20});
    path.closePath();
    std::array<Point, 3> points;
    EXPECT_EQ(path.elementAt(5, points), PathElement::ClosePath);
    EXPECT_EQ(points[0], (Point{20, 20}));
    EXPECT_EQ(path.elementAt(1, points), PathElement::CurveTo);
    EXPECT_EQ(points[2], (Point{10, 0}));
    const Point moved[] = {{40, 41}};
    path.setAssociatedPoints(moved, 4);
    EXPECT_EQ(path.elementAt(4, points), PathElement::LineTo);
    EXPECT_EQ(points[0], moved[0]);
    EXPECT_EQ(path.bounds().maxY(), 41);
    path.setAssociatedPoints(moved, 5); // a close has nothing to rewrite
    EXPECT_EQ(path.elementAt(2, points), PathElement::ClosePath);
    EXPECT_EQ(points[0], (Point{0, 0}));
}

TEST(BezierPath, BoundsAreThoseOfTheCurveNotOfItsControls)
{
    BezierPath path;
    path.moveTo({0, 0});
    path.curveTo({10, 0}, {0, 10}, {10, 10});
    EXPECT_FLOAT_EQ(path.bounds().maxY(), 7.5f);
    const BezierPath oval = BezierPath::withOvalInRect(makeRect(10, 20, 30, 40));
    EXPECT_FLOAT_EQ(oval.bounds().minX(), 10);
    EXPECT_FLOAT_EQ(oval.bounds().minY(), 20);
    EXPECT_FLOAT_EQ(oval.bounds().maxX(), 40);
    EXPECT_FLOAT_EQ(oval.bounds().maxY(), 60);
    EXPECT_EQ(oval.elementCount(), 6);
}

TEST(BezierPath, ContainsByTheWindingRule)
{
    BezierPath path = BezierPath::withRect(makeRect(0, 0, 10, 10));
    path.appendRect(makeRect(2, 2, 6, 6));
    EXPECT_TRUE(path.contains({5, 5}));
    path.setWindingRule(WindingRule::EvenOdd);
    EXPECT_FALSE(path.contains({5, 5}));
    EXPECT_TRUE(path.contains({1, 1}));
    EXPECT_TRUE(path.contains({0, 0}));
    EXPECT_FALSE(path.contains({10, 5}));
    EXPECT_FALSE(path.contains({kNaN, 5}));
    EXPECT_FALSE(BezierPath{}.contains({0, 0}));
}

TEST(BezierPath, AnOpenPathContainsAsIfClosed)
{
    BezierPath path;
    path.moveTo({0, 0});
    path.lineTo({10, 0});
    path.lineTo({10, 10});
    EXPECT_TRUE(path.contains({8, 2}));
    EXPECT_FALSE(path.contains({2, 8}));
}

TEST(BezierPath, ContainsFollowsCurves)
{
    const BezierPath oval = BezierPath::withOvalInRect(makeRect(0, 0, 100, 50));
    std::mt19937 random(9);
    std::uniform_real_distribution<float> x(-10, 110), y(-10, 60);
    for (int i = 0; i < 5000; ++i) {
        const Point p{x(random), y(random)};
        const double r = std::hypot((double(p.x) - 50) / 50, (double(p.y) - 25) / 25);
        if (std::abs(r - 1) < 0.003) continue; // four cubics are not quite an ellipse
        EXPECT_EQ(oval.contains(p), r < 1) << p.x << " " << p.y;
    }
}

TEST(BezierPath, FlatteningStaysWithinItsTolerance)
{
    BezierPath path = BezierPath::withOvalInRect(makeRect(0, 0, 1000, 1000));
    path.setFlatness(0.5f);
    path.setLineWidth(7);
    const BezierPath flat = path.flattened();
    EXPECT_EQ(flat.lineWidth(), 7);
    Point from;
    flat.forEach([&](PathElement kind, const Point* p) {
        ASSERT_NE(kind, PathElement::CurveTo);
        if (kind == PathElement::LineTo) {
            const double mid = std::hypot((double(from.x) + p->x) / 2 - 500, (double(from.y) + p->y) / 2 - 500);
            EXPECT_NEAR(mid, 500, 0.5 + 0.2); // the cubics themselves stray 0.14
        }
        if (kind != PathElement::ClosePath) from = *p;
    });
    EXPECT_LT(flat.elementCount(), 200);
    EXPECT_GT(path.flattened(0.001f).elementCount(), flat.elementCount());
}

TEST(BezierPath, AppendingJoinsElements)
{
    BezierPath path;
    path.moveTo({9, 9});
    path.append(BezierPath::withRect(makeRect(0, 0, 1, 1)));
    EXPECT_EQ(path.elementCount(), 5); // the lone move gave way
    path.append(path);
    EXPECT_EQ(path.elementCount(), 10);
    path.lineTo({5, 5});
    std::array<Point, 3> points;
    EXPECT_EQ(path.elementAt(10, points), PathElement::MoveTo);
    EXPECT_EQ(points[0], (Point{0, 0}));
}

TEST(BezierPath, CopiesAreIndependent)
{
    BezierPath a = BezierPath::withRect(makeRect(0, 0, 1, 1));
    const BezierPath b = a;
    AffineTransform t;
    t.translate(5, 5);
    a.transform(t);
    EXPECT_EQ(a.bounds(), makeRect(5, 5, 1, 1));
    EXPECT_EQ(b.bounds(), makeRect(0, 0, 1, 1));
}

TEST(BezierPath, BrokenCoordinatesDoNotSpreadIntoTheBounds)
{
    BezierPath path;
    path.moveTo({1, 1});
    path.lineTo({kNaN, 5});
    path.curveTo({3, 3}, {kNaN, kNaN}, {2, 2});
    EXPECT_FALSE(std::isnan(path.bounds().size.width));
    EXPECT_EQ(path.bounds().minX(), 1);
    (void)path.flattened();
    (void)path.contains({2, 2});
}
