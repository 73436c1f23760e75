// SPDX-License-Identifier: GPL-3.0-or-later
/// Start-up, quitting and the menu commands.
#include "app/ZPAppController.h"
#include "app/AdjustDialog.h"
#include "app/CommandTable.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/PicturePrinting.h"
#include "app/RecentFiles.h"
#include "app/SavedSelectionDialogs.h"
#include "app/ScriptWindow.h"
#include "app/SelectionByNumber.h"
#include "app/ShortcutsWindow.h"
#include "app/SizeDialogs.h"
#include "app/SizeSaveDialog.h"
#include "app/StatusLine.h"
#include "app/TransformDialog.h"
#include "app/ZPAboutBox.h"
#include "app/ZPPrefs.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ForeignDecoder.h"
#include "desktop/ColorWell.h"
#include "desktop/Desktop.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Mnemonics.h"
#include "desktop/Panels.h"
#include "desktop/QtColor.h"
#include "desktop/Settings.h"
#include "desktop/Sounds.h"
#include "desktop/SystemProbes.h"
#include "desktop/WindowPlaces.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/Comparison.h"
#include "operations/Files.h"
#include "operations/SessionScript.h"
#include "operations/TextToolHook.h"
#include "windows/ZPFileManager.h"
#include "windows/ZPImageProcessor.h"
#include "windows/ZPSmartFill.h"
#include "windows/ZPTextEditor.h"
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QColor>
#include <QDesktopServices>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

using namespace zp;

namespace
{

const char* const kPreferencesFile = "com.orvanta.Zelpane.plist";
const char* const kRetinaFile = "2xRetina.txt";

/// The launch begins with an empty history.
constexpr Command kBegin{.action = "launch", .effect = Effect::Replace};

QString colorText(Color c) { return toQt(c).name(QColor::HexArgb); }

std::optional<Color> colorOf(const QString& text)
{
    const QColor c(text);
    if (!c.isValid()) return std::nullopt;
    return fromQt(c);
}

QString toText(const std::string& path) { return QString::fromStdString(displayName(path)); }

} // namespace

