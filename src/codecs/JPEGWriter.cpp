// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG files straight from A, R, G, B rows.
#include "base/Simd.h"
#include "codecs/Codec.h"
#include "codecs/CodecWriters.h"
#include "codecs/MetadataBlocks.h"
#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <jpeglib.h>

namespace zp::codec
{
namespace
{

constexpr std::size_t kMaxMarkerBytes = 65533;

struct ErrorManager : jpeg_error_mgr {
    std::jmp_buf jump;
};

/// Everything that lives across libjpeg's long jumps. The function that sets the jump owns no object itself.
struct Session {
    jpeg_compress_struct info{};
    ErrorManager errors{};
    bool created = false;
    unsigned char* bytes = nullptr;
    unsigned long count = 0;
    std::vector<std::uint8_t> exif, xmp;
    const ImageProperties* properties = nullptr;
    ConstBitmapView pixels;
    std::uint32_t background = 0; ///< opaque word that transparent pixels are composed over
    std::vector<std::uint8_t> composed;

    ~Session()
    {
        if (created) jpeg_destroy_compress(&info);
        std::free(bytes);
    }
};

[[noreturn]] void onError(j_common_ptr info) { std::longjmp(static_cast<ErrorManager*>(info->err)->jump, 1); }
void onMessage(j_common_ptr) {}

/// Premultiplied pixels over an opaque background, rounded. @return whether any pixel needed it
ZP_MULTIVERSION bool composeRow(const std::uint32_t* from, std::uint32_t* to, int count, std::uint32_t background)
{
    std::uint32_t all = 0xFF;
    for (int i = 0; i < count; ++i) all &= from[i];
    if ((all & 0xFF) == 0xFF) return false;
    const std::uint32_t r = background >> 8 & 0xFF, g = background >> 16 & 0xFF, b = background >> 24;
    const auto part = [](std::uint32_t colour, std::uint32_t rest) {
        const std::uint32_t product = colour * rest + 128;
        return (product + (product >> 8)) >> 8;
    };
    for (int i = 0; i < count; ++i) {
        const std::uint32_t w = from[i], rest = 255 - (w & 0xFF);
        const std::uint32_t x = (w >> 8 & 0xFF) + part(r, rest), y = (w >> 16 & 0xFF) + part(g, rest),
                            z = (w >> 24) + part(b, rest);
        to[i] = 0xFF | std::min(x, 255u) << 8 | std::min(y, 255u) << 16 | std::min(z, 255u) << 24;
    }
    return true;
}

void writeMarkers(Session& s)
{
    jpeg_compress_struct* info = &s.info;
    if (!s.exif.empty()) jpeg_write_marker(info, JPEG_APP0 + 1, s.exif.data(), unsigned(s.exif.size()));
    if (!s.xmp.empty()) jpeg_write_marker(info, JPEG_APP0 + 1, s.xmp.data(), unsigned(s.xmp.size()));
    const auto& profile = s.properties->iccProfile;
    if (!profile.empty() && profile.size() < 255 * (kMaxMarkerBytes - 14))
        jpeg_write_icc_profile(info, profile.data(), unsigned(profile.size()));
}

bool encode(Session& s, int quality)
{
    s.info.err = jpeg_std_error(&s.errors);
    s.errors.error_exit = onError;
    s.errors.output_message = onMessage;
    if (setjmp(s.errors.jump)) return false;
    jpeg_compress_struct* info = &s.info;
    jpeg_create_compress(info);
    s.created = true;
    jpeg_mem_dest(info, &s.bytes, &s.count);
    info->image_width = JDIMENSION(s.pixels.width);
    info->image_height = JDIMENSION(s.pixels.height);
    info->input_components = 4;
    info->in_color_space = JCS_EXT_XRGB;
    jpeg_set_defaults(info); // YCbCr with the chroma halved both ways
    jpeg_set_quality(info, quality, TRUE);
    const double x = s.properties->xDpi, y = s.properties->yDpi;
    if (x >= 1 && y >= 1 && x < 65535 && y < 65535) {
        info->density_unit = 1;
        info->X_density = UINT16(std::lround(x));
        info->Y_density = UINT16(std::lround(y));
    }
    jpeg_start_compress(info, TRUE);
    writeMarkers(s);

    constexpr int kRows = 16;
    JSAMPROW rows[kRows];
    while (info->next_scanline < info->image_height) {
        const int y0 = int(info->next_scanline), count = std::min(kRows, s.pixels.height - y0);
        for (int i = 0; i < count; ++i) {
            const std::uint32_t* from = s.pixels.row(y0 + i);
            auto* composed = reinterpret_cast<std::uint32_t*>(s.composed.data()) + std::ptrdiff_t{i} * s.pixels.width;
            const bool changed = composeRow(from, composed, s.pixels.width, s.background);
            rows[i] = changed ? reinterpret_cast<JSAMPROW>(composed)
                              : const_cast<JSAMPROW>(reinterpret_cast<const JSAMPLE*>(from)); // libjpeg only reads it
        }
        jpeg_write_scanlines(info, rows, JDIMENSION(count));
    }
    jpeg_finish_compress(info);
    return true;
}

std::vector<std::uint8_t> withPrefix(const char* prefix, std::size_t length, std::span<const std::uint8_t> bytes)
{
    if (bytes.empty() || length + bytes.size() > kMaxMarkerBytes) return {};
    std::vector<std::uint8_t> out;
    out.reserve(length + bytes.size());
    out.insert(out.end(), prefix, prefix + length);
    out.insert(out.end(), bytes.begin(), bytes.end());
    return out;
}

/// A marker holds 64 kB: what is too long for it loses the maker's note first, then everything but the comment.
std::vector<std::uint8_t> exifMarker(const ImageProperties& properties, int width, int height)
{
    ExifBlock block = exifForSaving(properties, width, height);
    auto marker = withPrefix("Exif\0", 6, serialiseExif(block));
    if (!marker.empty() || block.isEmpty()) return marker;
    ExifBlock::erase(block.photo, tag::MakerNote);
    marker = withPrefix("Exif\0", 6, serialiseExif(block));
    if (!marker.empty()) return marker;
    ImageProperties bare;
    bare.userComment = properties.userComment;
    return withPrefix("Exif\0", 6, serialiseExif(exifForSaving(bare, width, height)));
}

} // namespace

std::vector<std::uint8_t> writeJPEG(ConstBitmapView pixels, const ImageProperties& properties, int quality,
                                    const std::optional<Color>& background)
{
    Session s;
    s.properties = &properties;
    s.pixels = pixels;
    s.exif = exifMarker(properties, pixels.width, pixels.height);
    static constexpr char kXMP[] = "http://ns.adobe.com/xap/1.0/";
    const std::string packet = xmpForSaving(properties);
    s.xmp = withPrefix(kXMP, sizeof kXMP, {reinterpret_cast<const std::uint8_t*>(packet.data()), packet.size()});
    const auto byte = [](float v) { return std::uint32_t(std::lround(std::clamp(v, 0.0f, 1.0f) * 255)); };
    s.background =
        background ? 0xFF | byte(background->red) << 8 | byte(background->green) << 16 | byte(background->blue) << 24
                   : 0xFF;
    s.composed.resize(std::size_t(pixels.width) * 4 * 16);
    if (!encode(s, quality)) return {};
    return {s.bytes, s.bytes + s.count};
}

} // namespace zp::codec
