// SPDX-License-Identifier: GPL-3.0-or-later
/// A JPEG of any size to be opened by programs, ours and others.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio> // before the library's header, which does without it
#include <jpeglib.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench
{

/// Soft clouds with grain, at quality 92, half the colour. Written row by row: the pixels are nowhere as a whole.
inline void writeCloudsAsJPEG(const std::string& path, int width, int height)
{
    std::FILE* const out = std::fopen(path.c_str(), "wb");
    if (!out) throw std::runtime_error(path);
    jpeg_compress_struct file{};
    jpeg_error_mgr errors{};
    file.err = jpeg_std_error(&errors);
    jpeg_create_compress(&file);
    jpeg_stdio_dest(&file, out);
    file.image_width = JDIMENSION(width);
    file.image_height = JDIMENSION(height);
    file.input_components = 3;
    file.in_color_space = JCS_RGB;
    jpeg_set_defaults(&file);
    jpeg_set_quality(&file, 92, TRUE);
    jpeg_start_compress(&file, TRUE);
    std::vector<float> across(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x) across[std::size_t(x)] = 120 + 90 * std::sin(float(x) * 0.003f);
    std::vector<JSAMPLE> row(std::size_t(width) * 3);
    JSAMPROW rows[] = {row.data()};
    std::uint32_t random = 12345;
    for (int y = 0; y < height; ++y) {
        const float down = 40 * std::sin(float(y) * 0.004f);
        JSAMPLE* p = row.data();
        for (const float value : across) {
            random = random * 1664525u + 1013904223u;
            const float grain = float(random >> 29);
            *p++ = JSAMPLE(value + grain);
            *p++ = JSAMPLE((value + grain) * 0.5f + 60 + down);
            *p++ = JSAMPLE(120 + down + grain);
        }
        jpeg_write_scanlines(&file, rows, 1);
    }
    jpeg_finish_compress(&file);
    jpeg_destroy_compress(&file);
    std::fclose(out);
}

} // namespace bench
