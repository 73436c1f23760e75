// SPDX-License-Identifier: GPL-3.0-or-later
/// Dashes on screen pixels: where they fall, how they crawl, that a cut line looks like the whole one.
#include "drawing/AntsPainter.h"
#include <gtest/gtest.h>
#include <vector>

using namespace zp;

namespace
{

constexpr std::uint32_t kPaper = 0xFF123456, kDark = 0xFF000000, kLight = 0xFFFFFFFF;

/// A small screen; '#' dark, 'o' light, '.' untouched.
struct Screen {
    PixelBox box;
    std::vector<std::uint32_t> words;
    explicit Screen(PixelBox b) : box(b), words(std::size_t(b.width()) * std::size_t(b.height()), kPaper) {}
    ScreenTarget target() { return {words.data(), box.width(), box}; }
    std::string row(int y) const
    {
        std::string text;
        for (int x = box.x0; x < box.x1; ++x) {
            const std::uint32_t w = words[std::size_t(y - box.y0) * std::size_t(box.width()) + std::size_t(x - box.x0)];
            text += w == kDark ? '#' : w == kLight ? 'o' : '.';
        }
        return text;
    }
};

} // namespace

TEST(AntsPainter, AlternatesDarkAndLightOfEqualLength)
{
    Screen screen({0, 0, 20, 1});
    const DevicePoint line[] = {{0, 0}, {20, 0}};
    drawDashedLine(screen.target(), line, 0, {});
    EXPECT_EQ(screen.row(0), "#####ooooo#####ooooo");
}

TEST(AntsPainter, CrawlsWithThePhase)
{
    Screen screen({0, 0, 20, 1});
    const DevicePoint line[] = {{0, 0}, {20, 0}};
    drawDashedLine(screen.target(), line, 0, {5, 2});
    EXPECT_EQ(screen.row(0), "oo#####ooooo#####ooo");
}

TEST(AntsPainter, RunsOnOverCornersAndPieces)
{
    Screen whole({0, 0, 12, 12}), pieces({0, 0, 12, 12});
    const DevicePoint line[] = {{1, 1}, {8, 1}, {8, 9}};
    const double end = drawDashedLine(whole.target(), line, 0, {});
    EXPECT_DOUBLE_EQ(end, 15);
    const double corner = drawDashedLine(pieces.target(), std::span(line, 2), 0, {});
    drawDashedLine(pieces.target(), std::span(line + 1, 2), corner, {});
    EXPECT_EQ(whole.words, pieces.words);
}

TEST(AntsPainter, ABoxShowsItsPartOfTheWholePicture)
{
    const DevicePoint line[] = {{-300, -20}, {37, 41}, {-5, 90}, {33.5, 12.25}, {33.5, 500}};
    Screen whole({0, 0, 48, 64});
    drawDashedLine(whole.target(), line, 3.5, {5, 1.25, 2});
    for (const PixelBox box : {PixelBox{0, 0, 20, 20}, PixelBox{20, 10, 48, 64}, PixelBox{33, 0, 34, 64}}) {
        Screen part(box);
        drawDashedLine(part.target(), line, 3.5, {5, 1.25, 2});
        for (int y = box.y0; y < box.y1; ++y)
            EXPECT_EQ(part.row(y), whole.row(y).substr(std::size_t(box.x0), std::size_t(box.width()))) << "row " << y;
    }
}

TEST(AntsPainter, DrawsNothingForWhatCannotBeDrawn)
{
    Screen screen({0, 0, 8, 8});
    const DevicePoint broken[] = {{0, 0}, {std::nan(""), 4}};
    drawDashedLine(screen.target(), broken, 0, {});
    const DevicePoint far[] = {{1e12, 1e12}, {2e12, 1e12}};
    drawDashedLine(screen.target(), far, 0, {});
    for (int y = 0; y < 8; ++y) EXPECT_EQ(screen.row(y), "........");
}
