// SPDX-License-Identifier: GPL-3.0-or-later
/// Drives the canvas through a folder of images.
#include "windows/ZPImageProcessor.h"
#include "base/Folders.h"
#include "base/NotificationCenter.h"
#include "base/Translation.h"
#include "batch/BatchPicture.h"
#include "batch/WatermarkDrawing.h"
#include "batch/Watermarks.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ImageImporter.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include "ui_ImageProcessor.h"
#include "windows/ProcessorPreview.h"
#include "windows/WatermarkText.h"
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
    connect(mUi->mWatermarkEachPicture, &QCheckBox::toggled, this, &ZPImageProcessor::placeInEachPicture);
    connect(mUi->mWatermark, &QComboBox::activated, this, &ZPImageProcessor::chooseWatermark);
    connect(mUi->mWatermarkTextButton, &QPushButton::clicked, this, &ZPImageProcessor::textWatermark);
    connect(mUi->mWatermarkRelative, &QCheckBox::toggled, this, &ZPImageProcessor::sizeByPicture);
    connect(mUi->mWatermarkTiled, &QCheckBox::toggled, mUi->mWatermarkGap, &QSpinBox::setEnabled);
    connect(mUi->mPreviewButton, &QPushButton::toggled, this, &ZPImageProcessor::preview);
    mPreviewing = std::make_unique<ProcessorPreview>(*mUi, [this] { return settings(); });
    resizeToFit();
    placeInEachPicture();
    mPixelsSuffix = mUi->mWatermarkMargin->suffix();
    for (auto* field : {mUi->mWatermarkMargin, mUi->mWatermarkPositionX, mUi->mWatermarkPositionY}) {
        // As wide as the wider of its units, so that nothing moves when they change.
        const QString suffix = field->suffix();
        if (suffix.isEmpty()) field->setSuffix(mUi->mWatermarkSize->suffix());
        field->setMinimumWidth(field->sizeHint().width());
        field->setSuffix(suffix);
    }
    mUi->mWatermarkSize->setEnabled(false);
    mUi->mWatermarkGap->setEnabled(false);
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
    fillWatermarks();
    preview();
    centerWindow(mWindow.get());
    mCancelled = false;
    mWindow->exec();
    mPreviewing->end();
}

void ZPImageProcessor::close() { mWindow->done(0); }

