// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG files straight into A, R, G, B rows.
#include "codecs/Codec.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PNGChunks.h"
#include "codecs/PixelRows.h"
#include <csetjmp>
#include <cstring>
#include <png.h>

namespace zp::codec
{
namespace
{

/// A chunk may unpack to this much: profiles and packets of real files are smaller, bombs are not.
constexpr png_alloc_size_t kMaxUnpackedBytes = 8 << 20;

/// Everything that lives across libpng's long jumps. The functions that set the jump own no object themselves.
struct Session {
    png_structp png = nullptr;
    png_infop info = nullptr;
    PNGChunks chunks;
    char message[200] = {};
    bool warned = false; ///< damage that libpng passed over
    std::shared_ptr<BitmapRep> bitmap;
    png_bytep* rows = nullptr;
    std::vector<png_bytep> rowStore;
    int rowsDone = 0, passes = 1, pass = 0;

    ~Session()
    {
        if (png) png_destroy_read_struct(&png, info ? &info : nullptr, nullptr);
    }
};

[[noreturn]] void onError(png_structp png, png_const_charp message)
{
    auto* s = static_cast<Session*>(png_get_error_ptr(png));
    std::strncpy(s->message, message, sizeof s->message - 1);
    png_longjmp(png, 1);
}

void onWarning(png_structp png, png_const_charp message)
{
    // Of the many remarks on harmless chunks these two say that the picture itself is not whole.
    if (std::strstr(message, "IDAT") || std::strstr(message, "CRC"))
        static_cast<Session*>(png_get_error_ptr(png))->warned = true;
}

void onRead(png_structp png, png_bytep out, png_size_t count)
{
    if (!static_cast<Session*>(png_get_io_ptr(png))->chunks.read(out, count)) png_error(png, "the file ends too early");
}

bool readHeader(Session& s)
{
    s.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &s, onError, onWarning);
    if (!s.png) return false;
    if (setjmp(png_jmpbuf(s.png))) return false;
    s.info = png_create_info_struct(s.png);
    if (!s.info) png_error(s.png, "out of memory");
    png_set_read_fn(s.png, &s, onRead);
    png_set_user_limits(s.png, 0x7FFFFFFF, 0x7FFFFFFF); // sizes are checked where all readers check them
    png_set_chunk_malloc_max(s.png, kMaxUnpackedBytes);
    png_set_benign_errors(s.png, 1);
    png_set_crc_action(s.png, PNG_CRC_ERROR_QUIT, PNG_CRC_WARN_DISCARD);
    // libpng's checks of profiles would refuse harmless ones; ours come later.
    png_set_option(s.png, PNG_SKIP_sRGB_CHECK_PROFILE, PNG_OPTION_ON);
    png_read_info(s.png, s.info);
    return true;
}

bool prepare(Session& s)
{
    if (setjmp(png_jmpbuf(s.png))) return false;
    const int depth = png_get_bit_depth(s.png, s.info), type = png_get_color_type(s.png, s.info);
    const bool transparent = (type & PNG_COLOR_MASK_ALPHA) || png_get_valid(s.png, s.info, PNG_INFO_tRNS);
    png_set_expand(s.png);
    if (depth == 16) png_set_scale_16(s.png);
    if (!(type & PNG_COLOR_MASK_COLOR)) png_set_gray_to_rgb(s.png);
    if (!transparent)
        png_set_filler(s.png, 0xFF, PNG_FILLER_BEFORE);
    else
        png_set_swap_alpha(s.png);
    s.passes = png_set_interlace_handling(s.png);
    png_read_update_info(s.png, s.info);
    if (png_get_rowbytes(s.png, s.info) != png_size_t{4} * png_get_image_width(s.png, s.info))
        png_error(s.png, "an unexpected layout of pixels");
    return true;
}

bool readRows(Session& s)
{
    if (setjmp(png_jmpbuf(s.png))) return false;
    const int height = int(png_get_image_height(s.png, s.info));
    for (s.pass = 0; s.pass < s.passes; ++s.pass)
        for (s.rowsDone = 0; s.rowsDone < height; ++s.rowsDone) png_read_row(s.png, s.rows[s.rowsDone], nullptr);
    return true;
}

/// Chunks behind the pixels.
void readEnd(Session& s)
{
    if (setjmp(png_jmpbuf(s.png))) return;
    png_read_end(s.png, s.info);
}

void collectProperties(Session& s, ImageProperties& properties)
{
    png_uint_32 x = 0, y = 0;
    int unit = 0;
    if (png_get_pHYs(s.png, s.info, &x, &y, &unit) && unit == PNG_RESOLUTION_METER && x && y) {
        // Pixels a metre are whole numbers: 72 a inch is stored as 2835, which shall read as 72 again.
        const auto perInch = [](png_uint_32 perMetre) {
            const double exact = perMetre * 0.0254, whole = double(png_uint_32(exact + 0.5));
            return png_uint_32(whole / 0.0254 + 0.5) == perMetre ? whole : exact;
        };
        properties.xDpi = perInch(x);
        properties.yDpi = perInch(y);
    }
    png_uint_32 exifBytes = 0;
    png_bytep exif = nullptr;
    if (png_get_eXIf_1(s.png, s.info, &exifBytes, &exif) && exifBytes > 4)
        keepExif(properties, {exif, exif + exifBytes});
    png_charp name = nullptr;
    png_bytep profile = nullptr;
    png_uint_32 profileBytes = 0;
    int method = 0;
    if (png_get_iCCP(s.png, s.info, &name, &method, &profile, &profileBytes)) {
        const bool grey = !(png_get_color_type(s.png, s.info) & PNG_COLOR_MASK_COLOR);
        keepProfile(properties, {profile, profile + profileBytes}, grey ? "GRAY" : "RGB ");
    }
    png_textp texts = nullptr;
    int count = 0;
    png_get_text(s.png, s.info, &texts, &count);
    for (int i = 0; i < count; ++i)
        if (properties.xmp.empty() && std::strcmp(texts[i].key, "XML:com.adobe.xmp") == 0) {
            const std::size_t length = texts[i].itxt_length ? texts[i].itxt_length : texts[i].text_length;
            keepXMP(properties, {texts[i].text, length});
        }
}

int orientationOf(Session& s)
{
    png_uint_32 count = 0;
    png_bytep exif = nullptr;
    return png_get_eXIf_1(s.png, s.info, &count, &exif) ? exifOrientation({exif, count}) : 1;
}

std::string sentence(const Session& s) { return "The PNG data cannot be read: " + tidyMessage(s.message) + "."; }

} // namespace

