// SPDX-License-Identifier: GPL-3.0-or-later
/// What is selected: the outline, the outline that is set aside while another is drawn, the mask, and the piece that
/// floats in it.
#pragma once
#include "base/BezierPath.h"
#include "document/Floating.h"
#include "document/SelectionMask.h"
#include "selection/FloatingImage.h"
#include "selection/TransformRecord.h"
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace zp
{

class Picture;

/// How a parked outline and the new shape become one.
enum class SetOperation {
    None, ///< neither: nothing is selected
    Union,
    Difference,
};

/// What became of the floating piece when the picture was about to change.
enum class Settled {
    Nothing, ///< none was there
    LetGo,   ///< it was only lifted: the picture still has its pixels
    Anchored,
};

/// The outline is the truth; the mask follows it, and a floating piece, its record and its paste-into outline live and
/// die together. Paths are in image coordinates, y downwards. Main thread.
class Selection
{
public:
    /// @param tick  called five times a second while the ants march
    explicit Selection(std::function<void()> tick);

    /// Null when nothing is selected. An outline without elements is a selection that holds nothing.
    const BezierPath* outline() const { return mSelectionPath ? &*mSelectionPath : nullptr; }
    bool isNil() const { return !mSelectionPath; }
    /// Bounds of the outline; zero without one.
    Rect bounds() const { return mSelectionPath ? mSelectionPath->bounds() : Rect{}; }
    bool contains(Point p) const { return mSelectionPath && mSelectionPath->contains(p); }
    /// Whether painting through it could reach any pixel of a picture of that size.
    bool reaches(Rect picture) const { return isNil() || intersects(bounds(), picture); }
    const BezierPath* parked() const { return mAuxSelectionPath ? &*mAuxSelectionPath : nullptr; }
    const BezierPath* pasteInto() const { return mPasteIntoSelectionPath ? &*mPasteIntoSelectionPath : nullptr; }
    Floating* floating() const { return mFloating.get(); } ///< null when nothing floats
    const _ZPTransform& record() const { return mTransformRecord; }
    bool isTransforming() const { return mTransform; }
    int transformMode() const { return mTransformMode; }
    const SelectionMask& mask() const { return mMaskOfOutline; }
    /// Counts up whenever the outline changes.
    std::uint64_t version() const { return mOutlineVersion; }
    float phase() const { return mSelectionPhase; } ///< of the ants: 0, 2.5, 5, 7.5, in screen pixels
    bool antsMarch() const { return mSelectionTimer != nullptr; }
    /// Whether there is a dropped selection that can come back.
    bool canReselect() const { return mDroppedPath.has_value(); }

    // ---- the outline ---------------------------------------------------------------------------------------------

    /// Another outline, nothing floats, the ants march.
    void select(BezierPath outline);
    /// The same for an outline that was traced from the mask as it stands.
    void selectTraced(BezierPath outline);
    /// Nothing is selected and nothing floats; the mask is clear, the ants rest. What was selected can be reselected.
    void drop();
    /// The selection that was dropped last.
    void reselect();
    /// A gesture begins to draw: no outline, nothing floats. A parked outline waits on.
    void beginShape();
    /// The shape being drawn, as it is now.
    void shape(BezierPath outline);
    void extendShape(Point corner);    ///< a line to the point
    void moveLastCorner(Point corner); ///< of the shape
    void closeShape();                 ///< ends its subpath
    void closePolygon();               ///< puts the last corner onto the first and ends the subpath
    /// The outline waits while another shape is drawn.
    void park(SetOperation operation);
    /// The shape is given up; the parked outline is the selection again. Nothing when none is parked.
    void unpark();
    /// The parked outline is dropped.
    void forgetParked();
    /// Parked outline and shape become the selection.
    void combine(SetOperation operation);
    SetOperation parkedFor() const { return mParkedFor; }
    /// A gesture enclosed nothing: no outline, and no parked one. @param reselectable  the outline can come back
    void endWithoutShape(bool reselectable);
    void move(Point step); ///< outline and floating piece
    void setEvenOdd();     ///< the outline is filled even-odd from now on
    /// How the outline is stroked: its width and dashes, which stay with it.
    void setLineStyle(float width, float dash, float phase);

    // ---- the mask ------------------------------------------------------------------------------------------------

    /// The picture has another size: no selection, no mask.
    void pictureReplaced(int width, int height);
    /// The mask of the outline, rendered if it is not; empty without a picture or memory.
    ConstMaskView renderedMask();
    /// The mask as a stroke's clip: empty when nothing is selected.
    ConstMaskView clipMask() { return isNil() ? ConstMaskView{} : renderedMask(); }
    /// The mask for the wand: with @p adding it shows what was selected before, else nothing.
    MaskView maskForWand(bool adding);
    /// For the operations that look at or write the mask itself.
    SelectionMask& rawMask() { return mMaskOfOutline; }

    // ---- what floats -----------------------------------------------------------------------------------------------

    /// Lifts the outline's box as a floating piece. @return false when it has no area or memory fails
    bool lift(const Picture& picture);
    /// Another picture floats over the rectangle @p box; the selection there was becomes its clip with @p into.
    void place(std::shared_ptr<Image> image, Rect box, bool into);
    /// New scale and rotation about the record's position, outline included.
    void transform(float scale, float rotate);
    /// The corners of the floating piece are pulled to @p pulls (see _ZPTransform), the outline with them; all zero
    /// gives back the very outline it had before. @return false, and nothing changes, when nothing floats or the
    /// corners are not those of a convex shape that can be looked at
    bool pullCorners(const std::array<Point, 4>& pulls);
    /// Whether the outline has four straight sides, as it was before corners were pulled (zp::fourCorners).
    bool hasFourCorners() const;
    /// The corners of the floating piece that its handles take, in its own coordinates, before any was pulled.
    FloatQuad ownCorners() const;
    /// The pulls (see pullCorners) by which the piece's outline, of four straight sides, becomes an upright rectangle;
    /// where nothing floats yet, of the piece that would be lifted.
    /// @return nothing when the outline has not four corners or lies too slanted
    std::optional<std::array<Point, 4>> straighteningPulls() const;
    void setTransforming(bool on) { mTransform = on; }
    void setTransformMode(int handle) { mTransformMode = handle; } ///< the one that is dragged; -1 for none
    /// Draws the floating piece into @p pixels, clipped as the screen shows it; then nothing floats, the outline stays.
    void anchor(BitmapView pixels, float opacity);
    /// Nothing floats any more; the outline stays.
    void letGo();
    /// Before the picture changes: anchors a piece that was changed, lets go one that was only lifted.
    Settled settle(BitmapView pixels, float opacity);

    // ---- the ants --------------------------------------------------------------------------------------------------

    void marchAnts(); ///< starts their clock again
    void restAnts() { mSelectionTimer.reset(); }
    void advanceAnts(); ///< a tick

    // ---- taking a gesture back -------------------------------------------------------------------------------------

    /// All that a gesture may change, to be brought back when it is cancelled. Copies the outlines.
    struct Memento;
    std::shared_ptr<Memento> remember() const;
    void bringBack(const Memento& memento);

private:
    void outlineChanged();
    void rememberDropped();
    void endFloating();
    BezierPath outlineBeforePulling() const;

    std::optional<BezierPath> mSelectionPath, mAuxSelectionPath, mPasteIntoSelectionPath;
    std::optional<BezierPath> mDroppedPath;
    SetOperation mParkedFor = SetOperation::None;
    std::uint64_t mOutlineVersion = 1;
    SelectionMask mMaskOfOutline;
    std::shared_ptr<Floating> mFloating;
    _ZPTransform mTransformRecord; ///< stays as it was when nothing floats any more
    /// What the outline was, and where its piece, when the first corner was pulled: each pull begins there again, so
    /// that nothing adds up.
    struct Unpulled {
        BezierPath outline;
        _ZPTransform record;
    };
    std::shared_ptr<const Unpulled> mUnpulled;
    struct Resting {
        const BezierPath& outline;
        _ZPTransform record;
    };
    /// The outline without pulled corners, and where its piece lay then; of the piece that would be lifted where
    /// nothing floats. Only with an outline, which it refers to.
    Resting unpulled() const;
    bool mTransform = false; ///< the piece is being scaled or turned by hand
    std::int32_t mTransformMode = -1;
    float mSelectionPhase = 0;
    std::unique_ptr<QTimer> mSelectionTimer;
    std::function<void()> mTick;
};

} // namespace zp
