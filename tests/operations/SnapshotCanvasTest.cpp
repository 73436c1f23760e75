// SPDX-License-Identifier: GPL-3.0-or-later
/// Undo on the canvas: the stories of the numbers with real files, failures, the cursors, and recovery.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "desktop/SystemProbes.h"
#include "operations/Recovery.h"
#include "support/TemporaryFolder.h"
#include "undo/AlphaRLE.h"
#include "undo/SnapshotJPEG.h"
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QThread>
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zp;
namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;
using Bytes = std::vector<std::uint8_t>;

namespace
{

class UndoCanvas : public testing::Test
{
protected:
    void SetUp() override
    {
        canvas = std::make_unique<ZPCanvas>();
        takeSounds();
        takeLogLines();
    }
    void TearDown() override
    {
        setSystemQueries(std::nullopt);
        canvas.reset();
        SnapshotStore::shared().remove();
    }

    fs::path folder() const { return temporary / "Zelpane Undo Support"; }
    bool has(const std::string& name) const { return fs::exists(folder() / name); }
    static Bytes bytes(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(file), {});
    }
    /// Until nothing is being written and all that was posted has been handled.
    void settle()
    {
        QElapsedTimer clock;
        clock.start();
        do QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        while ((canvas->anyWorkerRunning() || canvas->snapshotTimerPending()) && clock.elapsed() < 20000);
        QCoreApplication::processEvents();
        ASSERT_FALSE(canvas->anyWorkerRunning());
    }
    /// One change of the whole picture and its snapshot.
    void change(std::uint8_t alpha, std::uint8_t grey)
    {
        const BitmapView view = canvas->mBitmapRep->view();
        for (int y = 0; y < view.height; ++y)
            for (int x = 0; x < view.width; ++x) {
                std::uint8_t* const p = view.pixel(x, y);
                p[0] = alpha;
                p[1] = p[2] = p[3] = grey;
            }
        canvas->takeSnapshot();
        settle();
    }
    void expectPicture(std::uint8_t alpha, int grey)
    {
        const BitmapView view = canvas->mBitmapRep->view();
        for (int y = 0; y < view.height; ++y)
            for (int x = 0; x < view.width; ++x) {
                const std::uint8_t* const p = view.pixel(x, y);
                ASSERT_EQ(p[0], alpha) << x << ", " << y;
                for (int c = 1; c < 4; ++c) ASSERT_NEAR(p[c], grey, 3) << x << ", " << y;
            }
    }
    void expectNumbers(int position, int newest)
    {
        EXPECT_EQ(canvas->mUndoRedoIndex, position);
        EXPECT_EQ(canvas->mUndoIndex, newest);
    }
    void make(int width, int height)
    {
        canvas->newImageWithSize({float(width), float(height)});
        settle();
    }

    const zp::test::TemporaryFolder own;
    const fs::path temporary = own.path();
    const zp::test::TemporaryVariable variable{"ZELPANE_TMP", temporary};
    std::unique_ptr<ZPCanvas> canvas;
};

TEST_F(UndoCanvas, ANewImageTakesSnapshotZeroAndThatIsTheFloor)
{
    make(40, 30);
    expectNumbers(0, 0);
    EXPECT_TRUE(has("C_0.jpg") && has("C_0.rle"));
    EXPECT_EQ(bytes(folder() / "C_0.rle"), encodeAlphaRLE(canvas->mBitmapRep->view()));
    canvas->undo();
    expectNumbers(0, 0);
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    canvas->redo();
    expectNumbers(0, 0);
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
}

TEST_F(UndoCanvas, StepsBackAndForthBringBackEachPicture)
{
    make(40, 30);
    change(255, 200);
    change(100, 60);
    change(0, 0);
    expectNumbers(3, 3);
    canvas->undo();
    expectPicture(100, 60);
    canvas->undo();
    expectPicture(255, 200);
    expectNumbers(1, 3);
    canvas->redo();
    expectPicture(100, 60);
    canvas->redo();
    expectPicture(0, 0);
    expectNumbers(3, 3);
    EXPECT_TRUE(takeSounds().empty());
    canvas->redo();
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    expectNumbers(3, 3);
}

