// SPDX-License-Identifier: GPL-3.0-or-later
/// A button that shows a colour, opens the shared colour panel, and says when another was chosen.
#pragma once
#include "base/Color.h"
#include <QAbstractButton>
#include <QTimer>
#include <functional>

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
    /// What a colour looks like where it will be painted; the numbers stay what they are.
    void setLook(std::function<zp::Color(zp::Color)> look);
    QSize sizeHint() const override;
    /// Whether colour panels let the user set opacity; off until the application asks for it.
    static void setPanelShowsAlpha(bool on);

signals:
    /// @param goesOn  part of the choice before: the hand that picks it has not let go
    void colorChosen(zp::Color color, bool goesOn);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();
    void choose(zp::Color color, bool goesOn);
    zp::Color mColor;
    QTimer mHandWatch; ///< runs from a change by a held button until that is let go
    std::function<zp::Color(zp::Color)> mLook;
};
