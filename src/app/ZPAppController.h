// SPDX-License-Identifier: GPL-3.0-or-later
/// The application's delegate: start-up, quitting, the menu commands and the dialogs they open.
#pragma once
#include <QObject>
#include <QPoint>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <string>

class MainMenu;
class MainWindow;
class ScriptWindow;
class ShortcutsWindow;
class QAction;
class ZPCanvas;
namespace zp
{
class Document;
class SessionScript;
enum class CompareTo;
} // namespace zp

/// Lives for the whole run, on the main thread.
class ZPAppController : public QObject
{
    Q_OBJECT

public:
    ZPAppController();
    ~ZPAppController() override;

    /// @param offersRecovery  whether the launch asks about work that another run left; where it does not, such work is
    ///                        not touched
    void applicationWillFinishLaunching(bool offersRecovery = true);
    /// A file to open, asked for from outside; also called at launch, before applicationDidFinishLaunching. It waits
    /// while a dialog or an alert is up or a button is held. @return whether it was opened at once
    bool application(const std::string& openFile);
    /// The launch sequence. @param startChoice false leaves the start alert out, as a held Shift key does
    void applicationDidFinishLaunching(bool startChoice);
    /// Asks whether to quit. @return the answer
    bool applicationShouldTerminate();
    void applicationWillTerminate();
    /// Asks nothing: the picture as it is is kept and offered at the next start, and the program ends in order.
    void endBySignal();

    bool validateMenuItem(const QString& action, QString* title);
    /// Why it cannot be chosen, in a sentence; empty when it can or nothing is known.
    QString whyNot(const QString& action);
    /// The next start begins with the tool, colours and docks that this one ends with. Off for scripts, which begin
    /// alike everywhere.
    void rememberChoices(bool on) { mRemembers = on; }
    /// An open gesture ends before a command is validated.
    void prepare(const QString& action);
    /// Carries out the command of a menu item.
    void perform(const QString& action);
    /// Whether the application carries the command out itself: it has no operation of its own.
    bool carriesOut(const QString& action) const { return mShell.contains(action); }

    /// Who can play scripts stands above the application: it plays the file on the picture that is open, and tells when
    /// that has ended, with the line and what was wrong there. @return what stops it before that
    using ScriptPlayer = std::function<std::function<void()>(
        const std::string& path, std::function<void(int line, const QString& error)> ended)>;
    void setScriptPlayer(ScriptPlayer player) { mScriptPlayer = std::move(player); }
    const ScriptPlayer& scriptPlayer() const { return mScriptPlayer; }
    const zp::SessionScript& sessionScript() const { return *mScript; }

    MainWindow& window() const { return *mWindow; }
    MainMenu& menu() const { return *mMenu; }
    ZPCanvas& canvas() const { return *mCanvas; }
    zp::Document& document() const { return *mDocument; }

    /// Asks, and ends the event loop when the answer is yes.
    void terminate();
    void openDocument();
    void newDocument();
    void quickSave();
    void about();
    void prefs();
    void help();
    void usersGuide();
    void keyboardShortcuts();
    void imageEditor();
    void fileManager();
    void showWindows();
    void imageProcessor();
    void runPageLayout();
    void openWithPreview();
    void toggleRetina();
    void copyAsScript();
    void showScript();
    void compare();

    std::int32_t mWidthC = 0, mHeightC = 0;
    bool mLaunchFromDocument = false, mOffersRecovery = true;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildShell();
    void bringWindowToFront();
    void openPath(const std::string& path);
    void fillRecentMenu();
    void showPictureMenu(QPoint position);
    void remember();
    void bringBackChoices();
    bool offerRecovery(); ///< after a crash; whether a picture was brought back
    /// A sentence about the pictures before the current one; empty when all are as they were opened or saved.
    QString neverSaved() const;
    /// "Undo Fill".
    QString titleWithStep(const QString& verb, std::int32_t number, bool possible) const;
    void migratePreferences();
    void placeSampleImage();

    std::unique_ptr<zp::Document> mDocument;
    std::unique_ptr<MainWindow> mWindow;
    MainMenu* mMenu = nullptr;
    ZPCanvas* mCanvas = nullptr;
    std::map<QString, std::function<void()>> mShell; ///< commands that the application carries out itself
    std::unique_ptr<ShortcutsWindow> mShortcuts;
    std::unique_ptr<zp::SessionScript> mScript;
    std::unique_ptr<ScriptWindow> mScriptWindow;
    ScriptPlayer mScriptPlayer;
    zp::CompareTo mCompareTo;
    int mHeldKey = 0;          ///< that went down last, while it is
    bool mCompareHeld = false; ///< the comparison ends when its key goes up
    bool mTerminated = false, mKeepsWork = false, mRemembers = false;
};
