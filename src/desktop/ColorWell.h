// SPDX-License-Identifier: GPL-3.0-or-later
/// A button that shows a colour, opens the shared colour panel, and says when another was chosen.
#pragma once
#include "base/Color.h"
#include <QAbstractButton>

/// Transparent colours are shown over a chequerboard with the opaque colour in one corner.
class ColorWell : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColorWell(QWidget* parent = nullptr);
    zp::Color color() const { return mColor; }
    /// Shows the colour without a signal.
    void setColor(zp::Color color);
    /// As a user's choice: shows it and emits colorChosen.
    void chooseColor(zp::Color color);
    QSize sizeHint() const override;
    /// Whether colour panels let the user set opacity; off until the application asks for it.
    static void setPanelShowsAlpha(bool on);

signals:
    void colorChosen(zp::Color color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();
    zp::Color mColor;
};
