// SPDX-License-Identifier: GPL-3.0-or-later
/// Snapshot colours: one standard JPEG made of strips, the same as the library makes and reads in one go.
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotSeal.h"
#include "undo/TestPictures.h"
#include <algorithm>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;
using Bytes = std::vector<std::uint8_t>;

namespace
{

Bytes copyOf(std::span<const std::uint8_t> bytes) { return {bytes.begin(), bytes.end()}; }

Bytes withoutSeal(std::span<const std::uint8_t> file)
{
    jpeg::SegmentWalk walk(file);
    while (const auto segment = walk.next())
        if (jpeg::isSeal(file, *segment)) {
            Bytes rest = copyOf(file.first(segment->begin));
            rest.insert(rest.end(), file.begin() + std::ptrdiff_t(segment->end), file.end());
            return rest;
        }
    ADD_FAILURE() << "no seal in the file";
    return copyOf(file);
}

/// Every sample at one end or the other, in cells of @p cell pixels: the largest coefficients there can be.
void paintExtremes(BitmapView pixels, int cell)
{
    std::minstd_rand random(44);
    std::uint32_t word = 0;
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x) {
            if (x % cell == 0) word = std::uint32_t(random() >> 5);
            std::uint8_t* const p = pixels.pixel(x, y);
            const std::uint32_t cellWord = y % cell == 0 ? word : 0;
            for (int c = 0; c < 4; ++c) p[c] = y % cell ? pixels.pixel(x, y - 1)[c] : cellWord >> c & 1 ? 255 : 0;
        }
}

struct Size {
    int width, height;
};
class SnapshotJPEGSizes : public testing::TestWithParam<Size>
{
};

TEST_P(SnapshotJPEGSizes, IsTheLibrarysOwnFileButForTheSeal)
{
    Picture picture(GetParam().width, GetParam().height);
    PlainOptions options;
    options.restartRows = GetParam().height > kStripRows; // one strip has no marker behind it
    for (const int kind : {0, 1, 2, 3, 4}) {
        if (kind < 3)
            paintPhoto(picture.view(), 5, kind == 0 ? 0 : kind == 1 ? 12 : 120);
        else
            paintExtremes(picture.view(), kind == 3 ? 1 : 8);
        const Bytes plain = plainEncode(picture.view(), options);
        SnapshotEncoder encoder;
        const Bytes file = copyOf(encoder.encode(picture.view()));
        EXPECT_TRUE(withoutSeal(file) == plain) << "kind " << kind;
        EXPECT_EQ(encoder.stripsEncoded(), (GetParam().height + 15) / 16);
    }
}

TEST_P(SnapshotJPEGSizes, DecodesToTheVeryPixelsOfAPlainDecode)
{
    Picture picture(GetParam().width, GetParam().height);
    paintPhoto(picture.view(), 6, 20);
    SnapshotEncoder encoder;
    const Bytes file = copyOf(encoder.encode(picture.view()));
    const auto size = inspectSnapshotJPEG(file);
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, GetParam().width);
    EXPECT_EQ(size->height, GetParam().height);

    Picture plain(GetParam().width, GetParam().height), ours(GetParam().width, GetParam().height);
    plainDecode(file, plain.view());
    ASSERT_TRUE(decodeSnapshotJPEG(file, ours.view()));
    for (int y = 0; y < GetParam().height; ++y)
        ASSERT_EQ(std::memcmp(ours.view().rowData(y), plain.view().rowData(y), std::size_t(GetParam().width) * 4), 0)
            << "row " << y;
    EXPECT_EQ(ours.view().pixel(0, 0)[0], 255);
    EXPECT_TRUE(ours.spareBytesUntouched());
}

INSTANTIATE_TEST_SUITE_P(Sizes, SnapshotJPEGSizes,
                         testing::Values(Size{1, 1}, Size{2, 1}, Size{1, 40}, Size{15, 15}, Size{16, 16}, Size{17, 33},
                                         Size{64, 128}, Size{65, 129}, Size{33, 500}, Size{40, 511}, Size{40, 512},
                                         Size{40, 513}, Size{40, 529}, Size{100, 1024}, Size{35, 1055}, Size{24, 1040},
                                         Size{31, 64}, Size{32, 64}, Size{33, 64}, Size{40, 64}, Size{41, 64},
                                         Size{47, 64}, Size{48, 64}, Size{49, 64}, Size{56, 32}, Size{57, 32},
                                         Size{800, 600}, Size{24, 3001}, Size{30000, 20}),
                         [](const auto& row) {
                             return std::to_string(row.param.width) + "x" + std::to_string(row.param.height);
                         });

