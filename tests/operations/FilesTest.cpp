// SPDX-License-Identifier: GPL-3.0-or-later
/// New images, opening and saving.
#include "operations/Files.h"
#include "base/Folders.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "support/AlertWatch.h"
#include "support/DocumentFixture.h"
#include "support/Samples.h"
#include <unistd.h>

using namespace zp;
using zp::test::sample;

namespace
{

constexpr const char* kComment = "Edited by Zelpane -- simple, yet powerful image editing";

class Files : public zp::test::DocumentTest
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
        EXPECT_TRUE(copyItem(sample(original), at(name)));
        return at(name);
    }
    bool logged(const std::string& beginning)
    {
        for (const std::string& line : takeLogLines()) mLog.push_back(line);
        return std::any_of(mLog.begin(), mLog.end(), [&](const std::string& l) { return l.starts_with(beginning); });
    }
    static bool beeped() { return zp::test::has(takeSounds(), "beep"); }
    Outcome open(const std::string& path) { return performPath("setImagePath:", path); }
    const ImageProperties& properties() const { return picture().bitmap()->properties; }
    std::string mFolder = temporaryFolder() + "/files";
    std::vector<std::string> mLog;
};

TEST_F(Files, ANewImageIsTransparentAndMarked)
{
    makeImage(40, 30);
    EXPECT_TRUE(picture().isLoaded());
    EXPECT_EQ(picture().size(), (Size{40, 30}));
    EXPECT_EQ(pixel(0, 0), 0u);
    EXPECT_EQ(pixel(39, 29), 0u);
    EXPECT_EQ(picture().bitmapPointer(), nullptr); // the new-image path does not set it
    EXPECT_TRUE(picture().gworld());
    EXPECT_EQ(picture().image().cacheMode(), ImageCacheMode::Default);
    EXPECT_EQ(properties().userComment, kComment);
    EXPECT_TRUE(logged("newExif: "));
    EXPECT_EQ(history().newest(), 0); // the first snapshot
}

TEST_F(Files, AnInternalImageLeavesUndoAlone)
{
    makeImage(20, 20);
    const auto index = history().newest();
    takeLogLines();
    mLog.clear();
    performNumbers("newImageForMeWithSize:", {10, 5});
    EXPECT_EQ(picture().size(), (Size{10, 5}));
    EXPECT_EQ(picture().image().cacheMode(), ImageCacheMode::Never);
    EXPECT_EQ(history().newest(), index);
    EXPECT_TRUE(properties().userComment.empty());
    EXPECT_FALSE(logged("newExif"));
}

TEST_F(Files, NewImagesDropTheSelectionAndKeepThePath)
{
    makeImage(20, 20);
    edit([](Edit& e) { e.picture().setPath("/kept"); });
    perform("selectAll:");
    perform("floatSelection");
    performNumbers("newImageWithSize:", {8, 8});
    EXPECT_TRUE(selection().isNil());
    EXPECT_FALSE(floating());
    EXPECT_FALSE(selection().antsMarch());
    EXPECT_EQ(selection().mask().width(), 8);
    EXPECT_EQ(picture().path(), "/kept");
}

TEST_F(Files, OpeningReadsPixelsAndDefersTheSnapshot)
{
    const std::string path = copyOf("made/exif/orientation-6.tif", "turned.tif");
    makeImage(5, 5);
    perform("selectAll:");
    EXPECT_EQ(document->infoText(), "{{0, 0}, {5, 5}}");
    open(path);
    EXPECT_EQ(picture().path(), path);
    EXPECT_EQ(picture().size(), (Size{160, 96}));
    EXPECT_FALSE(picture().gworld());
    EXPECT_EQ(picture().bitmapPointer(), picture().bitmap()->bitmapData());
    EXPECT_EQ(picture().image().cacheMode(), ImageCacheMode::Never);
    EXPECT_TRUE(selection().isNil());
    EXPECT_EQ(document->infoText(), "");
    EXPECT_EQ(history().newest(), -1);
    EXPECT_TRUE(document->firstStepPending());
    settle();
    EXPECT_EQ(history().newest(), 0);
    const auto chart = importImageFile(sample("made/exif/chart-upright.ppm")).bitmap;
    for (int y = 0; y < 96; ++y)
        EXPECT_EQ(std::memcmp(picture().pixels().rowData(y), chart->view().rowData(y), 640), 0);
}

