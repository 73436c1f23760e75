// SPDX-License-Identifier: GPL-3.0-or-later
/// What a test and the program that is attacked share: one page of memory, a file that both map.
#pragma once
#include <atomic>
#include <cstdint>
#include <iterator>

namespace zp::faults
{

/// The calls that can be made to fail. They fail as they do on a full disk, a revoked right, a machine without memory.
enum class Call : std::uint32_t {
    None,
    Write,      ///< of an ordinary file: nothing is written (ENOSPC)
    ShortWrite, ///< half of it is written, and the next attempt fails
    Sync,       ///< fsync, fdatasync (EIO)
    Rename,     ///< rename, renameat (EIO)
    Open,       ///< below the folder under attack (EMFILE)
    Close,      ///< of an ordinary file; it is closed all the same (EIO)
    MakeFolder, ///< (ENOSPC)
    Map,        ///< mmap of `least` bytes or more
    Allocate,   ///< malloc and its kin of `least` bytes or more
    Thread,     ///< (EAGAIN)
};
inline constexpr Call kCalls[] = {Call::Write, Call::ShortWrite, Call::Sync, Call::Rename,   Call::Open,
                                  Call::Close, Call::MakeFolder, Call::Map,  Call::Allocate, Call::Thread};
inline constexpr const char* kCallNames[] = {"none",  "write", "short write", "sync",   "rename", "open",
                                             "close", "mkdir", "mmap",        "malloc", "thread"};

struct Control {
    std::atomic<Call> call{Call::None};
    std::atomic<std::int64_t> countdown{0}; ///< the call that takes it to 0 fails
    std::atomic<std::uint64_t> least{0};
    std::atomic<std::uint32_t> attached{0};                 ///< programs that have mapped the page
    std::atomic<std::int64_t> met[std::size(kCalls) + 1]{}; ///< by kind: how many calls there were
};

/// The file of the control page, and the folder below which opening fails.
inline constexpr const char* kControlVariable = "ZP_FAULTS_CONTROL";
inline constexpr const char* kFolderVariable = "ZP_FAULTS_FOLDER";

} // namespace zp::faults