ZPAppController::ZPAppController()
    : mDocument(std::make_unique<Document>(commandTable())),
      mWindow(std::make_unique<MainWindow>(*mDocument)),
      mCanvas(mWindow->canvas()),
      mScript(std::make_unique<SessionScript>(*mDocument)),
      mCompareTo(CompareTo::Opened)
{
    qApp->installEventFilter(this);
    buildShell();
    mMenu = new MainMenu(
        mWindow->menuBar(), [this](const QString& action, QString* title) { return validateMenuItem(action, title); },
        [this](const QString& action) { prepare(action); }, [this](const QString& action) { perform(action); });
    connect(mMenu->recentMenu(), &QMenu::aboutToShow, this, &ZPAppController::fillRecentMenu);
    const bool retina = readWholeFile(resourcePath(kRetinaFile), 1024) == "YES";
    mMenu->item("retina:")->setCheckable(true);
    mMenu->item("retina:")->setChecked(retina);
    if (retina) mDocument->setRetina(true);
    mMenu->setState("fitToWindow:", [this] { return mDocument->view().fit() != Fit::No; });
    mMenu->setState("history:", [this] { return mWindow->historyIsShown(); });
    mMenu->setState("fullScreen:", [this] { return mWindow->isFullScreen(); });
    mMenu->setState("chequerboard:", [this] { return mDocument->view().isChequered(); });
    mMenu->setState("removeBrush:", [this] { return mDocument->gesture().removes(); });
    mMenu->setState("pixelGrid:", [this] { return mDocument->view().hasGrid(); });
    mMenu->setState("explainWand:", [this] { return mDocument->view().explainsWand(); });
    mMenu->setState("freeCorners:", [this] { return mDocument->view().freesCorners(); });
    mMenu->setState("keyboardPointer:", [this] { return mCanvas->hasKeyboardPointer(); });
    const auto showKeys = [this] {
        mWindow->showKeys([this](const QString& action) { return mMenu->keyNameOf(action); },
                          [this](const QKeySequence& keys) { return mMenu->itemOfKeys(keys) != nullptr; });
    };
    connect(mMenu, &MainMenu::keysChanged, this, showKeys);
    showKeys();
    mMenu->setState("compare:", [this] { return mDocument->view().compared() != nullptr; });
    mMenu->item("compare:")->setAutoRepeat(false);
    for (const auto& [action, to] :
         {std::pair("compareOpened:", CompareTo::Opened), std::pair("compareSaved:", CompareTo::Saved),
          std::pair("compareStep:", CompareTo::LastStep)}) {
        mMenu->setState(action, [this, to = to] { return mCompareTo == to; });
        mShell[action] = [this, to = to] {
            mCompareTo = to;
            if (mDocument->view().compared()) startComparison(*mDocument, mCompareTo);
        };
    }
    mMenu->setReason([this](const QString& action) { return whyNot(action); });
    // Windows stand above the canvas: it reaches the text editor through these.
    setTextToolHooks({[](int size) { ZPTextEditor::sharedInstance()->setFontSize(size); },
                      [this] {
                          const Point at = mDocument->gesture().pt1();
                          const double z = mDocument->view().effectiveZoom();
                          const QPointF local(double(at.x) * z, double(at.y) * z);
                          ZPTextEditor::sharedInstance()->showWindow(mCanvas->mapToGlobal(local).toPoint());
                      },
                      [] { ZPTextEditor::sharedInstance()->run(); },
                      [](Point start) { return ZPTextEditor::sharedInstance()->textPathAtPoint(start); },
                      [] { return ZPTextEditor::sharedInstance()->isValid(); }});
    ZPSmartFill::registerCommand();
    ZPPrefs::applyStored();
    connect(mCanvas, &ZPCanvas::menuRequested, this, &ZPAppController::showPictureMenu);
    setFrameAutosaveName(mWindow.get(), "Main");
    mWindow->mayClose = [this] {
        if (!mTerminated) terminate();
        return mTerminated;
    };
    mWindow->performAction = [this](const QString& action) { mMenu->choose(action); };
    mWindow->openDroppedFile = [this](const std::string& path) {
        mDocument->whenFree([this, path] { openPath(path); });
    };
}

ZPAppController::~ZPAppController() { NotificationCenter::defaultCenter().removeObserver(this); }

void ZPAppController::applicationWillFinishLaunching(bool offersRecovery)
{
    mLaunchFromDocument = false;
    mOffersRecovery = offersRecovery;
    SnapshotStore::shared().leaveLeftWorkAlone(!offersRecovery);
}

bool ZPAppController::application(const std::string& openFile)
{
    mLaunchFromDocument = true;
    return mDocument->whenFree([this, openFile] { openPath(openFile); });
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
    mMenu->addElsewhere();
    // What a crashed program left in the folder is moved aside first, so that it can still be offered below. A document
    // opened by this launch has its folder already, and maybe its first snapshot.
    if (!mLaunchFromDocument) mDocument->perform(kBegin, [](Edit& edit) { edit.history().reset(); });
    mWidthC = 0;
    mHeightC = 0;
    restoreKeptAside();
    for (const std::string& folder : foldersSavedTo()) removeLeftovers(folder);
    migratePreferences();
    if (!fileExists(libraryFolder())) createFolder(libraryFolder());
    placeSampleImage();
    mWindow->refreshInvitation();
    centerWindow(mWindow.get());
    if (mRemembers) bringBackChoices();
    const bool recovered = mOffersRecovery && offerRecovery();
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
        // The library is not held up by a question in another window.
        mDocument->whenFree([this, file = *path] { openPath(file); });
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
    const QString names = neverSaved();
    return runAlert(tr("Do you really want to quit?"),
                    tr("Make sure that the image is saved to disk.") + (names.isEmpty() ? names : "\n\n" + names),
                    {tr("Quit"), tr("Cancel")}) == 0;
}