TEST_F(Files, OpeningEndsWhatFloats)
{
    makeImage(20, 20);
    perform("selectAll:");
    perform("floatSelection");
    ASSERT_TRUE(floating());
    open(sample("made/valid/base.png"));
    EXPECT_FALSE(floating());
    EXPECT_TRUE(selection().isNil());
}

TEST_F(Files, TildeIsTheHomeFolder)
{
    ASSERT_TRUE(copyItem(sample("made/valid/base.png"), homeFolder() + "/tilde.png"));
    open("~/tilde.png");
    EXPECT_EQ(picture().size(), (Size{64, 36}));
}

TEST_F(Files, AnEmptyPathOpensNothing)
{
    makeImage(10, 10);
    open("");
    EXPECT_EQ(picture().path(), "");
    EXPECT_EQ(picture().size(), (Size{10, 10}));
}

TEST_F(Files, AFileThatIsNoPictureEmptiesTheImageAndIsToldOnce)
{
    ASSERT_TRUE(writeFileSafely(at("text.jpg"), "hello", 5));
    makeImage(10, 10);
    zp::test::AlertWatch watch;
    open(at("text.jpg"));
    EXPECT_FALSE(picture().isLoaded());
    EXPECT_FALSE(document->lastFileError().empty());
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The file could not be opened.");
    EXPECT_TRUE(watch.seen[0].message.contains("text.jpg"));
    EXPECT_TRUE(watch.seen[0].message.contains(QString::fromStdString(document->lastFileError())));

    const SilencedPanels silence;
    open(at("text.jpg"));
    EXPECT_EQ(watch.seen.size(), 1u);
    open(sample("made/valid/base.png"));
    EXPECT_TRUE(document->lastFileError().empty());
}

TEST_F(Files, NothingIsSavedOverAFileThatCouldNotBeOpened)
{
    ASSERT_TRUE(writeFileSafely(at("text.jpg"), "hello", 5));
    zp::test::AlertWatch watch;
    open(at("text.jpg"));
    perform("save:");
    EXPECT_EQ(readWholeFile(at("text.jpg")), "hello");
    EXPECT_EQ(watch.seen.size(), 2u);
}

TEST_F(Files, SavingWithoutAFileBeeps)
{
    makeImage(10, 10);
    perform("save:");
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
        open(path);
        perform("save:");
        EXPECT_EQ(picture().path(), path);
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
    const std::vector<std::string> names{"a", "a.PNG", "a.TIF", "a.gif", "a.jpeg"};
    zp::test::AlertWatch watch;
    for (const std::string& name : names) {
        ASSERT_TRUE(writeFileSafely(at(name), "mine", 4));
        edit([&](Edit& e) { e.picture().setPath(at(name)); });
        EXPECT_TRUE(perform("save:"));
        EXPECT_EQ(readWholeFile(at(name)), "mine") << name;
    }
    EXPECT_EQ(contentsOfFolder(mFolder).size(), names.size());
    EXPECT_TRUE(watch.seen.empty());
    EXPECT_FALSE(beeped());
}

TEST_F(Files, PhotoshopFilesOpenAndAreNotSaved)
{
    const std::string path = copyOf("made/valid/base.psd", "layers.psd");
    open(path);
    EXPECT_EQ(picture().size(), (Size{64, 36}));
    const auto before = readWholeFile(path);
    zp::test::AlertWatch watch;
    perform("save:");
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
    performPath("saveImageAsJPEG:", at("white.jpg"));
    EXPECT_EQ(picture().path(), at("white.jpg"));
    const auto saved = importImageFile(at("white.jpg")).bitmap;
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->view().row(16)[16], 0xFFFFFFFFu);
}

TEST_F(Files, TheSavePanelProposesAndItsChoiceIsKept)
{
    makeImage(16, 16);
    setPanelsAutomated(true);
    queuePanelChoice(at("chosen.png"));
    saveThroughPanel(*document, SaveFormat::TIFF);
    ASSERT_TRUE(lastPanel());
    EXPECT_EQ(lastPanel()->kind, "save");
    EXPECT_EQ(lastPanel()->directory, homeFolder() + "/Pictures");
    EXPECT_EQ(lastPanel()->name, "My Great Image.tiff");
    EXPECT_EQ(lastPanel()->types, QStringList{"tiff"});
    EXPECT_EQ(picture().path(), at("chosen.tiff")) << "what is written is what is stored";
    EXPECT_TRUE(fileExists(at("chosen.tiff")));
    EXPECT_FALSE(fileExists(at("chosen.png")));

    queuePanelChoice(std::nullopt);
    saveThroughPanel(*document, SaveFormat::JPEG);
    EXPECT_EQ(lastPanel()->directory, mFolder);
    EXPECT_EQ(lastPanel()->name, "chosen.jpg");
    EXPECT_EQ(lastPanel()->quality, 70);
    EXPECT_EQ(picture().path(), at("chosen.tiff"));
    setPanelsAutomated(false);
}

