// SPDX-License-Identifier: GPL-3.0-or-later
/// The old bytes of a file that is written in place, kept where the person's own files are until the new ones are safe.
#pragma once
#include <cstddef>
#include <string>

namespace zp
{

/// Any thread. A program that is killed leaves its copy behind; restoreKeptAside() brings it back.
class KeptAside
{
public:
    /// Copies the file's bytes to the disk. @return 0 or the error's number
    int keep(const std::string& target);
    /// The target holds its old bytes again, as far as that is possible. @return 0 or the error's number
    int bringBack();
    /// They are not needed any more.
    void discard();
    const std::string& path() const { return mFile; }

    KeptAside() = default;
    ~KeptAside(); ///< keeps the copy, unless it was discarded
    KeptAside(const KeptAside&) = delete;
    KeptAside& operator=(const KeptAside&) = delete;

private:
    std::string mFile;
    int mFd = -1; ///< locked while this process lives
};

/// Writes @p count bytes over a file that stays the file it is: its links, attributes and owner. Without room for them
/// nothing is written; when it fails later, the old bytes are brought back. @return 0 or the error's number
int overwriteInPlace(const std::string& path, const char* bytes, std::size_t count);
/// All of them. @return 0 or the error's number
int writeAll(int fd, const char* bytes, std::size_t count);

} // namespace zp
