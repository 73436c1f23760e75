// SPDX-License-Identifier: GPL-3.0-or-later
/// Answers the program's questions while it lives.
#pragma once
#include "desktop/Panels.h"
#include <QTimer>
#include <vector>

namespace zp::test
{

/// Answers every alert that comes up while it lives, with the next of its answers or else the first button, and
/// remembers it.
class AlertWatch
{
public:
    AlertWatch()
    {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] {
            if (const auto alert = currentAlert()) {
                seen.push_back(*alert);
                answerAlert(answers.isEmpty() ? alert->buttons[0] : answers.takeFirst());
            }
        });
        mTimer.start(5);
    }
    std::vector<AlertState> seen;
    QStringList answers; ///< of the coming alerts, in their order

private:
    QTimer mTimer;
};

} // namespace zp::test