void ZPAppController::terminate()
{
    if (!applicationShouldTerminate()) return;
    mTerminated = true;
    QCoreApplication::exit(0);
}

void ZPAppController::endBySignal()
{
    mKeepsWork = true;
    mTerminated = true;
    ZPImageProcessor* processor = ZPImageProcessor::sharedImageProcessor();
    if (processor->isRunning()) processor->cancel();
    QCoreApplication::exit(0); // of every loop, a dialog's as well
}

void ZPAppController::remember()
{
    Settings& kept = settings();
    const Color color = mDocument->paint().color();
    kept.setValue("last/tool", int(mDocument->gesture().tool()));
    kept.setValue("last/size", double(mDocument->paint().size()));
    kept.setValue("last/brush", mDocument->paint().brushShape());
    kept.setValue("last/pressure", int(mDocument->paint().penPressure()));
    kept.setValue("last/tolerance", mDocument->paint().toleranceSetting());
    kept.setValue("last/color", colorText(color));
    kept.setValue("last/otherColor", colorText(mDocument->paint().otherColor()));
    kept.setValue("last/chequered", mDocument->view().isChequered());
    kept.setValue("last/grid", mDocument->view().hasGrid());
    kept.setValue("last/explainsWand", mDocument->view().explainsWand());
    kept.setValue("last/font", ZPTextEditor::lastFamily());
    kept.setValue("last/docks", mWindow->saveState());
}

void ZPAppController::bringBackChoices()
{
    const Settings& kept = settings();
    ZPTextEditor::setLastFamily(kept.value("last/font").toString());
    mWindow->restoreState(kept.value("last/docks").toByteArray());
    if (const std::optional<Color> other = colorOf(kept.value("last/otherColor").toString()))
        mDocument->setPaintColor(*other);
    if (const std::optional<Color> color = colorOf(kept.value("last/color").toString()))
        mDocument->setPaintColor(*color);
    mDocument->setChequered(kept.value("last/chequered").toBool());
    mDocument->setGrid(kept.value("last/grid").toBool());
    mDocument->setExplainsWand(kept.value("last/explainsWand").toBool());
    if (kept.value("last/size").isValid()) mDocument->setBrushSize(kept.value("last/size").toFloat());
    const int pressure = kept.value("last/pressure").toInt();
    if (pressure >= 0 && pressure <= int(PenPressure::Opacity)) mDocument->setPenPressure(PenPressure(pressure));
    mWindow->chooseBrush(kept.value("last/brush").toInt(), kept.value("last/tolerance", -1).toInt());
    mCanvas->setTool(kept.value("last/tool").toInt());
}

void ZPAppController::applicationWillTerminate()
{
    if (mRemembers) remember();
    if (mKeepsWork) {
        mDocument->endGesture();
        mDocument->waitForWorkers();
    } else {
        mDocument->close();
    }
    const std::string state = mMenu->item("retina:")->isChecked() ? "YES" : "NO";
    const std::string file = resourcePath(kRetinaFile);
    if (readWholeFile(file, 1024) != state) writeFileSafely(file, state.data(), state.size());
    NotificationCenter::defaultCenter().removeObserver(this);
}

void ZPAppController::bringWindowToFront() { bringToFront(mWindow.get()); }

void ZPAppController::openPath(const std::string& path)
{
    bringWindowToFront();
    if (openPicture(*mDocument, path)) noteRecentFile(path);
}

void ZPAppController::fillRecentMenu()
{
    QMenu* menu = mMenu->recentMenu();
    menu->clear();
    codec::readyForeignDecoder();
    for (const std::string& path : recentFiles()) {
        // Names are shown as they are: an ampersand marks no key, and markup is text.
        QAction* item =
            menu->addAction(toText(lastPathComponent(path)).replace("&", "&&"), this, [this, path] { openPath(path); });
        item->setToolTip(QString("<span>%1</span>").arg(toText(path).toHtmlEscaped()));
        item->setEnabled(fileExists(path));
    }
    if (menu->isEmpty()) menu->addAction(tr("No recent images"))->setEnabled(false);
    menu->addSeparator();
    menu->addAction(tr("Clear"), this,
                    [this] {
                        clearRecentFiles();
                        mWindow->refreshInvitation();
                    })
        ->setEnabled(!recentFiles().empty());
}

