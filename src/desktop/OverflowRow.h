// SPDX-License-Identifier: GPL-3.0-or-later
/// A row of buttons that gives way: those that find no room wait in the menu of one behind them.
#pragma once
#include <QWidget>
#include <vector>

class QMenu;
class QToolButton;

/// As wide as its buttons where there is room, and never wider. Main thread only.
class OverflowRow : public QWidget
{
    Q_OBJECT

public:
    explicit OverflowRow(QWidget* parent = nullptr);
    /// Puts a button with a text behind the others and makes it a child. From here on the row shows and hides it.
    void add(QToolButton* button);
    /// Whether the button has a place here at all, in the row or in the menu; at first it has.
    void offer(QToolButton* button, bool on);
    /// The button behind the others, seen when some find no room; it is on while one of these is.
    QToolButton* more() const { return mMore; }
    /// All of them and more(), in the order of the row.
    QWidgetList buttons() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    struct Place {
        QToolButton* button;
        bool offered = true, fits = true;
    };
    void arrange();
    void fillMenu();

    std::vector<Place> mPlaces;
    QToolButton* mMore;
    QMenu* mMenu;
};
