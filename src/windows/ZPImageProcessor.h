// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch processor's window: folder to folder through the application's one canvas.
#pragma once
#include <QObject>
#include <memory>
#include <string>
#include <vector>

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
    /// The batch run. Between images the events are handled; Cancel ends it after the image at work.
    void run();

private:
    ZPImageProcessor();
    void fillWatermarks();
    void chooseFolder(bool source);
    std::string sourceFolder() const;
    std::string destinationFolder() const;
    /// Loads, fits, stamps and saves one entry. @return why it failed, empty when it did not
    std::string processEntry(const std::string& source, const std::string& destination, const std::string& name);
    void showProgress(int value, const QString& text);
    void reportFailures(const std::vector<std::pair<std::string, std::string>>& failures);

    std::unique_ptr<Ui::ImageProcessor> mUi;
    std::unique_ptr<QDialog> mWindow;
    ZPCanvas* mCanvas = nullptr;
    bool mRunning = false, mCancelled = false;
    /// Paths as chosen, byte for byte: names that are no text keep their bytes as long as the field is not edited.
    std::string mChosenSource, mChosenDestination;
};
