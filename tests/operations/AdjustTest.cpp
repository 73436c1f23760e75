// SPDX-License-Identifier: GPL-3.0-or-later
/// Adjusting the floating selection: always from the floated pixels, and complete whenever anybody reads them.
#include "codecs/TestPictures.h"
#include "imageops/Adjustment.h"
#include "support/DocumentFixture.h"

using namespace zp;
using zp::test::Lines;

namespace
{

class Adjust : public zp::test::DocumentTest
{
protected:
    void noise(int width, int height)
    {
        makeImage(width, height);
        paintNoise();
        takeSounds();
    }
    void adjust_set(const _ZPFilters& f)
    {
        performNumbers("adjust_set:", {double(f.hue), double(f.saturation), double(f.brightness), double(f.contrast),
                                       double(f.sharpness)});
    }
    std::shared_ptr<BitmapRep> floated() const { return floating()->image().representations().at(0).bitmap; }
    const BitmapRep& shown() const { return *floating()->image().drawn(); }
    std::shared_ptr<BitmapRep> reference(const _ZPFilters& filters) const
    {
        const auto source = floated();
        auto out = BitmapRep::create(source->pixelsWide(), source->pixelsHigh());
        applyFilters(std::as_const(*source).view(), out->view(), filterSettings(filters), out->view().box());
        return out;
    }
    static testing::AssertionResult samePixels(const BitmapRep& a, const BitmapRep& b)
    {
        return zp::test::samePixels(a.view(), b.view());
    }
};

TEST_F(Adjust, WithoutAFloatingImageItBeeps)
{
    makeImage(20, 20);
    select(makeRect(2, 2, 8, 8));
    adjust_set({50, 100, 0, 100, 0});
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    EXPECT_FALSE(floating());
}

TEST_F(Adjust, FloatsTheSelectionOnce)
{
    makeImage(20, 20);
    select(makeRect(2, 2, 8, 8));
    perform("adjust");
    ASSERT_TRUE(floating());
    const Floating* const first = floating();
    perform("adjust");
    EXPECT_EQ(floating(), first);
}

TEST_F(Adjust, NeutralNumbersAddARepresentationOfTheSamePixels)
{
    noise(30, 30);
    select(makeRect(3, 4, 20, 10));
    perform("adjust");
    adjust_set({});
    ASSERT_EQ(floating()->representations(), 2);
    EXPECT_TRUE(floating()->image().representations()[1].filtered);
    EXPECT_TRUE(samePixels(shown(), *floated()));
}

TEST_F(Adjust, EachChangeStartsFromTheFloatedPixels)
{
    noise(60, 40);
    select(makeRect(0, 0, 60, 40));
    perform("adjust");
    const _ZPFilters last{40, 130, 5, 90, 60};
    for (const _ZPFilters& filters :
         {_ZPFilters{-100, 0, 50, 300, -200}, _ZPFilters{}, _ZPFilters{314, 200, -100, 400, 200}, last})
        adjust_set(filters);
    ASSERT_EQ(floating()->representations(), 2);
    EXPECT_TRUE(samePixels(shown(), *reference(last)));
    adjust_set({});
    EXPECT_TRUE(samePixels(shown(), *floated()));
}

TEST_F(Adjust, TheFloatedPixelsAreNeverWritten)
{
    noise(60, 40);
    select(makeRect(5, 5, 40, 20));
    perform("adjust");
    const auto before = BitmapRep::create(40, 20);
    applyFilters(std::as_const(*floated()).view(), before->view(), {}, before->view().box());
    for (const int hue : {0, 100, 0, -50, 0}) adjust_set({hue, 100, 0, 100, hue});
    EXPECT_TRUE(samePixels(*floated(), *before));
}

TEST_F(Adjust, AnchoringWritesTheAdjustedPixels)
{
    noise(50, 50);
    select(makeRect(10, 10, 20, 20));
    perform("adjust");
    const _ZPFilters filters{0, 0, 10, 150, -40};
    adjust_set(filters);
    const auto want = reference(filters);
    takeLogLines();
    perform("anchorSelection");
    EXPECT_TRUE(zp::test::has(takeLogLines(), "CIImageRep drawn"));
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(pixel(10 + x, 10 + y), want->view().row(y)[x]) << x << "," << y;
    settle();
}

class AdjustLarge : public Adjust
{
protected:
    /// A selection too large to be computed at once, in a window that shows a corner of it.
    void showLarge()
    {
        noise(2600, 2100);
        select(makeRect(0, 0, 2600, 2100));
        perform("adjust");
        window.resize(300, 200);
        canvas->setParent(&window);
        canvas->show();
        window.show();
        QApplication::processEvents();
        ASSERT_TRUE(canvas->isVisible());
    }
    ~AdjustLarge() override { canvas->setParent(nullptr); }
    QWidget window;
};

TEST_F(AdjustLarge, AnchoringRightAfterAChangeWritesAllPixels)
{
    showLarge();
    const _ZPFilters filters{100, 120, 0, 100, 0};
    adjust_set(filters);
    const auto want = reference(filters);
    perform("anchorSelection");
    for (int y = 0; y < 2100; y += 7)
        for (int x = 0; x < 2600; ++x) ASSERT_EQ(pixel(x, y), want->view().row(y)[x]) << x << "," << y;
    settle();
}

TEST_F(AdjustLarge, WhatIsShownIsComputedWhenItIsDrawn)
{
    showLarge();
    const _ZPFilters filters{0, 0, 0, 100, 0};
    adjust_set(filters);
    const QImage shot = canvas->grab(QRect(20, 20, 100, 100)).toImage();
    const auto want = reference(filters);
    for (int y = 10; y < 90; ++y)
        for (int x = 10; x < 90; ++x) {
            const std::uint8_t* p = want->view().pixel(20 + x, 20 + y);
            ASSERT_EQ(shot.pixel(x, y), qRgb(p[1], p[2], p[3])) << x << "," << y;
        }
}

TEST_F(AdjustLarge, TheRestIsComputedWhenTheSliderRests)
{
    showLarge();
    const _ZPFilters filters{0, 100, 20, 100, 0};
    adjust_set(filters);
    const auto want = reference(filters);
    EXPECT_TRUE(zp::test::eventually([&] { return samePixels(shown(), *want); }));
}

TEST_F(AdjustLarge, FinishingLeavesNothingMissing)
{
    showLarge();
    const _ZPFilters filters{0, 100, 0, 200, 50};
    adjust_set(filters);
    edit([](Edit& e) { e.selection().floating()->finishAdjustment(); });
    EXPECT_TRUE(samePixels(shown(), *reference(filters)));
}

TEST_F(AdjustLarge, AStaleChangeDoesNotTouchAnotherFloatingImage)
{
    showLarge();
    adjust_set({200, 100, 0, 100, 0});
    perform("selectNone");
    select(makeRect(0, 0, 2600, 2100));
    perform("floatSelection");
    const auto plain = floated();
    edit([](Edit& e) { e.selection().floating()->finishAdjustment(); });
    edit([](Edit& e) { e.selection().floating()->prepareAdjustment(e.selection().record(), {0, 0, 50, 50}); });
    EXPECT_EQ(floating()->representations(), 1);
    EXPECT_EQ(plain->view().row(3)[7], pixel(7, 3));
}

} // namespace
