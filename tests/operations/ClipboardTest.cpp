// SPDX-License-Identifier: GPL-3.0-or-later
/// Copy, cut, paste and delete.
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/Pasteboard.h"
#include "support/AlertWatch.h"
#include "support/DocumentFixture.h"
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <cstring>
#include <zlib.h>

using namespace zp;
using namespace zp::test;

namespace
{

class Clipboard : public DocumentTest
{
protected:
    Clipboard()
    {
        makeImage(60, 50);
        paintNoise();
        Pasteboard::general().clear();
        takeSounds();
    }
    ~Clipboard() override { Pasteboard::general().clear(); }

    /// The pasteboard's TIFF, decoded.
    static std::shared_ptr<BitmapRep> pasted() { return importImage(Pasteboard::general().imageData()).bitmap; }
    static std::vector<std::uint8_t> tiffOf(int width, int height, std::uint32_t fill)
    {
        return encodeTIFF(zp::test::picture(width, height, fill)->view(), {});
    }
    static void putTIFF(int width, int height, std::uint32_t fill = word(255, 1, 2, 3))
    {
        Pasteboard::general().setTIFF(tiffOf(width, height, fill));
    }
};

TEST_F(Clipboard, CopyWithoutASelectionTakesTheWholeImage)
{
    perform("copy:");
    const auto rep = pasted();
    ASSERT_TRUE(rep);
    ASSERT_EQ(rep->pixelsWide(), 60);
    ASSERT_EQ(rep->pixelsHigh(), 50);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x) ASSERT_EQ(rep->view().row(y)[x], pixel(x, y));
    EXPECT_FALSE(floating());
    EXPECT_TRUE(Pasteboard::general().types().contains("image/tiff"));
}

TEST_F(Clipboard, CopyOfASelectionFloatsItAndIsTransparentOutside)
{
    select(BezierPath::withOvalInRect(makeRect(10, 10, 30, 20)));
    perform("copy:");
    EXPECT_TRUE(floating());
    EXPECT_EQ(takeSounds(), Lines{"Pop"});
    const auto rep = pasted();
    ASSERT_TRUE(rep);
    ASSERT_EQ(rep->pixelsWide(), 30);
    ASSERT_EQ(rep->pixelsHigh(), 20);
    EXPECT_EQ(rep->view().row(0)[0], 0u);
    EXPECT_EQ(rep->view().row(10)[15], pixel(25, 20));
}

TEST_F(Clipboard, CopyOfATurnedFloatIsTurned)
{
    select(makeRect(20, 20, 16, 10));
    perform("transform");
    performNumbers("transform_set:", {1, 90});
    perform("copy:");
    const auto rep = pasted();
    ASSERT_TRUE(rep);
    ASSERT_EQ(rep->pixelsWide(), 10);
    ASSERT_EQ(rep->pixelsHigh(), 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 10; ++x) ASSERT_EQ(rep->view().row(y)[x], pixel(20 + y, 29 - x));
}

TEST_F(Clipboard, CutLeavesAHoleNoSelectionAndOneSnapshot)
{
    const int number = history().newest();
    const std::uint32_t outside = pixel(9, 9);
    select(makeRect(10, 10, 5, 5));
    perform("cut:");
    EXPECT_FALSE(outline());
    EXPECT_FALSE(floating());
    for (int y = 10; y < 15; ++y)
        for (int x = 10; x < 15; ++x) EXPECT_EQ(pixel(x, y), 0u);
    EXPECT_EQ(pixel(9, 9), outside);
    settle();
    EXPECT_EQ(history().newest(), number + 1);
    EXPECT_EQ(pasted()->pixelsWide(), 5);
}

TEST_F(Clipboard, DeleteNeedsASelection)
{
    const auto before = allPixels();
    perform("delete:");
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    EXPECT_EQ(allPixels(), before);
    select(makeRect(1, 1, 3, 3));
    const int number = history().newest();
    perform("delete:");
    EXPECT_EQ(pixel(2, 2), 0u);
    EXPECT_TRUE(outline());
    settle();
    EXPECT_EQ(history().newest(), number + 1);
}

TEST_F(Clipboard, PasteFloatsAtTheTopLeft)
{
    putTIFF(10, 10);
    select(makeRect(30, 30, 5, 5));
    perform("paste:");
    ASSERT_TRUE(floating());
    EXPECT_EQ(record().position, (Point{5, 5}));
    EXPECT_EQ(record().oldSize, (Size{10, 10}));
    EXPECT_EQ(outlineBounds(), makeRect(0, 0, 10, 10));
    EXPECT_EQ(mask(5, 5), 0);
    EXPECT_EQ(mask(32, 32), 255);
    EXPECT_TRUE(selection().antsMarch());
    perform("anchorSelection");
    EXPECT_EQ(pixel(9, 9), word(255, 1, 2, 3));
    EXPECT_NE(pixel(10, 10), word(255, 1, 2, 3));
}

