// SPDX-License-Identifier: GPL-3.0-or-later
/// The transitions of the selection: nobody else writes its fields.
#include "document/Selection.h"
#include "document/Picture.h"
#include "drawing/BitmapContext.h"
#include "selection/FloatingImage.h"
#include "selection/PathBooleans.h"
#include <array>
#include <chrono>

namespace zp
{

namespace
{

constexpr std::chrono::milliseconds kAntsStep{200};
constexpr float kPhaseStep = 2.5f, kPhases = 10;
/// Pixels by which a pulled corner counts as in its place.
constexpr float kNoPull = 1.0f / 1024;

} // namespace

Selection::Selection(std::function<void()> tick) : mTick(std::move(tick)) {}

// ---- the outline ----------------------------------------------------------------------------------------------------

void Selection::outlineChanged()
{
    ++mOutlineVersion;
    mMaskOfOutline.outlineChanged(mOutlineVersion);
}

void Selection::rememberDropped()
{
    if (mSelectionPath && !mSelectionPath->isEmpty()) mDroppedPath = std::move(mSelectionPath);
    mSelectionPath.reset();
}

void Selection::endFloating()
{
    mFloating.reset();
    mPasteIntoSelectionPath.reset();
    mUnpulled.reset();
    mTransform = false;
    mTransformMode = -1;
}

void Selection::select(BezierPath outline)
{
    endFloating();
    mSelectionPath = std::move(outline);
    outlineChanged();
    marchAnts();
}

void Selection::selectTraced(BezierPath outline)
{
    mSelectionPath = std::move(outline);
    ++mOutlineVersion;
    mMaskOfOutline.nowShows(mOutlineVersion);
}

void Selection::drop()
{
    endFloating();
    rememberDropped();
    mAuxSelectionPath.reset();
    outlineChanged();
    if (!mMaskOfOutline.isClear()) mMaskOfOutline.clear();
    restAnts();
}

void Selection::reselect()
{
    if (mDroppedPath) select(*mDroppedPath);
}

void Selection::beginShape()
{
    endFloating();
    if (mAuxSelectionPath)
        mSelectionPath.reset(); // the empty one that took the parked outline's place
    else
        rememberDropped();
    outlineChanged();
}

void Selection::shape(BezierPath outline)
{
    mSelectionPath = std::move(outline);
    outlineChanged();
}

void Selection::extendShape(Point corner)
{
    if (!mSelectionPath) return;
    mSelectionPath->lineTo(corner);
    outlineChanged();
}

void Selection::moveLastCorner(Point corner)
{
    if (!mSelectionPath || mSelectionPath->isEmpty()) return;
    mSelectionPath->setAssociatedPoints({&corner, 1}, mSelectionPath->elementCount() - 1);
    outlineChanged();
}

void Selection::closeShape()
{
    if (!mSelectionPath) return;
    mSelectionPath->closePath();
    outlineChanged();
}

void Selection::closePolygon()
{
    if (!mSelectionPath || mSelectionPath->isEmpty()) return;
    std::array<Point, 3> start;
    mSelectionPath->elementAt(0, start);
    moveLastCorner(start[0]);
    closeShape();
}

void Selection::park(SetOperation operation)
{
    endFloating();
    mAuxSelectionPath = std::exchange(mSelectionPath, BezierPath());
    mParkedFor = operation;
    outlineChanged();
}

void Selection::unpark()
{
    if (!mAuxSelectionPath) return;
    mSelectionPath = std::exchange(mAuxSelectionPath, std::nullopt);
    outlineChanged();
}

void Selection::forgetParked()
{
    if (mAuxSelectionPath) mDroppedPath = std::exchange(mAuxSelectionPath, std::nullopt);
}

void Selection::combine(SetOperation operation)
{
    if (!mAuxSelectionPath) return;
    BezierPath previous = std::move(*mAuxSelectionPath), drawn = std::move(mSelectionPath).value_or(BezierPath{});
    mAuxSelectionPath.reset();
    mSelectionPath.reset();
    // A selection is filled even-odd everywhere; a loop of the lasso that leaves its middle out does so here too.
    previous.setWindingRule(WindingRule::EvenOdd);
    drawn.setWindingRule(WindingRule::EvenOdd);
    try {
        if (operation == SetOperation::Union)
            mSelectionPath = pathFromUnionWithPath(drawn, previous);
        else if (operation == SetOperation::Difference)
            mSelectionPath = pathFromDifferenceWithPath(previous, drawn);
        else
            mDroppedPath = std::move(previous);
    } catch (...) {
        mSelectionPath = std::move(previous);
        outlineChanged();
        throw;
    }
    outlineChanged();
}

void Selection::endWithoutShape(bool reselectable)
{
    if (reselectable) rememberDropped();
    mSelectionPath.reset();
    mAuxSelectionPath.reset();
    outlineChanged();
    if (!mMaskOfOutline.isClear()) mMaskOfOutline.clear();
}

void Selection::move(Point step)
{
    mTransformRecord.position = mTransformRecord.position + step;
    if (mFloating) mFloating->markChanged();
    if (!mSelectionPath) return;
    AffineTransform shift;
    shift.translate(step.x, step.y);
    mSelectionPath->transform(shift);
    outlineChanged();
}

void Selection::setEvenOdd()
{
    if (mSelectionPath) mSelectionPath->setWindingRule(WindingRule::EvenOdd);
}

void Selection::setLineStyle(float width, float dash, float phase)
{
    if (!mSelectionPath) return;
    mSelectionPath->setLineWidth(width);
    mSelectionPath->setLineDash(std::array{dash, dash}, phase);
}

// ---- the mask -------------------------------------------------------------------------------------------------------

void Selection::pictureReplaced(int width, int height)
{
    endFloating();
    rememberDropped();
    mAuxSelectionPath.reset();
    ++mOutlineVersion;
    mMaskOfOutline.setSize(width, height);
    restAnts();
}

ConstMaskView Selection::renderedMask()
{
    if (!mMaskOfOutline.shows(mOutlineVersion)) {
        mMaskOfOutline.clear();
        if (mSelectionPath) {
            setEvenOdd();
            mMaskOfOutline.render(*mSelectionPath);
            mMaskOfOutline.nowShows(mOutlineVersion);
        }
    }
    return mMaskOfOutline.bytes();
}

MaskView Selection::maskForWand(bool adding)
{
    if (!adding) {
        mMaskOfOutline.clear();
    } else if (mAuxSelectionPath) {
        // The parked outline is what was selected before; where it is now, not where its mask was made.
        mAuxSelectionPath->setWindingRule(WindingRule::EvenOdd);
        mMaskOfOutline.clear();
        mMaskOfOutline.render(*mAuxSelectionPath);
    }
    return mMaskOfOutline.writable();
}

// ---- what floats ----------------------------------------------------------------------------------------------------

bool Selection::lift(const Picture& picture)
{
    if (!mSelectionPath) return false;
    const Rect box = mSelectionPath->bounds();
    std::shared_ptr<Image> lifted = liftFloatingImage(picture.pixels(), box);
    if (!lifted) return false;
    mFloating = std::make_shared<Floating>(std::move(lifted), false);
    mTransformRecord = floatingRecord(box);
    return true;
}

void Selection::place(std::shared_ptr<Image> image, Rect box, bool into)
{
    std::optional<BezierPath> clip = into ? std::move(mSelectionPath) : std::nullopt;
    endFloating();
    mAuxSelectionPath.reset();
    mPasteIntoSelectionPath = std::move(clip);
    mFloating = std::make_shared<Floating>(std::move(image), true);
    mSelectionPath = BezierPath::withRect(box);
    mTransformRecord = floatingRecord(mSelectionPath->bounds());
    outlineChanged();
    renderedMask();
    marchAnts();
}

void Selection::transform(float scale, float rotate)
{
    const AffineTransform step = floatingStep(mTransformRecord, scale, rotate);
    if (mFloating && (scale != mTransformRecord.scale || rotate != mTransformRecord.rotate)) mFloating->markChanged();
    mTransformRecord.scale = scale;
    mTransformRecord.rotate = rotate;
    if (!mSelectionPath) return;
    mSelectionPath->transform(step);
    outlineChanged();
}

Selection::Resting Selection::unpulled() const
{
    if (mUnpulled) return {mUnpulled->outline, mUnpulled->record};
    return {*mSelectionPath, mFloating ? mTransformRecord : floatingRecord(bounds())};
}

BezierPath Selection::outlineBeforePulling() const
{
    const auto [outline, record] = unpulled();
    const _ZPTransform& now = mTransformRecord;
    if (record.position == now.position && record.scale == now.scale && record.rotate == now.rotate) return outline;
    AffineTransform moved = floatingPlacement(now);
    moved.prepend(floatingPlacement(record).inverted());
    BezierPath there = outline;
    there.transform(moved);
    return there;
}

bool Selection::pullCorners(const std::array<Point, 4>& pulls)
{
    if (!mFloating || !mSelectionPath) return false;
    _ZPTransform pulled = mTransformRecord;
    for (std::size_t i = 0; i < 4; ++i)
        pulled.corners[i] = std::abs(pulls[i].x) < kNoPull && std::abs(pulls[i].y) < kNoPull ? Point{} : pulls[i];
    const auto placement = pulledPlacement(pulled);
    bool ok = false;
    const AffineTransform back = floatingPlacement(mTransformRecord).inverted(&ok);
    if (!placement || !ok) return false;
    if (pulled.corners != mTransformRecord.corners) mFloating->markChanged();
    BezierPath outline = outlineBeforePulling();
    if (!hasPulledCorners(pulled)) {
        mUnpulled.reset();
        mSelectionPath = std::move(outline);
    } else {
        if (!mUnpulled) mUnpulled = std::make_shared<const Unpulled>(Unpulled{outline, mTransformRecord});
        mSelectionPath = placement->after(ProjectiveTransform(back)).apply(outline);
    }
    mTransformRecord.corners = pulled.corners;
    outlineChanged();
    return true;
}

bool Selection::hasFourCorners() const { return mSelectionPath && fourCorners(unpulled().outline); }

std::optional<std::array<Point, 4>> Selection::straighteningPulls() const
{
    if (!mSelectionPath) return std::nullopt;
    const auto [outline, record] = unpulled();
    const auto corners = outlineCorners(record, outline);
    if (!corners) return std::nullopt;
    return zp::straighteningPulls(mFloating ? mTransformRecord : record, *corners);
}

FloatQuad Selection::ownCorners() const
{
    const auto [outline, record] = unpulled();
    return zp::ownCorners(record, outline);
}

void Selection::anchor(BitmapView pixels, float opacity)
{
    if (!mFloating || !mSelectionPath) return;
    if (!pixels.isEmpty()) {
        mFloating->finishAdjustment();
        BitmapContext context(pixels);
        context.addClip(*mSelectionPath);
        if (mPasteIntoSelectionPath) context.addClip(*mPasteIntoSelectionPath);
        mFloating->logDrawing("");
        mFloating->draw(context, mTransformRecord, opacity);
    }
    endFloating();
}

void Selection::letGo() { endFloating(); }

Settled Selection::settle(BitmapView pixels, float opacity)
{
    if (!mFloating) {
        mPasteIntoSelectionPath.reset();
        return Settled::Nothing;
    }
    if (mFloating->isChanged()) {
        anchor(pixels, opacity);
        return Settled::Anchored;
    }
    letGo();
    return Settled::LetGo;
}

// ---- the ants -------------------------------------------------------------------------------------------------------

void Selection::marchAnts()
{
    mSelectionTimer = std::make_unique<QTimer>();
    QObject::connect(mSelectionTimer.get(), &QTimer::timeout, mSelectionTimer.get(), [this] { mTick(); });
    mSelectionTimer->start(kAntsStep);
}

void Selection::advanceAnts()
{
    mSelectionPhase += kPhaseStep;
    if (mSelectionPhase >= kPhases) mSelectionPhase = 0;
}

// ---- taking a gesture back ------------------------------------------------------------------------------------------

struct Selection::Memento {
    std::optional<BezierPath> selection, parked, pasteInto;
    SetOperation parkedFor;
    std::shared_ptr<Floating> floating;
    bool floatingChanged;
    _ZPTransform record;
    std::shared_ptr<const Unpulled> unpulled;
    bool marched;
};

std::shared_ptr<Selection::Memento> Selection::remember() const
{
    return std::make_shared<Memento>(Memento{mSelectionPath, mAuxSelectionPath, mPasteIntoSelectionPath, mParkedFor,
                                             mFloating, mFloating && mFloating->isChanged(), mTransformRecord,
                                             mUnpulled, antsMarch()});
}

void Selection::bringBack(const Memento& memento)
{
    mSelectionPath = memento.selection;
    mAuxSelectionPath = memento.parked;
    mPasteIntoSelectionPath = memento.pasteInto;
    mParkedFor = memento.parkedFor;
    mFloating = memento.floating;
    if (mFloating && !memento.floatingChanged) mFloating->markUnchanged();
    mTransformRecord = memento.record;
    mUnpulled = memento.unpulled;
    mTransformMode = -1; // a handle that was held is let go
    outlineChanged();
    memento.marched ? marchAnts() : restAnts();
}

} // namespace zp
