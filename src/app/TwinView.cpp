// SPDX-License-Identifier: GPL-3.0-or-later
/// The two halves and the hand that moves them.
#include "app/TwinView.h"
#include "drawing/ScreenRows.h"
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

using namespace zp;

namespace
{

constexpr int kGap = 8, kMostZoom = 8, kStep = 40; // screen points

/// The picture's pixels of @p box as the screen has them.
QImage screenImage(const BitmapRep& picture, const QRect& box)
{
    QImage image(box.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(picture.view().rowData(box.top() + y)) + box.left();
        convertToScreen(row, reinterpret_cast<std::uint32_t*>(image.scanLine(y)), image.width());
    }
    return image;
}

} // namespace

TwinView::TwinView(std::shared_ptr<const BitmapRep> left, QWidget* parent)
    : QWidget(parent),
      mPictures{std::move(left), nullptr},
      mMiddle(QPointF(mPictures[0]->pixelsWide(), mPictures[0]->pixelsHigh()) / 2)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setMinimumSize(320, 160);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TwinView::setRight(std::shared_ptr<const BitmapRep> right)
{
    mPictures[1] = std::move(right);
    update();
}

QRect TwinView::half(int which) const
{
    const int side = (width() - kGap) / 2;
    return {which == 0 ? 0 : width() - side, 0, side, height()};
}

void TwinView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // A pixel of the picture is a whole number of the screen's own pixels, at any scale of the desktop.
    const double scale = mZoom / devicePixelRatioF();
    for (int which = 0; which < 2; ++which) {
        const QRect room = half(which);
        painter.fillRect(room, QColor(128, 128, 128));
        painter.setClipRect(room);
        if (const auto& picture = mPictures[which]) {
            const QSizeF seen = QSizeF(room.size()) / scale;
            const QPointF corner(std::floor(mMiddle.x() - seen.width() / 2),
                                 std::floor(mMiddle.y() - seen.height() / 2));
            const QRect box = QRectF(corner, seen).toAlignedRect().adjusted(0, 0, 1, 1) &
                              QRect(0, 0, picture->pixelsWide(), picture->pixelsHigh());
            if (!box.isEmpty())
                painter.drawImage(QRectF(room.topLeft() + (box.topLeft() - corner) * scale, QSizeF(box.size()) * scale),
                                  screenImage(*picture, box));
        }
        painter.setClipping(false);
        painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
        painter.drawRect(room.adjusted(0, 0, -1, -1));
    }
}

void TwinView::keepInside()
{
    mMiddle.setX(std::clamp(mMiddle.x(), 0.0, double(mPictures[0]->pixelsWide())));
    mMiddle.setY(std::clamp(mMiddle.y(), 0.0, double(mPictures[0]->pixelsHigh())));
}

void TwinView::moveBy(QPointF screen)
{
    mMiddle += screen * devicePixelRatioF() / mZoom;
    keepInside();
    update();
}

void TwinView::zoomTo(int zoom, QPointF about)
{
    zoom = std::clamp(zoom, 1, kMostZoom);
    const QRect room = half(about.x() < width() / 2.0 ? 0 : 1);
    const QPointF fromMiddle = (about - QRectF(room).center()) * devicePixelRatioF();
    mMiddle += fromMiddle / mZoom - fromMiddle / zoom; // what is under the pointer stays there
    mZoom = zoom;
    keepInside();
    update();
}

void TwinView::wheelEvent(QWheelEvent* event)
{
    if (event->angleDelta().y() != 0) zoomTo(event->angleDelta().y() > 0 ? mZoom * 2 : mZoom / 2, event->position());
    event->accept();
}

void TwinView::mousePressEvent(QMouseEvent* event)
{
    mHand = event->position();
    setCursor(Qt::ClosedHandCursor);
}

void TwinView::mouseMoveEvent(QMouseEvent* event)
{
    moveBy(mHand - event->position());
    mHand = event->position();
}

void TwinView::mouseReleaseEvent(QMouseEvent*) { setCursor(Qt::OpenHandCursor); }

void TwinView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy({-kStep, 0});
    case Qt::Key_Right:
        return moveBy({kStep, 0});
    case Qt::Key_Up:
        return moveBy({0, -kStep});
    case Qt::Key_Down:
        return moveBy({0, kStep});
    case Qt::Key_Plus:
        return zoomTo(mZoom * 2, QRectF(half(0)).center());
    case Qt::Key_Minus:
        return zoomTo(mZoom / 2, QRectF(half(0)).center());
    default:
        QWidget::keyPressEvent(event);
    }
}
