// SPDX-License-Identifier: GPL-3.0-or-later
/// LittleCMS behind our own words.
#include "codecs/ColourProfiles.h"
#include <algorithm>
#include <cmath>
#include <lcms2.h>

namespace zp::codec
{

namespace
{

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using Curve = std::unique_ptr<cmsToneCurve, FreeCurve>;

/// Of sRGB, and the white of daylight that it is seen by.
constexpr cmsCIExyY kDaylight{0.3127, 0.3290, 1};
constexpr cmsCIExyYTRIPLE kPrimaries{{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
constexpr double kGamma = 1 / 2.2;
/// Closer than the numbers of a PNG file are exact, and than anybody sees.
constexpr double kSameGamma = 0.005, kSamePlace = 0.002;

Profile open(std::span<const std::uint8_t> bytes, cmsColorSpaceSignature space)
{
    Profile profile(cmsOpenProfileFromMem(bytes.data(), cmsUInt32Number(bytes.size())));
    if (profile && cmsGetColorSpace(profile.get()) != space) profile.reset();
    return profile;
}

ProfileBytes bytesOf(const Profile& profile)
{
    cmsUInt32Number size = 0;
    if (!profile || !cmsSaveProfileToMem(profile.get(), nullptr, &size)) return {};
    ProfileBytes bytes(size);
    if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &size)) return {};
    return bytes;
}

void name(const Profile& profile, const char* text)
{
    if (!profile) return;
    cmsMLU* words = cmsMLUalloc(nullptr, 1);
    if (!words) return;
    if (cmsMLUsetASCII(words, "en", "US", text)) cmsWriteTag(profile.get(), cmsSigProfileDescriptionTag, words);
    cmsMLUfree(words);
}

ProfileBytes rgbProfile(const cmsCIExyY& white, const cmsCIExyYTRIPLE& primaries, cmsToneCurve* curve,
                        const char* title)
{
    cmsToneCurve* const curves[3] = {curve, curve, curve};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
    name(profile, title);
    // Version 2 is understood by every program that looks at profiles at all.
    constexpr double kVersion = 2.1;
    if (profile) cmsSetProfileVersion(profile.get(), kVersion);
    return bytesOf(profile);
}

bool isNear(const double (&place)[2], const cmsCIExyY& other)
{
    return std::abs(place[0] - other.x) < kSamePlace && std::abs(place[1] - other.y) < kSamePlace;
}

bool isPlace(const double (&place)[2]) { return place[0] >= 0 && place[1] > 0 && place[0] + place[1] <= 1; }

cmsCIExyY toPlace(const double (&place)[2]) { return {place[0], place[1], 1}; }

} // namespace

ProfileBytes rgbProfileFromGrey(std::span<const std::uint8_t> grey)
{
    const Profile profile = open(grey, cmsSigGrayData);
    if (!profile) return {};
    auto* const curve = static_cast<cmsToneCurve*>(cmsReadTag(profile.get(), cmsSigGrayTRCTag));
    return curve ? rgbProfile(kDaylight, kPrimaries, curve, "Grey curve as RGB") : ProfileBytes();
}

ProfileBytes profileFromPNG(const PNGColours& colours)
{
    const bool saysGamma = colours.gamma > 0;
    if (!saysGamma && !colours.hasPrimaries) return {};
    const double gamma = saysGamma ? colours.gamma : kGamma;
    constexpr double kLeast = 0.05, kMost = 5;
    if (!(gamma >= kLeast && gamma <= kMost)) return {};
    cmsCIExyY white = kDaylight;
    cmsCIExyYTRIPLE primaries = kPrimaries;
    bool isStandard = true;
    if (colours.hasPrimaries) {
        for (const auto* place : {&colours.white, &colours.red, &colours.green, &colours.blue})
            if (!isPlace(*place)) return {};
        isStandard = isNear(colours.white, kDaylight) && isNear(colours.red, kPrimaries.Red) &&
                     isNear(colours.green, kPrimaries.Green) && isNear(colours.blue, kPrimaries.Blue);
        white = toPlace(colours.white);
        primaries = {toPlace(colours.red), toPlace(colours.green), toPlace(colours.blue)};
    }
    if (isStandard && std::abs(gamma - kGamma) < kSameGamma) return {};
    const Curve curve(cmsBuildGamma(nullptr, 1 / gamma));
    return curve ? rgbProfile(white, primaries, curve.get(), "PNG gamma and primaries") : ProfileBytes();
}

ProfileBytes sRGBProfile()
{
    const Profile profile(cmsCreate_sRGBProfile());
    return bytesOf(profile);
}

InkConverter::InkConverter(std::span<const std::uint8_t> profile, bool inverted)
{
    const Profile inks = open(profile, cmsSigCmykData);
    const Profile screen(cmsCreate_sRGBProfile());
    if (!inks || !screen) return;
    mMatching = cmsCreateTransform(inks.get(), inverted ? TYPE_CMYK_8_REV : TYPE_CMYK_8, screen.get(), TYPE_ARGB_8,
                                   INTENT_PERCEPTUAL, cmsFLAGS_NOCACHE);
}

InkConverter::~InkConverter()
{
    if (mMatching) cmsDeleteTransform(mMatching);
}

void InkConverter::convert(const std::uint8_t* inks, std::uint8_t* argb, int count) const
{
    cmsDoTransform(mMatching, inks, argb, cmsUInt32Number(count));
    for (int x = 0; x < count; ++x) argb[4 * x] = 255; // not carried over: inks are opaque
}

} // namespace zp::codec
