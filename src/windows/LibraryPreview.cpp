// SPDX-License-Identifier: GPL-3.0-or-later
/// The library's preview and its worker.
#include "windows/LibraryPreview.h"
#include "desktop/Thumbnails.h"
#include <QPainter>
#include <algorithm>
#include <system_error>
#include <utility>

using namespace zp;

namespace
{

constexpr int kPollMilliseconds = 16; // a frame; looked only while a picture is on its way

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
        Thumbnail made = thumbnailOf(wanted.path, wanted.side);
        const std::lock_guard hold(mGuard);
        mDone = Done{wanted.request, std::move(made.image), std::move(made.error)};
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
