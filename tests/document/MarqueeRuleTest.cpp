// SPDX-License-Identifier: GPL-3.0-or-later
/// A marquee may keep to a ratio or a size.
#include "canvas/ToolTable.h"
#include "support/DocumentFixture.h"

using namespace zp;
using namespace zp::test;

namespace
{

class MarqueeRuleTest : public DocumentTest
{
protected:
    MarqueeRuleTest() { makeImage(400, 300); }
    Rect drawn(const MarqueeRule& rule, Point from, Point to)
    {
        document->setMarqueeRule(rule);
        document->press(&rowOf(Tool::Rectangle).actions, from);
        document->drag(to);
        document->release(to);
        const Rect box = outlineBounds();
        perform("selectNone:");
        return box;
    }
};

TEST_F(MarqueeRuleTest, IsKeptInEveryDirection)
{
    constexpr MarqueeRule kFree{}, kWide{MarqueeRule::Ratio, 16, 8}, kSize{MarqueeRule::FixedSize, 40, 30};
    struct Case {
        MarqueeRule rule;
        Point from, to;
        Rect box;
    };
    for (const Case& c : {Case{kFree, {10, 10}, {40, 90}, makeRect(10, 10, 30, 80)},
                          {kWide, {10, 10}, {110, 30}, makeRect(10, 10, 100, 50)},
                          {kWide, {10, 10}, {30, 60}, makeRect(10, 10, 100, 50)},
                          {kWide, {200, 200}, {100, 190}, makeRect(100, 150, 100, 50)},
                          {kSize, {100, 100}, {102, 103}, makeRect(100, 100, 40, 30)},
                          {kSize, {100, 100}, {10, 250}, makeRect(60, 100, 40, 30)}})
        EXPECT_EQ(drawn(c.rule, c.from, c.to), c.box) << c.to.x << " " << c.to.y;
}

TEST_F(MarqueeRuleTest, WithoutASideIsNone)
{
    document->setMarqueeRule({MarqueeRule::Ratio, 0, 5});
    EXPECT_EQ(gesture().marqueeRule().kind, MarqueeRule::Free);
}

TEST_F(MarqueeRuleTest, ARectangleIsSelectedByNumber)
{
    performNumbers("selectRectangle:", {-5, 7, 30, 40});
    EXPECT_EQ(outlineBounds(), makeRect(-5, 7, 30, 40));
    EXPECT_FALSE(performNumbers("selectRectangle:", {0, 0, 0, 40}));
    EXPECT_EQ(outlineBounds(), makeRect(-5, 7, 30, 40));
}

} // namespace
