// SPDX-License-Identifier: GPL-3.0-or-later
/// What the readers make of pictures whose pixels are known, of metadata, and of files that are no pictures.
#include "codecs/ImageImporter.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/MetadataBlocks.h"
#include <array>
#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{
namespace
{

std::string picture(const std::string& name) { return std::string(ZP_TESTDATA) + "/images/" + name; }

std::shared_ptr<BitmapRep> opened(const std::string& name)
{
    const ImportedImage image = importImageFile(picture(name));
    EXPECT_TRUE(image.bitmap) << name << ": " << image.error;
    return image.bitmap;
}

/// The largest difference of any byte; -1 when the sizes differ.
int difference(ConstBitmapView a, ConstBitmapView b)
{
    if (a.width != b.width || a.height != b.height) return -1;
    int most = 0;
    for (int y = 0; y < a.height; ++y)
        for (int i = 0; i < 4 * a.width; ++i)
            most = std::max(most, std::abs(int(a.rowData(y)[i]) - int(b.rowData(y)[i])));
    return most;
}

bool warns(const BitmapRep& rep, const std::string& part)
{
    for (const std::string& w : rep.properties.warnings)
        if (w.find(part) != std::string::npos) return true;
    return false;
}

TEST(ImageImporter, TurnsEveryOrientationUpright)
{
    const auto chart = opened("made/exif/chart-upright.ppm");
    for (int i = 1; i <= 8; ++i) {
        const std::string n = "made/exif/orientation-" + std::to_string(i);
        EXPECT_EQ(difference(opened(n + ".tif")->view(), chart->view()), 0) << i;
        const auto jpeg = opened(n + ".jpg");
        const int off = difference(jpeg->view(), chart->view());
        EXPECT_GE(off, 0) << i;
        EXPECT_LE(off, 8) << i;
        EXPECT_EQ(codec::exifOrientation(jpeg->properties.exif), 1) << i;
    }
    for (const char* n : {"made/exif/orientation-3-eXIf.png", "made/exif/orientation-6-eXIf.png"})
        EXPECT_EQ(difference(opened(n)->view(), chart->view()), 0) << n;
}

TEST(ImageImporter, AllPhotosOfTheOrientationSetLookAlike)
{
    const auto first = opened("exif-orientation/hopper_orientation_2.jpg");
    for (int i = 3; i <= 8; ++i) {
        const auto other = opened("exif-orientation/hopper_orientation_" + std::to_string(i) + ".jpg");
        ASSERT_EQ(other->pixelsWide(), first->pixelsWide());
        ASSERT_EQ(other->pixelsHigh(), first->pixelsHigh());
        double sum = 0;
        for (int y = 0; y < first->pixelsHigh(); ++y)
            for (int k = 0; k < 4 * first->pixelsWide(); ++k)
                sum += std::abs(int(first->view().rowData(y)[k]) - int(other->view().rowData(y)[k]));
        EXPECT_LT(sum / (4.0 * first->pixelsWide() * first->pixelsHigh()), 4) << i;
    }
}

TEST(ImageImporter, OnePictureInElevenKindsIsOnePicture)
{
    const auto reference = opened("made/valid/base.png");
    for (const char* kind : {"bmp", "pcx", "ppm", "psd", "sgi", "tga", "tif"})
        EXPECT_EQ(difference(opened(std::string("made/valid/base.") + kind)->view(), reference->view()), 0) << kind;
    EXPECT_LE(difference(opened("made/valid/base.jpg")->view(), reference->view()), 60);
}

TEST(ImageImporter, TGAFilesStandUprightFromAnyCorner)
{
    // The four files store the same bytes and differ in the corner they begin at.
    const auto first = opened("tga-imagers/top_left.tga");
    const int w = first->pixelsWide(), h = first->pixelsHigh();
    for (const auto& [corner, right, bottom] :
         {std::tuple("top_right", true, false), std::tuple("bottom_left", false, true),
          std::tuple("bottom_right", true, true)}) {
        const auto other = opened(std::string("tga-imagers/") + corner + ".tga");
        int wrong = 0;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                wrong += other->view().row(bottom ? h - 1 - y : y)[right ? w - 1 - x : x] != first->view().row(y)[x];
        EXPECT_EQ(wrong, 0) << corner;
    }
    for (const char* kind : {"l", "p", "rgb", "rgba"})
        EXPECT_EQ(difference(opened(std::string("misc-pillow/200x32_") + kind + "_bl_rle.tga")->view(),
                             opened(std::string("misc-pillow/200x32_") + kind + "_tl_rle.tga")->view()),
                  0)
            << kind;
}

TEST(ImageImporter, InterlacedAndPlainPNGsAgree)
{
    int pairs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(picture("pngsuite"))) {
        std::string name = entry.path().filename().string();
        if (!name.starts_with("basi")) continue;
        const auto interlaced = opened("pngsuite/" + name);
        name[3] = 'n';
        EXPECT_EQ(difference(interlaced->view(), opened("pngsuite/" + name)->view()), 0) << name;
        ++pairs;
    }
    EXPECT_EQ(pairs, 15);
}