// ---- what is asked before a file is written over --------------------------------------------------------------------

class Overwriting : public Files
{
protected:
    /// Performs @p command and answers its alerts. @return their titles
    QStringList ask(const char* command, const QStringList& answers)
    {
        zp::test::AlertWatch watch;
        watch.answers = answers;
        perform(command);
        QStringList titles;
        for (const AlertState& alert : watch.seen) titles << alert.title;
        return titles;
    }
};

const QString kExists = "File already exists", kChanged = "The file was changed since it was opened.",
              kMore = "The file holds more than the image.";

TEST_F(Overwriting, AnotherFileThanTheOpenedOneIsAskedAbout)
{
    open(copyOf("made/valid/base.jpg", "photo.JPG"));
    ASSERT_TRUE(writeFileSafely(at("photo.jpg"), "mine", 4));
    EXPECT_EQ(ask("save:", {"No"}), QStringList{kExists});
    EXPECT_EQ(readWholeFile(at("photo.jpg")), "mine");
    EXPECT_EQ(ask("save:", {"Yes"}), QStringList{kExists});
    EXPECT_TRUE(importImageFile(at("photo.jpg")).bitmap);
    EXPECT_EQ(picture().path(), at("photo.JPG"));
    EXPECT_EQ(ask("save:", {}), QStringList()) << "it is the picture's own now";
}

TEST_F(Overwriting, AFileThatSomebodyChangedIsAskedAbout)
{
    const std::string path = copyOf("made/valid/base.png", "shared.png");
    open(path);
    EXPECT_EQ(ask("save:", {}), QStringList());
    EXPECT_EQ(ask("save:", {}), QStringList()) << "saving is no change by somebody else";
    ASSERT_TRUE(writeFileSafely(path, "theirs", 6));
    EXPECT_EQ(ask("save:", {"No"}), QStringList{kChanged});
    EXPECT_EQ(readWholeFile(path), "theirs");
    EXPECT_EQ(ask("save:", {"Yes"}), QStringList{kChanged});
    EXPECT_TRUE(importImageFile(path).bitmap);
}

TEST_F(Overwriting, OneFileUnderTwoNamesIsNoOther)
{
    const std::string path = copyOf("made/valid/base.jpg", "photo.JPG");
    open(path);
    ASSERT_EQ(::link(path.c_str(), at("photo.jpg").c_str()), 0);
    EXPECT_EQ(ask("save:", {}), QStringList());
}

TEST_F(Overwriting, ThePanelsNameIsAskedAboutWhenItIsNotTheTypedOne)
{
    makeImage(8, 8);
    setPanelsAutomated(true);
    struct Case {
        SaveFormat format;
        const char *typed, *written;
    };
    for (const Case& c : {Case{SaveFormat::JPEG, "photo.jpeg", "photo.jpg"},
                          {SaveFormat::JPEG, "keep.tiff", "keep.jpg"},
                          {SaveFormat::TIFF, "Version 2.5", "Version 2.5.tiff"},
                          {SaveFormat::PNG, "a.PNG", "a.png"}}) {
        for (const bool exists : {false, true}) {
            zp::test::AlertWatch watch;
            watch.answers = {"Yes"};
            queuePanelChoice(at(c.typed));
            EXPECT_TRUE(saveThroughPanel(*document, c.format)) << c.typed;
            EXPECT_EQ(watch.seen.size(), exists ? 1u : 0u) << c.typed;
            EXPECT_EQ(picture().path(), at(c.written));
            EXPECT_TRUE(fileExists(at(c.written)));
            EXPECT_FALSE(fileExists(at(c.typed)));
        }
        zp::test::AlertWatch watch;
        watch.answers = {"No"}; // and the panel comes again, with nothing queued
        queuePanelChoice(at(c.typed));
        EXPECT_FALSE(saveThroughPanel(*document, c.format));
        queuePanelChoice(at(c.written));
        EXPECT_TRUE(saveThroughPanel(*document, c.format)) << "the panel itself has asked";
        EXPECT_EQ(watch.seen.size(), 1u);
    }
    setPanelsAutomated(false);
}

