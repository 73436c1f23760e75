// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's life: defaults, buffers, accessors, the retina flag.
#include "base/Folders.h"
#include "support/CanvasFixture.h"
#include <QAction>
#include <QComboBox>
#include <QSlider>
#include <QSpinBox>
#include <filesystem>
#include <fstream>

using namespace zp;

class CanvasState : public zp::test::CanvasTest
{
};

TEST_F(CanvasState, StartsWithItsDefaults)
{
    EXPECT_FALSE(canvas->imageLoaded());
    EXPECT_EQ(canvas->imageSize(), (Size{0, 0}));
    EXPECT_TRUE(canvas->isFlipped());
    EXPECT_TRUE(canvas->isOpaque());
    EXPECT_EQ(canvas->mColor, kBlack);
    EXPECT_EQ(canvas->mTool, 0);
    EXPECT_EQ(canvas->mSize, 20);
    EXPECT_EQ(canvas->mZoom, 1);
    EXPECT_EQ(canvas->mImagePath, "");
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
    EXPECT_EQ(canvas->mUndoIndex, -1);
    EXPECT_EQ(canvas->mUndoRedoIndex, -1);
    EXPECT_TRUE(canvas->mSelectionMaskClear);
    EXPECT_FALSE(canvas->mTransform);
    EXPECT_EQ(canvas->mTransformMode, -1);
    EXPECT_EQ(canvas->mTransformRecord.scale, 1);
    EXPECT_FALSE(canvas->m2xRetina);
    EXPECT_EQ(canvas->mPath.lineJoin(), LineJoin::Round);
    EXPECT_EQ(canvas->mPath.lineCap(), LineCap::Round);
    EXPECT_GE(sizeof(ZPCanvas), 3'200'000u * 8);
}

TEST_F(CanvasState, RowBytesFollowThePaddingRule)
{
    for (const auto& [width, rowBytes] : {std::pair{16, 128}, {15, 64}, {1, 64}, {17, 128}, {32, 192}, {100, 448}}) {
        makeImage(width, 3);
        EXPECT_EQ(canvas->mBitmapRep->bytesPerRow(), rowBytes) << width;
    }
}

TEST_F(CanvasState, ANewImageIsTransparentAndHasAWorldOverTheSameBytes)
{
    makeImage(20, 10);
    EXPECT_TRUE(canvas->imageLoaded());
    EXPECT_EQ(canvas->imageSize(), (Size{20, 10}));
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(pixel(x, y), 0u);
    ASSERT_TRUE(canvas->mGWorld);
    EXPECT_EQ(canvas->mGWorld->pixels.data, canvas->mBitmapRep->bitmapData());
    EXPECT_EQ(canvas->mGWorld->bounds.right, 20);
    EXPECT_EQ(canvas->mGWorld->bounds.bottom, 10);
    EXPECT_EQ(canvas->mImage->cacheMode(), ImageCacheMode::Default);
    canvas->newImageForMeWithSize({4, 4});
    EXPECT_EQ(canvas->mImage->cacheMode(), ImageCacheMode::Never);
}

TEST_F(CanvasState, ThePhaseOfTheAntsCycles)
{
    for (const float phase : {2.5f, 5.0f, 7.5f, 0.0f, 2.5f}) {
        canvas->selectionTimerFired();
        EXPECT_EQ(canvas->mSelectionPhase, phase);
    }
}

TEST_F(CanvasState, APathWhoseFileIsGoneIsEmptied)
{
    EXPECT_TRUE(canvas->imagePathNil());
    const std::string path = homeFolder() + "/there.tiff";
    std::ofstream(path) << "x";
    canvas->mImagePath = path;
    EXPECT_FALSE(canvas->imagePathNil());
    EXPECT_EQ(canvas->mImagePath, path);
    std::filesystem::remove(path);
    EXPECT_TRUE(canvas->imagePathNil());
    EXPECT_EQ(canvas->mImagePath, "");
}

TEST_F(CanvasState, TheToolPopUpShowsItsOptions)
{
    QComboBox tools, brushes;
    QSlider slider;
    QSpinBox field;
    for (int i = 0; i < 10; ++i) tools.addItem(QString::number(i));
    canvas->mBrushPopUp = &brushes;
    canvas->mToleranceSlider = &slider;
    canvas->mToleranceField = &field;
    for (int i = 0; i < 10; ++i) {
        tools.setCurrentIndex(i);
        canvas->tool(&tools);
        EXPECT_EQ(brushes.isVisibleTo(nullptr), i == 3) << i;
        EXPECT_EQ(slider.isVisibleTo(nullptr), i == 2 || i == 6) << i;
        EXPECT_EQ(field.isVisibleTo(nullptr), i == 2 || i == 6) << i;
    }
    EXPECT_EQ(canvas->mTool, 0) << "the tool itself is stored elsewhere";
    slider.setValue(37);
    canvas->toleranceSlider(&slider);
    EXPECT_EQ(field.value(), 37);
}

TEST_F(CanvasState, TheRetinaFlagIsTheWholeFile)
{
    for (const auto& [contents, on] : {std::pair{"YES", true}, {"YES\n", false}, {"NO", false}, {"", false}}) {
        std::ofstream(resourcePath("2xRetina.txt"), std::ios::trunc) << contents;
        ZPCanvas* fresh = new ZPCanvas;
        QAction item;
        fresh->mRetinaMenuItem = &item;
        fresh->awakeFromNib();
        EXPECT_EQ(fresh->m2xRetina, on) << contents;
        EXPECT_EQ(item.isChecked(), on);
        EXPECT_EQ(fresh->effectiveZoom(), on ? 0.5f : 1.0f);
        delete fresh;
    }
    std::filesystem::remove(resourcePath("2xRetina.txt"));
    auto fresh = std::make_unique<ZPCanvas>();
    fresh->awakeFromNib();
    EXPECT_FALSE(fresh->m2xRetina);
}