TEST(ImageImporter, PremultipliesWithRounding)
{
    const auto rep = opened("made/png/alpha-ramp-colour-under-zero-alpha.png");
    const BitmapView v = rep->view();
    for (int y = 0; y < v.height; ++y)
        for (int x = 0; x < v.width; ++x) {
            const std::uint8_t* p = v.pixel(x, y);
            ASSERT_LE(std::max({p[1], p[2], p[3]}), p[0]) << x << ", " << y;
        }
    // What the premultiplied canvas cannot hold, the colour of invisible pixels, is gone; what it holds stays.
    const ImportedImage again = importImage(encodePNG(v, rep->properties));
    ASSERT_TRUE(again.bitmap);
    EXPECT_EQ(difference(again.bitmap->view(), v), 0);
}

TEST(ImageImporter, AlphaOfTIFFFilesIsTakenAsTheFileMeansIt)
{
    const auto associated = opened("made/tiff/rgba-associated.tif"),
               straight = opened("made/tiff/rgba-unassociated.tif");
    for (const auto& rep : {associated, straight, opened("made/tiff/rgba-colour-exceeds-alpha.tif")}) {
        const BitmapView v = rep->view();
        bool transparent = false;
        for (int y = 0; y < v.height; ++y)
            for (int x = 0; x < v.width; ++x) {
                const std::uint8_t* p = v.pixel(x, y);
                transparent |= p[0] < 255;
                ASSERT_LE(std::max({p[1], p[2], p[3]}), p[0]);
            }
        EXPECT_TRUE(transparent);
    }
}

TEST(ImageImporter, CMYKOfEveryContainerComesOutAlike)
{
    for (const char* name : {"made/tiff/cmyk8.tif", "made/tiff/cmyk16.tif"}) {
        const auto rep = opened(name);
        const std::uint8_t* first = rep->view().pixel(0, 0); // only magenta there
        EXPECT_EQ((std::array<int, 4>{first[0], first[1], first[2], first[3]}), (std::array<int, 4>{255, 255, 0, 255}))
            << name;
    }
    // The inks of a photograph, inverted as programs store them: bright where its grey twin is bright.
    const auto ink = opened("photos/seeding-600-cmyk.jpg"), grey = opened("photos/seeding-600-grey.jpg");
    ASSERT_EQ(ink->pixelsWide(), grey->pixelsWide());
    double n = 0, a = 0, b = 0, aa = 0, bb = 0, ab = 0;
    for (int y = 0; y < grey->pixelsHigh(); ++y)
        for (int x = 0; x < grey->pixelsWide(); ++x) {
            const double i = ink->view().pixel(x, y)[2], g = grey->view().pixel(x, y)[2];
            n += 1, a += i, b += g, aa += i * i, bb += g * g, ab += i * g;
        }
    EXPECT_GT((ab - a * b / n) / std::sqrt((aa - a * a / n) * (bb - b * b / n)), 0.9);
}

