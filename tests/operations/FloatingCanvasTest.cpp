// SPDX-License-Identifier: GPL-3.0-or-later
/// Floating, anchoring, the clipboard, crop and watermarks through a real canvas.
#include "base/Folders.h"
#include "base/Log.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "support/CanvasFixture.h"
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QMimeData>
#include <random>

using namespace zp;
using namespace zp::test;

namespace
{
class FloatingCanvas : public CanvasTest
{
protected:
    FloatingCanvas()
    {
        makeImage(60, 50);
        paintPhoto();
        Pasteboard::general().clear();
        canvas->mInfoField = &info;
        takeSounds();
        takeLogLines();
    }
    ~FloatingCanvas() override { setScriptedKeyModifiers(std::nullopt); }

    void paintPhoto()
    {
        std::mt19937 random(1);
        const BitmapView v = canvas->mBitmapRep->view();
        for (int y = 0; y < v.height; ++y)
            for (int x = 0; x < v.width; ++x) v.row(y)[x] = std::uint32_t(random()) | 255;
    }
    void select(const BezierPath& path)
    {
        canvas->mSelectionPath = path;
        canvas->clearSelectionMask();
        canvas->selectionPathToMask();
        canvas->restartSelectionTimer();
    }
    void select(Rect r) { select(BezierPath::withRect(r)); }
    std::vector<std::uint32_t> pixels() const
    {
        const ConstBitmapView v = std::as_const(*canvas->mBitmapRep).view();
        std::vector<std::uint32_t> all;
        for (int y = 0; y < v.height; ++y) all.insert(all.end(), v.row(y), v.row(y) + v.width);
        return all;
    }
    /// The pasteboard's TIFF, decoded.
    std::shared_ptr<BitmapRep> pasted() { return importImage(Pasteboard::general().imageData()).bitmap; }
    static std::vector<std::uint8_t> tiffOf(int width, int height, std::uint32_t fill)
    {
        const auto rep = BitmapRep::create(width, height);
        for (int y = 0; y < height; ++y) std::fill_n(rep->view().row(y), width, fill);
        return encodeTIFF(rep->view(), {});
    }
    static void putTIFF(int width, int height, std::uint32_t fill = word(255, 1, 2, 3))
    {
        Pasteboard::general().setTIFF(tiffOf(width, height, fill));
    }
    static bool logged(const std::string& line)
    {
        const auto lines = takeLogLines();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    QLabel info;
};
using Sounds = std::vector<std::string>;
} // namespace

// ---- floating ------------------------------------------------------------------------------------------------------

TEST_F(FloatingCanvas, WithoutASelectionNothingFloats)
{
    canvas->floatSelection();
    EXPECT_TRUE(canvas->selectionImageNil());
    canvas->anchorSelection();
    EXPECT_TRUE(takeSounds().empty());
}

TEST_F(FloatingCanvas, FloatingSetsTheRecordAndLeavesTheImageAlone)
{
    const auto before = pixels();
    select(makeRect(10, 12, 21, 8));
    canvas->floatSelection();
    ASSERT_TRUE(canvas->mSelectionImage);
    EXPECT_EQ(canvas->mSelectionImage->size(), (Size{21, 8}));
    EXPECT_EQ(canvas->mTransformRecord.position, (Point{20.5f, 16}));
    EXPECT_EQ(canvas->mTransformRecord.oldPos, (Point{10, 12}));
    EXPECT_EQ(canvas->mTransformRecord.oldSize, (Size{21, 8}));
    EXPECT_EQ(canvas->mTransformRecord.scale, 1);
    EXPECT_EQ(canvas->mTransformRecord.rotate, 0);
    EXPECT_EQ(takeSounds(), Sounds{"Pop"});
    EXPECT_EQ(pixels(), before);
}

TEST_F(FloatingCanvas, AnchoringUntouchedChangesNoByteAndEndsTheSelection)
{
    const auto before = pixels();
    const std::int32_t number = canvas->mUndoIndex;
    select(BezierPath::withOvalInRect(makeRect(7, 5, 33, 31)));
    canvas->floatSelection();
    canvas->anchorSelection();
    EXPECT_EQ(pixels(), before);
    EXPECT_FALSE(canvas->mSelectionPath);
    EXPECT_FALSE(canvas->mSelectionImage);
    EXPECT_FALSE(canvas->mSelectionTimer);
    EXPECT_EQ(info.text(), "");
    EXPECT_EQ(takeSounds(), (Sounds{"Pop", "Pop"}));
    settle();
    EXPECT_EQ(canvas->mUndoIndex, number + 1);
}

TEST_F(FloatingCanvas, WithShiftTheSelectionStays)
{
    select(makeRect(10, 10, 20, 20));
    canvas->floatSelection();
    setScriptedKeyModifiers(kShiftKey);
    canvas->anchorSelection();
    EXPECT_TRUE(canvas->mSelectionPath);
    EXPECT_TRUE(canvas->mSelectionTimer);
    EXPECT_FALSE(canvas->mSelectionImage);
    EXPECT_EQ(info.text(), "{{10, 10}, {20, 20}}");
    canvas->floatSelection();
    EXPECT_TRUE(canvas->mSelectionImage);
}

TEST_F(FloatingCanvas, TheColoursAlphaIsTheOpacity)
{
    fillImage(word(255, 0, 0, 0));
    select(makeRect(0, 0, 10, 10));
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x) setPixel(x, y, word(255, 200, 100, 50));
    canvas->floatSelection();
    canvas->mTransformRecord.position.x += 20;
    canvas->mSelectionPath = BezierPath::withRect(makeRect(20, 0, 10, 10));
    canvas->mColor.alpha = 0.5f;
    canvas->anchorSelection();
    EXPECT_NEAR(int(pixel(25, 5) >> 8 & 255), 100, 1);
    EXPECT_NEAR(int(pixel(25, 5) >> 16 & 255), 50, 1);
    EXPECT_EQ(pixel(5, 5), word(255, 200, 100, 50));
}

