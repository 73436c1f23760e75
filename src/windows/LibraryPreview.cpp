// SPDX-License-Identifier: GPL-3.0-or-later
/// What the library's preview asks for and how it is drawn.
#include "windows/LibraryPreview.h"
#include <QPainter>
#include <algorithm>

using namespace zp;

LibraryPreview::LibraryPreview(QWidget* parent)
    : QWidget(parent),
      mWorker([](const Wanted& wanted, const auto&) { return thumbnailOf(wanted.path, wanted.side); },
              [this](const Thumbnail& made) { show(made); })
{
    setMinimumSize(120, 120);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void LibraryPreview::showFile(const std::string& path)
{
    if (path.empty()) return showText({});
    mText.clear();
    const int side = int(std::max(width(), height()) * devicePixelRatioF());
    if (!mWorker.ask({path, std::max(side, 64)})) showText({}); // no thread to be had: the list goes without
}

void LibraryPreview::showText(const QString& text)
{
    mWorker.forget(); // a picture still on its way comes too late
    mPicture = {};
    mText = text;
    update();
}

void LibraryPreview::show(const Thumbnail& made)
{
    mPicture = made.image;
    mText = QString::fromStdString(made.error);
    update();
}

void LibraryPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (mPicture.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
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
