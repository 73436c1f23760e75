// SPDX-License-Identifier: GPL-3.0-or-later
/// Chooses by headers, makes by the steps of the run.
#include "batch/BatchPreview.h"
#include "base/Folders.h"
#include "batch/BatchPicture.h"
#include <algorithm>
#include <cmath>
#include <numbers>

namespace zp
{
namespace
{

/// Cameras and croppers round: a hundredth is no other shape.
constexpr double kSameShape = 0.01;

double flatness(const PixelDimensions& size) { return std::log(double(size.width) / size.height); }
std::int64_t area(const PixelDimensions& size) { return std::int64_t{size.width} * size.height; }

} // namespace

std::vector<std::size_t> picturesOfDifferentShape(std::span<const PixelDimensions> sizes, bool& alike)
{
    std::vector<std::size_t> known, unknown, chosen;
    for (std::size_t i = 0; i < sizes.size(); ++i)
        (sizes[i].width > 0 && sizes[i].height > 0 ? known : unknown).push_back(i);
    // Takes the first of the known that @p before puts before all others.
    const auto take = [&](const auto& before) {
        if (known.empty()) return;
        const auto best =
            std::min_element(known.begin(), known.end(), [&](auto a, auto b) { return before(sizes[a], sizes[b]); });
        chosen.push_back(*best);
        known.erase(best);
    };
    const auto flatter = [](const PixelDimensions& a, const PixelDimensions& b) { return flatness(a) > flatness(b); };
    const auto larger = [](const PixelDimensions& a, const PixelDimensions& b) { return area(a) > area(b); };
    alike = known.size() > 1;
    for (const std::size_t i : known)
        alike = alike && std::abs(flatness(sizes[i]) - flatness(sizes[known.front()])) < kSameShape;
    if (alike) {
        std::stable_sort(known.begin(), known.end(), [&](auto a, auto b) { return larger(sizes[a], sizes[b]); });
        chosen = {known.front()};
        if (known.size() > 2) chosen.push_back(known[known.size() / 2]);
        chosen.push_back(known.back());
    } else {
        take(flatter);
        take([&](const auto& a, const auto& b) { return flatter(b, a); });
        take([](const auto& a, const auto& b) {
            const double squareA = std::abs(flatness(a)), squareB = std::abs(flatness(b));
            return std::abs(squareA - squareB) < kSameShape ? area(a) < area(b) : squareA < squareB;
        });
    }
    for (std::size_t i = 0; i < unknown.size() && chosen.size() < kPreviewPictures; ++i) chosen.push_back(unknown[i]);
    return chosen;
}

const PreviewChoice& BatchPreview::choose(const BatchSettings& settings, const Cancelled& cancelled)
{
    if (mChosen && mSource == settings.source) return mChoice;
    forget();
    mSource = settings.source;
    std::vector<std::string> names;
    mChoice.error = batchNames(settings, names);
    mChoice.of = names.size();
    const std::size_t count = std::min(names.size(), kPreviewHeaders);
    std::vector<PixelDimensions> sizes(count);
    // One of each stretch of names, never at the same place in it: cameras that take every scene five times are not to
    // be met at every fifth picture.
    const auto nameAt = [&](std::size_t i) -> const std::string& {
        const std::size_t first = i * names.size() / count, next = (i + 1) * names.size() / count;
        double whole = 0;
        const double within = std::modf(double(i) * std::numbers::phi, &whole);
        return names[first + std::size_t(within * double(next - first))];
    };
    for (std::size_t i = 0; i < count; ++i) {
        if (cancelled()) return mChoice;
        sizes[i] = imageFileDimensions(batchSource(settings, nameAt(i)));
    }
    mChoice.looked = count;
    for (const std::size_t i : picturesOfDifferentShape(sizes, mChoice.alike)) mChoice.names.push_back(nameAt(i));
    mChosen = true;
    return mChoice;
}

BatchPreview::Picture BatchPreview::picture(const BatchSettings& settings, std::size_t place, int side)
try {
    Plain& plain = mPlain[place];
    if (plain.side != side || plain.fitWidth != settings.fitWidth || plain.fitHeight != settings.fitHeight) {
        BatchPicture made(settings, mChoice.names[place], side);
        plain = {settings.fitWidth, settings.fitHeight, side, made.read(), {}, {}};
        if (plain.error.empty()) plain.error = made.fit();
        if (plain.error.empty()) {
            plain.bitmap = made.bitmap();
            plain.result = made.resultSize();
        }
    }
    if (!plain.bitmap) return {{}, {}, plain.error};
    const std::shared_ptr<BitmapRep> stamped = copyOf(*plain.bitmap);
    if (!stamped) return {{}, {}, "There is not enough memory."};
    stampWatermark(settings, plain.result, stamped->view());
    return {stamped, plain.result, {}};
} catch (const std::exception&) {
    return {{}, {}, "There is not enough memory."};
}

void BatchPreview::forget()
{
    mChosen = false;
    mChoice = {};
    mPlain = {};
}

} // namespace zp
