// SPDX-License-Identifier: GPL-3.0-or-later
/// Strips of JPEG files: the library's own bytes, on every vector target.
#include "codecs/JPEGStrips.h"
#include "codecs/TestPictures.h"
#include "support/EveryTarget.h"
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace zp
{
namespace
{

using File = std::vector<std::uint8_t>;

/// The whole file as the library writes it in one go.
File byLibrary(ConstBitmapView pixels, int quality, int restartRows)
{
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors); // ends the test program on an error
    jpeg_create_compress(&info);
    jpeg::Output output;
    info.dest = &output;
    info.image_width = JDIMENSION(pixels.width);
    info.image_height = JDIMENSION(pixels.height);
    info.input_components = 4;
    info.in_color_space = JCS_EXT_XRGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, quality, TRUE);
    info.restart_in_rows = restartRows;
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        auto* row = const_cast<std::uint8_t*>(pixels.rowData(int(info.next_scanline)));
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    const auto written = output.written();
    File file(written.begin(), written.end());
    jpeg_destroy_compress(&info);
    return file;
}

File byStrips(ConstBitmapView pixels, int quality, int stripRows)
{
    jpeg::StripEncoder encoder;
    const jpeg::StripFormat format{
        .width = pixels.width, .height = pixels.height, .quality = quality, .stripRows = stripRows};
    if (!encoder.prepare(format)) return {};
    File file(encoder.head().begin(), encoder.head().end()), strip;
    for (int i = 0; i < format.strips(); ++i) {
        encoder.encode(pixels.part(format.rowsOf(i)), strip);
        file.insert(file.end(), strip.begin(), strip.end());
        file.push_back(jpeg::kMark);
        file.push_back(i + 1 < format.strips() ? std::uint8_t(jpeg::kRestart0 + i % jpeg::kRestartCycle)
                                               : jpeg::kEndOfImage);
    }
    return file;
}

/// Waves with grain; above 200 of grain every sample stands at one end or the other in cells of eight pixels or of one,
/// which makes the largest coefficients there can be.
std::shared_ptr<BitmapRep> grainy(int width, int height, int grain)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random{unsigned(width * 31 + height * 7 + grain)};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = rep->view().pixel(x, y);
            p[0] = std::uint8_t(random());
            for (int k = 1; k < 4; ++k) {
                const int v = 128 + (x * k * 5 + y * 3) % 90 - 45;
                p[k] = std::uint8_t(std::clamp(v + int(random() % unsigned(2 * grain + 1)) - grain, 0, 255));
                if (grain > 200) p[k] = (grain > 250 ? random() : unsigned(x / 8 * 5 + y / 8 * 3 + k)) & 4 ? 255 : 0;
            }
        }
    return rep;
}

struct Case {
    int width, height, quality, stripRows;
};

TEST(JPEGStrips, AreTheLibrarysOwnBytes)
{
    std::vector<Case> cases;
    // Every way a picture can end inside a unit of 64 pixels or a block row.
    for (const int width : {1, 2, 7, 8, 9, 15, 16, 17, 31, 33, 47, 48, 57, 63, 64, 65, 71, 128, 129})
        for (const int height : {1, 2, 7, 8, 9, 15, 16, 17, 40})
            cases.push_back({width, height, 70, height > 16 && width % 2 ? 1 : 3});
    for (int quality = 1; quality <= 100; quality += quality < 85 ? 7 : 1) cases.push_back({150, 90, quality, 2});
    cases.push_back({8000, 40, 92, 2});
    for (const Case& c : cases)
        for (const int grain : {0, 6, 100, 201, 251}) {
            SCOPED_TRACE(testing::Message()
                         << c.width << " x " << c.height << ", quality " << c.quality << ", grain " << grain);
            const auto rep = grainy(c.width, c.height, grain);
            const bool oneStrip = c.height <= jpeg::kBlockRow * c.stripRows;
            const File expected = byLibrary(rep->view(), c.quality, oneStrip ? 0 : c.stripRows);
            test::onEveryTarget([&] { ASSERT_TRUE(byStrips(rep->view(), c.quality, c.stripRows) == expected); });
            if (HasFatalFailure()) return;
        }
}

TEST(JPEGStrips, AnIntervalTooLongForTheFormatIsRefused)
{
    jpeg::StripEncoder encoder;
    EXPECT_FALSE(encoder.prepare({.width = 16000, .height = 16000, .quality = 70, .stripRows = 66}));
    EXPECT_TRUE(encoder.prepare({.width = 16000, .height = 16000, .quality = 70, .stripRows = 65}));
    EXPECT_FALSE(encoder.prepare({.width = 70000, .height = 16, .quality = 70, .stripRows = 1}));
}

TEST(JPEGStrips, SegmentsStandBehindTheFirstInTheirOrder)
{
    jpeg::StripEncoder encoder;
    const File one{'a', 'b', 'c'}, two{'d'};
    const std::pair<int, std::span<const std::uint8_t>> segments[] = {{JPEG_APP0 + 1, one}, {JPEG_APP0 + 2, two}};
    ASSERT_TRUE(encoder.prepare({.width = 10, .height = 10, .quality = 70, .stripRows = 1}, segments));
    const File expected{0xFF, 0xE1, 0, 5, 'a', 'b', 'c', 0xFF, 0xE2, 0, 3, 'd'};
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), encoder.head().begin() + 20)); // SOI and JFIF: 20 bytes
}

} // namespace
} // namespace zp
