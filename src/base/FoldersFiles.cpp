// SPDX-License-Identifier: GPL-3.0-or-later
/// Files and folders: looking, listing, making, removing, moving, copying.
#include "base/Folders.h"
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{

namespace
{

/// Closes what it holds; -1 holds nothing.
struct Descriptor {
    int fd = -1;
    explicit Descriptor(int open) : fd(open) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (fd >= 0) ::close(fd);
    }
};

/// The next code point of UTF-8 text, or the byte itself where it is none; @p i moves on.
unsigned nextCode(const std::string& text, std::size_t& i)
{
    const unsigned lead = static_cast<unsigned char>(text[i++]);
    const unsigned more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (more == 0 || i + more > text.size()) return lead;
    unsigned code = lead & (0x3Fu >> more);
    for (unsigned k = 0; k < more; ++k) {
        const unsigned byte = static_cast<unsigned char>(text[i + k]);
        if ((byte & 0xC0u) != 0x80u) return lead;
        code = code << 6 | (byte & 0x3Fu);
    }
    i += more;
    return code;
}

/// Lower case of the letters that occur in European names; independent of the locale, so that the order of a library
/// is the same on every machine.
unsigned lowerCode(unsigned c)
{
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 0x20;
    if (c >= 0x100 && c <= 0x137) return c | 1u;
    if (c >= 0x139 && c <= 0x148) return c + (c & 1u);
    if (c >= 0x14A && c <= 0x177) return c | 1u;
    if ((c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F)) return c + 0x20;
    if (c >= 0x400 && c <= 0x40F) return c + 0x50;
    return c;
}

bool listedBefore(const std::string& a, const std::string& b)
{
    const bool dotA = a.starts_with('.'), dotB = b.starts_with('.');
    if (dotA != dotB) return dotA;
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        const unsigned x = lowerCode(nextCode(a, i)), y = lowerCode(nextCode(b, j));
        if (x != y) return x < y;
    }
    if (i < a.size() || j < b.size()) return i >= a.size();
    return a < b;
}

/// Takes over the descriptor of an open folder and removes all that is in it, following no link.
bool emptyFolder(int fd, int depth)
{
    DIR* folder = ::fdopendir(fd);
    if (!folder) {
        ::close(fd);
        return false;
    }
    bool done = true;
    while (const dirent* entry = ::readdir(folder)) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..") continue;
        if (::unlinkat(fd, name.c_str(), 0) == 0) continue;
        // A folder answers EISDIR here. Nesting is limited, because each level holds a descriptor.
        if (errno != EISDIR && errno != EPERM) {
            done = false;
            continue;
        }
        const int inner =
            depth < 200 ? ::openat(fd, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC) : -1;
        if (inner >= 0) emptyFolder(inner, depth + 1);
        if (::unlinkat(fd, name.c_str(), AT_REMOVEDIR) != 0) done = false;
    }
    ::closedir(folder);
    return done;
}

bool exists(const std::string& path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0;
}

bool copyBytes(int from, int to)
{
    std::vector<char> room;
    while (true) {
        const ssize_t sent = ::sendfile(to, from, nullptr, 1u << 30);
        if (sent > 0) continue;
        if (sent == 0) return true;
        if (errno == EINTR) continue;
        if (errno != EINVAL && errno != ENOSYS) return false;
        break;
    }
    room.resize(1u << 18);
    while (true) {
        const ssize_t count = ::read(from, room.data(), room.size());
        if (count == 0) return true;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        for (ssize_t done = 0; done < count;) {
            const ssize_t n = ::write(to, room.data() + done, std::size_t(count - done));
            if (n < 0 && errno != EINTR) return false;
            if (n > 0) done += n;
        }
    }
}

bool copyFile(const std::string& from, const std::string& to, const struct stat& info)
{
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (source.fd < 0) return false;
    const Descriptor target(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 0777u));
    if (target.fd < 0) return false;
    if (copyBytes(source.fd, target.fd)) {
        const timespec times[2] = {info.st_atim, info.st_mtim};
        ::futimens(target.fd, times);
        return true;
    }
    ::unlink(to.c_str());
    return false;
}

bool copyTree(const std::string& from, const std::string& to, int depth)
{
    struct stat info;
    if (depth > 200 || ::lstat(from.c_str(), &info) != 0) return false;
    if (S_ISLNK(info.st_mode)) {
        std::string target(4096, '\0');
        const ssize_t length = ::readlink(from.c_str(), target.data(), target.size());
        if (length < 0 || std::size_t(length) == target.size()) return false;
        target.resize(std::size_t(length));
        return ::symlink(target.c_str(), to.c_str()) == 0;
    }
    if (S_ISREG(info.st_mode)) return copyFile(from, to, info);
    if (!S_ISDIR(info.st_mode)) return false;
    const std::vector<std::string> names = contentsOfFolder(from); // before the copy exists: it may lie inside
    if (::mkdir(to.c_str(), (info.st_mode & 0777u) | 0700u) != 0) return false;
    for (const std::string& name : names)
        if (!copyTree(pathByAppending(from, name), pathByAppending(to, name), depth + 1)) return false;
    return true;
}

} // namespace

