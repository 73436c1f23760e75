// SPDX-License-Identifier: GPL-3.0-or-later
/// Exact steps: packed tiles, captures that stand while the picture is painted on, records on disk and in memory.
#include "undo/ExactSteps.h"
#include "support/TemporaryFolder.h"
#include "undo/TileCodec.h"
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace
{

using namespace zp;
using namespace zp::test;

std::shared_ptr<BitmapRep> picture(int width, int height, unsigned seed)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) rep->view().row(y)[x] = std::uint32_t(random());
    return rep;
}

std::vector<std::uint32_t> words(ConstBitmapView v)
{
    std::vector<std::uint32_t> all;
    for (int y = 0; y < v.height; ++y) all.insert(all.end(), v.row(y), v.row(y) + v.width);
    return all;
}

// ---- packing --------------------------------------------------------------------------------------------------------

struct Tile {
    const char* name;
    int width, height;
    std::uint32_t (*word)(int x, int y, unsigned random);
    std::size_t most; ///< bytes it may take
};

class Packing : public testing::TestWithParam<Tile>
{
};

TEST_P(Packing, GivesTheVeryPixelsBack)
{
    const Tile& t = GetParam();
    const auto rep = BitmapRep::create(t.width, t.height);
    std::mt19937 random(3);
    for (int y = 0; y < t.height; ++y)
        for (int x = 0; x < t.width; ++x) rep->view().row(y)[x] = t.word(x, y, unsigned(random()));
    TileCodec codec;
    const auto packed = codec.pack(std::as_const(*rep).view());
    EXPECT_LE(packed.size(), t.most);
    const std::vector<std::uint8_t> bytes(packed.begin(), packed.end());
    const auto back = BitmapRep::create(t.width, t.height);
    ASSERT_TRUE(codec.unpack(bytes, back->view()));
    EXPECT_EQ(words(std::as_const(*back).view()), words(std::as_const(*rep).view()));
    for (std::size_t cut = 0; cut < bytes.size(); cut += 1 + bytes.size() / 50)
        EXPECT_FALSE(codec.unpack(std::span(bytes).first(cut), back->view())) << cut;
}

INSTANTIATE_TEST_SUITE_P(
    Tiles, Packing,
    testing::Values(
        Tile{"Noise", 128, 128, [](int, int, unsigned r) { return std::uint32_t(r); }, 4 * 128 * 128 + 4},
        Tile{"OpaqueNoise", 128, 128, [](int, int, unsigned r) { return std::uint32_t(r | 255u); }, 3 * 128 * 128 + 5},
        Tile{"Plain", 128, 128, [](int, int, unsigned) { return 0x80FF40FFu; }, 8},
        Tile{"Ramp", 128, 128, [](int x, int y, unsigned) { return std::uint32_t(x + y) << 8 | 255u; }, 2000},
        Tile{"OnePixel", 1, 1, [](int, int, unsigned r) { return std::uint32_t(r); }, 8},
        Tile{"Narrow", 3, 128, [](int, int, unsigned r) { return std::uint32_t(r); }, 4 * 3 * 128 + 4},
        Tile{"Low", 127, 2, [](int, int, unsigned r) { return std::uint32_t(r); }, 4 * 127 * 2 + 4}),
    [](const auto& of) { return std::string(of.param.name); });

// ---- capturing ------------------------------------------------------------------------------------------------------

TEST(PixelCapture, ShowsThePixelsAsTheyWereThoughThePictureIsPaintedOn)
{
    const auto rep = picture(700, 400, 1);
    const std::vector<std::uint32_t> before = words(std::as_const(*rep).view());
    TileSet tiles(TileGrid{700, 400});
    tiles.addAll();
    PixelCapture capture(rep, tiles, TileSet(tiles.grid()));
    std::vector<std::uint32_t> seen(before.size());
    std::thread painter([&] {
        std::mt19937 random(2);
        for (int i = 0; i < 400; ++i) {
            const int x = int(random() % 690), y = int(random() % 390);
            const PixelBox box{x, y, x + 10, y + 10};
            capture.beforeWrite(box);
            for (int row = y; row < y + 10; ++row) std::fill_n(rep->view().row(row) + x, 10, std::uint32_t(i));
        }
    });
    for (const int tile : tiles.list())
        capture.read(tile, [&](ConstBitmapView pixels) {
            const PixelBox box = tiles.grid().box(tile);
            for (int y = 0; y < pixels.height; ++y)
                std::copy_n(pixels.row(y), pixels.width, seen.begin() + (box.y0 + y) * 700 + box.x0);
        });
    painter.join();
    EXPECT_TRUE(capture.isDone());
    EXPECT_EQ(seen, before);
}

// ---- steps ----------------------------------------------------------------------------------------------------------