TEST_F(Overwriting, AChosenQualityIsThatFilesFromThenOn)
{
    open(copyOf("photos/tahoe-gps.jpg", "photo.jpg"));
    settle();
    const auto size = [this](const char* name) { return fileAttributes(at(name))->size; };
    perform("saveImageAsJPEG:", {{95}, at("fine.jpg")});
    const auto fine = size("fine.jpg");
    performPath("saveImageAsJPEG:", at("plain.jpg"));
    EXPECT_LT(size("plain.jpg") * 3, fine * 2);
    perform("saveImageAsJPEG:", {{95}, at("fine.jpg")});
    perform("save:");
    EXPECT_EQ(size("fine.jpg"), fine);
}

TEST_F(Files, SavingToAPathLogsTheTime)
{
    makeImage(16, 16);
    performPath("saveImageToPath:", at("timed.jpg"));
    EXPECT_TRUE(fileExists(at("timed.tiff")));
    EXPECT_EQ(picture().path(), at("timed.jpg"));
    EXPECT_TRUE(logged("elapsed time: 0."));
}

TEST_F(Files, SavingToAnEmptyPathAsks)
{
    makeImage(16, 16);
    setPanelsAutomated(true);
    performPath("saveImageToPath:", ""); // nothing queued: cancelled
    EXPECT_EQ(picture().path(), "");
    queuePanelChoice(at("asked"));
    performPath("saveImageToPath:", "");
    EXPECT_TRUE(fileExists(at("asked.tiff")));
    setPanelsAutomated(false);
}

TEST_F(Files, QuickSaveWritesTIFFToExactlyThePath)
{
    makeImage(16, 16);
    setPixel(3, 4, test::word(255, 10, 20, 30));
    performPath("quickSave:", at("exact.name"));
    EXPECT_EQ(picture().path(), at("exact.name"));
    const auto saved = importImageFile(at("exact.name")).bitmap;
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->view().row(4)[3], test::word(255, 10, 20, 30));
}

TEST_F(Files, AFailedSaveIsToldAndLosesNothing)
{
    const std::string path = copyOf("made/valid/base.png", "kept.png");
    open(path);
    const auto before = readWholeFile(path);
    zp::test::AlertWatch watch;
    performPath("saveImageAsTIFF:", at("missing folder/x.tiff"));
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The file could not be saved.");
    EXPECT_EQ(picture().path(), path);
    EXPECT_TRUE(picture().isLoaded());
    EXPECT_FALSE(document->lastFileError().empty());
    EXPECT_EQ(readWholeFile(path), before);
    EXPECT_EQ(contentsOfFolder(mFolder).size(), 1u); // and nothing half-written stays
}

TEST_F(Files, SavingOverALinkWritesItsTarget)
{
    const std::string path = copyOf("made/valid/base.png", "target.png");
    ASSERT_EQ(symlink("target.png", at("link.png").c_str()), 0);
    open(at("link.png"));
    setPixel(0, 0, test::word(255, 1, 2, 3));
    perform("save:");
    EXPECT_TRUE(fileAttributes(at("link.png"))->link);
    EXPECT_EQ(importImageFile(path).bitmap->view().row(0)[0], test::word(255, 1, 2, 3));
}

TEST_F(Files, PropertiesSurviveEditing)
{
    open(sample("photos/tahoe-gps.jpg"));
    settle();
    perform("rotateCW:");
    settle();
    perform("flipH:");
    settle();
    performNumbers("setImageSize:scale:", {60, 80, 1});
    settle();
    performPath("saveImageAsJPEG:", at("edited.jpg"));
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
    open(path);
    zp::test::AlertWatch watch;
    perform("save:");
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The file holds more than the image.");
    EXPECT_TRUE(logged("saved with losses: The image had 16 bits"));
}

TEST_F(Files, NamesOfAnyBytesOpenAndSave)
{
    const std::string path = copyOf("made/valid/base.png", "\xFF\xFE line\nend %s.png");
    open(path);
    EXPECT_TRUE(picture().isLoaded());
    setPixel(0, 0, test::word(255, 9, 9, 9));
    perform("save:");
    EXPECT_EQ(importImageFile(path).bitmap->view().row(0)[0], test::word(255, 9, 9, 9));
}

TEST_F(Files, OpeningWhileASnapshotIsWrittenWaitsForIt)
{
    for (int i = 0; i < 5; ++i) {
        performNumbers("newImageWithSize:", {400, 300});
        open(sample("made/valid/base.png"));
        EXPECT_EQ(picture().size(), (Size{64, 36}));
    }
}

} // namespace
