// SPDX-License-Identifier: GPL-3.0-or-later
/// The alpha plane as a run-length file, and through the two cursors.
#include "operations/AlphaBytes.h"
#include "support/HistoryFixture.h"

using namespace zp;
using namespace zp::test;
namespace fs = std::filesystem;

namespace
{

class AlphaFile : public HistoryTest
{
protected:
    static constexpr int kReset = -10;

    int next(bool reset = false)
    {
        int value = 0;
        edit([&](Edit& e) { value = zp::getc(e, reset); });
        return value;
    }
    void put(std::initializer_list<int> values)
    {
        edit([&values](Edit& e) {
            for (const int value : values) zp::putc(e, value);
        });
    }
    int alpha(int x, int y) const { return channelOf(pixel(x, y), 0); }
};

TEST_F(AlphaFile, WithoutAPictureTheCursorsAreExhaustedAndTheFileIsEmpty)
{
    EXPECT_EQ(next(true), -1);
    EXPECT_EQ(next(), -1);
    put({kReset, 5});
    performPath("readAlphaRLEFile:", (temporary / "none").string());
    performPath("writeAlphaRLEToFile:", (temporary / "empty").string());
    EXPECT_TRUE(bytes(temporary / "empty").empty());
    EXPECT_TRUE(fs::exists(temporary / "empty"));
}

TEST_F(AlphaFile, TheCursorsWalkThePictureTheyWereResetOn)
{
    makeImage(3, 2);
    EXPECT_NE(next(true), 0);
    put({kReset, 1, 2, 0x103, 4, 5, 6, 7});
    EXPECT_EQ(next(true), -1);
    for (const int value : {1, 2, 3, 4, 5, 6, -1, -1}) EXPECT_EQ(next(), value);
    next(true);
    put({kReset});
    makeImage(300, 200); // the cursors' picture is gone
    EXPECT_EQ(next(), -1);
    put({77});
    EXPECT_EQ(alpha(0, 0), 0);
}

TEST_F(AlphaFile, GoesToAndComesFromAnyPath)
{
    makeImage(3, 2);
    put({kReset, 9, 9, 9, 4, 5, 6});
    performPath("writeAlphaRLEToFile:", (temporary / "a b.rle").string());
    EXPECT_EQ(bytes(temporary / "a b.rle"), (Bytes{9, 9, 1, 4, 5, 6}));
    put({kReset, 1, 1, 1, 1, 1, 1});
    performPath("readAlphaRLEFile:", (temporary / "a b.rle").string());
    EXPECT_EQ(alpha(2, 0), 9);
    EXPECT_EQ(alpha(2, 1), 6);
    performPath("readAlphaRLEFile:", (temporary / "missing").string());
    EXPECT_EQ(alpha(2, 1), 6);
}

TEST_F(AlphaFile, APathIsPrintedAsAFormatAndLimitedTo511Bytes)
{
    makeImage(2, 1);
    const std::string base = temporary.string() + "/";
    performPath("writeAlphaRLEToFile:", base + "n%i x%%y z%s.rle");
    EXPECT_TRUE(fs::exists(base + "n0 x%y z%s.rle"));
    std::string deep = base;
    while (deep.size() < 400) deep += "d123456789/";
    fs::create_directories(deep);
    const std::string fits = deep + std::string(511 - deep.size(), 'x'), tooLong = fits + "x";
    performPath("writeAlphaRLEToFile:", fits);
    EXPECT_TRUE(fs::exists(fits));
    performPath("writeAlphaRLEToFile:", tooLong);
    EXPECT_FALSE(fs::exists(tooLong));
}

} // namespace
