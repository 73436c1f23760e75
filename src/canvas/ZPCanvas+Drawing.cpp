// SPDX-License-Identifier: GPL-3.0-or-later
/// What the canvas shows: the image, the stroke being drawn, the floating selection, the marching ants.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/MainThreadWake.h"
#include "desktop/ScrollView.h"
#include "drawing/AntsPainter.h"
#include "drawing/BitmapContext.h"
#include "drawing/ScreenRenderer.h"
#include "imageops/Adjustment.h"
#include "selection/FloatingImage.h"
#include "selection/OutlineSimplifier.h"
#include <QComboBox>
#include <QElapsedTimer>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QThread>
#include <mutex>

using namespace zp;

namespace
{

constexpr std::uint32_t kGrayWord = 0xFF808080;
/// What a line of ants may touch beside the outline itself, in device pixels.
constexpr int kOutlineMargin = 3;

/// What the drawing remembers from one redraw to the next.
struct DrawingState {
    explicit DrawingState(std::function<void()> passOn) : requested(std::move(passOn)) {}
    QImage buffer;                                     ///< screen words of the part being redrawn; grows, never shrinks
    std::mutex pendingLock;                            ///< guards the one below
    Rect pending;                                      ///< asked for by workers, not yet handed to Qt
    MainThreadWake requested;                          ///< a worker says that something is pending
    std::shared_ptr<BitmapRep> scratch;                ///< the picture under overlays, with them
    QPointF brushOutline{-1, -1};                      ///< where the brush outline was drawn last
    OutlineDrawing selectionOutline, auxOutline, ring; ///< what of each outline is on screen
};

DrawingState& stateOf(ZPCanvas& canvas) { return *static_cast<DrawingState*>(canvas.mDrawingState.get()); }

double zoomNumber(const QString& title)
{
    // "200%", "12.5 %" and plain numbers: what stands before the first other character.
    QString number;
    for (const QChar c : title.trimmed()) {
        if (!c.isDigit() && c != '.') break;
        number += c;
    }
    return number.toDouble();
}

/// Image coordinates to the canvas's device pixels.
AffineTransform toDevicePixels(double deviceScale)
{
    AffineTransform map;
    map.scale(deviceScale, deviceScale);
    return map;
}

void drawAnts(const ScreenTarget& target, OutlineDrawing& outline, const BezierPath& path,
              const AffineTransform& toDevice, const DashStyle& style)
{
    outline.setPath(path, toDevice);
    outline.visit(
        target.box,
        [&](std::span<const DevicePoint> line, double start) { drawDashedLine(target, line, start, style); },
        style.width + 1);
}

/// A view addressed like the whole picture, of which only @p box exists in @p scratch. Reading outside is not allowed.
ConstBitmapView windowOnto(const BitmapRep& scratch, PixelBox box, int width, int height)
{
    const ConstBitmapView part = scratch.view();
    return {part.data - part.rowBytes * box.y0 - std::ptrdiff_t{4} * box.x0, width, height, part.rowBytes};
}

} // namespace

void ZPCanvas::setNeedsDisplay(bool flag)
{
    if (flag) setNeedsDisplayInRect(bounds().inset(-4));
}

void ZPCanvas::setNeedsDisplayInRect(Rect imageRect)
{
    if (thread() == QThread::currentThread()) {
        const double z = effectiveZoom();
        const int x0 = int(std::floor(std::max(-1e8, imageRect.minX() * z))),
                  y0 = int(std::floor(std::max(-1e8, imageRect.minY() * z)));
        const int x1 = int(std::ceil(std::min(1e8, imageRect.maxX() * z))),
                  y1 = int(std::ceil(std::min(1e8, imageRect.maxY() * z)));
        update(QRect(QPoint(x0 - 1, y0 - 1), QPoint(x1, y1)));
        return;
    }
    // From a worker: gathered into one rectangle until the main thread gets to it, so that a fast stroke cannot flood
    // the event queue.
    DrawingState& state = stateOf(*this);
    const std::lock_guard lock(state.pendingLock);
    const bool first = state.pending.isEmpty();
    state.pending = unionRect(state.pending, imageRect);
    if (first && !state.pending.isEmpty()) state.requested.wake();
}

