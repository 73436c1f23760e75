// SPDX-License-Identifier: GPL-3.0-or-later
/// The gate for commands: what happens before and after each of them, written once.
#include "base/Log.h"
#include "base/LongWait.h"
#include "desktop/Panels.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/Shelf.h"
#include "document/View.h"
#include "undo/TileJournal.h"
#include <new>
#include <system_error>

namespace zp
{

const Command* Document::menuCommand(std::string_view action) const
{
    for (const Command& command : mCommands)
        if (command.menu && action == command.action) return &command;
    return nullptr;
}

const Command* Document::operation(std::string_view name) const
{
    for (const Command& command : mCommands)
        if (command.parameters && name == command.action) return &command;
    return nullptr;
}

bool Document::allows(const Command& command)
{
    const unsigned wanted = command.needs;
    if (wanted & needs::Picture && !mPicture.isLoaded()) return false;
    if (wanted & needs::Selection && mSelection.isNil()) return false;
    if (wanted & needs::ClipboardPicture && !Pasteboard::general().hasImageData()) return false;
    if (wanted & needs::File) {
        const bool named = !mPicture.path().empty();
        const bool missing = mPicture.forgetMissingFile();
        if (named && missing) emit changed(); // the window still says the name
        if (missing) return false;
    }
    if (wanted & needs::UndoStep && !mHistory.canUndo()) return false;
    if (wanted & needs::RedoStep && !mHistory.canRedo()) return false;
    if (wanted & needs::ShelvedPicture && mShelf.isEmpty()) return false;
    if (wanted & needs::DroppedSelection && !mSelection.canReselect()) return false;
    return true;
}

Outcome Document::perform(const Command& command, const Arguments& arguments)
{
    return perform(command, &arguments, [&command, &arguments](Edit& edit) { command.run(edit, arguments); });
}

Outcome Document::perform(const Command& command, const std::function<void(Edit&)>& body)
{
    return perform(command, nullptr, body);
}

Outcome Document::perform(std::string_view action, const Arguments& arguments)
{
    for (const Command& command : mCommands)
        if (command.run && action == command.action) return perform(command, arguments);
    logLine("no such command: %.*s", int(action.size()), action.data());
    return {Outcome::Refused, {}};
}

Outcome Document::perform(const Command& command, const Arguments* arguments, const std::function<void(Edit&)>& body)
{
    if (mGateOpen) { // a command that runs another one: an edit is whole or nothing
        logLine("%s while another command runs", command.action);
        return {Outcome::Refused, {}};
    }
    if (command.effect != Effect::View) endGesture();
    if (!allows(command)) {
        beep();
        return {Outcome::Refused, {}};
    }
    return passGate(command, arguments, body);
}

Outcome Document::passGate(const Command& command, const Arguments* arguments, const std::function<void(Edit&)>& body)
{
    if (command.effect >= Effect::Read) finishStroke();
    const bool settles = command.onFloat == OnFloat::Settle && mSelection.floating();
    // The picture as it was opened is a step of its own, however soon it is changed.
    if (command.effect >= Effect::Paint || settles) mHistory.recordPending();
    Edit edit(*this);
    Outcome outcome;
    bool stopped = false; // by the person, who need not be told
    mGateOpen = true;
    try {
        if (settles) edit.settleFloat();
        body(edit);
        if (edit.mRefused) outcome = {Outcome::Refused, edit.mWhy};
    } catch (const Stopped&) {
        outcome = {Outcome::Failed, tr("It was stopped.")};
        stopped = true;
        edit.redraw(); // the outline may be an older one
    } catch (const std::bad_alloc&) {
        outcome = {Outcome::Failed, tr("There is not enough memory.")};
    } catch (const std::system_error& error) {
        logLine("%s: %s", command.action, error.what());
        outcome = {Outcome::Failed, tr("There is not enough memory.")};
    }
    mGateOpen = false;
    if (command.effect >= Effect::Select) mView.setInfoWithoutSelection("");
    if (outcome.kind == Outcome::Failed) {
        if (edit.mWrote) rollBack(edit);
        if (!stopped) edit.alert(outcome.why, {});
        edit.wantStep(false);
    }
    closeEdit(edit, command.name, command.step);
    if (outcome || (settles && outcome.kind == Outcome::Refused)) emit performed(command, arguments);
    sayAfterwards(edit);
    return outcome;
}

void Document::rollBack(Edit& edit)
{
    // The last step holds the picture as it was when the command began.
    mHistory.takeBack(
        mPicture, [&edit](std::shared_ptr<BitmapRep> rep) { edit.replacePicture(std::move(rep), kInternalPicture); });
    edit.redraw();
}

void Document::closeEdit(Edit& edit, const char* stepName, StepRule rule)
{
    const bool due = edit.mStepDecided
                         ? edit.mStepWanted
                         : (rule == StepRule::Always && !edit.mRefused) || (rule != StepRule::Never && edit.mWrote);
    if (edit.mReplaced) {
        mView.setPreview(nullptr); // it was of pixels that are gone
        mView.setCompared(nullptr);
        emit pictureReplaced();
        emit zoomChanged(); // fitted, or at its own pixels
    }
    if (due) mHistory.record(mPicture, stepName);
    if (edit.mRedrawAll)
        emit touched(mPicture.bounds());
    else if (!edit.mDirty.isEmpty())
        emit touched(edit.mDirty);
    if (!edit.mRevealed.isEmpty()) emit revealed(edit.mRevealed);
    emit changed();
}

void Document::sayAfterwards(Edit& edit)
{
    for (const Edit::Alert& alert : edit.mAlerts) runAlert(alert.title, alert.message, {tr("OK")});
    for (const auto& work : edit.mAfterwards) work();
}

} // namespace zp
