// SPDX-License-Identifier: GPL-3.0-or-later
/// What floats is scaled and turned by its handles.
#include "operations/FloatHandles.h"
#include "canvas/ToolTable.h"
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
    Point center(FloatHandle handle) const { return floatHandleCenter(selection(), zoom(), handle); }
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

} // namespace
