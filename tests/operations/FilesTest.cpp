// SPDX-License-Identifier: GPL-3.0-or-later
/// New images, opening and saving through the canvas.
#include "base/Folders.h"
#include "base/Log.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "support/CanvasFixture.h"
#include <QDesktopServices>
#include <QLabel>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

using namespace zp;

namespace
{

constexpr const char* kComment = "Edited by Zelpane -- simple, yet powerful image editing";

std::string picture(const std::string& name) { return std::string(ZP_TESTDATA) + "/images/" + name; }

/// Answers every alert that comes up while it lives with its first button, and remembers it.
class AlertWatch
{
public:
    AlertWatch()
    {
        QObject::connect(&mTimer, &QTimer::timeout, [this] {
            if (const auto alert = currentAlert()) {
                seen.push_back(*alert);
                answerAlert(alert->buttons[0]);
            }
        });
        mTimer.start(5);
    }
    std::vector<AlertState> seen;

private:
    QTimer mTimer;
};

class Files : public zp::test::CanvasTest
{
protected:
    Files()
    {
        createFolder(mFolder);
        takeLogLines();
        takeSounds();
    }
    ~Files() override
    {
        settle();
        removeItem(mFolder);
    }
    std::string at(const std::string& name) const { return mFolder + "/" + name; }
    std::string copyOf(const std::string& original, const std::string& name)
    {
        EXPECT_TRUE(copyItem(picture(original), at(name)));
        return at(name);
    }
    bool logged(const std::string& beginning)
    {
        for (const std::string& line : takeLogLines()) mLog.push_back(line);
        return std::any_of(mLog.begin(), mLog.end(), [&](const std::string& l) { return l.starts_with(beginning); });
    }
    static bool beeped()
    {
        const auto sounds = takeSounds();
        return std::count(sounds.begin(), sounds.end(), "beep") > 0;
    }
    std::string mFolder = temporaryFolder() + "/files";
    std::vector<std::string> mLog;
};

TEST_F(Files, ANewImageIsTransparentAndMarked)
{
    makeImage(40, 30);
    EXPECT_TRUE(canvas->imageLoaded());
    EXPECT_EQ(canvas->imageSize(), (Size{40, 30}));
    EXPECT_EQ(pixel(0, 0), 0u);
    EXPECT_EQ(pixel(39, 29), 0u);
    EXPECT_EQ(canvas->mBitmap, nullptr); // the new-image path does not set it
    EXPECT_TRUE(canvas->mGWorld);
    EXPECT_EQ(canvas->mImage->cacheMode(), ImageCacheMode::Default);
    EXPECT_EQ(canvas->mBitmapRep->properties.userComment, kComment);
    EXPECT_TRUE(logged("newExif: "));
    EXPECT_EQ(canvas->mUndoIndex, 0); // the first snapshot
}

TEST_F(Files, AnInternalImageLeavesUndoAlone)
{
    makeImage(20, 20);
    const auto index = canvas->mUndoIndex;
    takeLogLines();
    mLog.clear();
    canvas->newImageForMeWithSize({10, 5});
    EXPECT_EQ(canvas->imageSize(), (Size{10, 5}));
    EXPECT_EQ(canvas->mImage->cacheMode(), ImageCacheMode::Never);
    EXPECT_EQ(canvas->mUndoIndex, index);
    EXPECT_TRUE(canvas->mBitmapRep->properties.userComment.empty());
    EXPECT_FALSE(logged("newExif"));
}

TEST_F(Files, NewImagesDropTheSelectionAndKeepThePath)
{
    makeImage(20, 20);
    canvas->mImagePath = "/kept";
    canvas->selectAll();
    canvas->floatSelection();
    canvas->newImageWithSize({8, 8});
    EXPECT_TRUE(canvas->selectionNil());
    EXPECT_TRUE(canvas->selectionImageNil());
    EXPECT_FALSE(canvas->mSelectionTimer);
    EXPECT_EQ(canvas->mSelectionMask->width, 8);
    EXPECT_EQ(canvas->mImagePath, "/kept");
}

TEST_F(Files, OpeningReadsPixelsAndDefersTheSnapshot)
{
    const std::string path = copyOf("made/exif/orientation-6.tif", "turned.tif");
    makeImage(5, 5);
    canvas->selectAll();
    QLabel info("old");
    canvas->mInfoField = &info;
    canvas->setImagePath(path);
    EXPECT_EQ(canvas->mImagePath, path);
    EXPECT_EQ(canvas->mOpenedPath, path);
    EXPECT_EQ(canvas->imageSize(), (Size{160, 96}));
    EXPECT_FALSE(canvas->mGWorld);
    EXPECT_EQ(canvas->mBitmap, canvas->mBitmapRep->bitmapData());
    EXPECT_EQ(canvas->mImage->cacheMode(), ImageCacheMode::Never);
    EXPECT_TRUE(canvas->selectionNil());
    EXPECT_EQ(info.text(), "");
    EXPECT_EQ(canvas->mUndoIndex, -1);
    EXPECT_TRUE(canvas->snapshotTimerPending());
    settle();
    EXPECT_EQ(canvas->mUndoIndex, 0);
    const auto chart = importImageFile(picture("made/exif/chart-upright.ppm")).bitmap;
    for (int y = 0; y < 96; ++y)
        EXPECT_EQ(std::memcmp(canvas->mBitmapRep->view().rowData(y), chart->view().rowData(y), 640), 0);
}

TEST_F(Files, OpeningKeepsAFloatingImageAsNewOnesDoNot)
{
    makeImage(20, 20);
    canvas->selectAll();
    canvas->floatSelection();
    ASSERT_FALSE(canvas->selectionImageNil());
    canvas->openIt(picture("made/valid/base.png"));
    EXPECT_FALSE(canvas->selectionImageNil());
}

TEST_F(Files, TildeIsTheHomeFolder)
{
    ASSERT_TRUE(copyItem(picture("made/valid/base.png"), homeFolder() + "/tilde.png"));
    canvas->openIt("~/tilde.png");
    EXPECT_EQ(canvas->imageSize(), (Size{64, 36}));
}

TEST_F(Files, AnEmptyPathOpensNothing)
{
    makeImage(10, 10);
    canvas->setImagePath("");
    EXPECT_EQ(canvas->mImagePath, "");
    EXPECT_EQ(canvas->imageSize(), (Size{10, 10}));
}

TEST_F(Files, AFileThatIsNoPictureEmptiesTheImageAndIsToldOnce)
{
    ASSERT_TRUE(writeFileSafely(at("text.jpg"), "hello", 5));
    makeImage(10, 10);
    AlertWatch watch;
    canvas->setImagePath(at("text.jpg"));
    EXPECT_FALSE(canvas->imageLoaded());
    EXPECT_FALSE(canvas->lastFileError().empty());
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The file could not be opened.");
    EXPECT_TRUE(watch.seen[0].message.contains("text.jpg"));
    EXPECT_TRUE(watch.seen[0].message.contains(QString::fromStdString(canvas->lastFileError())));

    const SilencedPanels silence;
    canvas->setImagePath(at("text.jpg"));
    EXPECT_EQ(watch.seen.size(), 1u);
    canvas->setImagePath(picture("made/valid/base.png"));
    EXPECT_TRUE(canvas->lastFileError().empty());
}

TEST_F(Files, NothingIsSavedOverAFileThatCouldNotBeOpened)
{
    ASSERT_TRUE(writeFileSafely(at("text.jpg"), "hello", 5));
    AlertWatch watch;
    canvas->setImagePath(at("text.jpg"));
    canvas->saveImage();
    EXPECT_EQ(readWholeFile(at("text.jpg")), "hello");
    EXPECT_EQ(watch.seen.size(), 2u);
}

TEST_F(Files, SavingWithoutAFileBeeps)
{
    makeImage(10, 10);
    canvas->saveImage();
    EXPECT_TRUE(beeped());
}

TEST_F(Files, SavingWritesTheReplacedExtensionAndKeepsTheOpenedName)
{
    struct Case {
        const char *source, *name, *written;
    };
    for (const Case& c :
         {Case{"made/valid/base.jpg", "a.JPG", "a.jpg"}, Case{"made/valid/base.tif", "scan.tif", "scan.tiff"},
          Case{"made/valid/base.png", "icon.png", "icon.png"}, Case{"made/valid/base.jpg", "b.jpg", "b.jpg"}}) {
        const std::string path = copyOf(c.source, c.name);
        const auto before = fileAttributes(path);
        canvas->setImagePath(path);
        canvas->saveImage();
        EXPECT_EQ(canvas->mImagePath, path);
        EXPECT_TRUE(importImageFile(at(c.written)).bitmap) << c.written;
        if (std::string(c.name) != c.written) {
            EXPECT_EQ(fileAttributes(path)->size, before->size);
        }
        EXPECT_EQ(importImageFile(at(c.written)).bitmap->properties.userComment, kComment);
        settle();
    }
}

TEST_F(Files, OtherExtensionsAreNeitherWrittenNorSpokenOf)
{
    makeImage(10, 10);
    AlertWatch watch;
    for (const char* name : {"a.jpeg", "a.TIF", "a.PNG", "a.gif", "a"}) {
        canvas->mImagePath = at(name);
        canvas->saveImage();
    }
    EXPECT_TRUE(contentsOfFolder(mFolder).empty());
    EXPECT_TRUE(watch.seen.empty());
    EXPECT_FALSE(beeped());
}

TEST_F(Files, PhotoshopFilesOpenAndAreNotSaved)
{
    const std::string path = copyOf("made/valid/base.psd", "layers.psd");
    canvas->setImagePath(path);
    EXPECT_EQ(canvas->imageSize(), (Size{64, 36}));
    const auto before = readWholeFile(path);
    AlertWatch watch;
    canvas->saveImage();
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "Cannot save PSD file (Photoshop file)");
    EXPECT_EQ(watch.seen[0].message, "Choose 'File' > 'Save as TIFF…' or 'File' > 'Save as JPEG…' to save the image in "
                                     "another image format.");
    EXPECT_EQ(watch.seen[0].buttons, QStringList{"OK"});
    EXPECT_EQ(readWholeFile(path), before);
}

