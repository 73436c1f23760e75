// SPDX-License-Identifier: GPL-3.0-or-later
/// Paths by their text, and files and folders by the operations on them.
#include "base/Folders.h"
#include "support/TemporaryFolder.h"
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace zp;

namespace
{

class Folders : public testing::Test
{
protected:
    std::string at(const std::string& name) const { return mRoot + "/" + name; }
    std::string file(const std::string& name, const std::string& text = "x") const
    {
        std::ofstream(at(name), std::ios::binary) << text;
        return at(name);
    }
    static std::string text(const std::string& path) { return readWholeFile(path).value_or("(none)"); }

    const zp::test::TemporaryFolder mFolder;
    const std::string mRoot = mFolder.path();
};

struct Split {
    const char *path, *folder, *last, *extension, *without;
};

} // namespace

TEST(PathText, IsSplitIntoFolderNameAndExtension)
{
    for (const Split& c : {Split{"/a/b.jpg", "/a", "b.jpg", "jpg", "/a/b"},
                           {"b.tar.gz", "", "b.tar.gz", "gz", "b.tar"},
                           {"/a.b/c", "/a.b", "c", "", "/a.b/c"},
                           {"/.hidden", "/", ".hidden", "", "/.hidden"},
                           {"/a/b.jpg/", "/a", "b.jpg", "jpg", "/a/b"},
                           {"/", "/", "/", "", "/"},
                           {"/x/name.", "/x", "name.", "", "/x/name."},
                           {"", "", "", "", ""},
                           {"/x/\xFF\xFE.png", "/x", "\xFF\xFE.png", "png", "/x/\xFF\xFE"}}) {
        EXPECT_EQ(folderOfPath(c.path), c.folder) << c.path;
        EXPECT_EQ(lastPathComponent(c.path), c.last) << c.path;
        EXPECT_EQ(pathExtension(c.path), c.extension) << c.path;
        EXPECT_EQ(pathWithoutExtension(c.path), c.without) << c.path;
    }
    EXPECT_EQ(pathWithExtension("/a/b.jpg", "tiff"), "/a/b.tiff");
    EXPECT_EQ(pathWithExtension("/a/b", "tiff"), "/a/b.tiff");
    EXPECT_EQ(pathWithExtension("/a/b.jpg", ""), "/a/b");
    EXPECT_EQ(pathByAppending("/a/", "b"), "/a/b");
    EXPECT_EQ(pathByAppending("/a", "/b"), "/a/b");
    EXPECT_EQ(pathByAppending("", "b"), "b");
    EXPECT_EQ(pathByAppending("/a", ""), "/a");
}

TEST(PathText, TildeIsTheHomeFolder)
{
    const std::string home = homeFolder();
    EXPECT_EQ(home, std::getenv("HOME"));
    EXPECT_EQ(pathWithTildeExpanded("~"), home);
    EXPECT_EQ(pathWithTildeExpanded("~/a"), home + "/a");
    EXPECT_EQ(pathWithTildeExpanded("~other"), "~other");
    EXPECT_EQ(libraryFolder(), home + "/Pictures/Zelpane Image Library");
    EXPECT_EQ(applicationSupportFolder(), home + "/Library/Application Support/Zelpane");
}

