// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch processor's window: folder to folder through the application's one canvas.
#pragma once
#include <QObject>
#include <memory>
#include <string>
#include <vector>

namespace zp
{
struct BatchOutcome;
struct BatchSettings;
} // namespace zp

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
    /// The batch run. Between images the events are handled; Cancel ends it after the image at work.
    void run();

private:
    ZPImageProcessor();
    void fillWatermarks();
    void chooseFolder(bool source);
    std::string sourceFolder() const;
    std::string destinationFolder() const;
    QByteArray chosenWatermark() const;
    /// What the fields say, the watermark read from its file.
    zp::BatchSettings settings() const;
    /// Takes one entry through the document, where it is seen. @return why it failed, empty when it did not
    std::string processEntry(const zp::BatchSettings& settings, const std::string& name);
    void showProgress(int value, const QString& text);
    void reportFailures(const std::vector<zp::BatchOutcome>& failures);

    std::unique_ptr<Ui::ImageProcessor> mUi;
    std::unique_ptr<QDialog> mWindow;
    ZPCanvas* mCanvas = nullptr;
    bool mRunning = false, mCancelled = false;
    /// Paths as chosen, byte for byte: names that are no text keep their bytes as long as the field is not edited.
    std::string mChosenSource, mChosenDestination;
};
