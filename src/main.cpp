// SPDX-License-Identifier: GPL-3.0-or-later
/// Start-up: reads the command line and hands control to the application's event loop.
#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "batch/BatchCommandLine.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/SingleInstance.h"
#include "script/ScriptDriver.h"
#include <QApplication>
#include <QTimer>
#include <csignal>
#include <cstdio>

using namespace zp;

int main(int argc, char** argv)
{
    if (argc > 1 && std::string(argv[1]) == "--batch") return runBatchCommandLine(argc, argv);
    CommandLine line = parseCommandLine(argc, argv);
    if (!line.error.empty()) {
        std::fprintf(stderr, "zelpane: %s\nTry \"zelpane --help\".\n", line.error.c_str());
        return 2;
    }
    if (!line.answer.empty()) {
        std::fputs(line.answer.c_str(), stdout);
        return 0;
    }
    const bool scripted = !line.script.empty();
    if (scripted && !ScriptDriver::isReadable(line.script)) {
        std::fprintf(stderr, "zelpane: cannot read the script %s\n", line.script.c_str());
        return 2;
    }
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (line.offscreen || (scripted && (!line.show || !display))) qputenv("QT_QPA_PLATFORM", "offscreen");

    // A full quota and a reader that went away are answers of the calls that meet them, not the program's end.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    // Every sample of the pointer counts for a stroke: none may be merged with the next.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QCoreApplication::setAttribute(Qt::AA_CompressTabletEvents, false);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setApplicationName("zelpane");
    QCoreApplication::setOrganizationName("zelpane");
    QGuiApplication::setDesktopFileName("zelpane");
    QGuiApplication::setApplicationDisplayName("Zelpane");
    QApplication application(argc, argv);
    QApplication::setStyle("fusion"); // the same on every desktop and platform plug-in
    applyColorScheme();
    QApplication::setQuitOnLastWindowClosed(false);

    SingleInstance instance;
    if (!scripted && instance.handOver(line.files)) return 0;

    installKeyModifierWatch();
    ZPAppController controller;
    controller.applicationWillFinishLaunching();
    controller.window().show();
    std::unique_ptr<ScriptDriver> driver;
    if (scripted) driver = std::make_unique<ScriptDriver>(controller, line.script);
    if (!scripted)
        instance.listen([&controller](const std::vector<std::string>& files) {
            controller.imageEditor();
            for (const std::string& file : files) controller.application(file);
        });
    // The launch sequence asks its question in a loop of its own, once the window is on screen.
    QTimer::singleShot(0, &controller, [&] {
        for (const std::string& file : line.files) controller.application(file);
        controller.applicationDidFinishLaunching(line.startChoice);
    });
    if (driver) QTimer::singleShot(0, driver.get(), [&driver] { driver->start(); });

    const int status = QApplication::exec();
    controller.applicationWillTerminate();
    return driver ? driver->exitStatus() : status;
}
