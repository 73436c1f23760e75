// SPDX-License-Identifier: GPL-3.0-or-later
/// The strip of the image processor's window and its worker.
#include "windows/ProcessorPreview.h"
#include "base/Translation.h"
#include "desktop/Desktop.h"
#include "ui_ImageProcessor.h"
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QScreen>
#include <algorithm>
#include <system_error>
#include <utility>

using namespace zp;

namespace
{

constexpr int kDebounceMilliseconds = 120; // a wheel's or an arrow key's repeats become one picture

constexpr unsigned kGrey = 128;  ///< behind clear pixels, as everywhere in the program
constexpr unsigned kWhite = 255; ///< what a JPEG file gets there

/// The picture over a plain ground, as the screen takes it.
QImage screenImage(const BitmapRep& bitmap, unsigned ground)
{
    const ConstBitmapView view = bitmap.view();
    QImage image(view.width, view.height, QImage::Format_RGB32);
    if (image.isNull()) return image;
    for (int y = 0; y < view.height; ++y) {
        auto* out = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < view.width; ++x) {
            const std::uint8_t* p = view.pixel(x, y);
            const unsigned behind = ground * (255u - p[0]) / 255u;
            out[x] = qRgb(int(p[1] + behind), int(p[2] + behind), int(p[3] + behind));
        }
    }
    return image;
}

} // namespace

ProcessorPreview::ProcessorPreview(Ui::ImageProcessor& ui, std::function<BatchSettings()> settings)
    : mUi(ui),
      mSettings(std::move(settings)),
      mPictureLabels{ui.mPreviewPicture1, ui.mPreviewPicture2, ui.mPreviewPicture3},
      mNameLabels{ui.mPreviewName1, ui.mPreviewName2, ui.mPreviewName3},
      mReady([this] { take(); })
{
    mUi.mPreviewStrip->hide();
    for (QLabel* const label : mNameLabels) label->setMinimumHeight(2 * label->fontMetrics().lineSpacing());
    mDebounce.setSingleShot(true);
    mDebounce.setInterval(kDebounceMilliseconds);
    connect(&mDebounce, &QTimer::timeout, this, &ProcessorPreview::ask);
    const auto changed = [this] {
        if (mShown) mDebounce.start();
    };
    for (auto* field : mUi.settings->findChildren<QSpinBox*>()) connect(field, &QSpinBox::valueChanged, this, changed);
    for (auto* box : mUi.settings->findChildren<QCheckBox*>()) connect(box, &QCheckBox::toggled, this, changed);
    for (auto* menu : mUi.settings->findChildren<QComboBox*>())
        connect(menu, &QComboBox::currentIndexChanged, this, changed);
    connect(mUi.mSrcFolder, &QLineEdit::textChanged, this, changed);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ProcessorPreview::stopWorker);
}

ProcessorPreview::~ProcessorPreview() { stopWorker(); }

void ProcessorPreview::stopWorker()
{
    pause();
    mWorker.request_stop();
    if (mWorker.joinable()) mWorker.join();
}

void ProcessorPreview::begin()
{
    mShown = true;
    mShownNames.clear();
    for (std::size_t i = 0; i < kPreviewPictures; ++i) {
        mPictureLabels[i]->clear();
        mNameLabels[i]->clear();
    }
    mUi.mPreviewStrip->show();
    fitWindow();
    ask();
}

void ProcessorPreview::end()
{
    pause();
    mShown = false;
    mUi.mPreviewStrip->hide();
    fitWindow();
}

void ProcessorPreview::fitWindow()
{
    QWidget* const window = mUi.mPreviewStrip->window();
    window->layout()->activate();
    window->resize(window->width(), window->minimumSizeHint().height());
    if (!window->isVisible()) return;
    const QRect frame = window->frameGeometry(), room = window->screen()->availableGeometry();
    const int top = std::max(room.top(), std::min(frame.top(), room.bottom() + 1 - frame.height()));
    if (top != frame.top()) window->move(frame.left(), top);
}

void ProcessorPreview::pause()
{
    ++mRequest;
    mDebounce.stop();
    mAtWork = false;
}

bool ProcessorPreview::isIdle() const { return !mAtWork && !mDebounce.isActive(); }

