// SPDX-License-Identifier: GPL-3.0-or-later
/// Broken links and where their pictures went.
#include "base/Folders.h"
#include "library/LibraryExamination.h"
#include "support/TemporaryFolder.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace zp;
using Names = std::vector<std::string>;

namespace
{

class Moved : public testing::Test
{
protected:
    void SetUp() override
    {
        fs::create_directory(mLibrary);
        fs::create_directories(mRoot + "/photos/trip");
    }
    std::string file(const std::string& name, const std::string& bytes) const
    {
        const std::string path = mRoot + "/" + name;
        fs::create_directories(folderOfPath(path));
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    /// A link to a file in the library; that of a moved one is known once the library was looked through.
    std::string linked(const std::string& name, const std::string& bytes) const
    {
        const std::string path = file(name, bytes);
        EXPECT_TRUE(makeAlias(path, mLibrary, lastPathComponent(path)));
        return path;
    }
    Names names() const { return contentsOfFolder(mLibrary); }
    MovedPictures examine(const SearchLimits& limits = {}, const std::stop_token& stop = {}) const
    {
        return LibraryExaminer(mLibrary, mIndex).findMoved(names(), limits, stop);
    }
    void move(const std::string& from, const std::string& to) const
    {
        fs::create_directories(folderOfPath(mRoot + "/" + to));
        fs::rename(mRoot + "/" + from, mRoot + "/" + to);
    }
    const zp::test::TemporaryFolder mFolder;
    const std::string mRoot = mFolder.path(), mLibrary = mRoot + "/library", mIndex = mRoot + "/data/.index";
};

} // namespace

TEST_F(Moved, PicturesAreFoundByTheirContent)
{
    struct Case {
        const char *what, *from, *to;
        bool found;
    };
    const Case cases[] = {
        {"renamed in its folder", "photos/trip/a.jpg", "photos/trip/z.jpg", true},
        {"below", "photos/trip/b.jpg", "photos/trip/best/of/b.jpg", true},
        {"in the folder above", "photos/trip/c.jpg", "photos/c.jpg", true},
        {"beside, under another name", "photos/trip/d.jpg", "photos/2025/old.jpg", true},
        {"below a folder beside", "photos/trip/e.jpg", "photos/2025/may/e.jpg", true},
        {"its folder was renamed", "photos/f/f.jpg", "photos/g/f.jpg", true},
        {"two folders above were renamed", "photos/h/i/h.jpg", "photos/k/l/h.jpg", true},
        {"with odd bytes in its name", "photos/trip/m.jpg", "photos/trip/\xFF\n%s.jpg", true},
        {"into a hidden folder", "photos/trip/n.jpg", "photos/trip/.trash/n.jpg", false},
        {"too far down", "photos/trip/o.jpg", "photos/1/2/3/4/5/6/7/o.jpg", false},
    };
    int number = 0;
    for (const Case& each : cases) linked(each.from, "content " + std::to_string(number++));
    EXPECT_TRUE(examine().empty()); // nothing is broken; all are remembered
    for (const Case& each : cases) move(each.from, each.to);
    for (const char* folder : {"photos/f", "photos/h/i", "photos/h"}) fs::remove(mRoot + "/" + folder);
    const MovedPictures moved = examine();
    ASSERT_EQ(moved.size(), std::size(cases));
    for (const Case& each : cases) {
        const MovedPicture& picture = moved.at(lastPathComponent(each.from));
        EXPECT_EQ(picture.oldPath, mRoot + "/" + each.from);
        ASSERT_EQ(picture.found.has_value(), each.found) << each.what;
        if (each.found) {
            EXPECT_EQ(*picture.found, (FoundPicture{mRoot + "/" + each.to, true})) << each.what;
        }
    }
}

TEST_F(Moved, NoLookalikeIsTakenForOne)
{
    const std::string big(300000, 'x');
    linked("photos/trip/a.jpg", "the picture");
    linked("photos/trip/b.jpg", big);
    {
        LibraryExaminer examiner(mLibrary, mIndex);
        examiner.findMoved(names());
        examiner.remember("b.jpg"); // was shown: every byte counts
    }
    fs::remove(mRoot + "/photos/trip/a.jpg");
    fs::remove(mRoot + "/photos/trip/b.jpg");
    file("photos/new/a.jpg", "a pretender"); // same name and size
    file("photos/new/c.jpg", "the picture, longer");
    std::string other = big;
    other[20000] = 'y'; // between two samples
    file("photos/new/b.jpg", other);
    fs::create_symlink(mRoot + "/elsewhere", mRoot + "/photos/new/link");
    file("elsewhere/a.jpg", "the picture"); // two folders up: not beside
    MovedPictures moved = examine();
    ASSERT_EQ(moved.size(), 2u);
    for (const auto& [name, picture] : moved) EXPECT_FALSE(picture.found) << name << " " << picture.found->path;
    file("photos/new/b2.jpg", big);
    moved = examine();
    EXPECT_EQ(moved["b.jpg"].found, (FoundPicture{mRoot + "/photos/new/b2.jpg", true}));
}

TEST_F(Moved, OneThatKeptItsNameIsPreferredAndNearIsBeforeFar)
{
    linked("photos/trip/a.jpg", "content");
    linked("photos/trip/b.jpg", "other");
    examine();
    move("photos/trip/a.jpg", "photos/trip/copy.jpg");
    file("photos/far/a.jpg", "content");
    move("photos/trip/b.jpg", "photos/x/y/z.jpg");
    file("photos/w.jpg", "other");
    MovedPictures moved = examine();
    EXPECT_EQ(moved["a.jpg"].found->path, mRoot + "/photos/far/a.jpg");
    EXPECT_EQ(moved["b.jpg"].found->path, mRoot + "/photos/w.jpg");
}

TEST_F(Moved, WithoutAMarkOnlyTheNameSpeaks)
{
    linked("photos/trip/a.jpg", "never examined");
    move("photos/trip/a.jpg", "photos/2025/a.jpg");
    fs::create_symlink("/nowhere/at/all/gone.jpg", mLibrary + "/gone.jpg");
    fs::create_symlink("ring.jpg", mLibrary + "/ring.jpg");
    MovedPictures moved = examine();
    ASSERT_EQ(moved.size(), 3u);
    EXPECT_EQ(moved["a.jpg"].found, (FoundPicture{mRoot + "/photos/2025/a.jpg", false}));
    EXPECT_FALSE(moved["gone.jpg"].found);
    EXPECT_FALSE(moved["ring.jpg"].found);
}

TEST_F(Moved, TheSearchKeepsItsLimits)
{
    linked("photos/trip/a.jpg", "content");
    examine();
    move("photos/trip/a.jpg", "photos/trip/z/a.jpg");
    for (int i = 0; i < 50; ++i) file("photos/trip/b" + std::to_string(i), "x");
    const auto found = [&](const SearchLimits& limits, const std::stop_token& stop = {}) {
        return examine(limits, stop).at("a.jpg").found.has_value();
    };
    EXPECT_TRUE(found({}));
    EXPECT_FALSE(found({.entries = 20}));
    EXPECT_FALSE(found({.levels = 0}));
    EXPECT_FALSE(found({.time = std::chrono::milliseconds{0}}));
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_FALSE(found({}, stopped.get_token()));
    EXPECT_TRUE(found({})) << "a search that was stopped forgets nothing";
}

TEST_F(Moved, TheIndexForgetsWhatNoEntryLeadsToButNotAnEmptyLibrary)
{
    const std::string a = linked("photos/a.jpg", "a"), b = linked("photos/b.jpg", "b");
    examine();
    EXPECT_EQ(readLibraryIndex(mIndex).size(), 2u);
    fs::remove(mLibrary + "/a.jpg");
    fs::remove(b); // broken, and all the more to be remembered
    examine();
    EXPECT_EQ(readLibraryIndex(mIndex).size(), 1u);
    EXPECT_TRUE(readLibraryIndex(mIndex).contains(b));
    LibraryExaminer(mLibrary, mIndex).findMoved({});
    EXPECT_EQ(readLibraryIndex(mIndex).size(), 1u);
}

TEST_F(Moved, AnIndexThatCannotBeWrittenStopsNothing)
{
    linked("photos/a.jpg", "a");
    std::ofstream(mRoot + "/data") << "a file in the folder's place";
    LibraryExaminer examiner(mLibrary, mIndex);
    EXPECT_TRUE(examiner.findMoved(names()).empty());
    move("photos/a.jpg", "photos/b.jpg");
    EXPECT_TRUE(examiner.findMoved(names()).at("a.jpg").found) << "it knows it itself";
}

TEST_F(Moved, RelinkingChangesTheLinkAloneAndOnlyABrokenOne)
{
    const std::string old = linked("photos/a.jpg", "content");
    const std::string kept = linked("photos/kept.jpg", "kept");
    const std::string now = mRoot + "/photos/new.jpg";
    EXPECT_FALSE(relink(mLibrary, "kept.jpg", kept, old)) << "it is not broken";
    move("photos/a.jpg", "photos/new.jpg");
    EXPECT_FALSE(relink(mLibrary, "a.jpg", kept, now)) << "it leads elsewhere than was thought";
    EXPECT_FALSE(relink(mLibrary, "a.jpg", old, mRoot + "/none.jpg")) << "nothing is there";
    EXPECT_FALSE(relink(mLibrary, "none.jpg", old, now));
    EXPECT_FALSE(resolveAlias(mLibrary + "/a.jpg"));
    EXPECT_TRUE(relink(mLibrary, "a.jpg", old, now));
    EXPECT_EQ(resolveAlias(mLibrary + "/a.jpg"), now);
    EXPECT_EQ(resolveAlias(mLibrary + "/kept.jpg"), kept);
    EXPECT_EQ(names(), (Names{"a.jpg", "kept.jpg"})) << "nothing is left beside it";
    EXPECT_EQ(readWholeFile(now), "content");
}

TEST_F(Moved, DuplicatesOfTheLibraryAreGrouped)
{
    const auto bytes = readWholeFile(ZP_SOURCE "/resources/Hibiskus.jpg");
    ASSERT_TRUE(bytes);
    linked("photos/a.jpg", *bytes);
    linked("photos/b.jpg", "other");
    linked("photos/c.jpg", *bytes);
    linked("photos/d.jpg", *bytes + "something behind the end"); // another file of the same look
    ASSERT_TRUE(makeAlias(mRoot + "/photos/b.jpg", mLibrary, "e.jpg"));
    fs::create_symlink("/nowhere", mLibrary + "/f.jpg");
    fs::create_symlink("/nowhere", mLibrary + "/g.jpg");
    fs::create_directory(mLibrary + "/h");
    const DuplicateGroups wanted{{{"a.jpg", DuplicateKind::SameContent},
                                  {"c.jpg", DuplicateKind::SameContent},
                                  {"d.jpg", DuplicateKind::SameLook}},
                                 {{"b.jpg", DuplicateKind::SameFile}, {"e.jpg", DuplicateKind::SameFile}}};
    std::vector<int> progress;
    LibraryExaminer examiner(mLibrary, mIndex);
    EXPECT_EQ(examiner.findDuplicates(names(), {}, [&](int done) { progress.push_back(done); }), wanted);
    EXPECT_EQ(progress.size(), names().size());
    EXPECT_EQ(LibraryExaminer(mLibrary, mIndex).findDuplicates(names()), wanted) << "from the index";
    file("photos/c.jpg", "changed");
    EXPECT_EQ(examiner.findDuplicates(names()).at(0).size(), 2u);
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_TRUE(examiner.findDuplicates(names(), stopped.get_token()).empty());
}
