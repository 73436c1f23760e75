// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG files without restart markers: where their rows are found, any of them decode to what they are in the whole.
#include "codecs/JPEGRows.h"
#include "Fuzz.h"

namespace
{

using File = std::vector<std::uint8_t>;

/// The library's pixels, in brightness and colours as they are; none when it has anything to say about the file.
File decoded(const File& file)
{
    jpeg_decompress_struct info{};
    zp::jpeg::Errors errors;
    info.err = &errors;
    File pixels;
    const bool whole = [&] {
        if (setjmp(errors.jump)) return false;
        jpeg_create_decompress(&info);
        jpeg_mem_src(&info, file.data(), file.size());
        jpeg_read_header(&info, TRUE);
        info.out_color_space = info.jpeg_color_space;
        info.do_fancy_upsampling = FALSE; // rows of their own, whatever stands beside them
        jpeg_start_decompress(&info);
        const std::size_t rowBytes = std::size_t(info.output_width) * std::size_t(info.output_components);
        pixels.resize(rowBytes * info.output_height);
        while (info.output_scanline < info.output_height) {
            JSAMPROW row = pixels.data() + rowBytes * info.output_scanline;
            jpeg_read_scanlines(&info, &row, 1);
        }
        jpeg_finish_decompress(&info);
        return errors.num_warnings == 0;
    }();
    jpeg_destroy_decompress(&info);
    if (!whole) pixels.clear();
    return pixels;
}

} // namespace

ZP_FUZZ(JPEGRows, "jpg jpeg", bytes)
{
    constexpr std::uint64_t kMostPixels = 1'000'000;
    const File file(bytes.begin(), bytes.end());
    zp::test::JPEGRows rows(file);
    if (!rows.index || std::uint64_t{rows.info.image_width} * rows.info.image_height > kMostPixels) return;
    if (!rows.index->findRows()) return;
    const File whole = decoded(file);
    if (whole.empty()) return; // behind its rows there may be anything
    const int middle = rows.count / 2;
    zp::fuzz::require(decoded(rows.part(file, 0, rows.count)) == whole, "all rows are the picture");
    File parts = decoded(rows.part(file, 0, std::max(1, middle)));
    if (middle > 0) {
        const File rest = decoded(rows.part(file, middle, rows.count));
        parts.insert(parts.end(), rest.begin(), rest.end());
        zp::fuzz::require(parts == whole, "two parts are the picture");
    }
}
