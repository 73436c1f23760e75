// SPDX-License-Identifier: GPL-3.0-or-later
/// The filter chain: its colour steps folded into one matrix, its blur streamed through the caches.
#include "drawing/Filters.h"
#include "base/BitmapRep.h"
#include "base/WorkPool.h"
#include "drawing/FiltersBlur.h"
#include <array>
#include <cmath>
#include <cstring>
#include <new>

namespace zp
{

namespace
{

using filters::ColourMatrix;
using Matrix3 = std::array<std::array<double, 3>, 3>;

/// What red, green and blue weigh in the grey that saturation keeps: ITU-R BT.709.
constexpr std::array<double, 3> kLuma{0.2126, 0.7152, 0.0722};

/// A turn about the grey axis (1, 1, 1); a positive angle leads from red towards green.
Matrix3 hueRotation(double angle)
{
    const double c = std::cos(angle), s = std::sin(angle) / std::sqrt(3.0), rest = (1 - c) / 3;
    return {{{c + rest, rest - s, rest + s}, {rest + s, c + rest, rest - s}, {rest - s, rest + s, c + rest}}};
}

/// Hue, saturation about luma, brightness added, contrast about mid grey, in this order. The steps are exact sums of
/// products, so folding them is the chain of them in real numbers, clamped once at its end. On premultiplied colour the
/// added parts are multiplied by alpha, and nothing needs dividing.
ColourMatrix foldColour(const FilterSettings& settings)
{
    const Matrix3 hue = hueRotation(settings.hueAngle);
    const double saturation = settings.saturation, contrast = settings.contrast;
    ColourMatrix folded;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            double sum = 0;
            for (std::size_t k = 0; k < 3; ++k)
                sum += ((1 - saturation) * kLuma[k] + (k == row ? saturation : 0)) * hue[k][column];
            folded.m[4 * row + column] = float(contrast * sum);
        }
        folded.m[4 * row + 3] = float(contrast * (double(settings.brightness) - 0.5) + 0.5);
    }
    return folded;
}

filters::SharpenAmount sharpenAmount(float intensity)
{
    filters::SharpenAmount amount;
    double factor = std::isfinite(intensity) ? double(intensity) : 0;
    for (; std::abs(factor) > 2 && amount.doublings < 8; ++amount.doublings) factor /= 2;
    amount.factor = std::int16_t(std::clamp(std::lround(factor * 16384), -32767L, 32767L));
    return amount;
}

bool blurs(float sigma) { return sigma > 0 && std::isfinite(sigma); }

} // namespace

void applyFilters(ConstBitmapView source, BitmapView destination, const FilterSettings& settings, PixelBox part)
{
    part = part.intersected(source.box());
    if (part.isEmpty()) return;
    filters::BlurJob job;
    job.colour =
        settings.hueAngle != 0 || settings.saturation != 1 || settings.brightness != 0 || settings.contrast != 1;
    if (job.colour) job.matrix = foldColour(settings);
    const bool blur = blurs(settings.blurRadius);
    if (settings.unsharpIntensity != 0 && blurs(settings.unsharpRadius)) {
        job.sharpen = true;
        job.sigma = settings.unsharpRadius;
        job.amount = sharpenAmount(settings.unsharpIntensity);
        if (!blur) return filters::blurPart(source, destination, job, part);
        // Both at once: the blur reads the sharpened pixels around the part too.
        const int reach = filters::blurReach(settings.blurRadius);
        const PixelBox around =
            PixelBox{part.x0 - reach, part.y0 - reach, part.x1 + reach, part.y1 + reach}.intersected(source.box());
        const auto sharpened = BitmapRep::createUninitialized(source.width, source.height);
        if (!sharpened) throw std::bad_alloc();
        filters::blurPart(source, sharpened->view(), job, around);
        filters::BlurJob last;
        last.sigma = settings.blurRadius;
        return filters::blurPart(sharpened->view(), destination, last, part);
    }
    if (blur) {
        job.sigma = settings.blurRadius;
        return filters::blurPart(source, destination, job, part);
    }
    parallelBands(part.height(), std::max(1, 200'000 / part.width()), [&](int from, int to) {
        for (int y = part.y0 + from; y < part.y0 + to; ++y) {
            const std::uint32_t* in = source.row(y) + part.x0;
            std::uint32_t* out = destination.row(y) + part.x0;
            if (job.colour)
                filters::colourRow(in, out, part.width(), job.matrix);
            else
                std::memcpy(out, in, std::size_t(part.width()) * 4);
        }
    });
}

} // namespace zp