TEST(ImageImporter, SixteenBitsAreReducedWithRoundingAndSaidSo)
{
    const auto le = opened("made/tiff/ramp16-fine-le.tif"), be = opened("made/tiff/ramp16-fine-be.tif");
    EXPECT_EQ(difference(le->view(), be->view()), 0);
    EXPECT_LE(difference(le->view(), opened("made/png/ramp16-fine.png")->view()), 1);
    EXPECT_TRUE(warns(*le, "16 bits"));
}

TEST(ImageImporter, TheSameFlowerInEveryDepthLooksAlike)
{
    for (const char* layout : {"rgb-contig", "rgb-planar", "minisblack"}) {
        const auto reference = opened(std::string("tiff-depth/flower-") + layout + "-08.tif");
        for (const char* bits : {"10", "12", "14", "16", "24", "32"}) {
            const std::string name = std::string("tiff-depth/flower-") + layout + "-" + bits + ".tif";
            if (!fileExists(picture(name))) continue;
            EXPECT_LE(difference(opened(name)->view(), reference->view()), 2) << name;
        }
    }
}

TEST(ImageImporter, DecodesJPEGAtTheSmallestSufficientScale)
{
    const std::string name = picture("photos/tahoe-gps.jpg"); // 2048 x 1536
    const auto width = [&](int w, int h) {
        return importImageFile(name, {.atLeastWidth = w, .atLeastHeight = h}).bitmap->pixelsWide();
    };
    EXPECT_EQ(width(0, 0), 2048);
    EXPECT_EQ(width(1025, 100), 2048);
    EXPECT_EQ(width(1024, 768), 1024);
    EXPECT_EQ(width(512, 384), 512);
    EXPECT_EQ(width(256, 192), 256);
    EXPECT_EQ(width(1, 1), 256);
    EXPECT_EQ(width(256, 193), 512);
}

TEST(ImageImporter, ReducedDecodingAsksForTheUprightSize)
{
    // 160 x 96 upright, stored 96 x 160
    const ImportedImage image =
        importImageFile(picture("made/exif/orientation-6.jpg"), {.atLeastWidth = 80, .atLeastHeight = 40});
    ASSERT_TRUE(image.bitmap);
    EXPECT_EQ(image.bitmap->pixelsWide(), 80);
    EXPECT_EQ(image.bitmap->pixelsHigh(), 48);
}

TEST(ImageImporter, KeepsMetadata)
{
    const auto photo = opened("photos/tahoe-gps.jpg");
    const auto block = codec::parseExif(photo->properties.exif);
    ASSERT_TRUE(block);
    EXPECT_FALSE(block->gps.empty());
    EXPECT_TRUE(codec::ExifBlock::find(block->image, 0x010F)); // make
    EXPECT_NE(exifDescription(photo->properties).find("Make"), std::string::npos);
    const auto xmp = opened("png-pillow/xmp_tags_orientation.png");
    EXPECT_NE(xmp->properties.xmp.find("<"), std::string::npos);
    EXPECT_NEAR(opened("made/bmp/rle8-delta-off-image.bmp")->properties.xDpi, 72, 0.1);
    EXPECT_NEAR(photo->properties.xDpi, 72, 0.1);
}

TEST(ImageImporter, MetadataIsLeftOutWhenNotAskedFor)
{
    const ImportedImage image = importImageFile(picture("photos/tahoe-gps.jpg"), {.properties = false});
    ASSERT_TRUE(image.bitmap);
    EXPECT_TRUE(image.bitmap->properties.exif.empty());
}

