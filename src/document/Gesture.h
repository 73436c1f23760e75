// SPDX-License-Identifier: GPL-3.0-or-later
/// What the hand is doing: tool, press and last points, what is being drawn.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapRep.h"
#include "document/BrushStroke.h"
#include "document/Selection.h"
#include "document/Tool.h"
#include "undo/TileJournal.h"
#include <cstdint>
#include <memory>
#include <optional>

namespace zp
{

/// What a marquee keeps to while it is dragged.
struct MarqueeRule {
    enum Kind { Free, Ratio, FixedSize } kind = Free;
    float width = 1, height = 1; ///< of the ratio, or in pixels; above zero
};

/// A press of the wand that explains itself: what it looked for, and what it left selected.
struct WandPress {
    Point at;
    std::uint32_t target = 0;
    int settingBefore = 0;    ///< of the tolerance
    int setting = 0;          ///< that the last search had
    bool adding = false;      ///< earlier selections are walls, and stay
    bool joins = false;       ///< an earlier selection waits for what is selected now
    bool repeatable = false;  ///< nothing is gone with the first search that a second one would need
    std::uint64_t result = 0; ///< the outline's version; 0 while the gesture is open
    std::uint64_t pixels = 0; ///< Picture::writes() at that time
};

/// A gesture is open from an accepted press to its release, or until a command ends it or Escape takes it back. Points
/// are image coordinates, y downwards. Main thread.
class Gesture
{
public:
    explicit Gesture(std::unique_ptr<BrushStroke> stroke) : mStroke(std::move(stroke)) {}

    Tool tool() const { return mTool; }
    bool removes() const { return mRemoves; }
    bool isMouseDown() const { return mIsMouseDown; }
    /// What the open gesture's tool does; null when none is open, or its press was refused.
    const ToolActions* actions() const { return mActions; }
    /// What the last gesture's step is called.
    const char* stepName() const { return mStepName; }
    Point pt1() const { return mPt1; } ///< the press; while moving, where the last step ended
    Point pt2() const { return mPt2; } ///< where the pointer is
    Point previousPt2() const { return mPreviousPt2; }
    Point lastPoint() const { return mLastPoint; } ///< of the last accepted press or drag
    Point cloneReference() const { return mCloneStampRefPt; }
    bool isMoving() const { return mMove; }
    bool hasLiftedHole() const { return mLiftedHole; }
    bool polygonIsOpen() const { return mPolygonLasso; }
    const BezierPath* pencilPath() const { return mPencilPath ? &*mPencilPath : nullptr; }
    bool isReferenceClick() const { return mReferenceClick; }
    bool hasStamped() const { return mStamped; }
    const BrushStroke& stroke() const { return *mStroke; }
    const MarqueeRule& marqueeRule() const { return mMarqueeRule; }
    Point gripPoint() const { return mGripPoint; }
    const _ZPTransform& gripRecord() const { return mGripRecord; }

    /// The last gesture's press, if the wand made it and explains itself.
    const std::optional<WandPress>& wandPress() const { return mWandPress; }
    /// The setting that a drag of the open gesture has changed; nothing when none has.
    std::optional<int> toleranceBefore() const;

    // ---- transitions ---------------------------------------------------------------------------------------------

    void setWandPress(std::optional<WandPress> press) { mWandPress = press; }
    void chooseTool(Tool tool) { mTool = tool, mRemoves = false; }
    /// The brush removes what it is drawn over, until another tool is chosen.
    void setRemoving(bool on) { mTool = on ? Tool::Brush : mTool, mRemoves = on; }
    void setMarqueeRule(const MarqueeRule& rule) { mMarqueeRule = rule; }
    /// @param before  the selection, to be brought back when the gesture is taken back
    void begin(const ToolActions* actions, Point point, std::shared_ptr<Selection::Memento> before);
    /// The points and the polygon as before the press.
    void takeBack();
    void refuse() { mActions = nullptr; } ///< the press cannot act: nothing follows from it
    void moveTo(Point point);             ///< a drag
    void release(Point point);            ///< the button is up; the tool's own end is still to come
    void end();                           ///< all is done
    const std::shared_ptr<Selection::Memento>& before() const { return mBefore; }

    void setPress(Point point) { mPt1 = point; }
    void setBoth(Point point) { mPt1 = mPt2 = point; }
    void startMoving(Point point) { mPt1 = point, mMove = true; }
    /// A handle of what floats was taken there, when its record was that.
    void setGrip(Point point, const _ZPTransform& record) { mGripPoint = point, mGripRecord = record; }
    void noteLiftedHole() { mLiftedHole = true; }
    void openPolygon(bool open) { mPolygonLasso = open; }
    void startPencil(float width, Point point);
    void noPencil() { mPencilPath.reset(); } ///< a straight line from press to release instead
    void extendPencil(Point point);
    /// What was drawn, the pencil lifted.
    std::optional<BezierPath> takePencil() { return std::exchange(mPencilPath, std::nullopt); }
    void setReference(Point point) { mCloneStampRefPt = point, mReferenceClick = true; }
    void setStampOrigin(Point point) { mPt1 = point, mReferenceClick = false, mStamped = false; }
    void noteStamped() { mStamped = true; }
    BrushStroke& stroke() { return *mStroke; }
    /// What pixels were before the gesture wrote them; the brush stroke keeps its own.
    TileJournal& journal() { return mJournal; }
    /// Work space of the clone stamp, kept from one stamp to the next.
    std::shared_ptr<BitmapRep>& cloneSource() { return mCloneSource; }

private:
    Tool mTool = Tool::Rectangle;
    bool mRemoves = false;
    MarqueeRule mMarqueeRule;
    std::uint8_t mIsMouseDown = 0;
    const ToolActions* mActions = nullptr;
    const char* mStepName = nullptr;
    Point mPt1, mPt2, mPreviousPt2, mLastPoint;
    Point mCloneStampRefPt, mGripPoint;
    _ZPTransform mGripRecord;
    struct Points {
        Point pt1, pt2, reference;
        bool polygon = false;
    } mPointsBefore;
    bool mMove = false, mLiftedHole = false;
    bool mPolygonLasso = false;
    std::optional<BezierPath> mPencilPath;
    bool mReferenceClick = false, mStamped = false;
    std::optional<WandPress> mWandPress;
    std::unique_ptr<BrushStroke> mStroke;
    std::shared_ptr<Selection::Memento> mBefore;
    TileJournal mJournal;
    std::shared_ptr<BitmapRep> mCloneSource;
};

} // namespace zp
