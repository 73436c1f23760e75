// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill window's buttons, its worker, and the way of a result back into the picture.
#include "windows/ZPSmartFill.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "base/Translation.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "operations/Files.h"
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

/// The result of a run on its way into the picture.
constexpr Command kSmartFill{.action = "smartFill",
                             .name = ZP_TEXT("Steps", "Smart Fill"),
                             .effect = Effect::Paint,
                             .onFloat = OnFloat::Settle,
                             .step = StepRule::Always};

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

void ZPSmartFill::registerCommand()
{
    setSmartFillHook([](Document& document, ConstMaskView mask, Rect selection) {
        sharedSmartFill()->runWithBitmapRep(document, mask, selection);
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

void ZPSmartFill::runWithBitmapRep(Document& document, ConstMaskView selectionMask, Rect selectionRect)
{
    const bool wasHidden = !mWindow->isVisible();
    if (wasHidden && mWindow->pos().isNull()) centerWindow(mWindow.get());
    mWindow->show();
    mWindow->raise();
    if (mRunning) return;
    mUi->mProgressBar->setPercent(0);
    enableButtons(false);
    mDocument = &document;
    mGeneration = document.picture().generation();
    mSelRect = selectionRect;
    // A copy, because the document goes on using its mask, with the opposite meaning, while the window stands open.
    mMaskBox = pixelBoxOf(selectionRect, selectionMask.width, selectionMask.height);
    mMaskBytes.clear();
    for (int y = mMaskBox.y0; y < mMaskBox.y1; ++y)
        mMaskBytes.insert(mMaskBytes.end(), selectionMask.row(y) + mMaskBox.x0, selectionMask.row(y) + mMaskBox.x1);
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
    // Another picture since the window was opened, or its pixels in other places: they have nothing to do with the
    // selection.
    if (!mDocument || !mDocument->picture().bitmap() || mDocument->picture().generation() != mGeneration) return beep();
    mDocument->endGesture(); // what is being painted is part of what is filled from
    const Picture& picture = mDocument->picture();

    mRun = std::make_unique<Run>();
    Run& run = *mRun;
    mUi->mProgressBar->setPercent(0);
    enableButtons(true);
    mTimeNULL = now();
    mCancel.store(false, std::memory_order_release);
    mProgress.store(kNoProgress, std::memory_order_release);
    mWorkerDone.store(false, std::memory_order_release);
    mRunning = true;
    mDocument->setComputing(true);

    run.seed = mSeed ? mSeed : std::uint64_t(std::time(nullptr));
    run.area = smartFillArea(mSelRect, picture.width(), picture.height(), mUi->mRadiusSlider->value(),
                             mUi->mFasterCheckbox->isChecked());
    try {
        const ConstMaskView mask{mMaskBytes.data(), mMaskBox.width(), mMaskBox.height(), mMaskBox.width()};
        // What floats is filled from as it is seen; it becomes part of the picture in the result's own step.
        const std::shared_ptr<const BitmapRep> shown = pictureAsShown(*mDocument);
        run.picture = fetchSmartFillPicture(shown->view(), mask, run.area, {mMaskBox.x0, mMaskBox.y0});
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
    } catch (const std::exception& error) {
        logLine("smart fill: %s", error.what());
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

void ZPSmartFill::finish()
{
    if (mCalcThread.joinable()) mCalcThread.join();
    mPoll.stop();
    const std::unique_ptr<Run> run = std::move(mRun);
    mRunning = false;
    enableButtons(false);
    if (mDocument) takeResult(*run);
    if (run->outOfMemory)
        runAlert(tr("There is not enough memory for this fill."), tr("Select a smaller area or lower the radius."),
                 {tr("OK")});
    else if (run->status == SmartFillStatus::NoSource)
        runAlert(tr("There is nothing to fill from."), tr("Select a smaller area or raise the radius."), {tr("OK")});
}

void ZPSmartFill::takeResult(const Run& run)
{
    mDocument->setComputing(false);
    // A picture that was opened, turned, cropped or undone meanwhile is another one: the result is nobody's.
    if (mDocument->picture().generation() != mGeneration)
        return mUi->mTimeField->setText(tr("The picture changed meanwhile; the fill was dropped."));
    if (mUi->mProgressBar->percent() >= 100.0) mWindow->hide();
    mDocument->perform(kSmartFill, [&run](Edit& edit) {
        if (run.outOfMemory || run.status != SmartFillStatus::Filled) return; // the step is left all the same
        const PixelBox box = run.area.work.united(run.area.selection).intersected(edit.picture().box());
        writeBackSmartFill(edit.write(box), run.picture, run.area);
    });
}
