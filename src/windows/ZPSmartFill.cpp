// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill window's buttons, its worker, and the way of a result back into the picture.
#include "windows/ZPSmartFill.h"
#include "base/NotificationCenter.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "operations/SmartFillHook.h"
#include "ui_SmartFill.h"
#include "windows/FineProgressBar.h"
#include <QCoreApplication>
#include <QDialog>
#include <QThread>
#include <any>
#include <chrono>
#include <ctime>
#include <exception>
#include <new>
#include <system_error>
#include <utility>

using namespace zp;

namespace
{

constexpr char kProgressNotif[] = "SmartFillProgressNotif";

/// Escape cancels a run; without one it closes the window, as the close button does. A run keeps its window.
class Window : public QDialog
{
public:
    explicit Window(ZPSmartFill& owner) : mOwner(owner) {}
    void reject() override { mOwner.isRunning() ? mOwner.cancel() : mOwner.closeMe(); }

private:
    ZPSmartFill& mOwner;
};

double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

} // namespace

/// What belongs to one run. The worker alone touches picture, status and failure until it has ended.
struct ZPSmartFill::Run {
    SmartFillArea area;
    SmartFillPicture picture;
    std::uint64_t seed = 0;
    SmartFillStatus status = SmartFillStatus::Cancelled;
    bool outOfMemory = false;
};

ZPSmartFill* ZPSmartFill::sharedSmartFill()
{
    static ZPSmartFill* const shared = new ZPSmartFill; // for the process's life
    return shared;
}

void ZPSmartFill::registerWithCanvas()
{
    setSmartFillHook([](std::shared_ptr<BitmapRep> rep, ConstMaskView mask, ZPCanvas* canvas, Rect selection) {
        sharedSmartFill()->runWithBitmapRep(std::move(rep), mask, canvas, selection);
    });
}

ZPSmartFill::ZPSmartFill() : mUi(std::make_unique<Ui::SmartFill>()), mWindow(std::make_unique<Window>(*this))
{
    mUi->setupUi(mWindow.get());
    setFrameAutosaveName(mWindow.get(), "SmartFill");
    connect(mUi->mRunButton, &QPushButton::clicked, this, &ZPSmartFill::run);
    connect(mUi->mCancelButton, &QPushButton::clicked, this, &ZPSmartFill::cancel);
    connect(mUi->mCloseButton, &QPushButton::clicked, this, &ZPSmartFill::closeMe);
    connect(mUi->mRadiusSlider, &QSlider::valueChanged, mUi->mRadiusField, &QSpinBox::setValue);
    connect(mUi->mRadiusField, &QSpinBox::valueChanged, mUi->mRadiusSlider, &QSlider::setValue);
    NotificationCenter::defaultCenter().addObserver(this, kProgressNotif, [this](const Notification& notification) {
        if (const auto* progress = std::any_cast<float>(&notification.object)) progressNotif(*progress);
    });
    mPoll.setInterval(15);
    connect(&mPoll, &QTimer::timeout, this, &ZPSmartFill::lookAtWorker);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ZPSmartFill::dropWorker);
}

ZPSmartFill::~ZPSmartFill()
{
    dropWorker();
    NotificationCenter::defaultCenter().removeObserver(this);
}

void ZPSmartFill::dropWorker()
{
    mCancel.store(true, std::memory_order_release);
    if (mCalcThread.joinable()) mCalcThread.join();
}

void ZPSmartFill::runWithBitmapRep(std::shared_ptr<BitmapRep> rep, ConstMaskView selectionMask, ZPCanvas* canvas,
                                   Rect selectionRect)
{
    const bool wasHidden = !mWindow->isVisible();
    if (wasHidden && mWindow->pos().isNull()) centerWindow(mWindow.get());
    mWindow->show();
    mWindow->raise();
    if (mRunning) return;
    mUi->mProgressBar->setPercent(0);
    enableButtons(false);
    mBitmapRep = std::move(rep);
    mCanvas = canvas;
    mSelRect = selectionRect;
    // A copy, because the canvas goes on using its mask, with the opposite meaning, while the window stands open.
    mMaskBox = pixelBoxOf(selectionRect, selectionMask.width, selectionMask.height);
    mSelectionMaskData.clear();
    for (int y = mMaskBox.y0; y < mMaskBox.y1; ++y)
        mSelectionMaskData.insert(mSelectionMaskData.end(), selectionMask.row(y) + mMaskBox.x0,
                                  selectionMask.row(y) + mMaskBox.x1);
}

void ZPSmartFill::enableButtons(bool running)
{
    mUi->mRunButton->setEnabled(!running);
    mUi->mCancelButton->setEnabled(running);
    mUi->mCloseButton->setEnabled(!running);
}

