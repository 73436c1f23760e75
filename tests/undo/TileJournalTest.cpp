// SPDX-License-Identifier: GPL-3.0-or-later
/// Taking writes back tile by tile.
#include "undo/TileJournal.h"
#include "undo/TestPictures.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace
{

using namespace zp;
using namespace zp::test;

constexpr int kSide = TileGrid::kSide;

bool same(ConstBitmapView a, ConstBitmapView b)
{
    for (int y = 0; y < a.height; ++y)
        if (!std::equal(a.row(y), a.row(y) + a.width, b.row(y))) return false;
    return true;
}

Picture painted(int width, int height, unsigned seed)
{
    Picture picture(width, height);
    paintPhoto(picture.view(), seed);
    return picture;
}

void scribble(BitmapView pixels, PixelBox box, std::mt19937& random)
{
    box = box.intersected(pixels.box());
    for (int y = box.y0; y < box.y1; ++y)
        for (int x = box.x0; x < box.x1; ++x) pixels.row(y)[x] = std::uint32_t(random());
}

TEST(TileJournal, BringsBackWhateverWasAnnounced)
{
    std::mt19937 random(5);
    for (const auto& [width, height] : {std::pair{1, 1}, {127, 128}, {128, 129}, {300, 500}, {1000, 40}}) {
        Picture picture = painted(width, height, 3);
        const Picture before = painted(width, height, 3);
        TileJournal journal(picture.view());
        PixelBox announced;
        for (int i = 0; i < 30; ++i) {
            // Some lie beside the picture, some reach over its edge, some write the same tiles again.
            PixelBox box{int(random() % unsigned(width + 80)) - 40, int(random() % unsigned(height + 80)) - 40, 0, 0};
            box.x1 = box.x0 + 1 + int(random() % 60);
            box.y1 = box.y0 + 1 + int(random() % 60);
            ASSERT_TRUE(journal.keep(picture.view(), box));
            scribble(picture.view(), box, random);
            announced = announced.united(box.intersected(picture.view().box()));
        }
        EXPECT_FALSE(same(picture.view(), before.view())) << width;
        EXPECT_TRUE(journal.isWhole());
        const PixelBox restored = journal.restore(picture.view());
        EXPECT_TRUE(same(picture.view(), before.view())) << width << " x " << height;
        EXPECT_TRUE(picture.spareBytesUntouched());
        EXPECT_EQ(restored.united(announced), restored) << "the box covers all that was written";
        EXPECT_EQ(restored.intersected(picture.view().box()), restored);
    }
}

TEST(TileJournal, KeepsATileAsItWasAtItsFirstAnnouncement)
{
    Picture picture = painted(kSide, kSide, 1);
    const Picture before = painted(kSide, kSide, 1);
    std::mt19937 random(1);
    TileJournal journal(picture.view());
    for (int i = 0; i < 3; ++i) {
        journal.keep(picture.view(), {i, i, i + 1, i + 1});
        scribble(picture.view(), picture.view().box(), random); // beyond what was announced, but in the same tile
    }
    journal.restore(picture.view());
    EXPECT_TRUE(same(picture.view(), before.view()));
}

TEST(TileJournal, LeavesTheTilesAloneThatNobodyAnnounced)
{
    Picture picture = painted(3 * kSide, kSide, 1);
    std::mt19937 random(2);
    TileJournal journal(picture.view());
    journal.keep(picture.view(), {kSide + 5, 5, kSide + 6, 6});
    scribble(picture.view(), picture.view().box(), random);
    const std::uint32_t left = picture.view().row(9)[kSide - 1], right = picture.view().row(9)[2 * kSide];
    EXPECT_EQ(journal.restore(picture.view()), (PixelBox{kSide, 0, 2 * kSide, kSide}));
    EXPECT_EQ(picture.view().row(9)[kSide - 1], left);
    EXPECT_EQ(picture.view().row(9)[2 * kSide], right);
}

TEST(TileJournal, IsEmptyUntilSomethingInThePictureIsAnnounced)
{
    Picture picture = painted(200, 200, 1);
    TileJournal journal(picture.view());
    EXPECT_TRUE(journal.isEmpty());
    for (const PixelBox box : {PixelBox{}, {5, 5, 5, 9}, {-9, -9, 0, 0}, {200, 0, 300, 200}, {0, 200, 9, 300}})
        EXPECT_TRUE(journal.keep(picture.view(), box));
    EXPECT_TRUE(journal.isEmpty());
    EXPECT_TRUE(journal.restore(picture.view()).isEmpty());
    journal.keep(picture.view(), {199, 199, 400, 400});
    EXPECT_FALSE(journal.isEmpty());

    TileJournal none;
    EXPECT_TRUE(none.isEmpty());
    EXPECT_TRUE(none.isWhole());
    EXPECT_TRUE(none.restore(picture.view()).isEmpty());
}

} // namespace
