// SPDX-License-Identifier: GPL-3.0-or-later
/// Single keys on the canvas: tools, zoom, nudging, ending a polygon, floating, dropping, a quick save of the
/// selection.
#include "base/Folders.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "operations/ToolActions.h"
#include <QComboBox>
#include <QKeyEvent>
#include <QSignalBlocker>

using namespace zp;

namespace
{

constexpr int kLastZoomItem = 8;

void stepZoom(ZPCanvas& canvas, int step)
{
    QComboBox* items = canvas.mZoomPopUp;
    if (!items || items->count() == 0) return;
    const int last = std::min(kLastZoomItem, items->count() - 1);
    items->setCurrentIndex(std::clamp(items->currentIndex() + step, 0, last));
    canvas.zoom(items);
}

void nudge(ZPCanvas& canvas, float dx, float dy)
{
    if (!canvas.mSelectionPath) return;
    AffineTransform step;
    step.translate(dx, dy);
    canvas.mSelectionPath->transform(step);
    ++canvas.mSelectionPathVersion;
    canvas.mTransformRecord.position = canvas.mTransformRecord.position + Point{dx, dy};
    canvas.showSelectionInfo();
    canvas.setNeedsDisplay();
}

void endPolygonLasso(ZPCanvas& canvas)
{
    canvas.mPolygonLasso = false;
    BezierPath& outline = *canvas.mSelectionPath;
    if (!outline.isEmpty()) {
        // The last corner is where the pointer happens to be: it goes onto the first.
        std::array<Point, 3> start;
        outline.elementAt(0, start);
        outline.setAssociatedPoints({start.data(), 1}, outline.elementCount() - 1);
        outline.closePath();
    }
    ++canvas.mSelectionPathVersion;
    canvas.setNeedsDisplay();
}

} // namespace

void ZPCanvas::keyDown(char32_t character)
{
    switch (character) {
    case 0x0D:
        if (mSelectionPath && mPolygonLasso) return endPolygonLasso(*this);
        return mSelectionImage ? anchorSelection() : floatSelection();
    case 0x1B:
        selectNone();
        return playSound("Frog");
    case U's':
        if (currentKeyModifiers() & kCommandKey) return;
        return saveSelection(
            pathByAppending(homeFolder(), "Library/Application Support/Zelpane/Selections/My Great Default Selection"));
    case U'+':
        return stepZoom(*this, 1);
    case U'-':
        return stepZoom(*this, -1);
    case U'0':
        return setTool(9);
    case 0xF700:
        return nudge(*this, 0, -1);
    case 0xF701:
        return nudge(*this, 0, 1);
    case 0xF702:
        return nudge(*this, -1, 0);
    case 0xF703:
        return nudge(*this, 1, 0);
    default:
        if (character >= U'1' && character <= U'9') setTool(int(character - U'1'));
    }
}

void ZPCanvas::keyPressEvent(QKeyEvent* event)
{
    event->accept(); // a key that means nothing here means nothing at all
    switch (event->key()) {
    case Qt::Key_Up:
        return keyDown(0xF700);
    case Qt::Key_Down:
        return keyDown(0xF701);
    case Qt::Key_Left:
        return keyDown(0xF702);
    case Qt::Key_Right:
        return keyDown(0xF703);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return keyDown(0x0D);
    case Qt::Key_Escape:
        return keyDown(0x1B);
    default:
        break;
    }
    const QList<uint> text = event->text().toUcs4();
    if (!text.isEmpty()) keyDown(char32_t(text.first()));
}

void ZPCanvas::setTool(int index)
{
    if (index < 0) return;
    // In the middle of a gesture: what was begun with the old tool ends here, as that tool ends it.
    ToolState& state = toolState(*this);
    if (mIsMouseDown && state.gestureTool >= 0 && state.gestureTool != index) {
        mouseUp(state.lastPoint);
        finishStroke();
        // Refused because a snapshot is being written: then at least the new tool inherits nothing.
        mIsMouseDown = 0;
        mMove = false;
        mPencilPath.reset();
        state.gestureTool = -1;
    }
    mTool = index;
    if (mToolPopUp && index < mToolPopUp->count()) {
        const QSignalBlocker quiet(mToolPopUp); // what follows a choice by hand is done here
        mToolPopUp->setCurrentIndex(index);
    }
    tool(mToolPopUp);
    setNeedsDisplay();
}

void ZPCanvas::setBrushSize(float size)
{
    if (!(size > 0) || !std::isfinite(size) || size == mSize) return;
    mSize = size;
    emit brushSizeChanged(size);
    setNeedsDisplay();
}