TEST_F(UndoCanvas, AChangeAfterTwoUndosIsNumberTwoAndThreeIsGone)
{
    make(40, 30);
    for (int i = 1; i <= 3; ++i) change(255, std::uint8_t(60 * i));
    canvas->undo();
    canvas->undo();
    ASSERT_TRUE(has("C_3.jpg"));
    change(255, 240);
    expectNumbers(2, 2);
    EXPECT_TRUE(has("C_2.jpg") && has("C_2.rle"));
    EXPECT_FALSE(has("C_3.jpg") || has("C_3.rle"));
    canvas->redo();
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    canvas->undo();
    expectPicture(255, 60);
    canvas->redo();
    expectPicture(255, 240);
}

TEST_F(UndoCanvas, UndoBeforeTheTimersSnapshotMakesThatOneNumberOne)
{
    canvas->newImageForMeWithSize({20, 20});
    canvas->resetUndo();
    canvas->scheduleFirstSnapshot();
    EXPECT_TRUE(canvas->snapshotTimerPending());
    expectNumbers(-1, -1);
    canvas->undo();
    EXPECT_THAT(takeSounds(), ElementsAre("beep"));
    expectNumbers(0, -1);
    takeLogLines();
    settle();
    expectNumbers(1, 1);
    EXPECT_TRUE(has("C_1.jpg"));
    EXPECT_FALSE(has("C_0.jpg"));
    EXPECT_THAT(takeLogLines(), Contains("takeSnapshot invoked with timer"));
}