TEST_F(Clipboard, APastedImageKeepsItsTransparency)
{
    const std::uint32_t under = pixel(3, 3);
    putTIFF(6, 6, 0);
    perform("paste:");
    perform("anchorSelection");
    EXPECT_EQ(pixel(3, 3), under);
    fillImage(word(255, 0, 0, 0));
    putTIFF(6, 6, word(128, 128, 0, 64));
    perform("paste:");
    perform("anchorSelection");
    EXPECT_EQ(pixel(3, 3), word(255, 128, 0, 64));
}

TEST_F(Clipboard, APastedImageLargerThanTheCanvasFloatsWhole)
{
    const auto big = BitmapRep::create(100, 90);
    for (int y = 0; y < 90; ++y)
        for (int x = 0; x < 100; ++x) big->view().row(y)[x] = word(255, x, y, 7);
    Pasteboard::general().setTIFF(encodeTIFF(big->view(), {}));
    perform("paste:");
    EXPECT_EQ(floating()->size(), (Size{100, 90}));
    performNumbers("nudge", {-40, -40});
    perform("anchorSelection");
    EXPECT_EQ(pixel(0, 0), word(255, 40, 40, 7));
    EXPECT_EQ(pixel(59, 49), word(255, 99, 89, 7));
}

TEST_F(Clipboard, PicturesOfOtherProgramsPasteToo)
{
    for (const char* kind : {"PNG", "BMP"}) {
        QImage picture(7, 5, QImage::Format_ARGB32);
        picture.fill(QColor(10, 20, 30));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(picture.save(&buffer, kind));
        auto* mime = new QMimeData;
        mime->setData(QString("image/%1").arg(QString(kind).toLower()), bytes);
        QApplication::clipboard()->setMimeData(mime);
        perform("paste:");
        ASSERT_TRUE(floating()) << kind;
        EXPECT_EQ(outlineBounds(), makeRect(0, 0, 7, 5));
        perform("anchorSelection");
        EXPECT_EQ(pixel(3, 3), word(255, 10, 20, 30)) << kind;
        fillImage(0);
    }
}

TEST_F(Clipboard, UnreadableDataLeavesEverythingAsItIs)
{
    select(makeRect(30, 30, 5, 5));
    perform("floatSelection");
    renderMask();
    const Floating* const piece = floating();
    takeSounds();
    const auto tiff = tiffOf(10, 10, word(255, 1, 2, 3));
    for (std::vector<std::uint8_t> bytes :
         {std::vector<std::uint8_t>{}, std::vector<std::uint8_t>{'I', 'I', 42, 0, 8, 0, 0, 0},
          std::vector<std::uint8_t>(100, 0xAA), std::vector<std::uint8_t>(tiff.begin(), tiff.begin() + 9)}) {
        Pasteboard::general().setTIFF(bytes);
        AlertWatch watch;
        EXPECT_FALSE(perform("paste:"));
        EXPECT_FALSE(perform("pasteInto:"));
        EXPECT_EQ(floating(), piece);
        EXPECT_EQ(outlineBounds(), makeRect(30, 30, 5, 5));
        EXPECT_FALSE(selection().pasteInto());
        EXPECT_EQ(mask(32, 32), 0);
        EXPECT_TRUE(selection().antsMarch());
        EXPECT_TRUE(takeSounds().empty());
        ASSERT_EQ(watch.seen.size(), 2u);
        EXPECT_EQ(watch.seen[0].title, "Nothing could be pasted.");
    }
}

/// A TIFF file with no more than tags, @p width by @p height.
QByteArray claimingTIFF(quint32 width, quint32 height)
{
    QByteArray file("II\x2A\0\x08\0\0\0\x06\0", 10);
    const auto tag = [&file](quint16 number, quint16 type, quint32 value) {
        const quint32 one = 1;
        for (const auto& [bytes, count] : {std::pair<const void*, int>{&number, 2}, {&type, 2}, {&one, 4}, {&value, 4}})
            file.append(static_cast<const char*>(bytes), count);
    };
    tag(256, 4, width), tag(257, 4, height), tag(258, 3, 8), tag(262, 3, 1), tag(273, 4, 8), tag(279, 4, 100);
    return file.append(200, '\0');
}
QByteArray claimingPNG(quint32 width, quint32 height)
{
    QByteArray head("IHDR");
    for (const quint32 side : {width, height})
        for (int shift = 24; shift >= 0; shift -= 8) head.append(char(side >> shift));
    head.append("\x08\x06\0\0\0", 5);
    const quint32 sum = quint32(crc32(0, reinterpret_cast<const Bytef*>(head.constData()), uInt(head.size())));
    QByteArray file("\x89PNG\r\n\x1A\n\0\0\0\x0D", 12);
    file += head;
    for (int shift = 24; shift >= 0; shift -= 8) file.append(char(sum >> shift));
    return file.append(QByteArray(60, '\0'));
}

