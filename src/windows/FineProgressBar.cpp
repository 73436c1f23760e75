// SPDX-License-Identifier: GPL-3.0-or-later
/// Draws hundredths of a percent.
#include "windows/FineProgressBar.h"
#include <QStyleOptionProgressBar>
#include <algorithm>

void FineProgressBar::setPercent(double percent)
{
    mPercent = std::clamp(percent, 0.0, 100.0);
    setValue(int(mPercent));
    update();
}

void FineProgressBar::initStyleOption(QStyleOptionProgressBar* option) const
{
    QProgressBar::initStyleOption(option);
    option->minimum = 0;
    option->maximum = 10000;
    option->progress = int(mPercent * 100);
}
