// SPDX-License-Identifier: GPL-3.0-or-later
/// An earlier state beside the present one: which, where, and for how long.
#include "support/Samples.h"
#include "support/Session.h"
#include <QImage>

using zp::test::Session;

namespace
{

class Compare : public testing::Test
{
protected:
    Compare()
    {
        run.newImage(60, 40); // black and clear
        run.play({"set mColorWell #ff0000", "menu selectAll:", "menu fill:", "wait",
                  "send saveImageAsPNG: " + run.file("a.png"), "set mColorWell #00ff00", "menu fill:", "wait",
                  "set mColorWell #0000ff", "menu fill:", "menu selectNone:", "wait", "move 30 20"});
    }
    /// What the canvas shows in the middle of the left and of the right half.
    std::pair<QRgb, QRgb> halves()
    {
        run.must("sleep 0.05");
        run.must("grab " + run.file("seen.png") + " canvas");
        const QImage seen(run.file("seen.png"));
        EXPECT_EQ(seen.size(), QSize(60, 40));
        return {seen.pixel(10, 20), seen.pixel(50, 20)};
    }
    Session run;
};

constexpr QRgb kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF;

TEST_F(Compare, ShowsTheStateThatWasChosenLeftOfThePointer)
{
    EXPECT_EQ(halves(), std::pair(kBlue, kBlue));
    run.must("menu compare:");
    const auto [opened, now] = halves();
    EXPECT_NE(opened, kBlue);
    EXPECT_NE(opened, kRed);
    EXPECT_EQ(now, kBlue);
    EXPECT_EQ(run.must("status")["message"].toString(), "Left of the pointer: as opened");
    run.must("menu compareSaved:");
    EXPECT_EQ(halves(), std::pair(kRed, kBlue));
    run.must("menu compareStep:");
    EXPECT_EQ(halves(), std::pair(kGreen, kBlue));
    run.must("move 5 20"); // the line follows
    EXPECT_EQ(halves(), std::pair(kBlue, kBlue));
    run.must("move 58 20");
    EXPECT_EQ(halves(), std::pair(kGreen, kGreen));
    run.must("menu compare:");
    EXPECT_EQ(halves(), std::pair(kBlue, kBlue));
    EXPECT_EQ(run.pixel(10, 20), (std::vector<int>{255, 0, 0, 255}));
}

TEST_F(Compare, TheKeyComparesOnlyWhileItIsHeld)
{
    run.must("key c"); // down and up
    EXPECT_EQ(halves(), std::pair(kBlue, kBlue));
    run.must("menu compare:"); // by the menu it stays
    run.must("menu compareStep:");
    EXPECT_EQ(halves(), std::pair(kGreen, kBlue));
}

TEST_F(Compare, EndsWithThePictureAndRefusesAnotherSize)
{
    run.play({"menu compare:", "menu rotateCW:", "wait"});
    EXPECT_EQ(run.must("status")["message"].toString().left(4), "Done"); // by the command, which ended it
    run.must("menu compare:");
    EXPECT_EQ(run.must("status")["message"].toString(), "The image had another size then.");
    for (const QJsonValue& item : run.must("menus")["items"].toArray())
        if (item["action"] == "compare:") {
            EXPECT_FALSE(item["checked"].toBool());
        }
}

} // namespace
