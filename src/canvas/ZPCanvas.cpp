// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's life: what it listens to, its size, its zoom.
#include "canvas/ZPCanvas.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "canvas/Cursors.h"
#include "canvas/DrawingState.h"
#include "canvas/ToolTable.h"
#include "canvas/WandExplainer.h"
#include "desktop/ScrollView.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/View.h"
#include "operations/TextToolHook.h"
#include <QScrollBar>
#include <algorithm>
#include <cmath>

using namespace zp;

namespace
{

/// Screen points that are shown around what is revealed.
constexpr int kRevealMargin = 12;

} // namespace

ZPCanvas::ZPCanvas(Document& document, QWidget* parent)
    : QWidget(parent),
      mDocument(document),
      mDrawing(std::make_unique<DrawingState>()),
      mWandExplainer(std::make_unique<WandExplainer>(document, nullptr))
{
    setObjectName("mCanvas");
    setAccessibleName(tr("Canvas"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setCursor(Qt::CrossCursor);
    mCursorTimer.setSingleShot(true);
    connect(&mCursorTimer, &QTimer::timeout, this, &ZPCanvas::showCursor);
    const auto cursorMayChange = [this] { mCursorTimer.start(0); };
    connect(&mDocument, &Document::pointerMoved, this, cursorMayChange);
    connect(&mDocument, &Document::toolChosen, this, cursorMayChange);
    connect(&mDocument, &Document::changed, this, cursorMayChange);
    connect(&mDocument, &Document::touched, this, &ZPCanvas::setNeedsDisplayInRect);
    connect(&mDocument, &Document::antsMoved, this, &ZPCanvas::antsNeedDisplay);
    connect(&mDocument, &Document::revealed, this, &ZPCanvas::reveal);
    connect(&mDocument, &Document::pictureReplaced, this, &ZPCanvas::updateViewGeometry);
    connect(&mDocument, &Document::zoomChanged, this, &ZPCanvas::updateViewGeometry);
    connect(&mDocument, &Document::pointerMoved, this, &ZPCanvas::ringNeedsDisplay);
    connect(&mDocument, &Document::paintChanged, this, &ZPCanvas::ringNeedsDisplay);
    connect(&mDocument, &Document::toolChosen, this, [this] {
        ringNeedsDisplay(); // the new tool may have one where the pointer rests
        setNeedsDisplay();
    });
    connect(mWandExplainer.get(), &WandExplainer::needsDisplay, this, &ZPCanvas::setNeedsDisplayInRect);
    mSmallTimer.setSingleShot(true);
    connect(&mSmallTimer, &QTimer::timeout, this, &ZPCanvas::prepareSmall);
    connect(&mDocument, &Document::touched, this, &ZPCanvas::smallIsOld);
    connect(&mDocument, &Document::pictureReplaced, this, &ZPCanvas::smallIsOld);
    connect(&mRestTimer, &QTimer::timeout, this, &ZPCanvas::repeatDrag);
    NotificationCenter::defaultCenter().addObserver(this, "TextEditorNotif",
                                                    [this](const Notification&) { textEditorNotif(mDocument); });
    updateViewGeometry();
}

ZPCanvas::~ZPCanvas() { NotificationCenter::defaultCenter().removeObserver(this); }

Rect ZPCanvas::bounds() const { return mDocument.picture().bounds(); }

const ToolRow& ZPCanvas::row() const { return rowOf(mDocument.gesture()); }

void ZPCanvas::showCursor()
{
    const QCursor wanted = cursorAt(mDocument, mDocument.view().pointer(), devicePixelRatioF());
    if (wanted != cursor()) setCursor(wanted);
}

void ZPCanvas::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    mDocument.setOnScreen(true);
}

void ZPCanvas::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    mDocument.setOnScreen(false);
}

void ZPCanvas::updateViewGeometry()
{
    const Size size = mDocument.picture().size();
    const double z = mDocument.view().effectiveZoom();
    const auto extent = [z](float pixels) { return pixels > 0 ? std::max(1, int(std::ceil(double(pixels) * z))) : 0; };
    const QSize wanted(extent(size.width), extent(size.height));
    if (wanted != this->size()) setFixedSize(wanted);
    setNeedsDisplay();
}

// ---- zoom -----------------------------------------------------------------------------------------------------------

void ZPCanvas::zoom(double percent)
{
    const float factor = percent > 0 ? float(percent / 100) : mDocument.view().zoom();
    logLine("zoom = %f", double(factor));
    setZoom(factor);
    logLine("tool = %i", int(mDocument.gesture().tool()));
    logLine("size = %f", double(mDocument.paint().size()));
}

void ZPCanvas::setZoom(float factor, std::optional<Point> anchor)
{
    auto* scroll = parentWidget() ? qobject_cast<ScrollView*>(parentWidget()->parentWidget()) : nullptr;
    // The point that must not move on screen: the one asked for, else the middle of what is visible.
    const Size size = mDocument.picture().size();
    const double before =
        width() > 0 && size.width > 0 ? double(width()) / size.width : mDocument.view().effectiveZoom();
    QPointF inView;
    if (scroll) {
        if (!anchor) {
            const QPointF middle = QRectF(scroll->documentVisibleRect()).center();
            anchor = Point{float(middle.x() / before), float(middle.y() / before)};
        }
        inView = QPointF(anchor->x * before, anchor->y * before) + QPointF(pos());
    }
    mDocument.setZoom(factor);
    if (scroll && anchor) {
        const double z = mDocument.view().effectiveZoom();
        scroll->placeDocumentPoint(QPointF(anchor->x * z, anchor->y * z), inView);
    }
}

void ZPCanvas::scaleZoom(double factor, Point anchor)
{
    const float now = mDocument.view().zoom();
    setZoom(std::clamp(float(now * factor), std::min(now, kZoomLevels.front()), std::max(now, kZoomLevels.back())),
            anchor);
}

void ZPCanvas::reveal(Rect imageRect)
{
    auto* scroll = parentWidget() ? qobject_cast<ScrollView*>(parentWidget()->parentWidget()) : nullptr;
    const double z = mDocument.view().effectiveZoom();
    if (!scroll || z <= 0) return;
    const Rect wanted = intersectionRect(imageRect, bounds());
    if (wanted.isEmpty()) return;
    const auto follow = [z](QScrollBar* bar, float near, float far) {
        const int first = int(std::floor(double(near) * z)) - kRevealMargin,
                  last = int(std::ceil(double(far) * z)) + kRevealMargin, room = bar->pageStep();
        if (first < bar->value() || last - first > room)
            bar->setValue(first);
        else if (last > bar->value() + room)
            bar->setValue(last - room);
    };
    follow(scroll->horizontalScrollBar(), wanted.minX(), wanted.maxX());
    follow(scroll->verticalScrollBar(), wanted.minY(), wanted.maxY());
}

void ZPCanvas::stepZoom(int step, std::optional<Point> anchor)
{
    const float now = mDocument.view().zoom();
    float level = kZoomLevels[std::size_t(mDocument.view().levelBeyond(step))];
    if ((step > 0) != (level > now) && level != now) level = now; // beyond the last level already
    if (anchor) return setZoom(level, anchor);
    zoom(double(level) * 100);
}
