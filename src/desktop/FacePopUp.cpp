// SPDX-License-Identifier: GPL-3.0-or-later
/// Draws the closed pop-up with its own text.
#include "desktop/FacePopUp.h"
#include <QStyleOptionComboBox>
#include <QStylePainter>

void FacePopUp::setFace(const QString& text)
{
    if (text == mFace) return;
    mFace = text;
    setAccessibleDescription(face());
    update();
}

void FacePopUp::setWidestFace(const QString& text)
{
    mWidest = text;
    updateGeometry();
}

QSize FacePopUp::sizeHint() const
{
    QSize hint = QComboBox::sizeHint();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(fontMetrics().horizontalAdvance(mWidest), fontMetrics().height());
    return hint.expandedTo(style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this));
}

void FacePopUp::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = face();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