void ZPImageProcessor::fillWatermarks()
{
    mUi->mWatermark->clear();
    mUi->mWatermark->addItem(tr("None"));
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

QByteArray ZPImageProcessor::chosenWatermark() const { return mUi->mWatermark->currentData().toByteArray(); }

std::shared_ptr<const BitmapRep> ZPImageProcessor::watermark() const
{
    const QByteArray name = chosenWatermark();
    if (name.isEmpty()) return nullptr;
    const std::string path = pathByAppending(watermarkFolder(), name.toStdString());
    const auto stamp = fileStamp(path);
    if (!stamp || path != mWatermark.path || *stamp != mWatermark.stamp)
        mWatermark = {path, stamp.value_or(FileStamp()), importImageFile(path).bitmap};
    return mWatermark.bitmap;
}

WatermarkLayout ZPImageProcessor::watermarkLayout() const
{
    WatermarkLayout layout;
    layout.relative = mUi->mWatermarkRelative->isChecked();
    layout.size = mUi->mWatermarkSize->value();
    layout.margin = layout.relative ? mUi->mWatermarkMargin->value() : mOtherUnit.margin;
    layout.tiled = mUi->mWatermarkTiled->isChecked();
    layout.gap = mUi->mWatermarkGap->value();
    layout.turn = mUi->mWatermarkTurn->value();
    return layout;
}

BatchSettings ZPImageProcessor::settings() const
{
    BatchSettings settings;
    settings.source = sourceFolder();
    settings.destination = destinationFolder();
    if (mUi->mImageSizeFit->isChecked()) {
        settings.fitWidth = mUi->mImageSizeW->value();
        settings.fitHeight = mUi->mImageSizeH->value();
    }
    settings.watermark = watermark();
    settings.watermarkLayout = watermarkLayout();
    settings.watermarkPoint = {float(mUi->mWatermarkPositionX->value()), float(mUi->mWatermarkPositionY->value())};
    if (mUi->mWatermarkEachPicture->isChecked()) {
        settings.watermarkPlace = WatermarkPlace(mUi->mWatermarkPosition->currentIndex());
        settings.watermarkMargin = mUi->mWatermarkMargin->value();
    }
    settings.watermarkAlpha = float(mUi->mWatermarkOpacity->value()) / 100.0f;
    settings.tiff = mUi->mFileTypeTIFF->isChecked();
    settings.jpeg = mUi->mFileTypeJPEG->isChecked();
    return settings;
}

void ZPImageProcessor::placeByPreset()
{
    const auto place = WatermarkPlace(mUi->mWatermarkPosition->currentIndex());
    placeInEachPicture();
    if (place == WatermarkPlace::Custom || mUi->mWatermarkEachPicture->isChecked()) return;
    const std::shared_ptr<const BitmapRep> mark = watermark();
    const Size box{float(mUi->mImageSizeW->value()), float(mUi->mImageSizeH->value())};
    const Point at = watermarkPosition(place, box, mark ? sizeInPoints(*mark) : Size{});
    mUi->mWatermarkPositionX->setValue(int(at.x));
    mUi->mWatermarkPositionY->setValue(int(at.y));
}

void ZPImageProcessor::placeInEachPicture()
{
    const bool preset = WatermarkPlace(mUi->mWatermarkPosition->currentIndex()) != WatermarkPlace::Custom;
    const bool each = mUi->mWatermarkEachPicture->isChecked();
    mUi->mWatermarkMargin->setEnabled(each && preset);
    mUi->mWatermarkPositionX->setEnabled(!each || !preset);
    mUi->mWatermarkPositionY->setEnabled(!each || !preset);
}

void ZPImageProcessor::chooseWatermark()
{
    const QByteArray name = chosenWatermark();
    if (name.isEmpty()) return;
    const WatermarkLayout kept = keptWatermarkLayout(name.toStdString());
    mUi->mWatermarkRelative->setChecked(kept.relative);
    mUi->mWatermarkSize->setValue(kept.size);
    if (kept.relative)
        mUi->mWatermarkMargin->setValue(kept.margin);
    else
        mOtherUnit.margin = kept.margin;
    mUi->mWatermarkTiled->setChecked(kept.tiled);
    mUi->mWatermarkGap->setValue(kept.gap);
    mUi->mWatermarkTurn->setValue(kept.turn);
}

void ZPImageProcessor::textWatermark()
{
    const auto name = runWatermarkTextPanel(mWindow.get());
    if (!name) return;
    fillWatermarks();
    mUi->mWatermark->setCurrentIndex(std::max(0, mUi->mWatermark->findData(QByteArray::fromStdString(*name))));
    chooseWatermark();
}

void ZPImageProcessor::sizeByPicture()
{
    const bool relative = mUi->mWatermarkRelative->isChecked();
    mUi->mWatermarkSize->setEnabled(relative);
    const Placing left{mUi->mWatermarkPositionX->value(), mUi->mWatermarkPositionY->value(),
                       mUi->mWatermarkMargin->value()};
    const Placing found = std::exchange(mOtherUnit, left);
    // A position that fits one box means nothing in percent: relative ones are placed in each picture.
    if (relative) mEachPictureInPixels = mUi->mWatermarkEachPicture->isChecked();
    mUi->mWatermarkEachPicture->setChecked(relative || mEachPictureInPixels);
    mUi->mWatermarkEachPicture->setEnabled(!relative);
    mUi->mWatermarkMargin->setMaximum(relative ? kLargestWatermark : kMaxPixelsPerSide);
    mUi->mWatermarkMargin->setSuffix(relative ? mUi->mWatermarkSize->suffix() : mPixelsSuffix);
    mUi->mWatermarkMargin->setValue(found.margin);
    for (const auto& [field, value] :
         {std::pair(mUi->mWatermarkPositionX, found.x), {mUi->mWatermarkPositionY, found.y}}) {
        field->setSuffix(relative ? mUi->mWatermarkSize->suffix() : QString());
        field->setValue(value);
    }
}

void ZPImageProcessor::preview()
{
    if (mUi->mPreviewButton->isChecked())
        mPreviewing->begin();
    else
        mPreviewing->end();
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
    const BatchSettings chosen = settings();
    const BatchFolderFault fault = checkBatchFolders(chosen.source, chosen.destination);
    if (fault != BatchFolderFault::None) {
        if (fault == BatchFolderFault::Missing) beep();
        runAlert(tr(batchFaultText(fault)), {}, {tr("OK")});
        return close();
    }
    std::vector<std::string> entries;
    if (const std::string why = listFolder(chosen.source, entries); !why.empty()) {
        runAlert(tr("The source folder cannot be listed."), QString::fromStdString(why), {tr("OK")});
        return close();
    }
    mRunning = true;
    mCancelled = false;
    mUi->mPreviewButton->setEnabled(false);
    mPreviewing->pause();
    if (const QByteArray name = chosenWatermark(); !name.isEmpty())
        keepWatermarkLayout(name.toStdString(), chosen.watermarkLayout);
    mUi->settings->setEnabled(false);
    mUi->mRunButton->setEnabled(false);
    mWindow->raise();
    mUi->mProgressBar->setRange(0, int(entries.size()));
    mUi->mProgressBar->show();
    showProgress(0, {});

    bool any = false;
    std::vector<BatchOutcome> failures;
    {
        const SilencedPanels silence;
        for (std::size_t i = 0; i < entries.size() && !mCancelled; ++i) {
            showProgress(int(i), tr("%1 of %2: %3").arg(i + 1).arg(entries.size()).arg(textFromPath(entries[i])));
            if (mCancelled) break;
            if (!isBatchSource(entries[i])) continue;
            const std::string error = processEntry(chosen, entries[i]);
            if (!error.empty()) failures.push_back({.name = entries[i], .error = error});
            any = true;
        }
    }
    if (!mCancelled) showProgress(int(entries.size()), {});
    mUi->mProgressBar->hide();
    mUi->mProgressText->clear();
    mUi->settings->setEnabled(true);
    mUi->mRunButton->setEnabled(true);
    mUi->mPreviewButton->setEnabled(true);
    mUi->mCancelButton->setEnabled(true);
    mRunning = false;
    if (any) playSound("Glass");
    if (!failures.empty()) reportFailures(failures);
    close();
}

std::string ZPImageProcessor::processEntry(const BatchSettings& settings, const std::string& name)
{
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.post("_giveMeCanvasNotif"); // twice, as it has always been asked
    center.post("_giveMeCanvasNotif");
    if (!mCanvas) return translated("ZPImageProcessor", "There is no canvas to work on.");
    Document& document = mCanvas->document();
    document.perform("dontTakeSnapshot");
    struct SnapshotsAgain {
        Document& document;
        ~SnapshotsAgain() { document.perform("takeSnapshotAgain"); }
    } const again{document};
    mCanvas->window()->raise();
    mWindow->raise();

    // Each step is the batch run's own, made under the gate of the command it stands for: the document shows it and
    // keeps out of its way, and the files are the very ones that a run without a window writes.
    BatchPicture picture(settings, name);
    std::string error;
    const auto perform = [&](const char* action, const std::function<void(Edit&)>& body) {
        const Outcome outcome = document.perform(*document.operation(action), body);
        if (outcome.kind == Outcome::Failed && error.empty()) error = outcome.why.toStdString();
    };
    perform("setImagePath:", [&](Edit& edit) {
        error = picture.read();
        installOpened(edit, {picture.path(), fileStamp(picture.path()), {.bitmap = picture.bitmap(), .error = error}});
    });
    mCanvas->repaint();
    if (!error.empty()) return error;
    if (settings.fits()) {
        perform("setImageSize:scale:", [&](Edit& edit) {
            error = picture.fit();
            if (error.empty()) edit.replacePicture(picture.bitmap(), kRebuiltPicture);
        });
        mCanvas->repaint();
        if (!error.empty()) return error;
    }
    if (settings.watermark)
        perform("placeWatermark:atPoint:alpha:", [&](Edit& edit) {
            edit.writeAll();
            picture.stamp();
        });
    if (!error.empty()) return error;

    const auto save = [&](const char* action, const std::string& path, std::string (BatchPicture::*write)() const) {
        perform(action, [&](Edit& edit) {
            const std::string why = (picture.*write)();
            if (why.empty())
                edit.picture().setPath(path);
            else if (error.find(why) == std::string::npos)
                error += (error.empty() ? "" : " ") + why;
        });
    };
    if (settings.tiff) save("saveImageAsTIFF:", picture.tiffPath(), &BatchPicture::writeTIFF);
    if (settings.jpeg) save("saveImageAsJPEG:", picture.jpegPath(), &BatchPicture::writeJPEG);
    return error;
}

void ZPImageProcessor::reportFailures(const std::vector<BatchOutcome>& failures)
{
    QString lines;
    for (const BatchOutcome& failure : failures)
        lines += QString("%1: %2\n").arg(textFromPath(failure.name), QString::fromStdString(failure.error));
    const QString title = failures.size() == 1 ? tr("One file could not be processed.")
                                               : tr("%n files could not be processed.", nullptr, int(failures.size()));
    runAlert(title, lines.trimmed(), {tr("OK")});
}
