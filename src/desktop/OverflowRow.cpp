// SPDX-License-Identifier: GPL-3.0-or-later
/// Which of the buttons fit, and the menu of the rest.
#include "desktop/OverflowRow.h"
#include <QEvent>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

namespace
{

constexpr int kSpacing = 4;

} // namespace

OverflowRow::OverflowRow(QWidget* parent) : QWidget(parent), mMore(new QToolButton(this)), mMenu(new QMenu(mMore))
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    mMore->setObjectName("mMoreOptions");
    mMore->setToolTip(tr("More options"));
    mMore->setAccessibleName(mMore->toolTip());
    mMore->setFocusPolicy(Qt::TabFocus);
    mMore->setPopupMode(QToolButton::InstantPopup);
    mMore->setStyleSheet("QToolButton::menu-indicator { image: none; }"); // its text is an arrow already
    mMore->setCheckable(true);
    mMore->setMenu(mMenu);
    mMore->hide();
    mMenu->setToolTipsVisible(true);
    connect(mMenu, &QMenu::aboutToShow, this, &OverflowRow::fillMenu);
}

void OverflowRow::add(QToolButton* button)
{
    button->setParent(this);
    mPlaces.push_back({button});
    connect(button, &QToolButton::toggled, this, &OverflowRow::arrange);
    updateGeometry();
    arrange();
}

void OverflowRow::offer(QToolButton* button, bool on)
{
    for (Place& place : mPlaces)
        if (place.button == button) place.offered = on;
    updateGeometry();
    arrange();
}

QWidgetList OverflowRow::buttons() const
{
    QWidgetList all;
    for (const Place& place : mPlaces) all << place.button;
    return all << mMore;
}

QSize OverflowRow::sizeHint() const
{
    QSize size(0, 0);
    for (const Place& place : mPlaces) {
        if (!place.offered) continue;
        const QSize hint = place.button->sizeHint();
        size = {size.width() + (size.width() > 0 ? kSpacing : 0) + hint.width(),
                std::max(size.height(), hint.height())};
    }
    return size;
}

QSize OverflowRow::minimumSizeHint() const
{
    const QSize all = sizeHint();
    return {std::min(all.width(), mMore->sizeHint().width()), all.height()};
}

bool OverflowRow::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest: // a button has another size
        updateGeometry();
        [[fallthrough]];
    case QEvent::Resize:
    case QEvent::LayoutDirectionChange:
    case QEvent::Show:
        arrange();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void OverflowRow::arrange()
{
    // Until it is seen for the first time its width says nothing.
    const bool whole = !isVisible() || sizeHint().width() <= width();
    const int moreWidth = mMore->sizeHint().width();
    int x = 0;
    bool full = false, hiddenIsOn = false;
    const auto put = [&](QToolButton* button) {
        const QSize size = button->sizeHint();
        const QRect place(x, (height() - size.height()) / 2, size.width(), size.height());
        button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        x += size.width() + kSpacing;
    };
    for (Place& place : mPlaces) {
        if (!place.offered) {
            place.button->hide();
            continue;
        }
        full = full || (!whole && x + place.button->sizeHint().width() + kSpacing + moreWidth > width());
        place.fits = !full;
        if (place.fits) put(place.button);
        place.button->setVisible(place.fits);
        hiddenIsOn = hiddenIsOn || (full && place.button->isChecked());
    }
    mMore->setText(isRightToLeft() ? "«" : "»");
    if (full) put(mMore);
    mMore->setVisible(full);
    mMore->setChecked(hiddenIsOn);
}

void OverflowRow::fillMenu()
{
    mMenu->clear();
    for (const Place& place : mPlaces) {
        if (!place.offered || place.fits) continue;
        QAction* const item = mMenu->addAction(place.button->text());
        item->setCheckable(place.button->isCheckable());
        item->setChecked(place.button->isChecked());
        item->setToolTip(place.button->toolTip());
        connect(item, &QAction::triggered, place.button, &QToolButton::click);
    }
}