TEST_F(Files, TransparentAreasAreWhiteInJPEG)
{
    makeImage(32, 32);
    canvas->saveImageAsJPEG(at("white.jpg"));
    EXPECT_EQ(canvas->mImagePath, at("white.jpg"));
    const auto saved = importImageFile(at("white.jpg")).bitmap;
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->view().row(16)[16], 0xFFFFFFFFu);
}

TEST_F(Files, TheSavePanelProposesAndItsChoiceIsKept)
{
    makeImage(16, 16);
    setPanelsAutomated(true);
    queuePanelChoice(at("chosen.png"));
    canvas->saveImageAsTIFF();
    ASSERT_TRUE(lastPanel());
    EXPECT_EQ(lastPanel()->kind, "save");
    EXPECT_EQ(lastPanel()->directory, homeFolder() + "/Pictures");
    EXPECT_EQ(lastPanel()->name, "My Great Image.tiff");
    EXPECT_EQ(lastPanel()->types, QStringList{"tiff"});
    EXPECT_EQ(canvas->mImagePath, at("chosen.png")); // as chosen; the file has the extension of what is in it
    EXPECT_TRUE(fileExists(at("chosen.tiff")));
    EXPECT_FALSE(fileExists(at("chosen.png")));

    queuePanelChoice(std::nullopt);
    canvas->saveImageAsJPEG();
    EXPECT_EQ(lastPanel()->directory, mFolder);
    EXPECT_EQ(lastPanel()->name, "chosen.jpg");
    EXPECT_EQ(canvas->mImagePath, at("chosen.png"));
    setPanelsAutomated(false);
}

