// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill window on a real canvas: buttons, progress, cancel, alerts, and edits while a fill runs.
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "support/CanvasFixture.h"
#include "windows/FineProgressBar.h"
#include "windows/ZPSmartFill.h"
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <mutex>
#include <set>

using namespace zp;

namespace
{

class SmartFillWindow : public test::CanvasTest
{
protected:
    void SetUp() override
    {
        ZPSmartFill::registerWithCanvas();
        mFill = ZPSmartFill::sharedSmartFill();
        mFill->setSeed(7);
        mFill->window()->hide();
        slider()->setValue(50);
        faster()->setChecked(false);
        NotificationCenter::defaultCenter().addObserver(this, "SmartFillProgressNotif", [this](const Notification& n) {
            const std::lock_guard lock(mLock);
            mPosted.push_back(std::any_cast<float>(n.object));
            mThreads.insert(std::this_thread::get_id());
        });
        takeSounds();
    }
    void TearDown() override
    {
        waitForEnd();
        NotificationCenter::defaultCenter().removeObserver(this);
        canvas->stopSelectionTimer();
    }

    template <class T>
    T* outlet(const char* name) const
    {
        T* const widget = mFill->window()->findChild<T*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    QPushButton* runButton() const { return outlet<QPushButton>("mRunButton"); }
    QPushButton* cancelButton() const { return outlet<QPushButton>("mCancelButton"); }
    QPushButton* closeButton() const { return outlet<QPushButton>("mCloseButton"); }
    QSlider* slider() const { return outlet<QSlider>("mRadiusSlider"); }
    QCheckBox* faster() const { return outlet<QCheckBox>("mFasterCheckbox"); }
    FineProgressBar* bar() const { return outlet<FineProgressBar>("mProgressBar"); }
    QString time() const { return outlet<QLabel>("mTimeField")->text(); }

    void expectButtons(bool running) const
    {
        EXPECT_EQ(runButton()->isEnabled(), !running);
        EXPECT_EQ(cancelButton()->isEnabled(), running);
        EXPECT_EQ(closeButton()->isEnabled(), !running);
    }
    /// Noise everywhere, a red hole, and the selection on it.
    void makeScene(int width, int height, Rect selection)
    {
        makeImage(width, height);
        unsigned seed = 1;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) setPixel(x, y, (seed = seed * 1664525u + 1013904223u) | 0xFFu);
        mHole = pixelBoxOf(selection, width, height);
        for (int y = mHole.y0; y < mHole.y1; ++y)
            for (int x = mHole.x0; x < mHole.x1; ++x) setPixel(x, y, kRed);
        canvas->mSelectionPath = BezierPath{};
        canvas->mSelectionPath->appendRect(selection);
    }
    int redPixels() const
    {
        int count = 0;
        for (int y = mHole.y0; y < mHole.y1; ++y)
            for (int x = mHole.x0; x < mHole.x1; ++x) count += pixel(x, y) == kRed;
        return count;
    }
    void waitForEnd()
    {
        ASSERT_TRUE(test::eventually([this] { return !mFill->isRunning(); }, 60'000));
    }

    static constexpr std::uint32_t kRed = 0x0000FFFF;
    ZPSmartFill* mFill = nullptr;
    PixelBox mHole;
    std::mutex mLock;
    std::vector<float> mPosted;
    std::set<std::thread::id> mThreads;
};

TEST_F(SmartFillWindow, WithoutASelectionTheCommandBeepsAndOpensNothing)
{
    makeImage(40, 40);
    canvas->mSelectionPath.reset();
    canvas->smartFill();
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"beep"});
    EXPECT_FALSE(mFill->window()->isVisible());
}

TEST_F(SmartFillWindow, OpensReadyAndDoesNotStart)
{
    makeScene(100, 80, makeRect(30, 30, 20, 20));
    canvas->smartFill();
    EXPECT_TRUE(mFill->window()->isVisible());
    EXPECT_EQ(mFill->window()->objectName(), "SmartFill");
    EXPECT_EQ(bar()->value(), 0);
    expectButtons(false);
    EXPECT_FALSE(mFill->isRunning());
    EXPECT_EQ(redPixels(), 400);
    EXPECT_EQ(runButton()->property("action").toString(), "run:");
    EXPECT_EQ(cancelButton()->property("action").toString(), "cancel:");
    EXPECT_EQ(closeButton()->property("action").toString(), "closeMe:");
    // the mask the canvas keeps is the inverted one: 255 inside
    EXPECT_EQ(mask(35, 35), 255);
    EXPECT_EQ(mask(10, 10), 0);
    closeButton()->click();
    EXPECT_FALSE(mFill->window()->isVisible());
}

TEST_F(SmartFillWindow, SliderAndFieldMirrorEachOther)
{
    auto* field = outlet<QSpinBox>("mRadiusField");
    EXPECT_EQ(slider()->minimum(), 0);
    EXPECT_EQ(slider()->maximum(), 200);
    slider()->setValue(130);
    EXPECT_EQ(field->value(), 130);
    field->setValue(7);
    EXPECT_EQ(slider()->value(), 7);
}

TEST_F(SmartFillWindow, ARunFillsTheHoleClosesTheWindowAndTakesASnapshot)
{
    makeScene(160, 120, makeRect(60, 40, 40, 40));
    const std::int32_t before = canvas->mUndoIndex;
    canvas->smartFill();
    runButton()->click();
    expectButtons(true);
    EXPECT_TRUE(canvas->mSmartFillRunning);
    waitForEnd();
    expectButtons(false);
    EXPECT_FALSE(canvas->mSmartFillRunning);
    EXPECT_FALSE(mFill->window()->isVisible());
    EXPECT_EQ(bar()->value(), 100);
    EXPECT_TRUE(time().endsWith(" sec"));
    EXPECT_EQ(redPixels(), 0);
    settle();
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
    const std::lock_guard lock(mLock);
    ASSERT_GE(mPosted.size(), 3u);
    EXPECT_EQ(mPosted.front(), 0.0f);
    EXPECT_EQ(mPosted.back(), 1.0f);
    EXPECT_TRUE(std::is_sorted(mPosted.begin(), mPosted.end()));
    EXPECT_EQ(mThreads.size(), 1u);
    EXPECT_NE(*mThreads.begin(), std::this_thread::get_id());
}

TEST_F(SmartFillWindow, TheFasterRunWritesBlocks)
{
    makeScene(160, 120, makeRect(61, 41, 40, 40));
    faster()->setChecked(true);
    canvas->smartFill();
    runButton()->click();
    waitForEnd();
    for (int y = 42; y < 80; ++y)
        for (int x = 62; x < 100; ++x) ASSERT_EQ(pixel(x, y), pixel(x & ~1, y & ~1)) << x << ", " << y;
    EXPECT_EQ(pixel(61, 41), kRed) << "outside the even box";
}

TEST_F(SmartFillWindow, ACancelledRunLeavesThePictureButTakesASnapshot)
{
    makeScene(1800, 1400, makeRect(400, 300, 1000, 800)); // a run of seconds, so that it can be met at work
    const std::int32_t before = canvas->mUndoIndex;
    canvas->smartFill();
    runButton()->click();
    ASSERT_TRUE(test::eventually([this] { return bar()->percent() > 0; }));
    cancelButton()->click();
    expectButtons(false);
    waitForEnd();
    EXPECT_TRUE(mFill->window()->isVisible()) << "it stays open with its last progress";
    EXPECT_GT(bar()->percent(), 0);
    EXPECT_LT(bar()->percent(), 100);
    EXPECT_EQ(redPixels(), 800'000);
    settle();
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
    EXPECT_FALSE(canvas->mSmartFillRunning);
}

TEST_F(SmartFillWindow, RunMayFollowCancelAtOnce)
{
    makeScene(300, 300, makeRect(100, 100, 100, 100));
    canvas->smartFill();
    runButton()->click();
    cancelButton()->click();
    runButton()->click();
    expectButtons(true);
    waitForEnd();
    EXPECT_EQ(redPixels(), 0);
    EXPECT_FALSE(mFill->window()->isVisible());
}

TEST_F(SmartFillWindow, WithoutASourceAnAlertSaysWhatToDo)
{
    makeScene(80, 80, makeRect(20, 20, 40, 40));
    slider()->setValue(0);
    canvas->smartFill();
    std::optional<AlertState> seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (const auto alert = currentAlert()) {
            seen = alert;
            answerAlert(alert->buttons.front());
        }
    });
    poll.start(5);
    runButton()->click();
    ASSERT_TRUE(test::eventually([&] { return seen && !mFill->isRunning() && !currentAlert(); }));
    EXPECT_EQ(seen->title, "There is nothing to fill from.");
    EXPECT_EQ(seen->message, "Select a smaller area or raise the radius.");
    EXPECT_EQ(redPixels(), 1600);
    EXPECT_TRUE(mFill->window()->isVisible());
    expectButtons(false);
}