void ZPAppController::openDocument()
{
    PanelRequest request;
    request.types = {"tiff", "jpg", "png", "psd"};
    request.directory = mDocument->picture().path().empty() ? pathByAppending(homeFolder(), "Pictures")
                                                            : folderOfPath(mDocument->picture().path());
    if (const std::optional<std::string> path = runOpenPanel(request)) {
        centerWindow(mWindow.get());
        openPath(*path);
    }
}

void ZPAppController::newDocument()
{
    runNewDialog(*mDocument, mWindow.get(), [this] { bringWindowToFront(); });
}

void ZPAppController::quickSave()
{
    runNameDialog(*mDocument, mWindow.get(), [] {
        ZPFileManager::sharedFileManager()->showWindow();
        NotificationCenter::defaultCenter().post("ReloadTableDataNotif");
    });
}

void ZPAppController::about() { ZPAboutBox::show(); }
void ZPAppController::prefs()
{
    connect(ZPPrefs::sharedPrefs(), &ZPPrefs::shortcutsWanted, this, &ZPAppController::keyboardShortcuts,
            Qt::UniqueConnection);
    connect(ZPPrefs::sharedPrefs(), &ZPPrefs::unitChanged, &mWindow->statusLine(), &StatusLine::show,
            Qt::UniqueConnection);
    ZPPrefs::sharedPrefs()->showWindow();
}

void ZPAppController::help()
{
    runAlert(tr("Read the User's Guide"), tr("You can find the User's Guide in the same folder as this application."),
             {tr("OK")});
}

void ZPAppController::usersGuide()
{
    const std::string guide = pathByAppending(shippedResourcesFolder(), "../guide/user-guide.html");
    if (!fileExists(guide) || !QDesktopServices::openUrl(urlFromPath(guide))) help();
}

void ZPAppController::keyboardShortcuts()
{
    if (!mShortcuts) mShortcuts = std::make_unique<ShortcutsWindow>(*mMenu);
    mShortcuts->showWindow();
}

void ZPAppController::copyAsScript()
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(mScript->text()));
    mDocument->say(tr("Copied what was done as a script."));
}

void ZPAppController::showScript()
{
    if (!mScriptWindow) mScriptWindow = std::make_unique<ScriptWindow>(*this);
    mScriptWindow->showWindow();
}

void ZPAppController::compare()
{
    if (mDocument->view().compared()) return endComparison(*mDocument);
    mCompareHeld = startComparison(*mDocument, mCompareTo) && mHeldKey != 0;
}

bool ZPAppController::eventFilter(QObject* watched, QEvent* event)
{
    // A key's first event is that it may be a shortcut; its last that it goes up.
    const bool down = event->type() == QEvent::ShortcutOverride;
    if (down || event->type() == QEvent::KeyRelease) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->isAutoRepeat()) {
            const bool ends = !down && key->key() == mHeldKey && std::exchange(mCompareHeld, false);
            mHeldKey = down ? key->key() : 0;
            if (ends) endComparison(*mDocument);
        }
    } else if (event->type() == QEvent::ApplicationDeactivate || event->type() == QEvent::WindowDeactivate) {
        mHeldKey = 0; // its going up is told to another window
        if (std::exchange(mCompareHeld, false)) endComparison(*mDocument);
    }
    return QObject::eventFilter(watched, event);
}