TEST_F(Files, SavingToAPathLogsTheTime)
{
    makeImage(16, 16);
    canvas->saveImageToPath(at("timed.jpg"));
    EXPECT_TRUE(fileExists(at("timed.tiff")));
    EXPECT_EQ(canvas->mImagePath, at("timed.jpg"));
    EXPECT_TRUE(logged("elapsed time: 0."));
}

TEST_F(Files, SavingToAnEmptyPathAsks)
{
    makeImage(16, 16);
    setPanelsAutomated(true);
    canvas->saveImageToPath(""); // nothing queued: cancelled
    EXPECT_EQ(canvas->mImagePath, "");
    queuePanelChoice(at("asked"));
    canvas->saveImageToPath("");
    EXPECT_TRUE(fileExists(at("asked.tiff")));
    setPanelsAutomated(false);
}

TEST_F(Files, QuickSaveWritesTIFFToExactlyThePath)
{
    makeImage(16, 16);
    setPixel(3, 4, test::word(255, 10, 20, 30));
    canvas->quickSave(at("exact.name"));
    EXPECT_EQ(canvas->mImagePath, at("exact.name"));
    const auto saved = importImageFile(at("exact.name")).bitmap;
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->view().row(4)[3], test::word(255, 10, 20, 30));
}

TEST_F(Files, AFailedSaveIsToldAndLosesNothing)
{
    const std::string path = copyOf("made/valid/base.png", "kept.png");
    canvas->setImagePath(path);
    const auto before = readWholeFile(path);
    AlertWatch watch;
    canvas->saveImageAsTIFF(at("missing folder/x.tiff"));
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The file could not be saved.");
    EXPECT_EQ(canvas->mImagePath, path);
    EXPECT_TRUE(canvas->imageLoaded());
    EXPECT_FALSE(canvas->lastFileError().empty());
    EXPECT_EQ(readWholeFile(path), before);
    EXPECT_EQ(contentsOfFolder(mFolder).size(), 1u); // and nothing half-written stays
}