Decoded decodePNG(Bytes bytes, const ImportOptions& options)
{
    Session s;
    s.chunks.open(bytes);
    if (!readHeader(s)) return Decoded::failure(sentence(s));
    Decoded result;
    const auto width = png_get_image_width(s.png, s.info), height = png_get_image_height(s.png, s.info);
    if (!checkSize(width, height, bytes.size(), result.error)) return result;
    const bool deep = png_get_bit_depth(s.png, s.info) == 16;
    const bool transparent =
        (png_get_color_type(s.png, s.info) & PNG_COLOR_MASK_ALPHA) || png_get_valid(s.png, s.info, PNG_INFO_tRNS);
    const bool interlaced = png_get_interlace_type(s.png, s.info) != PNG_INTERLACE_NONE;
    if (!prepare(s)) return Decoded::failure(sentence(s));

    s.bitmap = interlaced ? BitmapRep::create(int(width), int(height)) // passes fill in what earlier ones left
                          : BitmapRep::createUninitialized(int(width), int(height));
    if (!s.bitmap) return Decoded::failure("There is not enough memory for this picture.");
    const BitmapView out = s.bitmap->view();
    s.rowStore.resize(height);
    s.rows = s.rowStore.data();
    for (int y = 0; y < out.height; ++y) s.rows[y] = out.rowData(y);
    const bool complete = readRows(s);
    const bool corrupt = std::strstr(s.message, "CRC") && !s.chunks.endsTooEarly();
    if (!complete && ((s.pass == 0 && s.rowsDone == 0) || corrupt)) return Decoded::failure(sentence(s));
    if (!complete && !interlaced)
        for (int y = s.rowsDone; y < out.height; ++y) std::memset(out.rowData(y), 0, std::size_t(out.rowBytes));
    if (transparent)
        for (int y = 0; y < out.height; ++y) premultiplyRow(out.rowData(y), std::size_t(out.width));
    if (complete) readEnd(s);

    ImageProperties& properties = s.bitmap->properties;
    if (!complete || s.warned)
        properties.warnings.emplace_back("The PNG data is damaged; what could be read is shown.");
    if (deep) properties.warnings.emplace_back("The picture had 16 bits a colour; it was reduced to 8.");
    result.orientation = orientationOf(s);
    if (options.properties) collectProperties(s, properties);
    result.bitmap = std::move(s.bitmap);
    return result;
}

} // namespace zp::codec
