// SPDX-License-Identifier: GPL-3.0-or-later
/// Writing a file so that no failure leaves half of it and nothing of the old one is lost: a new file beside the old
/// one, then a change of names; where that would lose links, attributes or an owner, or is not allowed, in place.
#include "base/Folders.h"
#include "base/FoldersLinks.h"
#include "base/KeptAside.h"
#include "base/Translation.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <mutex>
#include <set>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace zp
{

namespace
{

std::string sentenceFor(int code)
{
    switch (code) {
    case ENOSPC:
        return translated("Folders", "The disk is full.");
    case EDQUOT:
        return translated("Folders", "The disk quota is used up.");
    case EFBIG:
        return translated("Folders", "The file would be larger than is allowed here.");
    case EACCES:
    case EPERM:
        return translated("Folders", "There is no permission to write here.");
    case EROFS:
        return translated("Folders", "The disk cannot be written to.");
    case ENOENT:
        return translated("Folders", "The folder does not exist.");
    case ENOTDIR:
        return translated("Folders", "A part of the path is not a folder.");
    case EISDIR:
        return translated("Folders", "There is a folder of that name.");
    case ENAMETOOLONG:
        return translated("Folders", "The name is too long.");
    case ELOOP:
        return translated("Folders", "The link leads round in a circle.");
    case EIO:
        return translated("Folders", "The disk reported an error.");
    case EMFILE:
    case ENFILE:
        return translated("Folders", "Too many files are open.");
    default:
        break;
    }
    char room[256];
    return std::string(::strerror_r(code, room, sizeof room)) + ".";
}

/// Devices and pipes cannot be replaced by a file; they are written to.
int writeToDevice(const std::string& path, const char* bytes, std::size_t count)
{
    const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return errno;
    const int failure = writeAll(fd, bytes, count);
    return ::close(fd) != 0 && failure == 0 ? errno : failure;
}

// ---- files beside the target ---------------------------------------------------------------------------------------

constexpr const char *kPartPrefix = ".zelpane-", *kPartSuffix = ".part";
/// After which what a program on another machine left in a shared folder is taken for forgotten.
constexpr std::int64_t kForgotten = std::int64_t{7} * 24 * 3600;

/// This machine's name as far as it can stand in a file name; several may share a folder.
const std::string& machineName()
{
    static const auto& name = *new const std::string([] {
        std::array<char, 65> room{};
        ::gethostname(room.data(), room.size() - 1);
        std::string plain(room.data());
        std::erase_if(plain, [](unsigned char c) { return !std::isalnum(c); });
        constexpr std::size_t kLongest = 32;
        return plain.substr(0, kLongest);
    }());
    return name;
}

/// A name for a file of this program's in @p folder that is not the target's, which may be as long as names can be.
std::string partName(const std::string& folder)
{
    static std::atomic<unsigned> counter{0};
    const std::string own =
        kPartPrefix + machineName() + "-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) + kPartSuffix;
    return folder.empty() ? own : pathByAppending(folder, own);
}

int createBeside(const std::string& folder, mode_t mode, std::string& name)
{
    for (int attempt = 0; attempt < 100; ++attempt) {
        name = partName(folder);
        const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    return -1;
}

/// Whether nobody writes that part any more.
bool isLeftOver(const std::string& folder, const std::string& name)
{
    if (!name.starts_with(kPartPrefix) || !name.ends_with(kPartSuffix)) return false;
    const std::string own = kPartPrefix + machineName() + "-";
    pid_t process = 0;
    if (name.starts_with(own) &&
        std::from_chars(name.data() + own.size(), name.data() + name.size(), process).ec == std::errc())
        return processIsGone(process);
    const std::optional<FileAttributes> part = fileAttributes(pathByAppending(folder, name));
    return part && std::int64_t(::time(nullptr)) - part->modified > kForgotten;
}

/// Looks through a folder once in a process's life.
void removeLeftoversOnce(const std::string& folder)
{
    // Both, and the machine's name, outlive every other object: what is written while the program ends, the settings
    // for one, comes here as well.
    static auto& lock = *new std::mutex;
    static auto& seen = *new std::set<std::string>;
    {
        const std::lock_guard guard(lock);
        if (!seen.insert(folder).second) return;
    }
    removeLeftovers(folder);
}

// ---- what a change of names would lose -----------------------------------------------------------------------------

std::vector<std::string> namesOfAttributes(int fd)
{
    const ssize_t length = ::flistxattr(fd, nullptr, 0);
    if (length <= 0) return {};
    std::string list(std::size_t(length), '\0');
    const ssize_t got = ::flistxattr(fd, list.data(), list.size());
    std::vector<std::string> names;
    for (std::size_t at = 0; got > 0 && at < std::size_t(got); at += names.back().size() + 1)
        names.emplace_back(list.c_str() + at);
    return names;
}

std::optional<std::string> attribute(int fd, const std::string& name)
{
    const ssize_t length = ::fgetxattr(fd, name.c_str(), nullptr, 0);
    if (length < 0) return std::nullopt;
    std::string value(std::size_t(length), '\0');
    const ssize_t got = ::fgetxattr(fd, name.c_str(), value.data(), value.size());
    if (got < 0) return std::nullopt;
    value.resize(std::size_t(got));
    return value;
}

/// Extended attributes, access control lists among them. @return false when one cannot be carried over
bool carryAttributes(int from, int to)
{
    const std::vector<std::string> old = namesOfAttributes(from);
    for (const std::string& name : old) {
        const std::optional<std::string> value = attribute(from, name);
        if (!value) return false;
        if (attribute(to, name) == value) continue;
        if (::fsetxattr(to, name.c_str(), value->data(), value->size(), 0) != 0) return false;
    }
    // What the folder gives to new files and the old one did not have.
    for (const std::string& name : namesOfAttributes(to))
        if (std::ranges::find(old, name) == old.end()) ::fremovexattr(to, name.c_str());
    return true;
}

/// @return false when the new file would be poorer than the old one
bool carryOver(const std::string& path, const struct stat& old, int fd)
{
    if ((old.st_uid != ::geteuid() || old.st_gid != ::getegid()) && ::fchown(fd, old.st_uid, old.st_gid) != 0)
        return false;
    if (::fchmod(fd, old.st_mode & 07777u) != 0) return false;
    const int from = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (from < 0) return false;
    const bool carried = carryAttributes(from, fd);
    ::close(from);
    return carried;
}

/// The change of names itself is on the disk.
void syncFolder(const std::string& folder)
{
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd); // some file systems know no such thing, and none needs it for the file to be whole
    ::close(fd);
}

bool isForbidden(int failure) { return failure == EACCES || failure == EPERM || failure == EROFS; }

int replaceFile(const std::string& path, const char* bytes, std::size_t count)
{
    struct stat old;
    const bool replaces = ::stat(path.c_str(), &old) == 0;
    if (replaces && S_ISDIR(old.st_mode)) return EISDIR;
    if (replaces && !S_ISREG(old.st_mode)) return writeToDevice(path, bytes, count);
    // A change of names asks only for the folder's permission; a write-protected file shall stay as it is all the same.
    if (replaces && ::access(path.c_str(), W_OK) != 0) return errno;
    if (path.empty() || path.back() == '/') return EISDIR;

    const std::string folder = folderOfPath(path);
    removeLeftoversOnce(folder);
    if (replaces && old.st_nlink > 1) return overwriteInPlace(path, bytes, count);
    std::string name;
    const int fd = createBeside(folder, 0666, name);
    if (fd < 0) {
        const int failure = errno;
        return replaces && isForbidden(failure) ? overwriteInPlace(path, bytes, count) : failure;
    }
    bool inPlace = replaces && !carryOver(path, old, fd);
    int failure = inPlace ? 0 : writeAll(fd, bytes, count);
    if (!inPlace && failure == 0 && ::fsync(fd) != 0 && errno != EINVAL && errno != EROFS) failure = errno;
    if (::close(fd) != 0 && failure == 0) failure = errno;
    if (!inPlace && failure == 0 && ::rename(name.c_str(), path.c_str()) != 0) {
        failure = errno;
        // In a folder where everybody may write, only the owner may take a name over.
        inPlace = replaces && isForbidden(failure);
    }
    if (inPlace || failure != 0) ::unlink(name.c_str());
    if (inPlace) return overwriteInPlace(path, bytes, count);
    if (failure == 0) syncFolder(folder);
    return failure;
}

/// A file-size limit is an error to report, not a reason to be killed.
void surviveSizeLimits()
{
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction now = {};
        if (::sigaction(SIGXFSZ, nullptr, &now) == 0 && now.sa_handler == SIG_DFL) ::signal(SIGXFSZ, SIG_IGN);
    });
}

} // namespace

bool writeFileSafely(const std::string& path, const void* bytes, std::size_t count, std::string* error)
{
    surviveSizeLimits();
    std::string target = path;
    int failure = finalTarget(target);
    if (failure == 0) failure = replaceFile(target, static_cast<const char*>(bytes), count);
    if (error) *error = failure == 0 ? std::string() : sentenceFor(failure);
    return failure == 0;
}

bool replaceLink(const std::string& path, const std::string& target)
{
    const std::string beside = partName(folderOfPath(path));
    if (::symlink(target.c_str(), beside.c_str()) != 0) return false;
    if (::rename(beside.c_str(), path.c_str()) == 0) return true;
    ::unlink(beside.c_str());
    return false;
}

bool processIsGone(int process) { return process > 0 && ::kill(process, 0) != 0 && errno == ESRCH; }

void removeLeftovers(const std::string& folder)
{
    for (const std::string& name : contentsOfFolder(folder.empty() ? "." : folder))
        if (isLeftOver(folder, name)) ::unlink(pathByAppending(folder, name).c_str());
}

} // namespace zp
