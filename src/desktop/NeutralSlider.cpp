// SPDX-License-Identifier: GPL-3.0-or-later
/// Draws groove, filling and handle.
#include "desktop/NeutralSlider.h"
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

namespace
{

constexpr int kFilling = 4; ///< thickness, in screen points

} // namespace

void NeutralSlider::setNeutral(int value)
{
    mNeutral = value;
    update();
}

int NeutralSlider::positionOf(int value) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    return groove.left() + handle.width() / 2 +
           QStyle::sliderPositionFromValue(minimum(), maximum(), value, groove.width() - handle.width(),
                                           option.upsideDown);
}

void NeutralSlider::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    // The style fills from the left edge to the handle: an empty groove is one whose handle stands there.
    option.subControls = QStyle::SC_SliderGroove;
    option.sliderPosition = minimum();
    painter.drawComplexControl(QStyle::CC_Slider, option);
    const int from = positionOf(mNeutral), to = positionOf(sliderPosition());
    QRect filling(std::min(from, to), 0, std::abs(to - from), kFilling);
    filling.moveTop((height() - kFilling) / 2);
    if (isEnabled()) painter.fillRect(filling, palette().color(QPalette::Highlight));
    painter.fillRect(QRect(from, filling.top() - 2, 1, kFilling + 4), palette().color(QPalette::PlaceholderText));
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderHandle;
    painter.drawComplexControl(QStyle::CC_Slider, option);
}

void NeutralSlider::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() == Qt::LeftButton) setValue(mNeutral);
}
