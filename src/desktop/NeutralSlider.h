// SPDX-License-Identifier: GPL-3.0-or-later
/// A slider with a value that changes nothing: it is filled from there, and a double click brings it back.
#pragma once
#include <QSlider>

class NeutralSlider : public QSlider
{
    Q_OBJECT

public:
    explicit NeutralSlider(QWidget* parent = nullptr) : QSlider(Qt::Horizontal, parent) {}
    int neutral() const { return mNeutral; }
    void setNeutral(int value);
    /// Where on the slider, in its own coordinates, the middle of the handle lies for a value.
    int positionOf(int value) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int mNeutral = 0;
};
