// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill window: starts fills on a worker thread, shows how far they are, cancels them.
#pragma once
#include "base/BitmapView.h"
#include "smartfill/SmartFillSources.h"
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

class QDialog;
class SmartFillStudio;
namespace zp
{
class Document;
struct FillRequest;
} // namespace zp
namespace Ui
{
class SmartFill;
}

/// One shared instance, made on first use and kept. Main thread only, but for the worker's body.
///
/// A run reads its work rectangle when it starts and writes it back when it ends, both on the main thread; in between
/// the worker has nothing but its own copy, so that nothing keeps the user from editing meanwhile.
class ZPSmartFill : public QObject
{
    Q_OBJECT

public:
    static ZPSmartFill* sharedSmartFill();
    /// Makes the smart fill command open the shared window, and the remove brush fill by it. Once, at launch.
    static void registerCommand();
    ~ZPSmartFill() override;

    /// Shows the window for a fill and makes it ready; does not start it. The mask is copied, as far as it is not 0.
    /// During a run the window only comes to the front, and the run goes on with what it has.
    void runWithBitmapRep(zp::Document& document, const zp::FillRequest& request);
    /// Fills at once what the remove brush was drawn over, and leaves a step. The window comes up only if that takes
    /// long. Dropped with a beep while another fill runs.
    void remove(zp::Document& document, const zp::FillRequest& request);
    QDialog* window() const { return mWindow.get(); }
    /// From run() until the result was written back, or dropped.
    bool isRunning() const { return mRunning; }
    /// The random numbers of the runs to come, for results that can be repeated; 0: the time, as always.
    void setSeed(std::uint64_t seed) { mSeed = seed; }

    // the window's actions
    /// The result that is shown over the picture is left there; without one the fill is made. Closes the window.
    void run();
    /// Shows over the picture what Run would leave.
    void preview();
    /// The same with other random numbers.
    void another();
    void cancel();
    void closeMe();
    /// The window was closed, however.
    void closed();

private:
    enum class Purpose { Fill, Preview, Remove };
    struct Run;

    ZPSmartFill();
    void enableButtons(bool running);
    /// The notification's handler, on the thread that posts; off the main thread it leaves the value for lookAtWorker.
    void progressNotif(float progress);
    void lookAtWorker();
    void showProgress(float progress);
    /// Whether a fill can be started now for what the window was opened for; beeps if not.
    bool isReady();
    std::uint64_t firstSeed() const;
    /// A fill of what the window was opened for.
    void startForWindow(Purpose purpose, std::uint64_t seed);
    void start(std::unique_ptr<Run> run, const zp::MarkedPixels& hole, const zp::SmartFillSources& sources);
    void calcThread(Run& run);
    /// After the worker: writes back, or shows, or not.
    void finish();
    void takeResult(const Run& run);
    void dropWorker();

    std::uint64_t mGeneration = 0; ///< of the picture that the window was opened for
    zp::MarkedPixels mHole;
    QPointer<zp::Document> mDocument;
    zp::Rect mSelRect;
    std::thread mCalcThread;
    double mTimeNULL = 0; ///< seconds of the steady clock when the run started

    std::unique_ptr<Ui::SmartFill> mUi;
    std::unique_ptr<QDialog> mWindow;
    std::unique_ptr<SmartFillStudio> mStudio;
    std::unique_ptr<Run> mRun;
    bool mRunning = false;
    bool mShownForRemove = false; ///< the window came up because a removal takes long
    std::uint64_t mSeed = 0;
    std::atomic<bool> mCancel{false};
    /// Between worker and window: the latest progress not shown yet, and that the worker is through. The window looks
    /// at both some sixty times a second; progress comes faster than it can be shown.
    static constexpr float kNoProgress = -1; ///< nothing new to show
    std::atomic<float> mProgress{kNoProgress};
    std::atomic<bool> mWorkerDone{false};
    QTimer mPoll, mPatience;
};
