// SPDX-License-Identifier: GPL-3.0-or-later
/// The undo folder: private, never through a link, whole pairs only, whatever fails; and what a crash leaves.
#include "undo/SnapshotStore.h"
#include "support/TemporaryFolder.h"
#include "undo/AlphaRLE.h"
#include "undo/SnapshotJPEG.h"
#include "undo/TestPictures.h"
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zp;
using namespace zp::test;
namespace fs = std::filesystem;
using Half = SnapshotStore::Half;
using Bytes = std::vector<std::uint8_t>;

namespace
{

class SnapshotStoreTest : public testing::Test
{
protected:
    void TearDown() override { fs::permissions(folder(), fs::perms::owner_all, ignored); }
    fs::path folder() const { return temporary / "Zelpane Undo Support"; }
    std::string beside() const { return folder().string() + "-" + std::to_string(geteuid()); }
    static std::set<std::string> names(const fs::path& path)
    {
        std::set<std::string> result;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(path, none)) result.insert(entry.path().filename());
        return result;
    }
    std::set<std::string> names() const { return names(folder()); }
    static void write(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }
    static std::string text(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// One whole pair of real files; @p tint tells them apart.
    static bool take(SnapshotStore& store, int number, std::uint8_t tint = 0,
                     const std::string& path = "/pictures/a b.png")
    {
        Picture picture(40, 30);
        paintPhoto(picture.view(), 1u + tint);
        SnapshotEncoder encoder;
        std::string error;
        store.begin(number);
        const bool staged = store.stage(number, Half::Alpha, encodeAlphaRLE(picture.view()), error) &
                            store.stage(number, Half::Colour, encoder.encode(picture.view()), error);
        const bool whole = store.commit(number);
        if (whole) store.record({path, 40, 30, number, number});
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
    std::error_code ignored;
};

TEST_F(SnapshotStoreTest, MakesAPrivateEmptyFolderAndRemovesItAtTheEnd)
{
    const mode_t mask = umask(0);
    {
        SnapshotStore store;
        EXPECT_TRUE(store.reset());
        umask(mask);
        struct stat status {
        };
        ASSERT_EQ(lstat(folder().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700u);
        EXPECT_EQ(store.folder(), folder());
        write(folder() / "C_0.jpg", "old");
        fs::create_directories(folder() / "deep" / "deeper");
        write(folder() / "deep" / "deeper" / "file", "x");
        EXPECT_TRUE(store.reset());
        EXPECT_TRUE(names().empty());
        ASSERT_TRUE(take(store, 0));
        store.remove();
        EXPECT_FALSE(fs::exists(folder()));
    }
    EXPECT_TRUE(names(temporary).empty());
}

TEST_F(SnapshotStoreTest, TightensAFolderThatStoodOpen)
{
    fs::create_directory(folder());
    chmod(folder().c_str(), 0777);
    SnapshotStore store;
    ASSERT_TRUE(store.reset());
    struct stat status {
    };
    lstat(folder().c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0700u);
}

TEST_F(SnapshotStoreTest, ALinkInItsPlaceIsRemovedAndItsTargetLeftAlone)
{
    fs::create_directory(temporary / "mine");
    write(temporary / "mine" / "C_0.jpg", "precious");
    fs::create_directory_symlink(temporary / "mine", folder());
    SnapshotStore store;
    ASSERT_TRUE(take(store, 0));
    EXPECT_FALSE(fs::is_symlink(folder()));
    EXPECT_EQ(text(temporary / "mine" / "C_0.jpg"), "precious");
    store.reset();
    EXPECT_EQ(text(temporary / "mine" / "C_0.jpg"), "precious");
}

TEST_F(SnapshotStoreTest, LinksInsideAreRemovedNotFollowed)
{
    write(temporary / "mine", "precious");
    fs::create_directory(temporary / "folder");
    write(temporary / "folder" / "kept", "precious");
    SnapshotStore store;
    ASSERT_TRUE(store.reset());
    fs::create_symlink(temporary / "mine", folder() / "C_0.jpg");
    fs::create_symlink(temporary / "mine", folder() / ".C_0.jpg.part");
    fs::create_symlink(temporary / "mine", folder() / ".C_0.rle.part");
    EXPECT_FALSE(store.read(0, Half::Colour)) << "not through a link";
    EXPECT_TRUE(take(store, 0));
    EXPECT_EQ(text(temporary / "mine"), "precious");
    fs::create_directory_symlink(temporary / "folder", folder() / "C_5.jpg");
    store.reset();
    EXPECT_EQ(text(temporary / "folder" / "kept"), "precious");
    EXPECT_TRUE(names().empty());
}

TEST_F(SnapshotStoreTest, ANameThatIsTakenIsLeftToItsOwner)
{
    if (geteuid() != 0) GTEST_SKIP() << "only root can make another user's folder";
    fs::create_directory(folder());
    ASSERT_EQ(chown(folder().c_str(), 4242, 4242), 0);
    write(folder() / "C_0.jpg", "theirs");
    SnapshotStore store;
    ASSERT_TRUE(take(store, 0));
    EXPECT_EQ(store.folder(), beside());
    EXPECT_EQ(text(folder() / "C_0.jpg"), "theirs");
    struct stat status {
    };
    lstat(beside().c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0700u);
    store.remove();
    EXPECT_FALSE(fs::exists(beside()));
    EXPECT_EQ(text(folder() / "C_0.jpg"), "theirs");
}

TEST_F(SnapshotStoreTest, TwoRunningProgramsHaveFoldersOfTheirOwn)
{
    SnapshotStore first, second, third;
    ASSERT_TRUE(take(first, 0));
    ASSERT_TRUE(take(second, 0));
    EXPECT_FALSE(second.recoverableWork()) << "a running program's work is not a crashed one's";
    ASSERT_TRUE(third.reset());
    EXPECT_EQ(first.folder(), folder());
    EXPECT_EQ(second.folder(), beside());
    EXPECT_EQ(third.folder(), beside() + "-2");
    EXPECT_TRUE(first.read(0, Half::Colour));
    third.remove();
    second.remove();
    first.remove();
    EXPECT_TRUE(names(temporary).empty());
}

TEST_F(SnapshotStoreTest, PairsComeBackByteForByte)
{
    SnapshotStore store;
    const Bytes alpha = {1, 2, 2, 0}, colour = {9, 8, 7};
    std::string error;
    ASSERT_TRUE(store.begin(12));
    EXPECT_TRUE(store.stage(12, Half::Alpha, alpha, error));
    EXPECT_TRUE(store.stage(12, Half::Colour, colour, error));
    EXPECT_EQ(names(), (std::set<std::string>{".C_12.jpg.part", ".C_12.rle.part"}))
        << "nothing in place before the end";
    EXPECT_TRUE(store.commit(12));
    EXPECT_EQ(names(), (std::set<std::string>{"C_12.jpg", "C_12.rle"}));
    EXPECT_EQ(store.read(12, Half::Alpha), alpha);
    EXPECT_EQ(store.read(12, Half::Colour), colour);
    EXPECT_FALSE(store.read(13, Half::Colour));
    struct stat status {
    };
    lstat((folder() / "C_12.jpg").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(SnapshotStoreTest, ANewSnapshotRemovesTheNinetyNineAboveIt)
{
    SnapshotStore store;
    ASSERT_TRUE(store.reset());
    for (const int number : {1, 2, 3, 4, 101, 102, 300}) {
        write(folder() / ("C_" + std::to_string(number) + ".jpg"), "c");
        write(folder() / ("C_" + std::to_string(number) + ".rle"), "a");
    }
    write(folder() / "C_50.rle", "alone: only a colour file is looked for");
    ASSERT_TRUE(take(store, 2));
    EXPECT_EQ(names(), (std::set<std::string>{"C_1.jpg", "C_1.rle", "C_2.jpg", "C_2.rle", "C_50.rle", "C_102.jpg",
                                              "C_102.rle", "C_300.jpg", "C_300.rle", ".recovery"}));
    EXPECT_TRUE(store.begin(INT32_MAX));
}

TEST_F(SnapshotStoreTest, AHalfThatFailsLeavesNothingOfTheNumber)
{
    SnapshotStore store;
    ASSERT_TRUE(take(store, 0));
    ASSERT_TRUE(take(store, 1));
    ASSERT_TRUE(take(store, 1, 5)) << "over an older one of the same number";
    std::string error;
    store.begin(1);
    store.stage(1, Half::Alpha, Bytes{1}, error);
    EXPECT_FALSE(store.commit(1));
    EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".recovery"}));
}

TEST_F(SnapshotStoreTest, ALimitOnFileSizesLosesOnlyTheSnapshot)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_DFL); // the store must see to it that this is not the end
        SnapshotStore store;
        const bool before = take(store, 0);
        const rlimit limit{600, 600};
        setrlimit(RLIMIT_FSIZE, &limit);
        std::string error;
        store.begin(1);
        const bool small = store.stage(1, Half::Alpha, Bytes(100, 7), error);
        const bool large = store.stage(1, Half::Colour, Bytes(100000, 7), error);
        const bool told = !error.empty();
        const bool whole = store.commit(1);
        _exit(before && small && !large && told && !whole && store.read(0, Half::Colour) &&
                      !store.read(1, Half::Colour) && !store.read(1, Half::Alpha)
                  ? 0
                  : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".recovery"}));
}

