// SPDX-License-Identifier: GPL-3.0-or-later
/// What the canvas shows: the image, the stroke being drawn, the floating selection, the marching ants. Drawing looks
/// at the document and changes nothing of it.
#include "base/Log.h"
#include "canvas/Backdrop.h"
#include "canvas/DrawingState.h"
#include "canvas/ToolTable.h"
#include "canvas/WandExplainer.h"
#include "canvas/ZPCanvas.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Preview.h"
#include "document/Selection.h"
#include "document/View.h"
#include "drawing/AntsPainter.h"
#include "drawing/ScreenRenderer.h"
#include "drawing/ScreenRows.h"
#include "operations/Files.h"
#include <QElapsedTimer>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <cstring>
#include <mutex>

using namespace zp;

namespace
{

/// What a line of ants may touch beside the outline itself, in device pixels.
constexpr int kOutlineMargin = 3;
/// The ants around what floats are so much longer than around what is only selected, and march so much faster.
constexpr double kFloatingAnts = 2;
/// Device pixels an image pixel, from which on down what floats is drawn for the screen alone.
constexpr double kReduced = 0.5;
/// Pixels from which on a view at the lowest zoom takes longer to read than a frame lasts: it is made beforehand, when
/// the picture has not changed for so many milliseconds.
constexpr std::int64_t kVeryLarge = 100'000'000;
constexpr int kSmallPatience = 400;

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

// ---- what must be drawn again ---------------------------------------------------------------------------------------

void ZPCanvas::setNeedsDisplayInRect(Rect imageRect)
{
    const double z = mDocument.view().effectiveZoom();
    const int x0 = int(std::floor(std::max(-1e8, imageRect.minX() * z))),
              y0 = int(std::floor(std::max(-1e8, imageRect.minY() * z)));
    const int x1 = int(std::ceil(std::min(1e8, imageRect.maxX() * z))),
              y1 = int(std::ceil(std::min(1e8, imageRect.maxY() * z)));
    update(QRect(QPoint(x0 - 1, y0 - 1), QPoint(x1, y1)));
}

Rect ZPCanvas::visibleRect() const
{
    const double z = mDocument.view().effectiveZoom();
    if (z <= 0) return {};
    const QRect shown = visibleRegion().boundingRect();
    return intersectionRect(bounds(), makeRect(float(shown.x() / z), float(shown.y() / z), float(shown.width() / z),
                                               float(shown.height() / z)));
}

PixelBox ZPCanvas::visibleDeviceBox() const
{
    const QRect shown = visibleRegion().boundingRect();
    if (shown.isEmpty()) return {};
    const double ratio = devicePixelRatioF();
    return {int(std::floor(shown.left() * ratio)), int(std::floor(shown.top() * ratio)),
            int(std::ceil((shown.right() + 1) * ratio)), int(std::ceil((shown.bottom() + 1) * ratio))};
}

void ZPCanvas::ringNeedsDisplay()
{
    const float zoom = mDocument.view().effectiveZoom(), line = 3 / zoom;
    const auto dirty = [&](Point at, float size) {
        const float reach = size * 0.5f + line;
        setNeedsDisplayInRect(makeRect(at.x - reach, at.y - reach, 2 * reach, 2 * reach));
    };
    if (mDrawing->ringSize > 0) dirty(mDrawing->ringAt, mDrawing->ringSize);
    mDrawing->ringSize = row().outline ? mDocument.paint().size() : 0;
    mDrawing->ringAt = mDocument.view().pointer();
    if (mDrawing->ringSize > 0) dirty(mDrawing->ringAt, mDrawing->ringSize);
}

void ZPCanvas::antsNeedDisplay()
{
    const Selection& selection = mDocument.selection();
    if (selection.isNil()) return;
    const PixelBox visible = visibleDeviceBox();
    if (visible.isEmpty()) return;
    // The outline's own area, not its box.
    const double ratio = devicePixelRatioF(), deviceScale = double(mDocument.view().effectiveZoom()) * ratio;
    QRegion dirty;
    const auto mark = [&](OutlineDrawing& outline, const BezierPath& path) {
        outline.setPath(path, toDevicePixels(deviceScale));
        for (const PixelBox& box : outline.dirtyBoxes(visible, kOutlineMargin)) {
            const int x0 = int(std::floor(box.x0 / ratio)), y0 = int(std::floor(box.y0 / ratio));
            dirty += QRect(x0, y0, int(std::ceil(box.x1 / ratio)) - x0, int(std::ceil(box.y1 / ratio)) - y0);
        }
    };
    mark(mDrawing->selectionOutline, *selection.outline());
    if (selection.parked()) mark(mDrawing->auxOutline, *selection.parked());
    update(dirty);
}

// ---- drawing --------------------------------------------------------------------------------------------------------

void ZPCanvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    try {
        paintRegion(painter, event->region());
    } catch (const std::exception& error) {
        // Not through the toolkit's own painting, which would never paint again: what is on screen stays.
        logLine("not painted: %s", error.what());
    }
}

