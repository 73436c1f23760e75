// SPDX-License-Identifier: GPL-3.0-or-later
/// What a file keeps when it is written over, and what killed programs leave.
#include "base/Folders.h"
#include "base/KeptAside.h"
#include "support/TemporaryFolder.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace zp
{
namespace
{

class Writing : public testing::Test
{
protected:
    Writing()
    {
        createFolder(mRoot);
        ::chmod(folderOfPath(mRoot).c_str(), 0755);
    }
    ~Writing() override { ::chmod(mRoot.c_str(), 0755); }
    std::string at(const std::string& name) const { return mRoot + "/" + name; }
    std::string file(const std::string& name, const std::string& content) const
    {
        std::ofstream(at(name), std::ios::binary) << content;
        return at(name);
    }
    static std::string text(const std::string& path) { return readWholeFile(path).value_or("(none)"); }
    static bool write(const std::string& path, const std::string& content)
    {
        std::string error;
        const bool written = writeFileSafely(path, content.data(), content.size(), &error);
        EXPECT_EQ(written, error.empty());
        return written;
    }
    static struct stat facts(const std::string& path)
    {
        struct stat info = {};
        EXPECT_EQ(::stat(path.c_str(), &info), 0);
        return info;
    }
    /// Runs @p body in a child, as nobody where this is the superuser. @return its answer
    template <class F>
    static int inChild(F&& body, bool asNobody)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            constexpr uid_t kNobody = 65534;
            if (asNobody && ::geteuid() == 0 && ::setuid(kNobody) != 0) ::_exit(99);
            ::_exit(body());
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::vector<std::string> aside() const { return contentsOfFolder(applicationSupportFolder() + "/Kept Aside"); }
    const test::TemporaryFolder mFolder;
    const std::string mRoot = mFolder.path().string() + "/writing";
    const test::TemporaryVariable mHome{"HOME", mFolder.path().string() + "/home"};
};

TEST_F(Writing, AllNamesOfAFileSeeTheNewBytes)
{
    const std::string path = file("one", "old bytes, more of them");
    ASSERT_EQ(::link(path.c_str(), at("two").c_str()), 0);
    const auto inode = facts(path).st_ino;
    EXPECT_TRUE(write(path, "new"));
    EXPECT_EQ(text(at("two")), "new");
    EXPECT_EQ(facts(path).st_ino, inode);
    EXPECT_EQ(facts(path).st_nlink, 2u);
    EXPECT_TRUE(aside().empty()) << "the old bytes were kept only until the new ones were safe";
    EXPECT_EQ(contentsOfFolder(mRoot), (std::vector<std::string>{"one", "two"}));
}

TEST_F(Writing, ExtendedAttributesStay)
{
    const std::string path = file("f", "old");
    if (::setxattr(path.c_str(), "user.comment", "a garden", 8, 0) != 0) GTEST_SKIP() << "no attributes on this disk";
    EXPECT_TRUE(write(path, "new"));
    char value[32] = {};
    EXPECT_EQ(::getxattr(path.c_str(), "user.comment", value, sizeof value), 8);
    EXPECT_STREQ(value, "a garden");
    EXPECT_EQ(text(path), "new");
}

TEST_F(Writing, AccessControlListsStay)
{
    const std::string path = file("f", "old");
    // Version 2; the owner and user 12345 may read and write, mask read and write, nobody else.
    const std::uint8_t list[] = {2, 0,    0,    0,    0x01, 0,    6,    0, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0,    6,
                                 0, 0x39, 0x30, 0,    0,    4,    0,    0, 0,    0xFF, 0xFF, 0xFF, 0xFF, 0x10, 0,
                                 6, 0,    0xFF, 0xFF, 0xFF, 0xFF, 0x20, 0, 0,    0,    0xFF, 0xFF, 0xFF, 0xFF};
    if (::setxattr(path.c_str(), "system.posix_acl_access", list, sizeof list, 0) != 0)
        GTEST_SKIP() << "no access control lists on this disk";
    EXPECT_TRUE(write(path, "new"));
    std::uint8_t value[sizeof list] = {};
    ASSERT_EQ(::getxattr(path.c_str(), "system.posix_acl_access", value, sizeof value), ssize_t(sizeof list));
    EXPECT_EQ(std::memcmp(value, list, sizeof list), 0);
}

TEST_F(Writing, AWritableFileInAFolderThatIsNotIsWritten)
{
    const std::string path = file("f", "old bytes");
    ::chmod(path.c_str(), 0666);
    ::chmod(mRoot.c_str(), 0555);
    createFolder(homeFolder());
    ::chmod(homeFolder().c_str(), 0777);
    EXPECT_EQ(inChild(
                  [&] {
                      if (!writeFileSafely(path, "new", 3)) return 1;
                      return writeFileSafely(at("another"), "new", 3) ? 2 : 0;
                  },
                  true),
              0);
    EXPECT_EQ(text(path), "new");
}

TEST_F(Writing, OldBytesComeBackWhenThereIsNoRoomForTheNew)
{
    const std::string path = file("one", "old bytes");
    ASSERT_EQ(::link(path.c_str(), at("two").c_str()), 0);
    EXPECT_EQ(inChild(
                  [&] {
                      const rlimit small{4096, 4096};
                      ::setrlimit(RLIMIT_FSIZE, &small);
                      const std::string large(1 << 20, 'n');
                      return writeFileSafely(path, large.data(), large.size()) ? 1 : 0;
                  },
                  false),
              0);
    EXPECT_EQ(text(path), "old bytes");
    EXPECT_TRUE(aside().empty());
}

TEST_F(Writing, AProgramKilledInPlaceLosesNothing)
{
    const std::string path = file("f", "the old bytes");
    EXPECT_EQ(inChild(
                  [&] {
                      KeptAside old;
                      if (old.keep(path) != 0) return 1;
                      std::ofstream(path, std::ios::binary) << "half";
                      ::_exit(0); // no destructor runs
                  },
                  false),
              0);
    EXPECT_EQ(text(path), "half");
    EXPECT_EQ(aside().size(), 1u);
    restoreKeptAside();
    EXPECT_EQ(text(path), "the old bytes");
    EXPECT_TRUE(aside().empty());
}

TEST_F(Writing, WhatSomebodyWroteLaterIsNotTakenBack)
{
    const std::string path = file("f", "the old bytes");
    inChild(
        [&] {
            KeptAside old;
            const int failure = old.keep(path);
            ::_exit(failure); // no destructor runs
            return failure;
        },
        false);
    file("f", "written by another program");
    const timespec later[2] = {{::time(nullptr) + 3600, 0}, {::time(nullptr) + 3600, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), later, 0), 0);
    restoreKeptAside();
    EXPECT_EQ(text(path), "written by another program");
    EXPECT_TRUE(aside().empty());
}

TEST_F(Writing, ACopyThatIsStillNeededStays)
{
    const std::string path = file("f", "old");
    KeptAside old;
    ASSERT_EQ(old.keep(path), 0);
    file("f", "half");
    restoreKeptAside(); // another program starts meanwhile
    EXPECT_EQ(text(path), "half");
    EXPECT_EQ(old.bringBack(), 0);
    EXPECT_EQ(text(path), "old");
    old.discard();
    EXPECT_TRUE(aside().empty());
}

TEST_F(Writing, WhatKilledProgramsLeftIsRemovedAndNothingElse)
{
    std::array<char, 65> machine{};
    ::gethostname(machine.data(), machine.size() - 1);
    std::string host(machine.data());
    std::erase_if(host, [](unsigned char c) { return !std::isalnum(c); });
    const pid_t gone = ::fork();
    if (gone == 0) ::_exit(0);
    ::waitpid(gone, nullptr, 0);
    file(".zelpane-" + host.substr(0, 32) + "-" + std::to_string(gone) + "-0.part", "half a picture");
    const std::vector<std::string> stay{".zelpane-" + host.substr(0, 32) + "-" + std::to_string(::getpid()) + "-7.part",
                                        ".zelpane-elsewhere-1-0.part", "mine.part", "picture.png"};
    for (const std::string& name : stay) file(name, "x");
    EXPECT_TRUE(write(at("picture.png"), "new")) << "the first write into a folder looks for them";
    for (const std::string& name : stay) EXPECT_TRUE(fileExists(at(name))) << name;
    EXPECT_EQ(contentsOfFolder(mRoot).size(), stay.size());
}

} // namespace
} // namespace zp
