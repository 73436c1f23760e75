// SPDX-License-Identifier: GPL-3.0-or-later
/// Drives the canvas through a folder of images.
#include "windows/ZPImageProcessor.h"
#include "base/Folders.h"
#include "base/NotificationCenter.h"
#include "batch/BatchRules.h"
#include "batch/WatermarkDrawing.h"
#include "batch/Watermarks.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ImageImporter.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "ui_ImageProcessor.h"
#include <QApplication>
#include <QDialog>
#include <any>

using namespace zp;

namespace
{

/// Escape and the close button do what Cancel does.
class Window : public QDialog
{
public:
    explicit Window(ZPImageProcessor& processor) : mProcessor(processor) {}
    void reject() override { mProcessor.cancel(); }

private:
    ZPImageProcessor& mProcessor;
};

constexpr std::size_t kListedFailures = 12; // what an alert can show; all of them are in its count

} // namespace

ZPImageProcessor* ZPImageProcessor::sharedImageProcessor()
{
    static ZPImageProcessor* const processor = new ZPImageProcessor; // for the process's life
    return processor;
}

ZPImageProcessor::ZPImageProcessor()
    : mUi(std::make_unique<Ui::ImageProcessor>()), mWindow(std::make_unique<Window>(*this))
{
    mUi->setupUi(mWindow.get());
    mWindow->setWindowModality(Qt::ApplicationModal);
    setFrameAutosaveName(mWindow.get(), "ImageProcessor");
    connect(mUi->mRunButton, &QPushButton::clicked, this, &ZPImageProcessor::run);
    connect(mUi->mCancelButton, &QPushButton::clicked, this, &ZPImageProcessor::cancel);
    connect(mUi->mSelectSrcButton, &QPushButton::clicked, this, &ZPImageProcessor::selectSrc);
    connect(mUi->mSelectDstButton, &QPushButton::clicked, this, &ZPImageProcessor::selectDst);
    connect(mUi->mImageSizeFit, &QCheckBox::toggled, this, &ZPImageProcessor::resizeToFit);
    connect(mUi->mWatermarkPosition, &QComboBox::activated, this, &ZPImageProcessor::placeByPreset);
    resizeToFit();
    mUi->mProgressBar->setValue(0);
    mUi->mProgressBar->hide();
    NotificationCenter::defaultCenter().addObserver(this, "_canvasNotif", [this](const Notification& notification) {
        if (const auto* canvas = std::any_cast<ZPCanvas*>(&notification.object)) mCanvas = *canvas;
    });
    prepareWatermarkFolder();
}

ZPImageProcessor::~ZPImageProcessor() { NotificationCenter::defaultCenter().removeObserver(this); }

void ZPImageProcessor::showWindow()
{
    if (mWindow->isVisible()) {
        mWindow->raise();
        return;
    }
    centerWindow(mWindow.get());
    fillWatermarks();
    mCancelled = false;
    mWindow->exec();
}

void ZPImageProcessor::close() { mWindow->done(0); }

void ZPImageProcessor::fillWatermarks()
{
    mUi->mWatermark->clear();
    mUi->mWatermark->addItem("None");
    for (const std::string& name : watermarkNames())
        mUi->mWatermark->addItem(textFromPath(name), QByteArray::fromStdString(name));
    mUi->mWatermark->setCurrentIndex(0);
}

void ZPImageProcessor::cancel()
{
    if (!mRunning) return close();
    mCancelled = true;
    mUi->mCancelButton->setEnabled(false);
    mUi->mProgressText->setText(tr("Ending after this image…"));
}

void ZPImageProcessor::chooseFolder(bool source)
{
    PanelRequest request;
    request.title = source ? tr("Choose source folder") : tr("Choose destination folder");
    request.prompt = tr("Choose");
    request.directory = source ? sourceFolder() : destinationFolder();
    const auto path = runFolderPanel(std::move(request));
    if (!path) return;
    (source ? mChosenSource : mChosenDestination) = *path;
    (source ? mUi->mSrcFolder : mUi->mDstFolder)->setText(textFromPath(*path));
}

void ZPImageProcessor::selectSrc() { chooseFolder(true); }
void ZPImageProcessor::selectDst() { chooseFolder(false); }

std::string ZPImageProcessor::sourceFolder() const
{
    const QString text = mUi->mSrcFolder->text();
    return text == textFromPath(mChosenSource) ? mChosenSource : pathFromText(text);
}

std::string ZPImageProcessor::destinationFolder() const
{
    const QString text = mUi->mDstFolder->text();
    return text == textFromPath(mChosenDestination) ? mChosenDestination : pathFromText(text);
}

void ZPImageProcessor::resizeToFit()
{
    const bool on = mUi->mImageSizeFit->isChecked();
    mUi->mImageSizeW->setEnabled(on);
    mUi->mImageSizeH->setEnabled(on);
}

void ZPImageProcessor::placeByPreset()
{
    const auto place = WatermarkPlace(mUi->mWatermarkPosition->currentIndex());
    if (place == WatermarkPlace::Custom) return;
    Size mark;
    const QByteArray name = mUi->mWatermark->currentData().toByteArray();
    if (!name.isEmpty())
        if (const auto image = importImageFile(pathByAppending(watermarkFolder(), name.toStdString())); image.bitmap)
            mark = sizeInPoints(*image.bitmap);
    const Size box{float(mUi->mImageSizeW->value()), float(mUi->mImageSizeH->value())};
    const Point at = watermarkPosition(place, box, mark);
    mUi->mWatermarkPositionX->setValue(int(at.x));
    mUi->mWatermarkPositionY->setValue(int(at.y));
}