/// A history of random edits, each of its pictures kept to compare with.
class Exact : public testing::Test
{
protected:
    Exact() { open(); }
    ~Exact() override { ::close(handle); }
    void open()
    {
        handle = ::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        steps.reset(handle);
    }
    void record(int number)
    {
        const TileGrid grid{rep->pixelsWide(), rep->pixelsHigh()};
        std::optional<int> parent;
        if (number > 0 && touched.grid() == grid && steps.isExact(number - 1)) parent = number - 1;
        if (!parent) {
            touched = TileSet(grid);
            touched.addAll();
        }
        PixelCapture capture(rep, touched, touched);
        for (const int tile : touched.list()) capture.read(tile, [](ConstBitmapView) {}); // as the pair's writer does
        steps.write(number, parent, capture, touched);
        touched = TileSet(grid);
        pictures.resize(std::size_t(number) + 1);
        pictures[std::size_t(number)] = words(std::as_const(*rep).view());
    }
    void edit()
    {
        const int x = int(random() % unsigned(rep->pixelsWide())), y = int(random() % unsigned(rep->pixelsHigh()));
        const PixelBox box =
            PixelBox{x, y, x + 1 + int(random() % 200), y + 1 + int(random() % 200)}.intersected(rep->view().box());
        touched.add(box);
        for (int row = box.y0; row < box.y1; ++row)
            for (int column = box.x0; column < box.x1; ++column) rep->view().row(row)[column] = std::uint32_t(random());
    }
    /// Makes the picture that of step @p to. @return whether that was possible
    bool go(int to, std::optional<int> from)
    {
        const auto grid = steps.gridOf(to);
        if (!grid) return false;
        const bool sameSize = grid->width == rep->pixelsWide() && grid->height == rep->pixelsHigh();
        if (!sameSize || !from || !steps.isExact(*from)) {
            const auto fresh = BitmapRep::create(grid->width, grid->height);
            if (!steps.restore(to, std::nullopt, TileSet(*grid), fresh->view())) return false;
            rep = fresh;
        } else if (!steps.restore(to, from, touched, rep->view())) {
            return false;
        }
        touched = TileSet(*grid);
        return true;
    }
    void history(int count)
    {
        for (int i = 0; i < count; ++i) {
            if (i % 13 == 12)
                rep = picture(200 + int(random() % 500), 150 + int(random() % 400), unsigned(random()));
            else if (i > 0)
                edit();
            record(i);
        }
    }

    TemporaryFolder folder;
    int handle = -1;
    ExactSteps steps;
    std::mt19937 random{7};
    std::shared_ptr<BitmapRep> rep = picture(610, 430, 9);
    TileSet touched;
    std::vector<std::vector<std::uint32_t>> pictures;
};

TEST_F(Exact, SixtyStepsComeBackInAnyOrderByteForByte)
{
    history(60);
    int at = 59;
    for (int round = 0; round < 1000; ++round) {
        const int to = int(random() % 60);
        if (round % 3 == 0) edit(); // a change that left no step
        ASSERT_TRUE(go(to, at)) << to;
        ASSERT_EQ(words(std::as_const(*rep).view()), pictures[std::size_t(to)]) << "from " << at << " to " << to;
        at = to;
    }
}

TEST_F(Exact, TheirBytesAreThoseOfTheFilesWhateverComesAndGoes)
{
    const auto inFiles = [this] {
        std::uint64_t bytes = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) bytes += entry.file_size();
        return bytes;
    };
    history(30);
    EXPECT_EQ(steps.bytesOnDisk(), inFiles());
    ASSERT_TRUE(go(20, 29));
    steps.dropAbove(20);
    EXPECT_EQ(steps.bytesOnDisk(), inFiles());
    steps.setLimit(inFiles() + 1000);
    for (int i = 21; i < 30; ++i) edit(), record(i); // the oldest make room
    EXPECT_EQ(steps.bytesOnDisk(), inFiles());
    steps.adopt(handle, 29);
    EXPECT_EQ(steps.bytesOnDisk(), inFiles());
    steps.reset(-1);
    EXPECT_EQ(steps.bytesOnDisk(), 0u);
}

TEST_F(Exact, AStepIsThereAsLongAsTheFilesAreThatHaveItsTiles)
{
    record(0);
    const auto change = [this](PixelBox box) {
        touched.add(box);
        for (int row = box.y0; row < box.y1; ++row)
            for (int column = box.x0; column < box.x1; ++column) ++rep->view().row(row)[column];
    };
    change({0, 0, 5, 5}), record(1);
    change({0, 0, 5, 5}), record(2);
    change({600, 420, 605, 425}), record(3);
    for (int i = 0; i < 4; ++i) EXPECT_TRUE(steps.isThere(i)) << i;
    std::filesystem::remove(folder.path() / ExactRecord::fileName(1));
    EXPECT_TRUE(steps.isThere(0));
    EXPECT_FALSE(steps.isThere(1));
    EXPECT_TRUE(steps.isThere(2)) << "its tiles are in 0 and 2";
    EXPECT_TRUE(steps.isThere(3));
    ASSERT_TRUE(go(3, std::nullopt));
    std::filesystem::remove(folder.path() / ExactRecord::fileName(2));
    EXPECT_FALSE(steps.isThere(3)) << "2 has one of its tiles";
    EXPECT_FALSE(steps.isThere(4)) << "never was";
}

