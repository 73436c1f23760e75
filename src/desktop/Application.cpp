// SPDX-License-Identifier: GPL-3.0-or-later
/// Catches what an event let through.
#include "desktop/Application.h"
#include "base/Log.h"
#include "desktop/Panels.h"
#include <QTimer>
#include <exception>

namespace zp
{

namespace
{

bool saying = false; // one alert at a time: showing it may be what fails

/// When the stack of the failed event is gone and its memory is free again.
void sayThatMemoryRanOut()
{
    if (saying || QCoreApplication::closingDown()) return;
    try {
        QTimer::singleShot(0, qApp, [] {
            saying = true;
            struct Said {
                ~Said() { saying = false; }
            } const said;
            runAlert(QCoreApplication::translate("Document", "There is not enough memory."), {}, {"OK"});
        });
    } catch (const std::exception&) {
        logLine("there is not even memory to say so");
    }
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        logLine("an event of type %d was given up: %s", int(event->type()), error.what());
    }
    sayThatMemoryRanOut();
    return true;
}

} // namespace zp
