// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture in WebP's colours once, coded as often as is asked; profile, EXIF and XMP as chunks around it.
#include "codecs/WebPWriter.h"
#include "base/Translation.h"
#include "codecs/Codec.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PixelRows.h"
#include <exception>
#include <new>
#include <webp/decode.h>
#include <webp/encode.h>
#include <webp/mux.h>

namespace zp::codec
{

namespace
{

/// 0 is fastest, 6 smallest. 4 is the library's own choice; 2 makes files 15 % larger in half the time.
constexpr int kEffort = 4;

struct Memory {
    WebPMemoryWriter writer;
    Memory() { WebPMemoryWriterInit(&writer); }
    ~Memory() { WebPMemoryWriterClear(&writer); }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;
};

int goesOn(int, const WebPPicture* picture)
{
    return !static_cast<const std::stop_token*>(picture->user_data)->stop_requested();
}

class WebPTrials final : public LossyWriter
{
public:
    WebPTrials(ConstBitmapView pixels, const ImageProperties& properties)
        : mExif(serialiseExif(exifForSaving(properties, pixels.width, pixels.height))),
          mXMP(xmpForSaving(properties)),
          mProfile(properties.iccProfile)
    {
        if (!WebPPictureInit(&mPicture)) throw std::bad_alloc();
        mPicture.use_argb = 1;
        mPicture.width = pixels.width;
        mPicture.height = pixels.height;
        if (!WebPPictureAlloc(&mPicture)) throw std::bad_alloc();
        for (int y = 0; y < pixels.height; ++y) {
            std::uint32_t* const row = mPicture.argb + std::ptrdiff_t{mPicture.argb_stride} * y;
            auto* const bytes = reinterpret_cast<std::uint8_t*>(row);
            unpremultiplyRowToRGBA(pixels.rowData(y), bytes, std::size_t(pixels.width));
            // The library's words have alpha on top and blue below.
            for (int x = 0; x < pixels.width; ++x) {
                const std::uint8_t* const p = bytes + 4 * std::ptrdiff_t{x};
                row[x] = std::uint32_t{p[3]} << 24 | std::uint32_t{p[0]} << 16 | std::uint32_t{p[1]} << 8 | p[2];
            }
        }
        // Every quality starts from the same halved colours.
        if (!WebPPictureARGBToYUVA(&mPicture, WEBP_YUV420)) {
            WebPPictureFree(&mPicture);
            throw std::bad_alloc();
        }
    }
    ~WebPTrials() override { WebPPictureFree(&mPicture); }
    WebPTrials(const WebPTrials&) = delete;
    WebPTrials& operator=(const WebPTrials&) = delete;

    std::vector<std::uint8_t> write(int quality, const std::stop_token& stop) noexcept override
    {
        try {
            return around(coded(quality, stop));
        } catch (const std::exception&) {
            return {};
        }
    }
    bool read(std::span<const std::uint8_t> file, BitmapView pixels) const noexcept override
    {
        WebPDecoderConfig config;
        if (!WebPInitDecoderConfig(&config)) return false;
        if (WebPGetFeatures(file.data(), file.size(), &config.input) != VP8_STATUS_OK) return false;
        if (config.input.width != pixels.width || config.input.height != pixels.height) return false;
        config.options.use_threads = 1;
        config.output.colorspace = MODE_Argb; // premultiplied, alpha first: the program's own order
        config.output.is_external_memory = 1;
        config.output.u.RGBA.rgba = pixels.rowData(0);
        config.output.u.RGBA.stride = int(pixels.rowBytes);
        config.output.u.RGBA.size = std::size_t(pixels.rowBytes) * std::size_t(pixels.height);
        return WebPDecode(file.data(), file.size(), &config) == VP8_STATUS_OK;
    }

private:
    std::vector<std::uint8_t> coded(int quality, const std::stop_token& stop)
    {
        WebPConfig config;
        if (stop.stop_requested() || !WebPConfigPreset(&config, WEBP_PRESET_PHOTO, float(quality))) return {};
        config.method = kEffort;
        config.thread_level = 1;
        Memory memory;
        mPicture.writer = WebPMemoryWrite;
        mPicture.custom_ptr = &memory.writer;
        mPicture.progress_hook = goesOn;
        mPicture.user_data = const_cast<std::stop_token*>(&stop);
        if (!WebPEncode(&config, &mPicture)) return {};
        return {memory.writer.mem, memory.writer.mem + memory.writer.size};
    }
    /// With profile and words, if there are any.
    std::vector<std::uint8_t> around(std::vector<std::uint8_t> picture) const
    {
        if (picture.empty() || (mExif.empty() && mXMP.empty() && mProfile.empty())) return picture;
        const std::unique_ptr<WebPMux, void (*)(WebPMux*)> mux(WebPMuxNew(), WebPMuxDelete);
        const WebPData bare{picture.data(), picture.size()};
        if (!mux || WebPMuxSetImage(mux.get(), &bare, 0) != WEBP_MUX_OK) return {};
        const auto add = [&](const char* name, const void* bytes, std::size_t count) {
            const WebPData data{static_cast<const std::uint8_t*>(bytes), count};
            return count == 0 || WebPMuxSetChunk(mux.get(), name, &data, 0) == WEBP_MUX_OK;
        };
        if (!add("ICCP", mProfile.data(), mProfile.size()) || !add("EXIF", mExif.data(), mExif.size()) ||
            !add("XMP ", mXMP.data(), mXMP.size()))
            return {};
        WebPData whole{};
        if (WebPMuxAssemble(mux.get(), &whole) != WEBP_MUX_OK) return {};
        const std::unique_ptr<const std::uint8_t, void (*)(const std::uint8_t*)> owned(
            whole.bytes, [](const std::uint8_t* bytes) { WebPFree(const_cast<std::uint8_t*>(bytes)); });
        return {whole.bytes, whole.bytes + whole.size};
    }

    WebPPicture mPicture;
    std::vector<std::uint8_t> mExif;
    std::string mXMP;
    std::vector<std::uint8_t> mProfile;
};

} // namespace

std::unique_ptr<LossyWriter> makeWebPWriter(ConstBitmapView pixels, const ImageProperties& properties,
                                            std::string& error)
{
    if (std::max(pixels.width, pixels.height) <= WEBP_MAX_DIMENSION)
        return std::make_unique<WebPTrials>(pixels, properties);
    error = translated("Codecs", "A WebP file holds at most 16,383 pixels a side.");
    return nullptr;
}

} // namespace zp::codec
