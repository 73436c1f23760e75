// SPDX-License-Identifier: GPL-3.0-or-later
/// The sums of the size dialogs, by tables.
#include "app/SizeArithmetic.h"
#include <gtest/gtest.h>

using namespace zp;

TEST(FileSizeEstimate, ShowsKilobytesUpToTwoThousandThenMegabytes)
{
    struct Case {
        int width, height;
        const char* text;
    };
    for (const Case& c : {Case{1000, 1000, "4 MB"}, Case{1, 1, "0 KB"}, Case{16, 8, "1 KB"}, Case{512, 1000, "2000 KB"},
                          Case{256, 2001, "2 MB"}, Case{0, 500, "0 KB"}, Case{6000, 4000, "92 MB"}})
        EXPECT_EQ(fileSizeEstimate(c.width, c.height), c.text) << c.width << " x " << c.height;
}

TEST(ResizeFields, FollowTheFieldThatChanged)
{
    struct Case {
        const char* name;
        ResizeFields before;
        int tag;
        bool keep;
        ResizeFields after;
    };
    // The image is 400 by 300.
    const Case cases[] = {
        {"width alone", {200, 300, 100, 100}, 100, false, {200, 300, 50, 100}},
        {"width with aspect", {200, 300, 100, 100}, 100, true, {200, 150, 50, 50}},
        {"height alone", {400, 150, 100, 100}, 101, false, {400, 150, 100, 50}},
        {"height with aspect", {400, 150, 100, 100}, 101, true, {200, 150, 50, 50}},
        {"width percent", {400, 300, 25, 100}, 102, false, {100, 300, 25, 100}},
        {"width percent with aspect", {400, 300, 25, 100}, 102, true, {100, 75, 25, 25}},
        {"height percent", {400, 300, 100, 200}, 103, false, {400, 600, 100, 200}},
        {"height percent with aspect", {400, 300, 100, 200}, 103, true, {800, 600, 200, 200}},
        {"another tag", {7, 8, 9, 10}, 999, true, {7, 8, 9, 10}},
    };
    for (const Case& c : cases) EXPECT_EQ(linkedResizeFields(c.before, c.tag, 400, 300, c.keep), c.after) << c.name;
}

TEST(ResizeFields, PercentagesAreNotRounded)
{
    const ResizeFields f = linkedResizeFields({1, 3, 100, 100}, 100, 3, 3, false);
    EXPECT_FLOAT_EQ(f.widthPercent, 100.0f / 3);
}

TEST(ResizeFields, AnEmptyImageGivesNoWildNumbers)
{
    const ResizeFields f = linkedResizeFields({10, 10, 100, 100}, 100, 0, 0, true);
    EXPECT_EQ(f.height, 0);
}
