// SPDX-License-Identifier: GPL-3.0-or-later
/// Where the pointer rests with the wand: what a click takes, shimmering, and why the pixel is out.
#pragma once
#include "base/Geometry.h"
#include "operations/WandPreview.h"
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

namespace zp
{

class Document;
struct ScreenTarget;

/// Follows a document's pointer. Nothing is done, kept or asked for unless the view explains the wand and the wand is
/// the tool. A search that takes longer than a slice goes on between the events, and is given up after a while; any
/// movement ends it. Says what it found as the document's message. Main thread.
class WandExplainer : public QObject
{
    Q_OBJECT

public:
    /// @param document  must outlive it
    WandExplainer(Document& document, QObject* parent);

    /// How long a search may hold up the events, and after how many such slices it is given up.
    void setBudget(std::chrono::nanoseconds slice, int mostSlices) { mSlice = slice, mMostSlices = mostSlices; }
    /// Keys were pressed or let go: they may ask for something else.
    void look();
    /// The pointer rests and the answer is still to come.
    bool isPending() const { return mPatience.isActive() || mNextSlice.isActive(); }
    /// The pixels that a click would take, as far as they are found; empty while nothing is shown.
    PixelBox reach() const { return mReach; }
    /// @param point  device pixels to a screen point
    void draw(const ScreenTarget& target, double deviceScale, double point) const;

signals:
    void needsDisplay(zp::Rect imageRect);

private:
    /// What must stay as it is while the pointer rests.
    struct Spot {
        PixelPoint under;
        bool free = false; ///< the pointer is over the picture, and nobody is at work on it
        friend bool operator==(const Spot&, const Spot&) = default;
    };
    Spot spotNow() const;
    void stop();
    void answer();
    void searchOn();
    void prepareOn();
    void show(PixelBox reach);
    void tell(bool complete);
    void sayNothing();

    Document& mDocument;
    std::unique_ptr<WandPreview> mSearch; ///< null while the wand explains nothing
    QTimer mPatience, mNextSlice, mNextLook, mShimmerClock;
    Spot mSpot;
    bool mAnswered = false; ///< at this spot
    /// Two of them and the painting still leave a frame's time; all of them are over before one looks again.
    std::chrono::nanoseconds mSlice = std::chrono::milliseconds(6);
    int mMostSlices = 40, mSlices = 0;
    std::optional<WandQuestion> mQuestion;
    QString mReason, mTold;
    QString mPassed; ///< what was said when the pointer moved; anything newer is left standing
    PixelBox mReach;
    double mShimmerPhase = 0; ///< in screen points
};

} // namespace zp