TEST(PathText, IsShownWithReplacementsForBytesThatAreNoText)
{
    EXPECT_EQ(displayName("Grüße.jpg"), "Grüße.jpg");
    EXPECT_EQ(displayName("a\xFF"
                          "b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(displayName("\xC3"), "\xEF\xBF\xBD");                 // cut off
    EXPECT_EQ(displayName("\xC0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD"); // overlong
    EXPECT_EQ(displayName("\xED\xA0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(displayName("\xF0\x9F\x8C\xBA"), "\xF0\x9F\x8C\xBA");
}

TEST_F(Folders, AreMadeWithThoseAboveThem)
{
    EXPECT_TRUE(createFolder(at("a/b/c"), 0700));
    EXPECT_TRUE(isFolder(at("a/b/c")));
    EXPECT_EQ(fs::status(at("a/b/c")).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(createFolder(at("a/b/c"))); // there already
    EXPECT_TRUE(createFolder(at("d/e/")));
    file("plain");
    EXPECT_FALSE(createFolder(at("plain")));
    EXPECT_FALSE(createFolder(at("plain/inner")));
    EXPECT_FALSE(createFolder(""));
}

TEST_F(Folders, AreListedWithoutRegardToCaseDotFilesFirst)
{
    for (const char* name : {"b", "A", "a2", "C", ".z", ".DS_Store", "Äpfel", "\xFF\xFE", "äh", "Zebra"}) file(name);
    const std::vector<std::string> expected{".DS_Store", ".z", "A", "a2", "b", "C", "Zebra", "äh", "Äpfel", "\xFF\xFE"};
    const auto listed = contentsOfFolder(mRoot);
    EXPECT_TRUE(std::is_permutation(listed.begin(), listed.end(), expected.begin(), expected.end()));
    EXPECT_EQ(std::vector(listed.begin(), listed.begin() + 7),
              (std::vector<std::string>{".DS_Store", ".z", "A", "a2", "b", "C", "Zebra"}));
    const auto place = [&](const char* name) { return std::find(listed.begin(), listed.end(), name) - listed.begin(); };
    EXPECT_LT(place("äh"), place("Äpfel"));
    EXPECT_TRUE(contentsOfFolder(at("nowhere")).empty());
    std::vector<std::string> names{"left over"};
    EXPECT_EQ(listFolder(at("nowhere"), names), "No such file or directory");
    EXPECT_TRUE(names.empty());
    EXPECT_EQ(listFolder(mRoot, names), "");
    EXPECT_EQ(names, listed);
}

TEST_F(Folders, RemovingALinkLeavesItsTarget)
{
    createFolder(at("target"));
    file("target/kept");
    fs::create_symlink(at("target"), at("link"));
    EXPECT_TRUE(removeItem(at("link/"))); // the slash does not lead through it
    EXPECT_TRUE(fileExists(at("target/kept")));
    createFolder(at("tree/inner"));
    fs::create_symlink(at("target"), at("tree/inner/link"));
    file("tree/inner/\xFF odd\nname");
    EXPECT_TRUE(removeItem(at("tree")));
    EXPECT_FALSE(fileExists(at("tree")));
    EXPECT_TRUE(fileExists(at("target/kept")));
    EXPECT_FALSE(removeItem(at("tree")));
    fs::create_symlink("nowhere", at("dangling"));
    EXPECT_TRUE(removeItem(at("dangling")));
}

TEST_F(Folders, MovingAndCopyingNeverReplace)
{
    const std::string a = file("a", "one"), b = file("b", "two");
    EXPECT_FALSE(moveItem(a, b));
    EXPECT_FALSE(copyItem(a, b));
    EXPECT_EQ(text(b), "two");
    EXPECT_TRUE(moveItem(a, at("c")));
    EXPECT_EQ(text(at("c")), "one");
    EXPECT_FALSE(fileExists(a));
    EXPECT_FALSE(moveItem(at("missing"), at("d")));
    EXPECT_FALSE(copyItem(at("missing"), at("d")));
}

TEST_F(Folders, CopyTakesLinksAsLinksAndDatesAlong)
{
    createFolder(at("from/inner"));
    file("from/inner/f", "content");
    fs::create_symlink("inner/f", at("from/link"));
    fs::last_write_time(at("from/inner/f"), fs::file_time_type::clock::now() - std::chrono::hours(1000));
    ASSERT_TRUE(copyItem(at("from"), at("to")));
    EXPECT_EQ(text(at("to/link")), "content");
    EXPECT_TRUE(fs::is_symlink(at("to/link")));
    EXPECT_EQ(fileAttributes(at("to/inner/f"))->modified, fileAttributes(at("from/inner/f"))->modified);
}

TEST_F(Folders, MoveAcrossFileSystemsCopies)
{
    if (!isFolder("/dev/shm") || ::access("/dev/shm", W_OK) != 0) GTEST_SKIP() << "there is no second file system";
    const std::string there = "/dev/shm/zelpane-test-" + std::to_string(getpid());
    EXPECT_TRUE(moveItem(file("f", "far"), there));
    EXPECT_EQ(text(there), "far");
    EXPECT_FALSE(fileExists(at("f")));
    EXPECT_TRUE(moveItem(there, at("back")));
    EXPECT_EQ(text(at("back")), "far");
}

TEST_F(Folders, AttributesAreThoseOfTheLinkItself)
{
    file("f", "12345");
    fs::create_symlink("f", at("l"));
    EXPECT_EQ(fileAttributes(at("f"))->size, 5);
    EXPECT_FALSE(fileAttributes(at("f"))->link);
    EXPECT_TRUE(fileAttributes(at("l"))->link);
    EXPECT_EQ(fileAttributes(at("l"))->size, 1);
    EXPECT_TRUE(fileAttributes(mRoot)->folder);
    EXPECT_FALSE(fileAttributes(at("none")));
}

TEST_F(Folders, ReadingKnowsItsLimitAndRefusesWhatIsNoFile)
{
    EXPECT_EQ(text(file("f", std::string("a\0b", 3))), std::string("a\0b", 3));
    EXPECT_FALSE(readWholeFile(at("f"), 2));
    EXPECT_TRUE(readWholeFile(at("f"), 3));
    EXPECT_EQ(text(file("empty", "")), "");
    EXPECT_FALSE(readWholeFile(mRoot));
    EXPECT_FALSE(readWholeFile(at("none")));
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(readWholeFile(at("pipe")));         // and does not wait for a writer
    EXPECT_TRUE(readWholeFile("/proc/self/status")); // tells size 0
}

TEST_F(Folders, WritingTakesThePlaceOfTheOldFileAndKeepsItsMode)
{
    const std::string path = file("f", "old");
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    std::string error = "unset";
    EXPECT_TRUE(writeFileSafely(path, "new text", 8, &error));
    EXPECT_EQ(error, "");
    EXPECT_EQ(text(path), "new text");
    struct stat info;
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777u, 0640u);
    EXPECT_TRUE(writeFileSafely(at("\xFF\xFE name"), "", 0));
    EXPECT_EQ(fileAttributes(at("\xFF\xFE name"))->size, 0);
    EXPECT_EQ(contentsOfFolder(mRoot).size(), 2u); // nothing else is left behind
}

TEST_F(Folders, WritingGoesThroughLinksToTheirTarget)
{
    createFolder(at("deep"));
    const std::string real = file("deep/real", "old");
    fs::create_symlink("deep/real", at("one"));
    fs::create_symlink("one", at("two"));
    EXPECT_TRUE(writeFileSafely(at("two"), "new", 3));
    EXPECT_TRUE(fs::is_symlink(at("two")));
    EXPECT_TRUE(fs::is_symlink(at("one")));
    EXPECT_EQ(text(real), "new");
    fs::create_symlink("deep/later", at("dangling"));
    EXPECT_TRUE(writeFileSafely(at("dangling"), "made", 4));
    EXPECT_EQ(text(at("deep/later")), "made");
    fs::create_symlink("ring2", at("ring1"));
    fs::create_symlink("ring1", at("ring2"));
    std::string error;
    EXPECT_FALSE(writeFileSafely(at("ring1"), "x", 1, &error));
    EXPECT_EQ(error, "The link leads round in a circle.");
}

TEST_F(Folders, WritingWhereThatIsImpossibleSaysWhy)
{
    std::string error;
    EXPECT_FALSE(writeFileSafely(at("no/such/f"), "x", 1, &error));
    EXPECT_EQ(error, "The folder does not exist.");
    EXPECT_FALSE(writeFileSafely(mRoot, "x", 1, &error));
    EXPECT_EQ(error, "There is a folder of that name.");
    EXPECT_FALSE(writeFileSafely(at(std::string(256, 'n')), "x", 1, &error));
    EXPECT_EQ(error, "The name is too long.");
    EXPECT_TRUE(writeFileSafely(at(std::string(255, 'n')), "x", 1, &error)) << error; // the longest there is
    EXPECT_TRUE(writeFileSafely("/dev/null", "x", 1));                                // written to, not replaced
    struct stat info;
    ASSERT_EQ(stat("/dev/null", &info), 0);
    EXPECT_TRUE(S_ISCHR(info.st_mode));
}

TEST_F(Folders, WriteProtectedFilesStayAsTheyAre)
{
    const std::string path = file("f", "old");
    fs::permissions(mRoot, fs::perms::all); // the folder would let the name be taken over
    chmod(path.c_str(), 0444);
    // In a child, because nothing is protected from the superuser.
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        constexpr uid_t kNobody = 65534;
        if (geteuid() == 0 && setuid(kNobody) != 0) _exit(3);
        std::string error;
        const bool written = writeFileSafely(path, "new", 3, &error);
        _exit(written ? 1 : error == "There is no permission to write here." ? 0 : 2);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(text(path), "old");
    EXPECT_EQ(contentsOfFolder(mRoot), std::vector<std::string>{"f"});
}

TEST_F(Folders, ADiskThatFillsUpLeavesTheOldFile)
{
    const std::string path = file("f", "old");
    // In a child, because the limit holds for the whole process.
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const rlimit small{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &small);
        const std::string large(1 << 20, 'n');
        std::string error;
        const bool written = writeFileSafely(path, large.data(), large.size(), &error);
        _exit(written ? 1 : error == "The file would be larger than is allowed here." ? 0 : 2);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "the limit's signal killed it";
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(text(path), "old");
    EXPECT_EQ(contentsOfFolder(mRoot), std::vector<std::string>{"f"});
    std::string error;
    const int full = ::open("/dev/full", O_WRONLY);
    if (full < 0) return;
    ::close(full);
    EXPECT_FALSE(writeFileSafely("/dev/full", "x", 1, &error));
    EXPECT_EQ(error, "The disk is full.");
}

TEST_F(Folders, AliasesAreFollowedToTheirEnd)
{
    const std::string real = file("real");
    fs::create_symlink(real, at("a"));
    fs::create_symlink("a", at("b"));
    EXPECT_EQ(resolveAlias(at("a")), real);
    EXPECT_EQ(resolveAlias(at("b")), at("a").substr(0, at("a").rfind('/')) + "/real");
    EXPECT_FALSE(resolveAlias(real)); // no alias at all
    EXPECT_FALSE(resolveAlias(at("none")));
    fs::create_symlink("gone", at("dangling"));
    EXPECT_FALSE(resolveAlias(at("dangling")));
    fs::create_symlink("ring2", at("ring1"));
    fs::create_symlink("ring1", at("ring2"));
    EXPECT_FALSE(resolveAlias(at("ring1")));
    fs::create_symlink("self", at("self"));
    EXPECT_FALSE(resolveAlias(at("self")));
    createFolder(at("folder"));
    fs::create_symlink("../real", at("folder/up"));
    EXPECT_EQ(resolveAlias(at("folder/up")), fs::canonical(real).string());
    fs::create_symlink(at("folder"), at("toFolder"));
    EXPECT_EQ(resolveAlias(at("toFolder")), at("folder"));
}

TEST_F(Folders, AnAliasWhoseNameIsTakenGetsANumber)
{
    const std::string real = file("p.jpg");
    createFolder(at("lib"));
    EXPECT_TRUE(makeAlias(real, at("lib"), "p.jpg"));
    EXPECT_TRUE(makeAlias(real, at("lib"), "p.jpg"));
    EXPECT_TRUE(makeAlias(real, at("lib"), "\xFF"));
    EXPECT_EQ(contentsOfFolder(at("lib")), (std::vector<std::string>{"p 2.jpg", "p.jpg", "\xFF"}));
    EXPECT_EQ(resolveAlias(at("lib/p 2.jpg")), real);
    const std::string longest = std::string(251, 'n') + ".jpg";
    EXPECT_TRUE(makeAlias(real, at("lib"), longest));
    EXPECT_TRUE(makeAlias(real, at("lib"), longest)); // shortened to make room for its number
    EXPECT_EQ(contentsOfFolder(at("lib")).size(), 5u);
    EXPECT_FALSE(makeAlias(real, at("nowhere"), "p"));
    EXPECT_FALSE(makeAlias(real, at("lib"), "a/b"));
    EXPECT_FALSE(makeAlias(real, at("lib"), ""));
}
