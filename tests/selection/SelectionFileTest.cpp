// SPDX-License-Identifier: GPL-3.0-or-later
/// Saved selections: what is written comes back to the bit, and nothing else is taken for one.
#include "selection/SelectionFile.h"
#include <array>
#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace zp;

namespace
{

BezierPath example()
{
    BezierPath path;
    path.moveTo({10, 20.5f});
    path.lineTo({30, 20.5f});
    path.curveTo({30, 40}, {1, 2}, {3, 4});
    path.closePath();
    path.moveTo({-1, -2});
    path.lineTo({0.1f, 1e-20f});
    path.setWindingRule(WindingRule::EvenOdd);
    return path;
}

void expectSame(const BezierPath& a, const BezierPath& b)
{
    ASSERT_EQ(a.elementCount(), b.elementCount());
    EXPECT_EQ(a.windingRule(), b.windingRule());
    for (int i = 0; i < a.elementCount(); ++i) {
        std::array<Point, 3> p{}, q{};
        ASSERT_EQ(a.elementAt(i, p), b.elementAt(i, q)) << i;
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_EQ(std::bit_cast<std::uint32_t>(p[k].x), std::bit_cast<std::uint32_t>(q[k].x)) << i;
            EXPECT_EQ(std::bit_cast<std::uint32_t>(p[k].y), std::bit_cast<std::uint32_t>(q[k].y)) << i;
        }
    }
}

} // namespace

TEST(SelectionFile, IsReadable)
{
    EXPECT_EQ(selectionFileText(example()), "Zelpane selection 1\n"
                                            "winding even-odd\n"
                                            "elements 6\n"
                                            "move 10 20.5\n"
                                            "line 30 20.5\n"
                                            "curve 1 2 3 4 30 40\n"
                                            "close\n"
                                            "move -1 -2\n"
                                            "line 0.1 1e-20\n"
                                            "end\n");
}

TEST(SelectionFile, ComesBackAsItWas)
{
    const std::optional<BezierPath> back = pathFromSelectionFile(selectionFileText(example()));
    ASSERT_TRUE(back);
    expectSame(*back, example());
}

TEST(SelectionFile, EveryFloatComesBackToTheBit)
{
    std::mt19937 random(1);
    BezierPath path;
    path.moveTo({0, 0});
    for (int i = 0; i < 20000; ++i) {
        const auto any = [&] {
            for (;;)
                if (const float f = std::bit_cast<float>(std::uint32_t(random())); std::isfinite(f)) return f;
        };
        path.lineTo({any(), any()});
    }
    path.lineTo({std::numeric_limits<float>::denorm_min(), -std::numeric_limits<float>::max()});
    path.lineTo({-0.0f, 16777215});
    const std::optional<BezierPath> back = pathFromSelectionFile(selectionFileText(path));
    ASSERT_TRUE(back);
    expectSame(*back, path);
}

TEST(SelectionFile, EmptyPathsAndBothRulesAreKept)
{
    for (const WindingRule rule : {WindingRule::EvenOdd, WindingRule::NonZero}) {
        BezierPath path;
        path.setWindingRule(rule);
        const std::optional<BezierPath> back = pathFromSelectionFile(selectionFileText(path));
        ASSERT_TRUE(back);
        EXPECT_TRUE(back->isEmpty());
        EXPECT_EQ(back->windingRule(), rule);
    }
}

TEST(SelectionFile, AnythingElseGivesNoPath)
{
    const std::string good = selectionFileText(example());
    ASSERT_TRUE(pathFromSelectionFile(good));
    const auto with = [&](const std::string& old, const std::string& replacement) {
        std::string text = good;
        text.replace(text.find(old), old.size(), replacement);
        return pathFromSelectionFile(text);
    };
    EXPECT_FALSE(pathFromSelectionFile(""));
    EXPECT_FALSE(pathFromSelectionFile("\n"));
    EXPECT_FALSE(pathFromSelectionFile("A letter to my aunt\n"));
    EXPECT_FALSE(pathFromSelectionFile(std::string(100000, '\0')));
    EXPECT_FALSE(pathFromSelectionFile(good + "\n"));
    EXPECT_FALSE(pathFromSelectionFile(good + good));
    EXPECT_FALSE(pathFromSelectionFile(std::string_view(good).substr(0, good.size() - 1)));
    EXPECT_FALSE(with("selection 1", "selection 2"));
    EXPECT_FALSE(with("even-odd", "odd-even"));
    EXPECT_FALSE(with("elements 6", "elements 5"));
    EXPECT_FALSE(with("elements 6", "elements 7"));
    EXPECT_FALSE(with("elements 6", "elements -1"));
    EXPECT_FALSE(with("elements 6", "elements 99999999999999999999"));
    EXPECT_FALSE(with("elements 6", "elements 6 "));
    EXPECT_FALSE(with("move 10 20.5", "move 10 nan"));
    EXPECT_FALSE(with("move 10 20.5", "move inf 20.5"));
    EXPECT_FALSE(with("move 10 20.5", "move 1e99 20.5"));
    EXPECT_FALSE(with("move 10 20.5", "move 10"));
    EXPECT_FALSE(with("move 10 20.5", "move 10 20.5 3"));
    EXPECT_FALSE(with("move 10 20.5", "move  10 20.5"));
    EXPECT_FALSE(with("move 10 20.5", "line 10 20.5"));
    EXPECT_FALSE(with("move 10 20.5", "close"));
    EXPECT_FALSE(with("line 30 20.5", "close"));
    EXPECT_FALSE(with("line 30 20.5", "move 30 20.5\r"));
    EXPECT_FALSE(with("line 30 20.5", "move 30 20.5"));
    EXPECT_FALSE(with("curve 1 2 3 4 30 40", "curve 1 2 3 4 30"));
}

TEST(SelectionFile, DamagedFilesNeverCrash)
{
    const std::string good = selectionFileText(example());
    std::mt19937 random(2026);
    int taken = 0;
    for (int round = 0; round < 50000; ++round) {
        std::string text = good;
        for (int change = 1 + int(random() % 6); change > 0; --change) {
            const std::size_t at = text.empty() ? 0 : random() % text.size();
            switch (random() % 5) {
            case 0:
                text.insert(at, 1, char(random()));
                break;
            case 1:
                text.erase(at, 1 + random() % 8);
                break;
            case 2:
                if (!text.empty()) text[at] = char(random());
                break;
            case 3:
                text.insert(at, text.substr(random() % (text.size() + 1), random() % 40));
                break;
            case 4:
                text.resize(at);
                break;
            }
        }
        const std::optional<BezierPath> path = pathFromSelectionFile(text);
        if (!path) continue;
        ++taken; // a changed digit, say: then it must be a sound path
        path->forEach([](PathElement, const Point*) {});
        const std::optional<BezierPath> again = pathFromSelectionFile(selectionFileText(*path));
        ASSERT_TRUE(again);
        expectSame(*again, *path);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(taken, 0);
    EXPECT_LT(taken, 25000);
}
