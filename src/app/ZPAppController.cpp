// SPDX-License-Identifier: GPL-3.0-or-later
/// Start-up, quitting and the menu commands.
#include "app/ZPAppController.h"
#include "app/AdjustDialog.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/SavedSelectionDialogs.h"
#include "app/SizeDialogs.h"
#include "app/TransformDialog.h"
#include "app/ZPAboutBox.h"
#include "app/ZPPrefs.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "canvas/ZPCanvas.h"
#include "desktop/ColorWell.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/SystemProbes.h"
#include "operations/TextToolHook.h"
#include "undo/SnapshotStore.h"
#include "windows/ZPFileManager.h"
#include "windows/ZPImageProcessor.h"
#include "windows/ZPSmartFill.h"
#include "windows/ZPTextEditor.h"
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <fstream>

using namespace zp;

namespace
{

constexpr int kRecentFiles = 10;
const char* const kPreferencesFile = "com.orvanta.Zelpane.plist";

QString toText(const std::string& path) { return QString::fromStdString(displayName(path)); }

} // namespace

ZPAppController::ZPAppController() : mWindow(std::make_unique<MainWindow>()), mCanvas(mWindow->canvas())
{
    buildCommands();
    mMenu = new MainMenu(
        mWindow->menuBar(), [this](const QString& action, QString* title) { return validateMenuItem(action, title); },
        [this](QAction* item) { perform(item); });
    connect(mMenu->recentMenu(), &QMenu::aboutToShow, this, &ZPAppController::fillRecentMenu);
    mCanvas->mRetinaMenuItem = mMenu->item("retina:");
    mCanvas->awakeFromNib();
    // Windows stand above the canvas: it reaches the text editor through these.
    setTextToolHooks({[](int size) { ZPTextEditor::sharedInstance()->setFontSize(size); },
                      [] { ZPTextEditor::sharedInstance()->showWindow(); },
                      [] { ZPTextEditor::sharedInstance()->run(); },
                      [](Point start) { return ZPTextEditor::sharedInstance()->textPathAtPoint(start); },
                      [] { return ZPTextEditor::sharedInstance()->isValid(); }});
    ZPSmartFill::registerWithCanvas();
    ZPPrefs::applyStored();
    mWindow->mayClose = [this] {
        if (!mTerminated) terminate();
        return mTerminated;
    };
    mWindow->openDroppedFile = [this](const std::string& path) { openPath(path); };
}

ZPAppController::~ZPAppController() { NotificationCenter::defaultCenter().removeObserver(this); }

void ZPAppController::applicationWillFinishLaunching() { mLaunchFromDocument = false; }

bool ZPAppController::application(const std::string& openFile)
{
    mLaunchFromDocument = true;
    openPath(openFile);
    return true;
}

void ZPAppController::applicationDidFinishLaunching(bool startChoice)
{
    if (!isLeopardOrLater()) {
        runAlert(tr("This is a (Snow) Leopard-only product!"), tr("Mac OS X 10.5 or later is required."), {tr("Quit")});
        mTerminated = true;
        QCoreApplication::exit(0);
        return;
    }
    ColorWell::setPanelShowsAlpha(true);
    mWindow->setToolImages();
    cleanUpEditMenu(mMenu->menu("Edit"));
    // What a crashed program left in the folder is moved aside first, so that it can still be offered below. A document
    // opened by this launch has its folder already, and maybe its first snapshot.
    if (!mLaunchFromDocument) mCanvas->resetUndo();
    mWidthC = 0;
    mHeightC = 0;
    migratePreferences();
    if (!fileExists(libraryFolder())) createFolder(libraryFolder());
    placeSampleImage();
    centerWindow(mWindow.get());
    const bool recovered = offerRecovery();
    if (startChoice && !recovered && !mLaunchFromDocument && !(currentKeyModifiers() & kShiftKey)) {
        switch (runAlert(tr("What would you like to do? Create a new image or open an existing image."), "",
                         {tr("New…"), tr("Open…"), tr("Cancel")})) {
        case 0:
            newDocument();
            break;
        case 1:
            openDocument();
            break;
        default:
            break;
        }
    }
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, "OpenFileNotif", [this](const Notification& n) {
        const std::string* path = std::any_cast<std::string>(&n.object);
        if (!path) return;
        logLine("openFileNotif: %s", path->c_str());
        bringWindowToFront();
        openPath(*path);
    });
    center.addObserver(this, "_giveMeCanvasNotif", [this](const Notification&) {
        NotificationCenter::defaultCenter().post("_canvasNotif", std::any(mCanvas));
    });
}

