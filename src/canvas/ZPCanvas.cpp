// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's life: defaults, set-up, buffers, accessors.
#include "canvas/ZPCanvas.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "desktop/ColorWell.h"
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QSlider>
#include <QSpinBox>

using namespace zp;

namespace
{

/// Milliseconds after which pooled pixel memory is given back.
constexpr int kPoolPatience = 1500;

} // namespace

ZPCanvas::ZPCanvas(QWidget* parent) : QWidget(parent), mImage(std::make_shared<Image>())
{
    mPath.setLineJoin(LineJoin::Round);
    mPath.setLineCap(LineCap::Round);
    setObjectName("mCanvas");
    setAccessibleName(tr("Canvas"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    mPoolTimer.setSingleShot(true);
    connect(&mPoolTimer, &QTimer::timeout, this, [] { trimPixelPool(); });
    startFollowingPointer();
    updateViewGeometry();
}

ZPCanvas::~ZPCanvas()
{
    mIsMouseDown = 0;
    waitForWorkers();
    NotificationCenter::defaultCenter().removeObserver(this);
}

void ZPCanvas::awakeFromNib()
{
    setCursor(Qt::CrossCursor);
    NotificationCenter::defaultCenter().addObserver(this, "TextEditorNotif",
                                                    [this](const Notification&) { textEditorNotif(); });
    m2xRetina = readWholeFile(resourcePath("2xRetina.txt"), 1024) == "YES";
    if (mRetinaMenuItem) {
        mRetinaMenuItem->setCheckable(true);
        mRetinaMenuItem->setChecked(m2xRetina);
    }
    if (m2xRetina) {
        zoom(mZoomPopUp);
        setNeedsDisplay();
    }
}

bool ZPCanvas::imageLoaded() const
{
    const Size size = imageSize();
    return int(size.width) != 0 && int(size.height) != 0;
}

Size ZPCanvas::imageSize() const { return mImage ? mImage->size() : Size{}; }

bool ZPCanvas::imagePathNil()
{
    if (!fileExists(mImagePath)) mImagePath.clear();
    return mImagePath.empty();
}

Rect ZPCanvas::bounds() const { return {{0, 0}, imageSize()}; }

void ZPCanvas::tool(QComboBox* sender)
{
    const int index = sender ? sender->currentIndex() : mTool;
    if (mBrushPopUp) mBrushPopUp->setVisible(index == 3);
    const bool tolerance = index == 2 || index == 6;
    if (mToleranceSlider) mToleranceSlider->setVisible(tolerance);
    if (mToleranceField) mToleranceField->setVisible(tolerance);
    emit toolOptionsChanged(index);
}

void ZPCanvas::toleranceSlider(QSlider* sender)
{
    if (sender && mToleranceField) mToleranceField->setValue(sender->value());
}

void ZPCanvas::selectionTimerFired()
{
    mSelectionPhase += 2.5f;
    if (mSelectionPhase >= 10.0f) mSelectionPhase = 0;
    selectionOutlineNeedsDisplay();
}

bool ZPCanvas::anyWorkerRunning() const
{
    return !mDrawFinishedFlag.load(std::memory_order_acquire) || mUndoThreadRunning.load(std::memory_order_acquire);
}

void ZPCanvas::waitForWorkers()
{
    finishStroke(); // its threads wait for the button to go up
    for (std::thread* worker : {&mPollWorker, &mDrawWorker, &mSnapshotWorker})
        if (worker->joinable() && worker->get_id() != std::this_thread::get_id()) worker->join();
}

void ZPCanvas::installBitmap(std::shared_ptr<BitmapRep> rep, ImageCacheMode cacheMode, bool makeGWorld,
                             bool storeBitmapPointer, bool imageHasSize)
{
    // Workers hold views of the old bytes: none may be at work when these go.
    waitForWorkers();
    mGWorld.reset();
    mBitmapRep = std::move(rep);
    if (storeBitmapPointer) mBitmap = mBitmapRep ? mBitmapRep->bitmapData() : nullptr;
    if (makeGWorld && mBitmapRep) mGWorld = GWorld::over(*mBitmapRep);
    auto image = imageHasSize && mBitmapRep
                     ? std::make_shared<Image>(Size{float(mBitmapRep->pixelsWide()), float(mBitmapRep->pixelsHigh())})
                     : std::make_shared<Image>();
    image->setFlipped(true);
    image->setCacheMode(cacheMode);
    if (mBitmapRep) image->add(mBitmapRep);
    mImage = std::move(image);
    // The old picture's memory serves the next change; when none comes, the system gets it back.
    mPoolTimer.start(kPoolPatience);
    updateViewGeometry();
    setNeedsDisplay();
    emit imageReplaced();
}

void ZPCanvas::updateViewGeometry()
{
    const Size size = imageSize();
    const double z = effectiveZoom();
    const auto extent = [z](float pixels) { return pixels > 0 ? std::max(1, int(std::ceil(double(pixels) * z))) : 0; };
    const QSize wanted(extent(size.width), extent(size.height));
    if (wanted != this->size()) setFixedSize(wanted);
}
