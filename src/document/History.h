// SPDX-License-Identifier: GPL-3.0-or-later
/// The steps that can be undone: their numbers, their names, and the files they are kept in.
#pragma once
#include "desktop/MainThreadWake.h"
#include "document/Picture.h"
#include "undo/SnapshotStore.h"
#include <QTimer>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace zp
{

class SnapshotEncoder;

/// Steps are numbered from 0; -1 is none. Each is a pair of files that a thread of its own writes; while it reads the
/// pixels, nobody may write them. Main thread, except where noted.
class History
{
public:
    struct Step {
        std::int32_t number = 0;
        std::string name; ///< the command's, untranslated
        std::chrono::system_clock::time_point time;
    };

    /// @param busyChanged  main thread: a step is being written, or no longer
    explicit History(std::function<void(bool busy)> busyChanged);
    ~History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    std::int32_t newest() const { return mUndoIndex; }
    std::int32_t position() const { return mUndoRedoIndex; }
    bool canUndo() const { return mUndoRedoIndex > 0; }
    bool canRedo() const { return mUndoRedoIndex < mUndoIndex; }
    /// The pixels are being read: the mouse is refused. Any thread.
    bool isWriting() const { return mUndoThreadRunning.load(std::memory_order_acquire); }
    bool isSuppressed() const { return mDontTakeSnapshot; }
    /// An opened picture waits for its first step.
    bool firstStepPending() const { return mFirstSnapshotTimer.isActive(); }
    /// Oldest first, as far as they are known.
    const std::vector<Step>& steps() const { return mSteps; }

    // ---- transitions ---------------------------------------------------------------------------------------------

    /// Another picture: no steps, an empty folder.
    void reset();
    /// Requests are ignored from now on, or no longer.
    void suppress(bool on) { mDontTakeSnapshot = on; }
    /// Asks for a step of the picture as it is now. Ignored while suppressed or while another is being written.
    void record(const Picture& picture, const char* name);
    /// The same, 0.3 s from now, so that an opened picture is on screen first.
    void recordSoon(const Picture& picture, const char* name);
    /// What recordSoon() asked for is recorded now, if it has not been.
    void recordPending();
    /// Blocks until no thread reads the pixels.
    void waitForWriter();
    /// One step back or on. @return the number to restore; nothing at the end, where a beep is due
    std::optional<std::int32_t> stepBack();
    std::optional<std::int32_t> stepOn();
    /// Puts a step's pixels into the picture; @p resize is called first when the step has another size, and makes the
    /// picture that large. A step that cannot be read changes nothing.
    void restore(std::int32_t number, Picture& picture, const std::function<void(int width, int height)>& resize);
    /// After a step back or on: a crash shall bring back what was on screen.
    void notePosition(const Picture& picture);
    /// The steps of a program that crashed become these. @return false when they are gone
    bool adopt(const RecoverableWork& work);
    /// The program quits: the folder goes.
    void close();

private:
    /// Handed to the writer when it starts: all it may look at while the main thread goes on.
    struct Request {
        std::int32_t number = -1;
        std::shared_ptr<const BitmapRep> bitmap;
        std::string imagePath;
        std::chrono::steady_clock::time_point start;
    };
    class Writing;
    void takeSnapshotThreadLeopard(Request request);
    void takeSnapshotThread(Request request);
    void sayWritten();

    std::int32_t mUndoIndex = -1, mUndoRedoIndex = -1;
    std::atomic<bool> mUndoThreadRunning{false};
    bool mDontTakeSnapshot = false;
    std::vector<Step> mSteps;
    std::unique_ptr<SnapshotEncoder> mSnapshotEncoder; ///< keeps the last snapshot's strips
    std::thread mSnapshotWorker;
    QTimer mFirstSnapshotTimer;
    std::function<void()> mFirstSnapshot;
    std::function<void(bool)> mBusyChanged;
    MainThreadWake mWritten; ///< the writer's last word
};

} // namespace zp
