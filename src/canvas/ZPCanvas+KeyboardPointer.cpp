// SPDX-License-Identifier: GPL-3.0-or-later
/// The pointer moved, pressed and released by keys.
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/View.h"
#include <QKeyEvent>
#include <algorithm>
#include <cmath>

using namespace zp;

namespace
{

/// Screen points of a step: of a key that was just pressed, and of one that is held.
constexpr double kStep = 1, kHeldStep = 8;

struct Direction {
    int key;
    double dx, dy;
};
constexpr Direction kArrows[] = {
    {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};
// The numeric pad, with the lock and without.
constexpr Direction kPad[] = {{Qt::Key_4, -1, 0},      {Qt::Key_6, 1, 0},    {Qt::Key_8, 0, -1},
                              {Qt::Key_2, 0, 1},       {Qt::Key_7, -1, -1},  {Qt::Key_9, 1, -1},
                              {Qt::Key_1, -1, 1},      {Qt::Key_3, 1, 1},    {Qt::Key_Home, -1, -1},
                              {Qt::Key_PageUp, 1, -1}, {Qt::Key_End, -1, 1}, {Qt::Key_PageDown, 1, 1}};

const Direction* directionOf(const QKeyEvent& event)
{
    const auto find = [&event](auto& table) -> const Direction* {
        const auto* row = std::ranges::find(table, event.key(), &Direction::key);
        return row == std::end(table) ? nullptr : row;
    };
    const bool pad = event.modifiers() & Qt::KeypadModifier;
    if (pad)
        if (const Direction* direction = find(kPad)) return direction;
    return pad || event.modifiers() & Qt::ControlModifier ? find(kArrows) : nullptr;
}

/// While one lives, the key that steers the pointer is nobody's role: Ctrl would make an oval of every marquee.
class SteeringKeyIsNoRole
{
public:
    SteeringKeyIsNoRole() : mBefore(scriptedKeyModifiers())
    {
        setScriptedKeyModifiers(currentKeyModifiers() & ~keyModifiersFromQt(Qt::ControlModifier));
    }
    ~SteeringKeyIsNoRole() { setScriptedKeyModifiers(mBefore); }

private:
    std::optional<std::uint32_t> mBefore;
};

} // namespace

void ZPCanvas::setKeyboardPointer(bool on)
{
    mKeyboardPointer = on;
    if (on) {
        const Rect shown = visibleRect();
        if (!shown.contains(mDocument.view().pointer()))
            mDocument.setPointer({std::floor((shown.minX() + shown.maxX()) / 2) + 0.5f,
                                  std::floor((shown.minY() + shown.maxY()) / 2) + 0.5f},
                                 true);
        setFocus();
    }
    setNeedsDisplay();
}

bool ZPCanvas::keyboardPointerKey(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() & Qt::ControlModifier) {
        if (!event->isAutoRepeat()) pressKeyboardPointer();
        return true;
    }
    // The middle of the pad, where desktops' own pointers by key have the button too.
    if (event->modifiers() & Qt::KeypadModifier && (event->key() == Qt::Key_5 || event->key() == Qt::Key_Clear)) {
        if (!event->isAutoRepeat()) pressKeyboardPointer();
        return true;
    }
    const Direction* direction = directionOf(*event);
    if (!direction) return false;
    moveKeyboardPointer(direction->dx, direction->dy, event->isAutoRepeat());
    return true;
}

void ZPCanvas::moveKeyboardPointer(double dx, double dy, bool goesOn)
{
    if (!mDocument.picture().isLoaded()) return;
    const SteeringKeyIsNoRole steering;
    const double zoom = mDocument.view().effectiveZoom();
    // Whole pixels, so that every pixel can be met.
    const double step = std::max(1.0, std::round((goesOn ? kHeldStep : kStep) / zoom));
    const Point now = mDocument.view().pointer();
    const auto moved = [step](float at, double direction, float far) {
        return float(
            std::clamp(std::floor(double(at)) + 0.5 + direction * step, 0.5, std::max(0.5, double(far) - 0.5)));
    };
    const Point to{moved(now.x, dx, bounds().size.width), moved(now.y, dy, bounds().size.height)};
    setNeedsDisplayInRect(
        makeRect(now.x - 16 / float(zoom), now.y - 16 / float(zoom), 32 / float(zoom), 32 / float(zoom)));
    mDocument.setPointer(to, true);
    reveal(makeRect(to.x, to.y, 1, 1));
    if (mDocument.gesture().isMouseDown())
        mDocument.drag(to);
    else
        mDocument.followPointer();
    setNeedsDisplayInRect(
        makeRect(to.x - 16 / float(zoom), to.y - 16 / float(zoom), 32 / float(zoom), 32 / float(zoom)));
}

void ZPCanvas::pressKeyboardPointer()
{
    if (!mDocument.picture().isLoaded()) return;
    const SteeringKeyIsNoRole steering;
    const Point at = mDocument.view().pointer();
    if (mDocument.gesture().isMouseDown())
        mDocument.release(at);
    else
        mDocument.press(&row().actions, at);
}