void ZPCanvas::displayNow() { repaint(); }

Rect ZPCanvas::visibleRect() const
{
    const double z = effectiveZoom();
    if (z <= 0) return {};
    const QRect shown = visibleRegion().boundingRect();
    return intersectionRect(bounds(), makeRect(float(shown.x() / z), float(shown.y() / z), float(shown.width() / z),
                                               float(shown.height() / z)));
}

void ZPCanvas::zoom(QComboBox* sender)
{
    if (sender) {
        const double number = zoomNumber(sender->currentText());
        if (number > 0) mZoom = float(number / 100);
    }
    logLine("zoom = %f", double(mZoom));
    setZoom(mZoom);
    logLine("tool = %i", mTool);
    logLine("size = %f", double(mSize));
    setNeedsDisplay();
}

void ZPCanvas::setZoom(float factor, std::optional<Point> anchor)
{
    if (!(factor > 0) || !std::isfinite(factor)) return;
    auto* scroll = parentWidget() ? qobject_cast<ScrollView*>(parentWidget()->parentWidget()) : nullptr;
    // The point that must not move on screen: the one asked for, else the middle of what is visible.
    const double before = width() > 0 && imageSize().width > 0 ? double(width()) / imageSize().width : effectiveZoom();
    QPointF inView;
    if (scroll) {
        if (!anchor) {
            const QRectF shown = scroll->documentVisibleRect();
            const QPointF middle = shown.center();
            anchor = Point{float(middle.x() / before), float(middle.y() / before)};
        }
        inView = QPointF(anchor->x * before, anchor->y * before) + QPointF(pos());
    }
    mZoom = factor;
    updateViewGeometry();
    if (scroll && anchor) {
        const double z = effectiveZoom();
        scroll->placeDocumentPoint(QPointF(anchor->x * z, anchor->y * z), inView);
    }
    setNeedsDisplay();
    emit zoomChanged();
}

void ZPCanvas::startFollowingPointer()
{
    // Made here, before any worker can ask for it.
    mDrawingState = std::make_shared<DrawingState>([this] {
        DrawingState& mine = stateOf(*this);
        Rect rect;
        {
            const std::lock_guard posted(mine.pendingLock);
            rect = std::exchange(mine.pending, Rect{});
        }
        setNeedsDisplayInRect(rect);
    });
    connect(this, &ZPCanvas::pointerMoved, this, [this](QPointF) {
        if (mTool == 1 && mPolygonLasso && !mIsMouseDown && mSelectionPath) {
            updateGestureOutlines(); // whether or not a redraw comes before the next click
            setNeedsDisplay();
        }
        if (mTool == 3 || mTool == 4 || mTool == 5 || mTool == 9) {
            DrawingState& state = stateOf(*this);
            const float margin = mSize * 0.5f + 3 / effectiveZoom();
            for (const QPointF p : {state.brushOutline, QPointF(mLastPointer.x, mLastPointer.y)})
                setNeedsDisplayInRect(makeRect(float(p.x()) - margin, float(p.y()) - margin, 2 * margin, 2 * margin));
            state.brushOutline = QPointF(mLastPointer.x, mLastPointer.y);
        }
    });
}

