// SPDX-License-Identifier: GPL-3.0-or-later
/// Four corners onto four others, and back.
#include "base/ProjectiveTransform.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace
{

using namespace zp;
using Corners = std::array<CurvePoint, 4>;

const Rect kBox = makeRect(10, 20, 40, 30);
constexpr Corners kOwn{CurvePoint{10, 20}, {50, 20}, {50, 50}, {10, 50}};
const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(ProjectiveTransform, TakesEachCornerToItsPlaceAndBack)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> pull(-12, 12);
    for (int round = 0; round < 200; ++round) {
        Corners to = kOwn;
        for (CurvePoint& p : to) p.x += pull(random), p.y += pull(random);
        const auto map = ProjectiveTransform::ofRect(kBox, to);
        if (!map) continue; // folded over
        const auto back = map->inverted();
        ASSERT_TRUE(back);
        for (std::size_t i = 0; i < 4; ++i) {
            const CurvePoint there = map->apply(kOwn[i]), again = back->apply(there);
            EXPECT_NEAR(there.x, to[i].x, 1e-9);
            EXPECT_NEAR(there.y, to[i].y, 1e-9);
            EXPECT_NEAR(again.x, kOwn[i].x, 1e-8);
            EXPECT_NEAR(again.y, kOwn[i].y, 1e-8);
            EXPECT_GT(back->divisor(there), 0);
        }
    }
}

struct Shape {
    const char* name;
    Corners corners;
    bool serves;
};
class CornersOfAShape : public testing::TestWithParam<Shape>
{
};
TEST_P(CornersOfAShape, ServeWhenItIsConvexAndNotTooSlanted)
{
    EXPECT_EQ(ProjectiveTransform::ofRect(kBox, GetParam().corners).has_value(), GetParam().serves);
}
INSTANTIATE_TEST_SUITE_P(
    Shapes, CornersOfAShape,
    testing::Values(Shape{"itself", kOwn, true},
                    Shape{"parallelogram", {CurvePoint{0, 0}, {10, 3}, {15, 20}, {5, 17}}, true},
                    Shape{"mirrored", {CurvePoint{50, 20}, {10, 20}, {10, 50}, {50, 50}}, true},
                    Shape{"trapezium", {CurvePoint{20, 0}, {30, 0}, {50, 40}, {0, 40}}, true},
                    Shape{"dented", {CurvePoint{0, 0}, {40, 0}, {10, 10}, {0, 40}}, false},
                    Shape{"crossed", {CurvePoint{0, 0}, {40, 40}, {40, 0}, {0, 40}}, false},
                    Shape{"flat", {CurvePoint{0, 0}, {10, 0}, {20, 0}, {30, 0}}, false},
                    Shape{"corner_on_a_side", {CurvePoint{0, 0}, {40, 0}, {20, 20}, {0, 40}}, false},
                    Shape{"point", {}, false},
                    Shape{"needle", {CurvePoint{0, 0}, {0.5, 0}, {1000, 1000}, {0, 1e6}}, false},
                    Shape{"not_a_number", {CurvePoint{kNaN, 0}, {40, 0}, {40, 40}, {0, 40}}, false}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ProjectiveTransform, KeepsStraightLinesStraightAndCurvesOnTheirWay)
{
    const auto map = ProjectiveTransform::ofRect(kBox, {CurvePoint{0, 0}, {300, 40}, {260, 200}, {30, 120}});
    ASSERT_TRUE(map);
    BezierPath path = BezierPath::withOvalInRect(kBox);
    path.appendRect(makeRect(15, 25, 20, 10));
    path.setWindingRule(WindingRule::EvenOdd);
    path.setLineWidth(3);
    const BezierPath there = map->apply(path);
    EXPECT_EQ(there.windingRule(), WindingRule::EvenOdd);
    EXPECT_EQ(there.lineWidth(), 3);
    // Every point of the drawn way, taken back, lies on the oval; the middles of its lines nearly so.
    const auto back = map->inverted();
    int curve = 0;
    Point last;
    bool first = true;
    there.forEach([&](PathElement kind, const Point* p) {
        if (kind == PathElement::ClosePath) return;
        if (kind == PathElement::MoveTo && !std::exchange(first, false)) curve = -1; // the rectangle
        if (curve >= 0 && kind == PathElement::LineTo) {
            const CurvePoint middle =
                back->apply(CurvePoint{(double(last.x) + double(p->x)) / 2, (double(last.y) + double(p->y)) / 2});
            EXPECT_NEAR(std::hypot((middle.x - 30) / 20, (middle.y - 35) / 15), 1, 0.004);
            ++curve;
        }
        last = *p;
    });
    const BezierPath rectangle = map->apply(BezierPath::withRect(makeRect(15, 25, 20, 10)));
    EXPECT_EQ(rectangle.elementCount(), BezierPath::withRect(kBox).elementCount()) << "lines need no more points";
}

TEST(ProjectiveTransform, ThatFlattensHasNoWayBack)
{
    AffineTransform flat;
    flat.scale(1, 0);
    EXPECT_FALSE(ProjectiveTransform(flat).inverted());
}

} // namespace
