// SPDX-License-Identifier: GPL-3.0-or-later
/// Writing a file so that no failure leaves half of it: a new file beside the old one, then a change of names.
#include "base/Folders.h"
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{

namespace
{

constexpr int kMostLinks = 40; // what the kernel allows in one look-up

std::string sentenceFor(int code)
{
    switch (code) {
    case ENOSPC:
        return "The disk is full.";
    case EDQUOT:
        return "The disk quota is used up.";
    case EFBIG:
        return "The file would be larger than is allowed here.";
    case EACCES:
    case EPERM:
        return "There is no permission to write here.";
    case EROFS:
        return "The disk cannot be written to.";
    case ENOENT:
        return "The folder does not exist.";
    case ENOTDIR:
        return "A part of the path is not a folder.";
    case EISDIR:
        return "There is a folder of that name.";
    case ENAMETOOLONG:
        return "The name is too long.";
    case ELOOP:
        return "The link leads round in a circle.";
    case EIO:
        return "The disk reported an error.";
    case EMFILE:
    case ENFILE:
        return "Too many files are open.";
    default:
        break;
    }
    char room[256];
    return std::string(::strerror_r(code, room, sizeof room)) + ".";
}

/// Follows the links of the last component; the file at the end need not exist. @return 0 or the error's number
int finalTarget(std::string& path)
{
    for (int links = 0; links <= kMostLinks; ++links) {
        std::string next(4096, '\0');
        const ssize_t length = ::readlink(path.c_str(), next.data(), next.size());
        if (length < 0) return 0; // no link, or nothing there: the writing itself will tell
        if (std::size_t(length) == next.size()) return ENAMETOOLONG;
        next.resize(std::size_t(length));
        path = next.starts_with('/') ? next : pathByAppending(folderOfPath(path), next);
    }
    return ELOOP;
}

int writeAll(int fd, const char* bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t n = ::write(fd, bytes, count < (std::size_t{1} << 30) ? count : (std::size_t{1} << 30));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return errno;
        bytes += n;
        count -= std::size_t(n);
    }
    return 0;
}

/// Devices and pipes cannot be replaced by a file; they are written to.
int writeInPlace(const std::string& path, const char* bytes, std::size_t count)
{
    const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return errno;
    const int failure = writeAll(fd, bytes, count);
    return ::close(fd) != 0 && failure == 0 ? errno : failure;
}

int createBeside(const std::string& folder, mode_t mode, std::string& name)
{
    // Not made from the target's name, which may already be as long as names can be.
    static std::atomic<unsigned> counter{0};
    for (int attempt = 0; attempt < 100; ++attempt) {
        const std::string own = ".zelpane-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".part";
        name = folder.empty() ? own : pathByAppending(folder, own);
        const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    return -1;
}

int replaceFile(const std::string& path, const char* bytes, std::size_t count)
{
    struct stat old;
    const bool replaces = ::stat(path.c_str(), &old) == 0;
    if (replaces && S_ISDIR(old.st_mode)) return EISDIR;
    if (replaces && !S_ISREG(old.st_mode)) return writeInPlace(path, bytes, count);
    // A change of names asks only for the folder's permission; a write-protected file shall stay as it is all the same.
    if (replaces && ::access(path.c_str(), W_OK) != 0) return errno;
    if (path.empty() || path.back() == '/') return EISDIR;

    std::string name;
    const int fd = createBeside(folderOfPath(path), 0666, name);
    if (fd < 0) return errno;
    int failure = 0;
    if (replaces) {
        if (old.st_uid != ::geteuid() || old.st_gid != ::getegid()) {
            // Only the superuser can give the owner back; without that the file becomes the writer's.
            if (::fchown(fd, old.st_uid, old.st_gid) != 0 && ::fchown(fd, uid_t(-1), old.st_gid) != 0) errno = 0;
        }
        if (::fchmod(fd, old.st_mode & 07777u) != 0) failure = errno;
    }
    if (failure == 0) failure = writeAll(fd, bytes, count);
    if (failure == 0 && ::fsync(fd) != 0 && errno != EINVAL && errno != EROFS) failure = errno;
    if (::close(fd) != 0 && failure == 0) failure = errno;
    if (failure == 0 && ::rename(name.c_str(), path.c_str()) != 0) failure = errno;
    if (failure != 0) ::unlink(name.c_str());
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

std::optional<std::string> resolveAlias(const std::string& path)
{
    std::string target = path;
    char probe[1];
    if (::readlink(path.c_str(), probe, sizeof probe) < 0) return std::nullopt;
    if (finalTarget(target) != 0 || !fileExists(target)) return std::nullopt;
    // The path people gave the link is kept; only detours in it are taken out, by asking the file system.
    if (target.find("/../") != std::string::npos || target.find("/./") != std::string::npos ||
        target.ends_with("/..")) {
        if (char* real = ::realpath(target.c_str(), nullptr)) {
            target = real;
            ::free(real);
        }
    }
    return target;
}

bool makeAlias(const std::string& target, const std::string& folder, const std::string& name)
{
    if (target.empty() || name.empty() || name.find('/') != std::string::npos || name == "." || name == "..")
        return false;
    std::string absolute = target;
    if (!absolute.starts_with('/')) {
        char* here = ::getcwd(nullptr, 0);
        if (!here) return false;
        absolute = pathByAppending(here, target);
        ::free(here);
    }
    const std::string extension = pathExtension(name), dotted = extension.empty() ? "" : "." + extension;
    const std::string stem = pathWithoutExtension(name);
    constexpr std::size_t kLongestName = 255;
    for (int number = 1; number < 100000; ++number) {
        std::string tail = dotted;
        if (number > 1) tail.insert(0, std::to_string(number)).insert(0, 1, ' ');
        std::string first = stem;
        while (first.size() > 1 && first.size() + tail.size() > kLongestName) {
            // Whole characters only: the bytes that follow a first one go with it.
            while (first.size() > 1 && (static_cast<unsigned char>(first.back()) & 0xC0u) == 0x80u) first.pop_back();
            first.pop_back();
        }
        if (::symlink(absolute.c_str(), pathByAppending(folder, first + tail).c_str()) == 0) return true;
        if (errno != EEXIST) return false;
    }
    return false;
}

} // namespace zp