TEST_F(SnapshotStoreTest, AFullDiskLosesOnlyTheSnapshot)
{
    // A disk of one megabyte, where a mount is allowed.
    if (geteuid() != 0) GTEST_SKIP() << "only root can mount";
    const std::string mount = "mount -t tmpfs -o size=1m none '" + temporary.string() + "' 2>/dev/null";
    if (std::system(mount.c_str()) != 0) GTEST_SKIP() << "mounting is not allowed here";
    {
        SnapshotStore store;
        EXPECT_TRUE(take(store, 0));
        std::string error;
        store.begin(1);
        EXPECT_TRUE(store.stage(1, Half::Alpha, Bytes(1000, 7), error));
        EXPECT_FALSE(store.stage(1, Half::Colour, Bytes(2000000, 7), error));
        EXPECT_EQ(error, "No space left on device");
        EXPECT_FALSE(store.commit(1));
        EXPECT_TRUE(take(store, 1)) << "there is room again";
        EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", "C_1.jpg", "C_1.rle", ".recovery"}));
        store.remove();
    }
    EXPECT_EQ(std::system(("umount '" + temporary.string() + "'").c_str()), 0);
}

TEST_F(SnapshotStoreTest, AFolderThatVanishesIsMadeAgain)
{
    SnapshotStore store;
    ASSERT_TRUE(take(store, 0));
    fs::remove_all(folder());
    EXPECT_FALSE(store.read(0, Half::Colour));
    std::string error;
    EXPECT_FALSE(store.stage(0, Half::Colour, Bytes{1}, error));
    EXPECT_TRUE(take(store, 1));
    EXPECT_TRUE(store.read(1, Half::Colour));
    fs::remove_all(temporary);
    EXPECT_TRUE(take(store, 2));
    EXPECT_TRUE(fs::exists(folder() / "C_2.jpg"));
}

