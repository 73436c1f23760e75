// SPDX-License-Identifier: GPL-3.0-or-later
/// The edge net of the set operations: many parts, nested and touching, and edges that coincide.
#include "selection/PlanarClip.h"
#include "selection/MaskPictures.h"
#include "selection/PathBooleans.h"
#include "selection/PlanarEdges.h"
#include "selection/ReferenceArea.h"
#include <cmath>
#include <gtest/gtest.h>
#include <map>

using namespace zp;

namespace
{

constexpr gpc_op kOperations[] = {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION};

GridLoop box(std::int64_t x0, std::int64_t y0, std::int64_t x1, std::int64_t y1)
{
    return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

double area(const std::vector<GridLoop>& loops)
{
    double sum = 0;
    for (const GridLoop& loop : loops)
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const GridPoint a = loop[i], b = loop[(i + 1) % loop.size()];
            sum += 0.5 * (double(a.x) * double(b.y) - double(b.x) * double(a.y));
        }
    return sum;
}

std::vector<GridLoop> clipped(gpc_op operation, const std::vector<GridLoop>& a, const std::vector<GridLoop>& b,
                              WindingRule rule = WindingRule::EvenOdd)
{
    std::vector<GridLoop> result;
    clipPlanar(operation, a, rule, b, rule, result);
    return result;
}

} // namespace

TEST(PlanarClip, NeighboursGrowTogether)
{
    const auto both = clipped(GPC_UNION, {box(0, 0, 10, 10)}, {box(10, 0, 25, 10)});
    ASSERT_EQ(both.size(), 1u);
    EXPECT_EQ(both[0].size(), 4u); // the common border is gone, and the corners on straight lines
    EXPECT_EQ(area(both), 250);
    EXPECT_TRUE(clipped(GPC_INT, {box(0, 0, 10, 10)}, {box(10, 0, 25, 10)}).empty());
    const auto step = clipped(GPC_UNION, {box(0, 0, 10, 10)}, {box(10, 5, 25, 10)});
    ASSERT_EQ(step.size(), 1u);
    EXPECT_EQ(step[0].size(), 6u);
}

TEST(PlanarClip, EqualShapesCoincide)
{
    const std::vector<GridLoop> shape{{{0, 0}, {100, 7}, {93, 50}, {40, 88}}},
        reversed{{{40, 88}, {93, 50}, {100, 7}, {0, 0}}};
    for (const auto& other : {shape, reversed}) {
        EXPECT_EQ(area(clipped(GPC_UNION, shape, other)), area(shape));
        EXPECT_EQ(area(clipped(GPC_INT, shape, other)), area(shape));
        EXPECT_TRUE(clipped(GPC_DIFF, shape, other).empty());
        EXPECT_TRUE(clipped(GPC_XOR, shape, other).empty());
    }
}

TEST(PlanarClip, SpikesAndEdgesGoneOverTwiceLeaveNoTrace)
{
    const std::vector<GridLoop> spiked{{{0, 0}, {10, 0}, {10, 5}, {30, 5}, {10, 5}, {10, 10}, {0, 10}}};
    const auto clean = clipped(GPC_UNION, spiked, {});
    ASSERT_EQ(clean.size(), 1u);
    EXPECT_EQ(clean[0].size(), 4u);
    EXPECT_TRUE(clipped(GPC_UNION, {{{0, 0}, {9, 9}}}, {{{4, 4}, {5, 5}, {4, 4}}}).empty());
    EXPECT_TRUE(clipped(GPC_UNION, {{}, {{3, 3}}}, {{{1, 1}, {1, 1}, {1, 1}}}).empty());
}

TEST(PlanarClip, TouchingLoopsStayApart)
{
    const auto corner = clipped(GPC_UNION, {box(0, 0, 10, 10)}, {box(10, 10, 20, 20)});
    EXPECT_EQ(corner.size(), 2u);
    // A hole whose corner touches the outline.
    const auto holed = clipped(GPC_DIFF, {box(0, 0, 20, 20)}, {{{0, 10}, {5, 5}, {10, 10}, {5, 15}}});
    EXPECT_EQ(area(holed), 400 - 50);
}

TEST(PlanarClip, NestedRingsAlternate)
{
    std::vector<GridLoop> rings, shifted;
    for (int i = 0; i < 30; ++i) {
        rings.push_back(box(i * 10, i * 10, 1000 - i * 10, 1000 - i * 10));
        shifted.push_back(box(i * 10 + 3, i * 10 + 3, 1003 - i * 10, 1003 - i * 10));
    }
    double expected = 0;
    for (int i = 0; i < 30; ++i) expected += (i % 2 ? -1.0 : 1.0) * (1000.0 - i * 20) * (1000 - i * 20);
    const auto once = clipped(GPC_UNION, rings, {});
    EXPECT_EQ(once.size(), 30u);
    EXPECT_EQ(area(once), expected);
    EXPECT_EQ(area(clipped(GPC_UNION, rings, {}, WindingRule::NonZero)), 1e6);
    EXPECT_EQ(clipped(GPC_UNION, rings, {}, WindingRule::NonZero).size(), 1u);
    EXPECT_EQ(area(clipped(GPC_UNION, rings, shifted)) + area(clipped(GPC_INT, rings, shifted)), 2 * expected);
}