bool fileExists(const std::string& path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0;
}

bool isFolder(const std::string& path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool createFolder(const std::string& path, unsigned mode)
{
    if (path.empty()) return false;
    if (isFolder(path)) return true;
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        const std::string above = path.substr(0, slash);
        if (slash + 1 < path.size()) ::mkdir(above.c_str(), 0777);
    }
    ::mkdir(path.c_str(), mode);
    return isFolder(path);
}

bool removeItem(const std::string& path)
{
    if (path.empty()) return false;
    // A trailing slash would lead through a link to its target.
    std::string item = path;
    while (item.size() > 1 && item.back() == '/') item.pop_back();
    if (::unlink(item.c_str()) == 0) return true;
    if (errno != EISDIR && errno != EPERM) return false;
    const int fd = ::open(item.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd >= 0) emptyFolder(fd, 0);
    return ::rmdir(item.c_str()) == 0;
}

bool moveItem(const std::string& from, const std::string& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno == EINVAL || errno == ENOSYS) { // a file system that cannot refuse to replace
        if (exists(to)) return false;
        if (::rename(from.c_str(), to.c_str()) == 0) return true;
    }
    if (errno != EXDEV) return false;
    return copyItem(from, to) && removeItem(from);
}

bool copyItem(const std::string& from, const std::string& to)
{
    if (exists(to) || !exists(from)) return false;
    if (copyTree(from, to, 0)) return true;
    removeItem(to);
    return false;
}

std::vector<std::string> contentsOfFolder(const std::string& path)
{
    std::vector<std::string> names;
    listFolder(path, names);
    return names;
}

std::string listFolder(const std::string& path, std::vector<std::string>& names)
{
    names.clear();
    const auto why = [](int code) {
        char room[256];
        return std::string(::strerror_r(code, room, sizeof room));
    };
    DIR* folder = ::opendir(path.c_str());
    if (!folder) return why(errno);
    int failure = 0;
    while (true) {
        errno = 0; // the end of a listing differs from a failure within it by this alone
        const dirent* entry = ::readdir(folder);
        if (!entry) {
            failure = errno;
            break;
        }
        std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(std::move(name));
    }
    ::closedir(folder);
    if (failure != 0) {
        names.clear();
        return why(failure);
    }
    std::sort(names.begin(), names.end(), listedBefore);
    return {};
}

std::optional<FileAttributes> fileAttributes(const std::string& path)
{
    struct stat info;
    if (::lstat(path.c_str(), &info) != 0) return std::nullopt;
    return FileAttributes{std::int64_t(info.st_size), std::int64_t(info.st_mtim.tv_sec), S_ISDIR(info.st_mode),
                          S_ISLNK(info.st_mode)};
}

std::optional<FileStamp> fileStamp(const std::string& path)
{
    struct stat facts;
    if (::stat(path.c_str(), &facts) != 0) return std::nullopt;
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    return FileStamp{facts.st_dev, facts.st_ino, facts.st_size,
                     std::int64_t(facts.st_mtim.tv_sec) * kNanoseconds + facts.st_mtim.tv_nsec};
}

std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t limit)
{
    // Without O_NONBLOCK the mere opening of a pipe would wait for its writer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat info;
    if (file.fd < 0 || ::fstat(file.fd, &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
    if (std::uint64_t(info.st_size) > limit) return std::nullopt;
    try {
        std::string bytes(std::size_t(info.st_size), '\0');
        std::size_t have = 0;
        while (true) {
            if (have == bytes.size()) {
                // At the expected end: one more read shows whether the file has grown (or never told its size).
                char more[4096];
                const ssize_t n = ::read(file.fd, more, sizeof more);
                if (n < 0 && errno == EINTR) continue;
                if (n < 0) return std::nullopt;
                if (n == 0) return bytes;
                if (have + std::size_t(n) > limit) return std::nullopt;
                bytes.append(more, std::size_t(n));
                have += std::size_t(n);
                continue;
            }
            const ssize_t n = ::read(file.fd, bytes.data() + have, bytes.size() - have);
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) return std::nullopt;
            if (n == 0) { // it shrank meanwhile
                bytes.resize(have);
                return bytes;
            }
            have += std::size_t(n);
        }
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

} // namespace zp
