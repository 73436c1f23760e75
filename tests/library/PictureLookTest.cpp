// SPDX-License-Identifier: GPL-3.0-or-later
/// Looks of pictures: the same for copies that were worked on, different for different pictures.
#include "library/PictureLook.h"
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

using namespace zp;
using Bitmap = std::shared_ptr<BitmapRep>;

namespace
{

/// A scene of soft spots, the same at every size.
Bitmap scene(unsigned seed, int width, int height)
{
    struct Spot {
        double x, y, size, level;
    };
    std::mt19937 random(seed);
    const auto upTo = [&](double most) { return most * double(random() % 1000) / 1000; };
    std::vector<Spot> spots(24);
    for (Spot& spot : spots) spot = {upTo(1), upTo(1), 0.05 + upTo(0.25), upTo(200) - 100};
    Bitmap made = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            double level = 128;
            for (const Spot& spot : spots) {
                const double dx = (x + 0.5) / width - spot.x, dy = (y + 0.5) / height - spot.y;
                level += spot.level * std::exp(-(dx * dx + dy * dy) / (spot.size * spot.size));
            }
            std::uint8_t* p = made->view().pixel(x, y);
            p[0] = 255;
            p[1] = p[2] = p[3] = std::uint8_t(std::clamp(level, 0.0, 255.0));
        }
    return made;
}

Bitmap photo() { return importImageFile(ZP_SOURCE "/resources/Hibiskus.jpg").bitmap; }

Bitmap changed(const Bitmap& from, const std::function<double(double)>& level)
{
    Bitmap made = BitmapRep::create(from->pixelsWide(), from->pixelsHigh());
    for (int y = 0; y < from->pixelsHigh(); ++y)
        for (int x = 0; x < from->pixelsWide(); ++x)
            for (int c = 0; c < 4; ++c) {
                const std::uint8_t old = from->view().pixel(x, y)[c];
                made->view().pixel(x, y)[c] = c == 0 ? old : std::uint8_t(std::clamp(level(old), 0.0, 255.0));
            }
    return made;
}

Bitmap smaller(const Bitmap& from, int divisor)
{
    Bitmap made = BitmapRep::create(from->pixelsWide() / divisor, from->pixelsHigh() / divisor);
    for (int y = 0; y < made->pixelsHigh(); ++y)
        for (int x = 0; x < made->pixelsWide(); ++x)
            std::copy_n(from->view().pixel(x * divisor, y * divisor), 4, made->view().pixel(x, y));
    return made;
}

Bitmap cropped(const Bitmap& from, double part)
{
    const int dx = int(from->pixelsWide() * part / 2), dy = int(from->pixelsHigh() * part / 2);
    Bitmap made = BitmapRep::create(from->pixelsWide() - 2 * dx, from->pixelsHigh() - 2 * dy);
    copyPixels(from->view().part({dx, dy, dx + made->pixelsWide(), dy + made->pixelsHigh()}), made->view());
    return made;
}

Bitmap recompressed(const Bitmap& from, double quality)
{
    return importImage(encodeJPEG(from->view(), {}, {.factor = quality})).bitmap;
}

PictureLook look(const Bitmap& picture)
{
    const auto seen = lookOfPicture(picture->view());
    EXPECT_TRUE(seen);
    return seen.value_or(PictureLook{});
}

} // namespace

TEST(PictureLook, StaysTheSameForCopiesThatWereWorkedOn)
{
    struct Case {
        const char* what;
        std::function<Bitmap(const Bitmap&)> change;
    };
    const Case cases[] = {
        {"itself", [](const Bitmap& b) { return b; }},
        {"half the size", [](const Bitmap& b) { return smaller(b, 2); }},
        {"a fifth of the size", [](const Bitmap& b) { return smaller(b, 5); }},
        {"recompressed", [](const Bitmap& b) { return recompressed(b, 0.3); }},
        {"smaller and recompressed", [](const Bitmap& b) { return recompressed(smaller(b, 3), 0.5); }},
        {"brighter", [](const Bitmap& b) { return changed(b, [](double v) { return v * 1.15; }); }},
        {"darker", [](const Bitmap& b) { return changed(b, [](double v) { return v * 0.8; }); }},
        {"less contrast", [](const Bitmap& b) { return changed(b, [](double v) { return 128 + (v - 128) * 0.7; }); }},
        {"another gamma",
         [](const Bitmap& b) { return changed(b, [](double v) { return 255 * std::pow(v / 255, 1 / 1.3); }); }},
        {"two hundredths cut off", [](const Bitmap& b) { return cropped(b, 0.02); }},
    };
    std::vector<std::pair<std::string, Bitmap>> originals{{"photo", photo()}};
    for (unsigned seed = 1; seed <= 2; ++seed)
        originals.emplace_back("scene " + std::to_string(seed), scene(seed, 240, 160));
    for (const auto& [name, original] : originals) {
        ASSERT_TRUE(original) << name;
        for (const Case& each : cases) {
            const PictureLook before = look(original), after = look(each.change(original));
            EXPECT_TRUE(looksTheSame(before, after))
                << name << ", " << each.what << ": " << lookDistance(before, after) << " waves differ";
        }
    }
}

TEST(PictureLook, TellsDifferentPicturesApart)
{
    std::vector<PictureLook> looks{look(photo())};
    for (unsigned seed = 1; seed <= 60; ++seed) looks.push_back(look(scene(seed, 96, 64)));
    for (std::size_t a = 0; a < looks.size(); ++a)
        for (std::size_t b = 0; b < a; ++b) EXPECT_FALSE(looksTheSame(looks[a], looks[b])) << a << " and " << b;
}

TEST(PictureLook, OfAMirroredOrSqueezedPictureIsAnother)
{
    const Bitmap original = scene(7, 300, 200), squeezed = scene(7, 200, 200);
    Bitmap mirrored = BitmapRep::create(300, 200);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 300; ++x) std::copy_n(original->view().pixel(299 - x, y), 4, mirrored->view().pixel(x, y));
    EXPECT_FALSE(looksTheSame(look(original), look(mirrored)));
    EXPECT_LE(lookDistance(look(original), look(squeezed)), 2);
    EXPECT_FALSE(looksTheSame(look(original), look(squeezed)));
}

TEST(PictureLook, IsThereForEverySizeButNotForPlainPictures)
{
    for (const auto& [width, height] : {std::pair{1, 40}, {40, 1}, {2, 2}, {31, 33}, {64, 7}, {5000, 3}})
        EXPECT_TRUE(lookOfPicture(scene(3, width, height)->view()) || width * height < 64) << width << " x " << height;
    EXPECT_FALSE(lookOfPicture({}));
    const Bitmap empty = BitmapRep::create(100, 100); // transparent
    EXPECT_FALSE(lookOfPicture(empty->view()));
    EXPECT_FALSE(lookOfPicture(changed(scene(1, 200, 200), [](double) { return 90; })->view()));
    EXPECT_FALSE(lookOfPicture(changed(scene(1, 200, 200), [](double v) { return 90 + v / 255; })->view()));
}
