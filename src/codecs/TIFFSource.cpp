// SPDX-License-Identifier: GPL-3.0-or-later
/// Reads how a TIFF picture is laid out, without believing any of it.
#include "codecs/TIFFSource.h"
#include <algorithm>

namespace zp::codec
{

bool TIFFLayout::read(TIFF* tiff)
{
    if (!TIFFGetField(tiff, TIFFTAG_IMAGEWIDTH, &width64) || !TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &height64))
        return false;
    width = int(std::min<std::uint32_t>(width64, 1u << 30));
    height = int(std::min<std::uint32_t>(height64, 1u << 30));
    std::uint16_t value = 0;
    const auto get = [&](std::uint32_t tag, unsigned& field) {
        if (TIFFGetFieldDefaulted(tiff, tag, &value)) field = value;
    };
    get(TIFFTAG_BITSPERSAMPLE, bits);
    get(TIFFTAG_SAMPLESPERPIXEL, samples);
    get(TIFFTAG_SAMPLEFORMAT, format);
    get(TIFFTAG_INKSET, inkSet);
    get(TIFFTAG_COMPRESSION, compression);
    get(TIFFTAG_FILLORDER, fillOrder);
    if (compression == COMPRESSION_LZW) get(TIFFTAG_PREDICTOR, predictor); // a tag of this and few other codecs
    codecKnown = TIFFIsCODECConfigured(std::uint16_t(compression)) != 0;
    photometric = TIFFGetField(tiff, TIFFTAG_PHOTOMETRIC, &value) ? value
                  : samples >= 3                                  ? unsigned(PHOTOMETRIC_RGB)
                                                                  : unsigned(PHOTOMETRIC_MINISBLACK);
    if (compression == COMPRESSION_JPEG && photometric == PHOTOMETRIC_YCBCR) {
        // libjpeg converts while it decodes, and undoes the halved chroma as well
        if (TIFFSetField(tiff, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB)) photometric = PHOTOMETRIC_RGB;
    }
    unsigned turned = 1, planar = PLANARCONFIG_CONTIG;
    get(TIFFTAG_ORIENTATION, turned);
    orientation = turned >= 1 && turned <= 8 ? int(turned) : 1;
    get(TIFFTAG_PLANARCONFIG, planar);
    separatePlanes = planar == PLANARCONFIG_SEPARATE && samples > 1;

    std::uint16_t extras = 0;
    std::uint16_t* kinds = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_EXTRASAMPLES, &extras, &kinds) && extras > 0) {
        extraSamples = extras;
        alphaKind = kinds[0];
        if (alphaKind > EXTRASAMPLE_UNASSALPHA) alphaKind = EXTRASAMPLE_UNSPECIFIED;
    } else if (photometric == PHOTOMETRIC_RGB && samples == 4) {
        alphaKind = EXTRASAMPLE_ASSOCALPHA; // how libtiff and the programs built on it read files without the tag
    }
    if (photometric == PHOTOMETRIC_PALETTE) {
        std::uint16_t *r = nullptr, *g = nullptr, *b = nullptr;
        if (TIFFGetField(tiff, TIFFTAG_COLORMAP, &r, &g, &b)) {
            palette[0] = r;
            palette[1] = g;
            palette[2] = b;
        }
    }
    tiled = TIFFIsTiled(tiff) != 0;
    if (tiled) {
        std::uint32_t w = 0, h = 0;
        TIFFGetField(tiff, TIFFTAG_TILEWIDTH, &w);
        TIFFGetField(tiff, TIFFTAG_TILELENGTH, &h);
        chunkWidth = int(std::min<std::uint32_t>(w, 1u << 24));
        chunkHeight = int(std::min<std::uint32_t>(h, 1u << 24));
        chunkRowBytes = TIFFTileRowSize(tiff);
    } else {
        std::uint32_t rows = 0;
        TIFFGetFieldDefaulted(tiff, TIFFTAG_ROWSPERSTRIP, &rows);
        chunkWidth = width;
        chunkHeight = int(std::min<std::uint32_t>(rows, std::uint32_t(height)));
        chunkRowBytes = TIFFScanlineSize(tiff);
    }
    return true;
}

std::uint64_t TIFFLayout::chunkCount() const
{
    const auto across = std::uint64_t((width + chunkWidth - 1) / chunkWidth);
    const auto down = std::uint64_t((height + chunkHeight - 1) / chunkHeight);
    return across * down * (separatePlanes ? samples : 1);
}

} // namespace zp::codec
