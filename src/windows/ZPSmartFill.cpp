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
#include "document/Preview.h"
#include "operations/Files.h"
#include "operations/SmartFillHook.h"
#include "smartfill/SmartFillEvening.h"
#include "smartfill/SmartFillLines.h"
#include "ui_SmartFill.h"
#include "windows/FineProgressBar.h"
#include "windows/SmartFillStudio.h"
#include <QCoreApplication>
#include <QDialog>
#include <QHideEvent>
#include <QThread>
#include <algorithm>
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
constexpr Command intoPicture(const char* action, const char* name)
{
    return {
        .action = action, .name = name, .effect = Effect::Paint, .onFloat = OnFloat::Settle, .step = StepRule::Always};
}
constexpr Command kSmartFill = intoPicture("smartFill", ZP_TEXT("Steps", "Smart Fill")),
                  kRemove = intoPicture("remove", ZP_TEXT("Steps", "Remove"));

/// How far around a removed thing colours are looked for, in pixels: half its longer side, so that a thin stroke sees
/// more than its own width, but not half the picture.
constexpr float kRemoveReach = 0.5f, kLeastRemoveReach = 48, kMostRemoveReach = 256;
/// What is removed is marked until it is gone.
constexpr std::uint32_t kRemoveMark = 0x0000FFFF; // opaque red, alpha in the low byte
/// A removal that is not done by then shows how far it is, in milliseconds.
constexpr int kRemovePatience = 700;

constexpr char kProgressNotif[] = "SmartFillProgressNotif";

/// Escape cancels a run; without one it closes the window, as the close button does. A run keeps its window.
class Window : public QDialog
{
public:
    explicit Window(ZPSmartFill& owner) : mOwner(owner) {}
    void reject() override { mOwner.isRunning() ? mOwner.cancel() : mOwner.closeMe(); }

protected:
    void hideEvent(QHideEvent* event) override
    {
        QDialog::hideEvent(event);
        if (!event->spontaneous()) mOwner.closed();
    }

private:
    ZPSmartFill& mOwner;
};

void leaveInPicture(Document& document, const Command& command, const Preview& preview)
{
    document.perform(command, [&preview](Edit& edit) { layPreview(preview, edit.write(preview.box), 0, 0); });
}

QString seedLine(std::uint64_t seed) { return QString("seed %1").arg(seed); }

double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

} // namespace

/// What belongs to one run. The worker alone touches picture, status and failure until it has ended.
struct ZPSmartFill::Run {
    Purpose purpose = Purpose::Fill;
    QPointer<Document> document;
    std::uint64_t generation = 0; ///< of the picture it was read from
    SmartFillArea area;
    SmartFillPicture picture;
    std::uint64_t seed = 0;
    bool keepsLines = false, evens = false;
    QStringList lines; ///< of a script that does the same with the window as it stands open
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
    setSmartFillHook([](Document& document, const FillRequest& request) {
        request.atOnce ? sharedSmartFill()->remove(document, request)
                       : sharedSmartFill()->runWithBitmapRep(document, request);
    });
}

