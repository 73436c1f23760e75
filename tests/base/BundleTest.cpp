// SPDX-License-Identifier: GPL-3.0-or-later
/// The user's copy of the resources: made once, refreshed by a newer program, never filled up again.
#include "base/Folders.h"
#include "support/TemporaryFolder.h"
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace zp;

namespace
{

class Bundle : public testing::Test
{
protected:
    void TearDown() override { unsetenv("ZELPANE_BUNDLE"); }
    /// A program version: its resources, as name and text.
    void ship(const std::string& version, std::initializer_list<std::pair<const char*, const char*>> files)
    {
        const fs::path folder = mRoot + "/" + version;
        for (const auto& [name, text] : files) {
            fs::create_directories((folder / name).parent_path());
            std::ofstream(folder / name) << text;
        }
        setenv("ZELPANE_RESOURCES", folder.c_str(), 1);
    }
    static std::string text(const std::string& name) { return readWholeFile(resourcePath(name)).value_or("(none)"); }

    const zp::test::TemporaryFolder mFolder;
    const std::string mRoot = mFolder.path();
    const zp::test::TemporaryVariable mResources{"ZELPANE_RESOURCES", mRoot};
    const zp::test::TemporaryVariable mData{"XDG_DATA_HOME", mRoot + "/data"};
};

} // namespace

TEST_F(Bundle, IsFilledAtFirstUseWithoutTheProgramsThatMadeIt)
{
    ship("one", {{"a.txt", "A"}, {"icons/b.svg", "B"}, {"make/paint.py", "P"}});
    EXPECT_EQ(bundleFolder(), mRoot + "/data/zelpane");
    EXPECT_EQ(resourcePath("a.txt"), mRoot + "/data/zelpane/Contents/Resources/a.txt");
    EXPECT_EQ(text("a.txt"), "A");
    EXPECT_EQ(text("icons/b.svg"), "B");
    EXPECT_EQ(text("make/paint.py"), "(none)");
}

TEST_F(Bundle, ANewerProgramRefreshesWhatWasNotTouchedAndBringsNothingBack)
{
    ship("one", {{"kept", "1"}, {"changed", "1"}, {"moved", "1"}, {"same", "1"}});
    bundleFolder();
    std::ofstream(resourcePath("changed")) << "mine";
    ASSERT_TRUE(moveItem(resourcePath("moved"), mRoot + "/elsewhere"));
    ship("two", {{"kept", "2"}, {"changed", "2"}, {"moved", "2"}, {"same", "1"}, {"added", "2"}});
    bundleFolder();
    EXPECT_EQ(text("kept"), "2");
    EXPECT_EQ(text("changed"), "mine");
    EXPECT_EQ(text("moved"), "(none)");
    EXPECT_EQ(text("same"), "1");
    EXPECT_EQ(text("added"), "2");
    ship("three", {{"kept", "3"}, {"moved", "3"}});
    bundleFolder();
    EXPECT_EQ(text("kept"), "3"); // the refreshed one is still known as untouched
    EXPECT_EQ(text("moved"), "(none)");
}

TEST_F(Bundle, ADamagedManifestLosesNothing)
{
    ship("one", {{"a", "1"}});
    bundleFolder();
    std::ofstream(mRoot + "/data/zelpane/resources.manifest") << "nonsense\n\n\xFF";
    std::ofstream(resourcePath("a")) << "mine";
    ship("two", {{"a", "2"}, {"b", "2"}});
    bundleFolder();
    EXPECT_EQ(text("a"), "mine");
    EXPECT_EQ(text("b"), "2");
}

TEST_F(Bundle, TheNamedFolderServesAsItIs)
{
    ship("one", {{"a", "1"}});
    setenv("ZELPANE_BUNDLE", (mRoot + "/own").c_str(), 1);
    EXPECT_EQ(bundleFolder(), mRoot + "/own");
    EXPECT_EQ(resourcePath("a"), mRoot + "/own/Contents/Resources/a");
    EXPECT_EQ(readableResourcePath("a"), mRoot + "/one/a"); // it brings none of its own
    fs::create_directories(mRoot + "/own/Contents/Resources");
    std::ofstream(resourcePath("a")) << "own";
    EXPECT_EQ(readableResourcePath("a"), resourcePath("a"));
    EXPECT_FALSE(fs::exists(mRoot + "/data"));
}

TEST_F(Bundle, WithoutResourcesOrAWritableFolderNothingBreaks)
{
    setenv("ZELPANE_RESOURCES", (mRoot + "/nowhere").c_str(), 1);
    EXPECT_EQ(bundleFolder(), mRoot + "/data/zelpane");
    std::ofstream(mRoot + "/plain") << "x";
    setenv("XDG_DATA_HOME", (mRoot + "/plain").c_str(), 1);
    ship("one", {{"a", "1"}});
    EXPECT_EQ(bundleFolder(), mRoot + "/plain/zelpane");
    EXPECT_FALSE(fileExists(resourcePath("a")));
    setenv("XDG_DATA_HOME", "relative", 1); // such a value is to be ignored
    EXPECT_EQ(bundleFolder(), homeFolder() + "/.local/share/zelpane");
}
