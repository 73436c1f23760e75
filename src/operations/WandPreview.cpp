// SPDX-License-Identifier: GPL-3.0-or-later
/// The wand's own rules, asked beforehand and afterwards.
#include "operations/WandPreview.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/PixelAccess.h"
#include "operations/SelectedPixels.h"
#include "selection/MaskOps.h"
#include "tools/FillSeed.h"
#include "tools/FillStack.h"
#include "tools/StackProof.h"
#include <QCoreApplication>
#include <new>

namespace zp
{

namespace
{

/// So far a hand slips that only meant to click, in screen points; and so many of them are a step of the tolerance.
constexpr double kSlip = 6, kPointsPerStep = 4;
constexpr int kMostTolerance = 100;

struct WandTexts {
    Q_DECLARE_TR_FUNCTIONS(Wand)
};

QString distanceInWords(ChannelDistance farthest, int allowed)
{
    const auto sentence = [&] {
        switch (farthest.channel) {
        case Channel::Red:
            return WandTexts::tr("Outside: red differs by %1, the tolerance allows %2");
        case Channel::Green:
            return WandTexts::tr("Outside: green differs by %1, the tolerance allows %2");
        case Channel::Blue:
            return WandTexts::tr("Outside: blue differs by %1, the tolerance allows %2");
        case Channel::Alpha:
            break;
        }
        return WandTexts::tr("Outside: opacity differs by %1, the tolerance allows %2");
    };
    return sentence().arg(farthest.distance).arg(allowed);
}

auto untilAfter(std::chrono::nanoseconds budget)
{
    using Clock = std::chrono::steady_clock;
    return [end = Clock::now() + budget, first = true]() mutable {
        return std::exchange(first, false) || Clock::now() < end;
    };
}

} // namespace

std::optional<WandQuestion> wandQuestion(const Document& document, Point point, std::uint32_t keys)
{
    const Picture& picture = document.picture();
    const Selection& selection = document.selection();
    if (!picture.isLoaded()) return std::nullopt;
    // With Shift or Option the old outline waits while the new one is made, and is not there to be moved.
    const bool combines = keys & (kShiftKey | kOptionKey) && !selection.isNil();
    if (selection.contains(point) && (!combines || keys & kCommandKey)) return std::nullopt;
    const std::optional<PixelPoint> seed = fillSeed(pixelUnder(point), picture.box());
    if (!seed) return std::nullopt;
    return WandQuestion{.seed = *seed,
                        .target = wordUnder(picture.pixels(), pixelUnder(point)),
                        .tolerance = toleranceForSlider(document.paint().toleranceSetting()),
                        .adding = (keys & kShiftKey) != 0,
                        .outline = selection.version(),
                        .pixels = picture.writes()};
}

void WandPreview::takeNoteOf(const Document& document)
{
    const Picture& picture = document.picture();
    if (mKnownWrites == picture.writes() && mKnownWidth == picture.width() && mKnownHeight == picture.height()) return;
    mKnownWrites = picture.writes(), mKnownWidth = picture.width(), mKnownHeight = picture.height();
    mTileBounds.reset(mKnownWidth, mKnownHeight);
    mAllKnown = false;
}

bool WandPreview::isPrepared(const Document& document) const
{
    return mAllKnown && mKnownWrites == document.picture().writes();
}

bool WandPreview::prepare(const Document& document, std::chrono::nanoseconds budget)
{
    takeNoteOf(document);
    return mAllKnown = mTileBounds.goOn(document.picture().pixels(), untilAfter(budget));
}

ConstMaskView WandPreview::wallsOf(const Document& document)
{
    const Selection& selection = document.selection();
    if (selection.isNil() || selection.mask().shows(selection.version())) return selection.mask().known();
    const int width = document.picture().width(), height = document.picture().height();
    const std::size_t bytes = std::size_t(width) * std::size_t(height);
    if (mWallBytes != bytes) {
        mWalls = allocatePixelsUninitialized(bytes);
        mWallBytes = mWalls ? bytes : 0;
        if (!mWalls) throw std::bad_alloc();
    }
    const MaskView walls{mWalls.get(), width, height, width};
    fillMask(walls, kNotSelected);
    renderPathInMask(walls, *selection.outline(), kSelected);
    return walls;
}

void WandPreview::start(const Document& document, const WandQuestion& question)
{
    takeNoteOf(document);
    const ConstMaskView walls = question.adding ? wallsOf(document) : ConstMaskView{};
    mFound.start(document.picture().pixels(), walls, question.seed, {question.target, question.tolerance, false},
                 &mTileBounds);
}

bool WandPreview::goOn(std::chrono::nanoseconds budget)
{
    if (!mFound.goOn(untilAfter(budget))) return false;
    // Where the wand's own search would run out of stack it leaves a part, of which nothing is known beforehand.
    const FillStack& stack = sharedFillStack();
    if (!stackNeverFills(mKnownWidth, mKnownHeight, stack) && mFound.columnScanPushes() > std::size_t(stack.capacity()))
        mFound.forget();
    return true;
}

QString wandReason(const Document& document, Point point)
{
    const std::optional<WandPress>& press = document.gesture().wandPress();
    const Picture& picture = document.picture();
    const Selection& selection = document.selection();
    if (!press || document.gesture().isMouseDown() || press->result != selection.version() ||
        press->pixels != picture.writes())
        return {};
    const int x = int(std::floor(point.x)), y = int(std::floor(point.y));
    if (!picture.box().contains(x, y)) return {};
    const bool inside = selection.mask().shows(selection.version())
                            ? selection.mask().at(x, y) != kNotSelected
                            : selection.contains({float(x) + 0.5f, float(y) + 0.5f});
    if (inside) return WandTexts::tr("Inside");
    const int tolerance = toleranceForSlider(press->setting);
    const ChannelDistance farthest = farthestChannel(picture.pixels().row(y)[x], press->target);
    if (farthest.distance < tolerance) return WandTexts::tr("Outside: within the tolerance, but not connected");
    if (tolerance == 0) return WandTexts::tr("Outside: a tolerance of 0 takes nothing");
    return distanceInWords(farthest, tolerance - 1);
}

int toleranceOfDrag(int before, double points)
{
    const double beyond = std::abs(points) - kSlip;
    if (beyond < 0) return before;
    // At 0 nothing is taken, and the next press would seem dead.
    const double steps = std::copysign(std::ceil(beyond / kPointsPerStep), points);
    return int(std::clamp(before + steps, std::min(double(before), 1.0), double(kMostTolerance)));
}

} // namespace zp