void ZPCanvas::selectionOutlineNeedsDisplay()
{
    if (!mSelectionPath) return;
    const QRect shown = visibleRegion().boundingRect();
    if (shown.isEmpty()) return;
    // The outline's own area, not its box.
    const double ratio = devicePixelRatioF(), deviceScale = double(effectiveZoom()) * ratio;
    const PixelBox visible{int(std::floor(shown.left() * ratio)), int(std::floor(shown.top() * ratio)),
                           int(std::ceil((shown.right() + 1) * ratio)), int(std::ceil((shown.bottom() + 1) * ratio))};
    DrawingState& state = stateOf(*this);
    QRegion dirty;
    const auto mark = [&](OutlineDrawing& outline, const BezierPath& path) {
        outline.setPath(path, toDevicePixels(deviceScale));
        for (const PixelBox& box : outline.dirtyBoxes(visible, kOutlineMargin)) {
            const int x0 = int(std::floor(box.x0 / ratio)), y0 = int(std::floor(box.y0 / ratio));
            dirty += QRect(x0, y0, int(std::ceil(box.x1 / ratio)) - x0, int(std::ceil(box.y1 / ratio)) - y0);
        }
    };
    mark(state.selectionOutline, *mSelectionPath);
    if (mAuxSelectionPath) mark(state.auxOutline, *mAuxSelectionPath);
    update(dirty);
}

void ZPCanvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    // All drawing is in device pixels, so that a line stays one device pixel at fractional screen scales too.
    const QTransform device = painter.deviceTransform();
    const double deviceScale = devicePixelRatioF();
    painter.setWorldTransform(device.inverted());
    const QPointF corner = device.map(QPointF(0, 0));
    const QPoint origin(qRound(corner.x()), qRound(corner.y()));

    // The marquee and the polygon's open edge take shape while they are drawn.
    updateGestureOutlines();
    for (const QRect& rect : event->region()) {
        const QRectF exact = device.mapRect(QRectF(rect));
        const QRect pixels(QPoint(int(std::floor(exact.left())), int(std::floor(exact.top()))),
                           QPoint(int(std::ceil(exact.right())) - 1, int(std::ceil(exact.bottom())) - 1));
        drawRect(painter, pixels, origin, double(effectiveZoom()) * deviceScale);
    }
}

void ZPCanvas::updateGestureOutlines()
{
    if (mTool == 1 && mPolygonLasso && !mIsMouseDown && mSelectionPath && !mSelectionPath->isEmpty()) {
        const Point pointer = mLastPointer;
        mSelectionPath->setAssociatedPoints({&pointer, 1}, mSelectionPath->elementCount() - 1);
    }
    if (mTool != 0 || !mIsMouseDown || mMove) return;
    Rect marquee = rectFromCorners(mPt1, mPt2);
    const std::uint32_t keys = currentKeyModifiers();
    if (keys & kCommandKey) {
        // A square of the smaller extent, growing from the press towards the pointer.
        const float side = float(std::min(std::abs(int(mPt2.x - mPt1.x)), std::abs(int(mPt2.y - mPt1.y))));
        marquee =
            makeRect(mPt2.x > mPt1.x ? mPt1.x : mPt1.x - side, mPt2.y > mPt1.y ? mPt1.y : mPt1.y - side, side, side);
    }
    mSelectionPath = keys & kControlKey ? BezierPath::withOvalInRect(marquee) : BezierPath::withRect(marquee);
    mSelectionPath->setLineWidth(1 / effectiveZoom());
}