TEST_F(FloatingCanvas, TheMenuActionFloatsThenAnchors)
{
    select(makeRect(10, 10, 20, 20));
    canvas->anchorOrFloatSelection();
    EXPECT_TRUE(canvas->mSelectionImage);
    canvas->anchorOrFloatSelection();
    EXPECT_FALSE(canvas->mSelectionImage);
    EXPECT_FALSE(canvas->mSelectionPath);
}

TEST_F(FloatingCanvas, AFilteredPictureIsAnchoredInsteadAndLogged)
{
    select(makeRect(10, 10, 5, 5));
    canvas->floatSelection();
    auto filtered = BitmapRep::create(5, 5);
    for (int y = 0; y < 5; ++y) std::fill_n(filtered->view().row(y), 5, word(255, 9, 8, 7));
    canvas->mSelectionImage->add(filtered, true);
    canvas->anchorSelection();
    EXPECT_EQ(pixel(12, 12), word(255, 9, 8, 7));
    const auto lines = takeLogLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "more than one rep"), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CIImageRep drawn"), 1);
}

// ---- transform -----------------------------------------------------------------------------------------------------

TEST_F(FloatingCanvas, TransformFloatsFirstAndTellsTheValues)
{
    select(makeRect(10, 10, 20, 10));
    canvas->mTransform = true;
    const ZPCanvas::TransformValues values = canvas->transform();
    EXPECT_TRUE(canvas->mSelectionImage);
    EXPECT_FALSE(canvas->mTransform);
    EXPECT_EQ(values.scale, 1);
    EXPECT_EQ(values.rotate, 0);
    const auto floating = canvas->mSelectionImage;
    canvas->transform_set(1.5f, 30);
    EXPECT_EQ(canvas->transform().rotate, 30);
    EXPECT_EQ(canvas->mSelectionImage, floating); // not floated again
}

TEST_F(FloatingCanvas, SettingTheSameValuesAgainLeavesThePath)
{
    select(makeRect(20, 20, 10, 10));
    canvas->transform();
    canvas->transform_set(2, 0);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(15, 15, 20, 20));
    EXPECT_EQ(info.text(), "{{15, 15}, {20, 20}}");
    canvas->transform_set(2, 0);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(15, 15, 20, 20));
}

TEST_F(FloatingCanvas, MinusOneTwiceResets)
{
    select(makeRect(20, 20, 10, 6));
    canvas->transform();
    canvas->transform_set(2, 90);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(19, 13, 12, 20));
    canvas->transform_set(-1, -1);
    EXPECT_EQ(canvas->mTransformRecord.scale, 1);
    EXPECT_EQ(canvas->mTransformRecord.rotate, 0);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(20, 20, 10, 6));
}

TEST_F(FloatingCanvas, AQuarterTurnTurnsTheBoxAboutThePosition)
{
    select(makeRect(20, 20, 20, 10));
    canvas->transform();
    canvas->transform_set(1, 90);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(25, 15, 10, 20));
}

