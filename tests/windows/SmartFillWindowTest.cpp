// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill window on a real document: buttons, progress, cancel, alerts, and edits while a fill runs.
#include "base/NotificationCenter.h"
#include "support/AlertWatch.h"
#include "support/DocumentFixture.h"
#include "windows/FineProgressBar.h"
#include "windows/ZPSmartFill.h"
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <functional>
#include <mutex>
#include <set>

using namespace zp;

namespace
{

class SmartFillWindow : public test::DocumentTest
{
protected:
    void SetUp() override
    {
        ZPSmartFill::registerCommand();
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
    void makeScene(int width, int height, Rect hole)
    {
        makeImage(width, height);
        paintNoise();
        mHole = pixelBoxOf(hole, width, height);
        if (!mHole.isEmpty()) fillBox(mHole, kRed);
        select(hole);
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

    static constexpr std::uint32_t kRed = test::kRedWord;
    ZPSmartFill* mFill = nullptr;
    PixelBox mHole;
    std::mutex mLock;
    std::vector<float> mPosted;
    std::set<std::thread::id> mThreads;
};

TEST_F(SmartFillWindow, WithoutASelectionTheCommandBeepsAndOpensNothing)
{
    makeImage(40, 40);
    perform("smartFill:");
    EXPECT_EQ(takeSounds(), test::Lines{"beep"});
    EXPECT_FALSE(mFill->window()->isVisible());
}

TEST_F(SmartFillWindow, OpensReadyAndDoesNotStart)
{
    makeScene(100, 80, makeRect(30, 30, 20, 20));
    perform("smartFill:");
    EXPECT_TRUE(mFill->window()->isVisible());
    EXPECT_EQ(mFill->window()->objectName(), "SmartFill");
    EXPECT_EQ(bar()->value(), 0);
    expectButtons(false);
    EXPECT_FALSE(mFill->isRunning());
    EXPECT_EQ(redPixels(), 400);
    EXPECT_EQ(runButton()->property("action").toString(), "run:");
    EXPECT_EQ(cancelButton()->property("action").toString(), "cancel:");
    EXPECT_EQ(closeButton()->property("action").toString(), "closeMe:");
    // the mask the document keeps is the inverted one: 255 inside
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
    const int before = history().newest();
    perform("smartFill:");
    runButton()->click();
    expectButtons(true);
    EXPECT_TRUE(document->isComputing());
    waitForEnd();
    expectButtons(false);
    EXPECT_FALSE(document->isComputing());
    EXPECT_FALSE(mFill->window()->isVisible());
    EXPECT_EQ(bar()->value(), 100);
    EXPECT_TRUE(time().endsWith(" sec"));
    EXPECT_EQ(redPixels(), 0);
    settle();
    EXPECT_EQ(history().newest(), before + 1);
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
    perform("smartFill:");
    runButton()->click();
    waitForEnd();
    for (int y = 42; y < 80; ++y)
        for (int x = 62; x < 100; ++x) ASSERT_EQ(pixel(x, y), pixel(x & ~1, y & ~1)) << x << ", " << y;
    EXPECT_EQ(pixel(61, 41), kRed) << "outside the even box";
}

TEST_F(SmartFillWindow, ACancelledRunLeavesThePictureButTakesASnapshot)
{
    makeScene(1800, 1400, makeRect(400, 300, 1000, 800)); // a run of seconds, so that it can be met at work
    const int before = history().newest();
    perform("smartFill:");
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
    EXPECT_EQ(history().newest(), before + 1);
    EXPECT_FALSE(document->isComputing());
}

TEST_F(SmartFillWindow, RunMayFollowCancelAtOnce)
{
    makeScene(300, 300, makeRect(100, 100, 100, 100));
    perform("smartFill:");
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
    perform("smartFill:");
    const test::AlertWatch watch;
    runButton()->click();
    ASSERT_TRUE(test::eventually([&] { return !watch.seen.empty() && !mFill->isRunning() && !currentAlert(); }));
    EXPECT_EQ(watch.seen[0].title, "There is nothing to fill from.");
    EXPECT_EQ(watch.seen[0].message, "Select a smaller area or raise the radius.");
    EXPECT_EQ(redPixels(), 1600);
    EXPECT_TRUE(mFill->window()->isVisible());
    expectButtons(false);
}

TEST_F(SmartFillWindow, AnEmptyHoleLeavesTheWindowOpen)
{
    makeScene(80, 80, makeRect(200, 200, 10, 10));
    perform("smartFill:");
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
    perform("smartFill:");
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

TEST_F(SmartFillWindow, AFillIsDroppedWithAWordWhenThePictureBecameAnotherMeanwhile)
{
    struct Case {
        const char* name;
        std::function<void()> change;
    };
    for (const Case& c :
         {Case{"another picture",
               [this] {
                   performNumbers("newImageWithSize:", {500, 400});
               }},
          Case{"another size",
               [this] {
                   performNumbers("setImageSize:scale:", {300, 400, 0});
               }},
          Case{"flipped", [this] { perform("flipH:"); }}, Case{"turned", [this] { perform("rotateCW:"); }},
          Case{"cropped", [this] { perform("cropToSelection:"); }}, Case{"undone", [this] { perform("undo:"); }}}) {
        SCOPED_TRACE(c.name);
        makeScene(500, 400, makeRect(150, 120, 200, 150));
        perform("takeSnapshot");
        settle();
        perform("smartFill:");
        runButton()->click();
        c.change();
        ASSERT_TRUE(mFill->isRunning());
        const auto pixels = allPixels();
        const int newest = history().newest();
        waitForEnd();
        settle();
        EXPECT_EQ(allPixels(), pixels);
        EXPECT_EQ(history().newest(), newest) << "no step is recorded for it";
        EXPECT_EQ(time(), "The image changed meanwhile; the fill was dropped.");
        EXPECT_FALSE(document->isComputing());
    }
}

TEST_F(SmartFillWindow, RunBeepsWhenThePictureWasReplacedBeforeIt)
{
    makeScene(100, 80, makeRect(30, 30, 20, 20));
    perform("smartFill:");
    makeImage(20, 20);
    takeSounds();
    runButton()->click();
    EXPECT_FALSE(mFill->isRunning());
    EXPECT_EQ(takeSounds(), test::Lines{"beep"});
}

TEST_F(SmartFillWindow, TheMaskIsTheOneOfTheCommandWhateverHappensToTheDocumentsOwn)
{
    makeScene(200, 150, makeRect(80, 60, 30, 30));
    perform("smartFill:");
    perform("clearSelectionMask"); // 255 everywhere, which means "not selected" to everyone else
    runButton()->click();
    waitForEnd();
    EXPECT_EQ(redPixels(), 0);
    EXPECT_NE(pixel(10, 10), kRed);
}

TEST_F(SmartFillWindow, ProgressMovesAndCancelTakesEffectTenTimesASecond)
{
    makeScene(3000, 2400, makeRect(750, 600, 1500, 1200)); // a run of seconds: far longer than is looked at
    perform("smartFill:");
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
