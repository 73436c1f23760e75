// SPDX-License-Identifier: GPL-3.0-or-later
/// Whole runs over folders of odd and broken files, and the command line.
#include "batch/BatchJob.h"
#include "base/Folders.h"
#include "base/WorkPool.h"
#include "batch/BatchCommandLine.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "support/Decibels.h"
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{
namespace
{

std::string picture(const std::string& name) { return std::string(ZP_TESTDATA) + "/images/" + name; }

class Batch : public testing::Test
{
protected:
    Batch()
    {
        for (const std::string& folder : {source(), destination()}) {
            removeItem(folder);
            createFolder(folder);
        }
        mSettings.source = source();
        mSettings.destination = destination();
        mSettings.jpeg = true;
        mSettings.jobs = 2;
    }
    ~Batch() override
    {
        removeItem(source());
        removeItem(destination());
    }
    static std::string source() { return temporaryFolder() + "/batch source"; }
    static std::string destination() { return temporaryFolder() + "/batch destination"; }
    void add(const std::string& original, const std::string& name)
    {
        ASSERT_TRUE(copyItem(picture(original), source() + "/" + name)) << name;
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> listed;
        EXPECT_EQ(batchNames(mSettings, listed), "");
        return listed;
    }
    std::vector<BatchOutcome> run() { return runBatch(mSettings, names(), {}); }
    std::vector<std::string> results() const { return contentsOfFolder(destination()); }
    std::shared_ptr<BitmapRep> result(const std::string& name) const
    {
        return importImageFile(destination() + "/" + name).bitmap;
    }
    BatchSettings mSettings;
};

TEST_F(Batch, AnEmptyFolderGivesNothing)
{
    EXPECT_TRUE(run().empty());
    EXPECT_TRUE(results().empty());
}

TEST_F(Batch, OtherExtensionsArePassedOver)
{
    add("made/valid/base.png", "a.png");
    add("made/valid/base.jpg", "b.JPG");
    add("made/valid/base.jpg", "c.jpeg");
    add("made/valid/base.tif", "d.tif");
    EXPECT_TRUE(run().empty());
    EXPECT_TRUE(results().empty());
}

TEST_F(Batch, WritesBothKindsAndOverwrites)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/valid/base.tif", "b.tiff");
    mSettings.tiff = true;
    writeFileSafely(destination() + "/a.jpg", "old", 3);
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(results(), (std::vector<std::string>{"a.jpg", "a.tiff", "b.jpg", "b.tiff"}));
    EXPECT_EQ(result("a.jpg")->pixelsWide(), 64);
    EXPECT_EQ(result("b.tiff")->properties.userComment, "Edited by Zelpane -- simple, yet powerful image editing");
}

TEST_F(Batch, FitsLargeAndSmallImages)
{
    add("photos/tahoe-gps.jpg", "large.jpg");
    add("made/valid/base.jpg", "small.jpg");          // 64 x 36
    add("made/exif/orientation-6.jpg", "turned.jpg"); // 160 x 96 upright
    mSettings.fitWidth = 320;
    mSettings.fitHeight = 320;
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(result("large.jpg")->pixelsWide(), 320);
    EXPECT_EQ(result("large.jpg")->pixelsHigh(), 240);
    EXPECT_EQ(result("small.jpg")->pixelsWide(), 320);
    EXPECT_EQ(result("small.jpg")->pixelsHigh(), 180);
    EXPECT_EQ(result("turned.jpg")->pixelsWide(), 320);
    EXPECT_EQ(result("turned.jpg")->pixelsHigh(), 192);
}

TEST_F(Batch, StampsTheWatermarkFromTheLowerLeft)
{
    add("made/valid/base.tif", "a.tiff");
    auto mark = BitmapRep::create(10, 6);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 10; ++x) mark->view().row(y)[x] = 0x0000FFFF; // opaque red
    mSettings.watermark = mark;
    mSettings.watermarkPoint = {4, 2};
    mSettings.tiff = true;
    mSettings.jpeg = false;
    EXPECT_TRUE(run().empty());
    const auto out = result("a.tiff");
    const auto plain = importImageFile(picture("made/valid/base.tif")).bitmap;
    for (int y = 0; y < 36; ++y)
        for (int x = 0; x < 64; ++x) {
            const bool inside = x >= 4 && x < 14 && y >= 36 - 2 - 6 && y < 36 - 2;
            ASSERT_EQ(out->view().row(y)[x], inside ? 0x0000FFFFu : plain->view().row(y)[x]) << x << ", " << y;
        }
    mSettings.watermarkAlpha = 0;
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(result("a.tiff")->view().row(30)[6], plain->view().row(30)[6]);
}

