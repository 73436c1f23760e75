// SPDX-License-Identifier: GPL-3.0-or-later
/// Trying fills out: previews, results to choose from, sources, and the brush that removes.
#include "windows/SmartFillStudio.h"
#include "base/Log.h"
#include "canvas/ToolTable.h"
#include "document/Preview.h"
#include "support/DocumentFixture.h"
#include "windows/ZPSmartFill.h"
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

using namespace zp;

namespace
{

class SmartFillStudioWindow : public test::DocumentTest
{
protected:
    void SetUp() override
    {
        ZPSmartFill::registerCommand();
        mFill = ZPSmartFill::sharedSmartFill();
        mFill->setSeed(7);
        mFill->window()->hide();
        outlet<QSlider>("mRadiusSlider")->setValue(50);
        outlet<QCheckBox>("mFasterCheckbox")->setChecked(false);
        outlet<QCheckBox>("mLinesCheckbox")->setChecked(false);
        outlet<QCheckBox>("mEvenCheckbox")->setChecked(false);
        takeSounds();
    }
    void TearDown() override
    {
        waitForEnd();
        mFill->window()->hide();
    }
    template <class T>
    T* outlet(const QString& name) const
    {
        T* const widget = mFill->window()->findChild<T*>(name);
        EXPECT_TRUE(widget) << name.toStdString();
        return widget;
    }
    void click(const char* name)
    {
        outlet<QAbstractButton>(name)->click();
        waitForEnd();
    }
    void waitForEnd()
    {
        ASSERT_TRUE(test::eventually([this] { return !mFill->isRunning(); }, 60'000));
    }
    QToolButton* result(int number) const { return outlet<QToolButton>(QString("mResult%1").arg(number)); }
    /// Which thumbnails are there and which is shown: "-" none, "o" one, "X" the shown one.
    std::string results() const
    {
        std::string states;
        for (int i = 1; i <= 4; ++i) states += !result(i)->isEnabled() ? '-' : result(i)->isChecked() ? 'X' : 'o';
        return states;
    }
    const Preview* shown() const { return document->view().preview().get(); }
    std::string label(const char* name) const { return outlet<QLabel>(name)->text().toStdString(); }
    /// Grain, red 40 on the left and 200 on the right, with a white hole that is selected.
    void makeScene()
    {
        makeImage(160, 120);
        std::mt19937 random(3);
        paintImage([&random](int x, int) {
            return test::word(255, x < 80 ? 40 : 200, int(random() % 256), int(random() % 256));
        });
        fillBox(kHole, test::kWhiteWord);
        select(kHole.rect());
    }
    void openWindow()
    {
        makeScene();
        perform("smartFill:");
    }
    std::vector<std::uint32_t> runWith(std::uint64_t seed)
    {
        mFill->setSeed(seed);
        openWindow();
        click("mRunButton");
        mFill->setSeed(7);
        return allPixels();
    }
    void paintOver(Point from, Point to)
    {
        const ToolActions* const actions = &rowOf(gesture()).actions;
        document->press(actions, from);
        document->drag(to);
        document->release(to);
    }

    static constexpr PixelBox kHole{65, 45, 95, 75};
    ZPSmartFill* mFill = nullptr;
};

TEST_F(SmartFillStudioWindow, APreviewIsShownOverThePictureAndChangesNothingOfIt)
{
    openWindow();
    settle();
    const auto before = allPixels();
    const int steps = history().newest();
    click("mPreviewButton");
    EXPECT_TRUE(mFill->window()->isVisible()) << "only Run closes it";
    ASSERT_TRUE(shown());
    EXPECT_EQ(shown()->box, kHole);
    EXPECT_EQ(results(), "X---");
    settle();
    EXPECT_EQ(allPixels(), before);
    EXPECT_EQ(history().newest(), steps);

    // What the screen shows is the preview inside the hole and the picture outside.
    canvas->resize(160, 120);
    QImage screen(160, 120, QImage::Format_RGB32);
    QPainter painter(&screen);
    canvas->drawRect(painter, screen.rect(), {}, 1);
    painter.end();
    const std::uint32_t word = shown()->words[std::size_t(10 * kHole.width() + 12)];
    EXPECT_EQ(screen.pixel(kHole.x0 + 12, kHole.y0 + 10),
              qRgb(int(word >> 8 & 255), int(word >> 16 & 255), int(word >> 24)));
    click("mCloseButton");
    EXPECT_FALSE(shown());
    EXPECT_EQ(allPixels(), before);
}

TEST_F(SmartFillStudioWindow, RunLeavesThePreviewAndItIsByteForByteWhatRunAloneMakes)
{
    const auto alone = runWith(7);
    openWindow();
    settle();
    const int steps = history().newest();
    click("mPreviewButton");
    click("mRunButton");
    EXPECT_EQ(allPixels(), alone);
    EXPECT_FALSE(mFill->window()->isVisible());
    EXPECT_FALSE(shown());
    settle();
    EXPECT_EQ(history().newest(), steps + 1);
}

TEST_F(SmartFillStudioWindow, TheSameHoldsForTheFasterFill)
{
    outlet<QCheckBox>("mFasterCheckbox")->setChecked(true);
    const auto alone = runWith(7);
    openWindow();
    click("mPreviewButton");
    click("mRunButton");
    EXPECT_EQ(allPixels(), alone);
}

TEST_F(SmartFillStudioWindow, AnotherResultTakesTheNextSeedAndTheLastFourCanBeChosen)
{
    const auto second = runWith(8);
    openWindow();
    click("mPreviewButton");
    const auto first = document->view().preview();
    click("mAnotherButton");
    EXPECT_EQ(results(), "Xo--");
    EXPECT_NE(shown()->words, first->words);
    const auto eighth = document->view().preview();
    for (int i = 0; i < 2; ++i) click("mAnotherButton");
    EXPECT_EQ(results(), "Xooo");
    click("mAnotherButton");
    EXPECT_EQ(results(), "Xooo") << "the oldest made room";
    result(4)->click();
    EXPECT_EQ(results(), "oooX");
    EXPECT_EQ(document->view().preview(), eighth);
    EXPECT_FALSE(result(4)->icon().isNull());
    result(4)->click();
    EXPECT_EQ(results(), "oooo") << "a second press shows the picture without it";
    EXPECT_FALSE(shown());
    result(4)->click();
    click("mRunButton");
    EXPECT_EQ(allPixels(), second);
}

TEST_F(SmartFillStudioWindow, OtherSettingsTakeThePreviewAwayAndRunMakesWhatTheyAsk)
{
    openWindow();
    click("mPreviewButton");
    outlet<QSlider>("mRadiusSlider")->setValue(20);
    EXPECT_FALSE(shown());
    EXPECT_EQ(results(), "o---");
    click("mRunButton");
    const auto fromPreview = allPixels();
    const auto alone = runWith(7);
    EXPECT_EQ(fromPreview, alone);
}

TEST_F(SmartFillStudioWindow, PaintingOutsideTheHoleMeanwhileStays)
{
    openWindow();
    click("mPreviewButton");
    setPixel(kHole.x0 - 3, kHole.y0, test::kBlackWord);
    click("mRunButton");
    EXPECT_EQ(pixel(kHole.x0 - 3, kHole.y0), test::kBlackWord);
}

TEST_F(SmartFillStudioWindow, ASecondSelectionIsWhereColoursAreTakenFromOrNever)
{
    const auto redsInHole = [this] {
        std::set<int> reds;
        for (int y = kHole.y0; y < kHole.y1; ++y)
            for (int x = kHole.x0; x < kHole.x1; ++x) reds.insert(test::channelOf(pixel(x, y), 1));
        return reds;
    };
    openWindow();
    select(makeRect(5, 5, 30, 40));
    click("mFromButton");
    EXPECT_EQ(label("mFromField"), "the selection of 30 × 40");
    click("mRunButton");
    EXPECT_EQ(redsInHole(), std::set<int>{40});

    openWindow();
    EXPECT_EQ(label("mFromField"), "anywhere") << "another hole, another choice";
    select(makeRect(0, 0, 80, 120));
    click("mNeverButton");
    click("mRunButton");
    EXPECT_EQ(redsInHole(), std::set<int>{200});

    openWindow();
    click("mNeverButton");
    click("mNeverButton");
    EXPECT_EQ(label("mNeverField"), "nowhere");
    dropSelection();
    takeSounds();
    click("mFromButton");
    EXPECT_EQ(takeSounds(), test::Lines{"beep"});
    EXPECT_FALSE(outlet<QPushButton>("mFromButton")->isChecked());
    EXPECT_EQ(label("mFromField"), "select the place in the image first");
}

TEST_F(SmartFillStudioWindow, LinesAreKeptWhenAskedFor)
{
    const auto darkInHole = [this](bool keeping) {
        makeImage(200, 150);
        paintImage([](int, int y) { return y == 74 || y == 75 ? test::kBlackWord : test::kWhiteWord; });
        fillBox({70, 50, 130, 100}, test::kRedWord);
        select(makeRect(70, 50, 60, 50));
        outlet<QCheckBox>("mLinesCheckbox")->setChecked(keeping);
        perform("smartFill:");
        click("mPreviewButton");
        EXPECT_EQ(shown()->box, (PixelBox{70, 50, 130, 100}));
        EXPECT_TRUE(std::ranges::all_of(shown()->covers, [](auto covered) { return covered != 0; }));
        click("mRunButton");
        EXPECT_EQ(countPixels(test::kRedWord), 0u);
        int dark = 0;
        for (int x = 70; x < 130; ++x) dark += pixel(x, 74) == test::kBlackWord && pixel(x, 75) == test::kBlackWord;
        return dark;
    };
    darkInHole(false);
    EXPECT_EQ(darkInHole(true), 60) << "the line goes through unbroken";
}

TEST_F(SmartFillStudioWindow, PatchesAreEvenedOutWhenAskedFor)
{
    const auto farthestFromTruth = [this](bool evened) {
        const auto truth = [](int x, int y) { return test::word(255, 40 + x, 60 + y, 90 + (x + y) / 4); };
        makeImage(200, 150);
        paintImage(truth);
        fillBox({70, 50, 130, 100}, test::kRedWord);
        select(makeRect(70, 50, 60, 50));
        outlet<QCheckBox>("mEvenCheckbox")->setChecked(evened);
        perform("smartFill:");
        click("mRunButton");
        int farthest = 0;
        for (int y = 50; y < 100; ++y)
            for (int x = 70; x < 130; ++x)
                for (int c = 1; c < 4; ++c)
                    farthest =
                        std::max(farthest, std::abs(test::channelOf(pixel(x, y), c) - test::channelOf(truth(x, y), c)));
        return farthest;
    };
    const int plain = farthestFromTruth(false), evened = farthestFromTruth(true);
    EXPECT_LT(2 * evened, plain) << evened << " and " << plain;
}

TEST_F(SmartFillStudioWindow, AnotherPictureForgetsTheResults)
{
    openWindow();
    click("mPreviewButton");
    perform("flipH:");
    EXPECT_FALSE(shown());
    EXPECT_EQ(results(), "----");
    takeSounds();
    click("mPreviewButton");
    EXPECT_EQ(takeSounds(), test::Lines{"beep"});
}

TEST_F(SmartFillStudioWindow, ACancelledPreviewLeavesNothing)
{
    makeImage(1800, 1400);
    paintNoise();
    select(makeRect(400, 300, 1000, 800));
    perform("smartFill:");
    settle();
    const int steps = history().newest();
    outlet<QPushButton>("mPreviewButton")->click();
    EXPECT_FALSE(outlet<QPushButton>("mAnotherButton")->isEnabled());
    outlet<QPushButton>("mCancelButton")->click();
    waitForEnd();
    EXPECT_FALSE(shown());
    EXPECT_EQ(results(), "----");
    settle();
    EXPECT_EQ(history().newest(), steps);
    EXPECT_TRUE(outlet<QPushButton>("mAnotherButton")->isEnabled());
}

TEST_F(SmartFillStudioWindow, TheRemoveBrushFillsWhatItWasDrawnOver)
{
    makeScene();
    dropSelection();
    settle();
    const int steps = history().newest();
    document->setBrushSize(50);
    document->setRemoving(true);
    EXPECT_STREQ(rowOf(gesture()).title, "Remove Brush");
    paintOver({78, 60}, {82, 60});
    EXPECT_TRUE(shown()) << "marked until it is gone";
    waitForEnd();
    EXPECT_FALSE(shown());
    EXPECT_EQ(countPixels(test::kWhiteWord), 0u);
    settle();
    EXPECT_EQ(history().newest(), steps + 1);
    EXPECT_EQ(std::string(history().steps().back().name), "Remove");
    EXPECT_FALSE(mFill->window()->isVisible());
    EXPECT_TRUE(gesture().removes()) << "the next thing can go";
    document->chooseTool(Tool::Brush);
    EXPECT_FALSE(gesture().removes());
}

TEST_F(SmartFillStudioWindow, TheSelectionLimitsWhatTheBrushRemoves)
{
    makeScene();
    select(makeRect(65, 45, 15, 30));
    document->setBrushSize(60);
    document->setRemoving(true);
    const auto before = allPixels();
    paintOver({78, 60}, {82, 60});
    waitForEnd();
    const auto after = allPixels();
    std::size_t changedInside = 0;
    for (int y = 0; y < 120; ++y)
        for (int x = 0; x < 160; ++x) {
            const std::size_t i = std::size_t(y) * 160 + std::size_t(x);
            if (x >= 65 && x < 80 && y >= 45 && y < 75)
                changedInside += after[i] != before[i];
            else
                ASSERT_EQ(after[i], before[i]) << x << ", " << y;
        }
    EXPECT_GT(changedInside, 200u) << "of 450; the white beside the selection is a source, too";
}

TEST_F(SmartFillStudioWindow, ARemovalOverWhatFloatsIsOneStep)
{
    makeScene();
    select(makeRect(60, 40, 40, 40));
    document->perform("floatSelection");
    document->perform("nudge", {{3, 2}, {}}); // so that it is part of the picture afterwards
    settle();
    const int steps = history().newest();
    document->setBrushSize(20);
    document->setRemoving(true);
    paintOver({78, 60}, {82, 60});
    waitForEnd();
    settle();
    EXPECT_EQ(history().newest(), steps + 1);
    EXPECT_FALSE(document->selection().floating());
}

TEST_F(SmartFillStudioWindow, EscapeTakesTheStrokeBackAndNothingIsRemoved)
{
    makeScene();
    dropSelection();
    document->setRemoving(true);
    const auto before = allPixels();
    document->press(&rowOf(gesture()).actions, {70, 60});
    document->drag({90, 60});
    EXPECT_TRUE(document->cancelGesture());
    EXPECT_FALSE(mFill->isRunning());
    EXPECT_EQ(allPixels(), before);
}

TEST_F(SmartFillStudioWindow, UndoWhileSomethingIsRemovedDropsTheFill)
{
    makeImage(700, 500);
    paintNoise();
    perform("takeSnapshot");
    settle();
    document->setBrushSize(160);
    document->setRemoving(true);
    paintOver({250, 250}, {450, 250});
    ASSERT_TRUE(mFill->isRunning());
    perform("undo:");
    const auto before = allPixels();
    waitForEnd();
    EXPECT_EQ(allPixels(), before);
    EXPECT_FALSE(shown());
    EXPECT_EQ(document->message(), "The image changed meanwhile; the fill was dropped.");
}

} // namespace
