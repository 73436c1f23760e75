// SPDX-License-Identifier: GPL-3.0-or-later
/// The chequerboard behind transparent parts and the lines between pixels.
#include "canvas/Backdrop.h"
#include "support/DocumentFixture.h"
#include <QImage>
#include <set>

using namespace zp;
using namespace zp::test;

namespace
{

class BackdropTest : public DocumentTest
{
protected:
    BackdropTest()
    {
        makeImage(64, 64);
        edit([](Edit& e) { e.writeAll().row(0)[0] = kRedWord; });
        canvas->show();
    }
    QColor at(int x, int y) const { return canvas->grab().toImage().pixelColor(x, y); }
};

TEST_F(BackdropTest, TransparentPartsAreGreyUntilTheBoardIsAskedFor)
{
    EXPECT_EQ(at(30, 30), QColor(128, 128, 128));
    const auto before = allPixels();
    document->setChequered(true);
    std::set<QRgb> colors;
    for (int x = 20; x < 60; ++x) colors.insert(at(x, 30).rgb());
    EXPECT_EQ(colors, (std::set<QRgb>{0xFFFFFFFF, 0xFFCCCCCC}));
    EXPECT_EQ(at(0, 0), QColor(255, 0, 0)) << "what is opaque stays";
    EXPECT_EQ(allPixels(), before) << "it is looked at, not changed";
    document->setChequered(false);
    EXPECT_EQ(at(30, 30), QColor(128, 128, 128));
}

TEST_F(BackdropTest, TheBoardLiesStillAndHalfTransparentPixelsMixWithIt)
{
    // Two parts of the same picture, painted at different times, join.
    auto one = BitmapRep::create(16, 16), two = BitmapRep::create(16, 16);
    layChequerboardUnder(one->view(), 0, 0, 1);
    layChequerboardUnder(two->view(), 5, 3, 1);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x) EXPECT_EQ(one->view().row(y + 3)[x + 5], two->view().row(y)[x]);
    auto half = BitmapRep::create(1, 1);
    half->view().row(0)[0] = word(128, 128, 0, 0);
    layChequerboardUnder(half->view(), 0, 0, 1);
    const std::uint8_t* p = half->view().pixel(0, 0);
    EXPECT_EQ(p[0], 255);
    EXPECT_EQ(p[1], 255);
    EXPECT_EQ(p[2], 127);
}

TEST_F(BackdropTest, LinesStandBetweenPixelsFromEightTimesOn)
{
    document->setGrid(true);
    canvas->setZoom(4);
    EXPECT_EQ(at(40, 42), QColor(128, 128, 128));
    edit([](Edit& e) {
        const BitmapView all = e.writeAll();
        for (int y = 0; y < all.height; ++y) std::fill_n(all.row(y), all.width, kWhiteWord);
    });
    canvas->setZoom(8);
    EXPECT_NE(at(40, 44), QColor(Qt::white)) << "on a line";
    EXPECT_EQ(at(44, 44), QColor(Qt::white)) << "inside a pixel";
    document->setGrid(false);
    EXPECT_EQ(at(40, 44), QColor(Qt::white));
}

} // namespace
