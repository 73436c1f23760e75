// SPDX-License-Identifier: GPL-3.0-or-later
/// Single keys on the canvas: tools, zoom, nudging, ending a polygon, floating, dropping, a quick save of the
/// selection.
#include "base/Folders.h"
#include "canvas/ToolTable.h"
#include "canvas/WandExplainer.h"
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Selection.h"
#include <QKeyEvent>
#include <QList>

using namespace zp;

namespace
{

constexpr char32_t kReturn = 0x0D, kEscape = 0x1B, kUp = 0xF700, kDown = 0xF701, kLeft = 0xF702, kRight = 0xF703;

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

} // namespace

void ZPCanvas::escape()
{
    if (mDocument.cancelGesture()) return;
    if (mDocument.gesture().polygonIsOpen() && !mDocument.selection().isNil())
        mDocument.perform("dropPolygon");
    else
        mDocument.perform("selectNone");
}

void ZPCanvas::keyDown(char32_t character)
{
    const auto nudge = [this](double dx, double dy) { mDocument.perform("nudge", {{dx, dy}, {}}); };
    switch (character) {
    case kReturn:
        if (mDocument.gesture().polygonIsOpen() && !mDocument.selection().isNil())
            mDocument.perform("endPolygon");
        else
            mDocument.perform(mDocument.selection().floating() ? "anchorSelection" : "floatSelection");
        return;
    case kEscape:
        return escape();
    case U's':
        if (currentKeyModifiers() & kCommandKey) return;
        mDocument.perform("saveSelection:",
                          {{}, pathByAppending(applicationSupportFolder(), "Selections/My Great Default Selection")});
        return;
    case U'+':
        return stepZoom(1);
    case U'-':
        return stepZoom(-1);
    case kUp:
        return nudge(0, -1);
    case kDown:
        return nudge(0, 1);
    case kLeft:
        return nudge(-1, 0);
    case kRight:
        return nudge(1, 0);
    default:
        break;
    }
    for (const ToolRow& row : toolTable())
        if (character == char32_t(row.key)) return setTool(int(row.tool));
}

void ZPCanvas::keyPressEvent(QKeyEvent* event)
{
    event->accept(); // a key that means nothing here means nothing at all
    if (mKeyboardPointer && keyboardPointerKey(event)) return;
    if (isModifier(event->key())) return modifierChanged();
    switch (event->key()) {
    case Qt::Key_Up:
        return keyDown(kUp);
    case Qt::Key_Down:
        return keyDown(kDown);
    case Qt::Key_Left:
        return keyDown(kLeft);
    case Qt::Key_Right:
        return keyDown(kRight);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return keyDown(kReturn);
    case Qt::Key_Escape:
        return keyDown(kEscape);
    default:
        break;
    }
    const QList<uint> text = event->text().toUcs4();
    if (!text.isEmpty()) keyDown(char32_t(text.first()));
}

void ZPCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (isModifier(event->key())) modifierChanged();
    QWidget::keyReleaseEvent(event);
}

void ZPCanvas::modifierChanged()
{
    mCursorTimer.start(0);
    mWandExplainer->look();
    mDocument.followPointer(); // the marquee may become a square or an oval
}

void ZPCanvas::setTool(int index)
{
    if (index >= 0 && index < kToolCount) mDocument.chooseTool(Tool(index));
}
