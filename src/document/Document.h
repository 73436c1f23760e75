// SPDX-License-Identifier: GPL-3.0-or-later
/// What is being edited, and the one gate that every change of it passes.
#pragma once
#include "base/Color.h"
#include "base/Geometry.h"
#include "desktop/MainThreadWake.h"
#include "document/Command.h"
#include "document/Edit.h"
#include "document/Notices.h"
#include "document/UnusedFields.h"
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>

namespace zp
{

class BitmapRep;
class TileJournal;
enum class Hand;
enum class PenPressure;
struct MarqueeRule;
struct Preview;
struct ToolActions;

/// Six values with one owner each, and what paints. Anybody may look at them; whoever wants to change one is a
/// command, a gesture or a late result, and gets an Edit from the gate:
///
/// - an open gesture is ended as its release would end it, and a brush stroke painted to its end;
/// - threads that read or write the pixels are waited for, as far as the command touches pixels;
/// - a floating piece is settled where the command's row says so;
/// - the command runs; what it touched is redisplayed, one step is recorded where its row says so;
/// - when memory, threads or the disk run out, everything is as before and the person is told in one sentence.
///
/// Main thread, except where noted. Large by design (25.6 MB of points, untouched until a stroke needs them).
class Document : public QObject
{
    Q_OBJECT

public:
    /// @param commands        the table of all commands; must outlive the document
    /// @param strokeCapacity  points a brush stroke can have
    Document(std::span<const Command> commands, std::uint32_t strokeCapacity);
    explicit Document(std::span<const Command> commands); ///< with room for every stroke of a hand
    ~Document() override;

    const Picture& picture() const { return mPicture; }
    const Selection& selection() const { return mSelection; }
    const Gesture& gesture() const { return mGesture; }
    const Paint& paint() const { return mPaint; }
    const History& history() const { return mHistory; }
    const View& view() const { return mView; }
    const Shelf& shelf() const { return mShelf; }
    /// The picture is not the one that was opened or saved, or something floats over it that changes it.
    bool isModified() const;
    const UnusedFields& unusedFields() const { return mUnused; }
    /// The text of the selection's field: its box, or what the last event leaves there without a selection.
    std::string infoText() const;
    /// Why the last open or save failed, in a sentence; empty when it did not.
    const std::string& lastFileError() const { return mLastFileError; }
    void setLastFileError(std::string sentence) { mLastFileError = std::move(sentence); }

    // ---- what the person is told and need not answer ---------------------------------------------------------------

    const Notices& notices() const { return mNotices; }
    /// A sentence for the bar over the picture; it waits while another is on show.
    void notice(const QString& sentence) { notice(Notice{.text = sentence}); }
    void notice(Notice notice);
    void closeNotice();
    /// The status line's passing text: what a command did.
    const QString& message() const { return mMessage; }
    /// Says it there for a while.
    void say(const QString& message);
    /// Another picture, another file, or a file that was just written: what was said of the one that was opened is
    /// over.
    void dropNoticesOfFile();

    // ---- commands ------------------------------------------------------------------------------------------------

    std::span<const Command> commands() const { return mCommands; }
    /// The row that a menu item of that action chooses; null for none.
    const Command* menuCommand(std::string_view action) const;
    /// The row that a script's "send" reaches by that name; null for none.
    const Command* operation(std::string_view name) const;
    /// Whether the row can be chosen now. Costs a look at the disk for rows that need the file.
    bool allows(const Command& command);
    /// Runs the row's own operation. A row that cannot be chosen is refused with a beep.
    Outcome perform(const Command& command, const Arguments& arguments = {});
    /// The first row of that action which has an operation; there must be one.
    Outcome perform(std::string_view action, const Arguments& arguments = {});
    /// Passes the gate as @p command says, and runs @p body.
    Outcome perform(const Command& command, const std::function<void(Edit&)>& body);
    /// A request from outside (a second start, a drop, a file to open): runs now, or when no button is held and no
    /// dialog or alert is up, in the order of the requests.
    /// @return whether it ran at once
    bool whenFree(std::function<void()> request);
    bool requestsWait() const { return !mRequests.empty(); }

    // ---- gestures --------------------------------------------------------------------------------------------------

    /// @param actions  null for a tool number that there is none of
    void press(const ToolActions* actions, Point point);
    void drag(Point point);
    void release(Point point);
    /// An open gesture ends as its release would end it, and what is left of a brush stroke is painted.
    void endGesture();
    /// Escape: pixels, outline and numbers as before the press; no step. @return false when no gesture can be taken
    /// back
    bool cancelGesture();
    /// How hard the pen presses from the next position on, 0 to 1; a mouse always by 1.
    void setPressure(float pressure);
    /// Another position of the pointer while a brush stroke is open.
    void samplePointer(Point point);
    void chooseTool(Tool tool);
    /// The brush removes what it is drawn over instead of painting; ends with the next choice of a tool.
    void setRemoving(bool on);
    /// The marquee and the open edge of a polygon as pointer and keys have them now.
    void followPointer();
    /// What the next marquees keep to. Ignored when a side is not above zero.
    void setMarqueeRule(const MarqueeRule& rule);
    /// The outline of the marquee, from where the button was pressed to where the pointer is.
    void shapeMarquee();

