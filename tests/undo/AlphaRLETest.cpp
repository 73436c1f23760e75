// SPDX-License-Identifier: GPL-3.0-or-later
/// The alpha run-length format byte for byte, against a plain reference, and its cursors.
#include "undo/AlphaRLE.h"
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace zp;
using Bytes = std::vector<std::uint8_t>;

namespace
{

/// A picture whose alpha plane is given and whose colours are a pattern that must survive; spare bytes are marked too.
class Plane
{
public:
    Plane(int width, int height, const Bytes& alpha = {})
        : mRowBytes(64 * (width / 16) + 64), mWidth(width), mHeight(height)
    {
        mBytes.resize(std::size_t(mRowBytes) * std::size_t(std::max(height, 1)));
        for (std::size_t i = 0; i < mBytes.size(); ++i) mBytes[i] = std::uint8_t(i * 7 + 3);
        mBefore = mBytes;
        for (std::size_t i = 0; i < alpha.size(); ++i) view().pixel(int(i) % width, int(i) / width)[0] = alpha[i];
    }
    BitmapView view() { return {mBytes.data(), mWidth, mHeight, mRowBytes}; }
    Bytes alpha()
    {
        Bytes result;
        for (int y = 0; y < mHeight; ++y)
            for (int x = 0; x < mWidth; ++x) result.push_back(view().pixel(x, y)[0]);
        return result;
    }
    bool onlyAlphaChanged() const
    {
        for (std::size_t i = 0; i < mBytes.size(); ++i) {
            const auto column = std::ptrdiff_t(i) % mRowBytes;
            const bool isAlpha = column % 4 == 0 && column / 4 < mWidth;
            if (!isAlpha && mBytes[i] != mBefore[i]) return false;
        }
        return true;
    }

private:
    Bytes mBytes, mBefore;
    std::ptrdiff_t mRowBytes;
    int mWidth, mHeight;
};

// The format's own description, step by step over the cursors: slow and plain.
Bytes referenceEncode(BitmapView pixels)
{
    Bytes file;
    AlphaCursor cursor(pixels);
    std::int32_t cur = cursor.get(), prev = -1;
    while (cur != -1) {
        file.push_back(std::uint8_t(cur));
        if (cur == prev) {
            int n = 0;
            for (;;) {
                const std::int32_t nxt = cursor.get();
                if (nxt == -1) {
                    file.push_back(std::uint8_t(n));
                    return file;
                }
                if (nxt != cur) {
                    file.push_back(std::uint8_t(n));
                    file.push_back(std::uint8_t(nxt));
                    cur = nxt;
                    break;
                }
                if (++n == 255) {
                    file.push_back(255);
                    cur = -1;
                    break;
                }
            }
        }
        prev = cur;
        cur = cursor.get();
    }
    return file;
}

void referenceDecode(const Bytes& file, BitmapView pixels)
{
    AlphaCursor cursor(pixels);
    std::size_t at = 0;
    const auto read = [&]() -> std::int32_t { return at < file.size() ? file[at++] : -1; };
    std::int32_t cur = read(), prev = -1;
    while (cur != -1) {
        cursor.put(cur);
        if (cur == prev) {
            for (int n = read() & 255; n > 0; --n) cursor.put(cur);
            cur = -1;
        }
        prev = cur;
        cur = read();
    }
}

Bytes repeated(std::size_t count, std::uint8_t byte) { return Bytes(count, byte); }
Bytes joined(std::initializer_list<Bytes> parts)
{
    Bytes result;
    for (const Bytes& part : parts) result.insert(result.end(), part.begin(), part.end());
    return result;
}

struct Row {
    const char* name;
    Bytes source, file;
};
class AlphaRLETable : public testing::TestWithParam<Row>
{
};

TEST_P(AlphaRLETable, EncodesAndDecodesInAnyShape)
{
    const Row& row = GetParam();
    const int count = int(row.source.size());
    for (const int width : {count, 1, count % 2 ? 1 : 2, count % 3 ? 1 : 3}) {
        if (width <= 0) continue;
        Plane plane(width, count / width, row.source);
        EXPECT_EQ(encodeAlphaRLE(plane.view()), row.file) << "width " << width;
        Plane decoded(width, count / width);
        EXPECT_EQ(decodeAlphaRLE(row.file, decoded.view()), count);
        EXPECT_EQ(decoded.alpha(), row.source) << "width " << width;
        EXPECT_TRUE(decoded.onlyAlphaChanged());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Format, AlphaRLETable,
    testing::Values(Row{"Literals", {0x10, 0x20, 0x30}, {0x10, 0x20, 0x30}}, Row{"Single", {7}, {7}},
                    Row{"PairThenOther", {0x41, 0x41, 0x42}, {0x41, 0x41, 0x00, 0x42}},
                    Row{"FiveEqual", {0x41, 0x41, 0x41, 0x41, 0x41}, {0x41, 0x41, 0x03}},
                    Row{"TwoOpaque", {0xFF, 0xFF}, {0xFF, 0xFF, 0x00}}, Row{"TwoZero", {0, 0}, {0, 0, 0}},
                    Row{"Run256", repeated(256, 0x41), {0x41, 0x41, 0xFE}},
                    Row{"Run257", repeated(257, 0x41), {0x41, 0x41, 0xFF}},
                    Row{"Run258", repeated(258, 0x41), {0x41, 0x41, 0xFF, 0x41}},
                    Row{"Run259", repeated(259, 0x41), {0x41, 0x41, 0xFF, 0x41, 0x41, 0x00}},
                    Row{"Run514", repeated(514, 9), {9, 9, 0xFF, 9, 9, 0xFF}},
                    Row{"TwoPairs", {0x41, 0x41, 0x42, 0x42}, {0x41, 0x41, 0x00, 0x42, 0x42, 0x00}},
                    Row{"FullRunThenPair", joined({repeated(257, 1), {2, 2}}), {1, 1, 0xFF, 2, 2, 0}},
                    Row{"FullRunThenOne", joined({repeated(257, 1), {2}}), {1, 1, 0xFF, 2}},
                    Row{"Alternating", {0x41, 0x42, 0x41, 0x42}, {0x41, 0x42, 0x41, 0x42}},
                    Row{"CountLooksLikeTheByte", {3, 3, 3, 3, 3, 4}, {3, 3, 3, 4}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AlphaRLE, AnEmptyPlaneIsAnEmptyFile)
{
    Plane plane(5, 0);
    EXPECT_TRUE(encodeAlphaRLE(plane.view()).empty());
    EXPECT_TRUE(encodeAlphaRLE({}).empty());
    EXPECT_EQ(decodeAlphaRLE(Bytes{1, 2, 3}, BitmapView{}), 0);
}

TEST(AlphaRLE, AnEmptyFileChangesNothing)
{
    Plane plane(3, 2, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(decodeAlphaRLE({}, plane.view()), 0);
    EXPECT_EQ(plane.alpha(), (Bytes{1, 2, 3, 4, 5, 6}));
}

TEST(AlphaRLE, AFileThatEndsBehindAPairStandsFor255MoreCopies)
{
    Plane plane(20, 20, repeated(400, 1));
    EXPECT_EQ(decodeAlphaRLE(Bytes{5, 9, 9}, plane.view()), 258);
    EXPECT_EQ(plane.alpha(), joined({{5}, repeated(257, 9), repeated(142, 1)}));
    Plane joint(30, 20, repeated(600, 1));
    EXPECT_EQ(decodeAlphaRLE(Bytes{9, 9, 2, 9, 9}, joint.view()), 4 + 257);
    EXPECT_EQ(joint.alpha(), joined({repeated(261, 9), repeated(339, 1)}));
}

TEST(AlphaRLE, AShortFileLeavesTheRestAndALongOneIsCut)
{
    Plane plane(4, 2, repeated(8, 1));
    EXPECT_EQ(decodeAlphaRLE(Bytes{5, 6, 7}, plane.view()), 3);
    EXPECT_EQ(plane.alpha(), (Bytes{5, 6, 7, 1, 1, 1, 1, 1}));
    Plane small(2, 2);
    EXPECT_EQ(decodeAlphaRLE(Bytes{8, 8, 255, 1, 2, 3}, small.view()), 4);
    EXPECT_EQ(small.alpha(), repeated(4, 8));
    EXPECT_TRUE(small.onlyAlphaChanged());
}

TEST(AlphaRLE, RandomPlanesAgreeWithTheReference)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 600; ++round) {
        const int width = 1 + int(random() % (round % 10 ? 90u : 40000u));
        const int height = 1 + int(random() % (round % 10 ? 60u : 3u));
        // From runs that never end to bytes that never repeat, and mixtures of both.
        const unsigned variety = 1 + random() % 5, length = 1 + random() % (1u << (random() % 12));
        Bytes alpha;
        while (alpha.size() < std::size_t(width) * std::size_t(height)) {
            const auto byte = std::uint8_t(random() % variety * 63 + (random() % 16 == 0 ? random() : 0));
            alpha.insert(alpha.end(), 1 + random() % length, byte);
        }
        alpha.resize(std::size_t(width) * std::size_t(height));
        Plane plane(width, height, alpha);
        const Bytes file = encodeAlphaRLE(plane.view());
        ASSERT_EQ(file, referenceEncode(plane.view())) << "round " << round << ", " << width << " x " << height;
        Plane decoded(width, height);
        ASSERT_EQ(decodeAlphaRLE(file, decoded.view()), std::int64_t{width} * height);
        ASSERT_EQ(decoded.alpha(), alpha) << "round " << round;
        ASSERT_TRUE(decoded.onlyAlphaChanged());
    }
}

TEST(AlphaRLE, RandomFilesDecodeAsTheReferenceDoes)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 2000; ++round) {
        Bytes file(random() % 300);
        for (auto& byte : file) byte = std::uint8_t(random() % (round % 2 ? 256u : 3u));
        const int width = 1 + int(random() % 70), height = 1 + int(random() % 70);
        Plane fast(width, height), plain(width, height);
        decodeAlphaRLE(file, fast.view());
        referenceDecode(file, plain.view());
        ASSERT_EQ(fast.alpha(), plain.alpha()) << "round " << round;
        ASSERT_TRUE(fast.onlyAlphaChanged());
    }
}

TEST(AlphaRLE, LargePlanesAreTheSameWhereverTheyAreDivided)
{
    std::mt19937 random(31);
    for (int round = 0; round < 12; ++round) {
        const int width = 700 + int(random() % 700), height = 1700 + int(random() % 300);
        Plane plane(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) plane.view().pixel(x, y)[0] = 255;
        // Few changes: long runs go over the borders of the parts; many: something differs at every border.
        for (int i = 0; i < (round % 4 == 0 ? 0 : round % 4 == 1 ? 3 : 1 << (6 + round)); ++i)
            plane.view().pixel(int(random() % unsigned(width)), int(random() % unsigned(height)))[0] =
                std::uint8_t(random());
        if (round % 3 == 0)
            for (int x = 0; x < width; ++x)
                plane.view().pixel(x, height / 4)[0] = plane.view().pixel(x, height / 2)[0] = 7;
        ASSERT_TRUE(encodeAlphaRLE(plane.view()) == referenceEncode(plane.view())) << "round " << round;
    }
}

TEST(AlphaRLE, PiecesOfAnySizeGiveTheSameFile)
{
    std::mt19937 random(99);
    for (int round = 0; round < 300; ++round) {
        Bytes alpha;
        while (alpha.size() < 3000)
            alpha.insert(alpha.end(), 1 + random() % (1u << (random() % 10)), std::uint8_t(random() % 3));
        Plane plane(int(alpha.size()), 1, alpha);
        Bytes file;
        AlphaRLEEncoder encoder(file);
        for (std::size_t at = 0; at < alpha.size();) {
            const std::size_t piece = std::min<std::size_t>(random() % 400, alpha.size() - at);
            encoder.append(alpha.data() + at, piece);
            at += piece;
        }
        encoder.finish();
        ASSERT_EQ(file, referenceEncode(plane.view())) << "round " << round;
    }
}

TEST(AlphaCursor, ReadsInRasterOrderAndThenAnswersMinusOne)
{
    Plane plane(3, 2, {1, 2, 3, 4, 5, 255});
    AlphaCursor cursor(plane.view());
    for (const int expected : {1, 2, 3, 4, 5, 255, -1, -1}) EXPECT_EQ(cursor.get(), expected);
}

TEST(AlphaCursor, WritesTheLowEightBitsAndDropsWhatIsTooMuch)
{
    Plane plane(2, 2);
    AlphaCursor cursor(plane.view());
    for (const int value : {0x141, -1, 7, 256, 9, 10}) cursor.put(value);
    EXPECT_EQ(plane.alpha(), (Bytes{0x41, 255, 7, 0}));
    EXPECT_TRUE(plane.onlyAlphaChanged());
}

TEST(AlphaCursor, HasNothingToReadWithoutRowsOrBeforeItIsReset)
{
    Plane plane(4, 0);
    AlphaCursor none, empty(plane.view());
    EXPECT_EQ(none.get(), -1);
    EXPECT_EQ(empty.get(), -1);
    none.put(5);
    empty.put(5);
    EXPECT_TRUE(plane.onlyAlphaChanged());
}

} // namespace
