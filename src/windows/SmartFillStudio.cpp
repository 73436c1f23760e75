// SPDX-License-Identifier: GPL-3.0-or-later
/// Results as previews and thumbnails, and selections as sources.
#include "windows/SmartFillStudio.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/Preview.h"
#include "document/Selection.h"
#include "document/View.h"
#include "drawing/ScreenRenderer.h"
#include "selection/MaskOps.h"
#include "ui_SmartFill.h"
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

using namespace zp;

namespace
{

/// How much of its surroundings a thumbnail shows on each side, as a share of the hole: a fill is judged by its seams.
constexpr float kThumbnailMargin = 0.35f;

/// The picture around the preview, with the preview laid over it.
QImage thumbnailOf(const Picture& picture, const Preview& preview, int side)
{
    const PixelBox hole = preview.box;
    const float margin = kThumbnailMargin * float(std::max(hole.width(), hole.height()));
    const PixelBox crop = pixelBoxOf(hole.rect().inset(-margin), picture.width(), picture.height());
    if (crop.isEmpty()) return {};
    const std::shared_ptr<BitmapRep> copy = BitmapRep::createUninitialized(crop.width(), crop.height());
    if (!copy) return {};
    copyPixels(picture.pixels().part(crop), copy->view());
    layPreview(preview, copy->view(), crop.x0, crop.y0);
    const double scale = std::min(1.0, double(side) / std::max(crop.width(), crop.height()));
    const PixelBox shown{0, 0, std::max(1, int(crop.width() * scale)), std::max(1, int(crop.height() * scale))};
    QImage image(shown.width(), shown.height(), QImage::Format_RGB32);
    if (image.isNull()) return {};
    renderToScreen(copy->view(), reinterpret_cast<std::uint32_t*>(image.bits()), image.bytesPerLine() / 4, shown, scale,
                   0xFF808080);
    return image;
}

/// The pixels inside the selection's outline.
MarkedPixels insideOf(const Selection& selection, const Picture& picture)
{
    MarkedPixels marked{pixelBoxOf(selection.bounds(), picture.width(), picture.height()), {}};
    marked.bytes.assign(std::size_t(marked.box.width()) * std::size_t(marked.box.height()), 0);
    if (marked.box.isEmpty()) return marked;
    AffineTransform shift;
    shift.translate(-marked.box.x0, -marked.box.y0);
    BezierPath outline = *selection.outline();
    outline.transform(shift);
    renderPathInMask({marked.bytes.data(), marked.box.width(), marked.box.height(), marked.box.width()}, outline, 255);
    return marked;
}

} // namespace

Preview previewOfFill(const SmartFillPicture& filled, const SmartFillArea& area)
{
    Preview preview;
    const auto index = [&](int i, int j) { return std::size_t(j) * std::size_t(filled.width) + std::size_t(i); };
    const int pitch = area.faster ? 2 : 1;
    if (area.faster) {
        preview.box = area.selection.intersected(area.work);
    } else {
        for (int j = 0; j < filled.height; ++j)
            for (int i = 0; i < filled.width; ++i)
                if (filled.mask[index(i, j)]) preview.box.include(area.work.x0 + i, area.work.y0 + j);
    }
    for (int y = preview.box.y0; y < preview.box.y1; ++y)
        for (int x = preview.box.x0; x < preview.box.x1; ++x) {
            const std::size_t from = index((x - area.work.x0) / pitch, (y - area.work.y0) / pitch);
            preview.words.push_back(filled.pixels[from]);
            preview.covers.push_back(area.faster || filled.mask[from] ? 255 : 0);
        }
    return preview;
}

SmartFillStudio::SmartFillStudio(Ui::SmartFill& ui)
    : mUi(ui), mButtons{ui.mResult1, ui.mResult2, ui.mResult3, ui.mResult4}
{
    for (std::size_t i = 0; i < kResults; ++i)
        connect(mButtons[i], &QToolButton::clicked, this, [this, i] { choose(i); });
    connect(ui.mRadiusSlider, &QSlider::valueChanged, this, &SmartFillStudio::settingsChanged);
    connect(ui.mFasterCheckbox, &QCheckBox::toggled, this, &SmartFillStudio::settingsChanged);
    connect(ui.mLinesCheckbox, &QCheckBox::toggled, this, &SmartFillStudio::settingsChanged);
    connect(ui.mEvenCheckbox, &QCheckBox::toggled, this, &SmartFillStudio::settingsChanged);
    connect(ui.mFromButton, &QAbstractButton::clicked, this,
            [this] { mark(*mUi.mFromButton, *mUi.mFromField, mSources.from, tr("anywhere")); });
    connect(ui.mNeverButton, &QAbstractButton::clicked, this,
            [this] { mark(*mUi.mNeverButton, *mUi.mNeverField, mSources.never, tr("nowhere")); });
    connect(ui.mRemoveButton, &QAbstractButton::clicked, this, [this](bool on) {
        if (mDocument) mDocument->setRemoving(on);
    });
    showResults();
}

