// SPDX-License-Identifier: GPL-3.0-or-later
/// What a document begins with, and its picture in its three forms.
#include "base/Folders.h"
#include "support/DocumentFixture.h"

using namespace zp;

namespace
{

class DocumentState : public zp::test::DocumentTest
{
};

TEST_F(DocumentState, StartsWithItsDefaults)
{
    EXPECT_FALSE(picture().isLoaded());
    EXPECT_EQ(picture().size(), (Size{0, 0}));
    EXPECT_EQ(picture().path(), "");
    EXPECT_EQ(paint().color(), kBlack);
    EXPECT_EQ(paint().size(), 20);
    EXPECT_EQ(gesture().tool(), Tool::Rectangle);
    EXPECT_FALSE(gesture().isMouseDown());
    EXPECT_TRUE(gesture().stroke().isDrawn());
    EXPECT_EQ(gesture().stroke().capacity(), 3'200'000u);
    EXPECT_EQ(document->view().zoom(), 1);
    EXPECT_FALSE(document->view().isRetina());
    expectNumbers(-1, -1);
    EXPECT_TRUE(selection().isNil());
    EXPECT_TRUE(selection().mask().isClear());
    EXPECT_FALSE(selection().isTransforming());
    EXPECT_EQ(selection().transformMode(), -1);
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(document->unusedFields().mPath.lineJoin(), LineJoin::Round);
    EXPECT_EQ(document->unusedFields().mPath.lineCap(), LineCap::Round);
    EXPECT_EQ(document->infoText(), "");
}

TEST_F(DocumentState, RowBytesFollowThePaddingRule)
{
    for (const auto& [width, rowBytes] : {std::pair{16, 128}, {15, 64}, {1, 64}, {17, 128}, {32, 192}, {100, 448}}) {
        makeImage(width, 3);
        EXPECT_EQ(picture().bitmap()->bytesPerRow(), rowBytes) << width;
    }
}

TEST_F(DocumentState, ANewImageIsTransparentAndHasAWorldOverTheSameBytes)
{
    makeImage(20, 10);
    EXPECT_TRUE(picture().isLoaded());
    EXPECT_EQ(picture().size(), (Size{20, 10}));
    EXPECT_EQ(countPixels(0), 200u);
    ASSERT_TRUE(picture().gworld());
    EXPECT_EQ(picture().gworld()->pixels.data, picture().bitmap()->bitmapData());
    EXPECT_EQ(picture().gworld()->bounds.right, 20);
    EXPECT_EQ(picture().gworld()->bounds.bottom, 10);
    EXPECT_EQ(picture().image().cacheMode(), ImageCacheMode::Default);
    performNumbers("newImageForMeWithSize:", {4, 4});
    EXPECT_EQ(picture().image().cacheMode(), ImageCacheMode::Never);
}

TEST_F(DocumentState, WhoeverReplacesOrRestoresMakesAnotherGeneration)
{
    makeImage(20, 10);
    const auto rises = [this](auto&& change) {
        const std::uint64_t before = picture().generation();
        change();
        return picture().generation() > before;
    };
    EXPECT_TRUE(rises([this] { performNumbers("newImageForMeWithSize:", {20, 10}); }));
    EXPECT_TRUE(rises([this] { makeImage(20, 10); }));
    EXPECT_FALSE(rises([this] { fillImage(zp::test::kWhiteWord); }));
    EXPECT_TRUE(rises([this] { perform("flipH:"); }));
    EXPECT_TRUE(rises([this] { perform("undo:"); }));
}

TEST_F(DocumentState, APathWhoseFileIsGoneIsEmptied)
{
    const auto forget = [this] {
        bool missing = false;
        edit([&missing](Edit& e) { missing = e.picture().forgetMissingFile(); });
        return missing;
    };
    EXPECT_TRUE(forget());
    const std::string path = homeFolder() + "/there.tiff";
    ASSERT_TRUE(writeFileSafely(path, "x", 1));
    edit([&path](Edit& e) { e.picture().setPath(path); });
    EXPECT_FALSE(forget());
    EXPECT_EQ(picture().path(), path);
    removeItem(path);
    EXPECT_TRUE(forget());
    EXPECT_EQ(picture().path(), "");
}

TEST_F(DocumentState, SizesAndZoomsThatAreNoneAreIgnored)
{
    for (const float wrong : {0.0f, -3.0f, float(INFINITY), float(NAN)}) {
        document->setBrushSize(wrong);
        document->setZoom(wrong);
        EXPECT_EQ(paint().size(), 20);
        EXPECT_EQ(document->view().zoom(), 1);
    }
}

} // namespace
