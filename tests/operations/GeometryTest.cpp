// SPDX-License-Identifier: GPL-3.0-or-later
/// Turns, flips and crop of the whole picture: pixels, buffers, selection, step.
#include "support/DocumentFixture.h"

using namespace zp;
using namespace zp::test;

namespace
{

class Geometry : public DocumentTest
{
protected:
    /// Every pixel different, and a comment of the file's.
    void make(int width, int height)
    {
        makeImage(width, height);
        paintImage(at);
        edit([](Edit& e) { e.picture().writableBitmap()->properties.userComment = "kept"; });
        takeSounds();
    }
    static std::uint32_t at(int x, int y) { return std::uint32_t(x * 1000 + y) << 8 | 0xFF; }
    /// What each command leaves behind.
    void expectFresh(int width, int height)
    {
        EXPECT_EQ(picture().width(), width);
        EXPECT_EQ(picture().height(), height);
        EXPECT_EQ(picture().bitmap()->bytesPerRow(), 64 * (width / 16) + 64);
        EXPECT_EQ(picture().size(), (Size{float(width), float(height)}));
        EXPECT_TRUE(picture().image().isFlipped());
        ASSERT_TRUE(picture().gworld());
        EXPECT_EQ(picture().gworld()->pixels.data, picture().bitmap()->bitmapData());
        EXPECT_EQ(picture().gworld()->bounds.right, width);
        EXPECT_EQ(picture().bitmapPointer(), picture().bitmap()->bitmapData());
        EXPECT_EQ(picture().image().drawn(), picture().bitmap());
        EXPECT_EQ(picture().bitmap()->properties.userComment, "kept");
        EXPECT_FALSE(outline());
        EXPECT_FALSE(floating());
        EXPECT_FALSE(selection().antsMarch());
        EXPECT_EQ(selection().mask().width(), width);
        EXPECT_EQ(selection().mask().height(), height);
        EXPECT_TRUE(selection().mask().isClear());
        EXPECT_EQ(mask(width - 1, height - 1), 255);
        settle();
        EXPECT_EQ(history().newest(), 1) << "one new step";
    }
    void selectSomething()
    {
        select(makeRect(1, 0, 2, 2));
        renderMask();
        lift();
    }
};

TEST_F(Geometry, CounterClockwise)
{
    make(3, 2);
    selectSomething();
    perform("rotateCCW:");
    expectFresh(2, 3);
    EXPECT_EQ(pixel(0, 0), at(2, 0)) << "the old top right";
    for (int v = 0; v < 2; ++v)
        for (int u = 0; u < 3; ++u) EXPECT_EQ(pixel(v, 2 - u), at(u, v));
}

TEST_F(Geometry, Clockwise)
{
    make(16, 9);
    selectSomething();
    perform("rotateCW:");
    expectFresh(9, 16);
    for (int v = 0; v < 9; ++v)
        for (int u = 0; u < 16; ++u) EXPECT_EQ(pixel(8 - v, u), at(u, v));
}

TEST_F(Geometry, RowsOfTheNewBitmapArePadded)
{
    make(20, 16);
    perform("rotateCW:");
    EXPECT_EQ(picture().bitmap()->bytesPerRow(), 128);
    make(20, 15);
    perform("rotateCW:");
    EXPECT_EQ(picture().bitmap()->bytesPerRow(), 64);
}

TEST_F(Geometry, Flips)
{
    make(37, 21);
    selectSomething();
    perform("flipH:");
    expectFresh(37, 21);
    for (int v = 0; v < 21; ++v)
        for (int u = 0; u < 37; ++u) ASSERT_EQ(pixel(36 - u, v), at(u, v));
    make(37, 21);
    perform("flipV:");
    expectFresh(37, 21);
    for (int v = 0; v < 21; ++v)
        for (int u = 0; u < 37; ++u) ASSERT_EQ(pixel(u, 20 - v), at(u, v));
}

TEST_F(Geometry, FourTurnsAndTwoFlipsAreNothing)
{
    make(35, 20);
    const auto before = allPixels();
    for (const char* action : {"rotateCW:", "rotateCW:", "rotateCW:", "rotateCW:", "flipH:", "flipH:", "flipV:",
                               "flipV:", "rotateCCW:", "rotateCCW:", "rotateCCW:", "rotateCCW:"})
        EXPECT_TRUE(perform(action));
    ASSERT_EQ(picture().width(), 35);
    EXPECT_EQ(allPixels(), before);
}

TEST_F(Geometry, EachIsAnotherGenerationOfThePicture)
{
    make(35, 20);
    for (const char* action : {"rotateCW:", "rotateCCW:", "flipH:", "flipV:"}) {
        const std::uint64_t before = picture().generation();
        perform(action);
        EXPECT_GT(picture().generation(), before) << action;
    }
}

TEST_F(Geometry, UndoBringsBackTheFormerShape)
{
    make(35, 20);
    perform("takeSnapshot");
    settle();
    perform("rotateCW:");
    settle();
    perform("undo:");
    EXPECT_EQ(picture().width(), 35);
    EXPECT_EQ(picture().height(), 20);
}

TEST_F(Geometry, WithoutAPictureNothingHappens)
{
    for (const char* action : {"rotateCW:", "rotateCCW:", "flipH:", "flipV:"}) EXPECT_FALSE(perform(action)) << action;
    EXPECT_FALSE(picture().bitmap());
    EXPECT_EQ(history().newest(), -1);
    EXPECT_EQ(takeSounds(), Lines(4, "beep"));
}

TEST_F(Geometry, CropBelowFourByFourBeeps)
{
    make(60, 50);
    for (const Rect box : {makeRect(5, 5, 3, 40), makeRect(5, 5, 40, 3), makeRect(5, 5, 3.99f, 10)}) {
        select(box);
        EXPECT_FALSE(perform("cropToSelection:"));
        EXPECT_EQ(takeSounds(), Lines{"beep"});
        EXPECT_EQ(picture().size(), (Size{60, 50}));
        EXPECT_TRUE(outline());
    }
    dropSelection();
    EXPECT_FALSE(perform("cropToSelection:"));
    EXPECT_EQ(takeSounds(), Lines{"beep"});
}

TEST_F(Geometry, CropTakesTheBoxAndResetsTheSelection)
{
    make(60, 50);
    select(makeRect(7, 9, 4, 4));
    renderMask();
    perform("floatSelection");
    perform("cropToSelection:");
    expectFresh(4, 4);
    for (int v = 0; v < 4; ++v)
        for (int u = 0; u < 4; ++u) EXPECT_EQ(pixel(u, v), at(7 + u, 9 + v));
}

} // namespace
