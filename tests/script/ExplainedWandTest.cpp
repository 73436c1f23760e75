// SPDX-License-Identifier: GPL-3.0-or-later
/// The wand that explains itself, as a script and a screen reader meet it.
#include "support/Samples.h"
#include "support/Session.h"

using zp::test::Session;

namespace
{

class ExplainedWand : public testing::Test
{
protected:
    ExplainedWand()
    {
        run.newImage(200, 100);
        run.play({"set mColorWell #ffffff", "menu selectAll:", "menu fill:", "send selectRectangle: 50 0 150 100",
                  "set mColorWell #ffffc8", "menu fill:", "menu selectNone:", "wait", "set mToolPopUp #2",
                  "set mToleranceSlider 10"});
    }
    QString told()
    {
        run.must("wait");
        return run.must("status")["message"].toString();
    }
    Session run;
};

TEST_F(ExplainedWand, IsOffAsGiven)
{
    EXPECT_EQ(run.must("get mExplain")["value"].toInt(), 0);
    EXPECT_TRUE(run.must("get mExplain")["visible"].toBool());
    run.must("move 20 30");
    EXPECT_EQ(told(), "");
    run.play({"press 20 30", "drag 90 30", "release 90 30"});
    EXPECT_EQ(run.must("get mToleranceSlider")["value"].toInt(), 10);
    run.must("set mToolPopUp #3");
    EXPECT_FALSE(run.must("get mExplain")["visible"].toBool());
}

TEST_F(ExplainedWand, MenuAndButtonAreOneSwitch)
{
    run.must("menu explainWand:");
    EXPECT_EQ(run.must("get mExplain")["value"].toInt(), 1);
    run.must("move 20 30");
    EXPECT_EQ(told(), "A click takes 5,000 px");
    EXPECT_TRUE(run.must("status")["hint"].toString().startsWith("Rest: "));
    run.play({"press 20 30", "release 20 30", "move 90 30"});
    EXPECT_EQ(told(), "Outside: blue differs by 55, the tolerance allows 12 · A click takes 15,000 px");
    run.must("set mExplain 0");
    EXPECT_EQ(told(), "");
    for (const QJsonValue& item : run.must("menus")["items"].toArray())
        EXPECT_FALSE(item["action"] == "explainWand:" && item["checked"].toBool());
}

TEST_F(ExplainedWand, ADragMovesSliderAndField)
{
    run.play({"set mExplain 1", "press 20 30", "drag 100 30"});
    EXPECT_EQ(run.must("get mToleranceSlider")["value"].toInt(), 29);
    EXPECT_EQ(run.must("get mToleranceField")["value"].toInt(), 29);
    EXPECT_EQ(run.must("status")["selection"].toString(), "0, 0 · 50 × 100 px");
    run.must("drag 196 30");
    EXPECT_EQ(run.must("status")["selection"].toString(), "0, 0 · 200 × 100 px");
    run.must("key Escape");
    EXPECT_EQ(run.must("get mToleranceField")["value"].toInt(), 10);
    EXPECT_FALSE(run.state()["selection"].toBool());
}

} // namespace
