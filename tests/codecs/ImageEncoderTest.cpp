// SPDX-License-Identifier: GPL-3.0-or-later
/// Files as other libraries read them, what travels along, and the arithmetic inside.
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PNGDeflate.h"
#include "codecs/PixelRows.h"
#include "codecs/TIFFLZW.h"
#include "codecs/TIFFSource.h"
#include "codecs/TestPictures.h"
#include <cstring>
#include <gtest/gtest.h>
#include <png.h>
#include <random>

namespace zp
{
namespace
{
using test::samePixels;

std::string picture(const std::string& name) { return std::string(ZP_TESTDATA) + "/images/" + name; }

enum class Look { Opaque, Transparent, Flat, Noise };

std::shared_ptr<BitmapRep> makePicture(int width, int height, Look look, unsigned seed = 1)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = rep->view().pixel(x, y);
            const bool noise = look == Look::Noise || (look != Look::Flat && x % 37 == 0);
            p[0] = look == Look::Opaque || look == Look::Flat ? 255
                   : noise                                    ? std::uint8_t(random())
                                                              : std::uint8_t(x * 255 / width);
            for (int k = 1; k < 4; ++k) {
                const unsigned value = look == Look::Flat ? 90u
                                       : noise            ? random() & 255
                                                          : unsigned(x * k + y * (4 - k)) & 255;
                p[k] = std::uint8_t(std::min<unsigned>(value, p[0]));
            }
        }
    return rep;
}

struct Case {
    int width, height;
    Look look;
};

class RoundTrip : public testing::TestWithParam<Case>
{
};

TEST_P(RoundTrip, TIFFIsExactForUsAndForLibtiff)
{
    const auto [width, height, look] = GetParam();
    const auto rep = makePicture(width, height, look);
    for (const bool lzw : {true, false}) {
        const auto bytes = encodeTIFF(rep->view(), {}, {.lzw = lzw});
        const ImportedImage again = importImage(bytes);
        ASSERT_TRUE(again.bitmap) << again.error;
        EXPECT_TRUE(samePixels(again.bitmap->view(), rep->view()));
        EXPECT_TRUE(again.bitmap->properties.warnings.empty());

        codec::TIFFSource source(bytes);
        ASSERT_TRUE(source.isOpen());
        std::uint16_t compression = 0, predictor = 0;
        TIFFGetField(source.handle(), TIFFTAG_COMPRESSION, &compression);
        EXPECT_EQ(compression, lzw ? COMPRESSION_LZW : COMPRESSION_NONE);
        EXPECT_EQ(TIFFGetField(source.handle(), TIFFTAG_PREDICTOR, &predictor) ? predictor : 1, lzw ? 2 : 1);
        std::vector<std::uint32_t> raster(std::size_t(width) * std::size_t(height));
        ASSERT_TRUE(TIFFReadRGBAImageOriented(source.handle(), std::uint32_t(width), std::uint32_t(height),
                                              raster.data(), ORIENTATION_TOPLEFT, 1));
        EXPECT_STREQ(source.message(), "");
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const std::uint32_t w = raster[std::size_t(y) * std::size_t(width) + std::size_t(x)];
                ASSERT_EQ(rep->view().row(y)[x], w << 8 | w >> 24) << x << ", " << y;
            }
    }
}

TEST_P(RoundTrip, PNGIsExact)
{
    const auto [width, height, look] = GetParam();
    const auto rep = makePicture(width, height, look);
    const auto bytes = encodePNG(rep->view(), {});
    const ImportedImage again = importImage(bytes);
    ASSERT_TRUE(again.bitmap) << again.error;
    EXPECT_TRUE(samePixels(again.bitmap->view(), rep->view()));
    EXPECT_TRUE(again.bitmap->properties.warnings.empty());
}