TEST(SnapshotJPEG, AlphaDoesNotMatter)
{
    Picture opaque(70, 50), clear(70, 50);
    paintPhoto(opaque.view(), 1);
    paintPhoto(clear.view(), 1);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 70; ++x) clear.view().pixel(x, y)[0] = std::uint8_t(x * y);
    SnapshotEncoder one, other;
    EXPECT_TRUE(copyOf(one.encode(opaque.view())) == copyOf(other.encode(clear.view())));
    EXPECT_EQ(clear.view().pixel(9, 9)[0], 81) << "the live pixels are only read";
}

TEST(SnapshotJPEG, OnlyStripsThatChangedAreEncodedAndTheFileIsAsIfAllWere)
{
    Picture picture(300, 1000);
    paintPhoto(picture.view(), 2);
    SnapshotEncoder kept;
    kept.encode(picture.view());
    EXPECT_EQ(kept.stripsEncoded(), 63);
    kept.encode(picture.view());
    EXPECT_EQ(kept.stripsEncoded(), 0);

    std::minstd_rand random(8);
    for (int round = 0; round < 20; ++round) {
        const int first = int(random() % 1000), last = std::min(1000, first + 1 + int(random() % 100));
        for (int y = first; y < last; ++y)
            picture.view().pixel(int(random() % 300), y)[1 + random() % 3] ^= std::uint8_t(1u << (random() % 8));
        const Bytes file = copyOf(kept.encode(picture.view()));
        EXPECT_EQ(kept.stripsEncoded(), (last - 1) / 16 - first / 16 + 1) << "rows " << first << " to " << last;
        SnapshotEncoder fresh;
        ASSERT_TRUE(file == copyOf(fresh.encode(picture.view()))) << "round " << round;
    }
    kept.forget();
    kept.encode(picture.view());
    EXPECT_EQ(kept.stripsEncoded(), 63);
}

TEST(SnapshotJPEG, APictureOfAnotherSizeIsEncodedWhole)
{
    Picture tall(48, 96), wide(96, 48);
    paintPhoto(tall.view(), 2);
    paintPhoto(wide.view(), 2);
    SnapshotEncoder encoder;
    encoder.encode(tall.view());
    const Bytes file = copyOf(encoder.encode(wide.view()));
    EXPECT_EQ(encoder.stripsEncoded(), 3);
    EXPECT_EQ(inspectSnapshotJPEG(file)->width, 96);
    EXPECT_TRUE(encoder.encode(BitmapView{}).empty());
}

TEST(SnapshotJPEG, ColoursComeBackClose)
{
    Picture picture(256, 256), back(256, 256);
    paintPhoto(picture.view(), 3, 2);
    SnapshotEncoder encoder;
    ASSERT_TRUE(decodeSnapshotJPEG(encoder.encode(picture.view()), back.view()));
    double sum = 0;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            for (int c = 1; c < 4; ++c) sum += std::abs(picture.view().pixel(x, y)[c] - back.view().pixel(x, y)[c]);
    EXPECT_LT(sum / (256 * 256 * 3), 4.0);
}

TEST(SnapshotJPEG, DamageIsSeenBeforeAPixelIsTouched)
{
    Picture picture(90, 200), target(90, 200);
    paintPhoto(picture.view(), 4);
    paintPhoto(target.view(), 77);
    Picture before(90, 200);
    paintPhoto(before.view(), 77);
    SnapshotEncoder encoder;
    const Bytes good = copyOf(encoder.encode(picture.view()));
    std::minstd_rand random(3);
    int refused = 0;
    for (int round = 0; round < 400; ++round) {
        Bytes bad = good;
        if (round % 2)
            bad.resize(random() % bad.size());
        else
            bad[60 + random() % (bad.size() - 60)] ^= std::uint8_t(1 + random() % 255);
        EXPECT_FALSE(inspectSnapshotJPEG(bad)) << "round " << round;
        refused += !decodeSnapshotJPEG(bad, target.view());
    }
    EXPECT_EQ(refused, 400);
    EXPECT_TRUE(sameColours(target.view(), before.view()));
    EXPECT_FALSE(inspectSnapshotJPEG({}));
    EXPECT_FALSE(inspectSnapshotJPEG(Bytes(5000, 0)));
    EXPECT_FALSE(decodeSnapshotJPEG(Bytes(5000, 0xFF), target.view()));
    EXPECT_FALSE(decodeSnapshotJPEG(good, before.view().part({0, 0, 90, 199}))) << "another size";
}

