// SPDX-License-Identifier: GPL-3.0-or-later
/// Profiles for pixels that were grey, inks, or of a stated gamma, as another colour engine's user sees them.
#include "codecs/ColourProfiles.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "support/Samples.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <lcms2.h>

namespace zp::codec
{
namespace
{

/// What @p pixel looks like through @p profile: the same colour in sRGB.
std::array<int, 3> seenThrough(const ProfileBytes& profile, std::array<std::uint8_t, 3> pixel)
{
    cmsHPROFILE from = cmsOpenProfileFromMem(profile.data(), cmsUInt32Number(profile.size()));
    cmsHPROFILE to = cmsCreate_sRGBProfile();
    EXPECT_TRUE(from);
    if (!from) return {};
    EXPECT_EQ(cmsGetColorSpace(from), cmsSigRgbData);
    cmsHTRANSFORM transform =
        cmsCreateTransform(from, TYPE_RGB_8, to, TYPE_RGB_8, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
    std::array<std::uint8_t, 3> out{};
    cmsDoTransform(transform, pixel.data(), out.data(), 1);
    cmsDeleteTransform(transform);
    cmsCloseProfile(from);
    cmsCloseProfile(to);
    return {out[0], out[1], out[2]};
}

ProfileBytes greyProfile(double gamma)
{
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), curve);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    ProfileBytes bytes(size);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsFreeToneCurve(curve);
    cmsCloseProfile(profile);
    return bytes;
}

/// sRGB's value for a linear light.
int encoded(double light)
{
    const double value = light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return int(std::lround(value * 255));
}

TEST(ColourProfiles, OfGreyKeepEveryLook)
{
    for (const double gamma : {1.0, 1.8, 2.2}) {
        const ProfileBytes profile = rgbProfileFromGrey(greyProfile(gamma));
        for (const int value : {0, 40, 128, 200, 255}) {
            const auto grey = std::uint8_t(value);
            const int wanted = encoded(std::pow(value / 255.0, gamma));
            for (const int channel : seenThrough(profile, {grey, grey, grey}))
                EXPECT_NEAR(channel, wanted, 2) << gamma << ": " << value;
        }
    }
    EXPECT_TRUE(rgbProfileFromGrey(sRGBProfile()).empty());
    EXPECT_TRUE(rgbProfileFromGrey(ProfileBytes(200, 7)).empty());
}

TEST(ColourProfiles, OfPNGFilesSayWhatTheFileSays)
{
    for (const double power : {1.0, 1.8}) {
        const ProfileBytes profile = profileFromPNG({.gamma = 1 / power});
        for (const int value : {0, 60, 130, 255}) {
            const auto v = std::uint8_t(value);
            for (const int channel : seenThrough(profile, {v, v, v}))
                EXPECT_NEAR(channel, encoded(std::pow(value / 255.0, power)), 2);
        }
    }
    // Display P3's primaries: its green is beyond what sRGB can show.
    const ProfileBytes wide = profileFromPNG({.gamma = 0.45455,
                                              .hasPrimaries = true,
                                              .white = {0.3127, 0.3290},
                                              .red = {0.680, 0.320},
                                              .green = {0.265, 0.690},
                                              .blue = {0.150, 0.060}});
    const auto seen = seenThrough(wide, {200, 60, 60});
    EXPECT_GT(seen[0], 208);
    EXPECT_LT(seen[1], 55);
}

TEST(ColourProfiles, OfPNGFilesAreLeftOutWhereTheySayNothing)
{
    EXPECT_TRUE(profileFromPNG({}).empty());
    EXPECT_TRUE(profileFromPNG({.gamma = 0.45455}).empty()) << "sRGB near enough";
    EXPECT_TRUE(profileFromPNG({.gamma = 0.00001}).empty());
    EXPECT_TRUE(profileFromPNG({.gamma = 0.5, .hasPrimaries = true}).empty()) << "primaries of nothing";
}

TEST(ColourProfiles, OfGreyFilesComeWithThePicture)
{
    const ImportedImage linear = importImageFile(test::sample("png-modes/rgb-8-linear.png"));
    ASSERT_TRUE(linear.bitmap);
    ASSERT_FALSE(linear.bitmap->properties.iccProfile.empty());
    EXPECT_EQ(seenThrough(linear.bitmap->properties.iccProfile, {55, 55, 55})[0], encoded(55 / 255.0));
    const ImportedImage standard = importImageFile(test::sample("png-modes/rgb-8-sRGB.png"));
    EXPECT_TRUE(standard.bitmap->properties.iccProfile.empty());
}

/// A press that lays down so much less light for each ink, as Lab numbers.
cmsInt32Number press(const cmsUInt16Number in[], cmsUInt16Number out[], void*)
{
    const double k = 1 - in[3] / 65535.0;
    cmsCIEXYZ light{};
    cmsCIELab colour{};
    const double red = (1 - in[0] / 65535.0) * k, green = (1 - in[1] / 65535.0) * k, blue = (1 - in[2] / 65535.0) * k;
    const cmsCIEXYZ* white = cmsD50_XYZ();
    light.X = white->X * (0.4 * red + 0.4 * green + 0.2 * blue);
    light.Y = white->Y * (0.2 * red + 0.7 * green + 0.1 * blue);
    light.Z = white->Z * (0.1 * green + 0.9 * blue);
    cmsXYZ2Lab(white, &colour, &light);
    cmsFloat2LabEncodedV2(out, &colour);
    return TRUE;
}

ProfileBytes pressProfile()
{
    constexpr int kGrid = 9;
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.1);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsPipeline* table = cmsPipelineAlloc(nullptr, 4, 3);
    cmsStage* grid = cmsStageAllocCLut16bit(nullptr, kGrid, 4, 3, nullptr);
    cmsStageSampleCLut16bit(grid, press, nullptr, 0);
    cmsPipelineInsertStage(table, cmsAT_BEGIN, grid);
    EXPECT_TRUE(cmsWriteTag(profile, cmsSigAToB0Tag, table));
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    ProfileBytes bytes(size);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsPipelineFree(table);
    cmsCloseProfile(profile);
    return bytes;
}