TEST_F(SmartFillWindow, AnEmptyHoleLeavesTheWindowOpen)
{
    makeScene(80, 80, makeRect(200, 200, 10, 10));
    canvas->smartFill();
    runButton()->click();
    waitForEnd();
    EXPECT_TRUE(mFill->window()->isVisible());
    EXPECT_EQ(bar()->value(), 0);
    EXPECT_EQ(time(), "0.0 sec");
}

TEST_F(SmartFillWindow, EditsDuringARunAreOverwrittenInsideTheWorkAreaOnly)
{
    makeScene(500, 400, makeRect(150, 120, 200, 150));
    slider()->setValue(20);
    canvas->smartFill();
    runButton()->click();
    const std::uint32_t inside = pixel(140, 110), outside = kRed ^ 0x00FF0000;
    setPixel(140, 110, outside); // in the work area, outside the selection
    setPixel(5, 5, outside);
    ASSERT_TRUE(mFill->isRunning());
    waitForEnd();
    EXPECT_EQ(pixel(140, 110), inside);
    EXPECT_EQ(pixel(5, 5), outside);
    EXPECT_EQ(redPixels(), 0);
}

TEST_F(SmartFillWindow, AFillIsDroppedWhenThePictureIsReplacedMeanwhile)
{
    for (const int width : {500, 30}) {
        makeScene(500, 400, makeRect(150, 120, 200, 150));
        canvas->smartFill();
        runButton()->click();
        makeImage(width, 400); // another picture, of the same and of another size
        fillImage(0xFFFFFFFF);
        waitForEnd();
        for (int y = 0; y < 400; ++y)
            for (int x = 0; x < width; ++x) ASSERT_EQ(pixel(x, y), 0xFFFFFFFF);
    }
}

