// SPDX-License-Identifier: GPL-3.0-or-later
/// The undo folder: private, never through a link, whole pairs only, whatever fails; and the pictures aside in it.
#include "undo/SnapshotStore.h"
#include "support/TemporaryFolder.h"
#include "undo/AlphaRLE.h"
#include "undo/LeftWork.h"
#include "undo/SnapshotJPEG.h"
#include "undo/TestPictures.h"
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sys/prctl.h>
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

    const zp::test::TemporaryFolder own;
    const fs::path temporary = own.path();
    const zp::test::TemporaryVariable variable{"ZELPANE_TMP", temporary};
    const zp::test::TemporaryVariable session{"XDG_RUNTIME_DIR", temporary / "none"};
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

/// What somebody does to the name of our folder, again and again, as quickly as it goes.
void swapForEver(const fs::path& name, const fs::path& trap, const fs::path& aside)
{
    for (;;) {
        (void)!::symlink(trap.c_str(), name.c_str());
        ::unlink(name.c_str());
        ::mkdir(name.c_str(), 0777);
        ::rename(name.c_str(), aside.c_str());
        (void)!::symlink(trap.c_str(), name.c_str());
        ::rename(aside.c_str(), name.c_str());
        ::rename(name.c_str(), aside.c_str());
        ::unlink(name.c_str());
        ::rmdir(name.c_str());
        ::rmdir(aside.c_str());
    }
}

/// Lives as long as the test, and ends with it.
class Swapper
{
public:
    /// @param user  who does it; 0: this one
    Swapper(uid_t user, const fs::path& name, const fs::path& trap, const fs::path& aside) : mProcess(fork())
    {
        if (mProcess != 0) return;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (user != 0 && setresuid(user, user, user) != 0) _exit(1);
        swapForEver(name, trap, aside);
    }
    ~Swapper()
    {
        kill(mProcess, SIGKILL);
        waitpid(mProcess, nullptr, 0);
    }
    Swapper(const Swapper&) = delete;
    Swapper& operator=(const Swapper&) = delete;

private:
    pid_t mProcess;
};

constexpr int kRacingRounds = 300;

TEST_F(SnapshotStoreTest, ANameThatIsSwappedBetweenTwoLooksLeadsNowhereElse)
{
    fs::create_directory(temporary / "trap");
    write(temporary / "trap" / "C_0.jpg", "precious");
    fs::create_directory(temporary / "aside");
    const Swapper swapper(0, folder(), temporary / "trap", temporary / "aside" / "it");
    int taken = 0;
    for (int round = 0; round < kRacingRounds; ++round) {
        SnapshotStore store;
        taken += take(store, 0);
        ASSERT_EQ(text(temporary / "trap" / "C_0.jpg"), "precious");
        ASSERT_EQ(names(temporary / "trap").size(), 1u);
        store.remove();
        ASSERT_EQ(text(temporary / "trap" / "C_0.jpg"), "precious");
    }
    EXPECT_GT(taken, 0) << "nothing was tried";
}

/// A folder that everybody may write to, as the system's for temporary files: names there are only their owner's to
/// take away.
TEST_F(SnapshotStoreTest, AnotherUserWinsNoRaceForTheNameInAFolderForEverybody)
{
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
    constexpr uid_t kProgram = 4343, kOther = 4242;
    ASSERT_EQ(chmod(temporary.c_str(), 01777), 0);
    fs::create_directory(temporary / "trap");
    chmod((temporary / "trap").c_str(), 0777);
    fs::create_directory(temporary / "aside");
    chmod((temporary / "aside").c_str(), 0777);
    const Swapper swapper(kOther, folder(), temporary / "trap", temporary / "aside" / "it");
    const pid_t program = fork();
    if (program == 0) { // the program has no rights but its user's
        if (setresgid(kProgram, kProgram, kProgram) != 0 || setresuid(kProgram, kProgram, kProgram) != 0) _exit(2);
        int taken = 0, beside = 0;
        for (int round = 0; round < kRacingRounds; ++round) {
            SnapshotStore store;
            if (!take(store, 0)) continue;
            ++taken;
            struct stat status {
            };
            // By the time of this look the folder cannot be anybody else's: it is held, and ours.
            if (lstat(store.folder().c_str(), &status) != 0 || status.st_uid != kProgram || !S_ISDIR(status.st_mode) ||
                (status.st_mode & 07777) != 0700)
                _exit(3);
            beside += store.folder() != folder();
            store.remove();
        }
        _exit(taken < kRacingRounds ? 4 : beside == 0 ? 5 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(program, &status, 0), program);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0) << "3: not our folder; 4: no folder; 5: the other user was never there first";
    EXPECT_TRUE(names(temporary / "trap").empty());
    EXPECT_TRUE(names(temporary / "aside").size() <= 1);
}