struct Comment {
    const char* file;
    const char* text;
};
class UserComment : public testing::TestWithParam<Comment>
{
};
TEST_P(UserComment, IsReadAsText)
{
    const auto rep = opened(std::string("made/exif/usercomment-") + GetParam().file + ".jpg");
    EXPECT_EQ(rep->properties.userComment.substr(0, 60), GetParam().text);
}

TEST(UserComments, OfAnyScriptAreReadAsTheyWereWritten)
{
    // The second could be taken for the other byte order, the third for Latin, the last two begin like a mark of order.
    for (const std::string text : {"Grüße 日本 😀", "一二三", "中午", "䡥汬漠", "\uFEFFé", "\uFFFEé"})
        for (const bool bigEndian : {false, true})
            EXPECT_EQ(codec::decodeUserComment(codec::encodeUserComment(text, bigEndian), bigEndian), text)
                << bigEndian;
}

TEST(ImageImporter, HostileMetadataIsDroppedAndThePictureOpens)
{
    for (const char* name :
         {"usercomment-count-4GB", "subifd-loops-to-ifd0", "entries-65535", "bad-byte-order", "xmp-entity-bomb"}) {
        const auto rep = opened(std::string("made/exif/") + name + ".jpg");
        EXPECT_FALSE(rep->properties.warnings.empty()) << name;
        EXPECT_LT(rep->properties.exif.size() + rep->properties.xmp.size(), 1'000'000u) << name;
    }
    EXPECT_TRUE(opened("made/png/bomb-iccp-50MB.png")->properties.iccProfile.empty());
    EXPECT_TRUE(opened("made/jpeg/icc-garbage.jpg")->properties.iccProfile.empty());
    EXPECT_TRUE(warns(*opened("made/jpeg/icc-chunk-2-of-3-missing.jpg"), "profile"));
}

TEST(ImageImporter, BombsAreRefusedBeforeMemoryIsTaken)
{
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    for (const char* name : {"png/bomb-30000x30000-1bit.png", "png/bomb-12000x12000-1bit-interlaced-short.png",
                             "tiff/bomb-deflate-30000x30000-1bit.tif", "jpeg/scan-bomb-20000x20000-30-scans.jpg",
                             "gif/screen-65535x65535-frame-1x1.gif", "misc/ppm-huge.ppm", "tiff/tile-4billion.tif"}) {
        const ImportedImage image = importImageFile(picture(std::string("made/") + name));
        EXPECT_FALSE(image.bitmap) << name;
        EXPECT_FALSE(image.error.empty()) << name;
    }
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 40'000) << "kilobytes";
}

TEST(ImageImporter, APartOfADamagedPictureIsShownWithAWarning)
{
    auto bytes = readWholeFile(picture("photos/tahoe-gps.jpg"));
    ASSERT_TRUE(bytes);
    bytes->resize(bytes->size() / 2);
    const auto* p = reinterpret_cast<const std::uint8_t*>(bytes->data());
    const ImportedImage image = importImage({p, bytes->size()});
    ASSERT_TRUE(image.bitmap) << image.error;
    EXPECT_TRUE(warns(*image.bitmap, "damaged"));
    const auto whole = opened("photos/tahoe-gps.jpg");
    EXPECT_EQ(difference(image.bitmap->view().part({0, 0, 2048, 400}), whole->view().part({0, 0, 2048, 400})), 0);
}

class StrangeFiles : public testing::Test
{
protected:
    StrangeFiles() { createFolder(mFolder); }
    ~StrangeFiles() override { removeItem(mFolder); }
    std::string at(const std::string& name) const { return mFolder + "/" + name; }
    std::string mFolder = temporaryFolder() + "/strange";
};

