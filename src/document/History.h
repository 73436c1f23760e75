// SPDX-License-Identifier: GPL-3.0-or-later
/// The steps that can be undone: their numbers, their names, and the files they are kept in.
#pragma once
#include "desktop/MainThreadWake.h"
#include "document/Picture.h"
#include "undo/SnapshotStore.h"
#include "undo/SnapshotWriter.h"
#include <QCoreApplication>
#include <QString>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zp
{

/// Steps are numbered from 0; -1 is none. Each is a pair of files and, beside it, its very pixels as far as there is
/// room; a thread of its own writes them while the picture is changed again. Whoever changes pixels announces it.
/// Main thread, except where noted.
class History
{
    Q_DECLARE_TR_FUNCTIONS(History)

public:
    struct Step {
        std::int32_t number = 0;
        std::string name;      ///< the command's, untranslated
        std::int64_t time = 0; ///< milliseconds since 1970
    };
    enum class Kept { BeingWritten, Exact, Approximately, Nowhere };
    /// The steps of a picture that is not the current one.
    struct Aside {
        std::optional<int> folder; ///< the store's number; none when they were never on the disk
        std::int32_t newest = -1, position = -1, saved = 0;
        std::vector<Step> steps;
        std::shared_ptr<ExactSteps> exact;
    };
    /// Makes the picture one of that size; its pixels need not be set.
    using Resize = std::function<void(std::shared_ptr<BitmapRep> rep)>;

    /// @param changed  main thread: a step is being written or no longer, or the list of steps is another
    /// @param trouble  main thread: what the person has to know about the keeping of steps, said once until it is over
    History(std::function<void()> changed, std::function<void(const QString&)> trouble);
    ~History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    std::int32_t newest() const { return mUndoIndex; }
    std::int32_t position() const { return mUndoRedoIndex; }
    bool canUndo() const { return mUndoRedoIndex > 0; }
    bool canRedo() const { return mUndoRedoIndex < mUndoIndex; }
    /// The mouse is refused. Any thread.
    bool isWriting() const { return mUndoThreadRunning.load(std::memory_order_acquire); }
    /// Files of steps are still to be written.
    bool isBusy() const { return !mWriter.isIdle(); }
    bool isSuppressed() const { return mDontTakeSnapshot; }
    /// An opened picture waits for its first step.
    bool firstStepPending() const { return mFirstSnapshotTimer.isActive(); }
    /// Oldest first, as far as they are known.
    const std::vector<Step>& steps() const { return mSteps; }
    /// How a step can be brought back. Cost: looks at the disk.
    Kept kept(std::int32_t number) const;
    /// The step that was last in a file; the one as opened at first.
    std::int32_t saved() const { return mSaved; }
    /// What a step holds, the very pixels where they can be had; null when it cannot be read. Looks at files: about 0.1
    /// s at 24 megapixels. No step may be on its way to the disk. @throws std::bad_alloc
    std::shared_ptr<BitmapRep> pixelsOf(std::int32_t number) const;
    /// Pixels were changed since the last step.
    bool owesStep() const { return !mBase || !mTouchedTiles.isEmpty(); }
    /// The picture is not the one that was opened or saved.
    bool isModified() const { return mLoose || std::max(mUndoRedoIndex, 0) != mSaved; }

    // ---- transitions ---------------------------------------------------------------------------------------------

    /// Another picture: no steps, an empty folder.
    void reset();
    /// Requests are ignored from now on, or no longer.
    void suppress(bool on) { mDontTakeSnapshot = on; }
    /// Pixels of @p box are about to be written. Any thread; a thread other than the main one has to say so with
    /// noteChanged() in the end.
    void beforeWrite(PixelBox box) { mWriter.beforeWrite(box); }
    void noteChanged(PixelBox box);
    /// The picture is another bitmap.
    void pictureReplaced(int width, int height);
    /// Asks for a step of the picture as it is now. Ignored while suppressed, and when there is none.
    void record(const Picture& picture, const char* name);
    /// The same also while suppressed, and only if pixels were changed since the last step.
    void recordOwed(const Picture& picture, const char* name);
    /// The same, 0.3 s from now, so that an opened picture is on screen first.
    void recordSoon(const Picture& picture, const char* name);
    /// What recordSoon() asked for is recorded now, if it has not been.
    void recordPending();
    /// Blocks until all steps are written.
    void waitForWriter();
    /// One step back, or the nearest before it that can be restored, is in the picture's pixels. @return false at the
    /// end, where a beep is due, and where what is on screen could not be kept
    bool undo(Picture& picture, const Resize& resize);
    /// One step on, or the nearest behind it.
    bool redo(Picture& picture, const Resize& resize);
    /// To step @p number, to it alone.
    bool goTo(std::int32_t number, Picture& picture, const Resize& resize);
    /// What the pair of a step holds is in the picture's pixels. A half that is not there is left out; a damaged one
    /// keeps the other from being used, too.
    void restorePair(std::int32_t number, Picture& picture, const Resize& resize);
    /// The pixels are those of the last step again. @return false when that could not be done
    bool takeBack(Picture& picture, const Resize& resize);
    /// The picture, as it is, is safe in a file.
    void noteSaved(const Picture& picture);
    /// A crash shall bring back what is on screen now.
    void notePosition(const Picture& picture);
    /// The steps make room for those of another picture. The picture's last step must hold what is on screen.
    Aside putAside();
    /// Those of @p aside are the current ones again; there must be none. @return false when they are gone
    bool bringBack(Aside aside);
    /// As much of @p aside's as can be known of steps that another run of the program wrote.
    static Aside readAside(int folder, const RecoverableWork& work);
    static void drop(const Aside& aside);
    /// The next start offers them. @return false when they stay, and go with the program
    static bool leaveBehind(const Aside& aside);
    static bool isThere(const Aside& aside);
    /// The program quits: the folder goes.
    void close();

private:
    StepJob makeJob(const Picture& picture, std::int32_t number, const StepNote& note);
    /// To the writer, which knows these pixels from here on.
    void handOver(const Picture& picture, std::int32_t number, const StepNote& note);
    void takeResults();
    bool keepsPresent(const Picture& picture);
    bool restore(std::int32_t number, Picture& picture, const Resize& resize);
    std::shared_ptr<BitmapRep> pixelsOfExact(std::int32_t number) const;
    std::shared_ptr<BitmapRep> pixelsOfPair(std::int32_t number) const;
    bool restoreExact(std::int32_t number, Picture& picture, const Resize& resize);
    bool restoreWholePair(std::int32_t number, Picture& picture, const Resize& resize);
    void put(std::shared_ptr<BitmapRep> pixels, Picture& picture, const Resize& resize);
    void lostTrack();
    void say(const QString& trouble);

    std::int32_t mUndoIndex = -1, mUndoRedoIndex = -1;
    std::atomic<bool> mUndoThreadRunning{false};
    bool mDontTakeSnapshot = false;
    std::vector<Step> mSteps;
    std::shared_ptr<ExactSteps> mExact = std::make_shared<ExactSteps>();
    std::optional<std::int32_t> mBase; ///< the step that the pixels are, but for the tiles in mTouchedTiles
    static constexpr std::int32_t kNeverSaved = -1;
    std::int32_t mSaved = 0; ///< the step that is in a file; an opened picture's is its first
    bool mLoose = false;     ///< changed since that step or the last
    TileSet mTouchedTiles;
    TileSet mStale;            ///< tiles that are not as the writer saw them last
    bool mWriterKnows = false; ///< the writer remembers all other tiles
    QTimer mFirstSnapshotTimer;
    std::function<void()> mFirstSnapshot;
    std::function<void()> mChangedSignal;
    std::function<void(const QString&)> mTrouble;
    QString mSaid; ///< the trouble that was told and is not over
    MainThreadWake mWritten;
    SnapshotWriter mWriter; ///< after all that it calls
};

} // namespace zp
