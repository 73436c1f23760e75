// SPDX-License-Identifier: GPL-3.0-or-later
/// The document's life, what needs no gate, and its workers.
#include "document/Document.h"
#include "base/PixelMemory.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Preview.h"
#include "document/Selection.h"
#include "document/Shelf.h"
#include "document/View.h"

namespace zp
{

namespace
{

/// Milliseconds after which pooled pixel memory is given back.
constexpr int kPoolPatience = 1500;
/// How often requests from outside look whether they may run.
constexpr int kRequestInterval = 30;
/// What a step changes of the brush's size, and the sizes that the window's field offers.
constexpr float kSizeStep = 0.1f, kSmallestSize = 1, kLargestSize = 2000;
/// Milliseconds for which the status line says what a command did.
constexpr int kMessagePatience = 8000;

} // namespace

struct Document::Values {
    Values(Document& document, std::uint32_t strokeCapacity)
        : selection([this, &document] {
              selection.advanceAnts();
              emit document.antsMoved();
          }),
          gesture(std::make_unique<BrushStroke>(
              strokeCapacity, [&document](Rect rect) { document.touchedByWorker(rect); },
              [&document] { document.strokeEnded(); })),
          history([&document] { emit document.stepsChanged(); },
                  [&document](const QString& trouble) { document.notice(trouble); })
    {
    }
    Picture picture;
    Selection selection;
    Gesture gesture;
    Paint paint;
    History history;
    View view;
    Shelf shelf;
};

Document::Document(std::span<const Command> commands) : Document(commands, BrushStroke::kCapacity) {}

Document::Document(std::span<const Command> commands, std::uint32_t strokeCapacity)
    : mCommands(commands),
      mValues(std::make_unique<Values>(*this, strokeCapacity)),
      mPicture(mValues->picture),
      mSelection(mValues->selection),
      mGesture(mValues->gesture),
      mPaint(mValues->paint),
      mHistory(mValues->history),
      mView(mValues->view),
      mShelf(mValues->shelf),
      mPaintedWake([this] {
          Rect rect;
          {
              const std::lock_guard lock(mPaintedLock);
              rect = std::exchange(mPaintedByWorker, Rect{});
          }
          emit touched(rect);
      })
{
    mUnused.mPath.setLineJoin(LineJoin::Round);
    mUnused.mPath.setLineCap(LineCap::Round);
    mPoolTimer.setSingleShot(true);
    connect(&mPoolTimer, &QTimer::timeout, this, [] { trimPixelPool(); });
    connect(this, &Document::pictureReplaced, this, [this] { mPoolTimer.start(kPoolPatience); });
    connect(&mRequestTimer, &QTimer::timeout, this, &Document::runRequests);
    mRequestTimer.setInterval(kRequestInterval);
    mMessageTimer.setSingleShot(true);
    connect(&mMessageTimer, &QTimer::timeout, this, [this] { say({}); });
}

Document::~Document()
{
    mGesture.stroke().close();
    mGesture.stroke().join();
    mHistory.waitForWriter();
}

bool Document::isModified() const
{
    const Floating* const piece = mSelection.floating();
    return mPicture.bitmap() && (mHistory.isModified() || (piece && piece->isChanged()));
}

bool Document::anyWorkerRunning() const { return !mGesture.stroke().isDrawn() || mHistory.isBusy(); }

bool Document::firstStepPending() const { return mHistory.firstStepPending(); }

bool Document::strokeIsOpen() const { return mGesture.stroke().isOpen(); }

void Document::setPressure(float pressure)
{
    emit penPressed(pressure);
    mGesture.stroke().setPressure(pressure);
}

void Document::samplePointer(Point point)
{
    if (strokeIsOpen()) emit handMoved(Hand::Move, point);
    mGesture.stroke().push(point);
}

void Document::setOnScreen(bool on) { mView.setOnScreen(on); }

void Document::setBrushShape(int index) { mPaint.setBrushShape(index); }

void Document::setToleranceSetting(int setting)
{
    if (setting == mPaint.toleranceSetting()) return;
    mPaint.setToleranceSetting(setting);
    emit paintChanged();
}

std::string Document::infoText() const
{
    if (mSelection.isNil()) return mView.infoWithoutSelection();
    return stringFromRect(integralRect(mSelection.bounds()));
}

// ---- what the person is told ----------------------------------------------------------------------------------------

void Document::notice(Notice notice)
{
    if (mNotices.add(std::move(notice))) emit noticed();
}

void Document::closeNotice()
{
    mNotices.closeFront();
    emit noticed();
}

void Document::say(const QString& message)
{
    mMessage = message;
    if (message.isEmpty())
        mMessageTimer.stop();
    else
        mMessageTimer.start(kMessagePatience);
    emit changed();
}

void Document::dropNoticesOfFile()
{
    mNotices.dropThoseOfPicture();
    emit noticed();
}

// ---- looking and painting -------------------------------------------------------------------------------------------

void Document::setZoom(float factor)
{
    if (!(factor > 0) || !std::isfinite(factor)) return;
    mView.setZoom(factor);
    emit zoomChanged();
    emit changed();
}

void Document::fitPicture()
{
    mView.setFit(Fit::Whole);
    mView.refit(mPicture.size());
    emit zoomChanged();
    emit changed();
}

void Document::setRoom(Size room)
{
    mView.setRoom(room);
    if (!mView.refit(mPicture.size())) return;
    emit zoomChanged();
    emit changed();
}

void Document::setRetina(bool on)
{
    mView.setRetina(on);
    mView.refit(mPicture.size());
    emit zoomChanged();
    emit changed();
}

void Document::setChequered(bool on)
{
    mView.setChequered(on);
    emit touched(mPicture.bounds());
}

void Document::showPreview(std::shared_ptr<const Preview> preview)
{
    const std::shared_ptr<const Preview> before = mView.preview();
    if (before == preview) return;
    mView.setPreview(preview);
    if (before) emit touched(before->box.rect());
    if (preview) emit touched(preview->box.rect());
}

void Document::setGrid(bool on)
{
    mView.setGrid(on);
    emit touched(mPicture.bounds());
}

void Document::setExplainsWand(bool on)
{
    if (on == mView.explainsWand()) return;
    mView.setExplainsWand(on);
    emit toolChosen(); // what it does, and says of itself, is another thing now
    emit changed();
}

void Document::setFreesCorners(bool on)
{
    mView.setFreesCorners(on);
    emit changed();
}

bool Document::compareWith(std::shared_ptr<const BitmapRep> before)
{
    if (before && (before->pixelsWide() != mPicture.width() || before->pixelsHigh() != mPicture.height())) before = {};
    const bool was = mView.compared() != nullptr;
    mView.setCompared(std::move(before));
    if (was || mView.compared()) emit touched(mPicture.bounds());
    return mView.compared() != nullptr;
}

void Document::setPointer(Point point, bool inside)
{
    const int before = mView.split(mPicture.width());
    mView.setPointer(point);
    mView.setPointerInside(inside);
    if (const int now = mView.split(mPicture.width()); mView.compared() && now != before)
        emit touched(
            makeRect(float(std::min(before, now) - 1), 0, float(std::abs(now - before) + 2), float(mPicture.height())));
    emit pointerMoved();
}

void Document::setPenPressure(PenPressure what)
{
    if (what == mPaint.penPressure()) return;
    mPaint.setPenPressure(what);
    emit paintChanged();
}

void Document::setPaintColor(Color color)
{
    mPaint.keepColor(mPaint.color(), color);
    movePaintColor(color);
}

void Document::swapPaintColors() { setPaintColor(mPaint.otherColor()); }

void Document::movePaintColor(Color color)
{
    mPaint.setColor(color);
    // The colour's opacity is that of what floats.
    if (mSelection.floating()) emit touched(mSelection.bounds());
    emit paintChanged();
}

void Document::setBrushSize(float size)
{
    if (!(size > 0) || !std::isfinite(size) || size == mPaint.size()) return;
    mPaint.setSize(size);
    emit paintChanged();
}

void Document::stepBrushSize(int step)
{
    const float size = mPaint.size(), by = std::max(1.0f, std::round(size * kSizeStep));
    setBrushSize(std::clamp(size + float(step) * by, kSmallestSize, kLargestSize));
}

void Document::chooseTool(Tool tool)
{
    // In the middle of a gesture: what was begun with the old tool ends here, as that tool ends it.
    if (mGesture.actions() && tool != mGesture.tool()) endGesture();
    if (tool != mGesture.tool() && !mMessage.isEmpty()) say({}); // the tool's hint is wanted now
    mGesture.chooseTool(tool);
    emit toolChosen();
    emit changed();
}

void Document::setRemoving(bool on)
{
    if (on == mGesture.removes()) return;
    endGesture();
    mGesture.setRemoving(on);
    emit toolChosen();
    emit changed();
}

// ---- requests from outside ------------------------------------------------------------------------------------------

bool Document::whenFree(std::function<void()> request)
{
    mRequests.push_back(std::move(request));
    const std::size_t before = mRequests.size();
    runRequests();
    return mRequests.size() < before;
}

void Document::runRequests()
{
    while (!mRequests.empty() && !mGateOpen && !mGesture.isMouseDown() && !modalWindowIsUp()) {
        const auto request = std::move(mRequests.front());
        mRequests.pop_front();
        request();
    }
    if (mRequests.empty())
        mRequestTimer.stop();
    else if (!mRequestTimer.isActive())
        mRequestTimer.start();
}

// ---- workers --------------------------------------------------------------------------------------------------------

void Document::touchedByWorker(Rect rect)
{
    // Gathered into one rectangle until the main thread gets to it, so that a fast stroke cannot flood the event queue.
    const std::lock_guard lock(mPaintedLock);
    const bool first = mPaintedByWorker.isEmpty();
    mPaintedByWorker = unionRect(mPaintedByWorker, rect);
    if (first && !mPaintedByWorker.isEmpty()) mPaintedWake.wake();
}

void Document::finishStroke()
{
    if (!strokeIsOpen()) return;
    mGesture.stroke().close();
    strokeEnded();
}

void Document::strokeEnded()
{
    BrushStroke& stroke = mGesture.stroke();
    stroke.join();
    if (stroke.hasFailed()) {
        bringBack(stroke.before());
        stroke.forgetBefore();
        // Said when whatever ended the stroke is done: the gate may be about to open.
        QTimer::singleShot(0, this, [] { runAlert(tr("There is not enough memory."), {}, {tr("OK")}); });
        if (mGesture.actions()) mGesture.refuse();
        emit touched(mPicture.bounds());
        emit changed();
        return;
    }
    const bool clippedAway = stroke.wasClippedAway();
    stroke.before().forEach([this](PixelBox box) { mHistory.noteChanged(box); });
    stroke.forgetBefore();
    if (mGesture.actions())
        mGesture.refuse(); // no points are left to store: the stroke is over before the button is up
    if (clippedAway) beep();
    if (!clippedAway || mOwesStep) mHistory.record(mPicture, mGesture.stepName());
    mOwesStep = false;
    emit touched(mPicture.bounds());
    emit changed();
}

void Document::waitForWorkers()
{
    finishStroke();
    mHistory.waitForWriter();
}

void Document::close()
{
    mRequests.clear();
    endGesture();
    waitForWorkers();
    mHistory.close();
}

} // namespace zp
