// SPDX-License-Identifier: GPL-3.0-or-later
/// Draws the handles and takes the mouse on them.
#include "canvas/HandlesOverlay.h"
#include "canvas/Cursors.h"
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Selection.h"
#include "document/View.h"
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

using namespace zp;

namespace
{

/// Half of what a handle covers, with its edge and its shadow.
constexpr int kCover = 9;
/// Points between the view's edge and a handle that came inside.
constexpr double kInside = 2;
constexpr QRgb kEdge = 0xFF0B57D0, kFace = 0xFFFFFFFF;

} // namespace

HandlesOverlay::HandlesOverlay(ZPCanvas& canvas, QWidget* viewport)
    : QWidget(viewport), mCanvas(canvas), mViewport(viewport)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    viewport->setMouseTracking(true);
    viewport->installEventFilter(this);
    canvas.installEventFilter(this);
    const Document& document = canvas.document();
    connect(&document, &Document::changed, this, &HandlesOverlay::follow);
    connect(&document, &Document::zoomChanged, this, &HandlesOverlay::follow);
    setGeometry(viewport->rect());
    raise();
}

bool HandlesOverlay::isShown() const
{
    const Document& document = mCanvas.document();
    return showsFloatHandles(document, rowOf(document.gesture()).actions);
}

QPointF HandlesOverlay::inView(Point p) const
{
    const double z = mCanvas.document().view().effectiveZoom();
    return QPointF(mCanvas.pos()) + QPointF(p.x * z, p.y * z);
}

Point HandlesOverlay::inImage(QPointF p) const
{
    const double z = mCanvas.document().view().effectiveZoom();
    const QPointF onCanvas = p - QPointF(mCanvas.pos());
    return {float(onCanvas.x() / z), float(onCanvas.y() / z)};
}

QPointF HandlesOverlay::centreOf(const FloatHandlePlace& place) const
{
    const QPointF centre = inView(place.center), anchor = inView(place.anchor);
    const double room = double(kHandleSide) / 2 + kInside;
    const QRectF within = QRectF(rect()).adjusted(room, room, -room, -room);
    if (within.contains(centre) || within.isEmpty() || !QRectF(rect()).adjusted(-1, -1, 1, 1).contains(anchor))
        return centre;
    return {std::clamp(centre.x(), within.left(), within.right()),
            std::clamp(centre.y(), within.top(), within.bottom())};
}

std::array<FloatHandlePlace, kFloatHandles> HandlesOverlay::places() const
{
    const Document& document = mCanvas.document();
    return floatHandlePlaces(document.selection(), document.view().effectiveZoom());
}

Point HandlesOverlay::shiftAt(QPointF viewPoint) const
{
    for (const FloatHandlePlace& place : places()) {
        const QPointF centre = centreOf(place), way = viewPoint - centre;
        if (std::max(std::abs(way.x()), std::abs(way.y())) > double(kHandleSide) / 2 + 1) continue;
        return place.center - inImage(centre);
    }
    return {};
}

void HandlesOverlay::follow()
{
    QRegion covered;
    if (isShown()) {
        for (const FloatHandlePlace& place : places()) {
            const QPoint at = centreOf(place).toPoint();
            // Far away is out of sight, and no matter for whole numbers.
            if (rect().adjusted(-kCover, -kCover, kCover, kCover).contains(at))
                covered += QRect(at - QPoint(kCover, kCover), at + QPoint(kCover, kCover));
        }
    }
    if (covered == mDrawn) return;
    update(mDrawn + covered);
    mDrawn = covered;
}

void HandlesOverlay::paintEvent(QPaintEvent*)
{
    if (!isShown()) return;
    const Document& document = mCanvas.document();
    const Selection& selection = document.selection();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(kEdge), 1.5));
    painter.setBrush(QColor(kFace));
    const QRectF square(-kHandleSide / 2, -kHandleSide / 2, kHandleSide, kHandleSide);
    const auto all = places();
    for (int i = 0; i < kFloatHandles; ++i) {
        painter.save();
        painter.translate(centreOf(all[std::size_t(i)]));
        painter.rotate(selection.record().rotate);
        if (FloatHandle(i) == FloatHandle::Turn)
            painter.drawEllipse(square);
        else
            painter.drawRect(square);
        painter.restore();
    }
}

bool HandlesOverlay::handleMouse(QObject* watched, QMouseEvent* event)
{
    if (mCanvas.awaitsExactPointer()) return false; // a script's
    Document& document = mCanvas.document();
    const QPointF place = event->position() + (watched == &mCanvas ? QPointF(mCanvas.pos()) : QPointF(0, 0));
    const bool takes = event->type() == QEvent::MouseButtonPress || (event->type() == QEvent::MouseMove && !mHeld);
    if (takes) mShift = isShown() ? shiftAt(place) : Point{};
    const Point point = inImage(place) + mShift;
    const auto at = [&] { return floatHandleAt(document.selection(), document.view().effectiveZoom(), point); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (mHeld || event->button() != Qt::LeftButton || !isShown() || at() == FloatHandle::None) return false;
        mHeld = true;
        document.setPointer(point, true);
        document.press(&floatHandleActions(), point);
        return true;
    case QEvent::MouseMove:
        if (mHeld && event->buttons() & Qt::LeftButton) {
            document.setPointer(point, true);
            document.drag(point);
            return true;
        }
        if (watched == mViewport) mViewport->setCursor(cursorAt(document, point, devicePixelRatioF()));
        return false;
    case QEvent::MouseButtonRelease:
        if (!mHeld || event->button() != Qt::LeftButton) return false;
        mHeld = false;
        document.release(point);
        return true;
    default:
        return false;
    }
}

bool HandlesOverlay::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == mViewport) setGeometry(mViewport->rect());
        follow();
        break;
    case QEvent::Move:
        follow();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return handleMouse(watched, static_cast<QMouseEvent*>(event));
    default:
        break;
    }
    return false;
}
