// SPDX-License-Identifier: GPL-3.0-or-later
/// The transform and adjust dialogs: pairs by their tags, every change on the document, what closing them does.
#include "app/TransformDialog.h"
#include "app/AdjustDialog.h"
#include "support/DocumentFixture.h"
#include "support/ModalDialog.h"
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

using namespace zp;
using namespace zp::test;

namespace
{

class Dialogs : public DocumentTest
{
protected:
    void floatSquare()
    {
        makeImage(100, 100);
        fillImage(word(255, 200, 100, 50));
        select(makeRect(30, 30, 40, 40));
        lift();
        takeSounds();
        takeLogLines();
    }
    template <class Work>
    void inTransform(Work work)
    {
        inModalDialog(
            canvas.get(), "Transform", [&] { runTransformDialog(*document, nullptr); }, work);
    }
    template <class Work>
    void inAdjust(Work work)
    {
        inModalDialog(
            canvas.get(), "Adjust", [&] { runAdjustDialog(*document, nullptr); }, work);
    }
    static QSpinBox& field(QDialog& d, const char* name) { return *d.findChild<QSpinBox*>(name); }
    static QSlider& slider(QDialog& d, const char* name) { return *d.findChild<QSlider*>(name); }
    static QPushButton& button(QDialog& d, const char* action)
    {
        for (QPushButton* b : d.findChildren<QPushButton*>())
            if (b->property("action").toString() == action) return *b;
        throw std::runtime_error(action);
    }
    static bool same(const _ZPFilters& a, const _ZPFilters& b)
    {
        return a.hue == b.hue && a.saturation == b.saturation && a.brightness == b.brightness &&
               a.contrast == b.contrast && a.sharpness == b.sharpness;
    }
};

TEST_F(Dialogs, WithoutASelectionTheyBeep)
{
    makeImage(20, 20);
    takeSounds();
    runTransformDialog(*document, nullptr);
    runAdjustDialog(*document, nullptr);
    EXPECT_EQ(takeSounds(), (Lines{"beep", "beep"}));
}

TEST_F(Dialogs, TransformFloatsTheSelectionAndShowsItsValues)
{
    makeImage(100, 100);
    select(makeRect(30, 30, 40, 40));
    inTransform([&](QDialog& d) {
        EXPECT_TRUE(floating());
        EXPECT_EQ(field(d, "mTransform_Scale_Field").value(), 100);
        EXPECT_EQ(slider(d, "mTransform_Scale_Slider").value(), 100);
        EXPECT_EQ(field(d, "mTransform_Rotate_Field").value(), 0);
        EXPECT_EQ(slider(d, "mTransform_Rotate_Slider").value(), 0);
    });
}

TEST_F(Dialogs, TransformOfAScaledAndTurnedSelectionShowsBoth)
{
    floatSquare();
    performNumbers("transform_set:", {1.5, 30});
    inTransform([&](QDialog& d) {
        EXPECT_EQ(field(d, "mTransform_Scale_Field").value(), 150);
        EXPECT_EQ(slider(d, "mTransform_Scale_Slider").value(), 150);
        EXPECT_EQ(field(d, "mTransform_Rotate_Field").value(), 30);
        EXPECT_EQ(slider(d, "mTransform_Rotate_Slider").value(), 30);
    });
    EXPECT_EQ(record().scale, 1.5f);
    EXPECT_EQ(record().rotate, 30);
}

TEST_F(Dialogs, TransformPairsFollowEachOtherAndReachTheDocument)
{
    floatSquare();
    inTransform([&](QDialog& d) {
        takeLogLines();
        slider(d, "mTransform_Scale_Slider").setValue(250);
        EXPECT_EQ(field(d, "mTransform_Scale_Field").value(), 250);
        EXPECT_EQ(record().scale, 2.5f);
        field(d, "mTransform_Rotate_Field").setValue(-45);
        EXPECT_EQ(slider(d, "mTransform_Rotate_Slider").value(), -45);
        EXPECT_EQ(record().rotate, -45);
        const Lines lines = takeLogLines();
        EXPECT_EQ(std::ranges::count(lines, "rotate = 0.000000"), 1);
        EXPECT_EQ(std::ranges::count(lines, "rotate = -45.000000"), 1);
        button(d, "transform_reset:").click();
        EXPECT_EQ(record().scale, 1);
        EXPECT_EQ(record().rotate, 0);
        EXPECT_EQ(slider(d, "mTransform_Scale_Slider").value(), 100);
        EXPECT_EQ(field(d, "mTransform_Rotate_Field").value(), 0);
    });
}

TEST_F(Dialogs, AScaleOfNothingBeepsAndTheFieldGoesBackToWhatHolds)
{
    floatSquare();
    inTransform([&](QDialog& d) {
        field(d, "mTransform_Rotate_Field").setValue(20);
        takeSounds();
        field(d, "mTransform_Scale_Field").setValue(0);
        EXPECT_EQ(takeSounds(), Lines{"beep"});
        EXPECT_EQ(field(d, "mTransform_Scale_Field").value(), 100);
        EXPECT_EQ(slider(d, "mTransform_Scale_Slider").value(), 100);
        EXPECT_EQ(record().scale, 1);
        EXPECT_EQ(record().rotate, 20);
        field(d, "mTransform_Scale_Field").setValue(80);
        EXPECT_EQ(record().scale, 0.8f);
        EXPECT_TRUE(std::isfinite(outlineBounds().size.width));
        EXPECT_TRUE(takeSounds().empty());
    });
}

TEST_F(Dialogs, ApplyAndCancelKeepTheTransformShown)
{
    for (const char* action : {"transform_apply:", "transform_cancel:"}) {
        floatSquare();
        inTransform([&](QDialog& d) {
            slider(d, "mTransform_Scale_Slider").setValue(200);
            button(d, action).click();
            EXPECT_FALSE(d.isVisible());
        });
        EXPECT_EQ(record().scale, 2) << action;
        EXPECT_FALSE(selection().isTransforming());
        dropSelection();
    }
}

TEST_F(Dialogs, AdjustFloatsAndStartsNeutral)
{
    makeImage(60, 60);
    select(makeRect(10, 10, 20, 20));
    inAdjust([&](QDialog& d) {
        ASSERT_TRUE(floating());
        EXPECT_TRUE(same(floating()->filters(), {0, 100, 0, 100, 0}));
        EXPECT_EQ(floating()->representations(), 2);
        EXPECT_EQ(field(d, "mAdjust_SaturationField").value(), 100);
    });
    performNumbers("adjust_set:", {1, 2, 3, 4, 5});
    inAdjust([&](QDialog&) { EXPECT_TRUE(same(floating()->filters(), {0, 100, 0, 100, 0})) << "and each time"; });
}

TEST_F(Dialogs, AdjustPairsFollowEachOtherAndReachTheDocument)
{
    floatSquare();
    inAdjust([&](QDialog& d) {
        slider(d, "mAdjust_HueSlider").setValue(-157);
        EXPECT_EQ(field(d, "mAdjust_HueField").value(), -157);
        field(d, "mAdjust_SaturationField").setValue(140);
        EXPECT_EQ(slider(d, "mAdjust_SaturationSlider").value(), 140);
        slider(d, "mAdjust_BrightnessSlider").setValue(10);
        field(d, "mAdjust_ContrastField").setValue(333);
        slider(d, "mAdjust_SharpnessSlider").setValue(-120);
        EXPECT_TRUE(same(floating()->filters(), {-157, 140, 10, 333, -120}));
        button(d, "adjust_reset:").click();
        EXPECT_TRUE(same(floating()->filters(), {0, 100, 0, 100, 0}));
        EXPECT_EQ(slider(d, "mAdjust_SharpnessSlider").value(), 0);
        EXPECT_EQ(field(d, "mAdjust_ContrastField").value(), 100);
    });
}

TEST_F(Dialogs, CancellingTheAdjustmentKeepsItLikeApplying)
{
    for (const char* action : {"adjust_apply:", "adjust_cancel:"}) {
        floatSquare();
        inAdjust([&](QDialog& d) {
            slider(d, "mAdjust_SaturationSlider").setValue(0);
            button(d, action).click();
            EXPECT_FALSE(d.isVisible());
        });
        ASSERT_TRUE(floating()) << action;
        const std::uint8_t* p = floating()->image().drawn()->view().pixel(5, 5);
        EXPECT_EQ(p[1], p[2]);
        EXPECT_EQ(p[2], p[3]);
        dropSelection();
    }
}

TEST_F(Dialogs, TagsActionsAndRangesAreTheFormsOwn)
{
    struct Pair {
        const char *field, *slider;
        int tag, least, most;
    };
    const auto check = [&](QDialog& d, const Pair& p, const char* action) {
        EXPECT_EQ(field(d, p.field).property("tag").toInt(), p.tag) << p.field;
        EXPECT_EQ(slider(d, p.slider).property("tag").toInt(), p.tag + 1) << p.slider;
        EXPECT_EQ(slider(d, p.slider).minimum(), p.least) << p.slider;
        EXPECT_EQ(slider(d, p.slider).maximum(), p.most) << p.slider;
        for (const QWidget* w :
             {static_cast<QWidget*>(&field(d, p.field)), static_cast<QWidget*>(&slider(d, p.slider))}) {
            EXPECT_EQ(w->property("action").toString(), action);
            EXPECT_FALSE(w->toolTip().isEmpty());
            EXPECT_FALSE(w->accessibleName().isEmpty());
            EXPECT_TRUE(w->focusPolicy() & Qt::TabFocus);
        }
    };
    floatSquare();
    inTransform([&](QDialog& d) {
        check(d, {"mTransform_Scale_Field", "mTransform_Scale_Slider", 100, 1, 800}, "transform_set:");
        check(d, {"mTransform_Rotate_Field", "mTransform_Rotate_Slider", 200, -180, 180}, "transform_set:");
    });
    inAdjust([&](QDialog& d) {
        check(d, {"mAdjust_HueField", "mAdjust_HueSlider", 100, -314, 314}, "adjust_set:");
        check(d, {"mAdjust_SaturationField", "mAdjust_SaturationSlider", 200, 0, 200}, "adjust_set:");
        check(d, {"mAdjust_BrightnessField", "mAdjust_BrightnessSlider", 300, -100, 100}, "adjust_set:");
        check(d, {"mAdjust_ContrastField", "mAdjust_ContrastSlider", 400, 0, 400}, "adjust_set:");
        check(d, {"mAdjust_SharpnessField", "mAdjust_SharpnessSlider", 500, -200, 200}, "adjust_set:");
    });
}

TEST_F(Dialogs, TheyStandToTheRightButOnTheScreen)
{
    floatSquare();
    for (const bool transform : {true, false}) {
        const auto look = [&](QDialog& d) {
            const QRect room = d.screen()->availableGeometry();
            const int centred = room.center().x() - d.width() / 2;
            EXPECT_GT(d.x(), centred);
            EXPECT_LE(d.x() + d.width(), room.right() + 1);
            EXPECT_TRUE(d.x() + d.width() == room.right() + 1 || std::abs(d.x() - (centred + 350)) <= 2) << d.x();
        };
        if (transform)
            inTransform(look);
        else
            inAdjust(look);
    }
}

TEST_F(Dialogs, TheKeyboardReachesEverything)
{
    floatSquare();
    inAdjust([&](QDialog& d) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&d));
        slider(d, "mAdjust_HueSlider").setFocus();
        QTest::keyClick(&slider(d, "mAdjust_HueSlider"), Qt::Key_Right);
        EXPECT_EQ(floating()->filters().hue, 1);
        QTest::keyClick(&slider(d, "mAdjust_HueSlider"), Qt::Key_Left);
        field(d, "mAdjust_ContrastField").setFocus();
        field(d, "mAdjust_ContrastField").selectAll();
        QTest::keyClicks(&field(d, "mAdjust_ContrastField"), "150");
        QTest::keyClick(&field(d, "mAdjust_ContrastField"), Qt::Key_Tab);
        EXPECT_EQ(floating()->filters().contrast, 150);
        QTest::keyClick(&d, Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
    });
}

} // namespace