INSTANTIATE_TEST_SUITE_P(Pictures, RoundTrip,
                         testing::Values(Case{1, 1, Look::Opaque}, Case{1, 1, Look::Transparent},
                                         Case{3, 500, Look::Noise}, Case{16, 16, Look::Opaque},
                                         Case{333, 211, Look::Opaque}, Case{333, 211, Look::Transparent},
                                         Case{640, 1200, Look::Noise}, Case{1500, 1400, Look::Flat},
                                         Case{1500, 1400, Look::Opaque}, Case{30000, 2, Look::Transparent},
                                         Case{2, 30000, Look::Opaque}));

TEST(ImageEncoder, EveryPremultipliedPixelSurvivesPNG)
{
    // all colours of all alphas: 256 columns, 256 rows, of which the lower triangle is valid
    auto rep = BitmapRep::create(256, 256);
    for (int a = 0; a < 256; ++a)
        for (int c = 0; c < 256; ++c) {
            std::uint8_t* p = rep->view().pixel(c, a);
            p[0] = std::uint8_t(a);
            p[1] = std::uint8_t(std::min(a, c));
            p[2] = std::uint8_t(a - std::min(a, c));
            p[3] = std::uint8_t(std::min(a, c) / 2);
        }
    const ImportedImage again = importImage(encodePNG(rep->view(), {}));
    ASSERT_TRUE(again.bitmap);
    EXPECT_TRUE(samePixels(again.bitmap->view(), rep->view()));
}

TEST(ImageEncoder, APictureWithoutColoursBecomesAGreyPNG)
{
    constexpr std::size_t kTypeOffset = 25; // signature, IHDR's length and name, width, height, depth
    const auto rep = makePicture(40, 30, Look::Flat);
    EXPECT_EQ(encodePNG(rep->view(), {}).at(kTypeOffset), 0);
    ImageProperties profiled; // a profile is one for colours
    profiled.iccProfile.resize(200);
    EXPECT_EQ(encodePNG(rep->view(), profiled).at(kTypeOffset), 2);
    rep->view().pixel(39, 29)[3] = 91;
    EXPECT_EQ(encodePNG(rep->view(), {}).at(kTypeOffset), 2);
    rep->view().pixel(39, 29)[0] = 254;
    EXPECT_EQ(encodePNG(rep->view(), {}).at(kTypeOffset), 6);
}

TEST(ImageEncoder, UnpremultipliesLikeTheRoundedQuotient)
{
    for (int a = 1; a < 256; ++a)
        for (int c = 0; c <= a; ++c) {
            const std::uint8_t argb[4] = {std::uint8_t(a), std::uint8_t(c), 0, 0};
            std::uint8_t rgba[4];
            codec::unpremultiplyRowToRGBA(argb, rgba, 1);
            ASSERT_EQ(rgba[0], (c * 255 + a / 2) / a) << c << " of " << a;
            std::uint8_t back[4] = {std::uint8_t(a), rgba[0], 0, 0};
            codec::premultiplyRow(back, 1);
            ASSERT_EQ(back[1], c) << c << " of " << a;
        }
}

TEST(ImageEncoder, JPEGHasQuality70AndHalvedChroma)
{
    const auto rep = makePicture(200, 100, Look::Opaque);
    const auto bytes = encodeJPEG(rep->view(), {});
    ASSERT_GT(bytes.size(), 100u);
    // The first quantiser of quality 70 is 10 (16 at quality 50).
    static constexpr std::uint8_t kDQT[] = {0xFF, 0xDB, 0x00, 0x43, 0x00};
    const auto dqt = std::search(bytes.begin(), bytes.end(), std::begin(kDQT), std::end(kDQT));
    ASSERT_NE(dqt, bytes.end());
    EXPECT_EQ(dqt[5], 10);
    static constexpr std::uint8_t kSOF[] = {0xFF, 0xC0, 0x00, 0x11, 0x08};
    const auto sof = std::search(bytes.begin(), bytes.end(), std::begin(kSOF), std::end(kSOF));
    ASSERT_NE(sof, bytes.end());
    EXPECT_EQ(sof[11], 0x22);
    EXPECT_EQ(sof[14], 0x11);
}

