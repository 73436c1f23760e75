// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures and masks that tests draw as text or at random.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace zp::test
{

/// Canvas-format pixels in memory of its own; the spare bytes of each row hold a pattern that checkSpare() looks for.
class Picture
{
public:
    Picture(int width, int height, std::uint32_t word = 0)
        : mWidth(width),
          mHeight(height),
          mRowBytes(std::ptrdiff_t{64} * (width / 16) + 64),
          mBytes(std::size_t(mRowBytes) * std::size_t(height), 0xA5)
    {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) at(x, y) = word;
    }
    BitmapView view() { return {mBytes.data(), mWidth, mHeight, mRowBytes}; }
    std::uint32_t& at(int x, int y) { return view().row(y)[x]; }
    int width() const { return mWidth; }
    int height() const { return mHeight; }
    bool spareUntouched()
    {
        for (int y = 0; y < mHeight; ++y)
            for (std::ptrdiff_t i = std::ptrdiff_t{4} * mWidth; i < mRowBytes; ++i)
                if (view().rowData(y)[i] != 0xA5) return false;
        return true;
    }
    friend bool operator==(const Picture& a, const Picture& b) { return a.mBytes == b.mBytes; }

private:
    int mWidth, mHeight;
    std::ptrdiff_t mRowBytes;
    std::vector<std::uint8_t> mBytes;
};

/// A mask with stride = width.
class Mask
{
public:
    Mask(int width, int height, std::uint8_t value = 0)
        : mWidth(width), mHeight(height), mBytes(std::size_t(width) * std::size_t(height), value)
    {
    }
    MaskView view() { return {mBytes.data(), mWidth, mHeight, mWidth}; }
    std::uint8_t& at(int x, int y) { return view().row(y)[x]; }
    friend bool operator==(const Mask& a, const Mask& b) { return a.mBytes == b.mBytes; }

private:
    int mWidth, mHeight;
    std::vector<std::uint8_t> mBytes;
};

/// Rows of a text, separated by '/'.
inline std::vector<std::string> rowsOf(std::string_view text)
{
    std::vector<std::string> rows(1);
    for (const char c : text) {
        if (c == '/') {
            rows.emplace_back();
        } else {
            rows.back() += c;
        }
    }
    return rows;
}

/// The kinds of random picture that make a fill's life different.
enum class Texture { Noise, Percolation, Blobs, VerticalLines, HorizontalLines, Maze, Count };

inline Picture randomPicture(std::mt19937& random, int width, int height, Texture texture)
{
    constexpr std::uint32_t kOpen = 0x80808080, kShut = 0xFF0000FF;
    Picture picture(width, height, kOpen);
    const auto chance = [&](int percent) { return int(random() % 100) < percent; };
    switch (texture) {
    case Texture::Noise:
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const std::uint32_t v = 100 + random() % 24;
                picture.at(x, y) = v * 0x01010101u + (chance(50) ? 0 : 0x01000100u);
            }
        break;
    case Texture::Percolation: {
        const int open = 50 + int(random() % 30);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (!chance(open)) picture.at(x, y) = kShut;
        break;
    }
    case Texture::Blobs:
        for (int i = 0; i < 12; ++i) {
            const int cx = int(random() % unsigned(width)), cy = int(random() % unsigned(height));
            const int rx = 1 + int(random() % 20), ry = 1 + int(random() % 20);
            const std::uint32_t word = i % 3 ? kShut : kOpen;
            for (int y = std::max(0, cy - ry); y < std::min(height, cy + ry); ++y)
                for (int x = std::max(0, cx - rx); x < std::min(width, cx + rx); ++x) picture.at(x, y) = word;
        }
        break;
    case Texture::VerticalLines:
        for (int x = 1; x < width; x += 2)
            for (int y = 0; y < height; ++y)
                if (y != (x / 2 % 2 ? 0 : height - 1)) picture.at(x, y) = kShut;
        break;
    case Texture::HorizontalLines:
        for (int y = 1; y < height; y += 2)
            for (int x = 0; x < width; ++x)
                if (x != (y / 2 % 2 ? 0 : width - 1)) picture.at(x, y) = kShut;
        break;
    default:
        for (int y = 1; y < height; y += 2)
            for (int x = 1; x < width; x += 2) {
                picture.at(x, y) = kShut;
                constexpr int kWays[4][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
                const int* way = kWays[random() % 4];
                if (x + way[0] < width && y + way[1] < height) picture.at(x + way[0], y + way[1]) = kShut;
            }
    }
    return picture;
}

} // namespace zp::test
