// SPDX-License-Identifier: GPL-3.0-or-later
/// What programs leave that do not quit: found, taken over, thrown away only when asked.
#include "undo/LeftWork.h"
#include "support/TemporaryFolder.h"
#include "undo/AlphaRLE.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotStore.h"
#include "undo/TestPictures.h"
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace zp;
using namespace zp::test;
namespace fs = std::filesystem;
using Half = SnapshotStore::Half;
using Bytes = std::vector<std::uint8_t>;

namespace
{

class LeftWork : public testing::Test
{
protected:
    fs::path folder() const { return temporary / "Zelpane Undo Support"; }
    static std::set<std::string> names(const fs::path& path)
    {
        std::set<std::string> result;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(path, none)) result.insert(entry.path().filename());
        return result;
    }
    static void write(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }
    static RecoverableWork work(int number, int newest, std::int64_t time = 1, const std::string& path = "/a b.png")
    {
        return {path, 40, 30, number, newest, time, true};
    }
    /// One whole pair of real files; @p tint tells them apart.
    static bool take(SnapshotStore& store, int number, std::uint8_t tint = 0, std::int64_t time = 1)
    {
        Picture picture(40, 30);
        paintPhoto(picture.view(), 1u + tint);
        SnapshotEncoder encoder;
        std::string error;
        store.begin(number);
        const bool staged = store.stage(number, Half::Alpha, encodeAlphaRLE(picture.view()), error) &
                            store.stage(number, Half::Colour, encoder.encode(picture.view()), error);
        const bool whole = store.commit(number, {"Fill", time});
        if (whole) store.record(work(number, number, time));
        return staged && whole;
    }
    /// Runs @p work in a process of its own, which then dies without any good-bye.
    static void inACrashingProgram(const std::function<void()>& work)
    {
        const pid_t child = fork();
        if (child == 0) {
            work();
            raise(SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    }

    const zp::test::TemporaryFolder own;
    const fs::path temporary = own.path();
    const zp::test::TemporaryVariable variable{"ZELPANE_TMP", temporary};
    const zp::test::TemporaryVariable session{"XDG_RUNTIME_DIR", temporary / "none"};
};

TEST_F(LeftWork, IsNoneAfterAQuit)
{
    {
        SnapshotStore store;
        ASSERT_TRUE(take(store, 0));
        store.remove();
    }
    EXPECT_TRUE(leftPictures().empty());
    SnapshotStore next;
    next.reset();
    EXPECT_TRUE(leftPictures().empty());
}

TEST_F(LeftWork, IsFoundBeforeAndAfterAnotherProgramTookTheName)
{
    inACrashingProgram([] {
        SnapshotStore store;
        for (int i = 0; i < 4; ++i) take(store, i, std::uint8_t(i));
        store.record(work(2, 3, 5, "/tmp/odd\nname")); // one step undone
    });
    for (const bool named : {false, true}) {
        SnapshotStore store;
        if (named) {
            ASSERT_TRUE(take(store, 0, 77));
        }
        const auto left = leftPictures();
        ASSERT_EQ(left.size(), 1u) << named;
        EXPECT_EQ(left[0].work.imagePath, "/tmp/odd\nname");
        EXPECT_EQ(left[0].work.width, 40);
        EXPECT_EQ(left[0].work.height, 30);
        EXPECT_EQ(left[0].work.number, 2);
        EXPECT_EQ(left[0].work.newest, 3);
        if (!named) continue;
        const auto aside = takeOver(store, left[0]);
        ASSERT_TRUE(aside);
        EXPECT_TRUE(leftPictures().empty());
        ASSERT_TRUE(store.bringBack(*aside));
        EXPECT_EQ(names(folder()), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".C_0.step", "C_1.jpg", "C_1.rle",
                                                          ".C_1.step", "C_2.jpg", "C_2.rle", ".C_2.step", "C_3.jpg",
                                                          "C_3.rle", ".C_3.step", ".recovery"}));
        EXPECT_FALSE(takeOver(store, left[0])) << "only once";
        EXPECT_TRUE(take(store, 3)) << "and it goes on from there";
        store.remove();
        EXPECT_TRUE(names(temporary).empty());
    }
}