void ZPCanvas::paintRegion(QPainter& painter, const QRegion& region)
{
    // All drawing is in device pixels, so that a line stays one device pixel at fractional screen scales too.
    const QTransform device = painter.deviceTransform();
    const double deviceScale = devicePixelRatioF();
    painter.setWorldTransform(device.inverted());
    const QPointF corner = device.map(QPointF(0, 0));
    const QPoint origin(qRound(corner.x()), qRound(corner.y()));
    for (const QRect& rect : region) {
        const QRectF exact = device.mapRect(QRectF(rect));
        const QRect pixels(QPoint(int(std::floor(exact.left())), int(std::floor(exact.top()))),
                           QPoint(int(std::ceil(exact.right())) - 1, int(std::ceil(exact.bottom())) - 1));
        drawRect(painter, pixels, origin, double(mDocument.view().effectiveZoom()) * deviceScale);
    }
}

PixelBox ZPCanvas::overlayBox() const
{
    const Picture& picture = mDocument.picture();
    const Selection& selection = mDocument.selection();
    if (mDocument.view().isChequered()) return picture.box();
    PixelBox box;
    if (const auto& preview = mDocument.view().preview()) box = preview->box.intersected(picture.box());
    if (mDocument.view().compared())
        box = box.united(PixelBox{0, 0, mDocument.view().split(picture.width()), picture.height()});
    if (row().preview && mDocument.gesture().actions()) box = box.united(row().previewBox(mDocument));
    if (!selection.isNil() && selection.floating())
        box = box.united(pixelBoxOf(selection.bounds().inset(-1), picture.width(), picture.height()));
    return box;
}

bool ZPCanvas::makeScratch(PixelBox box)
{
    std::shared_ptr<BitmapRep>& scratch = mDrawing->scratch;
    if (!scratch || scratch->pixelsWide() < box.width() || scratch->pixelsHigh() < box.height())
        scratch = BitmapRep::createUninitialized(box.width(), box.height());
    return scratch != nullptr;
}

bool ZPCanvas::showsPieceAlone() const
{
    const View& view = mDocument.view();
    return mDocument.selection().floating() && !mDocument.selection().isNil() && !view.isChequered() &&
           !view.preview() && !view.compared() && !(row().preview && mDocument.gesture().actions());
}

bool ZPCanvas::drawPieceReduced(const ScreenTarget& target, PixelBox part, double deviceScale)
{
    if (!makeScratch(part)) return false;
    BitmapView piece = mDrawing->scratch->view();
    piece.width = part.width(), piece.height = part.height();
    for (int y = 0; y < piece.height; ++y) std::memset(piece.rowData(y), 0, std::size_t(piece.width) * 4);
    logPiece();
    drawFloatingPieceReduced(mDocument, piece, part.x0, part.y0, deviceScale);
    for (int y = 0; y < piece.height; ++y)
        layOnScreen(piece.row(y),
                    target.pixels + target.stride * (part.y0 - target.box.y0 + y) + (part.x0 - target.box.x0),
                    piece.width);
    return true;
}

void ZPCanvas::logPiece() const
{
    mDocument.selection().floating()->logDrawing(mDocument.selection().isTransforming() ? " 2" : " 1");
}

bool ZPCanvas::composeOverlays(PixelBox box)
{
    // Overlays that change pixels are drawn over a copy of the picture's part, by the very operations that will write
    // them into the picture: what is seen is what comes.
    if (box.isEmpty() || !makeScratch(box)) return false;
    BitmapView copy = mDrawing->scratch->view();
    copy.width = box.width(), copy.height = box.height();
    copyPixels(mDocument.picture().pixels().part(box), copy);
    if (row().preview && mDocument.gesture().actions()) row().preview(mDocument, copy, box.x0, box.y0);
    if (mDocument.selection().floating()) {
        logPiece();
        drawFloatingPiece(mDocument, copy, box.x0, box.y0);
    }
    // Over what floats: the result is written when that has become part of the picture.
    if (const auto& preview = mDocument.view().preview()) layPreview(*preview, copy, box.x0, box.y0);
    if (const auto& before = mDocument.view().compared()) {
        const int split = mDocument.view().split(before->pixelsWide());
        const PixelBox left = PixelBox{0, 0, split, before->pixelsHigh()}.intersected(box);
        if (!left.isEmpty())
            copyPixels(before->view().part(left),
                       copy.part({left.x0 - box.x0, left.y0 - box.y0, left.x1 - box.x0, left.y1 - box.y0}));
    }
    if (mDocument.view().isChequered()) layChequerboardUnder(copy, box.x0, box.y0, mDocument.view().effectiveZoom());
    return true;
}