TEST_F(FloatingCanvas, AScaleOfNothingIsRefused)
{
    select(makeRect(20, 20, 20, 10));
    canvas->transform();
    canvas->transform_set(0, 0);
    canvas->transform_set(std::numeric_limits<float>::infinity(), 0);
    canvas->transform_set(1, std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(canvas->mTransformRecord.scale, 1);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(20, 20, 20, 10));
}

TEST_F(FloatingCanvas, WithoutAPathTheInfoIsEmpty)
{
    info.setText("old");
    canvas->transform_set(2, 0);
    EXPECT_EQ(info.text(), "");
}

TEST_F(FloatingCanvas, ApplyEndsTheTransformAndDontApplyLeavesItRunning)
{
    canvas->mTransform = true;
    canvas->dontApplyTransform();
    EXPECT_TRUE(canvas->mTransform);
    canvas->applyTransform_2();
    EXPECT_TRUE(canvas->mTransform);
    canvas->applyTransform();
    EXPECT_FALSE(canvas->mTransform);
    canvas->dontApplyTransform();
    EXPECT_FALSE(canvas->mTransform);
}

// ---- clipboard -----------------------------------------------------------------------------------------------------

TEST_F(FloatingCanvas, CopyWithoutASelectionTakesTheWholeImage)
{
    canvas->copy();
    const auto rep = pasted();
    ASSERT_TRUE(rep);
    ASSERT_EQ(rep->pixelsWide(), 60);
    ASSERT_EQ(rep->pixelsHigh(), 50);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x) ASSERT_EQ(rep->view().row(y)[x], pixel(x, y));
    EXPECT_FALSE(canvas->mSelectionImage);
    EXPECT_TRUE(Pasteboard::general().types().contains("image/tiff"));
}

TEST_F(FloatingCanvas, CopyOfASelectionFloatsItAndIsTransparentOutside)
{
    select(BezierPath::withOvalInRect(makeRect(10, 10, 30, 20)));
    canvas->copy();
    EXPECT_TRUE(canvas->mSelectionImage);
    EXPECT_EQ(takeSounds(), Sounds{"Pop"});
    const auto rep = pasted();
    ASSERT_TRUE(rep);
    ASSERT_EQ(rep->pixelsWide(), 30);
    ASSERT_EQ(rep->pixelsHigh(), 20);
    EXPECT_EQ(rep->view().row(0)[0], 0u);
    EXPECT_EQ(rep->view().row(10)[15], pixel(25, 20));
}

TEST_F(FloatingCanvas, CopyOfATurnedFloatIsTurned)
{
    select(makeRect(20, 20, 16, 10));
    canvas->transform();
    canvas->transform_set(1, 90);
    canvas->copy();
    const auto rep = pasted();
    ASSERT_TRUE(rep);
    ASSERT_EQ(rep->pixelsWide(), 10);
    ASSERT_EQ(rep->pixelsHigh(), 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 10; ++x) ASSERT_EQ(rep->view().row(y)[x], pixel(20 + y, 29 - x));
}

TEST_F(FloatingCanvas, CutLeavesAHoleNoSelectionAndOneSnapshot)
{
    const std::int32_t number = canvas->mUndoIndex;
    const std::uint32_t outside = pixel(9, 9);
    select(makeRect(10, 10, 5, 5));
    canvas->cut();
    EXPECT_FALSE(canvas->mSelectionPath);
    EXPECT_FALSE(canvas->mSelectionImage);
    for (int y = 10; y < 15; ++y)
        for (int x = 10; x < 15; ++x) EXPECT_EQ(pixel(x, y), 0u);
    EXPECT_EQ(pixel(9, 9), outside);
    settle();
    EXPECT_EQ(canvas->mUndoIndex, number + 1);
    EXPECT_EQ(pasted()->pixelsWide(), 5);
}

TEST_F(FloatingCanvas, DeleteNeedsASelection)
{
    const auto before = pixels();
    canvas->deleteSelection();
    EXPECT_EQ(takeSounds(), Sounds{"beep"});
    EXPECT_EQ(pixels(), before);
    select(makeRect(1, 1, 3, 3));
    const std::int32_t number = canvas->mUndoIndex;
    canvas->deleteSelection();
    EXPECT_EQ(pixel(2, 2), 0u);
    EXPECT_TRUE(canvas->mSelectionPath);
    settle();
    EXPECT_EQ(canvas->mUndoIndex, number + 1);
}

