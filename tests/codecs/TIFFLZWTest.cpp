// SPDX-License-Identifier: GPL-3.0-or-later
/// LZW strips: the encoder against a decoder written down plainly, the decoder against libtiff's encoder, and damage.
#include "codecs/TIFFLZW.h"
#include "codecs/ImageImporter.h"
#include "codecs/TestPictures.h"
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <tiffio.h>

namespace zp
{
namespace
{

using Buffer = std::vector<std::uint8_t>;

Buffer make(int kind, std::size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    Buffer out(size);
    std::size_t until = 0;
    std::uint8_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        switch (kind) {
        case 0: // one run
            break;
        case 1: // noise
            out[i] = std::uint8_t(random());
            break;
        case 2: // differences of a photograph
            out[i] = std::uint8_t(int(random() % 7) + int(random() % 7) - 6);
            break;
        case 3: // runs of a few bytes, long and short
            if (i >= until) {
                until = i + 1 + (random() % 4 == 0 ? random() % 20'000 : random() % 20);
                value = std::uint8_t(random() % 3 * 100);
            }
            out[i] = value;
            break;
        case 4: // a pattern
            out[i] = std::uint8_t(i % 7 * 30);
            break;
        default: // runs with single bytes between them
            out[i] = random() % 50 == 0 ? std::uint8_t(random()) : 9;
        }
    }
    return out;
}

/// The format's definition: a table of strings.
Buffer plainlyDecoded(const Buffer& strip)
{
    std::vector<std::string> table;
    const auto clear = [&] {
        table.clear();
        for (int i = 0; i < 258; ++i) table.emplace_back(i < 256 ? std::string(1, char(i)) : std::string());
    };
    clear();
    Buffer out;
    unsigned width = 9;
    std::string last;
    for (std::size_t at = 0; at + width <= 8 * strip.size();) {
        unsigned code = 0;
        for (unsigned i = 0; i < width; ++i, ++at) code = code << 1 | (strip[at / 8] >> (7 - at % 8) & 1);
        if (code == 257) return out;
        if (code == 256) {
            clear();
            last.clear();
            width = 9;
            continue;
        }
        if (code > table.size() || (code == table.size() && last.empty())) {
            ADD_FAILURE() << "code " << code << " is not known yet";
            return {};
        }
        const std::string text = code < table.size() ? table[code] : last + last[0];
        out.insert(out.end(), text.begin(), text.end());
        if (!last.empty()) table.push_back(last + text[0]);
        EXPECT_LE(table.size(), 4096u);
        last = text;
        if (table.size() >= (1u << width) - 1 && width < 12) ++width;
    }
    ADD_FAILURE() << "no end code";
    return out;
}

TEST(TIFFLZW, WhatIsPackedIsUnpacked)
{
    codec::LZWEncoder encoder;
    codec::LZWDecoder decoder;
    for (int kind = 0; kind < 6; ++kind)
        for (const std::size_t size : {0, 1, 2, 3, 8, 9, 10, 255, 4000, 5735, 5736, 5737, 30'000, 600'000}) {
            SCOPED_TRACE(testing::Message() << "kind " << kind << ", " << size << " bytes");
            const Buffer bytes = make(kind, size, unsigned(kind) + unsigned(size));
            Buffer packed;
            encoder.encode(bytes, packed);
            ASSERT_EQ(plainlyDecoded(packed), bytes);
            ASSERT_TRUE(codec::LZWDecoder::handles(packed));
            Buffer unpacked(size + codec::LZWDecoder::kSlack, 0xA5);
            ASSERT_EQ(decoder.decode(packed, unpacked.data(), size), size);
            unpacked.resize(size);
            ASSERT_EQ(unpacked, bytes);
            // Asked for less, it gives just that.
            const std::size_t part = size / 3;
            Buffer some(part + codec::LZWDecoder::kSlack + 1, 0xA5);
            ASSERT_EQ(decoder.decode(packed, some.data(), part), part);
            ASSERT_TRUE(std::equal(some.begin(), some.begin() + std::ptrdiff_t(part), bytes.begin()));
            ASSERT_EQ(some.back(), 0xA5);
        }
}

TEST(TIFFLZW, RandomMixturesSurvive)
{
    codec::LZWEncoder encoder;
    codec::LZWDecoder decoder;
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        Buffer bytes;
        for (int part = 0; part < 6; ++part) {
            const Buffer piece = make(int(random() % 6), random() % 20'000, unsigned(random()));
            bytes.insert(bytes.end(), piece.begin(), piece.end());
        }
        Buffer packed;
        encoder.encode(bytes, packed);
        Buffer unpacked(bytes.size() + codec::LZWDecoder::kSlack);
        ASSERT_EQ(decoder.decode(packed, unpacked.data(), bytes.size()), bytes.size());
        unpacked.resize(bytes.size());
        ASSERT_EQ(unpacked, bytes) << "round " << round;
        if (round % 50 == 0) {
            ASSERT_EQ(plainlyDecoded(packed), bytes);
        }
        // Damage may give anything but what lies outside.
        for (int i = 0; i < 5 && !packed.empty(); ++i) packed[random() % packed.size()] = std::uint8_t(random());
        packed.resize(random() % (packed.size() + 1));
        const std::size_t room = random() % (bytes.size() + 1);
        Buffer some(room + codec::LZWDecoder::kSlack);
        EXPECT_LE(decoder.decode(packed, some.data(), room), room);
    }
}

struct Layout {
    const char* name;
    int bits, samples, photometric, predictor = PREDICTOR_NONE;
    bool separate = false, tiled = false, lowFirst = false, bigEndian = false;
    int extra = -1; ///< what the last sample means
};
void PrintTo(const Layout& layout, std::ostream* out) { *out << layout.name; }

const Layout kLayouts[] = {
    {"rgb", 8, 3, PHOTOMETRIC_RGB},
    {"rgbDifferences", 8, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL},
    {"rgbaDifferences", 8, 4, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, false, false, false, false,
     EXTRASAMPLE_ASSOCALPHA},
    {"straightAlpha", 8, 4, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, false, false, false, false, EXTRASAMPLE_UNASSALPHA},
    {"fiveSamples", 8, 5, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, false, false, false, false, EXTRASAMPLE_UNSPECIFIED},
    {"grey", 8, 1, PHOTOMETRIC_MINISBLACK, PREDICTOR_HORIZONTAL},
    {"greyOneBit", 1, 1, PHOTOMETRIC_MINISWHITE},
    {"inks", 8, 4, PHOTOMETRIC_SEPARATED, PREDICTOR_HORIZONTAL},
    {"planes", 8, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, true},
    {"tiles", 8, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, false, true},
    {"planesOfTiles", 8, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, true, true},
    {"lowBitsFirst", 8, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, false, false, true},
    {"sixteen", 16, 3, PHOTOMETRIC_RGB},
    {"sixteenDifferences", 16, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL},
    {"sixteenBigEndian", 16, 3, PHOTOMETRIC_RGB, PREDICTOR_NONE, false, false, false, true},
    {"bigEndian", 8, 3, PHOTOMETRIC_RGB, PREDICTOR_HORIZONTAL, false, false, false, true},
};

constexpr int kWidth = 75, kHeight = 53, kTile = 16, kStripRows = 7;

Buffer byLibtiff(const Layout& layout, bool lzw)
{
    struct Sink {
        Buffer bytes;
        std::uint64_t at = 0;
    } sink;
    TIFF* t = TIFFClientOpen(
        "x", layout.bigEndian ? "wb" : "wl", &sink, [](thandle_t, void*, tmsize_t) -> tmsize_t { return 0; },
        [](thandle_t h, void* data, tmsize_t n) -> tmsize_t {
            auto* s = static_cast<Sink*>(h);
            if (s->bytes.size() < s->at + std::uint64_t(n)) s->bytes.resize(s->at + std::uint64_t(n));
            std::memcpy(s->bytes.data() + s->at, data, std::size_t(n));
            s->at += std::uint64_t(n);
            return n;
        },
        [](thandle_t h, toff_t o, int whence) -> toff_t {
            auto* s = static_cast<Sink*>(h);
            return s->at = (whence == SEEK_CUR ? s->at : whence == SEEK_END ? s->bytes.size() : 0) + o;
        },
        [](thandle_t) { return 0; }, [](thandle_t h) -> toff_t { return static_cast<Sink*>(h)->bytes.size(); }, nullptr,
        nullptr);
    TIFFSetField(t, TIFFTAG_IMAGEWIDTH, kWidth);
    TIFFSetField(t, TIFFTAG_IMAGELENGTH, kHeight);
    TIFFSetField(t, TIFFTAG_BITSPERSAMPLE, layout.bits);
    TIFFSetField(t, TIFFTAG_SAMPLESPERPIXEL, layout.samples);
    TIFFSetField(t, TIFFTAG_PHOTOMETRIC, layout.photometric);
    TIFFSetField(t, TIFFTAG_PLANARCONFIG, layout.separate ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    if (layout.lowFirst) TIFFSetField(t, TIFFTAG_FILLORDER, FILLORDER_LSB2MSB);
    if (layout.extra >= 0) {
        const std::uint16_t kinds[] = {std::uint16_t(layout.extra), EXTRASAMPLE_UNSPECIFIED};
        TIFFSetField(t, TIFFTAG_EXTRASAMPLES, layout.samples - 3, kinds);
    }
    TIFFSetField(t, TIFFTAG_COMPRESSION, lzw ? COMPRESSION_LZW : COMPRESSION_NONE);
    if (lzw) TIFFSetField(t, TIFFTAG_PREDICTOR, layout.predictor);
    if (layout.tiled) {
        TIFFSetField(t, TIFFTAG_TILEWIDTH, kTile);
        TIFFSetField(t, TIFFTAG_TILELENGTH, kTile);
    } else {
        TIFFSetField(t, TIFFTAG_ROWSPERSTRIP, kStripRows);
    }
    const auto count = layout.tiled ? TIFFNumberOfTiles(t) : TIFFNumberOfStrips(t);
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto size = std::size_t(layout.tiled ? TIFFTileSize(t) : TIFFStripSize(t));
        Buffer bytes = make(2, size, i + 1);
        for (std::size_t k = 0; k < size; ++k) bytes[k] = std::uint8_t(bytes[k] + k / 40);
        if (layout.tiled)
            TIFFWriteEncodedTile(t, i, bytes.data(), tmsize_t(size));
        else
            TIFFWriteEncodedStrip(t, i, bytes.data(),
                                  tmsize_t(i + 1 == count ? size / kStripRows * (kHeight % kStripRows) : size));
    }
    TIFFClose(t);
    return std::move(sink.bytes);
}

class LZWLayouts : public testing::TestWithParam<Layout>
{
};

TEST_P(LZWLayouts, OpenAsTheirPlainTwins)
{
    const ImportedImage plain = importImage(byLibtiff(GetParam(), false)),
                        packed = importImage(byLibtiff(GetParam(), true));
    ASSERT_TRUE(plain.bitmap) << plain.error;
    ASSERT_TRUE(packed.bitmap) << packed.error;
    EXPECT_TRUE(test::samePixels(packed.bitmap->view(), plain.bitmap->view()));
    EXPECT_EQ(packed.bitmap->properties.warnings, plain.bitmap->properties.warnings);
}

INSTANTIATE_TEST_SUITE_P(Layouts, LZWLayouts, testing::ValuesIn(kLayouts),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(TIFFLZW, OfADamagedStripWhatStandsBeforeTheDamageIsShown)
{
    Buffer file = byLibtiff(kLayouts[1], true);
    const auto whole = importImage(file).bitmap;
    ASSERT_TRUE(whole);
    // The first strip begins behind the eight bytes of the head; codes past its middle become nonsense.
    for (std::size_t i = 700; i < 760; ++i) file[i] = 0xFF;
    const ImportedImage image = importImage(file);
    ASSERT_TRUE(image.bitmap) << image.error;
    EXPECT_EQ(image.bitmap->properties.warnings.size(), 1u);
    EXPECT_EQ(std::memcmp(image.bitmap->view().row(0), whole->view().row(0), 4 * kWidth), 0);
    EXPECT_EQ(image.bitmap->view().row(kStripRows - 1)[kWidth - 1], test::word(255, 0, 0, 0));
    EXPECT_EQ(std::memcmp(image.bitmap->view().row(kStripRows), whole->view().row(kStripRows), 4 * kWidth), 0);
}

} // namespace
} // namespace zp
