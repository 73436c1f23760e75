// SPDX-License-Identifier: GPL-3.0-or-later
/// Perspective as a script meets it: four free corners, and a slanted thing made upright.
#include "support/Session.h"
#include <QJsonValue>
#include <cmath>

using zp::test::Session;

namespace
{

class FreeCorners : public testing::Test
{
protected:
    FreeCorners()
    {
        run.newImage(200, 150);
        run.play({"set mColorWell #ffffff", "menu selectAll:", "menu fill:", "menu selectNone:", "wait"});
    }
    QJsonArray corners() { return run.state()["mTransformRecord"].toObject()["corners"].toArray(); }
    bool isPulled()
    {
        for (const QJsonValue& corner : corners())
            for (const QJsonValue& v : corner.toArray())
                if (v.toDouble() != 0) return true;
        return false;
    }
    bool isChecked()
    {
        for (const QJsonValue& item : run.must("menus")["items"].toArray())
            if (item["action"] == "freeCorners:") return item["checked"].toBool();
        ADD_FAILURE() << "not in the menus";
        return false;
    }
    QByteArray bitmap()
    {
        run.must("write-bitmap " + run.file("b.pam"));
        QFile file(run.file("b.pam"));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
    Session run;
};

TEST_F(FreeCorners, AreOffAsGivenAndFloatWhatIsSelected)
{
    EXPECT_FALSE(isChecked());
    run.play({"send selectRectangle: 20 20 60 40", "menu freeCorners:"});
    EXPECT_TRUE(isChecked());
    EXPECT_TRUE(run.state()["floating"].toBool());
    EXPECT_TRUE(run.must("status")["hint"].toString().startsWith("Drag a corner's handle: it goes alone"));
    run.must("menu freeCorners:");
    EXPECT_FALSE(isChecked());
    EXPECT_TRUE(run.must("status")["hint"].toString().startsWith("Drag to move"));
}

TEST_F(FreeCorners, PulledAndPutBackLeaveNoTrace)
{
    run.play({"set mColorWell #804020", "send selectRectangle: 33 21 61 47", "menu fill:", "wait"});
    const QByteArray before = bitmap();
    run.play({"send floatSelection", "send transform_corners: 12 3 -9 5 4 -6 0 8"});
    EXPECT_TRUE(isPulled());
    EXPECT_TRUE(run.must("status")["selection"].toString().endsWith("in perspective"));
    run.must("menu resetCorners:");
    EXPECT_FALSE(isPulled());
    run.play({"send anchorSelection", "wait"});
    EXPECT_EQ(bitmap(), before) << "to the byte";
}

TEST_F(FreeCorners, WhatIsAnchoredLiesBetweenTheCorners)
{
    run.play({"set mColorWell #0000ff", "send selectRectangle: 50 40 100 60", "menu fill:", "send floatSelection",
              "send transform_corners: 30 0 -30 0 0 0 0 0", "send anchorSelection", "wait"});
    EXPECT_EQ(run.pixel(100, 45), (std::vector<int>{255, 0, 0, 255}));
    EXPECT_EQ(run.pixel(52, 98), (std::vector<int>{255, 0, 0, 255}));
    // The picture below still has the pixels that were only copied up.
    EXPECT_EQ(run.pixel(55, 42), (std::vector<int>{255, 0, 0, 255}));
}

TEST_F(FreeCorners, ASlantedThingBecomesUpright)
{
    // A blue quadrangle, then its four corners.
    const QString outline = "\"M 60 40 L 150 55 L 140 115 L 50 95 Z\"";
    run.play({"set mColorWell #0000ff", "send selectOutline: " + outline, "menu fill:", "wait"});
    run.must("menu straightenCorners:");
    EXPECT_TRUE(run.state()["floating"].toBool());
    const QJsonArray bounds = run.must("path")["path"].toObject()["bounds"].toArray();
    EXPECT_NEAR(bounds[2].toDouble(), (std::hypot(90, 15) + std::hypot(90, 20)) / 2, 0.01);
    EXPECT_NEAR(bounds[3].toDouble(), (std::hypot(10, 60) + std::hypot(10, 55)) / 2, 0.01);
    run.play({"menu cropToSelection:", "wait"});
    const QStringList size = run.must("status")["picture"].toString().split(' '); // "90 × 58 · 100 %"
    EXPECT_NEAR(size[0].toInt(), bounds[2].toDouble(), 1);
    const int right = size[0].toInt() - 2, bottom = size[2].toInt() - 2;
    for (const auto& [x, y] : {std::pair(2, 2), {right, 2}, {2, bottom}, {right, bottom}})
        EXPECT_EQ(run.pixel(x, y), (std::vector<int>{255, 0, 0, 255})) << x << " " << y;
}

TEST_F(FreeCorners, OfAPolygonThatIsStillOpenAreThoseThatWereClicked)
{
    run.play({"set mToolPopUp #1", "modifiers control", "press 50 50", "release 50 50", "move 150 60", "press 150 60",
              "release 150 60", "move 140 130", "press 140 130", "release 140 130", "move 60 120", "press 60 120",
              "release 60 120", "modifiers", "move 90 90", "menu straightenCorners:"});
    EXPECT_TRUE(run.state()["floating"].toBool());
    EXPECT_FALSE(run.state()["mPolygonLasso"].toBool());
    EXPECT_NEAR(run.must("path")["path"].toObject()["bounds"].toArray()[2].toDouble(),
                (std::hypot(100, 10) + std::hypot(80, 10)) / 2, 0.01);
}

struct NotStraightened {
    const char* name;
    const char* outline;
    const char* said;
};
class NoFreeCorners : public FreeCorners, public testing::WithParamInterface<NotStraightened>
{
};

TEST_P(NoFreeCorners, IsSaidAndNothingIsLifted)
{
    run.must(QString("send selectOutline: \"%1\"").arg(GetParam().outline));
    run.must("menu straightenCorners:");
    EXPECT_EQ(run.must("alert")["alert"].toObject()["title"].toString(), GetParam().said);
    run.must("answer OK");
    EXPECT_FALSE(run.state()["floating"].toBool());
    EXPECT_TRUE(run.state()["selection"].toBool());
}

constexpr const char* kNotFour = "The selection does not have four corners.";
constexpr const char* kTooSlanted = "The selection could not be made upright.";
INSTANTIATE_TEST_SUITE_P(Of, NoFreeCorners,
                         testing::Values(NotStraightened{"ThreeCorners", "M 60 40 L 150 55 L 140 115 Z", kNotFour},
                                         NotStraightened{"ADent", "M 20 20 L 150 20 L 50 50 L 20 90 Z", kNotFour},
                                         NotStraightened{"TooSteepAView", "M 20 0 L 150 74.4 L 150 75.6 L 20 150 Z",
                                                         kTooSlanted}),
                         [](const auto& test) { return test.param.name; });

} // namespace