TEST_F(Batch, LinksAreFollowedAndNameTheirOutput)
{
    ASSERT_EQ(symlink(picture("made/valid/base.png").c_str(), (source() + "/x.jpg").c_str()), 0);
    ASSERT_EQ(symlink("nowhere", (source() + "/broken.jpg").c_str()), 0);
    const auto failures = run();
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0].name, "broken.jpg");
    EXPECT_EQ(results(), std::vector<std::string>{"x.jpg"});
}

TEST_F(Batch, BrokenFilesAreNamedAndTheRestIsDone)
{
    add("made/valid/base.jpg", "good.jpg");
    add("made/truncated/zero-bytes.jpg", "empty.jpg");
    add("made/wrong-ext/svg-external.jpg", "svg.jpg");
    add("made/jpeg/scan-bomb-20000x20000-30-scans.jpg", "bomb.jpg");
    ASSERT_TRUE(createFolder(source() + "/folder.jpg"));
    ASSERT_EQ(mkfifo((source() + "/pipe.jpg").c_str(), 0600), 0);
    const auto failures = run();
    EXPECT_EQ(failures.size(), 5u);
    for (const BatchOutcome& f : failures) EXPECT_TRUE(f.error.ends_with(".")) << f.name << ": " << f.error;
    EXPECT_EQ(results(), std::vector<std::string>{"good.jpg"});
}

TEST_F(Batch, ADamagedSourceIsAFailureAndWritesNothing)
{
    const char* const kDamaged[] = {"made/truncated/50pc.jpg", "made/truncated/50pc.png"};
    add(kDamaged[0], "short.jpg");
    add(kDamaged[1], "short.tiff");
    add("made/valid/base.jpg", "sound.jpg");
    for (const char* name : kDamaged) ASSERT_TRUE(importImageFile(picture(name)).damaged) << name;
    for (const int box : {0, 20}) {
        mSettings.fitWidth = mSettings.fitHeight = box;
        const auto failures = run();
        ASSERT_EQ(failures.size(), 2u);
        for (const BatchOutcome& failure : failures)
            EXPECT_EQ(failure.error, "The file is damaged or ends too early: only a part of it can be read.");
        EXPECT_EQ(results(), std::vector<std::string>{"sound.jpg"});
    }
}

TEST_F(Batch, ADamagedSourceThatIsToBeKeptIsWrittenAndIsAFailureAllTheSame)
{
    add("made/truncated/50pc.jpg", "short.jpg");
    std::string words[] = {"zelpane", "--batch", source(), destination(), "--jpeg", "--keep-damaged"};
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    testing::internal::CaptureStderr();
    EXPECT_EQ(runBatchCommandLine(int(argv.size()), argv.data()), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "short.jpg: The file is damaged or ends too early: only a part of it can be read.\n");
    EXPECT_EQ(result("short.jpg")->pixelsWide(), 64);
}

TEST_F(Batch, PrivateDataIsLeftOutWhenThatIsAskedFor)
{
    add("photos/tahoe-gps.jpg", "lake.jpg");
    for (const bool strip : {false, true}) {
        std::vector<std::string> words{"zelpane", "--batch", source(), destination(), "--jpeg"};
        if (strip) words.insert(words.end(), {"--strip", "private"});
        std::vector<char*> argv;
        for (std::string& word : words) argv.push_back(word.data());
        EXPECT_EQ(runBatchCommandLine(int(argv.size()), argv.data()), 0);
        const std::string file = readWholeFile(destination() + "/lake.jpg").value_or("");
        EXPECT_EQ(file.find("T-Mobile") == std::string::npos, strip);
        EXPECT_NE(file.find("2009:02:21"), std::string::npos);
    }
}

