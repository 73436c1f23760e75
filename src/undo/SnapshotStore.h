// SPDX-License-Identifier: GPL-3.0-or-later
/// The folder of the numbered steps: private to the user, never followed through a link, whole pairs only; and the
/// pictures in it that are not the current one.
///
/// The folder is "Zelpane Undo Support" in the folder of temporary files. Where that name is taken by another user, by
/// what cannot be removed, or by a running program of the same user, a name beside it serves, with the user's number;
/// where there is none at all, a folder in the user's runtime folder. A running program holds a lock on its folder that
/// the system lifts when the program ends in any way; what a folder without a lock holds was left by a program that did
/// not quit (LeftWork.h).
#pragma once
#include "undo/StepFiles.h"
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zp
{

/// All calls may come from any thread; each is whole. Nothing here throws but std::bad_alloc.
class SnapshotStore
{
public:
    using Half = StepHalf;
    enum class Place {
        None,      ///< no folder can be had
        Temporary, ///< among the temporary files
        Runtime,   ///< in the user's runtime folder instead
    };

    /// The program's one store: the folder is the process's, whatever number of documents there is.
    static SnapshotStore& shared();

    SnapshotStore();
    ~SnapshotStore(); ///< lets go of the folder and leaves it as it is
    SnapshotStore(const SnapshotStore&) = delete;
    SnapshotStore& operator=(const SnapshotStore&) = delete;

    /// Another program's left work is not moved out of the way: a name beside it serves (a program that plays a script
    /// and shall not touch what it was not asked about).
    void leaveLeftWorkAlone(bool leave) { mLeavesWorkAlone = leave; }
    /// Makes the folder, or empties it of the current picture's files. What a crashed program left in it is moved aside
    /// first. @return false when there can be no folder: steps are kept in memory then
    bool reset();
    /// Removes the folder with its contents: the program quits.
    void remove();
    /// The folder in use; empty before the first use and when there can be none.
    std::string folder();
    Place place();
    /// How often a folder was opened: another number says that the one before is gone, with all in it.
    std::uint64_t timesOpened();
    /// A handle of the folder for the caller, who closes it; -1 without one.
    int duplicateHandle();

    // ---- steps -----------------------------------------------------------------------------------------------------

    /// Prepares for writing step @p number: removes an older one of that number, so that no failure can leave it in the
    /// new one's place, and the redo tail, the 99 numbers above. A folder that vanished is made again.
    /// @return false when there is no folder
    bool begin(std::int32_t number);
    /// Writes one half beside its place. A failure is remembered for commit() and said in @p error.
    bool stage(std::int32_t number, Half half, std::span<const std::uint8_t> bytes, std::string& error);
    /// Both halves take their places with the step's note, the colour file last: where it stands, the pair is whole.
    /// After a failure of any of them nothing of the number remains. @return whether the pair stands
    bool commit(std::int32_t number, const StepNote& note = {});
    /// One half of a pair; nothing when it is missing, damaged or cannot be read. Never through a link.
    std::optional<std::vector<std::uint8_t>> read(std::int32_t number, Half half);
    /// Whether a file of that name is there, and damaged.
    bool damaged(std::int32_t number, Half half);
    /// Whether both halves are there. Cost: two looks at the disk.
    bool has(std::int32_t number);
    std::optional<StepNote> note(std::int32_t number);
    /// Keeps beside the steps what is being worked on, for the start after a crash. A failure changes nothing.
    void record(const RecoverableWork& work);

    // ---- pictures that are not the current one
    // -----------------------------------------------------------------------

    /// The current picture's files go into a folder inside, and none are left. @return its number; nothing when that
    /// cannot be done
    std::optional<int> putAside();
    /// Those of picture @p number become the current one's, whose own are removed. @return false when they are gone
    bool bringBack(int number);
    void dropAside(int number);
    /// Because the disk is full: the oldest goes. @return false when that was no reason of the last failure, or there
    /// is none
    bool dropOldestAside();
    /// Its record and a handle of its folder, which the caller closes; -1 when it is gone.
    int duplicateHandleOf(int number);
    /// A whole picture's folder that was left by another run becomes one of these: @p name in the folder @p parent.
    /// @return its number; nothing when it cannot be moved here
    std::optional<int> takeOver(int parent, const std::string& name);
    /// The way back: what cannot be shown now is left for the next start. @return false when it stays here
    bool leaveBehind(int number);

private:
    bool open();
    bool openIn(const std::string& parent);
    bool reopenIfVanished();
    void close();
    void empty();

    std::mutex mMutex;
    std::string mTemporary;         ///< the folder of temporary files when the folder was opened
    std::string mParentPath, mName; ///< where the folder is, and its name there
    Place mPlace = Place::None;
    bool mLeavesWorkAlone = false, mDiskIsFull = false;
    std::uint64_t mTimesOpened = 0;
    int mParent = -1, mFolder = -1; ///< open folders; the lock is on mFolder
    bool mColourStaged = false, mAlphaStaged = false;
    std::string mAlphaSeal; ///< of the alpha half that was staged
};

} // namespace zp