TEST(ImageEncoder, JPEGComposesOverTheBackground)
{
    auto rep = BitmapRep::create(64, 64); // all transparent
    const auto middle = [&](std::optional<Color> background) {
        const ImportedImage again = importImage(encodeJPEG(rep->view(), {}, {.fallbackBackground = background}));
        const std::uint8_t* p = again.bitmap->view().pixel(32, 32);
        return std::array<int, 4>{p[0], p[1], p[2], p[3]};
    };
    EXPECT_EQ(middle(kWhite), (std::array<int, 4>{255, 255, 255, 255}));
    EXPECT_LE(middle(std::nullopt)[1], 1); // black, as near as quantisers of this quality come
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            std::uint8_t* p = rep->view().pixel(x, y);
            p[0] = p[1] = 128; // red, half covering
        }
    const auto half = middle(kWhite);
    EXPECT_NEAR(half[1], 255, 3);
    EXPECT_NEAR(half[2], 127, 3);
}

ImageProperties fullProperties()
{
    ImageProperties p = importImageFile(picture("photos/tahoe-gps.jpg")).bitmap->properties;
    p.xmp = "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:Description tiff:Orientation=\"6\"/></x:xmpmeta>";
    p.iccProfile = importImageFile(picture("jpeg-pillow/rgb.jpg")).bitmap->properties.iccProfile;
    p.xDpi = 300;
    p.yDpi = 150;
    p.userComment = "Edited by Zelpane -- simple, yet powerful image editing";
    return p;
}

class Properties : public testing::TestWithParam<const char*>
{
};

TEST_P(Properties, TravelWithThePicture)
{
    const auto rep = makePicture(120, 80, Look::Opaque);
    ImageProperties p = fullProperties();
    ASSERT_FALSE(p.exif.empty());
    const std::string kind = GetParam();
    const auto encode = [&] {
        return kind == "TIFF"  ? encodeTIFF(rep->view(), p)
               : kind == "PNG" ? encodePNG(rep->view(), p)
                               : encodeJPEG(rep->view(), p);
    };
    const ImportedImage again = importImage(encode());
    ASSERT_TRUE(again.bitmap) << again.error;
    const ImageProperties& q = again.bitmap->properties;
    EXPECT_TRUE(q.warnings.empty()) << q.warnings[0];
    EXPECT_EQ(q.userComment, p.userComment);
    EXPECT_NEAR(q.xDpi, 300, 0.01);
    EXPECT_NEAR(q.yDpi, 150, 0.01);
    EXPECT_EQ(q.iccProfile, p.iccProfile);
    EXPECT_NE(q.xmp.find("tiff:Orientation=\"1\""), std::string::npos);

    const auto before = codec::parseExif(p.exif), after = codec::parseExif(q.exif);
    ASSERT_TRUE(before && after);
    EXPECT_EQ(after->number(after->photo, codec::tag::PixelXDimension), 120u);
    EXPECT_EQ(after->number(after->photo, codec::tag::PixelYDimension), 80u);
    EXPECT_EQ(after->number(after->image, codec::tag::Orientation).value_or(1), 1u);
    EXPECT_EQ(after->gps.size(), before->gps.size());
    for (const auto& entry : before->gps) EXPECT_EQ(codec::ExifBlock::find(after->gps, entry.tag)->value, entry.value);
    for (const auto& entry : before->photo) {
        const auto* kept = codec::ExifBlock::find(after->photo, entry.tag);
        ASSERT_TRUE(kept) << entry.tag;
        const bool changes = entry.tag == codec::tag::PixelXDimension || entry.tag == codec::tag::PixelYDimension ||
                             entry.tag == codec::tag::UserComment;
        if (!changes) {
            EXPECT_EQ(kept->value, entry.value) << entry.tag;
        }
    }
    // Saved twice is saved the same.
    p = q;
    const ImportedImage third = importImage(encode());
    EXPECT_EQ(third.bitmap->properties.exif, q.exif);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Properties, testing::Values("TIFF", "PNG", "JPEG"),
                         [](const auto& test) { return test.param; });

