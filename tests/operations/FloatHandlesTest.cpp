// SPDX-License-Identifier: GPL-3.0-or-later
/// What floats is scaled and turned by its handles.
#include "operations/FloatHandles.h"
#include "canvas/ToolTable.h"
#include "desktop/KeyModifiers.h"
#include "selection/FloatingImage.h"
#include "support/DocumentFixture.h"
#include <cmath>
#include <numbers>

using namespace zp;
using namespace zp::test;

namespace
{

class FloatHandlesTest : public DocumentTest
{
protected:
    FloatHandlesTest()
    {
        makeImage(400, 300);
        perform("selectAll:");
        edit([](Edit& e) { e.selection().select(BezierPath::withRect(makeRect(100, 100, 80, 40))); });
        perform("floatSelection");
    }
    float zoom() const { return document->view().effectiveZoom(); }
    Point center(FloatHandle handle) const
    {
        return floatHandlePlaces(selection(), zoom())[std::size_t(handle)].center;
    }
    /// From the handle to where it is to go.
    void pull(FloatHandle handle, Point to)
    {
        document->press(&floatHandleActions(), center(handle));
        document->drag(to);
        document->release(to);
    }
    /// Beyond the centre, @p times as far from it as the handle, turned by @p degrees.
    Point around(FloatHandle handle, float times, float degrees) const
    {
        const Point c = record().position, p = center(handle);
        const float a = degrees * std::numbers::pi_v<float> / 180, x = p.x - c.x, y = p.y - c.y;
        return {c.x + times * (x * std::cos(a) - y * std::sin(a)), c.y + times * (x * std::sin(a) + y * std::cos(a))};
    }
};

TEST_F(FloatHandlesTest, LieWhollyOutsideTheOutlineAtEveryZoomScaleAndTurn)
{
    for (const float z : {0.1f, 1.0f, 8.0f})
        for (const float scale : {0.05f, 1.0f, 3.0f})
            for (const float rotate : {0.0f, 30.0f, -135.0f}) {
                document->setZoom(z);
                performNumbers("transform_set:", {double(scale), double(rotate)});
                for (int i = 0; i < kFloatHandles; ++i) {
                    const Point middle = center(FloatHandle(i));
                    EXPECT_EQ(floatHandleAt(selection(), z, middle), FloatHandle(i));
                    // All around its square, which is turned with the piece.
                    for (int step = 0; step < 32; ++step) {
                        const float a = float(step) * std::numbers::pi_v<float> / 16;
                        const Point edge{middle.x + kHandleSide / 2 / z * std::cos(a),
                                         middle.y + kHandleSide / 2 / z * std::sin(a)};
                        EXPECT_FALSE(outline()->contains(edge)) << z << " " << scale << " " << rotate << " " << i;
                    }
                }
                EXPECT_EQ(floatHandleAt(selection(), z, record().position), FloatHandle::None) << "inside moves";
            }
}

TEST_F(FloatHandlesTest, ACornerScalesAboutTheCentreWithinTheDialogsLimits)
{
    struct Case {
        float times, scale;
    };
    for (const Case& c : {Case{2, 2}, {0.5f, 0.5f}, {100, 8}, {0.0001f, 0.01f}}) {
        performNumbers("transform_set:", {1, 0});
        pull(FloatHandle::BottomRight, around(FloatHandle::BottomRight, c.times, 0));
        EXPECT_NEAR(record().scale, c.scale, 0.001f);
        EXPECT_EQ(record().rotate, 0);
        EXPECT_EQ(record().position, (Point{140, 120}));
        EXPECT_NEAR(outlineBounds().size.width, 80 * c.scale, 0.1f);
    }
    EXPECT_TRUE(floating()->isChanged());
}

TEST_F(FloatHandlesTest, TheUpperHandleTurnsAndShiftKeepsSteps)
{
    struct Case {
        float by;
        std::uint32_t keys;
        float rotate;
    };
    for (const Case& c : {Case{40, 0, 40}, {-100, 0, -100}, {40, kShiftKey, 45}, {7, kShiftKey, 0}, {200, 0, -160}}) {
        performNumbers("transform_set:", {1, 0});
        hold(c.keys);
        pull(FloatHandle::Turn, around(FloatHandle::Turn, 1, c.by));
        hold(0);
        EXPECT_NEAR(record().rotate, c.rotate, 0.01f) << c.by;
        EXPECT_EQ(record().scale, 1);
    }
}

TEST_F(FloatHandlesTest, EachDragGoesOnFromTheLast)
{
    pull(FloatHandle::TopLeft, around(FloatHandle::TopLeft, 2, 0));
    pull(FloatHandle::Turn, around(FloatHandle::Turn, 1, 30));
    pull(FloatHandle::TopRight, around(FloatHandle::TopRight, 0.5f, 0));
    EXPECT_NEAR(record().scale, 1, 0.001f);
    EXPECT_NEAR(record().rotate, 30, 0.01f);
}

TEST_F(FloatHandlesTest, EscapeInMidDragBringsTheShapeBack)
{
    const Rect before = outlineBounds();
    document->press(&floatHandleActions(), center(FloatHandle::TopRight));
    document->drag(around(FloatHandle::TopRight, 3, 0));
    EXPECT_EQ(selection().transformMode(), int(FloatHandle::TopRight));
    EXPECT_TRUE(document->cancelGesture());
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(outlineBounds(), before);
    EXPECT_EQ(selection().transformMode(), -1);
    EXPECT_NE(floating(), nullptr);
}

TEST_F(FloatHandlesTest, NoStepIsLeftAndThePictureStays)
{
    const int steps = history().newest();
    const auto pixels = allPixels();
    pull(FloatHandle::BottomLeft, {20, 290});
    settle();
    EXPECT_EQ(history().newest(), steps);
    EXPECT_EQ(allPixels(), pixels);
}

TEST_F(FloatHandlesTest, AreThereForToolsThatMoveWhatFloats)
{
    for (const ToolRow& row : toolTable()) EXPECT_EQ(showsFloatHandles(*document, row.actions), row.actions.moves);
    perform("anchorSelection");
    EXPECT_FALSE(showsFloatHandles(*document, rowOf(Tool::Rectangle).actions));
}

// ---- corners by themselves
// -------------------------------------------------------------------------------------------

class FreeCornersTest : public FloatHandlesTest
{
protected:
    FreeCornersTest() { document->setFreesCorners(true); }
    ~FreeCornersTest() override { setScriptedKeyModifiers(std::nullopt); }
    std::array<Point, 4> corners() const { return record().corners; }
    void pullBy(FloatHandle handle, Point way) { pull(handle, center(handle) + way); }
};

TEST_F(FreeCornersTest, ADragTakesItsCornerAlong)
{
    pullBy(FloatHandle::TopRight, {12, -7});
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(corners()[i].x, i == 1 ? 12 : 0, 1e-4f);
        EXPECT_NEAR(corners()[i].y, i == 1 ? -7 : 0, 1e-4f);
    }
    EXPECT_EQ(record().scale, 1);
    EXPECT_TRUE(floating()->isChanged());
    const Rect box = outline()->bounds();
    EXPECT_NEAR(box.maxX(), 192, 0.01f);
    EXPECT_NEAR(box.minY(), 93, 0.01f);
    EXPECT_EQ(selection().transformMode(), -1) << "let go";
}

