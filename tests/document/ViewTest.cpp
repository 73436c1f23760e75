// SPDX-License-Identifier: GPL-3.0-or-later
/// Zoom levels from wherever the zoom is.
#include "document/View.h"
#include <gtest/gtest.h>

using namespace zp;

TEST(View, BeginsAtItsOwnSize)
{
    const View view;
    EXPECT_EQ(view.zoom(), 1);
    EXPECT_FALSE(view.isRetina());
    EXPECT_EQ(view.effectiveZoom(), 1);
    EXPECT_FALSE(view.isOnScreen());
    EXPECT_FALSE(view.pointerInside());
    EXPECT_STREQ(view.infoWithoutSelection(), "");
}

TEST(View, RetinaModeHalvesTheZoom)
{
    View view;
    view.setZoom(2);
    view.setRetina(true);
    EXPECT_EQ(view.zoom(), 2);
    EXPECT_EQ(view.effectiveZoom(), 1);
}

TEST(View, LevelsArePowersOfTwoInOrder)
{
    for (std::size_t i = 1; i < kZoomLevels.size(); ++i) EXPECT_EQ(kZoomLevels[i], 2 * kZoomLevels[i - 1]);
}

TEST(View, FindsTheNearestLevelByRatioAndTheNextBeyond)
{
    struct Case {
        float zoom;
        int nearest, larger, smaller;
    };
    for (const Case& c : {Case{1, 4, 5, 3},
                          {0.99999f, 4, 5, 3}, // a fitted picture is at that level
                          {1.0009f, 4, 5, 3},
                          {1.002f, 4, 5, 4}, // beyond it
                          {0.998f, 4, 4, 3},
                          {0.7f, 3, 4, 3}, // 0.5 is 1.40 away, 1 is 1.43
                          {0.72f, 4, 4, 3},
                          {0.3f, 2, 3, 2},
                          {3, 6, 6, 5},       // by difference 2 would be as near
                          {0.0625f, 0, 1, 0}, // the ends are the last
                          {0.001f, 0, 0, 0},
                          {16, 8, 8, 7},
                          {15, 8, 8, 7},
                          {1000, 8, 8, 8}}) {
        View view;
        view.setZoom(c.zoom);
        EXPECT_EQ(view.nearestLevel(), c.nearest) << c.zoom;
        EXPECT_EQ(view.levelBeyond(1), c.larger) << c.zoom;
        EXPECT_EQ(view.levelBeyond(-1), c.smaller) << c.zoom;
    }
}

TEST(View, StepsReachEveryLevelBothWays)
{
    View view;
    view.setZoom(kZoomLevels.front());
    for (int level = 1; level < int(kZoomLevels.size()); ++level) {
        EXPECT_EQ(view.levelBeyond(1), level);
        view.setZoom(kZoomLevels[std::size_t(view.levelBeyond(1))]);
    }
    for (int level = int(kZoomLevels.size()) - 2; level >= 0; --level) {
        EXPECT_EQ(view.levelBeyond(-1), level);
        view.setZoom(kZoomLevels[std::size_t(view.levelBeyond(-1))]);
    }
}

TEST(View, ADocumentBeginsFittedOnlyWhenItIsLargerThanTheRoom)
{
    struct Case {
        Size room, picture;
        bool retina;
        Fit fit;
        float zoom;
    };
    for (const Case& c : std::initializer_list<Case>{
             {{800.5f, 600.5f}, {400, 300}, false, Fit::No, 1},
             {{800.5f, 600.5f}, {800, 600}, false, Fit::No, 1},
             {{800.5f, 600.5f}, {1600, 300}, false, Fit::Shrink, 0.5f},
             {{800.5f, 600.5f}, {800, 2400}, false, Fit::Shrink, 0.25f},
             {{800.5f, 600.5f}, {1600, 1200}, true, Fit::No, 1}, // two pixels on each screen point
             {{800.5f, 600.5f}, {3200, 300}, true, Fit::Shrink, 0.5f},
             {{0, 0}, {9000, 9000}, false, Fit::No, 3}}) { // nobody looks
        View view;
        view.setZoom(3);
        view.setRetina(c.retina);
        view.setRoom(c.room);
        view.begin(c.picture);
        EXPECT_EQ(view.fit(), c.fit) << c.picture.width;
        EXPECT_FLOAT_EQ(view.zoom(), c.zoom) << c.picture.width;
    }
}

TEST(View, AFitFollowsTheRoomUntilAZoomIsChosen)
{
    const Size picture{1000, 500};
    View view;
    view.setRoom({500.5f, 500.5f});
    view.begin(picture);
    view.setRoom({250.5f, 500.5f});
    EXPECT_TRUE(view.refit(picture));
    EXPECT_FLOAT_EQ(view.zoom(), 0.25f);
    EXPECT_FALSE(view.refit(picture)) << "nothing new";
    view.setRoom({4000.5f, 4000.5f});
    view.refit(picture);
    EXPECT_EQ(view.zoom(), 1) << "nobody asked for more than its own pixels";
    view.setFit(Fit::Whole);
    view.refit(picture);
    EXPECT_FLOAT_EQ(view.zoom(), 4);
    view.setZoom(2);
    view.setRoom({100, 100});
    EXPECT_FALSE(view.refit(picture));
    EXPECT_EQ(view.zoom(), 2);
}

TEST(View, ASmallPictureIsFittedWhileTheRoomIsSmaller)
{
    const Size picture{400, 200};
    View view;
    view.setRoom({800.5f, 600.5f});
    view.begin(picture);
    EXPECT_EQ(view.fit(), Fit::No);
    view.setRoom({200.5f, 600.5f}); // a dock was opened beside it
    EXPECT_TRUE(view.refit(picture));
    EXPECT_FLOAT_EQ(view.zoom(), 0.5f);
    EXPECT_EQ(view.fit(), Fit::Shrink);
    view.setRoom({800.5f, 600.5f});
    EXPECT_TRUE(view.refit(picture));
    EXPECT_EQ(view.zoom(), 1);
    EXPECT_EQ(view.fit(), Fit::No);
}

TEST(View, RetinaModeDoesNotMoveTheLevels)
{
    View view;
    view.setZoom(2);
    view.setRetina(true);
    EXPECT_EQ(view.nearestLevel(), 5);
    EXPECT_EQ(view.levelBeyond(1), 6);
}