ZPSmartFill::ZPSmartFill() : mUi(std::make_unique<Ui::SmartFill>()), mWindow(std::make_unique<Window>(*this))
{
    mUi->setupUi(mWindow.get());
    mStudio = std::make_unique<SmartFillStudio>(*mUi);
    setFrameAutosaveName(mWindow.get(), "SmartFill");
    connect(mUi->mRunButton, &QPushButton::clicked, this, &ZPSmartFill::run);
    connect(mUi->mPreviewButton, &QPushButton::clicked, this, &ZPSmartFill::preview);
    connect(mUi->mAnotherButton, &QPushButton::clicked, this, &ZPSmartFill::another);
    connect(mUi->mCancelButton, &QPushButton::clicked, this, &ZPSmartFill::cancel);
    connect(mUi->mCloseButton, &QPushButton::clicked, this, &ZPSmartFill::closeMe);
    connect(mUi->mRadiusSlider, &QSlider::valueChanged, mUi->mRadiusField, &QSpinBox::setValue);
    connect(mUi->mRadiusField, &QSpinBox::valueChanged, mUi->mRadiusSlider, &QSlider::setValue);
    NotificationCenter::defaultCenter().addObserver(this, kProgressNotif, [this](const Notification& notification) {
        if (const auto* progress = std::any_cast<float>(&notification.object)) progressNotif(*progress);
    });
    mPatience.setSingleShot(true);
    mPatience.setInterval(kRemovePatience);
    connect(&mPatience, &QTimer::timeout, this, [this] {
        mShownForRemove = mRunning && !mWindow->isVisible();
        if (mShownForRemove) mWindow->show();
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

void ZPSmartFill::runWithBitmapRep(Document& document, const FillRequest& request)
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
    mSelRect = request.bounds;
    // A copy, because the document goes on using its mask, with the opposite meaning, while the window stands open.
    const Picture& picture = document.picture();
    mHole =
        markedPixels(request.mask, pixelBoxOf(request.bounds, picture.width(), picture.height()), request.maskOrigin);
    mStudio->begin(document);
}

void ZPSmartFill::enableButtons(bool running)
{
    mUi->mRunButton->setEnabled(!running);
    mUi->mCancelButton->setEnabled(running);
    mUi->mCloseButton->setEnabled(!running);
    mStudio->setIdle(!running);
}

bool ZPSmartFill::isReady()
{
    if (mRunning) { // a cancelled run that has not come to its next progress point yet
        dropWorker();
        finish();
        if (mRunning) return false;
    }
    // Another picture since the window was opened, or its pixels in other places: they have nothing to do with the
    // selection.
    const bool same = mDocument && mDocument->picture().bitmap() && mDocument->picture().generation() == mGeneration;
    if (!same) beep();
    return same;
}

std::uint64_t ZPSmartFill::firstSeed() const { return mSeed ? mSeed : std::uint64_t(std::time(nullptr)); }

void ZPSmartFill::run()
{
    if (!isReady()) return;
    if (const std::shared_ptr<const Preview> shown = mStudio->shown()) {
        const QStringList lines = mStudio->linesOf(*shown);
        leaveInPicture(*mDocument, kSmartFill, *shown);
        mDocument->note(lines);
        return mWindow->hide();
    }
    startForWindow(Purpose::Fill, firstSeed());
}

void ZPSmartFill::preview()
{
    if (isReady() && !mStudio->showNewest()) startForWindow(Purpose::Preview, firstSeed());
}

void ZPSmartFill::another()
{
    if (isReady()) startForWindow(Purpose::Preview, mStudio->nextSeed(firstSeed()));
}

void ZPSmartFill::startForWindow(Purpose purpose, std::uint64_t seed)
{
    mDocument->endGesture(); // what is being painted is part of what is filled from
    const Picture& picture = mDocument->picture();
    auto run = std::make_unique<Run>();
    run->purpose = purpose;
    run->document = mDocument;
    run->generation = mGeneration;
    run->seed = seed;
    run->keepsLines = mUi->mLinesCheckbox->isChecked();
    run->evens = mUi->mEvenCheckbox->isChecked();
    run->lines = {QString("set mRadiusSlider %1").arg(mUi->mRadiusSlider->value()),
                  QString("set mFasterCheckbox %1").arg(int(mUi->mFasterCheckbox->isChecked())),
                  QString("set mLinesCheckbox %1").arg(int(run->keepsLines)),
                  QString("set mEvenCheckbox %1").arg(int(run->evens)),
                  seedLine(seed),
                  "click mRunButton",
                  "wait"};
    run->area = areaWithSources(smartFillArea(mSelRect, picture.width(), picture.height(), mUi->mRadiusSlider->value(),
                                              mUi->mFasterCheckbox->isChecked()),
                                mStudio->sources());
    start(std::move(run), mHole, mStudio->sources());
}

void ZPSmartFill::remove(Document& document, const FillRequest& request)
{
    if (mRunning) return beep();
    mStudio->hide();
    const Picture& picture = document.picture();
    const MarkedPixels hole =
        markedPixels(request.mask, pixelBoxOf(request.bounds, picture.width(), picture.height()), request.maskOrigin);
    auto run = std::make_unique<Run>();
    run->purpose = Purpose::Remove;
    run->document = &document;
    run->generation = picture.generation();
    run->seed = firstSeed();
    const float reach = std::clamp(kRemoveReach * std::max(request.bounds.size.width, request.bounds.size.height),
                                   kLeastRemoveReach, kMostRemoveReach);
    run->area.work = pixelBoxOf(request.bounds.inset(-reach), picture.width(), picture.height());
    auto mark = std::make_shared<Preview>();
    mark->box = hole.box;
    mark->covers = hole.bytes;
    // Half the mark, half the picture, so that it can be seen what is still there; the lowest bits do not matter.
    for (int y = hole.box.y0; y < hole.box.y1; ++y)
        for (int x = hole.box.x0; x < hole.box.x1; ++x)
            mark->words.push_back((picture.pixels().row(y)[x] >> 1 & 0x7F7F7F7F) + (kRemoveMark >> 1 & 0x7F7F7F7F));
    document.showPreview(std::move(mark));
    start(std::move(run), hole, {});
    mPatience.start();
}

void ZPSmartFill::start(std::unique_ptr<Run> started, const MarkedPixels& hole, const SmartFillSources& sources)
{
    mRun = std::move(started);
    Run& run = *mRun;
    mUi->mProgressBar->setPercent(0);
    enableButtons(true);
    mTimeNULL = now();
    mCancel.store(false, std::memory_order_release);
    mProgress.store(kNoProgress, std::memory_order_release);
    mWorkerDone.store(false, std::memory_order_release);
    mRunning = true;
    run.document->setComputing(true);
    try {
        // What floats is filled from as it is seen; it becomes part of the picture in the result's own step.
        const std::shared_ptr<const BitmapRep> seen = pictureAsShown(*run.document);
        run.picture = fetchSmartFillPicture(seen->view(), hole.view(), run.area, hole.origin());
        limitSources(run.picture, run.area, sources);
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
        // What is drawn is no hole to the fill, but to whoever writes the result back.
        const std::vector<std::uint8_t> hole = run.picture.mask;
        if (run.keepsLines) keepLines(run.picture);
        run.status =
            run.evens ? fillEvenly(run.picture, run.seed, hooks) : fillSmartFillPicture(run.picture, run.seed, hooks);
        run.picture.mask = hole;
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

void ZPSmartFill::closed()
{
    if (!mRunning) mStudio->end();
}

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
    mPatience.stop();
    const std::unique_ptr<Run> run = std::move(mRun);
    mRunning = false;
    enableButtons(false);
    if (run->document) takeResult(*run);
    if (run->outOfMemory)
        runAlert(tr("There is not enough memory for this fill."), tr("Select a smaller area or lower the radius."),
                 {tr("OK")});
    else if (run->status == SmartFillStatus::NoSource)
        runAlert(tr("There is nothing to fill from."), tr("Select a smaller area or raise the radius."), {tr("OK")});
}

void ZPSmartFill::takeResult(const Run& run)
{
    Document& document = *run.document;
    const bool filled = !run.outOfMemory && run.status == SmartFillStatus::Filled;
    document.setComputing(false);
    if (run.purpose == Purpose::Remove) {
        document.showPreview(nullptr);
        if (std::exchange(mShownForRemove, false)) mWindow->hide();
    }
    // A picture that was opened, turned, cropped or undone meanwhile is another one: the result is nobody's.
    if (document.picture().generation() != run.generation) {
        const QString sentence = tr("The image changed meanwhile; the fill was dropped.");
        return run.purpose == Purpose::Remove ? document.say(sentence) : mUi->mTimeField->setText(sentence);
    }
    switch (run.purpose) {
    case Purpose::Fill:
        if (mUi->mProgressBar->percent() >= 100.0) mWindow->hide();
        document.perform(kSmartFill, [&run, filled](Edit& edit) {
            if (!filled) return; // the step is left all the same
            const PixelBox box = run.area.work.united(run.area.selection).intersected(edit.picture().box());
            writeBackSmartFill(edit.write(box), run.picture, run.area);
        });
        document.note(run.lines);
        break;
    case Purpose::Preview:
        if (filled) mStudio->add(run.picture, run.area, run.seed, run.lines);
        break;
    case Purpose::Remove:
        if (filled) leaveInPicture(document, kRemove, previewOfFill(run.picture, run.area));
        document.note({"wait"}, {seedLine(run.seed)});
        break;
    }
}