TEST_F(SnapshotStoreTest, TwoRunningProgramsHaveFoldersOfTheirOwn)
{
    SnapshotStore first, second, third;
    ASSERT_TRUE(take(first, 0));
    ASSERT_TRUE(take(second, 0));
    EXPECT_TRUE(leftPictures().empty()) << "a running program's work is not a crashed one's";
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
    Picture picture(40, 30);
    paintPhoto(picture.view(), 3);
    SnapshotEncoder encoder;
    const auto file = encoder.encode(picture.view());
    const Bytes alpha = {1, 2, 2, 0}, colour(file.begin(), file.end());
    std::string error;
    ASSERT_TRUE(store.begin(12));
    EXPECT_TRUE(store.stage(12, Half::Alpha, alpha, error));
    EXPECT_TRUE(store.stage(12, Half::Colour, colour, error));
    EXPECT_EQ(names(), (std::set<std::string>{".C_12.jpg.part", ".C_12.rle.part"}))
        << "nothing in place before the end";
    EXPECT_TRUE(store.commit(12));
    EXPECT_EQ(names(), (std::set<std::string>{"C_12.jpg", "C_12.rle", ".C_12.step"}));
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
    EXPECT_EQ(names(), (std::set<std::string>{"C_1.jpg", "C_1.rle", "C_2.jpg", "C_2.rle", ".C_2.step", "C_50.rle",
                                              "C_102.jpg", "C_102.rle", "C_300.jpg", "C_300.rle", ".recovery"}));
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
    EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".C_0.step", ".recovery"}));
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
    EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".C_0.step", ".recovery"}));
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
        EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".C_0.step", "C_1.jpg", "C_1.rle", ".C_1.step",
                                                  ".recovery"}));
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
    EXPECT_TRUE(leftPictures().empty());
    EXPECT_FALSE(store.putAside());
    EXPECT_FALSE(store.bringBack(1));
    EXPECT_EQ(store.folder(), "");
    store.remove();
    EXPECT_EQ(text(temporary / "file"), "no folder");
}

TEST_F(SnapshotStoreTest, ADamagedHalfIsKnownAndNotRead)
{
    struct Damage {
        const char* file;
        Half half;
    };
    for (const Damage& damage : {Damage{"C_0.jpg", Half::Colour}, Damage{"C_0.rle", Half::Alpha}}) {
        SnapshotStore store;
        ASSERT_TRUE(take(store, 0));
        EXPECT_FALSE(store.damaged(0, damage.half));
        const fs::path path = folder() / damage.file;
        std::string bytes = text(path);
        bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 1);
        write(path, bytes);
        EXPECT_TRUE(store.damaged(0, damage.half)) << damage.file;
        EXPECT_FALSE(store.read(0, damage.half)) << damage.file;
        EXPECT_TRUE(store.has(0)) << "the names are there";
        store.remove();
    }
}

TEST_F(SnapshotStoreTest, APictureAsideKeepsItsFilesOutOfTheList)
{
    SnapshotStore store;
    ASSERT_TRUE(take(store, 0, 1));
    ASSERT_TRUE(take(store, 1, 2));
    const auto first = store.read(1, Half::Colour);
    const auto aside = store.putAside();
    ASSERT_TRUE(aside);
    EXPECT_EQ(names(), (std::set<std::string>{".picture-" + std::to_string(*aside)}));
    ASSERT_TRUE(store.reset());
    ASSERT_TRUE(take(store, 0, 3));
    const auto second = store.putAside();
    ASSERT_TRUE(second);
    EXPECT_NE(*second, *aside);
    ASSERT_TRUE(store.bringBack(*aside));
    EXPECT_EQ(store.read(1, Half::Colour), first);
    EXPECT_EQ(names(), (std::set<std::string>{"C_0.jpg", "C_0.rle", ".C_0.step", "C_1.jpg", "C_1.rle", ".C_1.step",
                                              ".recovery", ".picture-" + std::to_string(*second)}));
    EXPECT_FALSE(store.bringBack(77));
    store.dropAside(*second);
    store.remove();
    EXPECT_TRUE(names(temporary).empty());
}

TEST_F(SnapshotStoreTest, WithoutAPlaceAmongTheTemporaryFilesTheSessionsFolderServes)
{
    write(temporary / "file", "no folder");
    fs::create_directory(temporary / "session");
    const zp::test::TemporaryVariable none{"ZELPANE_TMP", temporary / "file"};
    const zp::test::TemporaryVariable session{"XDG_RUNTIME_DIR", temporary / "session"};
    SnapshotStore store;
    ASSERT_TRUE(take(store, 0));
    EXPECT_EQ(store.place(), SnapshotStore::Place::Runtime);
    EXPECT_EQ(store.folder(), temporary / "session" / "zelpane" / "Zelpane Undo Support");
    store.remove();
    EXPECT_TRUE(names(temporary / "session" / "zelpane").empty());
}

} // namespace
