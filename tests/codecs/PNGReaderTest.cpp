// SPDX-License-Identifier: GPL-3.0-or-later
/// Reading PNG files: every kind as libpng reads it, and what is shown of files that are not whole.
#include "codecs/ImageImporter.h"
#include "codecs/TestPictures.h"
#include "support/EveryTarget.h"
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <png.h>
#include <random>
#include <zlib.h>

namespace zp
{
namespace
{

using File = std::vector<std::uint8_t>;

struct Kind {
    const char* name;
    int type, depth;
    bool interlaced = false, transparent = false; ///< the latter: with a tRNS chunk
};
void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

const Kind kKinds[] = {
    {"grey1", PNG_COLOR_TYPE_GRAY, 1},
    {"grey2", PNG_COLOR_TYPE_GRAY, 2},
    {"grey4", PNG_COLOR_TYPE_GRAY, 4},
    {"grey8", PNG_COLOR_TYPE_GRAY, 8},
    {"grey16", PNG_COLOR_TYPE_GRAY, 16},
    {"palette1", PNG_COLOR_TYPE_PALETTE, 1},
    {"palette2", PNG_COLOR_TYPE_PALETTE, 2},
    {"palette4", PNG_COLOR_TYPE_PALETTE, 4},
    {"palette8", PNG_COLOR_TYPE_PALETTE, 8},
    {"greyAlpha8", PNG_COLOR_TYPE_GRAY_ALPHA, 8},
    {"greyAlpha16", PNG_COLOR_TYPE_GRAY_ALPHA, 16},
    {"rgb8", PNG_COLOR_TYPE_RGB, 8},
    {"rgb16", PNG_COLOR_TYPE_RGB, 16},
    {"rgba8", PNG_COLOR_TYPE_RGB_ALPHA, 8},
    {"rgba16", PNG_COLOR_TYPE_RGB_ALPHA, 16},
    {"grey1Key", PNG_COLOR_TYPE_GRAY, 1, false, true},
    {"grey4Key", PNG_COLOR_TYPE_GRAY, 4, false, true},
    {"grey8Key", PNG_COLOR_TYPE_GRAY, 8, false, true},
    {"grey16Key", PNG_COLOR_TYPE_GRAY, 16, false, true},
    {"palette2Key", PNG_COLOR_TYPE_PALETTE, 2, false, true},
    {"palette8Key", PNG_COLOR_TYPE_PALETTE, 8, false, true},
    {"rgb8Key", PNG_COLOR_TYPE_RGB, 8, false, true},
    {"rgb16Key", PNG_COLOR_TYPE_RGB, 16, false, true},
    {"grey1Woven", PNG_COLOR_TYPE_GRAY, 1, true},
    {"palette4Woven", PNG_COLOR_TYPE_PALETTE, 4, true, true},
    {"rgb8Woven", PNG_COLOR_TYPE_RGB, 8, true},
    {"rgba8Woven", PNG_COLOR_TYPE_RGB_ALPHA, 8, true},
    {"rgba16Woven", PNG_COLOR_TYPE_RGB_ALPHA, 16, true},
};

/// @param filters  the filters that rows may have, as libpng names them
File write(int width, int height, const Kind& kind, int filters, std::size_t pieceBytes = 8192)
{
    File file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &file,
        [](png_structp p, png_bytep data, png_size_t n) {
            auto* bytes = static_cast<File*>(png_get_io_ptr(p));
            bytes->insert(bytes->end(), data, data + n);
        },
        nullptr);
    png_set_compression_buffer_size(png, pieceBytes);
    png_set_filter(png, 0, filters);
    png_set_IHDR(png, info, png_uint_32(width), png_uint_32(height), kind.depth, kind.type,
                 kind.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, 0, 0);
    std::mt19937 random(unsigned(width * 7 + height));
    const int entries = kind.type == PNG_COLOR_TYPE_PALETTE ? 1 << kind.depth : 0;
    std::vector<png_color> palette(static_cast<std::size_t>(entries));
    for (png_color& c : palette) c = {png_byte(random()), png_byte(random()), png_byte(random())};
    if (entries > 0) png_set_PLTE(png, info, palette.data(), entries);
    if (kind.transparent) {
        const File alphas{0, 100, 255, 7};
        const int value = 1 << (kind.depth - 1);
        png_color_16 key{0, png_uint_16(value), png_uint_16(value), png_uint_16(value), png_uint_16(value)};
        png_set_tRNS(png, info, alphas.data(), std::min(entries, 4), &key);
    }
    png_write_info(png, info);
    const std::size_t rowBytes = png_get_rowbytes(png, info);
    std::vector<File> rows(std::size_t(height), File(rowBytes + 1));
    for (int y = 0; y < height; ++y)
        for (std::size_t i = 0; i < rowBytes; ++i) // gradients with grain, and runs that hit the key
            rows[std::size_t(y)][i] = y % 5 == 4 ? 0x80 : std::uint8_t(int(i) * 3 + y * 2 + int(random() % 9));
    std::vector<png_bytep> pointers;
    for (File& row : rows) pointers.push_back(row.data());
    png_write_image(png, pointers.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

std::shared_ptr<BitmapRep> byLibrary(const File& file)
{
    const std::uint8_t* at = file.data();
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_read_fn(png, &at, [](png_structp p, png_bytep out, png_size_t n) {
        auto& from = *static_cast<const std::uint8_t**>(png_get_io_ptr(p));
        std::memcpy(out, from, n);
        from += n;
    });
    png_read_info(png, info);
    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    if ((png_get_color_type(png, info) & PNG_COLOR_MASK_ALPHA) || png_get_valid(png, info, PNG_INFO_tRNS))
        png_set_swap_alpha(png);
    else
        png_set_filler(png, 0xFF, PNG_FILLER_BEFORE);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    auto rep = BitmapRep::create(int(png_get_image_width(png, info)), int(png_get_image_height(png, info)));
    std::vector<png_bytep> rows;
    for (int y = 0; y < rep->pixelsHigh(); ++y) rows.push_back(rep->view().rowData(y));
    png_read_image(png, rows.data());
    png_destroy_read_struct(&png, &info, nullptr);
    for (int y = 0; y < rep->pixelsHigh(); ++y)
        for (int x = 0; x < rep->pixelsWide(); ++x) {
            std::uint8_t* p = rep->view().pixel(x, y);
            for (int k = 1; k < 4; ++k) p[k] = std::uint8_t((p[k] * p[0] + 127) / 255);
        }
    return rep;
}

class PNGKinds : public testing::TestWithParam<Kind>
{
};

TEST_P(PNGKinds, OpenAsTheLibraryReadsThem)
{
    const int sizes[][2] = {{1, 1}, {1, 5}, {2, 3},  {3, 9},  {4, 4},   {5, 2},
                            {6, 6}, {7, 3}, {15, 4}, {16, 5}, {17, 17}, {130, 33}};
    for (const auto& [width, height] : sizes)
        for (const int filters :
             {PNG_FILTER_NONE, PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG, PNG_FILTER_PAETH, PNG_ALL_FILTERS}) {
            SCOPED_TRACE(testing::Message() << width << " x " << height << ", filters " << filters);
            const File file = write(width, height, GetParam(), filters);
            const auto expected = byLibrary(file);
            test::onEveryTarget([&] {
                const ImportedImage image = importImage(file);
                ASSERT_TRUE(image.bitmap) << image.error;
                ASSERT_TRUE(test::samePixels(image.bitmap->view(), expected->view()));
                EXPECT_EQ(image.bitmap->properties.warnings.size(), GetParam().depth == 16 ? 1u : 0u);
            });
        }
}

TEST_P(PNGKinds, OfATruncatedFileItsRowsAreShown)
{
    const Kind& kind = GetParam();
    const File file = write(90, 120, kind, PNG_FILTER_SUB | PNG_FILTER_PAETH, 200);
    const auto whole = importImage(file).bitmap;
    ASSERT_TRUE(whole);
    int shownBefore = -1;
    for (const std::size_t percent : {40, 60, 80, 95}) {
        SCOPED_TRACE(percent);
        const File part(file.begin(), file.begin() + std::ptrdiff_t(file.size() * percent / 100));
        const ImportedImage image = importImage(part);
        ASSERT_TRUE(image.bitmap) << image.error;
        EXPECT_EQ(image.bitmap->properties.warnings.front(), "The PNG data is damaged; what could be read is shown.");
        int shown = 0;
        const BitmapView got = image.bitmap->view();
        if (kind.interlaced) { // what is missing is filled from what is there
            for (int y = 0; y < got.height; y += 8)
                for (int x = 0; x < got.width; x += 8) ASSERT_EQ(got.row(y)[x], whole->view().row(y)[x]);
            continue;
        }
        while (shown < got.height && std::memcmp(got.row(shown), whole->view().row(shown), 4 * 90) == 0) ++shown;
        for (int y = shown; y < got.height; ++y)
            ASSERT_TRUE(std::all_of(got.row(y), got.row(y) + got.width, [](std::uint32_t w) { return w == 0; })) << y;
        EXPECT_GT(shown, std::max(shownBefore, 5));
        shownBefore = shown;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, PNGKinds, testing::ValuesIn(kKinds),
                         [](const auto& test) { return std::string(test.param.name); });

/// Where the data of the n-th IDAT begins, and how long it is.
struct Piece {
    std::size_t at = 0, size = 0;
};
Piece pixelPiece(const File& file, int n)
{
    for (std::size_t at = 8; at + 12 <= file.size();) {
        const std::size_t size = std::size_t{file[at]} << 24 | std::size_t{file[at + 1]} << 16 |
                                 std::size_t{file[at + 2]} << 8 | file[at + 3];
        if (std::memcmp(&file[at + 4], "IDAT", 4) == 0 && n-- == 0) return {at + 8, size};
        at += 12 + size;
    }
    ADD_FAILURE() << "no such piece";
    return {};
}

const Kind kRGB = {"rgb8", PNG_COLOR_TYPE_RGB, 8};

TEST(PNGReader, BehindACorruptPieceNothingIsBelieved)
{
    File file = write(90, 120, kRGB, PNG_FILTER_SUB, 500);
    const auto whole = importImage(file).bitmap;
    const Piece third = pixelPiece(file, 2), first = pixelPiece(file, 0);
    file[third.at + third.size / 2] ^= 0x10;
    const ImportedImage image = importImage(file);
    ASSERT_TRUE(image.bitmap) << image.error;
    EXPECT_EQ(image.bitmap->properties.warnings.size(), 1u);
    EXPECT_EQ(std::memcmp(image.bitmap->view().row(0), whole->view().row(0), 4 * 90), 0);
    EXPECT_EQ(image.bitmap->view().row(119)[0], 0u);

    file[first.at + first.size + 3] ^= 1; // its checksum
    const ImportedImage none = importImage(file);
    EXPECT_FALSE(none.bitmap);
    EXPECT_EQ(none.error, "The PNG data cannot be read: a checksum of its pixels is wrong.");
}

/// @p stream in place of the pixels' own, in one piece.
File withStream(const File& file, const File& stream)
{
    const Piece piece = pixelPiece(file, 0);
    File out(file.begin(), file.begin() + std::ptrdiff_t(piece.at) - 8);
    const auto put = [&out](std::size_t v) {
        for (int shift = 24; shift >= 0; shift -= 8) out.push_back(std::uint8_t(v >> shift));
    };
    put(stream.size());
    const std::size_t start = out.size();
    for (const char c : {'I', 'D', 'A', 'T'}) out.push_back(std::uint8_t(c));
    out.insert(out.end(), stream.begin(), stream.end());
    put(crc32(0, &out[start], unsigned(out.size() - start)));
    return out;
}

File packed(const File& bytes)
{
    uLongf size = compressBound(uLong(bytes.size()));
    File out(size);
    compress(out.data(), &size, bytes.data(), uLong(bytes.size()));
    out.resize(size);
    return out;
}

TEST(PNGReader, AStreamOfAnotherLengthOrChecksumShowsWhatItHas)
{
    const File file = write(10, 20, kRGB, PNG_FILTER_NONE);
    struct Case {
        const char* what;
        int rows; ///< in the stream
        int shown;
        bool wrongChecksum;
        std::size_t warnings;
    };
    const Case cases[] = {{"whole", 20, 20, false, 0},
                          {"wrong checksum", 20, 20, true, 1},
                          {"too short", 7, 7, false, 1},
                          {"too long", 25, 20, false, 1}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        File rows;
        for (int y = 0; y < c.rows; ++y) {
            rows.push_back(0);
            rows.insert(rows.end(), 30, std::uint8_t(y + 1));
        }
        File stream = packed(rows);
        if (c.wrongChecksum) stream.back() ^= 1;
        const ImportedImage image = importImage(withStream(file, stream));
        ASSERT_TRUE(image.bitmap) << image.error;
        EXPECT_EQ(image.bitmap->properties.warnings.size(), c.warnings);
        for (int y = 0; y < 20; ++y) {
            const std::uint32_t v = std::uint32_t(y + 1);
            EXPECT_EQ(image.bitmap->view().row(y)[9], y < c.shown ? test::word(255, int(v), int(v), int(v)) : 0u) << y;
        }
    }
    // Garbage behind a whole stream does not matter; a filter that does not exist ends the rows.
    File rows;
    for (int y = 0; y < 20; ++y) {
        rows.push_back(y == 12 ? 5 : 0);
        rows.insert(rows.end(), 30, 200);
    }
    const ImportedImage image = importImage(withStream(file, packed(rows)));
    ASSERT_TRUE(image.bitmap);
    EXPECT_EQ(image.bitmap->view().row(11)[0], test::word(255, 200, 200, 200));
    EXPECT_EQ(image.bitmap->view().row(12)[0], 0u);
    EXPECT_EQ(image.bitmap->properties.warnings.size(), 1u);
    rows[0] = 9;
    EXPECT_EQ(importImage(withStream(file, packed(rows))).error,
              "The PNG data cannot be read: not one row of its pixels is whole.");
    rows[0] = 0;
    rows[12 * 31] = 0;
    File padded = packed(rows);
    padded.insert(padded.end(), 100, 0xEE);
    EXPECT_TRUE(importImage(withStream(file, padded)).bitmap->properties.warnings.empty());
}

} // namespace
} // namespace zp
