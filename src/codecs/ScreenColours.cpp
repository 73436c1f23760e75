// SPDX-License-Identifier: GPL-3.0-or-later
/// LittleCMS says what two profiles mean; its curves and matrices become tables.
#include "codecs/ScreenColours.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <lcms2.h>
#include <optional>

namespace zp
{

namespace
{

/// Of a curve that is a table and has to be turned round: even steps, so that it takes many to be fine near black.
constexpr int kInverseSteps = 65'535;
/// Nobody sees one step of 255.
constexpr int kSame = 1;

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

Profile open(std::span<const std::uint8_t> bytes)
{
    Profile profile(bytes.empty() ? nullptr : cmsOpenProfileFromMem(bytes.data(), cmsUInt32Number(bytes.size())));
    if (profile && cmsGetColorSpace(profile.get()) != cmsSigRgbData) profile.reset();
    if (!profile) profile.reset(cmsCreate_sRGBProfile());
    return profile;
}

/// Whether the colours of a grid over all there are stay as they are.
bool changesNothing(cmsHTRANSFORM transform)
{
    constexpr std::uint32_t kSteps = 9, kStep = 255 / (kSteps - 1);
    std::array<std::uint32_t, kSteps * kSteps * kSteps> before{}, after{};
    for (std::uint32_t i = 0; i < before.size(); ++i)
        before[i] = i % kSteps * kStep << 16 | i / kSteps % kSteps * kStep << 8 | i / (kSteps * kSteps) * kStep;
    after = before;
    cmsDoTransform(transform, before.data(), after.data(), cmsUInt32Number(before.size()));
    for (std::size_t i = 0; i < before.size(); ++i)
        for (const unsigned shift : {0u, 8u, 16u})
            if (std::abs(int(before[i] >> shift & 255u) - int(after[i] >> shift & 255u)) > kSame) return false;
    return true;
}

using Matrix = std::array<double, 9>;

Matrix inverse(const Matrix& m)
{
    const auto minor = [&m](std::size_t a, std::size_t b, std::size_t c, std::size_t d) {
        return m[a] * m[d] - m[b] * m[c];
    };
    const double determinant = m[0] * minor(4, 5, 7, 8) - m[1] * minor(3, 5, 6, 8) + m[2] * minor(3, 4, 6, 7);
    Matrix out{minor(4, 5, 7, 8), minor(2, 1, 8, 7), minor(1, 2, 4, 5), minor(5, 3, 8, 6), minor(0, 2, 6, 8),
               minor(2, 0, 5, 3), minor(3, 4, 6, 7), minor(1, 0, 7, 6), minor(0, 1, 3, 4)};
    for (double& value : out) value /= determinant;
    return out;
}

constexpr cmsTagSignature kColumns[] = {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag};
constexpr cmsTagSignature kCurves[] = {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag};

/// Light of the three colours to light as an eye sees it. Nothing for a profile that is a table of colours.
std::optional<Matrix> matrixOf(const Profile& profile)
{
    if (!cmsIsMatrixShaper(profile.get()) || cmsIsTag(profile.get(), cmsSigAToB0Tag)) return std::nullopt;
    Matrix matrix{};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto* column = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile.get(), kColumns[i]));
        if (!column || !cmsReadTag(profile.get(), kCurves[i])) return std::nullopt;
        matrix[i] = column->X;
        matrix[3 + i] = column->Y;
        matrix[6 + i] = column->Z;
    }
    return matrix;
}

std::unique_ptr<ColourTables> tablesBetween(const Profile& from, const Profile& to)
{
    const std::optional<Matrix> in = matrixOf(from), out = matrixOf(to);
    if (!in || !out) return nullptr;
    const Matrix back = inverse(*out);
    auto tables = std::make_unique<ColourTables>();
    constexpr int kLast = ColourTables::kSteps - 1;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            double sum = 0;
            for (std::size_t k = 0; k < 3; ++k) sum += back[3 * row + k] * (*in)[3 * k + column];
            if (!std::isfinite(sum)) return nullptr;
            tables->matrix[3 * row + column] = float(sum);
        }
    for (std::size_t c = 0; c < 3; ++c) {
        const auto* curve = static_cast<const cmsToneCurve*>(cmsReadTag(from.get(), kCurves[c]));
        for (std::size_t i = 0; i < 256; ++i) tables->light[c][i] = cmsEvalToneCurveFloat(curve, float(i) / 255);
        cmsToneCurve* reversed =
            cmsReverseToneCurveEx(kInverseSteps, static_cast<const cmsToneCurve*>(cmsReadTag(to.get(), kCurves[c])));
        if (!reversed) return nullptr;
        for (std::size_t i = 0; i <= kLast; ++i) {
            const float root = float(i) / kLast;
            const float value = cmsEvalToneCurveFloat(reversed, root * root);
            tables->byte[c][i] = std::uint32_t(std::lround(std::clamp(value, 0.0f, 1.0f) * 255));
        }
        cmsFreeToneCurve(reversed);
    }
    return tables;
}

} // namespace

std::shared_ptr<const ScreenColours> ScreenColours::between(std::span<const std::uint8_t> picture,
                                                            std::span<const std::uint8_t> screen)
{
    if (picture.empty() && screen.empty()) return nullptr;
    const Profile from = open(picture), to = open(screen);
    if (!from || !to) return nullptr;
    // Words of blue, green, red and what is kept: no cache, so that several threads may use it.
    cmsHTRANSFORM transform = cmsCreateTransform(from.get(), TYPE_BGRA_8, to.get(), TYPE_BGRA_8,
                                                 INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE | cmsFLAGS_COPY_ALPHA);
    if (!transform) return nullptr;
    if (changesNothing(transform)) {
        cmsDeleteTransform(transform);
        return nullptr;
    }
    return std::shared_ptr<const ScreenColours>(new ScreenColours(transform, tablesBetween(from, to)));
}

ScreenColours::ScreenColours(void* transform, std::unique_ptr<ColourTables> tables)
    : mMatching(transform), mTables(std::move(tables))
{
}

ScreenColours::~ScreenColours() { cmsDeleteTransform(mMatching); }

void ScreenColours::convertRow(std::uint32_t* words, int count) const
{
    cmsDoTransform(mMatching, words, words, cmsUInt32Number(count));
}

} // namespace zp
