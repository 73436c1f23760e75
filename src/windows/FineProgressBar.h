// SPDX-License-Identifier: GPL-3.0-or-later
/// A progress bar in percent that moves by less than one.
#pragma once
#include <QProgressBar>

/// Its value is the whole percent, for whoever reads it; what is drawn is the exact one.
class FineProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    using QProgressBar::QProgressBar;
    void setPercent(double percent);
    double percent() const { return mPercent; }

protected:
    void initStyleOption(QStyleOptionProgressBar* option) const override;

private:
    double mPercent = 0;
};
