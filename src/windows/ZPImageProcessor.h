// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch processor's window: folder to folder through the application's one canvas.
#pragma once
#include "base/Folders.h"
#include "batch/WatermarkLayout.h"
#include <QObject>
#include <memory>
#include <string>
#include <vector>

namespace zp
{
class BitmapRep;
struct BatchOutcome;
struct BatchSettings;
} // namespace zp

class ProcessorPreview;
class QDialog;
class ZPCanvas;
namespace Ui
{
class ImageProcessor;
}

/// One shared instance, made on first use and kept. Main thread only.
class ZPImageProcessor : public QObject
{
    Q_OBJECT

public:
    static ZPImageProcessor* sharedImageProcessor();
    ~ZPImageProcessor() override;

    /// Fills the watermark pop-up and runs the window modally; returns when it was closed.
    void showWindow();
    /// Ends the modal session. During a run the window closes when the run ends.
    void close();
    QDialog* window() const { return mWindow.get(); }
    bool isRunning() const { return mRunning; }

    // the window's actions
    void cancel();
    void selectSrc();
    void selectDst();
    void resizeToFit();
    void placeByPreset();
    /// The switch beside the presets: they hold for each picture by its own size instead of filling in a position.
    void placeInEachPicture();
    /// The watermark's fields become as they were when it was last used.
    void chooseWatermark();
    /// Asks for a line of text, makes it a watermark and chooses that.
    void textWatermark();
    /// The switch of relative watermarks: size, margin and position change to percents and back, each unit with its
    /// own numbers, and presets hold in each picture.
    void sizeByPicture();
    /// The button that shows three pictures of the folder as the settings make them.
    void preview();
    /// The batch run. Between images the events are handled; Cancel ends it after the image at work.
    void run();

private:
    ZPImageProcessor();
    void fillWatermarks();
    void chooseFolder(bool source);
    std::string sourceFolder() const;
    std::string destinationFolder() const;
    QByteArray chosenWatermark() const;
    /// The chosen watermark from its file, read again when that changed; null for none.
    std::shared_ptr<const zp::BitmapRep> watermark() const;
    zp::WatermarkLayout watermarkLayout() const;
    /// What the fields say, the watermark read from its file.
    zp::BatchSettings settings() const;
    /// Takes one entry through the document, where it is seen. @return why it failed, empty when it did not
    std::string processEntry(const zp::BatchSettings& settings, const std::string& name);
    void showProgress(int value, const QString& text);
    void reportFailures(const std::vector<zp::BatchOutcome>& failures);

    std::unique_ptr<Ui::ImageProcessor> mUi;
    std::unique_ptr<QDialog> mWindow;
    std::unique_ptr<ProcessorPreview> mPreviewing; ///< after the widgets it looks after
    ZPCanvas* mCanvas = nullptr;
    bool mRunning = false, mCancelled = false;
    /// Paths as chosen, byte for byte: names that are no text keep their bytes as long as the field is not edited.
    std::string mChosenSource, mChosenDestination;
    /// What the fields of the unit that is not in force hold.
    struct Placing {
        int x = 0, y = 0, margin = zp::WatermarkLayout().margin;
    } mOtherUnit;
    QString mPixelsSuffix;             ///< of the margin
    bool mEachPictureInPixels = false; ///< the switch as it is left while sizes are relative
    struct ReadWatermark {
        std::string path;
        zp::FileStamp stamp;
        std::shared_ptr<const zp::BitmapRep> bitmap;
    };
    mutable ReadWatermark mWatermark;
};