TEST_F(FloatingCanvas, PasteFloatsAtTheTopLeft)
{
    putTIFF(10, 10);
    select(makeRect(30, 30, 5, 5));
    canvas->paste();
    ASSERT_TRUE(canvas->mSelectionImage);
    EXPECT_EQ(canvas->mTransformRecord.position, (Point{5, 5}));
    EXPECT_EQ(canvas->mTransformRecord.oldSize, (Size{10, 10}));
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(0, 0, 10, 10));
    EXPECT_EQ(mask(5, 5), 0);
    EXPECT_EQ(mask(32, 32), 255);
    EXPECT_TRUE(canvas->mSelectionTimer);
    canvas->anchorSelection();
    EXPECT_EQ(pixel(9, 9), word(255, 1, 2, 3));
    EXPECT_NE(pixel(10, 10), word(255, 1, 2, 3));
}

TEST_F(FloatingCanvas, APastedImageKeepsItsTransparency)
{
    const std::uint32_t under = pixel(3, 3);
    putTIFF(6, 6, 0);
    canvas->paste();
    canvas->anchorSelection();
    EXPECT_EQ(pixel(3, 3), under);
    fillImage(word(255, 0, 0, 0));
    putTIFF(6, 6, word(128, 128, 0, 64));
    canvas->paste();
    canvas->anchorSelection();
    EXPECT_EQ(pixel(3, 3), word(255, 128, 0, 64));
}

TEST_F(FloatingCanvas, APastedImageLargerThanTheCanvasFloatsWhole)
{
    const auto big = BitmapRep::create(100, 90);
    for (int y = 0; y < 90; ++y)
        for (int x = 0; x < 100; ++x) big->view().row(y)[x] = word(255, x, y, 7);
    Pasteboard::general().setTIFF(encodeTIFF(big->view(), {}));
    canvas->paste();
    EXPECT_EQ(canvas->mSelectionImage->size(), (Size{100, 90}));
    AffineTransform shift;
    shift.translate(-40, -40);
    canvas->mSelectionPath->transform(shift);
    canvas->mTransformRecord.position = canvas->mTransformRecord.position + Point{-40, -40};
    canvas->anchorSelection();
    EXPECT_EQ(pixel(0, 0), word(255, 40, 40, 7));
    EXPECT_EQ(pixel(59, 49), word(255, 99, 89, 7));
}

TEST_F(FloatingCanvas, PicturesOfOtherProgramsPasteToo)
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
        canvas->paste();
        ASSERT_TRUE(canvas->mSelectionImage) << kind;
        EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(0, 0, 7, 5));
        canvas->anchorSelection();
        EXPECT_EQ(pixel(3, 3), word(255, 10, 20, 30)) << kind;
        fillImage(0);
    }
}

TEST_F(FloatingCanvas, UnreadableDataLeavesEverythingAsItIs)
{
    select(makeRect(30, 30, 5, 5));
    canvas->floatSelection();
    const auto floating = canvas->mSelectionImage;
    takeSounds();
    const auto tiff = tiffOf(10, 10, word(255, 1, 2, 3));
    for (std::vector<std::uint8_t> bytes :
         {std::vector<std::uint8_t>{}, std::vector<std::uint8_t>{'I', 'I', 42, 0, 8, 0, 0, 0},
          std::vector<std::uint8_t>(100, 0xAA), std::vector<std::uint8_t>(tiff.begin(), tiff.begin() + 9)}) {
        Pasteboard::general().setTIFF(bytes);
        canvas->paste();
        canvas->pasteInto();
        EXPECT_EQ(canvas->mSelectionImage, floating);
        EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(30, 30, 5, 5));
        EXPECT_FALSE(canvas->mPasteIntoSelectionPath);
        EXPECT_EQ(mask(32, 32), 0);
        EXPECT_TRUE(canvas->mSelectionTimer);
        EXPECT_EQ(takeSounds(), (Sounds{"beep", "beep"}));
    }
}

TEST_F(FloatingCanvas, PasteIntoCentresAndIsCutByTheOldSelection)
{
    makeImage(300, 300);
    putTIFF(10, 10);
    select(makeRect(100, 100, 50, 50));
    canvas->pasteInto();
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(120, 120, 10, 10));
    ASSERT_TRUE(canvas->mPasteIntoSelectionPath);
    EXPECT_EQ(canvas->mPasteIntoSelectionPath->bounds(), makeRect(100, 100, 50, 50));
    EXPECT_EQ(canvas->mTransformRecord.position, (Point{125, 125}));
    AffineTransform shift;
    shift.translate(22, 0);
    canvas->mSelectionPath->transform(shift);
    canvas->mTransformRecord.position.x += 22;
    canvas->anchorSelection();
    EXPECT_EQ(pixel(149, 125), word(255, 1, 2, 3));
    EXPECT_NE(pixel(150, 125), word(255, 1, 2, 3));
    EXPECT_FALSE(canvas->mPasteIntoSelectionPath);
}