void ZPSmartFill::run()
{
    if (mRunning) { // a cancelled run that has not come to its next progress point yet
        dropWorker();
        finish();
        if (mRunning) return;
    }
    // Another picture since the window was opened: its pixels have nothing to do with the selection.
    if (!mCanvas || !mBitmapRep || mCanvas->mBitmapRep != mBitmapRep) return beep();

    mUi->mProgressBar->setPercent(0);
    enableButtons(true);
    mTimeNULL = now();
    mCancel.store(false, std::memory_order_release);
    mProgress.store(kNoProgress, std::memory_order_release);
    mWorkerDone.store(false, std::memory_order_release);
    mRunning = true;
    mCanvas->mSmartFillRunning.store(true, std::memory_order_release);

    mRun = std::make_unique<Run>();
    Run& run = *mRun;
    run.seed = mSeed ? mSeed : std::uint64_t(std::time(nullptr));
    run.area = smartFillArea(mSelRect, mBitmapRep->pixelsWide(), mBitmapRep->pixelsHigh(), mUi->mRadiusSlider->value(),
                             mUi->mFasterCheckbox->isChecked());
    try {
        {
            const std::lock_guard stroke(mCanvas->mPixelLock); // a stroke may still be drying
            const ConstMaskView mask{mSelectionMaskData.data(), mMaskBox.width(), mMaskBox.height(), mMaskBox.width()};
            run.picture =
                fetchSmartFillPicture(std::as_const(*mBitmapRep).view(), mask, run.area, {mMaskBox.x0, mMaskBox.y0});
        }
        mCalcThread = std::thread([this, &run] { calcThread(run); });
    } catch (const std::bad_alloc&) {
        run.outOfMemory = true;
        mWorkerDone.store(true, std::memory_order_release);
    } catch (const std::system_error&) {
        calcThread(run); // no thread to be had: the user waits, and gets the fill
    }
    mPoll.start();
}

void ZPSmartFill::calcThread(Run& run)
{
    SmartFillHooks hooks;
    hooks.progress = [](float progress) {
        NotificationCenter::defaultCenter().post(kProgressNotif, std::any(progress));
    };
    hooks.cancelled = [this] { return mCancel.load(std::memory_order_acquire); };
    try {
        run.status = fillSmartFillPicture(run.picture, run.seed, hooks);
    } catch (const std::bad_alloc&) {
        run.outOfMemory = true;
    }
    mWorkerDone.store(true, std::memory_order_release); // hands the run over
}

void ZPSmartFill::cancel()
{
    mCancel.store(true, std::memory_order_release);
    enableButtons(false);
}

void ZPSmartFill::closeMe() { mWindow->hide(); }

void ZPSmartFill::progressNotif(float progress)
{
    if (QThread::currentThread() == thread()) return showProgress(progress);
    mProgress.store(progress, std::memory_order_release);
}

void ZPSmartFill::lookAtWorker()
{
    const bool done =
        mWorkerDone.load(std::memory_order_acquire); // before the progress, so that the last one is not missed
    if (const float progress = mProgress.exchange(kNoProgress); progress != kNoProgress) showProgress(progress);
    if (done) finish();
}

void ZPSmartFill::showProgress(float progress)
{
    if (progress == 0) {
        mUi->mTimeField->setText("0.0 sec");
        mUi->mProgressBar->setPercent(0);
    } else {
        mUi->mTimeField->setText(QString::asprintf("%.1f sec", now() - mTimeNULL));
        mUi->mProgressBar->setPercent(double(progress) * 100.0);
    }
}

/// @return false when it must be tried again, because someone else is at work on the pixels
bool ZPSmartFill::writeBack()
{
    const Run& run = *mRun;
    if (run.outOfMemory || run.status != SmartFillStatus::Filled || !mCanvas) return true;
    // Undo and every other edit of the picture keep its buffer; another buffer is another picture or another size.
    if (mCanvas->mBitmapRep != mBitmapRep) return true;
    // A snapshot reads the pixels, a stroke writes them: they come first.
    if (mCanvas->anyWorkerRunning()) return false;
    const std::lock_guard stroke(mCanvas->mPixelLock);
    writeBackSmartFill(mBitmapRep->view(), run.picture, run.area);
    return true;
}

void ZPSmartFill::finish()
{
    if (mCalcThread.joinable()) mCalcThread.join();
    if (!writeBack()) return; // the next look tries again
    mPoll.stop();
    const std::unique_ptr<Run> run = std::move(mRun);
    mRunning = false;
    enableButtons(false);
    if (mUi->mProgressBar->percent() >= 100.0) mWindow->hide();
    if (mCanvas) {
        mCanvas->takeSnapshot();
        mCanvas->setNeedsDisplay(true);
        mCanvas->mSmartFillRunning.store(false, std::memory_order_release);
    }
    if (run->outOfMemory)
        runAlert(tr("There is not enough memory for this fill."), tr("Select a smaller area or lower the radius."),
                 {tr("OK")});
    else if (run->status == SmartFillStatus::NoSource)
        runAlert(tr("There is nothing to fill from."), tr("Select a smaller area or raise the radius."), {tr("OK")});
}
