// SPDX-License-Identifier: GPL-3.0-or-later
/// Opens every test picture, saves it in all three kinds and opens it again; a table says what to expect of each
/// folder.
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>

namespace zp
{
namespace
{

namespace fs = std::filesystem;

enum class Expect { Opens, Refused, Either };

struct Folder {
    const char* path;
    Expect rule;
    /// Files that differ from the folder's rule, by the beginning of their path inside it; each with what they do
    /// instead.
    std::vector<std::pair<const char*, Expect>> others;
};

std::vector<Folder> folders()
{
    using enum Expect;
    return {
        {"apng", Either, {}},
        {"bigtiff", Opens, {}},
        {"bmp-broken", Either, {}},
        {"bmpsuite", Either, {{"g/", Opens}}},
        {"exif-orientation", Opens, {}},
        {"fuzz-seeds", Either, {}},
        {"gif-imagers", Opens, {}},
        {"gif-oiio", Opens, {}},
        {"gif-pillow", Either, {}},
        {"gif-wuffs", Either, {}},
        {"jpeg-broken", Either, {}},
        {"jpeg-imagers", Opens, {}},
        {"jpeg-lossless", Refused, {}},
        {"jpeg-pillow", Opens, {}},
        {"jpeg-turbo", Opens, {{"monkey12.jpg", Refused}, {"test3.icc", Refused}}}, // 12 bits; no picture
        {"jpeg-wuffs", Opens, {}},
        {"jpeg-zune", Opens, {}},
        {"misc-12m", Opens, {}},
        {"misc-pillow", Either, {}},
        {"misc-wuffs", Opens, {}},
        {"pict", Either, {}},
        {"png-broken", Either, {}},
        {"png-modes", Opens, {}},
        {"png-pillow", Opens, {}},
        {"png-wuffs", Opens, {}},
        {"pngsuite", Opens, {{"x", Refused}}},
        {"psd", Opens, {}},
        {"psd-broken", Either, {}},
        {"psd-tools", Opens, {{"4x4_8bit_index_color.psd", Either}, {"group-divider-blend-mode.psd", Either}}},
        {"regress-imagers", Either, {}},
        {"tga-imagers", Opens, {}},
        {"tiff-12m", Either, {}},
        {"tiff-broken", Either, {}},
        {"tiff-depth", Opens, {}},
        {"tiff-imagers", Either, {}},
        {"tiff-imagetiff",
         Opens,
         {{"colormap-shl-overflow.tiff", Either},
          {"graydepth-invert-overflow", Either},
          {"sample-get-lzw-stuck.tiff", Either}}},
        {"tiff-libtiff",
         Opens,
         {{"miniswhite-1c-1b.g3", Refused}, // bare fax data, no picture file
          {"test_ifd_loop", Either},
          {"testfax3_bug54_1dnoEOL.tif", Either}, // not a byte of it is decodable with the library at hand
          {"testfax3_bug_513.tiff", Either}}},
        {"tiff-libtiffpic", Opens, {}},
        {"tiff-pillow", Opens, {}},
        {"photos", Opens, {}},
        {"made/bmp", Either, {{"dim-", Refused}}},
        {"made/exif", Opens, {}},
        {"made/gif",
         Either,
         {{"screen-65535x65535", Refused},
          {"frame-65535x65535", Refused},
          {"frames-5000", Opens},
          {"animated-2-frames", Opens}}},
        {"made/jpeg",
         Opens,
         {{"app-length", Either},
          {"dim-", Refused},
          {"entropy-data-flipped", Either},
          {"no-eoi", Either},
          {"scan-bomb", Refused}}},
        {"made/misc", Either, {{"ppm-huge", Refused}, {"tga-65535", Refused}, {"pgm-maxval-65535", Opens}}},
        {"made/png",
         Either,
         {{"bomb-12000", Refused},
          {"bomb-30000", Refused},
          {"bomb-iccp", Opens},
          {"bomb-ztxt", Opens},
          {"dim-", Refused},
          {"alpha-ramp", Opens},
          {"ramp16-fine", Opens},
          {"many-text-chunks", Opens},
          {"trailing-jpeg", Opens}}},
        {"made/psd", Either, {{"dim-", Refused}, {"layers-minus", Either}}},
        {"made/tiff",
         Either,
         {{"bomb-deflate", Refused},
          {"dim-", Refused},
          {"tile-4billion", Refused},
          {"tile-0x0", Refused},
          {"spp-65535", Refused},
          {"cmyk", Opens},
          {"rgba-", Opens},
          {"orientation-", Opens},
          {"float-nan", Opens},
          {"pages-500", Opens},
          {"ramp16", Opens},
          {"ifd-loop", Opens}}},
        {"made/truncated", Either, {{"zero-bytes", Refused}, {"one-byte", Refused}}},
        {"made/valid", Opens, {}},
        {"made/wrong-ext",
         Refused,
         {{"UPPER.JPG", Opens}, {"no-extension", Opens}, {"really-", Opens}, {"two.dots.png.jpg", Opens}}},
    };
}

/// Headers that state another size than the picture inside: QuickTime pictures wrapped in a larger frame, and one whose
/// size stands behind four kilobytes of comment.
bool headerMayDiffer(const std::string& file)
{
    return file.find("pict/") != std::string::npos || file.find("ppm-comment-bomb") != std::string::npos;
}

void PrintTo(const Folder& folder, std::ostream* out) { *out << folder.path; }

class Sweep : public testing::TestWithParam<Folder>
{
};

void expectSamePixels(ConstBitmapView a, ConstBitmapView b)
{
    ASSERT_EQ(a.width, b.width);
    ASSERT_EQ(a.height, b.height);
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x)
            ASSERT_EQ(a.row(y)[x], b.row(y)[x]) << "first difference at " << x << ", " << y;
}

void saveAndReopen(const BitmapRep& rep)
{
    for (const char* kind : {"TIFF", "PNG", "JPEG"}) {
        SCOPED_TRACE(kind);
        const auto bytes = *kind == 'T'   ? encodeTIFF(rep.view(), rep.properties)
                           : *kind == 'P' ? encodePNG(rep.view(), rep.properties)
                                          : encodeJPEG(rep.view(), rep.properties, {.fallbackBackground = kWhite});
        ASSERT_FALSE(bytes.empty());
        const ImportedImage again = importImage(bytes);
        ASSERT_TRUE(again.bitmap) << again.error;
        if (*kind == 'J') {
            ASSERT_EQ(again.bitmap->pixelsWide(), rep.pixelsWide());
            ASSERT_EQ(again.bitmap->pixelsHigh(), rep.pixelsHigh());
        } else {
            expectSamePixels(again.bitmap->view(), rep.view());
        }
        const ImageProperties& p = again.bitmap->properties;
        if (p.iccProfile.empty() && *kind == 'P') continue; // libpng is stricter than others about what a profile is
        EXPECT_EQ(p.iccProfile, rep.properties.iccProfile);
    }
}

TEST_P(Sweep, DoesWhatTheTableSays)
{
    const Folder& folder = GetParam();
    const fs::path root = fs::path(ZP_TESTDATA) / "images" / folder.path;
    int seen = 0;
    std::vector<bool> used(folder.others.size());
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file()) continue;
        ++seen;
        const std::string inside = fs::relative(entry.path(), root).string();
        SCOPED_TRACE(inside);
        Expect expected = folder.rule;
        for (std::size_t i = 0; i < folder.others.size(); ++i)
            if (inside.starts_with(folder.others[i].first)) {
                expected = folder.others[i].second;
                used[i] = true;
            }
        const auto start = std::chrono::steady_clock::now();
        const ImportedImage image = importImageFile(entry.path().string());
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
        EXPECT_EQ(image.bitmap == nullptr, !image.error.empty());
        if (expected == Expect::Opens) {
            EXPECT_TRUE(image.bitmap) << image.error;
        } else if (expected == Expect::Refused) {
            EXPECT_FALSE(image.bitmap);
        }
        if (!image.bitmap) {
            EXPECT_EQ(image.error.back(), '.') << image.error;
            continue;
        }
        const PixelDimensions header = imageFileDimensions(entry.path().string());
        if (!headerMayDiffer(entry.path().string())) {
            EXPECT_EQ(header.width, image.bitmap->pixelsWide());
            EXPECT_EQ(header.height, image.bitmap->pixelsHigh());
        }
        saveAndReopen(*image.bitmap);
    }
    EXPECT_GT(seen, 0);
    for (std::size_t i = 0; i < used.size(); ++i)
        EXPECT_TRUE(used[i]) << "no file begins with " << folder.others[i].first;
}

INSTANTIATE_TEST_SUITE_P(Folders, Sweep, testing::ValuesIn(folders()), [](const auto& test) {
    std::string name = test.param.path;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(c); }, '_');
    return name;
});

} // namespace
} // namespace zp