TEST_F(Exact, ANewStepBehindAnOldOneTakesThePlaceOfWhatCouldBeRedone)
{
    history(20);
    ASSERT_TRUE(go(8, 19));
    steps.dropAbove(8);
    edit();
    record(9);
    edit();
    record(10);
    for (const int to : {3, 9, 0, 10, 8}) {
        ASSERT_TRUE(go(to, std::nullopt)) << to;
        EXPECT_EQ(words(std::as_const(*rep).view()), pictures[std::size_t(to)]) << to;
    }
    EXPECT_FALSE(steps.isExact(11));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / ".C_11.exact"));
}

TEST_F(Exact, AnotherProgramFindsTheStepsInTheFolder)
{
    history(30);
    ExactSteps later;
    later.reset(handle);
    later.adopt(handle, 29);
    for (const int to : {29, 0, 12, 11, 25}) {
        const auto grid = later.gridOf(to);
        ASSERT_TRUE(grid) << to;
        const auto fresh = BitmapRep::create(grid->width, grid->height);
        ASSERT_TRUE(later.restore(to, std::nullopt, TileSet(*grid), fresh->view())) << to;
        EXPECT_EQ(words(std::as_const(*fresh).view()), pictures[std::size_t(to)]) << to;
    }
}

TEST_F(Exact, ADamagedRecordChangesNoPixel)
{
    history(6);
    const auto now = words(std::as_const(*rep).view());
    std::fstream file(folder.path() / ".C_0.exact", std::ios::in | std::ios::out | std::ios::binary);
    for (int i = 0; i < 400; ++i) {
        file.seekp(i * 997);
        file.put('x');
    }
    file.close();
    EXPECT_FALSE(go(0, 5));
    EXPECT_EQ(words(std::as_const(*rep).view()), now);
}

TEST_F(Exact, ARecordThatWasNotFinishedIsNone)
{
    history(6);
    for (const int number : {2, 4}) {
        const auto path = folder.path() / ExactRecord::fileName(number);
        std::filesystem::resize_file(path, std::filesystem::file_size(path) - 3);
    }
    steps.adopt(handle, 5);
    EXPECT_TRUE(steps.isExact(1));
    for (const int number : {2, 3, 4, 5}) EXPECT_FALSE(steps.isExact(number)) << "stands on one that is gone";
}

TEST_F(Exact, AFullDiskKeepsTheStepInMemory)
{
    history(3);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    signal(SIGXFSZ, SIG_IGN);
    for (int i = 3; i < 8; ++i) {
        const rlimit tight{rlim_t(1000 * i), old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
        edit();
        record(i);
        setrlimit(RLIMIT_FSIZE, &old);
        EXPECT_FALSE(std::filesystem::exists(folder.path() / ExactRecord::fileName(i)));
    }
    for (const int to : {7, 0, 5, 3, 6}) {
        ASSERT_TRUE(go(to, std::nullopt)) << to;
        EXPECT_EQ(words(std::as_const(*rep).view()), pictures[std::size_t(to)]) << to;
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        EXPECT_FALSE(entry.path().string().ends_with(".part")) << entry.path();
}

TEST_F(Exact, WithoutAFolderStepsAreKeptInMemory)
{
    steps.reset(-1);
    history(10);
    for (const int to : {9, 0, 4}) {
        ASSERT_TRUE(go(to, std::nullopt)) << to;
        EXPECT_EQ(words(std::as_const(*rep).view()), pictures[std::size_t(to)]);
    }
}

TEST_F(Exact, TheOldestStepsGoWhenThereIsNoRoom)
{
    steps.setLimit(4 << 20);
    history(60);
    EXPECT_LE(steps.bytesOnDisk(), std::uint64_t{4} << 20);
    EXPECT_FALSE(steps.isExact(0));
    EXPECT_TRUE(steps.isExact(59));
    int exact = 0;
    for (int i = 0; i < 60; ++i) {
        if (!steps.isExact(i)) {
            EXPECT_EQ(exact, 0) << "a newer step went before an older one";
            EXPECT_FALSE(std::filesystem::exists(folder.path() / ExactRecord::fileName(i)));
            continue;
        }
        ++exact;
        ASSERT_TRUE(go(i, std::nullopt)) << i;
        EXPECT_EQ(words(std::as_const(*rep).view()), pictures[std::size_t(i)]) << i;
    }
    EXPECT_GT(exact, 3);
    // And nothing at all where not even one step fits.
    steps.setLimit(10'000);
    edit();
    record(60);
    EXPECT_EQ(steps.bytesOnDisk(), 0u);
}

} // namespace