struct Lie {
    const char *name, *kind;
    QByteArray bytes;
    const char* sentence; ///< its beginning
};

TEST_F(Clipboard, AnOwnerThatLiesLeavesEverythingAsItIs)
{
    const auto before = allPixels();
    const int step = history().position();
    const Lie lies[] = {
        {"TIFF that is text", "image/tiff", "no picture at all", "It is not an image of a kind that can be opened."},
        {"PNG that is a page", "image/png", "<html><img src=x></html>",
         "It is not an image of a kind that can be opened."},
        {"a TIFF file of half the earth", "image/tiff", claimingTIFF(4'000'000'000u, 4'000'000'000u),
         "The TIFF data cannot be read: "},
        {"a TIFF file of as much as there may be", "image/tiff", claimingTIFF(30'000, 30'000),
         "The file is far too small for the 30000 x 30000 pixels it claims to hold."},
        {"a PNG file as large as one can be", "image/png", claimingPNG(0x7FFFFFFFu, 0x7FFFFFFFu),
         "The PNG data cannot be read: "},
        {"a PNG file without a pixel", "image/png", claimingPNG(0, 5), "The PNG data cannot be read: "},
        {"zeros", "image/bmp", QByteArray(1 << 20, '\0'), "It is not an image of a kind that can be opened."},
    };
    for (const Lie& lie : lies) {
        SCOPED_TRACE(lie.name);
        auto* const data = new QMimeData;
        data->setData(lie.kind, lie.bytes);
        QApplication::clipboard()->setMimeData(data);
        AlertWatch watch;
        EXPECT_FALSE(perform("paste:"));
        EXPECT_FALSE(floating());
        EXPECT_EQ(allPixels(), before);
        EXPECT_EQ(history().position(), step);
        ASSERT_EQ(watch.seen.size(), 1u);
        EXPECT_EQ(watch.seen[0].title, "Nothing could be pasted.");
        EXPECT_TRUE(watch.seen[0].message.startsWith(lie.sentence)) << watch.seen[0].message.toStdString();
    }
    // What is there counts, not what it was called.
    auto* const data = new QMimeData;
    const std::vector<std::uint8_t> tiff = tiffOf(10, 10, word(255, 1, 2, 3));
    data->setData("image/png", QByteArray(reinterpret_cast<const char*>(tiff.data()), qsizetype(tiff.size())));
    QApplication::clipboard()->setMimeData(data);
    EXPECT_TRUE(perform("paste:"));
    EXPECT_TRUE(floating());
}

TEST_F(Clipboard, PasteIntoCentresAndIsCutByTheOldSelection)
{
    makeImage(300, 300);
    putTIFF(10, 10);
    select(makeRect(100, 100, 50, 50));
    perform("pasteInto:");
    EXPECT_EQ(outlineBounds(), makeRect(120, 120, 10, 10));
    ASSERT_TRUE(selection().pasteInto());
    EXPECT_EQ(selection().pasteInto()->bounds(), makeRect(100, 100, 50, 50));
    EXPECT_EQ(record().position, (Point{125, 125}));
    performNumbers("nudge", {22, 0});
    perform("anchorSelection");
    EXPECT_EQ(pixel(149, 125), word(255, 1, 2, 3));
    EXPECT_NE(pixel(150, 125), word(255, 1, 2, 3));
    EXPECT_FALSE(selection().pasteInto());
}

TEST_F(Clipboard, PasteIntoWithoutASelectionBeeps)
{
    putTIFF(10, 10);
    perform("pasteInto:");
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    EXPECT_FALSE(floating());
}

TEST_F(Clipboard, WhatWasCopiedPastesByteForByte)
{
    paintImage([](int x, int y) { return x < 30 ? word(255, x, y, 3) : word(100, x, y, 3); });
    perform("copy:");
    const auto before = allPixels();
    fillImage(0);
    perform("paste:");
    perform("anchorSelection");
    EXPECT_EQ(allPixels(), before);
}

TEST_F(Clipboard, CutAndDeleteOfAPieceOfItsOwnLeaveThePictureBelow)
{
    const auto before = allPixels();
    for (const char* action : {"cut:", "delete:"}) {
        putTIFF(10, 10);
        perform("paste:");
        perform(action);
        EXPECT_FALSE(floating()) << action;
        EXPECT_EQ(allPixels(), before) << action;

        dropSelection();
        select(makeRect(5, 5, 10, 10));
        perform("floatSelection");
        performNumbers("nudge", {1, 0});
        perform(action);
        EXPECT_FALSE(floating()) << action;
        EXPECT_EQ(allPixels(), before) << action;
        dropSelection();
    }
}

} // namespace
