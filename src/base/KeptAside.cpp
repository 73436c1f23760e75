// SPDX-License-Identifier: GPL-3.0-or-later
/// Copies of old bytes: a head that says which file they are of, the bytes, and a word that says they are complete.
#include "base/KeptAside.h"
#include "base/Folders.h"
#include "base/Log.h"
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace zp
{

namespace
{

constexpr char kHead[8] = {'Z', 'P', 'A', 'S', 'I', 'D', 'E', '1'};
constexpr char kComplete[8] = {'C', 'O', 'M', 'P', 'L', 'E', 'T', 'E'};
/// A file changed later than this after its copy was made was changed by somebody else.
constexpr std::int64_t kLongestWrite = std::int64_t{600} * 1'000'000'000;

std::string asideFolder() { return pathByAppending(applicationSupportFolder(), "Kept Aside"); }

int writeFailure(int failure, int fd)
{
    if (failure == 0 && ::fsync(fd) != 0 && errno != EINVAL && errno != EROFS) failure = errno;
    return failure;
}

/// The bytes in the file's place, nothing behind them.
int overwrite(const std::string& path, const char* bytes, std::size_t count)
{
    const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return errno;
    // Room for the new bytes before an old one is touched; not every file system can promise it.
    int failure = 0;
    if (count > 0 && ::fallocate(fd, FALLOC_FL_KEEP_SIZE, 0, off_t(count)) != 0 && errno != EOPNOTSUPP &&
        errno != ENOSYS && errno != EINVAL && errno != EINTR)
        failure = errno;
    if (failure == 0) failure = writeAll(fd, bytes, count);
    if (failure == 0 && ::ftruncate(fd, off_t(count)) != 0) failure = errno;
    failure = writeFailure(failure, fd);
    return ::close(fd) != 0 && failure == 0 ? errno : failure;
}

struct OldBytes {
    std::string target, bytes;
};

/// Nothing when the copy is not complete: then its file was not touched.
std::optional<OldBytes> readCopy(const std::string& path)
{
    const std::optional<std::string> all = readWholeFile(path);
    std::uint64_t length = 0;
    constexpr std::size_t kFixed = sizeof kHead + sizeof length;
    if (!all || all->size() < kFixed + sizeof kComplete || std::memcmp(all->data(), kHead, sizeof kHead) != 0)
        return std::nullopt;
    std::memcpy(&length, all->data() + sizeof kHead, sizeof length);
    const std::size_t end = all->size() - sizeof kComplete;
    if (length > end - kFixed || std::memcmp(all->data() + end, kComplete, sizeof kComplete) != 0) return std::nullopt;
    return OldBytes{all->substr(kFixed, length), all->substr(kFixed + length, end - kFixed - length)};
}

} // namespace

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

int KeptAside::keep(const std::string& target)
{
    const std::optional<std::string> old = readWholeFile(target);
    if (!old) return EACCES;
    if (!createFolder(asideFolder(), 0700)) return EACCES;
    static std::atomic<unsigned> counter{0};
    do { // a name may be taken by a process of that number, earlier or on another machine
        mFile = pathByAppending(asideFolder(), std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".old");
        mFd = ::open(mFile.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    } while (mFd < 0 && errno == EEXIST);
    if (mFd < 0) return errno;
    ::flock(mFd, LOCK_EX | LOCK_NB);
    std::string head(kHead, sizeof kHead);
    const std::uint64_t length = target.size();
    head.append(reinterpret_cast<const char*>(&length), sizeof length).append(target);
    int failure = writeAll(mFd, head.data(), head.size());
    if (failure == 0) failure = writeAll(mFd, old->data(), old->size());
    if (failure == 0) failure = writeAll(mFd, kComplete, sizeof kComplete);
    failure = writeFailure(failure, mFd);
    if (failure != 0) discard();
    return failure;
}

int KeptAside::bringBack()
{
    const std::optional<OldBytes> old = readCopy(mFile);
    return old ? overwrite(old->target, old->bytes.data(), old->bytes.size()) : EIO;
}

void KeptAside::discard()
{
    if (mFd < 0) return;
    ::unlink(mFile.c_str());
    ::close(mFd);
    mFd = -1;
}

KeptAside::~KeptAside()
{
    if (mFd >= 0) ::close(mFd);
}

int overwriteInPlace(const std::string& path, const char* bytes, std::size_t count)
{
    KeptAside old;
    if (const int failure = old.keep(path)) return failure;
    const int failure = overwrite(path, bytes, count);
    if (failure == 0 || old.bringBack() == 0)
        old.discard();
    else
        logLine("%s is damaged; what it held is kept in %s", path.c_str(), old.path().c_str());
    return failure;
}

void restoreKeptAside()
{
    for (const std::string& name : contentsOfFolder(asideFolder())) {
        const std::string copy = pathByAppending(asideFolder(), name);
        const int fd = ::open(copy.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
        if (fd < 0) continue;
        bool done = false;
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0) { // else its program is at work
            const std::optional<OldBytes> old = readCopy(copy);
            const std::optional<FileStamp> kept = fileStamp(copy), now = old ? fileStamp(old->target) : std::nullopt;
            const bool isHalf = kept && now && now->modified - kept->modified < kLongestWrite;
            done = !isHalf || overwrite(old->target, old->bytes.data(), old->bytes.size()) == 0;
            if (isHalf)
                logLine("%s %s what it held before a save that was interrupted", old->target.c_str(),
                        done ? "holds again" : "cannot be given back");
        }
        ::close(fd);
        if (done) ::unlink(copy.c_str());
    }
}

} // namespace zp
