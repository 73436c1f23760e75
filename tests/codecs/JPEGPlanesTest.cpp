// SPDX-License-Identifier: GPL-3.0-or-later
/// Decoding by planes gives the very bytes of the JPEG library's own way: all samplings, sizes, kinds and damages.
#include "codecs/ImageImporter.h"
#include "codecs/JPEGRows.h"
#include "codecs/JPEGSegments.h"
#include "codecs/LibJPEG.h"
#include "codecs/TestPictures.h"
#include "support/EveryTarget.h"
#include <algorithm>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <span>

namespace zp
{
namespace
{

using File = std::vector<std::uint8_t>;

struct Kind {
    const char* name;
    int samplings[4][2]; ///< of the components, across and down; 0 ends the list
    J_COLOR_SPACE space = JCS_YCbCr;
    bool progressive = false;
    int restart = 0, restartRows = 0;
    bool optimal = false; ///< only codes that are used
};
void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

const Kind kKinds[] = {
    {"444", {{1, 1}, {1, 1}, {1, 1}}},
    {"422", {{2, 1}, {1, 1}, {1, 1}}},
    {"420", {{2, 2}, {1, 1}, {1, 1}}},
    {"440", {{1, 2}, {1, 1}, {1, 1}}},
    {"411", {{4, 1}, {1, 1}, {1, 1}}},
    {"410", {{4, 2}, {1, 1}, {1, 1}}},
    {"441", {{1, 4}, {1, 1}, {1, 1}}},
    {"mixed", {{2, 2}, {1, 2}, {2, 1}}},
    {"fullBlue", {{2, 2}, {2, 2}, {1, 1}}},
    {"halfBrightness", {{1, 1}, {2, 2}, {1, 1}}},
    {"third", {{3, 1}, {1, 1}, {1, 1}}},
    {"grey", {{1, 1}}, JCS_GRAYSCALE},
    {"greyTwo", {{2, 2}}, JCS_GRAYSCALE},
    {"rgb", {{1, 1}, {1, 1}, {1, 1}}, JCS_RGB},
    {"progressive420", {{2, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, true},
    {"progressive422", {{2, 1}, {1, 1}, {1, 1}}, JCS_YCbCr, true},
    {"progressiveGrey", {{1, 1}}, JCS_GRAYSCALE, true},
    {"restarts420", {{2, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 3},
    {"restarts444", {{1, 1}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 1},
    {"strips420", {{2, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 0, 1},
    {"strips422", {{2, 1}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 0, 2},
    {"strips440", {{1, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 0, 3},
    {"strips444", {{1, 1}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 0, 1},
    {"stripsOfFourRows", {{2, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 0, 4},
    {"stripsGrey", {{1, 1}}, JCS_GRAYSCALE, false, 0, 2},
    {"stripsGreyTwo", {{2, 2}}, JCS_GRAYSCALE, false, 0, 2},
    {"optimal420", {{2, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, false, 0, 0, true},
    {"optimalGrey", {{1, 1}}, JCS_GRAYSCALE, false, 0, 0, true},
    {"stripsProgressive", {{2, 2}, {1, 1}, {1, 1}}, JCS_YCbCr, true, 0, 1},
};

File write(int width, int height, const Kind& kind)
{
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors); // ends the test program on an error
    jpeg_create_compress(&info);
    jpeg::Output output;
    info.dest = &output;
    info.image_width = JDIMENSION(width);
    info.image_height = JDIMENSION(height);
    info.input_components = kind.space == JCS_GRAYSCALE ? 1 : 3;
    info.in_color_space = kind.space == JCS_GRAYSCALE ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, kind.space);
    jpeg_set_quality(&info, 85, TRUE);
    for (int i = 0; i < info.num_components; ++i) {
        info.comp_info[i].h_samp_factor = kind.samplings[i][0];
        info.comp_info[i].v_samp_factor = kind.samplings[i][1];
    }
    if (kind.progressive) jpeg_simple_progression(&info);
    info.restart_interval = unsigned(kind.restart);
    info.restart_in_rows = kind.restartRows;
    info.optimize_coding = kind.optimal;
    jpeg_start_compress(&info, TRUE);
    File row(std::size_t(3 * width));
    std::mt19937 random(unsigned(width + 100 * height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < 3 * width; ++x)
            row[std::size_t(x)] = std::uint8_t((x * 2 + y * (x % 3)) % 200 + int(random() % 56));
        std::uint8_t* rows = row.data();
        jpeg_write_scanlines(&info, &rows, 1);
    }
    jpeg_finish_compress(&info);
    const auto written = output.written();
    File file(written.begin(), written.end());
    jpeg_destroy_compress(&info);
    return file;
}

/// What the library makes of a file; null when it gives up, which @p mayFail allows.
std::shared_ptr<BitmapRep> byLibrary(const File& file, unsigned scale, bool mayFail = false)
{
    jpeg_decompress_struct info{};
    jpeg::Errors errors;
    info.err = &errors;
    std::shared_ptr<BitmapRep> rep;
    if (setjmp(errors.jump)) {
        jpeg_destroy_decompress(&info);
        EXPECT_TRUE(mayFail) << errors.message;
        return mayFail ? nullptr : BitmapRep::create(1, 1);
    }
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, file.data(), file.size());
    jpeg_read_header(&info, TRUE);
    info.out_color_space = JCS_EXT_ARGB;
    info.scale_num = 1;
    info.scale_denom = scale;
    jpeg_start_decompress(&info);
    rep = BitmapRep::create(int(info.output_width), int(info.output_height));
    while (info.output_scanline < info.output_height) {
        std::uint8_t* row = rep->view().rowData(int(info.output_scanline));
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_destroy_decompress(&info);
    return rep;
}

class JPEGKinds : public testing::TestWithParam<Kind>
{
};

TEST_P(JPEGKinds, OpenAsTheLibraryDecodesThem)
{
    const int sizes[][2] = {{1, 1},    {2, 3},    {3, 2},    {4, 4},    {5, 17},     {8, 8},
                            {16, 16},  {17, 15},  {31, 33},  {63, 65},  {64, 64},    {66, 40},
                            {127, 30}, {129, 50}, {200, 10}, {257, 90}, {1000, 300}, {70, 1501}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        const File file = write(width, height, GetParam());
        const auto expected = byLibrary(file, 1);
        test::onEveryTarget([&] {
            const ImportedImage image = importImage(file);
            ASSERT_TRUE(image.bitmap) << image.error;
            ASSERT_TRUE(test::samePixels(image.bitmap->view(), expected->view()));
            EXPECT_TRUE(image.bitmap->properties.warnings.empty());
        });
        for (const unsigned scale : {2u, 4u, 8u}) {
            if (width < 16 || height < 16) continue;
            ImportOptions options;
            options.atLeastWidth = width / int(scale);
            options.atLeastHeight = height / int(scale);
            const ImportedImage image = importImage(file, options);
            ASSERT_TRUE(image.bitmap) << image.error;
            ASSERT_TRUE(test::samePixels(image.bitmap->view(), byLibrary(file, scale)->view())) << "1 / " << scale;
        }
    }
}

TEST_P(JPEGKinds, ATruncatedFileShowsWhatTheLibraryShows)
{
    const File file = write(300, 500, GetParam());
    for (const std::size_t percent : {15, 40, 70, 99}) {
        SCOPED_TRACE(percent);
        const File part(file.begin(), file.begin() + std::ptrdiff_t(file.size() * percent / 100));
        const ImportedImage image = importImage(part);
        ASSERT_TRUE(image.bitmap) << image.error;
        EXPECT_TRUE(test::samePixels(image.bitmap->view(), byLibrary(part, 1)->view()));
        EXPECT_EQ(image.bitmap->properties.warnings.size(), 1u);
    }
}

TEST_P(JPEGKinds, ADamagedFileShowsWhatTheLibraryShows)
{
    const File file = write(100, 700, GetParam());
    std::mt19937 random(5);
    for (int round = 0; round < 20; ++round) {
        File bad = file;
        for (int i = 0; i < 2; ++i)
            bad[bad.size() / 3 + random() % (bad.size() / 2)] ^= std::uint8_t(1 + random() % 255);
        const auto expected = byLibrary(bad, 1, true);
        if (!expected) continue; // the library gave up
        const ImportedImage image = importImage(bad);
        ASSERT_TRUE(image.bitmap) << image.error;
        ASSERT_TRUE(test::samePixels(image.bitmap->view(), expected->view())) << "round " << round;
    }
}

TEST_P(JPEGKinds, AnyRowsCanBeCutOutWithoutMarkers)
{
    const Kind& kind = GetParam();
    const File file = write(150, 330, kind);
    test::JPEGRows rows(file);
    if (kind.progressive || kind.restart > 0 || kind.restartRows > 0) {
        EXPECT_EQ(rows.index, nullptr);
        return;
    }
    ASSERT_NE(rows.index, nullptr);
    ASSERT_TRUE(rows.index->findRows());
    ASSERT_TRUE(rows.index->awaitRows(rows.count));
    const auto whole = byLibrary(file, 1);
    for (int first = 0; first < rows.count; first += 3)
        for (const int last : {first + 1, (first + rows.count + 1) / 2, rows.count}) {
            if (last <= first) continue;
            SCOPED_TRACE(testing::Message() << first << " to " << last << " of " << rows.count);
            const auto part = byLibrary(rows.part(file, first, last), 1);
            // Colours of half the height are mixed with those of the row that is cut off.
            const int top = first * rows.unit, skip = first > 0 ? 1 : 0, leave = last < rows.count ? 1 : 0;
            ASSERT_EQ(part->pixelsHigh(), std::min(last * rows.unit, 330) - top);
            EXPECT_TRUE(test::samePixels(part->view().part({0, skip, 150, part->pixelsHigh() - leave}),
                                         whole->view().part({0, top + skip, 150, top + part->pixelsHigh() - leave})));
        }
}

TEST(JPEGRows, AreNotFoundInUnsoundData)
{
    const File file = write(100, 300, kKinds[2]);
    struct Case {
        const char* name;
        std::function<void(File&)> spoil;
    };
    const Case cases[] = {
        {"cut off", [](File& f) { f.erase(f.begin() + std::ptrdiff_t(f.size() / 2), f.end()); }},
        {"without end marker", [](File& f) { f.erase(f.end() - 2, f.end()); }},
        {"another byte before the end", [](File& f) { f.insert(f.end() - 2, 0x12); }},
        {"a byte fewer", [](File& f) { f.erase(f.end() - 3); }},
        {"a marker within", [](File& f) { f[f.size() / 2] = 0xFF, f[f.size() / 2 + 1] = 0xD3; }},
        {"only ones", [](File& f) { std::fill(f.end() - 1000, f.end() - 2, 0xFE); }},
    };
    for (const Case& one : cases) {
        File bad = file;
        one.spoil(bad);
        test::JPEGRows rows(bad);
        ASSERT_NE(rows.index, nullptr) << one.name;
        EXPECT_FALSE(rows.index->findRows()) << one.name;
        EXPECT_FALSE(rows.index->awaitRows(rows.count)) << one.name;
        const ImportedImage image = importImage(bad);
        ASSERT_TRUE(image.bitmap) << one.name;
        EXPECT_TRUE(test::samePixels(image.bitmap->view(), byLibrary(bad, 1)->view())) << one.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, JPEGKinds, testing::ValuesIn(kKinds),
                         [](const auto& test) { return std::string(test.param.name); });

/// The ring turns many times, with and without another thread's help.
TEST(JPEGPlanes, APictureOfManyBandsIsWhole)
{
    const File file = write(4000, 3000, kKinds[2]);
    const auto expected = byLibrary(file, 1);
    for (int round = 0; round < 3; ++round) {
        const ImportedImage image = importImage(file);
        ASSERT_TRUE(image.bitmap) << image.error;
        EXPECT_TRUE(test::samePixels(image.bitmap->view(), expected->view()));
    }
}

} // namespace
} // namespace zp