TEST_F(UndoCanvas, TheTimerWaitsThreeTenthsOfASecond)
{
    canvas->newImageForMeWithSize({20, 20});
    canvas->resetUndo();
    canvas->scheduleFirstSnapshot();
    QElapsedTimer clock;
    clock.start();
    while (canvas->snapshotTimerPending() && clock.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    EXPECT_GE(clock.elapsed(), 280);
    settle();
    expectNumbers(0, 0);
}

TEST_F(UndoCanvas, ANewPictureDropsTheTimerOfTheOneBefore)
{
    canvas->newImageForMeWithSize({20, 20});
    canvas->resetUndo();
    canvas->scheduleFirstSnapshot();
    make(30, 30);
    EXPECT_FALSE(canvas->snapshotTimerPending());
    expectNumbers(0, 0);
}

TEST_F(UndoCanvas, RequestsAreDroppedWhileSuppressedAndWhileOneIsWritten)
{
    make(3000, 2000); // takes a while to write
    canvas->dontTakeSnapshot();
    canvas->takeSnapshot();
    expectNumbers(0, 0);
    canvas->takeSnapshotAgain();
    canvas->mUndoThreadRunning = true;
    canvas->takeSnapshot();
    canvas->takeSnapshot();
    expectNumbers(0, 0);
    canvas->mUndoThreadRunning = false;
    canvas->mSnapshotEncoder->forget();
    canvas->takeSnapshot();
    EXPECT_TRUE(canvas->mUndoThreadRunning) << "at once, before the worker has even started";
    canvas->takeSnapshot();
    settle();
    expectNumbers(1, 1);
    EXPECT_FALSE(canvas->mUndoThreadRunning);
}

TEST_F(UndoCanvas, BothVariantsWriteTheSameFilesAndTheirOwnLogLines)
{
    make(40, 30);
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
    canvas->undo();
    const auto restored = takeLogLines();
    EXPECT_THAT(restored, Contains(StartsWith("restoreSnapshot: JPG: 0.")));
    EXPECT_THAT(restored, Contains(StartsWith("restoreSnapshot: RLE: 0.")));
}

TEST_F(UndoCanvas, ThreadBodiesMayBeCalledDirectly)
{
    make(40, 30);
    canvas->takeSnapshotThread();
    expectNumbers(1, 1);
    canvas->takeSnapshotThreadLeopard();
    expectNumbers(2, 2);
    EXPECT_FALSE(canvas->mUndoThreadRunning);
    EXPECT_TRUE(has("C_1.jpg") && has("C_2.rle"));
}

TEST_F(UndoCanvas, RestoringAnotherSizeMakesTheBuffersAnew)
{
    make(40, 30);
    change(255, 120);
    canvas->mBitmapRep->properties.userComment = "kept";
    canvas->rotateCW();
    settle();
    ASSERT_EQ(canvas->mBitmapRep->pixelsWide(), 30);
    canvas->undo();
    EXPECT_EQ(canvas->mBitmapRep->pixelsWide(), 40);
    EXPECT_EQ(canvas->imageSize().height, 30);
    EXPECT_EQ(canvas->mBitmapRep->properties.userComment, "kept");
    expectPicture(255, 120);
    canvas->redo();
    EXPECT_EQ(canvas->mBitmapRep->pixelsWide(), 30);
}

TEST_F(UndoCanvas, ARestoreOfTheSameSizeKeepsBuffersAndSelection)
{
    make(40, 30);
    change(255, 120);
    canvas->mSelectionPath = BezierPath::withRect({{1, 1}, {5, 5}});
    const void* const rep = canvas->mBitmapRep.get();
    canvas->undo();
    EXPECT_EQ(canvas->mBitmapRep.get(), rep);
    EXPECT_TRUE(canvas->mSelectionPath);
}

TEST_F(UndoCanvas, AMissingOrBrokenColourFileDrawsNothingAndAlphaIsStillRead)
{
    make(40, 30);
    change(50, 40);
    change(255, 200);
    fs::resize_file(folder() / "C_1.jpg", 700);
    canvas->undo();
    expectPicture(50, 200);
    expectNumbers(1, 2);
    fs::remove(folder() / "C_0.jpg");
    canvas->undo();
    expectPicture(0, 200);
    fs::remove(folder() / "C_0.rle");
    canvas->restoreSnapshot(0);
    canvas->restoreSnapshot(-5);
    expectPicture(0, 200);
}

TEST_F(UndoCanvas, NoColourExceedsItsAlphaAfterARestore)
{
    make(64, 64);
    // Hard edges between white and nothing, where a lossy coder overshoots most.
    const BitmapView view = canvas->mBitmapRep->view();
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) view.row(y)[x] = (x / 5 + y / 7) % 2 ? 0xFFFFFFFFu : 0;
    canvas->takeSnapshot();
    settle();
    change(255, 128);
    canvas->undo();
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            const std::uint8_t* const p = view.pixel(x, y);
            ASSERT_EQ(p[0], (x / 5 + y / 7) % 2 ? 255 : 0);
            for (int c = 1; c < 4; ++c) ASSERT_LE(p[c], p[0]) << x << ", " << y;
        }
}

TEST_F(UndoCanvas, AMissingAlphaFileLeavesWhatTheColoursGave)
{
    make(40, 30);
    change(50, 40);
    change(255, 200);
    fs::remove(folder() / "C_1.rle");
    canvas->undo();
    expectPicture(255, 40);
}

TEST_F(UndoCanvas, AWriteThatFailsLosesOnlyTheSnapshot)
{
    make(400, 300);
    change(255, 90);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit limit = before;
    limit.rlim_cur = 500;
    setrlimit(RLIMIT_FSIZE, &limit);
    takeLogLines();
    change(255, 180);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_THAT(takeLogLines(), Contains("takeSnapshot: C_2.jpg was not written: File too large"));
    EXPECT_FALSE(has("C_2.jpg") || has("C_2.rle"));
    expectPicture(255, 180);
    expectNumbers(2, 2);
    canvas->undo();
    expectPicture(255, 90);
    canvas->redo();
    expectPicture(255, 90);
    change(255, 30);
    EXPECT_TRUE(has("C_3.jpg"));
}

