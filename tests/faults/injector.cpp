// SPDX-License-Identifier: GPL-3.0-or-later
/// To be preloaded: makes one chosen call of the program fail, once.
#include "faults/injector.h"
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// The allocator under its other name, which no look-up (that would itself allocate) is needed for.
extern "C" void* __libc_malloc(std::size_t);
extern "C" void* __libc_calloc(std::size_t, std::size_t);
extern "C" void* __libc_realloc(void*, std::size_t);
extern "C" void* __libc_memalign(std::size_t, std::size_t);

namespace
{

using zp::faults::Call;
using zp::faults::Control;

Control* control = nullptr;
char folder[4096] = "";

__attribute__((constructor)) void attach()
{
    const char* const path = getenv(zp::faults::kControlVariable);
    const char* const below = getenv(zp::faults::kFolderVariable);
    if (below) std::strncpy(folder, below, sizeof folder - 1);
    const int fd = path ? int(syscall(SYS_openat, AT_FDCWD, path, O_RDWR | O_CLOEXEC)) : -1;
    if (fd < 0) return;
    void* const page =
        reinterpret_cast<void*>(syscall(SYS_mmap, nullptr, sizeof(Control), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0));
    syscall(SYS_close, fd);
    if (page == MAP_FAILED) return;
    control = static_cast<Control*>(page);
    control->attached.fetch_add(1);
}

/// Whether this call is the one that is to fail.
bool strikes(Call call)
{
    if (!control) return false;
    control->met[std::size_t(call)].fetch_add(1, std::memory_order_relaxed);
    if (control->call.load(std::memory_order_relaxed) != call) return false;
    return control->countdown.fetch_sub(1) == 1;
}

bool isOrdinary(int fd)
{
    struct stat facts;
    return fd > 2 && fstat(fd, &facts) == 0 && S_ISREG(facts.st_mode);
}

bool isBelow(const char* path)
{
    return *folder && (path[0] != '/' || std::strncmp(path, folder, std::strlen(folder)) == 0);
}

bool strikesMemory(Call call, std::size_t size) { return control && size >= control->least.load() && strikes(call); }

template <class Function>
Function* real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

thread_local bool cutShort = false; // the write after a short one

/// @return how much to write of @p count, or -1 to fail
ssize_t allowed(int fd, std::size_t count)
{
    if (!control || !isOrdinary(fd)) return ssize_t(count);
    if (cutShort || strikes(Call::Write)) {
        cutShort = false;
        errno = ENOSPC;
        return -1;
    }
    if (strikes(Call::ShortWrite)) {
        cutShort = true;
        return ssize_t(count / 2);
    }
    return ssize_t(count);
}

int fails(int code)
{
    errno = code;
    return -1;
}

} // namespace

extern "C" {

ssize_t write(int fd, const void* bytes, std::size_t count)
{
    const ssize_t n = allowed(fd, count);
    return n < 0 ? n : syscall(SYS_write, fd, bytes, std::size_t(n));
}

ssize_t pwrite(int fd, const void* bytes, std::size_t count, off_t at)
{
    const ssize_t n = allowed(fd, count);
    return n < 0 ? n : syscall(SYS_pwrite64, fd, bytes, std::size_t(n), at);
}
ssize_t pwrite64(int fd, const void* bytes, std::size_t count, off64_t at) { return pwrite(fd, bytes, count, at); }

int fsync(int fd) { return strikes(Call::Sync) ? fails(EIO) : int(syscall(SYS_fsync, fd)); }
int fdatasync(int fd) { return strikes(Call::Sync) ? fails(EIO) : int(syscall(SYS_fdatasync, fd)); }

int rename(const char* from, const char* to) noexcept
{
    return strikes(Call::Rename) ? fails(EIO) : int(syscall(SYS_rename, from, to));
}
int renameat(int a, const char* from, int b, const char* to) noexcept
{
    return strikes(Call::Rename) ? fails(EIO) : int(syscall(SYS_renameat, a, from, b, to));
}

int openat(int at, const char* path, int flags, ...)
{
    mode_t mode = 0;
    if (flags & (O_CREAT | O_TMPFILE)) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    if (isBelow(path) && strikes(Call::Open)) return fails(EMFILE);
    return int(syscall(SYS_openat, at, path, flags, mode));
}
int open(const char* path, int flags, ...)
{
    mode_t mode = 0;
    if (flags & (O_CREAT | O_TMPFILE)) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    return openat(AT_FDCWD, path, flags, mode);
}
int open64(const char* path, int flags, ...)
{
    mode_t mode = 0;
    if (flags & (O_CREAT | O_TMPFILE)) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    return openat(AT_FDCWD, path, flags, mode);
}
int openat64(int at, const char* path, int flags, ...)
{
    mode_t mode = 0;
    if (flags & (O_CREAT | O_TMPFILE)) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    return openat(at, path, flags, mode);
}

int close(int fd)
{
    const bool strike = control && isOrdinary(fd) && strikes(Call::Close);
    const int result = int(syscall(SYS_close, fd));
    return strike ? fails(EIO) : result;
}

int mkdir(const char* path, mode_t mode) noexcept
{
    return strikes(Call::MakeFolder) ? fails(ENOSPC) : int(syscall(SYS_mkdir, path, mode));
}
int mkdirat(int at, const char* path, mode_t mode) noexcept
{
    return strikes(Call::MakeFolder) ? fails(ENOSPC) : int(syscall(SYS_mkdirat, at, path, mode));
}

void* mmap(void* where, std::size_t size, int protection, int flags, int fd, off_t offset) noexcept
{
    // Of memory alone: a library that cannot be mapped is another matter.
    if (fd < 0 && strikesMemory(Call::Map, size)) {
        errno = ENOMEM;
        return MAP_FAILED;
    }
    return reinterpret_cast<void*>(syscall(SYS_mmap, where, size, protection, flags, fd, offset));
}
void* mmap64(void* where, std::size_t size, int protection, int flags, int fd, off64_t offset) noexcept
{
    return mmap(where, size, protection, flags, fd, offset);
}

void* malloc(std::size_t size) noexcept
{
    if (strikesMemory(Call::Allocate, size)) return fails(ENOMEM), nullptr;
    return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept
{
    if (strikesMemory(Call::Allocate, count * size)) return fails(ENOMEM), nullptr;
    return __libc_calloc(count, size);
}
void* realloc(void* old, std::size_t size) noexcept
{
    if (strikesMemory(Call::Allocate, size)) return fails(ENOMEM), nullptr;
    return __libc_realloc(old, size);
}
void* memalign(std::size_t alignment, std::size_t size) noexcept
{
    if (strikesMemory(Call::Allocate, size)) return fails(ENOMEM), nullptr;
    return __libc_memalign(alignment, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept { return memalign(alignment, size); }
int posix_memalign(void** out, std::size_t alignment, std::size_t size) noexcept
{
    if (strikesMemory(Call::Allocate, size)) return ENOMEM;
    *out = __libc_memalign(alignment, size);
    return *out ? 0 : ENOMEM;
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*body)(void*), void* argument) noexcept
{
    // The toolkit's painter waits for ever for a thread of its pool that could not be started; the program's own are
    // started by way of the language's library.
    Dl_info caller;
    const bool own = dladdr(__builtin_return_address(0), &caller) && !std::strstr(caller.dli_fname, "libQt");
    if (own && strikes(Call::Thread)) return EAGAIN;
    static auto* const create = real<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create");
    return create(thread, attributes, body, argument);
}
}