    // ---- looking and painting: nothing that a step records --------------------------------------------------------

    void setZoom(float factor);
    /// The whole picture in the window, from now on and whatever becomes of the window.
    void fitPicture();
    /// The window has that much room for the picture, in screen points.
    void setRoom(Size room);
    void setRetina(bool on);
    void setChequered(bool on);
    void setGrid(bool on);
    void setExplainsWand(bool on);
    /// The corner handles of what floats pull their corner alone.
    void setFreesCorners(bool on);
    /// Shows pixels over the picture that are no part of it, or none (null), until another bitmap becomes the picture.
    void showPreview(std::shared_ptr<const Preview> preview);
    /// Shows an earlier state of the picture left of the pointer, or none (null), until another bitmap becomes the
    /// picture. One of another size is not shown. @return whether one is
    bool compareWith(std::shared_ptr<const BitmapRep> before);
    void setOnScreen(bool on);
    void setPointer(Point point, bool inside);
    /// Another choice of colour, after which the one before can be swapped in.
    void setPaintColor(Color color);
    /// The same choice goes on: the hand that picks the colour still moves.
    void movePaintColor(Color color);
    void swapPaintColors();
    void setBrushSize(float size);
    /// A step larger (+1) or smaller (-1): about a tenth, at least a pixel.
    void stepBrushSize(int step);
    void setBrushShape(int index);
    void setPenPressure(PenPressure what);
    void setToleranceSetting(int setting);

    // ---- workers ---------------------------------------------------------------------------------------------------

    /// A stroke is painted or a step is being written.
    bool anyWorkerRunning() const;
    bool firstStepPending() const;
    /// Blocks until no thread works on the pixels.
    void waitForWorkers();
    /// Something outside computes for the document (a smart fill): scripts wait for it.
    void setComputing(bool computing) { mComputing = computing; }
    bool isComputing() const { return mComputing; }
    /// The program ends: gestures and workers end, the steps are thrown away.
    void close();

    /// Something was done that neither a command's row nor the hand describes: the lines of a script that do it again,
    /// and those that have to stand before the hand's last gesture.
    void note(const QStringList& lines, const QStringList& before = {}) { emit noted(lines, before); }

signals:
    /// A command has changed the document, or could have. @p arguments null: its body came from elsewhere, and only
    /// what it did is known.
    void performed(const zp::Command& command, const zp::Arguments* arguments);
    /// Before it is acted on; a release, and what was taken back, after. @p actions of a press.
    void handMoved(zp::Hand what, zp::Point point, const zp::ToolActions* actions = nullptr);
    void penPressed(float pressure); ///< as hard from the next position on
    void noted(const QStringList& lines, const QStringList& before);
    void touched(zp::Rect imageRect); ///< main thread: that part of the picture shows something new
    void antsMoved();
    void revealed(zp::Rect imageRect); ///< the person is to see that part
    void pictureReplaced();            ///< another bitmap or another size
    void zoomChanged();
    void pointerMoved();
    void paintChanged(); ///< colour, size, pressure or tolerance
    void toolChosen();
    void stepsChanged(); ///< another step, another position, or a step was written
    void noticed();      ///< another notice is on show, or none
    void changed();      ///< whatever the window says of the document may be another now

private:
    friend class Edit;
    bool strokeIsOpen() const;
    void finishStroke();
    void strokeEnded();
    /// The tiles that were painted on since the press are as they were.
    void bringBack(const TileJournal& before);
    Outcome passGate(const Command& command, const Arguments* arguments, const std::function<void(Edit&)>& body);
    Outcome perform(const Command& command, const Arguments* arguments, const std::function<void(Edit&)>& body);
    void closeEdit(Edit& edit, const char* stepName, StepRule rule);
    void sayAfterwards(Edit& edit);
    void rollBack(Edit& edit);
    void handle(const char* stepName, const std::function<void(Edit&)>& body);
    void releaseOpenGesture(Point point);
    void runRequests();
    void touchedByWorker(Rect rect);

    std::span<const Command> mCommands;
    /// The values themselves: who looks at one of them includes that one's header and no other.
    struct Values;
    std::unique_ptr<Values> mValues;
    Picture& mPicture;
    Selection& mSelection;
    Gesture& mGesture;
    Paint& mPaint;
    History& mHistory;
    View& mView;
    Shelf& mShelf;
    UnusedFields mUnused;
    std::string mLastFileError;
    Notices mNotices;
    QString mMessage;
    QTimer mMessageTimer;
    bool mGateOpen = false;
    bool mOwesStep = false; ///< a gesture wrote pixels and has not left its step yet
    bool mComputing = false;
    Color mColorBefore; ///< the gesture in progress

    std::mutex mPaintedLock; ///< guards the one below
    Rect mPaintedByWorker;   ///< painted by a worker, not yet shown
    MainThreadWake mPaintedWake;
    std::deque<std::function<void()>> mRequests;
    QTimer mRequestTimer;
    QTimer mPoolTimer; ///< gives pooled pixel memory back when nothing needs it
};

} // namespace zp