TEST_F(UndoCanvas, AVanishedFolderIsMadeAgain)
{
    make(40, 30);
    change(255, 90);
    fs::remove_all(folder());
    canvas->undo();
    expectPicture(255, 90);
    change(255, 180);
    expectNumbers(1, 1);
    EXPECT_TRUE(has("C_1.jpg"));
}

TEST_F(UndoCanvas, TheScreenMayBeDrawnWhileASnapshotIsWritten)
{
    make(1200, 900);
    for (int i = 0; i < 5; ++i) {
        canvas->mBitmapRep->view().pixel(i, i)[1] = 9;
        canvas->mSnapshotEncoder->forget();
        canvas->takeSnapshot();
        int drawn = 0;
        // A part small enough that Qt does not spread it over threads of its own.
        do canvas->grab(QRect(0, 0, 200, 200)), ++drawn;
        while (canvas->mUndoThreadRunning);
        EXPECT_GT(drawn, 0);
        settle();
    }
    expectNumbers(5, 5);
}

TEST_F(UndoCanvas, BusyIsSaidOnTheMainThreadAtBothEnds)
{
    QWidget window; // never on screen
    QProgressBar busy(&window);
    busy.hide();
    canvas->mBusyIndicator = &busy;
    std::vector<bool> said;
    QObject::connect(canvas.get(), &ZPCanvas::busyChanged, canvas.get(), [&](bool on) {
        EXPECT_EQ(QThread::currentThread(), canvas->thread());
        EXPECT_EQ(busy.isHidden(), !on);
        said.push_back(on);
    });
    make(40, 30);
    // The worker's last word may come a moment after its work is done.
    QElapsedTimer clock;
    clock.start();
    while (said.size() < 2 && clock.elapsed() < 20000) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    EXPECT_EQ(said, (std::vector<bool>{true, false}));
    EXPECT_TRUE(busy.isHidden());
}

TEST_F(UndoCanvas, ARequestFromAnotherThreadIsPosted)
{
    make(40, 30);
    std::thread([this] { canvas->takeSnapshot(); }).join();
    expectNumbers(0, 0);
    settle();
    expectNumbers(1, 1);
}

TEST_F(UndoCanvas, ACanvasMayGoWhileItsSnapshotIsWritten)
{
    make(1000, 1000);
    canvas->mSnapshotEncoder->forget();
    canvas->takeSnapshot();
    canvas = std::make_unique<ZPCanvas>();
    QCoreApplication::processEvents();
    EXPECT_TRUE(has("C_1.jpg"));
}

TEST_F(UndoCanvas, WithoutAPictureNothingBreaks)
{
    canvas->takeSnapshot();
    settle();
    canvas->restoreSnapshot(0);
    canvas->undo();
    canvas->redo();
    EXPECT_EQ(canvas->getc(true), -1);
    EXPECT_EQ(canvas->getc(false), -1);
    canvas->putc(-10);
    canvas->putc(5);
    canvas->readAlphaRLEFile((temporary / "none").string());
    canvas->writeAlphaRLEToFile((temporary / "empty").string());
    EXPECT_TRUE(bytes(temporary / "empty").empty());
    EXPECT_TRUE(fs::exists(temporary / "empty"));
    EXPECT_FALSE(has("C_0.jpg"));
}

TEST_F(UndoCanvas, TheCursorsWalkThePictureTheyWereResetOn)
{
    make(3, 2);
    EXPECT_NE(canvas->getc(true), 0);
    canvas->putc(-10);
    for (const int value : {1, 2, 0x103, 4, 5, 6, 7}) canvas->putc(value);
    EXPECT_EQ(canvas->getc(true), -1);
    for (const int value : {1, 2, 3, 4, 5, 6, -1, -1}) EXPECT_EQ(canvas->getc(false), value);
    canvas->getc(true);
    canvas->putc(-10);
    make(300, 200); // the cursors' picture is gone
    EXPECT_EQ(canvas->getc(false), -1);
    canvas->putc(77);
    EXPECT_EQ(canvas->mBitmapRep->view().pixel(0, 0)[0], 0);
}