TEST_F(Batch, AnEarlierSoundSourceStandsInForADamagedOne)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/truncated/50pc.png", "a.tiff");
    EXPECT_EQ(run().size(), 1u);
    const auto sound = importImageFile(picture("made/valid/base.jpg")).bitmap;
    EXPECT_GT(test::decibels(result("a.jpg")->view(), sound->view()), 30);
}

TEST_F(Batch, APresetHoldsForEachPictureByItsOwnSize)
{
    auto mark = BitmapRep::create(10, 6);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 10; ++x) mark->view().row(y)[x] = 0x0000FFFF; // opaque red
    mSettings.watermark = mark;
    mSettings.watermarkPlace = WatermarkPlace::LowerRight;
    mSettings.watermarkMargin = 3;
    mSettings.tiff = true;
    mSettings.jpeg = false;
    add("made/exif/orientation-1.tif", "flat.tiff");   // 160 x 96
    add("made/exif/orientation-6.tif", "turned.tiff"); // stored upright, shown flat
    add("made/valid/base.tif", "small.tiff");          // 64 x 36
    EXPECT_TRUE(run().empty());
    for (const char* name : {"flat.tiff", "turned.tiff", "small.tiff"}) {
        const auto out = result(name);
        const int right = out->pixelsWide() - 3, bottom = out->pixelsHigh() - 3;
        const auto isRed = [&](int x, int y) { return out->view().row(y)[x] == 0x0000FFFFu; };
        EXPECT_TRUE(isRed(right - 1, bottom - 1) && isRed(right - 10, bottom - 6)) << name;
        EXPECT_FALSE(isRed(right, bottom - 1) || isRed(right - 1, bottom) || isRed(right - 11, bottom - 6)) << name;
    }
}

TEST_F(Batch, TwoHundredOddNames)
{
    std::vector<std::string> names{"line\nend",   "quote'", "double\"",     "%s%n",       "$(x)",
                                   "`x`",         "-dash",  "\xFF\xFE\x80", "tab\t",      "ünï",
                                   "日本",        "a b",    "..x",          "semi;colon", "star*",
                                   "back\\slash", "q?",     "[b]",          "#",          std::string(250, 'n')};
    for (int i = 0; int(names.size()) < 200; ++i)
        names.push_back("name " + std::string(std::size_t(i) % 50, char(0xC0 + i % 60)) + std::to_string(i));
    for (std::size_t i = 0; i < names.size(); ++i)
        add("made/valid/base.jpg", names[i] + (i % 3 == 0 && names[i].size() < 249 ? ".tiff" : ".jpg"));
    EXPECT_EQ(this->names().size(), 200u);
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(results().size(), 200u);
    for (const std::string& name : names) EXPECT_TRUE(fileExists(destination() + "/" + name + ".jpg")) << name;
}

TEST_F(Batch, OfTheSourcesOfOneNameTheLastMakesTheResult)
{
    for (int i = 0; i < 20; ++i) {
        add("made/valid/base.jpg", std::to_string(i) + ".jpg");          // 64 wide
        add("made/exif/orientation-1.tif", std::to_string(i) + ".tiff"); // 160 wide, behind .jpg in the folder's order
    }
    std::size_t superseded = 0;
    const auto failures = runBatch(mSettings, names(), [&](const BatchOutcome& outcome, std::size_t) {
        EXPECT_EQ(outcome.superseded, outcome.name.ends_with(".jpg")) << outcome.name;
        superseded += outcome.superseded;
        return true;
    });
    EXPECT_TRUE(failures.empty());
    EXPECT_EQ(superseded, 20u);
    for (int i = 0; i < 20; ++i) EXPECT_EQ(result(std::to_string(i) + ".jpg")->pixelsWide(), 160) << i;
}

TEST_F(Batch, OfTheSourcesOfOneNameTheLastThatCanBeReadMakesTheResult)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/truncated/zero-bytes.jpg", "a.tiff");
    const auto failures = run();
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0].name, "a.tiff");
    EXPECT_EQ(result("a.jpg")->pixelsWide(), 64);
}