TEST_F(SnapshotStoreTest, WithoutAnyPlaceForAFolderNothingHappens)
{
    write(temporary / "file", "no folder");
    setenv("ZELPANE_TMP", (temporary / "file").c_str(), 1);
    SnapshotStore store;
    EXPECT_FALSE(store.reset());
    EXPECT_FALSE(store.begin(0));
    EXPECT_FALSE(take(store, 0));
    EXPECT_FALSE(store.read(0, Half::Colour));
    EXPECT_FALSE(store.recoverableWork());
    EXPECT_FALSE(store.adoptRecoverable());
    EXPECT_EQ(store.folder(), "");
    store.remove();
    EXPECT_EQ(text(temporary / "file"), "no folder");
}

TEST_F(SnapshotStoreTest, AfterAQuitThereIsNothingToRecover)
{
    {
        SnapshotStore store;
        ASSERT_TRUE(take(store, 0));
        store.remove();
    }
    SnapshotStore next;
    EXPECT_FALSE(next.recoverableWork());
    next.reset();
    EXPECT_FALSE(next.recoverableWork());
}

TEST_F(SnapshotStoreTest, ACrashedProgramsWorkIsFoundBeforeAndAfterTheFolderIsEmptied)
{
    inACrashingProgram([] {
        SnapshotStore store;
        for (int i = 0; i < 4; ++i) take(store, i, std::uint8_t(i), "/tmp/odd\nname");
        store.record({"/tmp/odd\nname", 40, 30, 2, 3}); // one step undone
    });
    SnapshotStore store;
    const auto early = store.recoverableWork();
    ASSERT_TRUE(early);
    EXPECT_EQ(early->imagePath, "/tmp/odd\nname");
    EXPECT_EQ(early->width, 40);
    EXPECT_EQ(early->height, 30);
    EXPECT_EQ(early->number, 2);
    EXPECT_EQ(early->newest, 3);
    EXPECT_TRUE(names().empty()) << "this program's own folder starts empty";
    ASSERT_TRUE(take(store, 0, 77));
    store.reset();
    ASSERT_TRUE(store.recoverableWork());
    ASSERT_TRUE(store.adoptRecoverable());
    EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", "C_1.jpg", "C_1.rle", "C_2.jpg", "C_2.rle",
                                              "C_3.jpg", "C_3.rle", ".recovery"}));
    EXPECT_FALSE(store.recoverableWork());
    EXPECT_FALSE(store.adoptRecoverable());
    EXPECT_TRUE(take(store, 3)) << "and it goes on from there";
    SnapshotStore other;
    EXPECT_TRUE(other.reset());
    EXPECT_NE(other.folder(), store.folder()) << "the lock came with the folder";
    other.remove();
    store.remove();
    EXPECT_TRUE(names(temporary).empty());
}

TEST_F(SnapshotStoreTest, WorkThatWasDeclinedIsGone)
{
    inACrashingProgram([] {
        SnapshotStore store;
        take(store, 0);
    });
    SnapshotStore store;
    ASSERT_TRUE(store.recoverableWork());
    store.discardRecoverable();
    EXPECT_FALSE(store.recoverableWork());
    store.remove();
    EXPECT_TRUE(names(temporary).empty());
}

