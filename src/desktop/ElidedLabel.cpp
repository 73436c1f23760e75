// SPDX-License-Identifier: GPL-3.0-or-later
/// Cuts the text when it is drawn, so that text() is always the whole.
#include "desktop/ElidedLabel.h"
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

QSize ElidedLabel::minimumSizeHint() const { return {fontMetrics().averageCharWidth() * 4, sizeHint().height()}; }

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QRect room = contentsRect();
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QString("<span>%1</span>").arg(text().toHtmlEscaped()), this);
        return true;
    }
    return QLabel::event(event);
}