TEST(SnapshotJPEG, ForeignFilesAreReadPlainlyOrRefusedWhole)
{
    Picture picture(123, 77);
    paintPhoto(picture.view(), 9);
    std::vector<PlainOptions> kinds(6);
    kinds[1].progressive = true;
    kinds[2].grey = true;
    kinds[3].fullColour = true;
    kinds[4].restartRows = 1;
    kinds[5].restartRows = 2;
    std::minstd_rand random(12);
    for (const PlainOptions& kind : kinds) {
        const Bytes file = plainEncode(picture.view(), kind);
        Picture plain(123, 77), ours(123, 77);
        plainDecode(file, plain.view());
        ASSERT_TRUE(inspectSnapshotJPEG(file));
        ASSERT_TRUE(decodeSnapshotJPEG(file, ours.view()));
        EXPECT_TRUE(sameColours(plain.view(), ours.view()));
        // Nothing may crash; and whatever was refused has left the pixels alone.
        for (int round = 0; round < 200; ++round) {
            Bytes bad = file;
            if (round % 4 == 0)
                bad.resize(random() % bad.size());
            else
                for (int i = 0; i < 4; ++i) bad[random() % bad.size()] = std::uint8_t(random());
            Picture target(123, 77), same(123, 77);
            paintPhoto(target.view(), 1);
            paintPhoto(same.view(), 1);
            if (!decodeSnapshotJPEG(bad, target.view())) {
                EXPECT_TRUE(sameColours(target.view(), same.view()));
            }
        }
    }
}

TEST(Fingerprint, SeesEveryBitAndEveryExchange)
{
    Picture picture(131, 7);
    paintPhoto(picture.view(), 1);
    const BitmapView view = picture.view();
    const Fingerprint original = fingerprint(ConstBitmapView(view));
    std::vector<Fingerprint> seen{original};
    for (int y = 0; y < view.height; ++y)
        for (int i = 0; i < 4 * view.width; ++i)
            for (int bit = 0; bit < 8; ++bit) {
                view.rowData(y)[i] ^= std::uint8_t(1 << bit);
                seen.push_back(fingerprint(ConstBitmapView(view)));
                view.rowData(y)[i] ^= std::uint8_t(1 << bit);
            }
    // Two changes 512 bytes apart meet in one chain; the high bit is the one that multiplication alone would not move.
    for (int i = 0; i < 12; ++i)
        for (const std::uint8_t bit : {0x80, 0x01}) {
            view.rowData(2)[i] ^= bit;
            view.rowData(3)[i] ^= bit;
            seen.push_back(fingerprint(ConstBitmapView(view)));
            view.rowData(2)[i] ^= bit;
            view.rowData(3)[i] ^= bit;
        }
    std::sort(seen.begin(), seen.end(),
              [](auto& a, auto& b) { return a.low != b.low ? a.low < b.low : a.high < b.high; });
    EXPECT_EQ(std::adjacent_find(seen.begin(), seen.end()), seen.end());
    view.rowData(3)[4 * view.width] ^= 1; // a spare byte
    EXPECT_TRUE(fingerprint(ConstBitmapView(view)) == original);
}

TEST(Fingerprint, LengthTakesPart)
{
    const Bytes zeros(2000, 0);
    EXPECT_FALSE(fingerprint(std::span(zeros).first(10)) == fingerprint(std::span(zeros).first(11)));
    EXPECT_FALSE(fingerprint(std::span(zeros).first(512)) == fingerprint(std::span(zeros).first(1024)));
}

} // namespace