TEST_F(SnapshotStoreTest, ACrashAfterARecoveryKeepsTheWork)
{
    inACrashingProgram([] {
        SnapshotStore store;
        take(store, 0);
        take(store, 1);
    });
    inACrashingProgram([] {
        SnapshotStore store;
        store.adoptRecoverable();
    });
    SnapshotStore store;
    const auto work = store.recoverableWork();
    ASSERT_TRUE(work);
    EXPECT_EQ(work->number, 1);
}

TEST_F(SnapshotStoreTest, ACrashInsideASnapshotBringsBackTheLastWholeOne)
{
    // Killed after each step of writing number 2, which is written anew after an undo.
    for (int step = 0; step < 5; ++step) {
        inACrashingProgram([step] {
            SnapshotStore store;
            for (int i = 0; i < 4; ++i) take(store, i, std::uint8_t(i));
            std::string error;
            if (step >= 1) store.begin(2);
            if (step >= 2) store.stage(2, Half::Alpha, Bytes{1, 2, 3}, error);
            if (step >= 3) store.stage(2, Half::Colour, Bytes{4, 5, 6}, error);
            // Between the two renames: the alpha file stands, the colour file does not.
            if (step >= 4) rename((store.folder() + "/.C_2.rle.part").c_str(), (store.folder() + "/C_2.rle").c_str());
        });
        SnapshotStore store;
        const auto work = store.recoverableWork();
        ASSERT_TRUE(work) << "step " << step;
        EXPECT_EQ(work->number, step == 0 ? 3 : 1) << "step " << step;
        EXPECT_EQ(work->newest, step == 0 ? 3 : 1) << "step " << step;
        store.discardRecoverable();
        store.remove();
    }
}

TEST_F(SnapshotStoreTest, KilledAtAnyMomentItLeavesAWholePairOfOneNumber)
{
    // Alpha and colour both say the number, so that halves of different snapshots would be seen.
    const auto alphaOf = [](int number) { return std::uint8_t(number * 7); };
    const auto greyOf = [](int number) { return number * 11 % 256; };
    std::minstd_rand random(5);
    for (int round = 0; round < 40; ++round) {
        int whole[2]; // a byte comes through when the first snapshot stands, however slow the machine
        ASSERT_EQ(pipe(whole), 0);
        const pid_t child = fork();
        if (child == 0) {
            SnapshotStore store;
            SnapshotEncoder encoder;
            Picture picture(60, 50);
            std::string error;
            // Up and down the numbers, as after undos: most snapshots replace older ones.
            for (int i = 0;; ++i) {
                const int number = i % 20 < 12 ? i % 20 : i % 20 - 6;
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
        char told;
        ASSERT_EQ(::read(whole[0], &told, 1), 1);
        close(whole[0]);
        close(whole[1]);
        usleep(useconds_t(500 + random() % 15000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        SnapshotStore store;
        const auto work = store.recoverableWork();
        ASSERT_TRUE(work) << "round " << round;
        ASSERT_TRUE(store.adoptRecoverable());
        for (int number = work->number; number <= work->newest; ++number) {
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

TEST_F(SnapshotStoreTest, DamagedLeftoversAreNotOffered)
{
    const auto crashWith = [&](const std::string& record, bool colours) {
        inACrashingProgram([&] {
            SnapshotStore store;
            take(store, 0);
            if (!record.empty()) write(fs::path(store.folder()) / ".recovery", record);
            if (!colours) fs::resize_file(fs::path(store.folder()) / "C_0.jpg", 500);
        });
        SnapshotStore store;
        const bool offered = store.recoverableWork().has_value();
        store.discardRecoverable();
        store.remove();
        return offered;
    };
    EXPECT_TRUE(crashWith("", true));
    EXPECT_FALSE(crashWith("", false)) << "a colour file cut short";
    EXPECT_FALSE(crashWith("nonsense", true));
    EXPECT_FALSE(crashWith("Zelpane recovery 1\nsize 40 30\nnumber 0\nnewest 0\npath 9999\nshort\n", true));
    EXPECT_FALSE(crashWith("Zelpane recovery 1\nsize 0 30\nnumber 0\nnewest 0\npath 0\n\n", true));
    EXPECT_FALSE(crashWith("Zelpane recovery 1\nsize 40 30\nnumber -1\nnewest 0\npath 0\n\n", true));
    EXPECT_TRUE(crashWith("Zelpane recovery 1\nsize 40 30\nnumber 7\nnewest 9\npath 0\n\n", true)) << "falls back to 0";
    EXPECT_TRUE(names(temporary).empty());
}

} // namespace
