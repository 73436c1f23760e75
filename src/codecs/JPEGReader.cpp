// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG files straight into A, R, G, B rows.
#include "base/FixedPoint.h"
#include "base/Translation.h"
#include "codecs/Codec.h"
#include "codecs/ColourProfiles.h"
#include "codecs/JPEGBands.h"
#include "codecs/JPEGPlanes.h"
#include "codecs/LibJPEG.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cstring>
#include <optional>

namespace zp::codec
{
namespace
{

/// Progressive files decode the whole picture's coefficients once a scan: camera and web files have about ten scans,
/// thousands can only be meant to keep the program busy.
constexpr int kMaxScans = 500;
/// Scans times pixels: about half a minute of work.
constexpr double kMaxScanPixels = 3e10;
/// Coefficients of a progressive file are held in memory, all of them.
constexpr long kMaxCoefficientBytes = 1L << 30;

/// Everything that lives across libjpeg's long jumps. The functions that set the jump own no object themselves.
struct Session {
    jpeg_decompress_struct info{};
    jpeg::Errors errors;
    jpeg_progress_mgr progress{};
    BitmapView out;
    std::vector<std::uint8_t> inkRow; ///< one row of a four-ink picture
    std::optional<InkConverter> inks; ///< by its profile, when it has one

    ~Session() { jpeg_destroy_decompress(&info); } // harmless on one that was never created
};

void onProgress(j_common_ptr common)
{
    auto* info = reinterpret_cast<j_decompress_ptr>(common);
    const int scan = info->input_scan_number;
    if (scan <= 1) return;
    const double pixels = double(info->image_width) * double(info->image_height);
    if (scan > kMaxScans || scan * pixels > kMaxScanPixels)
        static_cast<jpeg::Errors*>(info->err)->fail("it has too many scans");
}

bool readHeader(Session& s, Bytes bytes, bool keepMarkers)
{
    s.info.err = &s.errors;
    if (setjmp(s.errors.jump)) return false;
    jpeg_create_decompress(&s.info);
    s.info.mem->max_memory_to_use = kMaxCoefficientBytes;
    s.progress.progress_monitor = onProgress;
    s.info.progress = &s.progress;
    jpeg_mem_src(&s.info, bytes.data(), static_cast<unsigned long>(bytes.size()));
    jpeg_save_markers(&s.info, JPEG_APP0 + 1, 0xFFFF); // the orientation is in there, whatever was asked for
    for (const int marker : {JPEG_APP0 + 2, JPEG_APP0 + 13, JPEG_COM})
        if (keepMarkers) jpeg_save_markers(&s.info, marker, 0xFFFF);
    jpeg_read_header(&s.info, TRUE);
    return true;
}

/// Settles what the pixels shall be like.
bool choose(Session& s, unsigned reduction)
{
    if (setjmp(s.errors.jump)) return false;
    s.info.out_color_space = s.info.num_components == 4 ? JCS_CMYK : JCS_EXT_ARGB;
    s.info.scale_num = 1;
    s.info.scale_denom = reduction;
    s.info.raw_data_out = jpeg::PlaneDecoder::handles(s.info);
    jpeg_calc_output_dimensions(&s.info);
    return true;
}

bool startDecoding(Session& s)
{
    if (setjmp(s.errors.jump)) return false;
    jpeg_start_decompress(&s.info);
    return true;
}

/// Inks to colours. Adobe's programs, which nearly all such files come from, store inks inverted and say so.
void inksToColours(const std::uint8_t* inks, std::uint8_t* argb, int count, bool inverted)
{
    const unsigned flip = inverted ? 0 : 255;
    for (int x = 0; x < count; ++x, inks += 4, argb += 4) {
        const unsigned k = inks[3] ^ flip;
        const auto scale = [k](unsigned ink) { return std::uint8_t(divide255(ink * k)); };
        argb[0] = 255;
        argb[1] = scale(inks[0] ^ flip);
        argb[2] = scale(inks[1] ^ flip);
        argb[3] = scale(inks[2] ^ flip);
    }
}

/// Row by row, what cannot be decoded as planes. An error ends it; the rows so far are in the bitmap.
void readRows(Session& s)
{
    if (setjmp(s.errors.jump)) return;
    const BitmapView out = s.out;
    if (s.info.out_color_space == JCS_CMYK) {
        JSAMPROW row = s.inkRow.data();
        while (s.info.output_scanline < s.info.output_height) {
            const int y = int(s.info.output_scanline);
            jpeg_read_scanlines(&s.info, &row, 1);
            if (s.inks && *s.inks)
                s.inks->convert(row, out.rowData(y), out.width);
            else
                inksToColours(row, out.rowData(y), out.width, s.info.saw_Adobe_marker);
        }
        return;
    }
    constexpr int kRows = 16;
    JSAMPROW rows[kRows];
    while (s.info.output_scanline < s.info.output_height) {
        const int y = int(s.info.output_scanline);
        const int count = std::min(kRows, out.height - y);
        for (int i = 0; i < count; ++i) rows[i] = out.rowData(y + i);
        jpeg_read_scanlines(&s.info, rows, JDIMENSION(count));
    }
}

/// The rest of the file is only looked at for warnings.
void finish(Session& s)
{
    if (setjmp(s.errors.jump)) return;
    jpeg_finish_decompress(&s.info);
}

bool startsWith(const jpeg_marker_struct& marker, const char* prefix, std::size_t length)
{
    return marker.data_length >= length && std::memcmp(marker.data, prefix, length) == 0;
}

/// The profile's chunks put in order; nothing when one is missing.
std::vector<std::uint8_t> profileOf(const jpeg_decompress_struct& info, bool& incomplete)
{
    constexpr std::size_t kPrefix = 14; // "ICC_PROFILE", zero, number, count
    const jpeg_marker_struct* chunks[256] = {};
    int count = 0, found = 0;
    for (const jpeg_marker_struct* m = info.marker_list; m; m = m->next) {
        if (m->marker != JPEG_APP0 + 2 || !startsWith(*m, "ICC_PROFILE", 12) || m->data_length < kPrefix) continue;
        const int number = m->data[12];
        count = std::max(count, int(m->data[13]));
        if (number < 1 || chunks[number]) continue;
        chunks[number] = m;
        ++found;
    }
    if (!found) return {};
    for (int i = 1; i <= count; ++i)
        if (!chunks[i]) {
            incomplete = true;
            return {};
        }
    std::vector<std::uint8_t> profile;
    for (int i = 1; i <= count; ++i)
        profile.insert(profile.end(), chunks[i]->data + kPrefix, chunks[i]->data + chunks[i]->data_length);
    return profile;
}

void collectProfile(const jpeg_decompress_struct& info, bool inksConverted, ImageProperties& properties)
{
    bool incomplete = false;
    std::vector<std::uint8_t> profile = profileOf(info, incomplete);
    if (incomplete)
        properties.warnings.emplace_back(translated("Codecs", "The colour profile is incomplete and was left out."));
    if (inksConverted) {
        properties.iccProfile = sRGBProfile();
        return;
    }
    keepProfile(properties, std::move(profile), info.jpeg_color_space == JCS_GRAYSCALE ? "GRAY" : "RGB ",
                info.out_color_space == JCS_CMYK ? "CMYK" : nullptr);
}

void collectProperties(const jpeg_decompress_struct& info, bool inksConverted, ImageProperties& properties)
{
    if (info.saw_JFIF_marker && info.density_unit != 0 && info.X_density && info.Y_density) {
        const double perInch = info.density_unit == 2 ? 2.54 : 1;
        properties.xDpi = info.X_density * perInch;
        properties.yDpi = info.Y_density * perInch;
    }
    static constexpr char kXMP[] = "http://ns.adobe.com/xap/1.0/";
    for (const jpeg_marker_struct* m = info.marker_list; m; m = m->next) {
        if (m->marker != JPEG_APP0 + 1) continue;
        if (properties.exif.empty() && startsWith(*m, "Exif\0", 5) && m->data_length > 6)
            keepExif(properties, {m->data + 6, m->data + m->data_length});
        else if (properties.xmp.empty() && startsWith(*m, kXMP, sizeof kXMP))
            keepXMP(properties, {reinterpret_cast<const char*>(m->data) + sizeof kXMP, m->data_length - sizeof kXMP});
    }
    static constexpr char kResources[] = "Photoshop 3.0";
    constexpr std::size_t kMostComments = 100;
    for (const jpeg_marker_struct* m = info.marker_list; m; m = m->next) {
        if (m->marker == JPEG_APP0 + 13 && startsWith(*m, kResources, sizeof kResources))
            keepIPTC(properties, iptcOfResources({m->data + sizeof kResources, m->data_length - sizeof kResources}));
        if (m->marker == JPEG_COM && m->data_length > 0 && properties.comments.size() < kMostComments)
            properties.comments.emplace_back(reinterpret_cast<const char*>(m->data), m->data_length);
    }
    collectProfile(info, inksConverted, properties);
}

int orientationOf(const jpeg_decompress_struct& info)
{
    for (const jpeg_marker_struct* m = info.marker_list; m; m = m->next)
        if (m->marker == JPEG_APP0 + 1 && startsWith(*m, "Exif\0", 5) && m->data_length > 6)
            return exifOrientation({m->data + 6, m->data_length - 6});
    return 1;
}

std::string sentence(const Session& s)
{
    if (s.errors.ranOutOfMemory()) return translated("Codecs", "There is not enough memory for this JPEG image.");
    return filledIn(translated("Codecs", "The JPEG data cannot be read: %1."), {tidyMessage(s.errors.message)});
}

/// The smallest scale of whole halves at which the picture is still as large as asked for.
unsigned reductionFor(const jpeg_decompress_struct& info, const ImportOptions& options, int orientation)
{
    if (options.atLeastWidth <= 0 || options.atLeastHeight <= 0) return 1;
    const auto width = unsigned(swapsSides(orientation) ? options.atLeastHeight : options.atLeastWidth);
    const auto height = unsigned(swapsSides(orientation) ? options.atLeastWidth : options.atLeastHeight);
    for (const unsigned n : {8u, 4u, 2u})
        if (info.image_width / n >= width && info.image_height / n >= height) return n;
    return 1;
}

/// Everything into s.out, which has the chosen size. @return how many rows are whole
int decodePixels(Session& s, Bytes bytes)
{
    if (s.info.raw_data_out)
        if (const auto bands = jpeg::BandPlan::make(bytes, s.info); bands && bands->decode(s.out)) return s.out.height;
    if (!startDecoding(s)) return 0;
    if (s.info.raw_data_out) {
        const int rows = jpeg::PlaneDecoder(s.info, s.out).decode();
        if (rows == s.out.height) finish(s);
        return rows;
    }
    if (s.info.out_color_space == JCS_CMYK) s.inkRow.resize(std::size_t{4} * s.info.output_width);
    readRows(s);
    if (s.info.output_scanline == s.info.output_height) finish(s);
    return int(s.info.output_scanline);
}

} // namespace

Decoded decodeJPEG(Bytes bytes, const ImportOptions& options)
{
    Session s;
    if (!readHeader(s, bytes, options.properties)) return Decoded::failure(sentence(s));
    Decoded result;
    if (!checkSize(s.info.image_width, s.info.image_height, bytes.size(), result.error)) return result;
    if (s.info.num_components == 2)
        return Decoded::failure(translated("Codecs", "JPEG images with two components cannot be read."));
    result.orientation = orientationOf(s.info);
    const unsigned reduction = reductionFor(s.info, options, result.orientation);
    if (reduction > 1)
        result.reduction = {
            .divisor = int(reduction), .width = int(s.info.image_width), .height = int(s.info.image_height)};
    if (!choose(s, reduction)) return Decoded::failure(sentence(s));

    auto bitmap = BitmapRep::createUninitialized(int(s.info.output_width), int(s.info.output_height));
    if (!bitmap) return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    bool incomplete = false;
    if (options.properties && s.info.out_color_space == JCS_CMYK)
        s.inks.emplace(profileOf(s.info, incomplete), s.info.saw_Adobe_marker);
    if (options.properties)
        collectProperties(s.info, s.inks && *s.inks, bitmap->properties); // finishing forgets the markers
    s.out = bitmap->view();
    const int rows = decodePixels(s, bytes);
    if (rows == 0) return Decoded::failure(sentence(s));
    for (int y = rows; y < s.out.height; ++y) std::memset(s.out.rowData(y), 0, std::size_t(s.out.rowBytes));
    result.damaged = rows < s.out.height || s.errors.num_warnings > 0;
    if (result.damaged)
        bitmap->properties.warnings.emplace_back(
            translated("Codecs", "The JPEG data is damaged; what could be read is shown."));
    result.bitmap = std::move(bitmap);
    return result;
}

bool decodeJPEGInto(Bytes bytes, BitmapView pixels)
{
    Session s;
    if (!readHeader(s, bytes, false) || s.info.num_components == 2) return false;
    if (int(s.info.image_width) != pixels.width || int(s.info.image_height) != pixels.height) return false;
    if (!choose(s, 1)) return false;
    s.out = pixels;
    return decodePixels(s, bytes) == pixels.height && s.errors.num_warnings == 0;
}

} // namespace zp::codec