void ZPCanvas::drawOverlays(const ScreenTarget& target, double deviceScale)
{
    const PixelBox overlay = overlayBox();
    if (overlay.isEmpty()) return;
    const int width = mDocument.picture().width(), height = mDocument.picture().height();
    // Screen pixels that the overlay touches, and the image pixels under all of them.
    const auto first = [deviceScale](int edge, int low) { return std::max(low, int(std::floor(edge * deviceScale))); };
    const auto last = [deviceScale](int edge, int high) { return std::min(high, int(std::ceil(edge * deviceScale))); };
    const PixelBox& box = target.box;
    const PixelBox part{first(overlay.x0, box.x0), first(overlay.y0, box.y0), last(overlay.x1, box.x1),
                        last(overlay.y1, box.y1)};
    if (part.isEmpty()) return;
    // A piece of many times the screen's pixels would be drawn in all of them to be averaged at once.
    if (deviceScale <= kReduced && showsPieceAlone() && drawPieceReduced(target, part, deviceScale)) return;
    const auto under = [deviceScale](int edge, double margin) { return int(std::floor(edge / deviceScale + margin)); };
    const PixelBox pixels =
        PixelBox{under(part.x0, -1), under(part.y0, -1), under(part.x1, 2), under(part.y1, 2)}.intersected(
            PixelBox{0, 0, width, height});
    if (!composeOverlays(pixels)) return;
    renderToScreen(windowOnto(*mDrawing->scratch, pixels, width, height),
                   target.pixels + target.stride * (part.y0 - box.y0) + (part.x0 - box.x0), target.stride, part,
                   deviceScale, outside());
}

std::uint32_t ZPCanvas::outside() const { return palette().color(QPalette::Mid).rgb() | 0xFF000000; }

void ZPCanvas::drawPicture(const ScreenTarget& target, double deviceScale, bool strokeOpen)
{
    const Picture& picture = mDocument.picture();
    const bool underPiece = !strokeOpen && deviceScale <= kReduced && showsPieceAlone();
    if (!underPiece) mDrawing->still.forget();
    const PixelBox small = deviceScale == smallestDeviceScale() && !strokeOpen ? smallBox() : PixelBox{};
    if (!small.isEmpty())
        mDrawing->small.draw(target, picture, {small, deviceScale, outside()});
    else if (underPiece)
        // What floats is redrawn with each move of the hand; reading a whole view of the picture anew, many pixels of
        // it for one of the screen, would take as long as all the rest.
        mDrawing->still.draw(target, picture, {visibleDeviceBox(), deviceScale, outside()});
    else
        renderToScreen(picture.pixels(), target.pixels, target.stride, target.box, deviceScale, outside());
}

double ZPCanvas::smallestDeviceScale() const
{
    return double(mDocument.view().smallestEffectiveZoom()) * devicePixelRatioF();
}

PixelBox ZPCanvas::smallBox() const
{
    const PixelBox all = mDocument.picture().box();
    if (std::int64_t{all.width()} * all.height() < kVeryLarge) return {};
    const double scale = smallestDeviceScale();
    // The canvas may be a pixel larger: its own size is rounded too.
    return {0, 0, int(std::ceil(all.width() * scale)) + 2, int(std::ceil(all.height() * scale)) + 2};
}

void ZPCanvas::smallIsOld() { mSmallTimer.start(kSmallPatience); }

void ZPCanvas::prepareSmall()
{
    const PixelBox small = smallBox();
    if (small.isEmpty()) return mDrawing->small.forget();
    if (!mDocument.gesture().stroke().isDrawn()) return smallIsOld();
    if (mDrawing->small.prepare(mDocument.picture(), {small, smallestDeviceScale(), outside()}))
        mSmallTimer.start(0); // what came meanwhile goes before the next part
}

