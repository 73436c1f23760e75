// SPDX-License-Identifier: GPL-3.0-or-later
/// One line of plain text that gives way: what does not fit is cut with an ellipsis and stands in the tool tip.
#pragma once
#include <QLabel>

class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};