TEST_F(SmartFillWindow, RunBeepsWhenThePictureWasReplacedBeforeIt)
{
    makeScene(100, 80, makeRect(30, 30, 20, 20));
    canvas->smartFill();
    makeImage(20, 20);
    takeSounds();
    runButton()->click();
    EXPECT_FALSE(mFill->isRunning());
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"beep"});
}

TEST_F(SmartFillWindow, TheMaskIsTheOneOfTheCommandWhateverHappensToTheCanvassOwn)
{
    makeScene(200, 150, makeRect(80, 60, 30, 30));
    canvas->smartFill();
    canvas->clearSelectionMask(); // 255 everywhere, which means "not selected" to everyone else
    runButton()->click();
    waitForEnd();
    EXPECT_EQ(redPixels(), 0);
    EXPECT_NE(pixel(10, 10), kRed);
}

TEST_F(SmartFillWindow, ProgressMovesAndCancelTakesEffectTenTimesASecond)
{
    makeScene(3000, 2400, makeRect(750, 600, 1500, 1200)); // a run of seconds: far longer than is looked at
    canvas->smartFill();
    runButton()->click();
    ASSERT_TRUE(test::eventually([this] { return bar()->percent() > 0; }));
    // Any half second of the run will do: the machine may be busy with something else for a while.
    std::size_t most = 0;
    QElapsedTimer clock;
    while (mFill->isRunning() && bar()->percent() < 60 && most < 6) {
        std::set<double> shown;
        clock.restart();
        while (mFill->isRunning() && clock.elapsed() < 500) {
            QApplication::processEvents(QEventLoop::AllEvents, 2);
            shown.insert(bar()->percent());
        }
        most = std::max(most, shown.size());
    }
    EXPECT_GE(most, 6u) << "in half a second";
    ASSERT_TRUE(mFill->isRunning());
    clock.restart();
    cancelButton()->click();
    waitForEnd();
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_EQ(redPixels(), 1'800'000);
}

} // namespace
