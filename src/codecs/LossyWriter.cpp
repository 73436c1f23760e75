// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG at any quality, and the choice of the kind.
#include "codecs/LossyWriter.h"
#include "base/Translation.h"
#include "codecs/Codec.h"
#include "codecs/ImageEncoder.h"
#include "codecs/WebPWriter.h"
#include <exception>

namespace zp
{

namespace
{

class JPEGTrials final : public LossyWriter
{
public:
    JPEGTrials(ConstBitmapView pixels, const ImageProperties& properties) : mPixels(pixels), mProperties(properties) {}

    std::vector<std::uint8_t> write(int quality, const std::stop_token& stop) noexcept override
    {
        // A tenth of a second at 24 megapixels: nobody waits for it to be stopped.
        if (stop.stop_requested()) return {};
        return encodeJPEG(mPixels, mProperties, {.factor = quality / 100.0, .fallbackBackground = kWhite});
    }
    bool read(std::span<const std::uint8_t> file, BitmapView pixels) const noexcept override
    {
        try {
            return codec::decodeJPEGInto(file, pixels);
        } catch (const std::exception&) {
            return false;
        }
    }

private:
    ConstBitmapView mPixels;
    const ImageProperties& mProperties;
};

} // namespace

std::unique_ptr<LossyWriter> LossyWriter::make(SaveFormat format, ConstBitmapView pixels,
                                               const ImageProperties& properties, std::string& error)
{
    try {
        if (format == SaveFormat::JPEG && !pixels.isEmpty()) return std::make_unique<JPEGTrials>(pixels, properties);
        if (format == SaveFormat::WebP && !pixels.isEmpty()) return codec::makeWebPWriter(pixels, properties, error);
        error = translated("Codecs", "This kind of file has no quality to choose.");
    } catch (const std::exception&) {
        error = translated("Codecs", "There is not enough memory for this image.");
    }
    return nullptr;
}

} // namespace zp