void SmartFillStudio::begin(Document& document)
{
    end();
    if (mDocument) mDocument->disconnect(this);
    mDocument = &document;
    const auto showBrush = [this] { mUi.mRemoveButton->setChecked(mDocument && mDocument->gesture().removes()); };
    connect(&document, &Document::toolChosen, this, showBrush);
    connect(&document, &Document::pictureReplaced, this, &SmartFillStudio::end); // the results were of another
    showBrush();
    mSources = {};
    for (QAbstractButton* const button : std::initializer_list<QAbstractButton*>{mUi.mFromButton, mUi.mNeverButton})
        button->setChecked(false);
    mUi.mFromField->setText(tr("anywhere"));
    mUi.mNeverField->setText(tr("nowhere"));
}

void SmartFillStudio::end()
{
    hide();
    mResults.clear();
    mNewestIsOfSettings = false;
    showResults();
}

void SmartFillStudio::hide()
{
    if (shown()) mDocument->showPreview(nullptr);
    showResults();
}

void SmartFillStudio::setIdle(bool idle)
{
    for (QWidget* const widget : std::initializer_list<QWidget*>{mUi.mPreviewButton, mUi.mAnotherButton,
                                                                 mUi.mFromButton, mUi.mNeverButton, mUi.results})
        widget->setEnabled(idle);
}

std::shared_ptr<const Preview> SmartFillStudio::shown() const
{
    const std::shared_ptr<const Preview> now = mDocument ? mDocument->view().preview() : nullptr;
    const auto isMine = [&now](const Result& result) { return result.preview == now; };
    return now && std::ranges::any_of(mResults, isMine) ? now : nullptr;
}

bool SmartFillStudio::showNewest()
{
    if (mResults.empty() || !mNewestIsOfSettings) return false;
    mDocument->showPreview(mResults.front().preview);
    showResults();
    return true;
}

std::uint64_t SmartFillStudio::nextSeed(std::uint64_t first) const
{
    return mResults.empty() ? first : mResults.front().seed + 1;
}

void SmartFillStudio::add(const SmartFillPicture& filled, const SmartFillArea& area, std::uint64_t seed,
                          QStringList lines)
{
    Preview preview = previewOfFill(filled, area);
    if (preview.box.isEmpty() || !mDocument) return;
    const QImage thumbnail = thumbnailOf(mDocument->picture(), preview, mButtons[0]->iconSize().width());
    mResults.push_front({std::make_shared<const Preview>(std::move(preview)), seed, std::move(lines)});
    if (mResults.size() > kResults) mResults.pop_back();
    for (std::size_t i = kResults; i-- > 1;) mButtons[i]->setIcon(mButtons[i - 1]->icon());
    mButtons[0]->setIcon(QIcon(QPixmap::fromImage(thumbnail)));
    mNewestIsOfSettings = true;
    showNewest();
}

QStringList SmartFillStudio::linesOf(const Preview& preview) const
{
    const auto found =
        std::ranges::find_if(mResults, [&](const Result& each) { return each.preview.get() == &preview; });
    return found == mResults.end() ? QStringList() : found->lines;
}

void SmartFillStudio::settingsChanged()
{
    // What is shown is not what Run would make now.
    mNewestIsOfSettings = false;
    hide();
}

void SmartFillStudio::choose(std::size_t index)
{
    if (index >= mResults.size() || !mDocument) return;
    const bool isShown = shown() == mResults[index].preview;
    mDocument->showPreview(isShown ? nullptr : mResults[index].preview); // a second press: the picture without it
    showResults();
}

void SmartFillStudio::showResults()
{
    const std::shared_ptr<const Preview> now = shown();
    for (std::size_t i = 0; i < kResults; ++i) {
        const bool there = i < mResults.size();
        mButtons[i]->setEnabled(there);
        mButtons[i]->setChecked(there && now && mResults[i].preview == now);
        if (!there) mButtons[i]->setIcon({});
    }
}

void SmartFillStudio::mark(QAbstractButton& button, QLabel& label, MarkedPixels& marked, const QString& none)
{
    marked = {};
    label.setText(none);
    if (button.isChecked() && mDocument) {
        if (!mDocument->selection().isNil()) marked = insideOf(mDocument->selection(), mDocument->picture());
        if (marked.isEmpty()) {
            beep();
            label.setText(tr("select the place in the image first"));
        } else {
            label.setText(tr("the selection of %1 × %2").arg(marked.box.width()).arg(marked.box.height()));
        }
    }
    button.setChecked(!marked.isEmpty());
    if (mDocument) mDocument->note({"click " + button.objectName()});
    settingsChanged();
}