TEST_F(LeftWork, IsGoneWhenItWasDiscarded)
{
    inACrashingProgram([] {
        SnapshotStore store;
        take(store, 0);
    });
    ASSERT_EQ(leftPictures().size(), 1u);
    discard(leftPictures()[0]);
    EXPECT_TRUE(leftPictures().empty());
    EXPECT_TRUE(names(temporary).empty());
}

TEST_F(LeftWork, OfSeveralProgramsIsAllThereTheNewestFirst)
{
    for (const std::int64_t time : {20, 30, 10})
        inACrashingProgram([time] {
            SnapshotStore store;
            take(store, 0, 0, time);
        });
    auto left = leftPictures();
    ASSERT_EQ(left.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(left[i].work.time, std::int64_t(30 - 10 * int(i)));
    discard(left[1]);
    left = leftPictures();
    ASSERT_EQ(left.size(), 2u) << "one alone went";
    EXPECT_EQ(left[1].work.time, 10);
}

TEST_F(LeftWork, HoldsThePicturesAsideOfACrashedProgramToo)
{
    inACrashingProgram([] {
        SnapshotStore store;
        take(store, 0, 0, 10);
        store.putAside();
        take(store, 0, 1, 20);
        take(store, 1, 2, 30);
    });
    SnapshotStore store;
    ASSERT_TRUE(store.reset());
    const auto left = leftPictures();
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0].work.newest, 1);
    EXPECT_EQ(left[1].work.newest, 0);
}

TEST_F(LeftWork, IsNotTouchedByAProgramThatShallNot)
{
    inACrashingProgram([] {
        SnapshotStore store;
        take(store, 0);
    });
    const auto before = names(folder());
    {
        SnapshotStore script;
        script.leaveLeftWorkAlone(true);
        ASSERT_TRUE(take(script, 0, 9));
        EXPECT_NE(script.folder(), folder());
        script.remove();
    }
    EXPECT_EQ(names(folder()), before);
    EXPECT_EQ(leftPictures().size(), 1u);
}

TEST_F(LeftWork, SurvivesACrashAfterItsRecovery)
{
    inACrashingProgram([] {
        SnapshotStore store;
        take(store, 0);
        take(store, 1);
    });
    inACrashingProgram([] {
        SnapshotStore store;
        store.reset();
        if (const auto aside = takeOver(store, leftPictures().at(0))) store.bringBack(*aside);
    });
    const auto left = leftPictures();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].work.number, 1);
}

TEST_F(LeftWork, OfACrashInsideAStepIsTheLastWholeOne)
{
    // Killed after each part of writing number 2, which is written anew after an undo.
    for (int part = 0; part < 5; ++part) {
        inACrashingProgram([part] {
            SnapshotStore store;
            for (int i = 0; i < 4; ++i) take(store, i, std::uint8_t(i));
            std::string error;
            if (part >= 1) store.begin(2);
            if (part >= 2) store.stage(2, Half::Alpha, Bytes{1, 2, 3}, error);
            if (part >= 3) store.stage(2, Half::Colour, Bytes{4, 5, 6}, error);
            // Between the two renames: the alpha file stands, the colour file does not.
            if (part >= 4) rename((store.folder() + "/.C_2.rle.part").c_str(), (store.folder() + "/C_2.rle").c_str());
        });
        const auto left = leftPictures();
        ASSERT_EQ(left.size(), 1u) << "part " << part;
        EXPECT_EQ(left[0].work.number, part == 0 ? 3 : 1) << "part " << part;
        EXPECT_EQ(left[0].work.newest, part == 0 ? 3 : 1) << "part " << part;
        discard(left[0]);
    }
}