TEST(ImageEncoder, AMakerNoteKeepsItsPlace)
{
    codec::ExifBlock block;
    block.setNumber(block.photo, 0x9209, codec::kShort, 7);
    codec::ExifBlock::setBytes(block.photo, codec::tag::MakerNote, codec::kUndefined, 100,
                               std::vector<std::uint8_t>(100, 0xAB));
    block.photo.back().offset = 500;
    block.setRational(block.image, codec::tag::XResolution, 72.5);
    const auto bytes = codec::serialiseExif(block);
    const auto again = codec::parseExif(bytes);
    ASSERT_TRUE(again);
    const auto* note = codec::ExifBlock::find(again->photo, codec::tag::MakerNote);
    ASSERT_TRUE(note);
    EXPECT_EQ(note->offset, 500u);
    EXPECT_EQ(note->value, std::vector<std::uint8_t>(100, 0xAB));
    EXPECT_NEAR(*again->rational(again->image, codec::tag::XResolution), 72.5, 1e-4);
}

TEST(ImageEncoder, TheCommentOfAnyScriptSurvives)
{
    const auto rep = makePicture(10, 10, Look::Opaque);
    for (const char* text : {"plain", "Grüße", "日本 😀"}) {
        ImageProperties p;
        p.userComment = text;
        EXPECT_EQ(importImage(encodeJPEG(rep->view(), p)).bitmap->properties.userComment, text);
        EXPECT_EQ(importImage(encodeTIFF(rep->view(), p)).bitmap->properties.userComment, text);
        EXPECT_EQ(importImage(encodePNG(rep->view(), p)).bitmap->properties.userComment, text);
    }
}

TEST(ImageEncoder, AnUnreadableCommentIsLeftAsItIs)
{
    const auto rep = importImageFile(picture("made/exif/usercomment-jis.jpg")).bitmap;
    ASSERT_TRUE(rep);
    const auto before = codec::parseExif(rep->properties.exif);
    const auto again = importImage(encodeJPEG(rep->view(), rep->properties)).bitmap;
    const auto after = codec::parseExif(again->properties.exif);
    EXPECT_EQ(codec::ExifBlock::find(after->photo, codec::tag::UserComment)->value,
              codec::ExifBlock::find(before->photo, codec::tag::UserComment)->value);
}

TEST(ImageEncoder, AnEXIFBlockTooLongForJPEGKeepsTheComment)
{
    const auto rep = makePicture(10, 10, Look::Opaque);
    codec::ExifBlock block;
    codec::ExifBlock::setBytes(block.image, 0x010E, codec::kAscii, 100'000, std::vector<std::uint8_t>(100'000, 'd'));
    ImageProperties p;
    p.exif = codec::serialiseExif(block);
    p.userComment = "kept";
    const ImportedImage again = importImage(encodeJPEG(rep->view(), p));
    ASSERT_TRUE(again.bitmap);
    EXPECT_EQ(again.bitmap->properties.userComment, "kept");
    EXPECT_EQ(codec::parseExif(importImage(encodePNG(rep->view(), p)).bitmap->properties.exif)->image.size(), 1u);
}

TEST(ImageEncoder, AnEmptyPictureGivesNothing)
{
    EXPECT_TRUE(encodeTIFF({}, {}).empty());
    EXPECT_TRUE(encodeJPEG({}, {}).empty());
    EXPECT_TRUE(encodePNG({}, {}).empty());
}

TEST(PNGDeflate, ChecksumsOfPiecesCombine)
{
    const auto rep = makePicture(700, 3, Look::Noise);
    const auto* bytes = rep->bitmapData();
    const auto adler = [](const std::uint8_t* p, std::size_t n) {
        std::uint32_t a = 1, b = 0;
        for (std::size_t i = 0; i < n; ++i) {
            a = (a + p[i]) % 65521;
            b = (b + a) % 65521;
        }
        return b << 16 | a;
    };
    for (const std::size_t cut : {std::size_t{0}, std::size_t{1}, std::size_t{4000}, std::size_t{8000}})
        EXPECT_EQ(codec::combinedAdler(adler(bytes, cut), adler(bytes + cut, 8000 - cut), 8000 - cut),
                  adler(bytes, 8000));
}

} // namespace
} // namespace zp