TEST_F(FreeCornersTest, AreFollowedByTheirHandlesWhateverTheScaleAndTurn)
{
    performNumbers("transform_set:", {0.5, 90});
    pullBy(FloatHandle::TopLeft, {10, 0});
    const Point first = corners()[0];
    EXPECT_NEAR(first.x, 0, 1e-3f);
    EXPECT_NEAR(first.y, -20, 1e-3f) << "turned by 90 degrees and a half of its size";
    const Point before = center(FloatHandle::TopLeft);
    pullBy(FloatHandle::TopLeft, {5, 5});
    EXPECT_NEAR(center(FloatHandle::TopLeft).x, before.x + 5, 2);
    EXPECT_NEAR(center(FloatHandle::TopLeft).y, before.y + 5, 2);
    for (int i = 0; i < kFloatHandles; ++i)
        EXPECT_EQ(floatHandleAt(selection(), zoom(), center(FloatHandle(i))), FloatHandle(i));
}

TEST_F(FreeCornersTest, ControlAsksForTheOther)
{
    setScriptedKeyModifiers(kControlKey);
    pull(FloatHandle::BottomRight, around(FloatHandle::BottomRight, 2, 0));
    EXPECT_NEAR(record().scale, 2, 0.01f);
    EXPECT_FALSE(hasPulledCorners(record()));
    document->setFreesCorners(false);
    pullBy(FloatHandle::BottomRight, {8, 6});
    EXPECT_NEAR(record().scale, 2, 0.01f);
    EXPECT_TRUE(hasPulledCorners(record()));
}

