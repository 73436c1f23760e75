// SPDX-License-Identifier: GPL-3.0-or-later
/// POSIX calls relative to open folders.
#include "undo/FolderFiles.h"
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp::folder
{

namespace
{

constexpr int kOpenFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
/// Deeper nesting is nobody's honest undo folder; it stays.
constexpr int kMaxDepth = 64;

/// Calls f(name) for every entry.
template <class F>
void forEachName(int handle, F&& f)
{
    // The list is read through a handle of its own: closedir() takes it with it.
    const int list = openat(handle, ".", kOpenFolder);
    DIR* const entries = list < 0 ? nullptr : fdopendir(list);
    if (!entries) {
        if (list >= 0) ::close(list);
        return;
    }
    while (const dirent* entry = readdir(entries))
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0) f(entry->d_name);
    closedir(entries);
}

void removeContentsTo(int handle, int depth, const std::function<bool(const std::string&)>& kept)
{
    forEachName(handle, [&](const char* name) {
        if (kept && kept(name)) return;
        if (unlinkat(handle, name, 0) == 0 || depth >= kMaxDepth) return;
        const int inner = openat(handle, name, kOpenFolder);
        if (inner < 0) return;
        removeContentsTo(inner, depth + 1, {});
        ::close(inner);
        unlinkat(handle, name, AT_REMOVEDIR);
    });
}

} // namespace

bool isStillThere(int parent, const std::string& name, int handle)
{
    struct stat open {
    }, named{};
    return fstat(handle, &open) == 0 && open.st_nlink > 0 &&
           fstatat(parent, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

int openExisting(int parent, const std::string& name)
{
    const int handle = openat(parent, name.c_str(), kOpenFolder);
    if (handle < 0) return -1;
    struct stat status {
    };
    // The lock is taken before the name is looked at again: a program that quits may have removed the folder meanwhile.
    const bool ours = fstat(handle, &status) == 0 && status.st_uid == geteuid() &&
                      flock(handle, LOCK_EX | LOCK_NB) == 0 && isStillThere(parent, name, handle);
    if (ours) return handle;
    ::close(handle);
    return -1;
}

int openPrivate(int parent, const std::string& name)
{
    // Three rounds, since the name may change hands between two calls.
    for (int round = 0; round < 3; ++round) {
        if (mkdirat(parent, name.c_str(), 0700) != 0) {
            if (errno != EEXIST) return -1;
            struct stat status {
            };
            if (fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
            if (!S_ISDIR(status.st_mode)) {
                if (unlinkat(parent, name.c_str(), 0) != 0) return -1;
                continue;
            }
        }
        const int handle = openExisting(parent, name);
        if (handle < 0) continue;
        if (fchmod(handle, 0700) == 0) return handle;
        ::close(handle);
        return -1;
    }
    return -1;
}

int openInner(int parent, const std::string& name)
{
    if (mkdirat(parent, name.c_str(), 0700) != 0 && errno != EEXIST) return -1;
    return openExistingInner(parent, name);
}

int openExistingInner(int parent, const std::string& name) { return openat(parent, name.c_str(), kOpenFolder); }

std::vector<std::string> names(int handle)
{
    std::vector<std::string> all;
    forEachName(handle, [&all](const char* name) { all.emplace_back(name); });
    return all;
}

void removeContents(int handle, const std::function<bool(const std::string&)>& kept)
{
    removeContentsTo(handle, 0, kept);
}

void removeWithContents(int parent, const std::string& name)
{
    if (unlinkat(parent, name.c_str(), 0) == 0) return;
    const int handle = openat(parent, name.c_str(), kOpenFolder);
    if (handle < 0) return;
    removeContents(handle);
    ::close(handle);
    unlinkat(parent, name.c_str(), AT_REMOVEDIR);
}

bool writeFile(int handle, const std::string& name, std::span<const std::uint8_t> bytes, std::string& error)
{
    const auto failed = [&](int file) {
        const int why = errno;
        error = std::strerror(why);
        if (file >= 0) ::close(file);
        unlinkat(handle, name.c_str(), 0);
        errno = why;
        return false;
    };
    // Whatever stands in the way goes first: then the file is new, and nobody else's.
    unlinkat(handle, name.c_str(), 0);
    const int file = openat(handle, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0) return failed(-1);
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return failed(file);
        bytes = bytes.subspan(std::size_t(written));
    }
    if (::close(file) != 0) return failed(-1);
    return true;
}

bool replaceFile(int handle, const std::string& name, std::span<const std::uint8_t> bytes, std::string& error)
{
    const std::string beside = (name.starts_with('.') ? name : "." + name) + ".part";
    if (!writeFile(handle, beside, bytes, error)) return false;
    if (renameat(handle, beside.c_str(), handle, name.c_str()) == 0) return true;
    error = std::strerror(errno);
    unlinkat(handle, beside.c_str(), 0);
    return false;
}

std::optional<std::vector<std::uint8_t>> readFile(int handle, const std::string& name, std::uint64_t limit)
{
    const int file = openat(handle, name.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return std::nullopt;
    struct stat status {
    };
    std::optional<std::vector<std::uint8_t>> result;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && std::uint64_t(status.st_size) <= limit) {
        std::vector<std::uint8_t> bytes(std::size_t(status.st_size));
        std::size_t at = 0;
        while (at < bytes.size()) {
            const ssize_t got = ::read(file, bytes.data() + at, bytes.size() - at);
            if (got < 0 && errno == EINTR) continue;
            if (got <= 0) break;
            at += std::size_t(got);
        }
        if (at == bytes.size()) result = std::move(bytes);
    }
    ::close(file);
    return result;
}

bool isFile(int handle, const std::string& name)
{
    struct stat status {
    };
    return fstatat(handle, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode);
}

} // namespace zp::folder
