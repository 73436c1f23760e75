// SPDX-License-Identifier: GPL-3.0-or-later
/// Answers the program's questions while it lives.
#pragma once
#include "desktop/Panels.h"
#include <QTimer>
#include <vector>

namespace zp::test
{

/// Answers every alert that comes up while it lives with its first button, and remembers it.
class AlertWatch
{
public:
    AlertWatch()
    {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] {
            if (const auto alert = currentAlert()) {
                seen.push_back(*alert);
                answerAlert(alert->buttons[0]);
            }
        });
        mTimer.start(5);
    }
    std::vector<AlertState> seen;

private:
    QTimer mTimer;
};

} // namespace zp::test