bool ZPCanvas::composeOverlays(PixelBox box)
{
    // Overlays that change pixels are drawn over a copy of the picture's part, by the very operations that will write
    // them into the picture: what is seen is what comes.
    const bool stroking = (mTool == 4 || mTool == 5) && mIsMouseDown;
    const bool floating = mSelectionPath && mSelectionImage;
    if (box.isEmpty() || (!stroking && !floating)) return false;
    DrawingState& state = stateOf(*this);
    if (!state.scratch || state.scratch->pixelsWide() < box.width() || state.scratch->pixelsHigh() < box.height()) {
        state.scratch = BitmapRep::createUninitialized(box.width(), box.height());
        if (!state.scratch) return false;
    }
    const ConstBitmapView image = std::as_const(*mBitmapRep).view().part(box);
    BitmapView copy = state.scratch->view();
    copy.width = box.width(), copy.height = box.height();
    for (int y = 0; y < copy.height; ++y) std::memcpy(copy.rowData(y), image.rowData(y), std::size_t(copy.width) * 4);

    BitmapContext context(copy);
    AffineTransform shift;
    shift.translate(-box.x0, -box.y0);
    context.concat(shift);
    if (stroking) {
        context.saveGraphicsState();
        if (mSelectionPath) context.addClip(*mSelectionPath);
        context.setColor(mTool == 5 ? kGray : mColor);
        if (mPencilPath) {
            context.stroke(*mPencilPath);
        } else {
            BezierPath line;
            line.moveTo(mPt1);
            line.lineTo(mPt2);
            line.setLineWidth(mSize);
            line.setLineJoin(LineJoin::Round);
            line.setLineCap(LineCap::Round);
            context.stroke(line);
        }
        context.restoreGraphicsState();
    }
    if (floating) {
        prepareAdjustment(*this, box);
        if (mSelectionImage->representations().size() >= 2) {
            logLine(mTransform ? "more than one rep 2" : "more than one rep 1");
            for (const ImageRepresentation& r : mSelectionImage->representations())
                if (r.filtered) logLine(mTransform ? "CIImageRep drawn 2" : "CIImageRep drawn 1");
        }
        context.saveGraphicsState();
        context.addClip(*mSelectionPath);
        if (mPasteIntoSelectionPath) context.addClip(*mPasteIntoSelectionPath);
        drawFloating(context, *mSelectionImage, mTransformRecord, mColor.alpha);
        context.restoreGraphicsState();
    }
    return true;
}

PixelBox ZPCanvas::overlayBox() const
{
    const Size size = imageSize();
    Rect area;
    if ((mTool == 4 || mTool == 5) && mIsMouseDown) {
        if (mPencilPath) {
            area = strokeBounds(*mPencilPath);
        } else {
            area = rectFromCorners(mPt1, mPt2).inset(-mSize * 0.5f - 1);
        }
    }
    if (mSelectionPath && mSelectionImage) area = unionRect(area, mSelectionPath->bounds().inset(-1));
    return pixelBoxOf(area, int(size.width), int(size.height));
}

void ZPCanvas::drawOverlays(const ScreenTarget& target, double deviceScale)
{
    const PixelBox overlay = overlayBox();
    if (overlay.isEmpty()) return;
    const Size size = imageSize();
    const int width = int(size.width), height = int(size.height);
    // Screen pixels that the overlay touches, and the image pixels under all of them.
    const auto first = [deviceScale](int edge, int low) { return std::max(low, int(std::floor(edge * deviceScale))); };
    const auto last = [deviceScale](int edge, int high) { return std::min(high, int(std::ceil(edge * deviceScale))); };
    const PixelBox& box = target.box;
    const PixelBox part{first(overlay.x0, box.x0), first(overlay.y0, box.y0), last(overlay.x1, box.x1),
                        last(overlay.y1, box.y1)};
    if (part.isEmpty()) return;
    const auto under = [deviceScale](int edge, double margin) { return int(std::floor(edge / deviceScale + margin)); };
    const PixelBox pixels =
        PixelBox{under(part.x0, -1), under(part.y0, -1), under(part.x1, 2), under(part.y1, 2)}.intersected(
            PixelBox{0, 0, width, height});
    if (!composeOverlays(pixels)) return;
    renderToScreen(windowOnto(*stateOf(*this).scratch, pixels, width, height),
                   target.pixels + target.stride * (part.y0 - box.y0) + (part.x0 - box.x0), target.stride, part,
                   deviceScale, palette().color(QPalette::Mid).rgb() | 0xFF000000);
}