TEST(Inks, BecomeColoursByTheirProfile)
{
    const ProfileBytes profile = pressProfile();
    const InkConverter plain(profile, false), inverted(profile, true);
    ASSERT_TRUE(plain);
    const std::uint8_t inks[] = {0, 0, 0, 0, 0, 0, 0, 255, 0, 255, 255, 0},
                       turned[] = {255, 255, 255, 255, 255, 255, 255, 0, 255, 0, 0, 255};
    std::uint8_t argb[12], same[12];
    plain.convert(inks, argb, 3);
    inverted.convert(turned, same, 3);
    EXPECT_TRUE(std::equal(argb, argb + 12, same));
    for (int c = 1; c < 4; ++c) {
        EXPECT_EQ(argb[0], 255);
        EXPECT_GE(argb[c], 252) << "paper";
        EXPECT_LE(argb[4 + c], 3) << "black";
    }
    EXPECT_GT(argb[9], argb[10] + 60) << "magenta and yellow make red";
    EXPECT_GT(argb[9], argb[11] + 60);
}

TEST(Inks, AreNotMadeColoursByAnyOtherProfile)
{
    cmsHPROFILE profile = cmsCreateInkLimitingDeviceLink(cmsSigCmykData, 300);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    ProfileBytes link(size);
    cmsSaveProfileToMem(profile, link.data(), &size);
    cmsCloseProfile(profile);
    EXPECT_FALSE(InkConverter(link, false)) << "a link between two devices describes no inks";
    EXPECT_FALSE(InkConverter(sRGBProfile(), false));
    EXPECT_FALSE(InkConverter({}, false));
}

} // namespace
} // namespace zp::codec