TEST_F(Batch, ARunThatWasKilledBetweenSourcesOfOneNameEndsWithTheSameFiles)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/exif/orientation-1.tif", "a.tiff");
    mSettings.jobs = 1;
    mSettings.skipExisting = true;
    runBatch(mSettings, names(), [](const BatchOutcome&, std::size_t) { return false; }); // after the first image
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(result("a.jpg")->pixelsWide(), 160);
}

TEST_F(Batch, AResultThatCannotBeWrittenDoesNotKeepTheOtherFromBeing)
{
    add("made/valid/base.jpg", "a.jpg");
    mSettings.tiff = true;
    ASSERT_TRUE(createFolder(destination() + "/a.tiff")); // in the way
    const auto failures = run();
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0].error, "There is a folder of that name.");
    EXPECT_EQ(result("a.jpg")->pixelsWide(), 64);
}

TEST_F(Batch, AnEarlierSourceMakesOnlyWhatALaterOneCouldNot)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/exif/orientation-1.tif", "a.tiff");
    mSettings.tiff = true;
    ASSERT_TRUE(createFolder(destination() + "/a.tiff"));
    EXPECT_EQ(run().size(), 2u); // the folder is in both sources' way
    EXPECT_EQ(result("a.jpg")->pixelsWide(), 160);
}

TEST_F(Batch, ThePlanIsWhatWillBeWrittenInOrder)
{
    for (const char* name : {"b.jpg", "B2.jpg", "a.jpg", "a.tiff", "c.tiff"})
        add(std::string(name).ends_with("jpg") ? "made/valid/base.jpg" : "made/valid/base.tif", name);
    mSettings.tiff = true;
    const auto in = [&](std::vector<std::string> files) {
        for (std::string& name : files) name.insert(0, destination() + "/");
        return files;
    };
    EXPECT_EQ(batchPlan(mSettings, names()),
              in({"a.tiff", "a.jpg", "b.tiff", "b.jpg", "B2.tiff", "B2.jpg", "c.tiff", "c.jpg"}));
    EXPECT_TRUE(results().empty());
    writeFileSafely(destination() + "/b.tiff", "x", 1);
    writeFileSafely(destination() + "/b.jpg", "x", 1);
    writeFileSafely(destination() + "/c.jpg", "x", 1); // one of two: both are made again
    mSettings.skipExisting = true;
    const auto plan = batchPlan(mSettings, names());
    EXPECT_EQ(plan, in({"a.tiff", "a.jpg", "B2.tiff", "B2.jpg", "c.tiff", "c.jpg"}));
    EXPECT_TRUE(run().empty());
    for (const std::string& file : plan) EXPECT_TRUE(importImageFile(file).bitmap) << file;
    EXPECT_EQ(readWholeFile(destination() + "/b.jpg"), "x");
}

TEST_F(Batch, StopsWhenToldAndWritesNothingHalf)
{
    for (int i = 0; i < 30; ++i) add("made/valid/base.jpg", std::to_string(i) + ".jpg");
    mSettings.jobs = 1;
    runBatch(mSettings, names(), [](const BatchOutcome&, std::size_t done) { return done < 5; });
    EXPECT_EQ(results().size(), 5u);
    for (const std::string& name : results()) EXPECT_TRUE(result(name)) << name;
}

TEST_F(Batch, SkipsWhatIsThere)
{
    add("made/valid/base.jpg", "a.jpg");
    add("made/valid/base.jpg", "b.jpg");
    mSettings.skipExisting = true;
    writeFileSafely(destination() + "/a.jpg", "kept", 4);
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(readWholeFile(destination() + "/a.jpg"), "kept");
    EXPECT_TRUE(result("b.jpg"));
}