void ZPAppController::showPictureMenu(QPoint position)
{
    std::unique_ptr<QMenu> menu(mMenu->makePictureMenu(mWindow.get()));
    menu->exec(position);
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

void ZPAppController::openWithPreview()
{
    if (!QDesktopServices::openUrl(urlFromPath(mDocument->picture().path()))) beep();
}

void ZPAppController::toggleRetina()
{
    // The menu item's state decides, not the flag.
    QAction* item = mMenu->item("retina:");
    const bool on = !item->isChecked();
    item->setChecked(on);
    mDocument->setRetina(on);
    runAlert(on ? tr("You have enabled 2x retina display mode.") : tr("You have disabled 2x retina display mode."),
             QString(), {tr("OK")});
}

// ---- commands -------------------------------------------------------------------------------------------------------

QString ZPAppController::titleWithStep(const QString& verb, std::int32_t number, bool possible) const
{
    const std::vector<History::Step>& steps = mDocument->history().steps();
    const auto step =
        std::find_if(steps.begin(), steps.end(), [number](const History::Step& each) { return each.number == number; });
    if (!possible || step == steps.end() || step->name.empty()) return verb;
    return tr("%1 %2", "verb and name of a step: Undo Fill")
        .arg(verb, QCoreApplication::translate("Steps", step->name.c_str()));
}

bool ZPAppController::validateMenuItem(const QString& action, QString* title)
{
    const Command* command = mDocument->menuCommand(action.toStdString());
    if (!command) return false;
    if (title && action == "anchorSelection:")
        *title = mDocument->selection().floating() ? tr("Anchor Selection") : tr("Float Selection");
    const History& history = mDocument->history();
    if (title && action == "undo:") *title = titleWithStep(tr("Undo"), history.position(), history.canUndo());
    if (title && action == "redo:") *title = titleWithStep(tr("Redo"), history.position() + 1, history.canRedo());
    if (command->needs & needs::EditorWindow && !mWindow->isVisible()) return false;
    return mDocument->allows(*command);
}

QString ZPAppController::whyNot(const QString& action)
{
    struct Reason {
        unsigned need;
        const char* sentence;
    };
    static constexpr Reason kReasons[] = {
        {needs::Picture, QT_TR_NOOP("Needs an image: open one or make a new one.")},
        {needs::Selection, QT_TR_NOOP("Needs a selection.")},
        {needs::ClipboardPicture, QT_TR_NOOP("Needs an image on the clipboard.")},
        {needs::File, QT_TR_NOOP("Needs an image that has a file: save it first.")},
        {needs::UndoStep, QT_TR_NOOP("There is nothing to undo.")},
        {needs::RedoStep, QT_TR_NOOP("There is nothing to redo.")},
        {needs::DroppedSelection, QT_TR_NOOP("No selection was dropped yet.")},
        {needs::ShelvedPicture, QT_TR_NOOP("No image was open before this one.")},
    };
    const Command* command = mDocument->menuCommand(action.toStdString());
    if (!command) return {};
    for (const Reason& reason : kReasons)
        if (command->needs & reason.need && !mDocument->allows({.action = "", .needs = reason.need}))
            return tr(reason.sentence);
    if (command->needs & needs::EditorWindow && !mWindow->isVisible()) return tr("Needs the main window.");
    return {};
}

void ZPAppController::prepare(const QString& action)
{
    const Command* command = mDocument->menuCommand(action.toStdString());
    // What the hand is doing ends as its release would end it: only then is it known what can be done.
    if (command && command->effect != Effect::View) mDocument->endGesture();
}

void ZPAppController::perform(const QString& action)
{
    const Command* command = mDocument->menuCommand(action.toStdString());
    if (!command) return;
    if (command->run) {
        QString title = withoutMnemonic(mMenu->item(action)->text());
        validateMenuItem(action, &title); // as it is now: "Undo Fill" is another afterwards
        mDocument->say({});
        // An operation that knows more says it itself; a window that it opened speaks for itself.
        if (mDocument->perform(*command) && mDocument->message().isEmpty() && !title.endsWith(QChar(0x2026)))
            mDocument->say(tr("Done: %1").arg(title));
        return;
    }
    if (const auto shell = mShell.find(action); shell != mShell.end()) shell->second();
}

void ZPAppController::buildShell()
{
    const auto on = [this](const char* action, void (ZPAppController::*f)()) {
        mShell[action] = [this, f] { (this->*f)(); };
    };
    on("about:", &ZPAppController::about);
    on("prefs:", &ZPAppController::prefs);
    on("terminate:", &ZPAppController::terminate);
    on("newDocument:", &ZPAppController::newDocument);
    on("openDocument:", &ZPAppController::openDocument);
    on("quickSave:", &ZPAppController::quickSave);
    on("runPageLayout:", &ZPAppController::runPageLayout);
    on("openWithPreview:", &ZPAppController::openWithPreview);
    on("retina:", &ZPAppController::toggleRetina);
    mShell["history:"] = [this] { mWindow->showHistory(!mWindow->historyIsShown()); };
    on("imageEditor:", &ZPAppController::imageEditor);
    on("fileManager:", &ZPAppController::fileManager);
    on("showWindows:", &ZPAppController::showWindows);
    on("imageProcessor:", &ZPAppController::imageProcessor);
    on("help:", &ZPAppController::help);
    on("usersGuide:", &ZPAppController::usersGuide);
    on("keyboardShortcuts:", &ZPAppController::keyboardShortcuts);
    on("copyAsScript:", &ZPAppController::copyAsScript);
    on("compare:", &ZPAppController::compare);
    on("showScript:", &ZPAppController::showScript);
    mShell["print:"] = [this] { printPicture(*mDocument); };
    mShell["saveAsTIFF:"] = [this] { saveThroughPanel(*mDocument, SaveFormat::TIFF); };
    mShell["saveAsJPEG:"] = [this] { saveThroughPanel(*mDocument, SaveFormat::JPEG); };
    mShell["saveAsPNG:"] = [this] { saveThroughPanel(*mDocument, SaveFormat::PNG); };
    mShell["selectByNumber:"] = [this] { runSelectionByNumber(*mDocument, mWindow.get()); };
    mShell["saveWithoutPrivateData:"] = [this] { saveCopyWithoutPrivateData(*mDocument); };
    mShell["saveForSize:"] = [this] { runSizeSaveDialog(*mDocument, mWindow.get()); };
    mShell["resize:"] = [this] { runResizeDialog(*mDocument, mWindow.get()); };
    mShell["transform:"] = [this] { runTransformDialog(*mDocument, mWindow.get()); };
    mShell["adjust:"] = [this] { runAdjustDialog(*mDocument, mWindow.get()); };
    mShell["saveSelection:"] = [this] { runSaveSelectionDialog(*mDocument, mWindow.get()); };
    mShell["loadSelection:"] = [this] { runLoadSelectionDialog(*mDocument, mWindow.get()); };
    mShell["zoomIn:"] = [this] { mCanvas->stepZoom(1); };
    mShell["zoomOut:"] = [this] { mCanvas->stepZoom(-1); };
    mShell["actualSize:"] = [this] { mCanvas->zoom(100); };
    mShell["fitToWindow:"] = [this] { mDocument->fitPicture(); };
    mShell["fullScreen:"] = [this] { mWindow->toggleFullScreen(); };
    mShell["chequerboard:"] = [this] { mDocument->setChequered(!mDocument->view().isChequered()); };
    mShell["removeBrush:"] = [this] { mDocument->setRemoving(!mDocument->gesture().removes()); };
    mShell["pixelGrid:"] = [this] { mDocument->setGrid(!mDocument->view().hasGrid()); };
    mShell["explainWand:"] = [this] { mDocument->setExplainsWand(!mDocument->view().explainsWand()); };
    mShell["freeCorners:"] = [this] {
        mDocument->setFreesCorners(!mDocument->view().freesCorners());
        // There are handles only on what floats.
        if (mDocument->view().freesCorners() && !mDocument->selection().isNil()) mDocument->perform("transform");
    };
    mShell["keyboardPointer:"] = [this] { mCanvas->setKeyboardPointer(!mCanvas->hasKeyboardPointer()); };
    mShell["largerBrush:"] = [this] { mDocument->stepBrushSize(1); };
    mShell["smallerBrush:"] = [this] { mDocument->stepBrushSize(-1); };
    mShell["swapColours:"] = [this] { mDocument->swapPaintColors(); };
}
