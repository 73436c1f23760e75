// SPDX-License-Identifier: GPL-3.0-or-later
/// A TIFF file in memory, and how its first picture is laid out.
#pragma once
#include "codecs/Codec.h"
#include "codecs/ColourProfiles.h"
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <tiffio.h>

namespace zp::codec
{

/// One handle of libtiff over bytes that outlive it. Messages go here, never to the terminal. One thread at a time.
class TIFFSource
{
public:
    explicit TIFFSource(Bytes bytes) : mBytes(bytes)
    {
        TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
        TIFFOpenOptionsSetErrorHandlerExtR(options, &TIFFSource::onError, this);
        TIFFOpenOptionsSetWarningHandlerExtR(options, &TIFFSource::onWarning, this);
        TIFFOpenOptionsSetMaxSingleMemAlloc(options, tmsize_t{1} << 31);
        mHandle = TIFFClientOpenExt("picture", "r", this, &TIFFSource::onRead, &TIFFSource::onWrite,
                                    &TIFFSource::onSeek, &TIFFSource::onClose, &TIFFSource::onSize, &TIFFSource::onMap,
                                    &TIFFSource::onUnmap, options);
        TIFFOpenOptionsFree(options);
    }
    ~TIFFSource()
    {
        if (mHandle) TIFFClose(mHandle);
    }
    TIFFSource(const TIFFSource&) = delete;
    TIFFSource& operator=(const TIFFSource&) = delete;

    bool isOpen() const { return mHandle != nullptr; }
    TIFF* handle() const { return mHandle; }
    /// The first error, empty when there was none.
    const char* message() const { return mMessage; }
    /// One strip or tile, decoded. @return bytes written, -1 when it is damaged
    std::int64_t readChunk(std::uint64_t index, std::uint8_t* to, std::int64_t count, bool tiled)
    {
        return tiled ? TIFFReadEncodedTile(mHandle, std::uint32_t(index), to, count)
                     : TIFFReadEncodedStrip(mHandle, std::uint32_t(index), to, count);
    }

    /// The bytes of a strip or tile as they stand in the file, as far as the file has them.
    Bytes rawChunk(std::uint64_t index) const
    {
        const std::uint64_t at = TIFFGetStrileOffset(mHandle, std::uint32_t(index));
        if (at >= mBytes.size()) return {};
        return mBytes.subspan(at, std::min(TIFFGetStrileByteCount(mHandle, std::uint32_t(index)), mBytes.size() - at));
    }

private:
    static TIFFSource& self(thandle_t h) { return *static_cast<TIFFSource*>(h); }
    static int onError(TIFF*, void* user, const char*, const char* format, va_list arguments)
    {
        auto* source = static_cast<TIFFSource*>(user);
        if (!source->mMessage[0]) std::vsnprintf(source->mMessage, sizeof source->mMessage, format, arguments);
        return 1;
    }
    static int onWarning(TIFF*, void*, const char*, const char*, va_list) { return 1; }
    static tmsize_t onRead(thandle_t h, void* to, tmsize_t count)
    {
        TIFFSource& s = self(h);
        if (s.mAt >= s.mBytes.size() || count <= 0) return 0;
        const std::size_t n = std::min<std::size_t>(std::size_t(count), s.mBytes.size() - s.mAt);
        std::memcpy(to, s.mBytes.data() + s.mAt, n);
        s.mAt += n;
        return tmsize_t(n);
    }
    static tmsize_t onWrite(thandle_t, void*, tmsize_t) { return 0; }
    static toff_t onSeek(thandle_t h, toff_t offset, int whence)
    {
        TIFFSource& s = self(h);
        const std::uint64_t base = whence == SEEK_CUR ? s.mAt : whence == SEEK_END ? s.mBytes.size() : 0;
        s.mAt = base + offset;
        return s.mAt;
    }
    static int onClose(thandle_t) { return 0; }
    static toff_t onSize(thandle_t h) { return self(h).mBytes.size(); }
    static int onMap(thandle_t h, void** base, toff_t* size)
    {
        *base = const_cast<std::uint8_t*>(self(h).mBytes.data()); // opened for reading: never written to
        *size = self(h).mBytes.size();
        return 1;
    }
    static void onUnmap(thandle_t, void*, toff_t) {}

    Bytes mBytes;
    std::uint64_t mAt = 0;
    TIFF* mHandle = nullptr;
    char mMessage[300] = {};
};

/// The facts of a picture that its decoding depends on.
struct TIFFLayout {
    std::uint32_t width64 = 0, height64 = 0; ///< as the file says
    int width = 0, height = 0;
    unsigned bits = 1, samples = 1, format = SAMPLEFORMAT_UINT, photometric = PHOTOMETRIC_MINISBLACK;
    unsigned extraSamples = 0, alphaKind = EXTRASAMPLE_UNSPECIFIED; ///< what the first extra sample means
    unsigned inkSet = INKSET_CMYK, compression = COMPRESSION_NONE;
    unsigned predictor = PREDICTOR_NONE, fillOrder = FILLORDER_MSB2LSB;
    int orientation = 1;
    bool separatePlanes = false, tiled = false, codecKnown = false;
    int chunkWidth = 0, chunkHeight = 0; ///< of a tile, or of a strip of full width
    std::int64_t chunkRowBytes = 0;
    const std::uint16_t* palette[3] = {}; ///< owned by the handle it was read from
    const InkConverter* inks = nullptr;   ///< of four inks of 8 bits side by side, by their profile; owned elsewhere

    /// @return whether there is a picture at all
    bool read(TIFF* tiff);
    bool isGrey() const { return photometric == PHOTOMETRIC_MINISBLACK || photometric == PHOTOMETRIC_MINISWHITE; }
    /// How many samples carry colour: 1, 3 or 4.
    unsigned colourSamples() const
    {
        return photometric == PHOTOMETRIC_RGB ? 3u : photometric == PHOTOMETRIC_SEPARATED ? 4u : 1u;
    }
    bool hasAlpha() const { return samples > colourSamples() && alphaKind != EXTRASAMPLE_UNSPECIFIED; }
    unsigned neededSamples() const { return colourSamples() + (hasAlpha() ? 1 : 0); }
    std::uint64_t chunkCount() const;
    /// Packed by LZW in the way that LZWDecoder knows, if its strips are not of the very old kind, in samples that need
    /// no bringing into this machine's order.
    bool isPlainLZW() const
    {
        return compression == COMPRESSION_LZW && fillOrder == FILLORDER_MSB2LSB && bits <= 8 &&
               (predictor == PREDICTOR_NONE || (predictor == PREDICTOR_HORIZONTAL && bits == 8));
    }
};

} // namespace zp::codec