TEST_F(StrangeFiles, AreRefusedWithASentence)
{
    ASSERT_EQ(mkfifo(at("pipe.jpg").c_str(), 0600), 0);
    ASSERT_EQ(symlink("nowhere", at("dangling.jpg").c_str()), 0);
    ASSERT_EQ(symlink(at("self.jpg").c_str(), at("self.jpg").c_str()), 0);
    ASSERT_TRUE(createFolder(at("folder.jpg")));
    ASSERT_TRUE(writeFileSafely(at("empty.jpg"), "", 0));
    const int big = open(at("sparse.png").c_str(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(big, 0);
    ASSERT_EQ(ftruncate(big, off_t{6} << 30), 0);
    close(big);
    const std::string tooLong(300, 'x');
    for (const std::string& name :
         {std::string("pipe.jpg"), std::string("dangling.jpg"), std::string("self.jpg"), std::string("folder.jpg"),
          std::string("empty.jpg"), std::string("sparse.png"), std::string("missing.jpg"), tooLong}) {
        const ImportedImage image = importImageFile(at(name));
        EXPECT_FALSE(image.bitmap) << name;
        EXPECT_TRUE(image.error.ends_with(".")) << name << ": " << image.error;
        const PixelDimensions size = imageFileDimensions(at(name));
        EXPECT_EQ(size.width, 0) << name;
    }
    EXPECT_EQ(importImageFile("/dev/zero").bitmap, nullptr);
}

TEST_F(StrangeFiles, OddNamesOpen)
{
    const auto bytes = readWholeFile(picture("made/valid/base.png"));
    ASSERT_TRUE(bytes);
    for (const std::string& name : {std::string("line\nend.png"), std::string("quote\"'%s.png"),
                                    std::string("\xFF\xFE.png"), std::string("-dash.png"), std::string(".hidden.png"),
                                    std::string(251, 'n') + ".png", std::string("xc:red"), std::string("http:x")}) {
        ASSERT_TRUE(writeFileSafely(at(name), bytes->data(), bytes->size())) << name;
        EXPECT_TRUE(importImageFile(at(name)).bitmap) << name;
        EXPECT_EQ(imageFileDimensions(at(name)).width, 64) << name;
    }
}

TEST_F(StrangeFiles, HarmlessNamesDoNotMakeTextAPicture)
{
    for (const std::string& content :
         {std::string("<svg xmlns='http://www.w3.org/2000/svg'><image href='/etc/passwd'/></svg>"),
          std::string("push graphic-context\nimage over 0,0 0,0 '/etc/passwd'\npop graphic-context"),
          std::string("%!PS-Adobe-3.0\n/x (/etc/passwd) def"), std::string("%PDF-1.4\n"),
          std::string("<?xml version='1.0'?><image><read filename='/etc/passwd'/></image>"),
          std::string("caption:@/etc/passwd")}) {
        ASSERT_TRUE(writeFileSafely(at("x.jpg"), content.data(), content.size()));
        EXPECT_FALSE(importImageFile(at("x.jpg")).bitmap) << content;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, UserComment,
    testing::Values(Comment{"ascii", "A plain remark"}, Comment{"empty", ""}, Comment{"spaces", ""},
                    Comment{"nul-padded", "text"}, Comment{"html", "<b>bold</b><img src=x>&amp;"},
                    Comment{"undefined-utf8", "Grüße"}, Comment{"undefined-latin1", "Grüße"},
                    Comment{"unicode-be", "Grüße 日本 😀"}, Comment{"unicode-le", "Grüße 日本 😀"},
                    Comment{"unicode-be-bmp-only", "Grüße 日本"}, Comment{"unicode-be-in-le-file", "Wrong order"},
                    Comment{"unicode-bom", "With mark"}, Comment{"unicode-but-utf8", "Grüße"},
                    Comment{"unicode-lone-surrogate", "\uFFFDA"}, Comment{"unicode-odd-length", "odd"},
                    Comment{"unknown-code", ""}, Comment{"jis", ""}, Comment{"shorter-than-8", ""},
                    Comment{"60KB", "wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww"}),
    [](const auto& test) {
        std::string name = test.param.file;
        std::erase(name, '-');
        return name;
    });

} // namespace
} // namespace zp
