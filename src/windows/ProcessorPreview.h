// SPDX-License-Identifier: GPL-3.0-or-later
/// The part of the image processor's window that shows three pictures of the folder as its settings make them.
#pragma once
#include "batch/BatchJob.h"
#include "batch/BatchPreview.h"
#include "desktop/MainThreadWake.h"
#include <QImage>
#include <QObject>
#include <QTimer>
#include <array>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

class QLabel;
namespace Ui
{
class ImageProcessor;
}

/// Looks after the widgets of one window; every change of a setting there is shown after a moment. Main thread; one
/// worker, which reads and never writes.
class ProcessorPreview : public QObject
{
    Q_OBJECT

public:
    /// @param settings  what the fields say now
    ProcessorPreview(Ui::ImageProcessor& ui, std::function<zp::BatchSettings()> settings);
    ~ProcessorPreview() override;

    /// Shows the strip and looks into the folder anew.
    void begin();
    /// Hides it, and the window is as high as without it; what is being made is given up.
    void end();
    /// What is being made is given up; what is shown stays.
    void pause();
    /// Nothing is being made, and no change waits to be shown.
    bool isIdle() const;

private:
    static constexpr int kSide = 180; ///< of a picture's square, in units of the screen
    struct Made {
        unsigned request = 0;
        zp::PreviewChoice choice;
        std::size_t place = 0; ///< of the picture
        QImage picture;
        QString text; ///< under it, or in its stead
        bool last = false;
    };

    /// The window becomes as high as its contents and stays on its screen: the strip leaves no hole and hides no
    /// button.
    void fitWindow();
    void ask();
    void take();
    void say(const zp::PreviewChoice& choice);
    void showPicture(const Made& made);
    void work(const std::stop_token& stop);
    void stopWorker();

    Ui::ImageProcessor& mUi;
    std::function<zp::BatchSettings()> mSettings;
    std::array<QLabel*, zp::kPreviewPictures> mPictureLabels, mNameLabels;
    QTimer mDebounce;
    bool mShown = false, mAtWork = false;
    std::vector<std::string> mShownNames;

    std::atomic<unsigned> mRequest{0}; ///< the latest; work on an earlier one is given up
    std::mutex mGuard;                 ///< of what follows
    std::condition_variable_any mWake;
    struct Wanted {
        zp::BatchSettings settings;
        unsigned request = 0;
        int side = 0; ///< device pixels
        bool anew = false;
    };
    std::optional<Wanted> mWanted;
    std::vector<Made> mMade;
    zp::MainThreadWake mReady;
    std::jthread mWorker; ///< after all that it uses
};
