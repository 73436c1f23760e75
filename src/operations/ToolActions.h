// SPDX-License-Identifier: GPL-3.0-or-later
/// What the mouse does with each tool: the actions behind the table of tools, and what a gesture remembers.
#pragma once
#include "base/BitmapRep.h"
#include "canvas/ZPCanvas.h"
#include "desktop/MainThreadWake.h"
#include "tools/PointerFeed.h"
#include <QPointF>
#include <QTimer>
#include <memory>

namespace zp
{

/// The tools' memory beside the canvas's fields. Main thread, except where noted.
struct ToolState {
    int gestureTool = -1;              ///< the tool that the press in progress began with; -1: none, or it was refused
    Point lastPoint;                   ///< of the latest accepted press or drag
    Point previousPt2;                 ///< mPt2 before the latest drag
    bool buttonDown = false;           ///< the platform said the button is down, whatever the canvas made of it
    bool referenceClick = false;       ///< the clone stamp's press only set the reference
    std::unique_ptr<QTimer> restTimer; ///< runs while a drag that scrolls the view rests beyond its edge
    QPointF restingPointer;            ///< where on the screen that is

    // The brush stroke. Written before its threads start; they read it.
    std::shared_ptr<BitmapRep> strokeBitmap; ///< what is painted on
    float strokeSize = 0;
    Color strokeColor;
    std::uint32_t strokeNumber = 0;              ///< counts strokes, so that a late end is told from the present one
    bool strokeOpen = false;                     ///< threads were started and not joined yet
    std::atomic<std::uint32_t> segmentsDrawn{0}; ///< painted, and their redisplay asked for
    std::atomic<bool> captureDone{true};         ///< the capture thread stores no more points
    Wakeup points;                               ///< capture thread to drawing thread: another point, or the end
    std::atomic<std::uint32_t> strokeDrawn{0};   ///< the number of the stroke whose drawing thread has ended
    std::unique_ptr<MainThreadWake> ended;       ///< drawing thread to main thread: that it has

    int brushShapeIndex = -1;                    ///< which shape is kept below
    std::shared_ptr<const BitmapRep> brushShape; ///< as it was read; null when there is no such picture
    std::shared_ptr<BitmapRep> cloneSource;      ///< work space of the clone stamp
};
/// Made on first use, on the main thread.
ToolState& toolState(ZPCanvas& canvas);

/// The bitmap that drawing goes to: the image's first representation. Null without an image.
std::shared_ptr<BitmapRep> drawingBitmap(const ZPCanvas& canvas);

} // namespace zp

/// One action each. Points: image coordinates, y down. Main thread only.
struct ZPToolActions {
    using Action = void(ZPCanvas&, zp::Point);
    static Action pressRectangle, dragRectangle, releaseRectangle;
    static Action pressLasso, dragLasso, releaseLasso;
    static Action pressWand;
    static Action pressBrush;
    static Action pressPencil, dragPencil, releasePencil, releaseEraser;
    static Action pressBucket;
    static Action pickColor;
    static Action pressText;
    static Action pressCloneStamp, dragCloneStamp, releaseCloneStamp;
    /// Moves the selection (and what floats in it) by the pointer's step, when a move is on.
    static Action moveSelection;

    static void startMove(ZPCanvas& canvas, zp::Point point);
    /// Whether there is a selection and the point lies inside it.
    static bool hitsSelection(const ZPCanvas& canvas, zp::Point point);
    static void dropSelectionWithSound(ZPCanvas& canvas);
};
