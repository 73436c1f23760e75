// SPDX-License-Identifier: GPL-3.0-or-later
/// The library's preview and its worker.
#include "windows/LibraryPreview.h"
#include "codecs/ImageImporter.h"
#include <QPainter>
#include <algorithm>
#include <system_error>
#include <utility>

using namespace zp;

namespace
{

constexpr int kPollMilliseconds = 16; // a frame; looked only while a picture is on its way

/// The picture near @p side in size, in a format that the screen takes.
QImage reduced(const BitmapRep& bitmap, int side)
{
    const int w = bitmap.pixelsWide(), h = bitmap.pixelsHigh();
    // By a whole factor, averaging, straight from the picture's rows: what is left is less than twice too large.
    const int factor = std::max(1, std::max(w, h) / side);
    const int rw = w / factor, rh = h / factor;
    QImage half(std::max(rw, 1), std::max(rh, 1), QImage::Format_ARGB32_Premultiplied);
    if (half.isNull()) return {};
    for (int y = 0; y < rh; ++y) {
        auto* out = reinterpret_cast<QRgb*>(half.scanLine(y));
        for (int x = 0; x < rw; ++x) {
            unsigned sum[4] = {};
            for (int dy = 0; dy < factor; ++dy) {
                const std::uint8_t* p = bitmap.bitmapData() + (std::ptrdiff_t(y) * factor + dy) * bitmap.bytesPerRow() +
                                        std::ptrdiff_t{4} * x * factor;
                for (int i = 0; i < 4 * factor; ++i) sum[i & 3] += p[i];
            }
            const unsigned n = unsigned(factor * factor);
            out[x] = sum[0] / n << 24 | sum[1] / n << 16 | sum[2] / n << 8 | sum[3] / n;
        }
    }
    return half; // less than twice too large: painting does the rest
}

} // namespace

LibraryPreview::LibraryPreview(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(120, 120);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    mPoll.setInterval(kPollMilliseconds);
    connect(&mPoll, &QTimer::timeout, this, &LibraryPreview::take);
    try {
        mWorker = std::jthread([this](const std::stop_token& stop) { work(stop); });
    } catch (const std::system_error&) {
        // no thread to be had: the list goes without a preview
    }
}

LibraryPreview::~LibraryPreview() = default;

void LibraryPreview::showFile(const std::string& path)
{
    ++mRequest;
    if (path.empty()) return showText({});
    mText.clear();
    const int side = int(std::max(width(), height()) * devicePixelRatioF());
    {
        const std::lock_guard hold(mGuard);
        mWanted = Wanted{path, mRequest, std::max(side, 64)};
    }
    mWake.notify_one();
    mPoll.start();
}

void LibraryPreview::showText(const QString& text)
{
    ++mRequest; // a picture still on its way comes too late
    mPoll.stop();
    mPicture = {};
    mText = text;
    update();
}

void LibraryPreview::work(const std::stop_token& stop)
{
    while (!stop.stop_requested()) {
        Wanted wanted;
        {
            std::unique_lock hold(mGuard);
            if (!mWake.wait(hold, stop, [this] { return mWanted.has_value(); })) return;
            wanted = std::move(*mWanted);
            mWanted.reset();
        }
        ImportOptions options;
        options.atLeastWidth = options.atLeastHeight = wanted.side;
        options.properties = false;
        ImportedImage read = importImageFile(wanted.path, options);
        QImage picture;
        if (read.bitmap) picture = reduced(*read.bitmap, wanted.side);
        if (read.bitmap && picture.isNull()) read.error = "There is not enough memory for this picture.";
        const std::lock_guard hold(mGuard);
        mDone = Done{wanted.request, std::move(picture), std::move(read.error)};
    }
}

void LibraryPreview::take()
{
    std::optional<Done> done;
    {
        const std::lock_guard hold(mGuard);
        done = std::exchange(mDone, std::nullopt);
    }
    if (!done || done->request != mRequest) return; // still at work, or no longer wanted
    mPoll.stop();
    mPicture = done->picture;
    mText = QString::fromStdString(done->error);
    update();
}

void LibraryPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (mPicture.isNull()) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, mText);
        return;
    }
    const QSizeF natural = QSizeF(mPicture.size()) / devicePixelRatioF();
    QSizeF size = natural;
    if (size.width() > width() || size.height() > height()) size.scale(QSizeF(this->size()), Qt::KeepAspectRatio);
    const QRectF place(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    // Transparent pictures show the grey that stands behind them everywhere in the program.
    if (mPicture.hasAlphaChannel()) painter.fillRect(place, QColor(128, 128, 128));
    painter.drawImage(place, mPicture);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}
