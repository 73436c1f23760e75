// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG and WebP files of one picture at several qualities, read back by themselves and by the readers of files.
#include "codecs/LossyWriter.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

std::shared_ptr<BitmapRep> waves(int width, int height, bool seeThrough)
{
    auto rep = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* const p = rep->view().rowData(y) + 4 * std::ptrdiff_t{x};
            const int alpha = seeThrough && x < width / 2 ? 128 : 255;
            const auto wave = [&](double by) { return std::uint8_t(alpha * (0.5 + 0.4 * std::sin((x + 2 * y) / by))); };
            p[0] = std::uint8_t(alpha), p[1] = wave(9), p[2] = wave(13), p[3] = wave(21);
        }
    return rep;
}

std::unique_ptr<LossyWriter> writerOf(SaveFormat format, const BitmapRep& rep)
{
    std::string error;
    auto writer = LossyWriter::make(format, rep.view(), rep.properties, error);
    EXPECT_TRUE(writer) << error;
    EXPECT_TRUE(error.empty()) << error;
    return writer;
}

int greatestDifference(const BitmapRep& a, const BitmapRep& b)
{
    int most = 0;
    for (int y = 0; y < a.pixelsHigh(); ++y)
        for (int i = 0; i < 4 * a.pixelsWide(); ++i)
            most = std::max(most, std::abs(a.view().rowData(y)[i] - b.view().rowData(y)[i]));
    return most;
}

class LossyKinds : public testing::TestWithParam<SaveFormat>
{
};

TEST_P(LossyKinds, GrowWithTheQualityAndShowThePicture)
{
    const auto picture = waves(203, 117, false);
    const auto writer = writerOf(GetParam(), *picture);
    std::size_t before = 0;
    for (const int quality : {5, 40, 75, 95}) {
        const auto file = writer->write(quality, {});
        EXPECT_GT(file.size(), before) << quality;
        before = file.size();
        const auto shown = BitmapRep::create(203, 117);
        ASSERT_TRUE(writer->read(file, shown->view())) << quality;
        EXPECT_LE(greatestDifference(*picture, *shown), quality < 40 ? 110 : 40) << quality;
        EXPECT_EQ(writer->write(quality, {}), file) << "twice the same";
        const ImportedImage opened = importImage(file);
        ASSERT_TRUE(opened.bitmap) << opened.error;
        EXPECT_LE(greatestDifference(*opened.bitmap, *shown), 2) << "as the program opens it";
    }
}

TEST_P(LossyKinds, KeepWhatBelongsToThePicture)
{
    const auto picture = waves(40, 30, false);
    picture->properties.userComment = "of the lake";
    picture->properties.xmp = "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>";
    const auto file = writerOf(GetParam(), *picture)->write(80, {});
    const std::string bytes(file.begin(), file.end());
    EXPECT_NE(bytes.find("of the lake"), std::string::npos);
    EXPECT_NE(bytes.find("adobe:ns:meta/"), std::string::npos);
}

TEST_P(LossyKinds, StopAndRefuseWhatIsBroken)
{
    const auto picture = waves(203, 117, false);
    const auto writer = writerOf(GetParam(), *picture);
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_TRUE(writer->write(75, stopped.get_token()).empty());
    auto file = writer->write(75, {});
    const auto other = BitmapRep::create(202, 117), same = BitmapRep::create(203, 117);
    EXPECT_FALSE(writer->read(file, other->view()));
    file.resize(file.size() / 2);
    EXPECT_FALSE(writer->read(file, same->view()));
    EXPECT_FALSE(writer->read({}, same->view()));
}

INSTANTIATE_TEST_SUITE_P(Both, LossyKinds, testing::Values(SaveFormat::JPEG, SaveFormat::WebP),
                         [](const auto& kind) { return kind.param == SaveFormat::JPEG ? "JPEG" : "WebP"; });

} // namespace

TEST(LossyWriter, JPEGIsWhatSaveWrites)
{
    const auto picture = waves(64, 64, true);
    EXPECT_EQ(writerOf(SaveFormat::JPEG, *picture)->write(62, {}),
              encodeJPEG(picture->view(), picture->properties, {.factor = 0.62, .fallbackBackground = kWhite}));
}

TEST(LossyWriter, WebPKeepsTransparency)
{
    const auto picture = waves(64, 64, true), shown = BitmapRep::create(64, 64);
    const auto writer = writerOf(SaveFormat::WebP, *picture);
    ASSERT_TRUE(writer->read(writer->write(90, {}), shown->view()));
    for (const int x : {0, 31, 32, 63}) EXPECT_EQ(shown->view().rowData(5)[4 * x], x < 32 ? 128 : 255) << x;
    EXPECT_LE(greatestDifference(*picture, *shown), 40);
}

TEST(LossyWriter, RefusesInASentence)
{
    struct Case {
        SaveFormat format;
        int width;
        const char* sentence;
    };
    for (const Case& c : {Case{SaveFormat::PNG, 8, "This kind of file has no quality to choose."},
                          Case{SaveFormat::None, 8, "This kind of file has no quality to choose."},
                          Case{SaveFormat::WebP, 16384, "A WebP file holds at most 16,383 pixels a side."}}) {
        const auto picture = BitmapRep::create(c.width, 2);
        std::string error;
        EXPECT_FALSE(LossyWriter::make(c.format, picture->view(), picture->properties, error));
        EXPECT_EQ(error, c.sentence);
    }
}
