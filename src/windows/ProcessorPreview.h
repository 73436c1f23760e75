// SPDX-License-Identifier: GPL-3.0-or-later
/// The part of the image processor's window that shows three pictures of the folder as its settings make them.
#pragma once
#include "batch/BatchJob.h"
#include "batch/BatchPreview.h"
#include "desktop/LatestWish.h"
#include <QImage>
#include <QObject>
#include <QTimer>
#include <array>
#include <functional>

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
    struct Wanted {
        zp::BatchSettings settings;
        int side = 0; ///< device pixels
        bool anew = false;
    };
    struct Made {
        zp::PreviewChoice choice;
        struct Shown {
            QImage picture;
            QString text; ///< under it, or in its stead
        };
        std::vector<Shown> shown; ///< the first of the choice, as far as they are made
    };
    using Worker = zp::LatestWish<Wanted, Made>;

    /// The window becomes as high as its contents and stays on its screen: the strip leaves no hole and hides no
    /// button.
    void fitWindow();
    void ask();
    Made make(const Wanted& wanted, const Worker::Turn& turn);
    void show(const Made& made);
    void say(const zp::PreviewChoice& choice);
    void showPicture(std::size_t place, const Made::Shown& made);

    Ui::ImageProcessor& mUi;
    std::function<zp::BatchSettings()> mSettings;
    std::array<QLabel*, zp::kPreviewPictures> mPictureLabels, mNameLabels;
    QTimer mDebounce;
    bool mIsShown = false;
    std::vector<std::string> mShownNames;
    zp::BatchPreview mMaker; ///< the worker's
    Worker mWorker;
};