void ZPCanvas::drawRect(QPainter& painter, const QRect& deviceRect, QPoint origin, double deviceScale)
{
    const Picture& picture = mDocument.picture();
    if (!picture.bitmap() || deviceRect.isEmpty()) return;
    QElapsedTimer clock;
    clock.start();

    // Device pixels of the canvas, counted from its own corner.
    const QRect mine = deviceRect.translated(-origin);
    const PixelBox box{mine.left(), mine.top(), mine.left() + mine.width(), mine.top() + mine.height()};
    QImage& buffer = mDrawing->buffer;
    if (buffer.width() < mine.width() || buffer.height() < mine.height())
        buffer = QImage(std::max(mine.width(), buffer.width()), std::max(mine.height(), buffer.height()),
                        QImage::Format_RGB32);
    if (buffer.isNull()) return; // no memory: what is on screen stays
    auto* words = reinterpret_cast<std::uint32_t*>(buffer.bits());
    const std::ptrdiff_t stride = buffer.bytesPerLine() / 4;
    const ScreenTarget target{words, stride, box};

    const Tool tool = mDocument.gesture().tool();
    const bool strokeOpen = !mDocument.gesture().stroke().isDrawn();
    {
        // While the brush writes pixels elsewhere in the picture, each redraw waits for the stamp in progress.
        std::unique_lock lock(picture.pixelLock(), std::defer_lock);
        if (strokeOpen) lock.lock();
        drawPicture(target, deviceScale, strokeOpen);
        drawOverlays(target, deviceScale);
    }
    showThroughProfile(target, deviceScale);
    if (tool == Tool::Brush && strokeOpen) {
        logLine("dirty rect: %s",
                stringFromRect(makeRect(float(box.x0 / deviceScale), float(box.y0 / deviceScale),
                                        float(box.width() / deviceScale), float(box.height() / deviceScale)))
                    .c_str());
        logLine("mImage drawInRect rect: %f", double(clock.nsecsElapsed()) * 1e-9);
    }
    if (mDocument.gesture().pencilPath() && (tool == Tool::Pencil || tool == Tool::Eraser))
        logLine(tool == Tool::Pencil ? "drawInRect tool 4" : "drawInRect tool 5");

    mWandExplainer->draw(target, deviceScale, pixelsPerPoint(deviceScale));
    if (mDocument.view().hasGrid() && mDocument.view().effectiveZoom() >= kGridZoom) drawPixelGrid(target, deviceScale);
    drawOutlines(target, deviceScale);
    painter.drawImage(deviceRect.topLeft(), buffer, QRect(0, 0, mine.width(), mine.height()));
    if (mDocument.view().compared()) drawSplit(painter, deviceRect, origin, deviceScale);
}

void ZPCanvas::drawSplit(QPainter& painter, const QRect& deviceRect, QPoint origin, double deviceScale) const
{
    const int width = mDocument.picture().width(), split = mDocument.view().split(width);
    if (split <= 0 || split >= width) return;
    const int x = origin.x() + int(std::lround(split * deviceScale)), line = std::max(1, qRound(devicePixelRatioF()));
    // White beside black: seen on every picture.
    painter.fillRect(QRect(x - line, deviceRect.top(), line, deviceRect.height()).intersected(deviceRect), Qt::white);
    painter.fillRect(QRect(x, deviceRect.top(), line, deviceRect.height()).intersected(deviceRect), Qt::black);
}

double ZPCanvas::pixelsPerPoint(double deviceScale) const { return deviceScale / mDocument.view().effectiveZoom(); }

void ZPCanvas::drawOutlines(const ScreenTarget& target, double deviceScale)
{
    const int lineWidth = std::max(1, int(std::floor(devicePixelRatioF())));
    const AffineTransform toDevice = toDevicePixels(deviceScale);
    const Selection& selection = mDocument.selection();
    if (const BezierPath* outline = selection.outline()) {
        const double point = pixelsPerPoint(deviceScale);
        const double length = point * (selection.floating() ? kFloatingAnts : 1);
        DashStyle ants{5 * length, double(selection.phase()) * length, lineWidth};
        drawAnts(target, mDrawing->selectionOutline, *outline, toDevice, ants);
        if (selection.parked()) {
            ants.phase = 0;
            drawAnts(target, mDrawing->auxOutline, *selection.parked(), toDevice, ants);
        }
    }
    if (mKeyboardPointer) {
        // A crosshair with its middle free.
        const Point at = mDocument.view().pointer();
        const double near = 3 * pixelsPerPoint(deviceScale), far = 12 * pixelsPerPoint(deviceScale);
        const double x = at.x * deviceScale, y = at.y * deviceScale;
        for (const auto& [dx, dy] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}}) {
            const DevicePoint arm[] = {{x + dx * near, y + dy * near}, {x + dx * far, y + dy * far}};
            drawDashedLine(target, arm, 0, {2, 0, lineWidth});
        }
    }
    if (row().outline && mDocument.view().pointerInside()) {
        const Point at = mDocument.view().pointer();
        const float size = mDocument.paint().size();
        const BezierPath ring =
            BezierPath::withOvalInRect(makeRect(at.x - size * 0.5f, at.y - size * 0.5f, size, size));
        drawAnts(target, mDrawing->ring, ring, toDevice, {3, 0, lineWidth, 0xFF202020, 0xFFF0F0F0});
    }
}