TEST_F(Batch, ASourceThatLosesFilesIsReported)
{
    for (int i = 0; i < 10; ++i) add("made/valid/base.jpg", std::to_string(i) + ".jpg");
    const auto names = this->names();
    mSettings.jobs = 1;
    const auto failures = runBatch(mSettings, names, [&](const BatchOutcome&, std::size_t done) {
        if (done == 4)
            for (std::size_t i = 6; i < names.size(); ++i) removeItem(source() + "/" + names[i]);
        return true;
    });
    EXPECT_EQ(failures.size(), 4u);
    EXPECT_EQ(results().size(), 6u);
}

TEST_F(Batch, ADestinationThatFillsUpLeavesNoHalfFiles)
{
    for (int i = 0; i < 6; ++i) add("photos/tahoe-gps.jpg", std::to_string(i) + ".jpg");
    mSettings.tiff = true; // about nine megabytes each
    mSettings.jpeg = false;
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    signal(SIGXFSZ, SIG_IGN);
    rlimit small = old;
    small.rlim_cur = 1 << 20;
    setrlimit(RLIMIT_FSIZE, &small);
    const auto failures = run();
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(failures.size(), 6u);
    EXPECT_TRUE(results().empty());
}

TEST_F(Batch, AnUnwritableDestinationFailsEachImage)
{
    if (geteuid() == 0) GTEST_SKIP() << "nothing is unwritable for this user";
    add("made/valid/base.jpg", "a.jpg");
    chmod(destination().c_str(), 0500);
    EXPECT_EQ(run().size(), 1u);
    chmod(destination().c_str(), 0700);
}

TEST_F(Batch, CommandLineUnderstandsItsOptions)
{
    const auto parse = [&](std::vector<std::string> words) {
        std::vector<char*> argv{const_cast<char*>("zelpane"), const_cast<char*>("--batch")};
        for (std::string& w : words) argv.push_back(w.data());
        return parseBatchCommandLine(int(argv.size()), argv.data());
    };
    const auto line = parse({source(), "--fit", "1024x768", destination(), "--at=-10,20", "--opacity", "50", "--tiff",
                             "--jpeg", "--jobs", "3", "--shard", "2/5", "--skip-existing", "--dry-run", "--watermark",
                             "w.jpg", "--keep-damaged"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.settings.fitWidth, 1024);
    EXPECT_EQ(line.settings.fitHeight, 768);
    EXPECT_EQ(line.settings.watermarkPoint, (Point{-10, 20}));
    EXPECT_EQ(line.settings.watermarkAlpha, 0.5f);
    EXPECT_TRUE(line.settings.tiff && line.settings.jpeg && line.settings.skipExisting && line.dryRun);
    EXPECT_EQ(line.settings.jobs, 3);
    EXPECT_EQ(line.settings.shard.number, 2u);
    EXPECT_EQ(line.settings.shard.count, 5u);
    EXPECT_EQ(line.watermarkPath, "w.jpg");
    EXPECT_TRUE(line.settings.keepDamaged);
    EXPECT_EQ(line.settings.watermarkPlace, WatermarkPlace::Custom);
    struct Placing {
        const char* word;
        WatermarkPlace place;
        int margin;
    };
    for (const Placing& p :
         {Placing{"lower-left", WatermarkPlace::LowerLeft, 0},
          Placing{"lower-right+20", WatermarkPlace::LowerRight, 20},
          Placing{"upper-left+0", WatermarkPlace::UpperLeft, 0}, Placing{"upper-right", WatermarkPlace::UpperRight, 0},
          Placing{"centre", WatermarkPlace::Center, 0}}) {
        const auto placed = parse({source(), destination(), "--jpeg", "--place", p.word});
        EXPECT_EQ(placed.error, "");
        EXPECT_EQ(placed.settings.watermarkPlace, p.place) << p.word;
        EXPECT_EQ(placed.settings.watermarkMargin, p.margin) << p.word;
    }
    EXPECT_EQ(line.settings.watermarkLayout, WatermarkLayout{.margin = 0});
    const auto laid = parse({source(), destination(), "--jpeg", "--relative", "20", "--place", "lower-left+4",
                             "--tile=0", "--watermark", "w.jpg", "--turn", "-30"});
    EXPECT_EQ(laid.error, "");
    EXPECT_EQ(laid.settings.watermarkLayout,
              (WatermarkLayout{.relative = true, .size = 20, .margin = 4, .tiled = true, .gap = 0, .turn = -30}));
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{source(), destination()},
          {source(), "--jpeg"},
          {"--jpeg"},
          {source(), source(), "--jpeg"},
          {source(), "/nowhere", "--jpeg"},
          {source(), destination(), "--jpeg", "--fit", "10"},
          {source(), destination(), "--jpeg", "--fit", "0x10"},
          {source(), destination(), "--jpeg", "--shard", "3/2"},
          {source(), destination(), "--jpeg", "--shard", "0/2"},
          {source(), destination(), "--jpeg", "--shard", "auto/2"},
          {source(), destination(), "--jpeg", "--jobs", "0"},
          {source(), destination(), "--jpeg", "--fit"},
          {source(), destination(), "--jpeg", "--what"},
          {source(), destination(), "more", "--jpeg"},
          {source(), destination(), "--jpeg", "--place", "left"},
          {source(), destination(), "--jpeg", "--place", "centre+"},
          {source(), destination(), "--jpeg", "--place", "lower-left+-1"},
          {source(), destination(), "--jpeg", "--place=centre", "--at=1,1"},
          {source(), destination(), "--jpeg", "--relative", "20"},
          {source(), destination(), "--jpeg", "--watermark", "w", "--relative", "0"},
          {source(), destination(), "--jpeg", "--watermark", "w", "--relative", "101"},
          {source(), destination(), "--jpeg", "--watermark", "w", "--relative", "20%"},
          {source(), destination(), "--jpeg", "--watermark", "w", "--tile", "-1"},
          {source(), destination(), "--jpeg", "--watermark", "w", "--tile", "401"},
          {source(), destination(), "--jpeg", "--watermark", "w", "--turn", "361"},
          {source(), destination(), "--jpeg", "--turn"},
          {source(), destination(), "--jpeg", "--opacity", "half"}})
        EXPECT_NE(parse(wrong).error, "") << (wrong.empty() ? "" : wrong.back());
    EXPECT_TRUE(parse({"--help"}).help);
}

