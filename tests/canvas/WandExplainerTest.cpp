// SPDX-License-Identifier: GPL-3.0-or-later
/// What is shown and said where the pointer rests with the wand.
#include "canvas/WandExplainer.h"
#include "canvas/Shimmer.h"
#include "support/ToolFixture.h"

namespace
{

using namespace zp;
using namespace zp::test;
using namespace std::chrono_literals;

class WandExplains : public ToolTest
{
protected:
    void SetUp() override
    {
        ToolTest::SetUp();
        fillBox({50, 0, 200, 100}, word(255, 255, 255, 200));
        choose(Tool::Wand);
        document->setToleranceSetting(10);
        document->setExplainsWand(true);
    }
    std::string told()
    {
        EXPECT_TRUE(eventually([this] { return !canvas->wandExplainer().isPending(); }));
        return document->message().toStdString();
    }
    std::string restAt(float x, float y)
    {
        move(x, y);
        return told();
    }
};

TEST_F(WandExplains, WhatAClickTakesWhereThePointerRests)
{
    EXPECT_EQ(restAt(20, 30), "A click takes 5,000 px");
    EXPECT_EQ(canvas->wandExplainer().reach(), (PixelBox{0, 0, 50, 100}));
    move(21, 30);
    EXPECT_EQ(document->message(), "") << "what was said of the pixel before is over";
    EXPECT_TRUE(canvas->wandExplainer().reach().isEmpty());
    EXPECT_EQ(restAt(90, 30), "A click takes 15,000 px");
    document->setToleranceSetting(60);
    EXPECT_EQ(told(), "A click takes 20,000 px");
}

TEST_F(WandExplains, WhyAPixelIsOutAndWhatAClickThereTakes)
{
    press(20, 30);
    release(20, 30);
    EXPECT_EQ(told(), "Inside");
    EXPECT_EQ(restAt(21, 30), "Inside");
    EXPECT_EQ(restAt(90, 30), "Outside: blue differs by 55, the tolerance allows 12 · A click takes 15,000 px");
}

TEST_F(WandExplains, NothingUnlessItMay)
{
    struct Case {
        const char* name;
        std::function<void()> make, undo;
    };
    const Case cases[] = {
        {"off", [&] { document->setExplainsWand(false); }, [&] { document->setExplainsWand(true); }},
        {"another tool", [&] { choose(Tool::Bucket); }, [&] { choose(Tool::Wand); }},
        {"outside the picture", [&] { move(-5, 30); }, [&] { move(25, 30); }},
        {"the pointer elsewhere",
         [&] {
             document->setPointer({22, 30}, false);
         },
         [&] {
             document->setPointer({22, 30}, true);
         }},
        {"the button down", [&] { press(25, 30); }, [&] { key(Qt::Key_Escape), release(25, 30); }},
    };
    for (const auto& [name, make, undo] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(restAt(20, 30), "A click takes 5,000 px");
        make();
        EXPECT_EQ(told(), "");
        EXPECT_TRUE(canvas->wandExplainer().reach().isEmpty());
        undo();
        EXPECT_EQ(told(), "A click takes 5,000 px");
    }
}

TEST_F(WandExplains, KeysAskForSomethingElse)
{
    select(makeRect(0, 0, 50, 50));
    EXPECT_EQ(restAt(20, 80), "A click takes 5,000 px");
    hold(kShiftKey);
    key(Qt::Key_Shift);
    EXPECT_EQ(told(), "A click takes 2,500 px");
}

TEST_F(WandExplains, APictureThatChangesIsLookedAtAgain)
{
    EXPECT_EQ(restAt(20, 30), "A click takes 5,000 px");
    fillBox({0, 0, 50, 10}, kRedWord);
    EXPECT_EQ(told(), "A click takes 4,500 px");
    newImage(30, 20);
    EXPECT_EQ(told(), "") << "the pointer is beside it";
    EXPECT_EQ(restAt(20, 10), "A click takes 600 px");
}

TEST_F(WandExplains, WhatSomebodyElseSaidStaysUntilThePointerMoves)
{
    EXPECT_EQ(restAt(20, 30), "A click takes 5,000 px");
    document->say("Done");
    document->setToleranceSetting(12);
    EXPECT_EQ(told(), "Done");
    EXPECT_FALSE(canvas->wandExplainer().reach().isEmpty()) << "it is shown all the same";
    EXPECT_EQ(restAt(22, 30), "A click takes 5,000 px");
}

TEST_F(WandExplains, ASearchThatIsCutShortSaysSo)
{
    newImage(900, 900);
    canvas.reset();
    WandExplainer explainer(*document, nullptr);
    const auto rest = [&](float x) {
        document->setPointer({x, 5}, true);
        EXPECT_TRUE(eventually([&] { return !explainer.isPending(); }));
        return document->message();
    };
    explainer.setBudget(0ns, 7); // a tile each
    const QString said = rest(5);
    EXPECT_EQ(said, "A click takes at least 28,672 px");
    EXPECT_GT(explainer.reach().width(), 0);
    explainer.setBudget(0ns, 1'000'000);
    EXPECT_EQ(rest(6), "A click takes 810,000 px") << "it goes on between the events";
}

TEST(Shimmer, IsSeenOnEveryColourAndNowhereElse)
{
    constexpr int kSide = 96;
    std::vector<std::uint8_t> memory(std::size_t(kSide) * kSide * 4, 0xFF);
    BitmapView picture{memory.data(), kSide, kSide, kSide * 4};
    for (int y = 0; y < kSide; ++y)
        for (int x = 70; x < kSide; ++x) picture.row(y)[x] = 0xFF;
    TileRegion region;
    region.start(picture, {}, {3, 3}, {0xFFFFFFFF, 4, true}, nullptr);
    ASSERT_TRUE(region.goOn([] { return true; }));
    for (const std::uint32_t colour : {0xFF000000u, 0xFFFFFFFFu, 0xFF808080u, 0xFF3060C0u})
        for (const double scale : {0.5, 1.0, 3.0}) {
            const int side = int(kSide * scale), edge = int(70 * scale);
            std::vector<std::uint32_t> screen(std::size_t(side) * std::size_t(side), colour);
            drawShimmer({screen.data(), side, {0, 0, side, side}}, region, region.box(), scale, {20, 5});
            int changed = 0;
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) {
                    const std::uint32_t word = screen[std::size_t(y * side + x)];
                    ASSERT_EQ(word >> 24, 0xFFu);
                    ASSERT_TRUE(x < edge || word == colour) << x << ' ' << y;
                    const int difference = std::abs(int(word >> 8 & 0xFF) - int(colour >> 8 & 0xFF));
                    changed += difference > 20;
                }
            EXPECT_GT(changed, side * edge / 4) << std::hex << colour << " at " << scale;
        }
}

} // namespace