TEST_F(UndoCanvas, AlphaFilesGoToAndComeFromAnyPath)
{
    make(3, 2);
    canvas->putc(-10);
    for (const int value : {9, 9, 9, 4, 5, 6}) canvas->putc(value);
    canvas->writeAlphaRLEToFile((temporary / "a b.rle").string());
    EXPECT_EQ(bytes(temporary / "a b.rle"), (Bytes{9, 9, 1, 4, 5, 6}));
    canvas->putc(-10);
    for (int i = 0; i < 6; ++i) canvas->putc(1);
    canvas->readAlphaRLEFile((temporary / "a b.rle").string());
    EXPECT_EQ(canvas->mBitmapRep->view().pixel(2, 0)[0], 9);
    EXPECT_EQ(canvas->mBitmapRep->view().pixel(2, 1)[0], 6);
    canvas->readAlphaRLEFile((temporary / "missing").string());
    EXPECT_EQ(canvas->mBitmapRep->view().pixel(2, 1)[0], 6);
}

TEST_F(UndoCanvas, APathIsPrintedAsAFormatAndLimitedTo511Bytes)
{
    make(2, 1);
    const std::string base = temporary.string() + "/";
    canvas->writeAlphaRLEToFile(base + "n%i x%%y z%s.rle");
    EXPECT_TRUE(fs::exists(base + "n0 x%y z%s.rle"));
    std::string deep = base;
    while (deep.size() < 400) deep += "d123456789/";
    fs::create_directories(deep);
    const std::string fits = deep + std::string(511 - deep.size(), 'x'), tooLong = fits + "x";
    canvas->writeAlphaRLEToFile(fits);
    EXPECT_TRUE(fs::exists(fits));
    canvas->writeAlphaRLEToFile(tooLong);
    EXPECT_FALSE(fs::exists(tooLong));
}

TEST_F(UndoCanvas, WhatACrashedProgramLeftComesBackWithItsHistory)
{
    // Another program of ours: works in the folder and dies.
    const pid_t child = fork();
    if (child == 0) {
        SnapshotStore store;
        auto rep = BitmapRep::create(50, 20);
        for (int i = 0; i < 3; ++i) {
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 50; ++x) {
                    std::uint8_t* const p = rep->view().pixel(x, y);
                    p[0] = std::uint8_t(100 + i);
                    p[1] = p[2] = p[3] = std::uint8_t(40 * i);
                }
            SnapshotEncoder encoder;
            std::string error;
            store.begin(i);
            store.stage(i, SnapshotStore::Half::Alpha, encodeAlphaRLE(rep->view()), error);
            store.stage(i, SnapshotStore::Half::Colour, encoder.encode(rep->view()), error);
            store.commit(i);
            store.record({"/pictures/lost.png", 50, 20, i, i});
        }
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);

    make(10, 10); // a picture opened by the launch itself comes first
    const auto work = findRecoverableWork();
    ASSERT_TRUE(work);
    EXPECT_EQ(work->imagePath, "/pictures/lost.png");
    ASSERT_TRUE(recoverInto(*canvas, *work));
    settle();
    EXPECT_EQ(canvas->mImagePath, "/pictures/lost.png");
    EXPECT_EQ(canvas->imageSize().width, 50);
    expectNumbers(2, 2);
    expectPicture(102, 80);
    canvas->undo();
    expectPicture(101, 40);
    change(255, 200);
    expectNumbers(2, 2);
    EXPECT_FALSE(findRecoverableWork());
    EXPECT_FALSE(recoverInto(*canvas, *work));
    expectPicture(255, 200);
}

} // namespace