void ZPImageProcessor::showProgress(int value, const QString& text)
{
    mUi->mProgressBar->setValue(value);
    mUi->mProgressText->setText(text);
    QApplication::processEvents(); // the bar moves and Cancel is heard; the rest of the program is behind a modal
                                   // window
}

void ZPImageProcessor::run()
{
    if (mRunning) return;
    const std::string source = sourceFolder(), destination = destinationFolder();
    const BatchFolderFault fault = checkBatchFolders(source, destination);
    if (fault != BatchFolderFault::None) {
        if (fault == BatchFolderFault::Missing) beep();
        runAlert(tr(batchFaultText(fault)), {}, {tr("OK")});
        return close();
    }
    const std::vector<std::string> entries = contentsOfFolder(source);
    mRunning = true;
    mCancelled = false;
    mUi->settings->setEnabled(false);
    mUi->mRunButton->setEnabled(false);
    mWindow->raise();
    mUi->mProgressBar->setRange(0, int(entries.size()));
    mUi->mProgressBar->show();
    showProgress(0, {});

    bool any = false;
    std::vector<std::pair<std::string, std::string>> failures;
    {
        const SilencedPanels silence;
        for (std::size_t i = 0; i < entries.size() && !mCancelled; ++i) {
            showProgress(int(i), tr("%1 of %2: %3").arg(i + 1).arg(entries.size()).arg(textFromPath(entries[i])));
            if (mCancelled) break;
            if (!isBatchSource(entries[i])) continue;
            const std::string error = processEntry(source, destination, entries[i]);
            if (!error.empty()) failures.emplace_back(entries[i], error);
            any = true;
        }
    }
    if (!mCancelled) showProgress(int(entries.size()), {});
    mUi->mProgressBar->hide();
    mUi->mProgressText->clear();
    mUi->settings->setEnabled(true);
    mUi->mRunButton->setEnabled(true);
    mUi->mCancelButton->setEnabled(true);
    mRunning = false;
    if (any) playSound("Glass");
    if (!failures.empty()) reportFailures(failures);
    close();
}

std::string ZPImageProcessor::processEntry(const std::string& source, const std::string& destination,
                                           const std::string& name)
{
    const std::string path = source + "/" + name;
    const std::string real = resolveAlias(path).value_or(path);
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.post("_giveMeCanvasNotif"); // twice, as it has always been asked
    center.post("_giveMeCanvasNotif");
    if (!mCanvas) return "There is no canvas to work on.";
    Document& document = mCanvas->document();
    document.perform("dontTakeSnapshot");
    struct SnapshotsAgain {
        Document& document;
        ~SnapshotsAgain() { document.perform("takeSnapshotAgain"); }
    } const again{document};
    mCanvas->window()->raise();
    mWindow->raise();
    document.perform("setImagePath:", {{}, real});
    mCanvas->repaint();
    if (!document.picture().isLoaded())
        return document.lastFileError().empty() ? "The file cannot be read." : document.lastFileError();

    if (mUi->mImageSizeFit->isChecked()) {
        const float boxWidth = float(mUi->mImageSizeW->value()), boxHeight = float(mUi->mImageSizeH->value());
        Size size = fittedSize(document.picture().size(), boxWidth, boxHeight);
        size = {std::max(size.width, 1.0f), std::max(size.height, 1.0f)}; // a sliver keeps a row or column of pixels
        if (!document.perform("setImageSize:scale:", {{size.width, size.height, 1}, {}}))
            return "There is not enough memory for the resized image, or it would be too large.";
        mCanvas->repaint();
    }
    if (mUi->mWatermark->currentText() != "None") {
        const QByteArray mark = mUi->mWatermark->currentData().toByteArray();
        document.perform("placeWatermark:atPoint:alpha:",
                         {{double(mUi->mWatermarkPositionX->value()), double(mUi->mWatermarkPositionY->value()),
                           double(float(mUi->mWatermarkOpacity->value()) / 100.0f)},
                          watermarkFolder() + "/" + mark.toStdString()});
    }
    std::string error;
    if (mUi->mFileTypeTIFF->isChecked()) {
        document.perform("saveImageAsTIFF:", {{}, batchOutput(destination, name, "tiff")});
        error = document.lastFileError();
    }
    if (mUi->mFileTypeJPEG->isChecked()) {
        document.perform("saveImageAsJPEG:", {{}, batchOutput(destination, name, "jpg")});
        if (error.empty()) error = document.lastFileError();
    }
    return error;
}

void ZPImageProcessor::reportFailures(const std::vector<std::pair<std::string, std::string>>& failures)
{
    QString lines;
    for (std::size_t i = 0; i < failures.size() && i < kListedFailures; ++i)
        lines += QString("%1: %2\n").arg(textFromPath(failures[i].first), QString::fromStdString(failures[i].second));
    if (failures.size() > kListedFailures) lines += tr("… and %1 more").arg(failures.size() - kListedFailures);
    const QString title = failures.size() == 1 ? tr("One file could not be processed.")
                                               : tr("%1 files could not be processed.").arg(failures.size());
    runAlert(title, lines.trimmed(), {tr("OK")});
}
