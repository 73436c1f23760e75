// SPDX-License-Identifier: GPL-3.0-or-later
/// Steps with real files: the stories of the numbers, failures, and what may go on while one is written.
#include "desktop/SystemProbes.h"
#include "support/HistoryFixture.h"
#include "undo/AlphaRLE.h"
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <sys/resource.h>

using namespace zp;
using namespace zp::test;
namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

namespace
{

class History : public HistoryTest
{
protected:
    ~History() override { setSystemQueries(std::nullopt); }

    /// A picture that waits for its first step, as an opened one does.
    void makeWaiting()
    {
        performNumbers("newImageForMeWithSize:", {20, 20});
        edit([](Edit& e) {
            e.history().reset();
            e.history().recordSoon(e.picture(), "Open");
        });
    }
};

TEST_F(History, ANewImageTakesSnapshotZeroAndThatIsTheFloor)
{
    makeImage(40, 30);
    expectNumbers(0, 0);
    EXPECT_TRUE(exists("C_0.jpg") && exists("C_0.rle"));
    EXPECT_EQ(bytes(folder() / "C_0.rle"), encodeAlphaRLE(picture().pixels()));
    perform("undo:");
    expectNumbers(0, 0);
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    perform("redo:");
    expectNumbers(0, 0);
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
}

TEST_F(History, StepsBackAndForthBringBackEachPicture)
{
    makeImage(40, 30);
    change(255, 200);
    change(100, 60);
    change(0, 0);
    expectNumbers(3, 3);
    perform("undo:");
    expectPicture(100, 60);
    perform("undo:");
    expectPicture(255, 200);
    expectNumbers(1, 3);
    perform("redo:");
    expectPicture(100, 60);
    perform("redo:");
    expectPicture(0, 0);
    expectNumbers(3, 3);
    EXPECT_TRUE(takeSounds().empty());
    perform("redo:");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    expectNumbers(3, 3);
}

TEST_F(History, AChangeAfterTwoUndosIsNumberTwoAndThreeIsGone)
{
    makeImage(40, 30);
    for (int i = 1; i <= 3; ++i) change(255, 60 * i);
    perform("undo:");
    perform("undo:");
    ASSERT_TRUE(exists("C_3.jpg"));
    change(255, 240);
    expectNumbers(2, 2);
    EXPECT_TRUE(exists("C_2.jpg") && exists("C_2.rle"));
    EXPECT_FALSE(exists("C_3.jpg") || exists("C_3.rle"));
    perform("redo:");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    perform("undo:");
    expectPicture(255, 60);
    perform("redo:");
    expectPicture(255, 240);
}

TEST_F(History, BothVariantsWriteTheSameFilesAndTheirOwnLogLines)
{
    makeImage(40, 30);
    takeLogLines();
    change(90, 80);
    EXPECT_THAT(takeLogLines(), Contains(StartsWith("takeSnapshot: JPEG+RLE: 0.")));
    setSystemQueries(SystemQueries{[] { return std::optional<std::uint32_t>(0x1050); }, [] { return std::nullopt; }});
    change(90, 80);
    const auto lines = takeLogLines();
    EXPECT_THAT(lines, Contains(StartsWith("takeSnapshot: JPG: 0.")));
    EXPECT_THAT(lines, Contains(StartsWith("takeSnapshot: RLE: 0.")));
    EXPECT_THAT(lines, testing::Not(Contains(StartsWith("takeSnapshot: JPEG+RLE"))));
    EXPECT_EQ(bytes(folder() / "C_1.jpg"), bytes(folder() / "C_2.jpg"));
    EXPECT_EQ(bytes(folder() / "C_1.rle"), bytes(folder() / "C_2.rle"));
    performNumbers("restoreSnapshot:", {1});
    const auto restored = takeLogLines();
    EXPECT_THAT(restored, Contains(StartsWith("restoreSnapshot: JPG: 0.")));
    EXPECT_THAT(restored, Contains(StartsWith("restoreSnapshot: RLE: 0.")));
}

TEST_F(History, RestoringAnotherSizeMakesTheBuffersAnew)
{
    makeImage(40, 30);
    change(255, 120);
    edit([](Edit& e) { e.picture().writableBitmap()->properties.userComment = "kept"; });
    perform("rotateCW:");
    settle();
    ASSERT_EQ(picture().width(), 30);
    perform("undo:");
    EXPECT_EQ(picture().width(), 40);
    EXPECT_EQ(picture().size().height, 30);
    EXPECT_EQ(picture().bitmap()->properties.userComment, "kept");
    expectPicture(255, 120);
    perform("redo:");
    EXPECT_EQ(picture().width(), 30);
}

TEST_F(History, ARestoreOfTheSameSizeKeepsBuffersAndSelection)
{
    makeImage(40, 30);
    change(255, 120);
    select(makeRect(1, 1, 5, 5));
    const void* const rep = picture().bitmap().get();
    perform("undo:");
    EXPECT_EQ(picture().bitmap().get(), rep);
    EXPECT_EQ(outlineBounds(), makeRect(1, 1, 5, 5));
}

struct HalfLost {
    const char* name;
    const char* file;
    bool damaged;    ///< else gone
    int alpha, grey; ///< what restoring the pair leaves; before it the picture has 255 and 200
};

class HistoryHalf : public HistoryTest, public testing::WithParamInterface<HalfLost>
{
protected:
    void lose(const fs::path& path, bool damaged)
    {
        if (!damaged) {
            fs::remove(path);
            return;
        }
        std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(std::streamoff(fs::file_size(path) / 2));
        const int byte = file.peek();
        file.put(char(byte ^ 0x15));
    }
};

TEST_P(HistoryHalf, ADamagedOneChangesNoPixelAndAMissingOneIsLeftOut)
{
    const HalfLost& half = GetParam();
    makeImage(40, 30);
    change(50, 40);
    change(255, 200);
    lose(folder() / half.file, half.damaged);
    performNumbers("restoreSnapshot:", {1});
    expectPicture(half.alpha, half.grey);
}

TEST_P(HistoryHalf, UndoNeedsTheExactRecordThenOrGoesToTheNearestWholeStep)
{
    const HalfLost& half = GetParam();
    makeImage(40, 30);
    change(50, 40);
    change(255, 200);
    lose(folder() / half.file, half.damaged);
    perform("undo:");
    expectPicture(50, 40);
    expectNumbers(1, 2);
    perform("redo:");
    fs::resize_file(folder() / ".C_1.exact", 0);
    perform("undo:");
    expectPicture(0, 0);
    expectNumbers(0, 2);
    perform("redo:");
    expectPicture(255, 200);
    expectNumbers(2, 2);
}

INSTANTIATE_TEST_SUITE_P(Halves, HistoryHalf,
                         testing::Values(HalfLost{"NoColour", "C_1.jpg", false, 50, 200},
                                         HalfLost{"BrokenColour", "C_1.jpg", true, 255, 200},
                                         HalfLost{"NoAlpha", "C_1.rle", false, 255, 40},
                                         HalfLost{"BrokenAlpha", "C_1.rle", true, 255, 200}),
                         [](const auto& of) { return std::string(of.param.name); });

TEST_F(History, APairThatCannotBeWrittenIsToldOnceAndLosesNothing)
{
    Lines told;
    const QObject listener; // gone before what it writes to: the document speaks on until the test's very end
    QObject::connect(document.get(), &Document::noticed, &listener, [&] {
        if (const Notice* notice = document->notices().front()) told.push_back(notice->text.toStdString());
    });
    makeImage(400, 300);
    change(255, 90);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit limit = before;
    limit.rlim_cur = 500;
    setrlimit(RLIMIT_FSIZE, &limit);
    takeLogLines();
    change(255, 180);
    change(255, 190);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_THAT(takeLogLines(), Contains("takeSnapshot: step 2 was not written: File too large"));
    EXPECT_FALSE(exists("C_2.jpg") || exists("C_2.rle"));
    ASSERT_EQ(told.size(), 1u) << "once, not for each step";
    EXPECT_THAT(told[0], testing::HasSubstr("File too large"));
    expectNumbers(3, 3);
    for (const int grey : {180, 90}) {
        perform("undo:");
        expectPicture(255, grey);
    }
    for (const int grey : {180, 190}) {
        perform("redo:");
        expectPicture(255, grey);
    }
    change(255, 30);
    EXPECT_TRUE(exists("C_4.jpg"));
}

TEST_F(History, UndoKeepsWhatIsOnScreenWhenTheFolderVanished)
{
    makeImage(40, 30);
    change(255, 90);
    fs::remove_all(folder());
    takeSounds();
    perform("undo:");
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    expectPicture(255, 90);
    expectNumbers(1, 1);
    EXPECT_TRUE(exists("C_1.jpg")) << "it is written again, so that it cannot be lost either";
    change(255, 180);
    expectNumbers(2, 2);
    perform("undo:");
    expectPicture(255, 90);
    perform("redo:");
    expectPicture(255, 180);
}

TEST_F(History, UndoBeforeTheFirstStepIsRefusedAndMovesNothing)
{
    makeWaiting();
    EXPECT_TRUE(document->firstStepPending());
    expectNumbers(-1, -1);
    EXPECT_FALSE(perform("undo:"));
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    expectNumbers(-1, -1);
    takeLogLines();
    settle();
    expectNumbers(0, 0);
    EXPECT_TRUE(exists("C_0.jpg"));
    EXPECT_THAT(takeLogLines(), Contains("takeSnapshot invoked with timer"));
}

TEST_F(History, ThePictureAsItWasOpenedIsAStepHoweverSoonItIsChanged)
{
    makeWaiting();
    perform("selectAll:");
    EXPECT_TRUE(document->firstStepPending()) << "nothing has been changed yet";
    perform("fill:");
    EXPECT_FALSE(document->firstStepPending());
    expectNumbers(1, 1);
    settle();
    expectPicture(255, 0);
    perform("undo:");
    expectPicture(0, 0);
}

TEST_F(History, TheFirstStepWaitsThreeTenthsOfASecond)
{
    makeWaiting();
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(eventually([this] { return !document->firstStepPending(); }));
    EXPECT_GE(clock.elapsed(), 280);
    settle();
    expectNumbers(0, 0);
}

TEST_F(History, ANewPictureDropsTheWaitOfTheOneBefore)
{
    makeWaiting();
    performNumbers("newImageWithSize:", {30, 30});
    EXPECT_FALSE(document->firstStepPending());
    settle();
    expectNumbers(0, 0);
}

TEST_F(History, RequestsAreDroppedWhileSuppressed)
{
    makeImage(300, 200);
    perform("dontTakeSnapshot");
    EXPECT_TRUE(history().isSuppressed());
    perform("takeSnapshot");
    perform("selectAll:");
    perform("fill:");
    expectNumbers(0, 0);
    perform("takeSnapshotAgain");
    perform("takeSnapshot");
    perform("takeSnapshot");
    expectNumbers(2, 2);
}

TEST_F(History, AStepIsBeingWrittenFromTheMomentItIsAskedFor)
{
    makeImage(30, 20);
    perform("takeSnapshot");
    EXPECT_TRUE(history().isBusy() || exists("C_1.jpg"));
    expectNumbers(1, 1);
    settle();
    EXPECT_TRUE(exists("C_1.jpg") && exists("C_1.rle"));
}

TEST_F(History, StepsHaveTheirCommandsNames)
{
    makeImage(30, 20);
    perform("selectAll:");
    perform("fill:");
    perform("flipH:");
    ASSERT_EQ(history().steps().size(), 3u);
    EXPECT_EQ(history().steps()[0].name, "New");
    EXPECT_EQ(history().steps()[1].name, "Fill");
    EXPECT_EQ(history().steps()[2].name, "Flip Horizontally");
    perform("undo:");
    perform("rotateCW:");
    ASSERT_EQ(history().steps().size(), 3u) << "what could be redone is gone";
    EXPECT_EQ(history().steps()[2].name, "Rotate Clockwise");
    EXPECT_EQ(history().steps()[2].number, 2);
}

TEST_F(History, NoColourExceedsItsAlphaAfterARestore)
{
    makeImage(64, 64);
    // Hard edges between white and nothing, where a lossy coder overshoots most.
    const auto alpha = [](int x, int y) { return (x / 5 + y / 7) % 2 ? 255 : 0; };
    paintImage([&](int x, int y) { return alpha(x, y) ? kWhiteWord : 0; });
    perform("takeSnapshot");
    settle();
    change(255, 128);
    perform("undo:");
    EXPECT_TRUE(isPremultiplied(picture().pixels()));
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) ASSERT_EQ(channelOf(pixel(x, y), 0), alpha(x, y));
}