TEST_F(Files, SavingOverALinkWritesItsTarget)
{
    const std::string path = copyOf("made/valid/base.png", "target.png");
    ASSERT_EQ(symlink("target.png", at("link.png").c_str()), 0);
    canvas->setImagePath(at("link.png"));
    setPixel(0, 0, test::word(255, 1, 2, 3));
    canvas->saveImage();
    EXPECT_TRUE(fileAttributes(at("link.png"))->link);
    EXPECT_EQ(importImageFile(path).bitmap->view().row(0)[0], test::word(255, 1, 2, 3));
}

TEST_F(Files, PropertiesSurviveEditing)
{
    canvas->setImagePath(picture("photos/tahoe-gps.jpg"));
    settle();
    canvas->rotateCW();
    settle();
    canvas->flipH();
    settle();
    canvas->setImageSize({60, 80}, true);
    settle();
    canvas->saveImageAsJPEG(at("edited.jpg"));
    const auto saved = importImageFile(at("edited.jpg")).bitmap;
    ASSERT_TRUE(saved);
    const auto block = codec::parseExif(saved->properties.exif);
    ASSERT_TRUE(block);
    EXPECT_FALSE(block->gps.empty());
    EXPECT_EQ(block->number(block->photo, codec::tag::PixelXDimension), 60u);
    EXPECT_EQ(saved->properties.userComment, kComment);
}

TEST_F(Files, WhatAReducedPictureLosesIsSaidOnSaving)
{
    const std::string path = copyOf("made/png/ramp16-fine.png", "deep.png");
    QLabel info;
    canvas->mInfoField = &info;
    canvas->setImagePath(path);
    canvas->saveImage();
    EXPECT_TRUE(info.text().contains("16 bits"));
    EXPECT_TRUE(logged("saved with losses: "));
}

TEST_F(Files, NamesOfAnyBytesOpenAndSave)
{
    const std::string path = copyOf("made/valid/base.png", "\xFF\xFE line\nend %s.png");
    canvas->setImagePath(path);
    EXPECT_TRUE(canvas->imageLoaded());
    setPixel(0, 0, test::word(255, 9, 9, 9));
    canvas->saveImage();
    EXPECT_EQ(importImageFile(path).bitmap->view().row(0)[0], test::word(255, 9, 9, 9));
}

TEST_F(Files, TheViewerIsAskedForImagesWithAFileOnly)
{
    QTextBrowser viewer; // any object with a slot for an address
    QDesktopServices::setUrlHandler("file", &viewer, "setSource");
    makeImage(10, 10);
    canvas->openWithPreview();
    EXPECT_TRUE(beeped());
    EXPECT_TRUE(viewer.source().isEmpty());
    const std::string path = copyOf("made/valid/base.png", "viewed.png");
    canvas->setImagePath(path);
    canvas->openWithPreview();
    EXPECT_EQ(viewer.source().toLocalFile().toStdString(), path);
    QDesktopServices::unsetUrlHandler("file");
}

TEST_F(Files, OpeningWhileASnapshotIsWrittenWaitsForIt)
{
    for (int i = 0; i < 5; ++i) {
        canvas->newImageWithSize({400, 300});
        canvas->setImagePath(picture("made/valid/base.png"));
        EXPECT_EQ(canvas->imageSize(), (Size{64, 36}));
    }
}

} // namespace
