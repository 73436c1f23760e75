// SPDX-License-Identifier: GPL-3.0-or-later
/// Start-up: reads the command line and hands control to the application's event loop.
#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/ZPAppController.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "batch/BatchCommandLine.h"
#include "batch/Thumbnail.h"
#include "codecs/ForeignDecoder.h"
#include "desktop/Appearance.h"
#include "desktop/Application.h"
#include "desktop/EndSignals.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Languages.h"
#include "desktop/Panels.h"
#include "desktop/Portal.h"
#include "desktop/SingleInstance.h"
#include "desktop/WaitWindow.h"
#include "script/ScriptDriver.h"
#include "selection/PlanarClip.h"
#include <QApplication>
#include <QPointer>
#include <QSessionManager>
#include <QTimer>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>

using namespace zp;

constexpr const char* kDecodeOption = "--decode";

/// One word of a start: a file to open, or what to begin with.
static void carryOut(ZPAppController& controller, const std::string& request)
{
    if (!request.starts_with("--")) {
        controller.application(request);
        return;
    }
    if (QApplication::activeModalWidget()) return; // one question at a time
    if (request == "--new") controller.newDocument();
    if (request == "--open") controller.openDocument();
    if (request == "--image-processor") controller.imageProcessor();
}

/// Pictures of foreign kinds are read by another process of this very program, even if its file was replaced meanwhile.
static void readForeignPicturesApart(const QString& language = {}, std::unique_ptr<LongWait> (*wait)() = nullptr)
{
    std::vector<std::string> arguments{kDecodeOption};
    if (!language.isEmpty()) arguments.push_back(language.toStdString());
    codec::setForeignDecoding({.program = "/proc/self/exe", .arguments = std::move(arguments), .wait = wait});
}

/// A picture that another start hands over, as a file manager's does, comes without a word before it. Once the window
/// has settled a decoder waits for it; one that has read goes home after a while, and another takes its place.
static void keepDecoderWaiting(QObject* owner)
{
    constexpr std::chrono::seconds kSettled{1}, kLookedAfter{300};
    const auto ready = [] { codec::readyForeignDecoder(); };
    QTimer::singleShot(kSettled, owner, ready);
    auto* const timer = new QTimer(owner);
    timer->setTimerType(Qt::VeryCoarseTimer);
    timer->callOnTimeout(ready);
    timer->start(kLookedAfter);
}

static int decode(int argc, char** argv)
{
    if (argc > 2) speakWithoutApplication(QString::fromLocal8Bit(argv[2]));
    return codec::runDecoder();
}

static int run(int argc, char** argv)
{
    if (argc > 1 && std::string(argv[1]) == kDecodeOption) std::_Exit(decode(argc, argv)); // nothing to put in order
    readForeignPicturesApart();
    if (argc > 1 && std::string(argv[1]) == "--batch") return runBatchCommandLine(argc, argv);
    if (argc > 1 && std::string(argv[1]) == "--thumbnail") return runThumbnailCommandLine(argc, argv);
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
    QGuiApplication::setDesktopFileName(kDesktopName);
    QGuiApplication::setApplicationDisplayName("Zelpane");
    // One home for Qt's files and our own.
    if (qEnvironmentVariableIsEmpty("HOME")) qputenv("HOME", QByteArray::fromStdString(homeFolder()));
    const bool portalPanels = !scripted && usePortalPanels();
    Application application(argc, argv);
    scripted ? speakAsScripts() : speakAsDesktop();
    readForeignPicturesApart(spokenLanguage(), readingWait);
    setClipWait(combiningWait);
    QApplication::setStyle("fusion"); // the same on every desktop and platform plug-in
    applyColorScheme();
    if (!scripted) followDesktopAppearance(applyColorScheme);
    if (portalPanels) askForPortalPanels();
    QApplication::setQuitOnLastWindowClosed(false);

    // What to begin with goes behind the files, in the words of the command line: a path that is absolute is never one.
    std::vector<std::string> requests = line.files;
    if (!line.request.empty()) requests.push_back(line.request);
    // Before there is a socket to be left behind; a signal that comes now is answered when the loop runs.
    ZPAppController* running = nullptr;
    const EndSignals endSignals([&running](int number) {
        logLine("ended by signal %d", number);
        running->endBySignal();
    });
    SingleInstance instance;
    if (!scripted && instance.handOver(requests)) return 0;

    installKeyModifierWatch();
    for (const std::string& file : line.files) codec::readyForeignDecoder(file); // it begins while the windows are made
    ZPAppController controller;
    running = &controller;
    // The end of the desktop's session: nothing is asked, and nothing lost.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &controller, [&controller](QSessionManager& m) {
        m.setRestartHint(QSessionManager::RestartNever);
        controller.endBySignal();
    });
    controller.setScriptPlayer([&controller](const std::string& path, const auto& ended) {
        const QPointer<ScriptDriver> guest = new ScriptDriver(controller, path, ended); // ends itself
        guest->setParent(&controller);
        guest->start();
        return [guest] {
            if (guest) guest->stop();
        };
    });
    controller.rememberChoices(!scripted);
    controller.applicationWillFinishLaunching(!scripted || line.offerRecovery);
    controller.window().show();
    std::unique_ptr<ScriptDriver> driver;
    if (scripted) driver = std::make_unique<ScriptDriver>(controller, line.script);
    if (!scripted)
        instance.listen([&controller](const std::vector<std::string>& received) {
            controller.imageEditor();
            for (const std::string& request : received) carryOut(controller, request);
        });
    if (!scripted) keepDecoderWaiting(&controller);
    // The launch sequence asks its question in a loop of its own, once the window is on screen.
    QTimer::singleShot(0, &controller, [&] {
        for (const std::string& file : line.files) controller.application(file);
        controller.applicationDidFinishLaunching(line.startChoice && line.request.empty());
        if (!line.request.empty()) carryOut(controller, line.request);
    });
    if (driver) QTimer::singleShot(0, driver.get(), [&driver] { driver->start(); });

    const int status = QApplication::exec();
    controller.applicationWillTerminate();
    return driver ? driver->exitStatus() : status;
}

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) { // before there is a loop, or while the last files are finished
        std::fprintf(stderr, "zelpane: there is not enough memory (%s)\n", error.what());
        return 1;
    }
}
