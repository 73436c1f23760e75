// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures with holes for the smart fill's tests and benchmarks.
#pragma once
#include "base/BitmapView.h"
#include "smartfill/SmartFill.h"
#include <cmath>
#include <random>
#include <vector>

namespace zp::testpictures
{

/// A picture and its mask (255 inside the selection), as the canvas hands them over.
struct Scene {
    int width, height;
    std::ptrdiff_t rowBytes;
    std::vector<std::uint32_t> words;
    std::vector<std::uint8_t> mask;

    Scene(int w, int h)
        : width(w),
          height(h),
          rowBytes(std::ptrdiff_t{64} * (w / 16) + 64),
          words(std::size_t(rowBytes / 4) * std::size_t(h)),
          mask(std::size_t(w) * std::size_t(h))
    {
    }
    BitmapView bitmap() { return {reinterpret_cast<std::uint8_t*>(words.data()), width, height, rowBytes}; }
    ConstMaskView maskView() const { return {mask.data(), width, height, width}; }
    std::uint32_t& at(int x, int y) { return words[std::size_t(rowBytes / 4) * std::size_t(y) + std::size_t(x)]; }
    std::uint8_t& maskAt(int x, int y) { return mask[std::size_t(y) * std::size_t(width) + std::size_t(x)]; }

    std::uint32_t at(int x, int y) const { return const_cast<Scene*>(this)->at(x, y); }
    std::uint8_t maskAt(int x, int y) const { return const_cast<Scene*>(this)->maskAt(x, y); }

    template <class Color>
    void paint(Color color)
    {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) at(x, y) = color(x, y);
    }
    void select(PixelBox box, std::uint8_t value = 255)
    {
        for (int y = box.y0; y < box.y1; ++y)
            for (int x = box.x0; x < box.x1; ++x) maskAt(x, y) = value;
    }
};

inline std::uint32_t argb(unsigned a, unsigned r, unsigned g, unsigned b) { return a | r << 8 | g << 16 | b << 24; }

/// Something like a photo: slow waves, a slanting edge and grain.
inline std::uint32_t photoPixel(int x, int y, std::mt19937& grain, int sigma = 6)
{
    const double wave = 40 * std::sin(x * 0.05 + y * 0.02) + 25 * std::sin(y * 0.11) + (x + y / 2 > 160 ? 50 : 0);
    const auto channel = [&](double base) {
        const double noise = sigma ? double(grain() % unsigned(2 * sigma + 1)) - sigma : 0;
        return unsigned(std::min(255.0, std::max(0.0, base + wave + noise)));
    };
    return argb(255, channel(110), channel(120), channel(90));
}

} // namespace zp::testpictures