TEST_F(History, TheScreenMayBeDrawnWhileAStepIsWritten)
{
    makeImage(1200, 900);
    for (int i = 0; i < 5; ++i) {
        paintNoise(unsigned(i)); // strips that are as they were would not be written again
        perform("takeSnapshot");
        int drawn = 0;
        // A part small enough that Qt does not spread it over threads of its own.
        do canvas->grab(QRect(0, 0, 200, 200)), ++drawn;
        while (history().isBusy());
        EXPECT_GT(drawn, 0);
        settle();
    }
    expectNumbers(5, 5);
}

TEST_F(History, WritingIsSaidOnTheMainThreadAtBothEnds)
{
    std::vector<bool> said;
    const QObject listener; // gone before what it writes to
    QObject::connect(document.get(), &Document::stepsChanged, &listener, [&] {
        EXPECT_EQ(QThread::currentThread(), document->thread());
        if (said.empty() || said.back() != history().isBusy()) said.push_back(history().isBusy());
    });
    performNumbers("newImageWithSize:", {40, 30});
    // The writer's last word may come a moment after its work is done.
    EXPECT_TRUE(eventually([&said] { return !said.empty() && !said.back(); }));
    EXPECT_FALSE(history().isBusy());
}

TEST_F(History, TheDocumentMayGoWhileItsStepIsWritten)
{
    makeImage(1000, 1000);
    paintNoise();
    perform("takeSnapshot");
    canvas.reset();
    document.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(exists("C_1.jpg"));
}

TEST_F(History, WithoutAPictureNothingBreaks)
{
    perform("takeSnapshot");
    settle();
    performNumbers("restoreSnapshot:", {0});
    perform("undo:");
    perform("redo:");
    EXPECT_FALSE(exists("C_0.jpg"));
    EXPECT_FALSE(picture().bitmap());
}

TEST_F(History, WithoutAPictureThereAreNoStepsThatUndoAndRedoWouldStumbleOver)
{
    makeImage(40, 30);
    change(255, 200);
    change(100, 60);
    performNumbers("newImageForMeWithSize:", {17, -16});
    ASSERT_FALSE(picture().bitmap());
    for (int i = 0; i < 3; ++i) perform("takeSnapshot");
    expectNumbers(2, 2);
    perform("undo:");
    expectPicture(255, 200);
    perform("redo:");
    expectPicture(100, 60);
    expectNumbers(2, 2);
}

} // namespace
