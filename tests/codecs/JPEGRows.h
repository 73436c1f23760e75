// SPDX-License-Identifier: GPL-3.0-or-later
/// Cuts block rows out of JPEG files that have no restart markers.
#pragma once
#include "codecs/JPEGIndex.h"
#include "codecs/JPEGSegments.h"
#include "codecs/LibJPEG.h"
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace zp::test
{

/// A file's head as the library reads it, and where its rows begin.
struct JPEGRows {
    jpeg_decompress_struct info{};
    jpeg::Errors errors;
    std::size_t scan = 0, height = 0; ///< where the last segment of the head begins, and where the height stands
    std::size_t data = 0;             ///< and where the codes begin
    int unit = 0, count = 0;
    std::unique_ptr<jpeg::RowIndex> index;

    explicit JPEGRows(const std::vector<std::uint8_t>& file)
    {
        info.err = &errors;
        if (setjmp(errors.jump)) return;
        jpeg_create_decompress(&info);
        jpeg_mem_src(&info, file.data(), file.size());
        jpeg_read_header(&info, TRUE);
        jpeg::SegmentWalk walk(file);
        while (const auto segment = walk.next()) {
            if (jpeg::isFrame(segment->marker)) height = segment->begin + jpeg::kFrameHeightOffset;
            scan = segment->begin;
            data = segment->end;
        }
        const bool grey = info.num_components == 1;
        const int width = 8 * (grey ? 1 : info.max_h_samp_factor);
        unit = 8 * (grey ? 1 : info.max_v_samp_factor);
        count = (int(info.image_height) + unit - 1) / unit;
        index = jpeg::RowIndex::make(std::span(file).subspan(data), info, count,
                                     (int(info.image_width) + width - 1) / width);
    }
    ~JPEGRows() { jpeg_destroy_decompress(&info); }
    JPEGRows(const JPEGRows&) = delete;
    JPEGRows& operator=(const JPEGRows&) = delete;

    /// A file of those rows alone.
    std::vector<std::uint8_t> part(const std::vector<std::uint8_t>& file, int first, int last) const
    {
        std::vector<std::uint8_t> all(file.begin(), file.begin() + std::ptrdiff_t(scan));
        all.insert(all.end(), index->tables().begin(), index->tables().end());
        all.insert(all.end(), file.begin() + std::ptrdiff_t(scan), file.begin() + std::ptrdiff_t(data));
        jpeg::write16(all.data() + height, std::min(last * unit, int(info.image_height)) - first * unit);
        const jpeg::CodedRows coded = index->coded(first, last);
        all.insert(all.end(), coded.memory.get(), coded.memory.get() + coded.count);
        all.insert(all.end(), {jpeg::kMark, jpeg::kEndOfImage});
        return all;
    }
};

} // namespace zp::test