TEST_F(FloatingCanvas, PasteIntoWithoutASelectionBeeps)
{
    putTIFF(10, 10);
    canvas->pasteInto();
    EXPECT_EQ(takeSounds(), Sounds{"beep"});
    EXPECT_FALSE(canvas->mSelectionImage);
}

TEST_F(FloatingCanvas, WhatWasCopiedPastesByteForByte)
{
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x) setPixel(x, y, x < 30 ? word(255, x, y, 3) : word(100, x, y, 3));
    canvas->copy();
    const auto before = pixels();
    fillImage(0);
    canvas->paste();
    canvas->anchorSelection();
    EXPECT_EQ(pixels(), before);
}

// ---- crop and clean-up ---------------------------------------------------------------------------------------------

TEST_F(FloatingCanvas, CropBelowFourByFourBeeps)
{
    for (const Rect box : {makeRect(5, 5, 3, 40), makeRect(5, 5, 40, 3), makeRect(5, 5, 3.99f, 10)}) {
        select(box);
        canvas->cropToSelection();
        EXPECT_EQ(takeSounds(), Sounds{"beep"});
        EXPECT_EQ(canvas->imageSize(), (Size{60, 50}));
        EXPECT_TRUE(canvas->mSelectionPath);
    }
    canvas->mSelectionPath.reset();
    canvas->cropToSelection();
    EXPECT_EQ(takeSounds(), Sounds{"beep"});
}

TEST_F(FloatingCanvas, CropTakesTheBoxAndResetsTheSelection)
{
    const std::int32_t number = canvas->mUndoIndex;
    const std::uint32_t corner = pixel(7, 9), last = pixel(10, 12);
    select(makeRect(7, 9, 4, 4));
    canvas->floatSelection();
    canvas->cropToSelection();
    EXPECT_EQ(canvas->imageSize(), (Size{4, 4}));
    EXPECT_EQ(pixel(0, 0), corner);
    EXPECT_EQ(pixel(3, 3), last);
    EXPECT_FALSE(canvas->mSelectionPath);
    EXPECT_FALSE(canvas->mSelectionImage);
    EXPECT_FALSE(canvas->mSelectionTimer);
    ASSERT_TRUE(canvas->mSelectionMask);
    EXPECT_EQ(canvas->mSelectionMask->width, 4);
    EXPECT_EQ(mask(3, 3), 255);
    EXPECT_EQ(canvas->mBitmap, canvas->mBitmapRep->bitmapData());
    ASSERT_TRUE(canvas->mGWorld);
    EXPECT_EQ(canvas->mGWorld->pixels.data, canvas->mBitmap);
    settle();
    EXPECT_EQ(canvas->mUndoIndex, number + 1);
}

TEST_F(FloatingCanvas, CleanUpPasses)
{
    setPixel(0, 0, word(254, 9, 9, 9));
    setPixel(1, 0, word(255, 0, 0, 0));
    setPixel(2, 0, word(255, 255, 0, 255));
    canvas->makeBGBlack();
    EXPECT_EQ(pixel(0, 0), 0u);
    EXPECT_EQ(pixel(1, 0), word(255, 0, 0, 0));
    canvas->magentaClear();
    EXPECT_EQ(pixel(1, 0), 0u);
    EXPECT_EQ(pixel(2, 0), word(255, 255, 0, 255));
}

// ---- watermark -----------------------------------------------------------------------------------------------------

TEST_F(FloatingCanvas, AWatermarkLandsByTheLowerLeftCorner)
{
    const std::string path = temporaryFolder() + "/mark.tiff";
    const auto tiff = tiffOf(6, 4, word(255, 1, 2, 3));
    ASSERT_TRUE(writeFileSafely(path, tiff.data(), tiff.size()));
    canvas->placeWatermark(path, {10, 5}, 1);
    EXPECT_EQ(pixel(10, 50 - 5 - 1), word(255, 1, 2, 3));
    EXPECT_EQ(pixel(15, 50 - 5 - 4), word(255, 1, 2, 3));
    EXPECT_NE(pixel(16, 44), word(255, 1, 2, 3));
    EXPECT_NE(pixel(10, 45), word(255, 1, 2, 3));
}

TEST_F(FloatingCanvas, AMissingWatermarkDrawsNothing)
{
    const auto before = pixels();
    canvas->placeWatermark("", {0, 0}, 1);
    canvas->placeWatermark("/nonexistent/mark.tiff", {0, 0}, 1);
    EXPECT_EQ(pixels(), before);
}