TEST(PlanarClip, ManyScatteredPartsHaveTheExactArea)
{
    std::mt19937 random(515);
    for (int round = 0; round < 40; ++round) {
        BezierPath paths[2];
        for (BezierPath& path : paths) {
            path.setWindingRule(round % 2 ? WindingRule::EvenOdd : WindingRule::NonZero);
            for (int part = 0; part < 25; ++part) { // some inside others, some on a common grid of places
                const float cx = float(random() % 20) * 10, cy = float(random() % 20) * 10,
                            r = float(1 + random() % 40);
                const int corners = 3 + int(random() % 5);
                for (int i = 0; i < corners; ++i) {
                    const float angle = float(random() % 628) / 100;
                    const Point p{cx + std::round(r * std::cos(angle)),
                                  cy + std::round(r * std::sin(angle)) * (round % 3 ? 1.0f : 1.013f)};
                    i ? path.lineTo(p) : path.moveTo(p);
                }
                path.closePath();
            }
        }
        for (const gpc_op operation : kOperations) {
            const BezierPath result = pathFromPathUsingBooleanOperation(paths[0], paths[1], operation);
            ASSERT_NEAR(reference::area(result), reference::area(operation, paths[0], paths[1]), 0.05)
                << "round " << round << " operation " << operation;
            // The rules agree on the outcome: its loops do not cross, and holes turn back.
            BezierPath nonZero = result;
            nonZero.setWindingRule(WindingRule::NonZero);
            ASSERT_NEAR(reference::area(nonZero), reference::area(result), 0.01) << "round " << round;
        }
    }
}

TEST(PlanarClip, CutEdgesMeetInEndsOnlyAndCloseAtEveryPoint)
{
    std::mt19937 random(99);
    for (int round = 0; round < 200; ++round) {
        const int extent = 3 + int(random() % 60); // crowded: many edges through few points
        std::vector<GridEdge> edges;
        GridPoint first{}, last{};
        const int count = 3 + int(random() % 25);
        for (int i = 0; i <= count; ++i) {
            const GridPoint p = i == count ? first
                                           : GridPoint{std::int64_t(random() % unsigned(extent)),
                                                       std::int64_t(random() % unsigned(extent))};
            if (i == 0) first = p;
            if (i && p != last) edges.push_back({last, p, 1, 0});
            last = p;
        }
        EdgeGrid grid;
        Asking asking(nullptr);
        cutAtCrossings(edges, grid, asking);
        std::map<std::pair<std::int64_t, std::int64_t>, int> balance;
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const GridEdge& e = edges[i];
            ++balance[{e.a.x, e.a.y}], --balance[{e.b.x, e.b.y}];
            for (std::size_t j = 0; j < i; ++j) {
                const GridEdge& f = edges[j];
                const auto strictlyOn = [](GridPoint a, GridPoint b, GridPoint p) {
                    return p != a && p != b && turn(a, b, p) == 0 && p.x >= std::min(a.x, b.x) &&
                           p.x <= std::max(a.x, b.x) && p.y >= std::min(a.y, b.y) && p.y <= std::max(a.y, b.y);
                };
                ASSERT_FALSE(strictlyOn(e.a, e.b, f.a) || strictlyOn(e.a, e.b, f.b) || strictlyOn(f.a, f.b, e.a) ||
                             strictlyOn(f.a, f.b, e.b));
                const bool crossF = (turn(e.a, e.b, f.a) > 0 && turn(e.a, e.b, f.b) < 0) ||
                                    (turn(e.a, e.b, f.a) < 0 && turn(e.a, e.b, f.b) > 0);
                const bool crossE = (turn(f.a, f.b, e.a) > 0 && turn(f.a, f.b, e.b) < 0) ||
                                    (turn(f.a, f.b, e.a) < 0 && turn(f.a, f.b, e.b) > 0);
                ASSERT_FALSE(crossE && crossF) << "round " << round;
            }
        }
        for (const auto& [place, count2] : balance) ASSERT_EQ(count2, 0);
    }
}

TEST(PlanarClip, CoordinatesOfEverySizeAreExact)
{
    for (int shift = 0; shift <= 43; shift += 4) {
        const std::int64_t u = std::int64_t{1} << shift;
        const std::vector<GridLoop> a{{{0, 0}, {4 * u, 0}, {4 * u, 4 * u}, {0, 4 * u}}},
            b{{{2 * u, -2 * u}, {6 * u, 2 * u}, {2 * u, 6 * u}, {-2 * u, 2 * u}}};
        const double unit = double(u) * double(u);
        EXPECT_EQ(area(clipped(GPC_INT, a, b)) / unit, 16);
        EXPECT_EQ(area(clipped(GPC_UNION, a, b)) / unit, 32);
    }
}

/// One loop of @p count corners anywhere, so that most of its edges cross.
GridLoop scribble(int count)
{
    std::mt19937 random(23);
    GridLoop loop;
    for (int i = 0; i < count; ++i)
        loop.push_back({std::int64_t(random() % 6000) << 16, std::int64_t(random() % 4000) << 16});
    return loop;
}

TEST(PlanarClip, EndsWhenNobodyWantsToWaitForIt)
{
    struct Impatient : LongWait {
        bool goOn() override { return false; }
    };
    setClipWait([]() -> std::unique_ptr<LongWait> { return std::make_unique<Impatient>(); });
    std::vector<GridLoop> result;
    EXPECT_THROW(clipPlanar(GPC_UNION, {scribble(4000)}, WindingRule::EvenOdd, {}, WindingRule::EvenOdd, result),
                 Stopped);
    setClipWait(nullptr);
    EXPECT_TRUE(result.empty());
}

TEST(PlanarClip, AllWhoCrossAllAreRefusedBeforeTheyTakeAllMemory)
{
    std::vector<GridLoop> result;
    EXPECT_THROW(clipPlanar(GPC_UNION, {scribble(12000)}, WindingRule::EvenOdd, {}, WindingRule::EvenOdd, result),
                 std::bad_alloc);
    EXPECT_TRUE(result.empty());
}