void ZPAppController::migratePreferences()
{
    const std::string shipped = resourcePath(kPreferencesFile);
    if (!fileExists(shipped)) return;
    const std::string folder = pathByAppending(homeFolder(), "Library/Preferences");
    createFolder(folder);
    const std::string mine = pathByAppending(folder, kPreferencesFile);
    removeItem(mine);
    moveItem(shipped, mine);
}

void ZPAppController::placeSampleImage()
{
    const std::string sample = resourcePath("Hibiskus.jpg");
    if (fileExists(sample)) moveItem(sample, pathByAppending(libraryFolder(), "Hibiskus.jpg"));
}

bool ZPAppController::applicationShouldTerminate()
{
    return runAlert(tr("Do you really want to quit?"), tr("Make sure that the image is saved to disk."),
                    {tr("Quit"), tr("Cancel")}) == 0;
}

void ZPAppController::terminate()
{
    if (!applicationShouldTerminate()) return;
    mTerminated = true;
    QCoreApplication::exit(0);
}

void ZPAppController::applicationWillTerminate()
{
    mCanvas->mIsMouseDown = 0;
    mCanvas->waitForWorkers();
    SnapshotStore::shared().remove();
    const char* state = mMenu->item("retina:")->isChecked() ? "YES" : "NO";
    std::ofstream flag(resourcePath("2xRetina.txt"), std::ios::binary | std::ios::trunc);
    flag << state;
    NotificationCenter::defaultCenter().removeObserver(this);
}

void ZPAppController::bringWindowToFront()
{
    mWindow->show();
    mWindow->raise();
    mWindow->activateWindow();
}

void ZPAppController::openPath(const std::string& path)
{
    bringWindowToFront();
    mCanvas->setImagePath(path);
    if (mCanvas->imageLoaded()) noteRecentFile(path);
    mWindow->showTitle();
}

void ZPAppController::noteRecentFile(const std::string& path)
{
    QSettings settings;
    QStringList recent = settings.value("recentFiles").toStringList();
    // Kept as percent-encoded bytes, so that names that are not UTF-8 survive.
    const QString entry = QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/"));
    recent.removeAll(entry);
    recent.prepend(entry);
    while (recent.size() > kRecentFiles) recent.removeLast();
    settings.setValue("recentFiles", recent);
}

void ZPAppController::fillRecentMenu()
{
    QMenu* menu = mMenu->recentMenu();
    menu->clear();
    for (const QString& entry : QSettings().value("recentFiles").toStringList()) {
        const std::string path = QByteArray::fromPercentEncoding(entry.toLatin1()).toStdString();
        QAction* item = menu->addAction(toText(lastPathComponent(path)), this, [this, path] { openPath(path); });
        item->setToolTip(toText(path));
        item->setEnabled(fileExists(path));
    }
    if (menu->isEmpty()) menu->addAction(tr("No recent images"))->setEnabled(false);
}

void ZPAppController::openDocument()
{
    PanelRequest request;
    request.types = {"tiff", "jpg", "png", "psd"};
    request.directory =
        mCanvas->mImagePath.empty() ? pathByAppending(homeFolder(), "Pictures") : folderOfPath(mCanvas->mImagePath);
    if (const std::optional<std::string> path = runOpenPanel(request)) {
        centerWindow(mWindow.get());
        openPath(*path);
    }
}

void ZPAppController::newDocument()
{
    runNewDialog(*mCanvas, mWindow.get(), [this] { bringWindowToFront(); });
    mWindow->showTitle();
}

void ZPAppController::quickSave()
{
    runNameDialog(*mCanvas, mWindow.get(), [] {
        ZPFileManager::sharedFileManager()->showWindow();
        NotificationCenter::defaultCenter().post("ReloadTableDataNotif");
    });
}

void ZPAppController::about() { ZPAboutBox::show(); }
void ZPAppController::prefs() { ZPPrefs::sharedPrefs()->showWindow(); }

void ZPAppController::help()
{
    runAlert(tr("Read the User's Guide"), tr("You can find the User's Guide in the same folder as this application."),
             {tr("OK")});
}

void ZPAppController::imageEditor()
{
    centerWindow(mWindow.get());
    bringWindowToFront();
}

void ZPAppController::fileManager() { ZPFileManager::sharedFileManager()->showWindow(); }

void ZPAppController::showWindows()
{
    imageEditor();
    fileManager();
}

void ZPAppController::imageProcessor()
{
    if (runAlert(tr("Do you really want to use the image processor?"),
                 tr("Make sure that the current image is saved to disk."), {tr("Yes"), tr("No")}) == 0)
        ZPImageProcessor::sharedImageProcessor()->showWindow();
}

void ZPAppController::runPageLayout() { zp::runPageLayout(); }