TEST_F(Batch, CommandLineAnswersByItsStatus)
{
    const auto run = [&](std::vector<std::string> words) {
        std::vector<char*> argv{const_cast<char*>("zelpane"), const_cast<char*>("--batch")};
        for (std::string& w : words) argv.push_back(w.data());
        return runBatchCommandLine(int(argv.size()), argv.data());
    };
    EXPECT_EQ(run({source(), "/nowhere", "--jpeg"}), 2);
    EXPECT_EQ(run({source(), destination(), "--jpeg", "--watermark", "/nowhere.jpg"}), 2);
    add("made/valid/base.jpg", "a.jpg");
    EXPECT_EQ(run({source(), destination(), "--jpeg", "--fit", "32x32"}), 0);
    EXPECT_EQ(result("a.jpg")->pixelsWide(), 32);
    add("made/wrong-ext/svg-external.jpg", "b.jpg");
    EXPECT_EQ(run({source(), destination(), "--jpeg"}), 1);
    EXPECT_EQ(run({source(), destination(), "--jpeg", "--shard", "1/2"}), 0);
    EXPECT_EQ(run({source(), destination(), "--jpeg", "--shard", "2/2"}), 1);
    testing::internal::CaptureStdout();
    EXPECT_EQ(run({source(), destination(), "--jpeg", "--tiff", "--dry-run", "--shard", "2/2"}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), destination() + "/b.tiff\n" + destination() + "/b.jpg\n");
}

TEST_F(Batch, ASourceFolderThatCannotBeListedIsAFailure)
{
    const std::string file = temporaryFolder() + "/no folder";
    writeFileSafely(file, "x", 1);
    std::string words[] = {"zelpane", "--batch", file, destination(), "--jpeg"};
    char* argv[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), words[4].data()};
    testing::internal::CaptureStderr();
    EXPECT_EQ(runBatchCommandLine(5, argv), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "zelpane: the folder " + file + " cannot be listed: Not a directory.\n");
    removeItem(file);
}

} // namespace
} // namespace zp
