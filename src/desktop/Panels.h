// SPDX-License-Identifier: GPL-3.0-or-later
/// Alerts, open, save and folder panels, page layout: the questions a program asks in a window of their own.
///
/// All calls: main thread; each runs its own event loop until answered. A driver (the automation language) may queue
/// the answers of file panels beforehand and answer alerts while they stand.
#pragma once
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QPainter;
class QRectF;
class QWidget;

namespace zp
{

/// What runAlert() gives when the alert went away without a button: the program ends, a script is over.
inline constexpr int kNoAnswer = -1;

/// Shows a window-modal alert over the active window and waits. Escape is the last button: of several the one that
/// refuses, whatever language it speaks. While Panels are silenced (a batch run) nothing is shown and the default
/// button is the answer.
/// @param buttons titles, the default first, the one that refuses last, one to three
/// @return the index of the button pressed, or kNoAnswer
int runAlert(const QString& title, const QString& message, const QStringList& buttons);

struct AlertState {
    QString title, message;
    QStringList buttons;
};
/// The alert on screen, if any (the front one).
std::optional<AlertState> currentAlert();
/// Presses a button of the front alert by its title. @return false when there is no such alert or button
bool answerAlert(const QString& button);

/// Whether a dialog, an alert or an opened menu keeps the rest of the program from the person's hands.
bool modalWindowIsUp();

/// No alert is shown while one of these lives: for runs nobody watches.
class SilencedPanels
{
public:
    SilencedPanels();
    ~SilencedPanels();
};

struct PanelRequest {
    QString kind;          ///< "open", "save" or "folder"; filled in by the functions below
    QString title, prompt; ///< the window's title and the default button's text; empty: the platform's
    std::string directory; ///< where it opens; raw bytes of the file system
    std::string name;      ///< proposed file name (save)
    QStringList types;     ///< extensions without the dot; empty: all
    /// Save: what is written has this extension, whatever is typed; "tiff", "jpg", "png" or "webp". Empty: the name as
    /// typed.
    std::string extension;
    /// Save: a quality from 1 to 100 to choose beside the name, as it stands at first; 0: none.
    int quality = 0;
};
struct SaveAnswer {
    std::string path; ///< the file that will be written, in the file system's own bytes
    int quality = 0;  ///< as chosen
};
/// @return the chosen path in the file system's own bytes, or nothing when cancelled
std::optional<std::string> runOpenPanel(PanelRequest request);
/// The user may hide the extension; it is shown by default. Asks before an existing file is taken: the one whose name
/// is answered, not only the one that was typed. A driver's answer counts as yes to the panel's own question when it
/// is that very name.
std::optional<SaveAnswer> runSavePanel(PanelRequest request);
/// "File already exists": the one question about it, wherever a name is typed.
bool askToOverwrite();
std::optional<std::string> runFolderPanel(PanelRequest request);
/// The page layout panel; nothing uses its result.
void runPageLayout();
/// Asks for a printer and lets @p draw fill one page, whose printable part and resolution it is given; the paper is
/// that of the page layout panel. A queued answer is the PDF file that is made instead.
/// @return whether something was printed
bool runPrintPanel(const QString& title, const std::function<void(QPainter&, const QRectF& page, double dpi)>& draw);

/// Automation: answers of the coming file panels, in order; nothing = cancelled. Once automation is on (any call of
/// these), a panel with nothing queued is cancelled.
void setPanelsAutomated(bool on);
void queuePanelChoice(std::optional<std::string> path);
/// What the last file panel showed; nothing before the first.
std::optional<PanelRequest> lastPanel();

/// Centres the window on the screen that shows the main window (or on that, when @p over is given).
void centerWindow(QWidget* window, const QWidget* over = nullptr);

} // namespace zp