TEST_F(FreeCornersTest, ShiftKeepsToASide)
{
    setScriptedKeyModifiers(kShiftKey);
    pullBy(FloatHandle::BottomLeft, {-9, 4});
    EXPECT_NEAR(corners()[3].x, -9, 1e-4f);
    EXPECT_NEAR(corners()[3].y, 0, 1e-4f);
    pullBy(FloatHandle::BottomLeft, {2, 11});
    EXPECT_NEAR(corners()[3].x, -9, 1e-4f);
    EXPECT_NEAR(corners()[3].y, 11, 1e-4f);
}

TEST_F(FreeCornersTest, StayWhereTheShapeWouldFoldOver)
{
    pullBy(FloatHandle::TopLeft, {10, 10});
    const auto before = corners();
    const BezierPath outlineBefore = *outline();
    pullBy(FloatHandle::TopLeft, {200, 200});
    EXPECT_EQ(corners(), before);
    EXPECT_TRUE(outline()->hasSameElements(outlineBefore));
}

TEST_F(FreeCornersTest, OfAnOutlineOfFourCornersAreTheOutlines)
{
    perform("selectNone:");
    edit([](Edit& e) {
        BezierPath quad;
        quad.moveTo({100, 100}), quad.lineTo({180, 110}), quad.lineTo({170, 160}), quad.lineTo({110, 150});
        quad.closePath();
        e.selection().select(quad);
    });
    perform("straightenCorners:");
    ASSERT_TRUE(floating());
    const Rect box = outline()->bounds();
    EXPECT_NEAR(center(FloatHandle::TopLeft).x, box.minX() - 7.5f, 0.1f);
    EXPECT_NEAR(center(FloatHandle::BottomRight).y, box.maxY() + 7.5f, 0.1f);
    EXPECT_NEAR(center(FloatHandle::Turn).x, box.center().x, 0.1f);
    pullBy(FloatHandle::TopLeft, {-20, -5});
    EXPECT_NEAR(outline()->bounds().minX(), box.minX() - 20, 0.1f);
    EXPECT_NEAR(outline()->bounds().minY(), box.minY() - 5, 0.1f);
    EXPECT_NEAR(outline()->bounds().maxX(), box.maxX(), 0.01f) << "the others stay";
    EXPECT_NEAR(outline()->bounds().maxY(), box.maxY(), 0.01f);
}

TEST_F(FreeCornersTest, EscapeBringsThemBack)
{
    const BezierPath before = *outline();
    const Point at = center(FloatHandle::TopLeft);
    document->press(&floatHandleActions(), at);
    document->drag({at.x + 20, at.y + 5});
    ASSERT_TRUE(hasPulledCorners(record()));
    document->cancelGesture();
    EXPECT_FALSE(hasPulledCorners(record()));
    EXPECT_TRUE(outline()->hasSameElements(before));
}

TEST_F(FreeCornersTest, PutBackGiveTheVeryOutlineAndPixelsAgain)
{
    const BezierPath before = *outline();
    performNumbers("transform_corners:", {5, 5, -10, 3, 0, 0, 7, -7});
    performNumbers("transform_corners:", {1, 2, 3, 4, 5, 6, 7, 8});
    ASSERT_FALSE(outline()->hasSameElements(before));
    perform("resetCorners:");
    EXPECT_TRUE(outline()->hasSameElements(before));
    EXPECT_FALSE(hasPulledCorners(record()));
}

TEST_F(FreeCornersTest, PulledScaledAndPutBackAreWhatScalingAloneGives)
{
    performNumbers("transform_corners:", {5, 5, -10, 3, 0, 0, 7, -7});
    performNumbers("transform_set:", {1.5, 30});
    perform("resetCorners:");
    const Rect box = outline()->bounds();
    performNumbers("transform_set:", {1, 0});
    performNumbers("transform_set:", {1.5, 30});
    EXPECT_NEAR(outline()->bounds().minX(), box.minX(), 0.01f);
    EXPECT_NEAR(outline()->bounds().maxY(), box.maxY(), 0.01f);
}

TEST_F(FreeCornersTest, RefusalsChangeNothing)
{
    const std::vector<std::vector<double>> bad{{500, 500, 0, 0, 0, 0, 0, 0}, {std::nan(""), 0, 0, 0, 0, 0, 0, 0}};
    for (const auto& pulls : bad) {
        performNumbers("transform_corners:", pulls);
        EXPECT_FALSE(hasPulledCorners(record()));
    }
    perform("anchorSelection");
    performNumbers("transform_corners:", {5, 5, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(floating(), nullptr) << "nothing floats";
}

} // namespace
