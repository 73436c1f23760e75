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
      mWorker([this](const Wanted& wanted, const Worker::Turn& turn) { return make(wanted, turn); },
              [this](const Made& made) { show(made); })
{
    mUi.mPreviewStrip->hide();
    for (QLabel* const label : mNameLabels) label->setMinimumHeight(2 * label->fontMetrics().lineSpacing());
    mDebounce.setSingleShot(true);
    mDebounce.setInterval(kDebounceMilliseconds);
    connect(&mDebounce, &QTimer::timeout, this, &ProcessorPreview::ask);
    const auto changed = [this] {
        if (mIsShown) mDebounce.start();
    };
    for (auto* field : mUi.settings->findChildren<QSpinBox*>()) connect(field, &QSpinBox::valueChanged, this, changed);
    for (auto* box : mUi.settings->findChildren<QCheckBox*>()) connect(box, &QCheckBox::toggled, this, changed);
    for (auto* menu : mUi.settings->findChildren<QComboBox*>())
        connect(menu, &QComboBox::currentIndexChanged, this, changed);
    connect(mUi.mSrcFolder, &QLineEdit::textChanged, this, changed);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { mWorker.end(); });
}

void ProcessorPreview::begin()
{
    mIsShown = true;
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
    mIsShown = false;
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
    mDebounce.stop();
    mWorker.forget();
}

bool ProcessorPreview::isIdle() const { return mWorker.isIdle() && !mDebounce.isActive(); }

void ProcessorPreview::ask()
{
    pause();
    Wanted wanted{mSettings(), int(kSide * mUi.mPreviewStrip->devicePixelRatioF()), mShownNames.empty()};
    if (wanted.settings.source.empty()) {
        say({});
        return mUi.mPreviewText->setText(
            QCoreApplication::translate("ZPImageProcessor", batchFaultText(BatchFolderFault::NoSource)));
    }
    if (mWorker.ask(std::move(wanted)) && mShownNames.empty()) mUi.mPreviewText->setText(tr("Looking at the folder…"));
}

ProcessorPreview::Made ProcessorPreview::make(const Wanted& wanted, const Worker::Turn& turn)
{
    const auto late = [&] { return turn.late.stop_requested(); };
    if (wanted.anew) mMaker.forget();
    Made all{mMaker.choose(wanted.settings, late), {}};
    const unsigned ground = wanted.settings.jpeg && !wanted.settings.tiff ? kWhite : kGrey;
    for (std::size_t i = 0; i < all.choice.names.size() && !late(); ++i) {
        if (i > 0) turn.report(all);
        const BatchPreview::Picture made = mMaker.picture(wanted.settings, i, wanted.side);
        QString text = QString::fromStdString(made.error);
        if (made.bitmap) text = QString("%1 × %2").arg(int(made.result.width)).arg(int(made.result.height));
        all.shown.push_back({made.bitmap ? screenImage(*made.bitmap, ground) : QImage(), std::move(text)});
    }
    return all;
}

void ProcessorPreview::show(const Made& made)
{
    if (made.choice.names != mShownNames || made.choice.names.empty()) say(made.choice);
    for (std::size_t i = 0; i < made.shown.size(); ++i) showPicture(i, made.shown[i]);
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

void ProcessorPreview::showPicture(std::size_t place, const Made::Shown& made)
{
    QLabel* const picture = mPictureLabels[place];
    const QString name = textFromPath(mShownNames[place]);
    mNameLabels[place]->setText(mNameLabels[place]->fontMetrics().elidedText(name, Qt::ElideMiddle, kSide) +
                                (made.picture.isNull() ? QString() : "\n" + made.text));
    mNameLabels[place]->setToolTip(name);
    if (made.picture.isNull()) return picture->setText(made.text);
    QPixmap pixmap = QPixmap::fromImage(made.picture);
    pixmap.setDevicePixelRatio(mUi.mPreviewStrip->devicePixelRatioF());
    picture->setPixmap(pixmap);
    picture->setAccessibleName(name);
}
