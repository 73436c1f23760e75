// SPDX-License-Identifier: GPL-3.0-or-later
/// The folder of the numbered snapshots: private to the user, never followed through a link, whole pairs only; and what
/// is left of it after a crash.
///
/// The folder is "Zelpane Undo Support" in the folder of temporary files. Where that name is taken by another user, by
/// what cannot be removed, or by a running program of the same user, a name beside it serves, with the user's number.
/// A running program holds a lock on its folder that the system lifts when the program ends in any way; a folder
/// without a lock that still has its recovery record was left by a program that did not quit.
#pragma once
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zp
{

/// What a program that ended without quitting was working on.
struct RecoverableWork {
    std::string imagePath;     ///< the picture's file, empty for one that was never saved
    int width = 0, height = 0; ///< of the snapshot
    std::int32_t number = -1;  ///< the snapshot that was on screen, or the last whole one before it
    std::int32_t newest = -1;  ///< the end of what can be redone
};

/// All calls may come from any thread; each is whole. Nothing here throws but std::bad_alloc.
class SnapshotStore
{
public:
    enum class Half { Colour, Alpha };

    /// The program's one store: the folder is the process's, whatever number of canvases there is.
    static SnapshotStore& shared();

    SnapshotStore();
    ~SnapshotStore(); ///< lets go of the folder and leaves it as it is
    SnapshotStore(const SnapshotStore&) = delete;
    SnapshotStore& operator=(const SnapshotStore&) = delete;

    /// Makes the folder, or empties it. What a crashed program left in it is moved aside first (recoverableWork()).
    /// @return false when there can be no folder: snapshots will fail then, and nothing else
    bool reset();
    /// Removes the folder with its contents: the program quits.
    void remove();
    /// The folder in use; empty before the first use and when there can be none.
    std::string folder();

    /// Prepares for writing snapshot @p number: removes an older pair of that number, so that no failure can leave it
    /// in the new one's place, and the redo tail, the 99 numbers above. A folder that vanished is made again.
    /// @return false when there is no folder
    bool begin(std::int32_t number);
    /// Writes one half beside its place. A failure is remembered for commit() and said in @p error.
    bool stage(std::int32_t number, Half half, std::span<const std::uint8_t> bytes, std::string& error);
    /// Both halves take their places, the colour file last: where it stands, the pair is whole. After a failure of
    /// either half nothing of the number remains. @return whether the pair stands
    bool commit(std::int32_t number);
    /// One file of a pair; nothing when it is missing or cannot be read. Never through a link.
    std::optional<std::vector<std::uint8_t>> read(std::int32_t number, Half half);

    /// Keeps beside the snapshots what is being worked on, for the start after a crash. A failure changes nothing.
    void record(const RecoverableWork& work);
    /// What a crashed program left, if anything that can be restored. Makes the folder when there was none yet, so it
    /// may be asked before or after the first reset().
    std::optional<RecoverableWork> recoverableWork();
    /// The crashed program's snapshots become this one's. @return false when they are gone: then nothing has changed
    bool adoptRecoverable();
    /// Throws them away.
    void discardRecoverable();

    /// "C_3.jpg" or "C_3.rle".
    static std::string fileName(std::int32_t number, Half half);

private:
    bool open();
    bool reopenIfVanished();
    void close();
    bool wasLeftByCrash() const;

    std::mutex mMutex;
    std::string mTemporary, mName;  ///< the folder of temporary files, and the folder's name in it
    int mParent = -1, mFolder = -1; ///< open folders; the lock is on mFolder
    bool mColourStaged = false, mAlphaStaged = false;
};

/// The launch sequence asks this before it empties the undo folder, or after: what a program that ended without
/// quitting was working on, if its last snapshot can be restored. Costs a few file operations when there is nothing.
inline std::optional<RecoverableWork> findRecoverableWork() { return SnapshotStore::shared().recoverableWork(); }
/// When the offer is declined.
inline void discardRecoverableWork() { SnapshotStore::shared().discardRecoverable(); }

} // namespace zp