void ProcessorPreview::ask()
{
    mDebounce.stop();
    Wanted wanted{mSettings(), ++mRequest, int(kSide * mUi.mPreviewStrip->devicePixelRatioF()), mShownNames.empty()};
    if (wanted.settings.source.empty()) {
        say({});
        return mUi.mPreviewText->setText(
            QCoreApplication::translate("ZPImageProcessor", batchFaultText(BatchFolderFault::NoSource)));
    }
    if (!mWorker.joinable()) {
        try {
            mWorker = std::jthread([this](const std::stop_token& stop) { work(stop); });
        } catch (const std::system_error&) {
            return; // no thread to be had: the window goes without
        }
    }
    mAtWork = true;
    if (mShownNames.empty()) mUi.mPreviewText->setText(tr("Looking at the folder…"));
    {
        const std::lock_guard hold(mGuard);
        mWanted = std::move(wanted);
    }
    mWake.notify_one();
}

void ProcessorPreview::work(const std::stop_token& stop)
{
    BatchPreview preview;
    const auto leave = [this](Made made) {
        const std::lock_guard hold(mGuard);
        mMade.push_back(std::move(made));
        mReady.wake();
    };
    while (!stop.stop_requested()) {
        Wanted wanted;
        {
            std::unique_lock hold(mGuard);
            if (!mWake.wait(hold, stop, [this] { return mWanted.has_value(); })) return;
            wanted = std::move(*std::exchange(mWanted, std::nullopt));
        }
        const auto late = [&] { return stop.stop_requested() || mRequest != wanted.request; };
        if (wanted.anew) preview.forget();
        const PreviewChoice choice = preview.choose(wanted.settings, late);
        const unsigned ground = wanted.settings.jpeg && !wanted.settings.tiff ? kWhite : kGrey;
        if (choice.names.empty()) leave({wanted.request, choice, 0, {}, {}, true});
        for (std::size_t i = 0; i < choice.names.size() && !late(); ++i) {
            const BatchPreview::Picture made = preview.picture(wanted.settings, i, wanted.side);
            QString text = QString::fromStdString(made.error);
            if (made.bitmap) text = QString("%1 × %2").arg(int(made.result.width)).arg(int(made.result.height));
            leave({wanted.request, choice, i, made.bitmap ? screenImage(*made.bitmap, ground) : QImage(),
                   std::move(text), i + 1 == choice.names.size()});
        }
    }
}

void ProcessorPreview::take()
{
    std::vector<Made> all;
    {
        const std::lock_guard hold(mGuard);
        all = std::exchange(mMade, {});
    }
    for (const Made& made : all) {
        if (made.request != mRequest) continue; // no longer wanted
        if (made.last) mAtWork = false;
        if (made.choice.names != mShownNames || made.choice.names.empty()) say(made.choice);
        if (!made.choice.names.empty()) showPicture(made);
    }
}

void ProcessorPreview::say(const PreviewChoice& choice)
{
    mShownNames = choice.names;
    for (std::size_t i = 0; i < kPreviewPictures; ++i) {
        mPictureLabels[i]->clear();
        mNameLabels[i]->clear();
    }
    QString text;
    if (!choice.error.empty())
        text = QCoreApplication::translate("ZPImageProcessor", "The source folder cannot be listed.");
    else if (choice.names.empty())
        text = tr("The folder has no .tiff or .jpg image.");
    else if (choice.of > kPreviewPictures)
        text = (choice.alike ? tr("The largest, the middle and the smallest of %1 images of one shape")
                             : tr("The widest, the tallest and the squarest of %1 images"))
                   .arg(choice.looked);
    if (choice.looked < choice.of) text = tr("%1; the folder has %2").arg(text).arg(choice.of);
    mUi.mPreviewText->setText(text);
}

void ProcessorPreview::showPicture(const Made& made)
{
    QLabel* const picture = mPictureLabels[made.place];
    const QString name = textFromPath(made.choice.names[made.place]);
    mNameLabels[made.place]->setText(mNameLabels[made.place]->fontMetrics().elidedText(name, Qt::ElideMiddle, kSide) +
                                     (made.picture.isNull() ? QString() : "\n" + made.text));
    mNameLabels[made.place]->setToolTip(name);
    if (made.picture.isNull()) return picture->setText(made.text);
    QPixmap pixmap = QPixmap::fromImage(made.picture);
    pixmap.setDevicePixelRatio(mUi.mPreviewStrip->devicePixelRatioF());
    picture->setPixmap(pixmap);
    picture->setAccessibleName(name);
}