bool ZPAppController::validateMenuItem(const QString& action, QString* title)
{
    const bool loaded = mCanvas->imageLoaded();
    const bool selected = !mCanvas->selectionNil();
    if (action == "resize:") return loaded && mWindow->isVisible();
    if (action == "save:" || action == "openWithPreview:") return !mCanvas->imagePathNil();
    if (action == "saveAsTIFF:" || action == "saveAsJPEG:" || action == "saveAsPNG:" || action == "loadSelection:" ||
        action == "fitToWindow:")
        return loaded;
    if (action == "transform:" || action == "adjust:" || action == "saveSelection:") return loaded && selected;
    return mCanvas->validateMenuItem(action, title);
}

void ZPAppController::perform(QAction* item)
{
    const auto command = mCommands.find(item->property("action").toString());
    if (command != mCommands.end()) command->second(item);
}

void ZPAppController::buildCommands()
{
    const auto on = [this](const char* action, void (ZPAppController::*f)()) {
        mCommands[action] = [this, f](QAction*) { (this->*f)(); };
    };
    on("about:", &ZPAppController::about);
    on("prefs:", &ZPAppController::prefs);
    on("terminate:", &ZPAppController::terminate);
    on("newDocument:", &ZPAppController::newDocument);
    on("openDocument:", &ZPAppController::openDocument);
    on("quickSave:", &ZPAppController::quickSave);
    on("runPageLayout:", &ZPAppController::runPageLayout);
    on("imageEditor:", &ZPAppController::imageEditor);
    on("fileManager:", &ZPAppController::fileManager);
    on("showWindows:", &ZPAppController::showWindows);
    on("imageProcessor:", &ZPAppController::imageProcessor);
    on("help:", &ZPAppController::help);

    // After a save through a panel the window shows the new name.
    const auto saving = [this](const char* action, void (ZPCanvas::*f)()) {
        mCommands[action] = [this, f, target = mCanvas](QAction*) {
            (target->*f)();
            mWindow->showTitle();
        };
    };
    saving("save:", &ZPCanvas::saveImage);
    saving("saveAsTIFF:", &ZPCanvas::saveImageAsTIFF);
    saving("saveAsJPEG:", &ZPCanvas::saveImageAsJPEG);
    saving("saveAsPNG:", &ZPCanvas::saveImageAsPNG);

    const auto canvas = [this](const char* action, void (ZPCanvas::*f)()) {
        mCommands[action] = [target = mCanvas, f](QAction*) { (target->*f)(); };
    };
    canvas("openWithPreview:", &ZPCanvas::openWithPreview);
    canvas("undo:", &ZPCanvas::undo);
    canvas("redo:", &ZPCanvas::redo);
    canvas("cut:", &ZPCanvas::cut);
    canvas("copy:", &ZPCanvas::copy);
    canvas("paste:", &ZPCanvas::paste);
    canvas("pasteInto:", &ZPCanvas::pasteInto);
    canvas("delete:", &ZPCanvas::deleteSelection);
    canvas("fill:", &ZPCanvas::fill);
    canvas("stroke:", &ZPCanvas::stroke);
    canvas("smartFill:", &ZPCanvas::smartFill);
    canvas("cropToSelection:", &ZPCanvas::cropToSelection);
    canvas("rotateCW:", &ZPCanvas::rotateCW);
    canvas("rotateCCW:", &ZPCanvas::rotateCCW);
    canvas("flipH:", &ZPCanvas::flipH);
    canvas("flipV:", &ZPCanvas::flipV);
    canvas("selectAll:", &ZPCanvas::selectAll);
    canvas("selectNone:", &ZPCanvas::selectNoneWithSound);
    canvas("selectInverse:", &ZPCanvas::selectInverse);
    canvas("anchorSelection:", &ZPCanvas::anchorOrFloatSelection);
    mCommands["retina:"] = [this](QAction* item) {
        mCanvas->retina(item);
        mWindow->showZoom();
    };
    mCommands["resize:"] = [this](QAction*) { runResizeDialog(*mCanvas, mWindow.get()); };
    mCommands["transform:"] = [this](QAction*) { runTransformDialog(*mCanvas, mWindow.get()); };
    mCommands["adjust:"] = [this](QAction*) { runAdjustDialog(*mCanvas, mWindow.get()); };
    mCommands["saveSelection:"] = [this](QAction*) { runSaveSelectionDialog(*mCanvas, mWindow.get()); };
    mCommands["loadSelection:"] = [this](QAction*) { runLoadSelectionDialog(*mCanvas, mWindow.get()); };
    mCommands["zoomIn:"] = [this](QAction*) { mWindow->zoomIn(); };
    mCommands["zoomOut:"] = [this](QAction*) { mWindow->zoomOut(); };
    mCommands["actualSize:"] = [this](QAction*) { mWindow->actualSize(); };
    mCommands["fitToWindow:"] = [this](QAction*) { mWindow->fitToWindow(); };
}