void ZPCanvas::drawRect(QPainter& painter, const QRect& deviceRect, QPoint origin, double deviceScale)
{
    const Size size = imageSize();
    if (!mBitmapRep || !(size.width > 0) || !(size.height > 0) || deviceRect.isEmpty()) return;
    DrawingState& state = stateOf(*this);
    const QElapsedTimer clock = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();

    // Device pixels of the canvas, counted from its own corner.
    const QRect mine = deviceRect.translated(-origin);
    const PixelBox box{mine.left(), mine.top(), mine.left() + mine.width(), mine.top() + mine.height()};
    if (state.buffer.width() < mine.width() || state.buffer.height() < mine.height())
        state.buffer = QImage(std::max(mine.width(), state.buffer.width()),
                              std::max(mine.height(), state.buffer.height()), QImage::Format_RGB32);
    auto* words = reinterpret_cast<std::uint32_t*>(state.buffer.bits());
    const std::ptrdiff_t stride = state.buffer.bytesPerLine() / 4;
    const std::uint32_t outside = palette().color(QPalette::Mid).rgb() | 0xFF000000;
    const ScreenTarget target{words, stride, box};

    const bool strokeOpen = !mDrawFinishedFlag.load(std::memory_order_acquire);
    const bool brushAtWork = mTool == 3 && strokeOpen;
    {
        // While the brush writes pixels elsewhere in the picture, each redraw waits for the stamp in progress.
        std::unique_lock lock(mPixelLock, std::defer_lock);
        if (strokeOpen) lock.lock();
        if (brushAtWork) mDo = true;
        renderToScreen(std::as_const(*mBitmapRep).view(), words, stride, box, deviceScale, outside);
        drawOverlays(target, deviceScale);
    }
    if (brushAtWork) {
        logLine("dirty rect: %s",
                stringFromRect(makeRect(float(box.x0 / deviceScale), float(box.y0 / deviceScale),
                                        float(box.width() / deviceScale), float(box.height() / deviceScale)))
                    .c_str());
        logLine("mImage drawInRect rect: %f", double(clock.nsecsElapsed()) * 1e-9);
        mDo = false;
    }
    if (mPencilPath && (mTool == 4 || mTool == 5)) logLine(mTool == 4 ? "drawInRect tool 4" : "drawInRect tool 5");

    drawOutlines(target, deviceScale);
    painter.drawImage(deviceRect.topLeft(), state.buffer, QRect(0, 0, mine.width(), mine.height()));
}

void ZPCanvas::drawOutlines(const ScreenTarget& target, double deviceScale)
{
    const int lineWidth = std::max(1, int(std::floor(devicePixelRatioF())));
    const AffineTransform toDevice = toDevicePixels(deviceScale);
    DrawingState& state = stateOf(*this);
    if (mSelectionPath) {
        const double pixelsPerPoint = deviceScale / effectiveZoom();
        DashStyle ants{5 * pixelsPerPoint, double(mSelectionPhase) * pixelsPerPoint, lineWidth};
        AffineTransform placed = toDevice;
        if (mTransform) {
            // A free transform shows the outline centred on the record's position, turned and scaled; the outline
            // itself moves to the transform's origin. The short value of pi belongs to this mode.
            const Rect b = mSelectionPath->bounds();
            AffineTransform toOrigin;
            toOrigin.translate(-b.center().x, -b.center().y);
            mSelectionPath->transform(toOrigin);
            const double s = mTransformRecord.scale, angle = mTransformRecord.rotate / 360.0 * 2 * 3.1415;
            const double px = mTransformRecord.position.x / s, py = mTransformRecord.position.y / s;
            AffineTransform free;
            free.rotateByDegrees(mTransformRecord.rotate);
            free.scale(s, s);
            free.translate(px * std::cos(angle) + py * std::sin(angle), py * std::cos(angle) - px * std::sin(angle));
            placed.prepend(free);
        }
        drawAnts(target, state.selectionOutline, *mSelectionPath, placed, ants);
        if (mAuxSelectionPath) {
            ants.phase = 0;
            drawAnts(target, state.auxOutline, *mAuxSelectionPath, toDevice, ants);
        }
    }
    const bool brushTool = mTool == 3 || mTool == 4 || mTool == 5 || mTool == 9;
    if (brushTool && mPointerInside) {
        const float r = mSize * 0.5f;
        const BezierPath ring =
            BezierPath::withOvalInRect(makeRect(mLastPointer.x - r, mLastPointer.y - r, mSize, mSize));
        const DashStyle ringStyle{3, 0, lineWidth, 0xFF202020, 0xFFF0F0F0};
        drawAnts(target, state.ring, ring, toDevice, ringStyle);
    }
}