TEST_F(LeftWork, OfAProgramKilledAtAnyMomentIsAWholePairOfOneNumber)
{
    // Alpha and colour both say the number, so that halves of different steps would be seen.
    const auto alphaOf = [](int number) { return std::uint8_t(number * 7); };
    const auto greyOf = [](int number) { return number * 11 % 256; };
    std::minstd_rand random(5);
    const int rounds = std::getenv("ZP_LONG") ? 500 : 40;
    for (int round = 0; round < rounds; ++round) {
        int whole[2]; // a byte comes through when the first step stands, however slow the machine
        ASSERT_EQ(pipe(whole), 0);
        const pid_t child = fork();
        if (child == 0) {
            SnapshotStore store;
            SnapshotEncoder encoder;
            Picture picture(60, 50);
            std::string error;
            // Up and down the numbers, as after undos: most steps replace older ones. Zero, the picture as it was
            // opened, is written once.
            for (int i = 0;; ++i) {
                const int number = i == 0 ? 0 : 1 + (i % 20 < 12 ? i % 20 : i % 20 - 6);
                for (int y = 0; y < 50; ++y)
                    for (int x = 0; x < 60; ++x) {
                        std::uint8_t* const p = picture.view().pixel(x, y);
                        p[0] = alphaOf(number);
                        p[1] = p[2] = p[3] = std::uint8_t(greyOf(number));
                    }
                store.begin(number);
                store.stage(number, Half::Alpha, encodeAlphaRLE(picture.view()), error);
                store.stage(number, Half::Colour, encoder.encode(picture.view()), error);
                store.commit(number);
                store.record({"", 60, 50, number, number});
                if (i == 0 && ::write(whole[1], "x", 1) != 1) _exit(1);
            }
        }
        char told = 0;
        ASSERT_EQ(::read(whole[0], &told, 1), 1);
        ::close(whole[0]);
        ::close(whole[1]);
        usleep(useconds_t(500 + random() % 15000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        std::string there; // what the killed one left
        for (const auto& entry : fs::recursive_directory_iterator(temporary))
            there += entry.path().filename().string() + " " +
                     (entry.is_regular_file() ? std::to_string(entry.file_size()) : "") + "\n";
        SnapshotStore store;
        store.reset();
        const auto left = leftPictures();
        ASSERT_FALSE(left.empty()) << "round " << round << "\n" << there;
        const auto aside = takeOver(store, left[0]);
        ASSERT_TRUE(aside && store.bringBack(*aside));
        for (int number = left[0].work.number; number <= left[0].work.newest; ++number) {
            const auto colour = store.read(number, Half::Colour), alpha = store.read(number, Half::Alpha);
            ASSERT_TRUE(colour && alpha);
            Picture back(60, 50);
            ASSERT_TRUE(decodeSnapshotJPEG(*colour, back.view()));
            EXPECT_NEAR(back.view().pixel(30, 30)[1], greyOf(number), 3) << "round " << round;
            ASSERT_EQ(decodeAlphaRLE(*alpha, back.view()), 60 * 50);
            EXPECT_EQ(back.view().pixel(30, 30)[0], alphaOf(number)) << "round " << round;
        }
        store.remove();
    }
}

struct Leftover {
    const char* name;
    const char* record; ///< null: as it was written
    bool whole;
    bool offered;
};

class Leftovers : public LeftWork, public testing::WithParamInterface<Leftover>
{
};

TEST_P(Leftovers, AreOfferedWhenAStepOfThemCanBeRestored)
{
    const Leftover& leftover = GetParam();
    inACrashingProgram([&] {
        SnapshotStore store;
        take(store, 0);
        if (leftover.record) write(fs::path(store.folder()) / ".recovery", leftover.record);
        if (!leftover.whole) fs::resize_file(fs::path(store.folder()) / "C_0.jpg", 500);
    });
    EXPECT_EQ(leftPictures().size(), leftover.offered ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, Leftovers,
    testing::Values(
        Leftover{"Whole", nullptr, true, true}, Leftover{"ColourFileCutShort", nullptr, false, false},
        Leftover{"Nonsense", "nonsense", true, false},
        Leftover{"PathCutShort", "Zelpane recovery 1\nsize 40 30\nnumber 0\nnewest 0\npath 9999\nshort\n", true, false},
        Leftover{"NoSize", "Zelpane recovery 1\nsize 0 30\nnumber 0\nnewest 0\npath 0\n\n", true, false},
        Leftover{"NoNumber", "Zelpane recovery 1\nsize 40 30\nnumber -1\nnewest 0\npath 0\n\n", true, false},
        Leftover{"FallsBackToTheLastWhole", "Zelpane recovery 1\nsize 40 30\nnumber 7\nnewest 9\npath 0\n\n", true,
                 true}),
    [](const auto& of) { return std::string(of.param.name); });

} // namespace
