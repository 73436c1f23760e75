// SPDX-License-Identifier: GPL-3.0-or-later
/// Waiting for the pointer to rest, searching in slices, showing and saying.
#include "canvas/WandExplainer.h"
#include "canvas/Shimmer.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/View.h"
#include <QLocale>
#include <QStringList>
#include <cmath>
#include <new>

namespace zp
{

namespace
{

using namespace std::chrono_literals;

/// So long a pointer that rests has not moved.
constexpr auto kRestOfPointer = 120ms;
/// The stripes move as fast as the ants, and a light one follows the other at this distance; in screen points.
constexpr auto kShimmerStep = 200ms;
constexpr double kShimmerMove = 2.5, kShimmerPeriod = 20;

} // namespace

WandExplainer::WandExplainer(Document& document, QObject* parent) : QObject(parent), mDocument(document)
{
    for (QTimer* timer : {&mPatience, &mNextSlice, &mNextLook}) timer->setSingleShot(true);
    connect(&mPatience, &QTimer::timeout, this, &WandExplainer::answer);
    connect(&mNextSlice, &QTimer::timeout, this, &WandExplainer::searchOn);
    connect(&mNextLook, &QTimer::timeout, this, &WandExplainer::prepareOn);
    connect(&mShimmerClock, &QTimer::timeout, this, [this] {
        mShimmerPhase = std::fmod(mShimmerPhase + kShimmerMove, kShimmerPeriod);
        emit needsDisplay(mReach.rect());
    });
    for (const auto signal : {&Document::pointerMoved, &Document::toolChosen, &Document::changed,
                              &Document::paintChanged, &Document::pictureReplaced})
        connect(&mDocument, signal, this, &WandExplainer::look);
}

WandExplainer::Spot WandExplainer::spotNow() const
{
    const View& view = mDocument.view();
    const Gesture& gesture = mDocument.gesture();
    const Point pointer = view.pointer();
    const PixelPoint under{int(std::floor(pointer.x)), int(std::floor(pointer.y))};
    return {under, view.pointerInside() && mDocument.picture().box().contains(under.x, under.y) &&
                       !gesture.isMouseDown() && gesture.stroke().isDrawn() && !view.compared() && !view.preview()};
}

void WandExplainer::look()
{
    if (!mDocument.view().explainsWand() || mDocument.gesture().tool() != Tool::Wand) {
        if (mSearch) stop();
        mSearch.reset();
        mSpot = {};
        return;
    }
    if (!mSearch) mSearch = std::make_unique<WandPreview>();
    const Spot spot = spotNow();
    if (!(spot.under == mSpot.under)) mPassed = mDocument.message();
    if (spot == mSpot &&
        (!mAnswered || wandQuestion(mDocument, mDocument.view().pointer(), currentKeyModifiers()) == mQuestion))
        return;
    mSpot = spot;
    stop();
    if (!spot.free) return;
    mPatience.start(kRestOfPointer);
    if (!mSearch->isPrepared(mDocument)) mNextLook.start(0);
}

void WandExplainer::stop()
{
    mPatience.stop();
    mNextSlice.stop();
    mNextLook.stop();
    mAnswered = false;
    mQuestion.reset();
    show({});
    sayNothing();
}

void WandExplainer::show(PixelBox reach)
{
    const PixelBox both = mReach.united(reach);
    mReach = reach;
    if (!both.isEmpty()) emit needsDisplay(both.rect());
    if (reach.isEmpty())
        mShimmerClock.stop();
    else if (!mShimmerClock.isActive())
        mShimmerClock.start(kShimmerStep);
}

void WandExplainer::sayNothing()
{
    // Emptied first: what is said makes everybody look again.
    if (const QString told = std::exchange(mTold, {}); !told.isEmpty() && mDocument.message() == told)
        mDocument.say({});
}

void WandExplainer::prepareOn()
{
    if (!mSearch || !spotNow().free) return;
    if (!mSearch->prepare(mDocument, mSlice)) mNextLook.start(0);
}

void WandExplainer::answer()
{
    if (!mSearch || !(spotNow() == mSpot)) return look();
    const Point pointer = mDocument.view().pointer();
    mAnswered = true;
    mSlices = 0;
    mReason = wandReason(mDocument, pointer);
    mQuestion = wandQuestion(mDocument, pointer, currentKeyModifiers());
    if (!mQuestion) return tell(true);
    try {
        mSearch->start(mDocument, *mQuestion);
    } catch (const std::bad_alloc&) {
        return; // no room for walls: a click will say so
    }
    searchOn();
}

void WandExplainer::searchOn()
{
    if (!mSearch || !mQuestion) return;
    // Pixels that are not these any more must not be read as if they were.
    if (wandQuestion(mDocument, mDocument.view().pointer(), currentKeyModifiers()) != mQuestion || !spotNow().free)
        return look();
    const bool complete = mSearch->goOn(mSlice);
    const bool givenUp = !complete && ++mSlices >= mMostSlices;
    if (complete || givenUp || mSlices == 1) {
        show(mSearch->found().box());
        tell(complete);
    }
    // Said things made others act: the answer may be out of date already.
    if (!complete && !givenUp && mQuestion) mNextSlice.start(0);
}

void WandExplainer::tell(bool complete)
{
    const QString& message = mDocument.message();
    if (!message.isEmpty() && message != mTold && message != mPassed) return;
    QStringList parts;
    if (!mReason.isEmpty()) parts += mReason;
    if (mQuestion) {
        QLocale locale;
        locale.setNumberOptions(QLocale::DefaultNumberOptions); // fields leave the separators out
        const QString pixels = locale.toString(qulonglong(mSearch->found().count()));
        parts += (complete ? tr("A click takes %1 px") : tr("A click takes at least %1 px")).arg(pixels);
    }
    const QString text = parts.join(" · ");
    if (text.isEmpty() || text == mTold) return;
    mTold = text;
    mDocument.say(text);
}

void WandExplainer::draw(const ScreenTarget& target, double deviceScale, double point) const
{
    if (mReach.isEmpty() || !mSearch) return;
    drawShimmer(target, mSearch->found(), mReach, deviceScale, {kShimmerPeriod * point, mShimmerPhase * point});
}

} // namespace zp
