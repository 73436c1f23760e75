// SPDX-License-Identifier: GPL-3.0-or-later
/// SIGTERM, SIGHUP and SIGINT as a call on the main thread.
#pragma once
#include <QObject>
#include <functional>

namespace zp
{

/// One at a time. The first signal calls; a second one ends the program at once, as it always would: whoever sends it
/// has waited enough. Signals that were ignored when the program started (nohup) stay so.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    /// @param ended  main thread, from the event loop; is given the signal's number
    explicit EndSignals(std::function<void(int)> ended);
    ~EndSignals() override;

private:
    void look();
    std::function<void(int)> mEnded;
    int mRead = -1;
};

} // namespace zp
