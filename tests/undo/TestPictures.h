// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures for undo's tests and benchmarks, and a plain use of the JPEG library to hold ours against.
#pragma once
#include "base/BitmapRep.h"
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <jpeglib.h>
#include <memory>
#include <random>
#include <span>
#include <vector>

namespace zp::test
{

/// Owned pixels in the canvas's layout; spare bytes hold a mark.
class Picture
{
public:
    Picture(int width, int height) : mWidth(width), mHeight(height), mRowBytes(BitmapRep::rowBytesForWidth(width))
    {
        mMemory = allocatePixels(std::size_t(mRowBytes) * std::size_t(height));
        std::memset(mMemory.get(), 0xA5, std::size_t(mRowBytes) * std::size_t(height));
    }
    BitmapView view() { return {mMemory.get(), mWidth, mHeight, mRowBytes}; }
    ConstBitmapView view() const { return {mMemory.get(), mWidth, mHeight, mRowBytes}; }
    bool spareBytesUntouched() const
    {
        for (int y = 0; y < mHeight; ++y)
            for (std::ptrdiff_t i = std::ptrdiff_t{4} * mWidth; i < mRowBytes; ++i)
                if (view().rowData(y)[i] != 0xA5) return false;
        return true;
    }

private:
    int mWidth, mHeight;
    std::ptrdiff_t mRowBytes;
    PixelMemory mMemory;
};

/// Shapes, gradients and grain: what a photograph costs an encoder. Alpha varies, colours stay at or below it.
inline void paintPhoto(BitmapView pixels, unsigned seed, int grain = 6)
{
    std::minstd_rand random(seed);
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x) {
            std::uint8_t* p = pixels.pixel(x, y);
            const double wave = std::sin(x * 0.013 + seed) + std::cos(y * 0.017) + std::sin((x + y) * 0.031);
            const int base = 128 + int(38 * wave) + ((x / 97 + y / 61) % 3 == 0 ? 24 : 0);
            const auto noisy = [&](int v) {
                return std::uint8_t(std::clamp(v + int(random() % unsigned(2 * grain + 1)) - grain, 0, 255));
            };
            p[0] = 255;
            p[1] = noisy(base);
            p[2] = noisy(base * 3 / 4 + 20);
            p[3] = noisy(255 - base);
        }
}

inline bool sameColours(ConstBitmapView a, ConstBitmapView b)
{
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x)
            if (std::memcmp(a.pixel(x, y) + 1, b.pixel(x, y) + 1, 3) != 0) return false;
    return true;
}

struct PlainOptions {
    int quality = 70;
    int restartRows = 0;
    bool progressive = false, grey = false, fullColour = false;
};

/// The JPEG library as its manual shows it.
inline std::vector<std::uint8_t> plainEncode(ConstBitmapView pixels, PlainOptions options = {})
{
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &memory, &size);
    info.image_width = JDIMENSION(pixels.width);
    info.image_height = JDIMENSION(pixels.height);
    info.input_components = 4;
    info.in_color_space = JCS_EXT_XRGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, options.quality, TRUE);
    info.restart_in_rows = options.restartRows;
    if (options.grey) jpeg_set_colorspace(&info, JCS_GRAYSCALE);
    if (options.fullColour) info.comp_info[0].h_samp_factor = info.comp_info[0].v_samp_factor = 1;
    if (options.progressive) jpeg_simple_progression(&info);
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        JSAMPROW row = const_cast<std::uint8_t*>(pixels.rowData(int(info.next_scanline)));
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    std::vector<std::uint8_t> file(memory, memory + size);
    std::free(memory);
    return file;
}

/// Into @p pixels, which must have the file's size.
inline void plainDecode(std::span<const std::uint8_t> file, BitmapView pixels)
{
    jpeg_decompress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, file.data(), file.size());
    jpeg_read_header(&info, TRUE);
    info.out_color_space = JCS_EXT_ARGB;
    jpeg_start_decompress(&info);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = pixels.rowData(int(info.output_scanline));
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
}

} // namespace zp::test
