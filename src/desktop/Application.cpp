// SPDX-License-Identifier: GPL-3.0-or-later
/// Catches what an event let through.
#include "desktop/Application.h"
#include "base/Log.h"
#include "desktop/Panels.h"
#include <QTimer>
#include <QWidget>
#include <QWindow>
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

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    // Window managers let a click or a task bar activate the window behind a dialog, where every key would be lost.
    connect(this, &QGuiApplication::focusWindowChanged, this, [](const QWindow* window) {
        QWidget* const asks = activeModalWidget();
        if (!window || !asks || activePopupWidget() || window->modality() != Qt::NonModal) return;
        for (const QWindow* w = window; w; w = w->transientParent()) // itself, or what it opened
            if (w == asks->windowHandle()) return;
        asks->raise();
        asks->activateWindow();
    });
}

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
