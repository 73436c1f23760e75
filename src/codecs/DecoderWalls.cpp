// SPDX-License-Identifier: GPL-3.0-or-later
/// Limits of the system, and a filter of its calls: what is on the list is answered by "not permitted".
#include "codecs/DecoderWalls.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace zp::codec
{

namespace
{

/// More than the largest picture needs whose reader keeps to the library's own bounds, and less than a small machine
/// has.
constexpr std::uint64_t kMostMemory = std::uint64_t{4} << 30;
constexpr rlim_t kMostFiles = 64;
/// Twice what the program waits for an answer: a decoder that nobody ends any more ends itself.
constexpr rlim_t kMostSeconds = 120;

void bound(__rlimit_resource what, rlim_t most)
{
    rlimit now{};
    if (getrlimit(what, &now) != 0) return;
    most = std::min(most, now.rlim_max);
    const rlimit both{most, most};
    setrlimit(what, &both);
}

[[maybe_unused]] std::uint64_t mostMemory()
{
    const auto pages = sysconf(_SC_PHYS_PAGES), size = sysconf(_SC_PAGESIZE);
    const std::uint64_t machine = pages > 0 && size > 0 ? std::uint64_t(pages) * std::uint64_t(size) : kMostMemory;
    return std::clamp(machine / 4 * 3, kMostMemory / 4, kMostMemory);
}

void beTheFirstToGo()
{
    const int file = ::open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC);
    if (file < 0) return;
    (void)!::write(file, "1000", 4);
    ::close(file);
}

constexpr int kForbidden[] = {
    // network
    __NR_socket,
    __NR_socketpair,
    __NR_connect,
    __NR_bind,
    __NR_listen,
    __NR_accept,
    __NR_accept4,
    // other programs
    __NR_execve,
    __NR_execveat,
    __NR_ptrace,
    __NR_kill,
    __NR_process_vm_readv,
    __NR_process_vm_writev,
    // names and what belongs to them
    __NR_unlinkat,
    __NR_renameat2,
    __NR_mkdirat,
    __NR_mknodat,
    __NR_symlinkat,
    __NR_linkat,
    __NR_fchmod,
    __NR_fchmodat,
    __NR_fchown,
    __NR_fchownat,
    __NR_truncate,
    __NR_utimensat,
    __NR_setxattr,
    __NR_lsetxattr,
    __NR_fsetxattr,
    __NR_removexattr,
    __NR_lremovexattr,
    __NR_fremovexattr,
    __NR_chroot,
    __NR_chdir,
    __NR_mount,
    __NR_umount2,
    // doors into the system that no reader needs
    __NR_bpf,
    __NR_perf_event_open,
    __NR_keyctl,
    __NR_add_key,
    __NR_request_key,
    __NR_unshare,
    __NR_setns,
    __NR_memfd_create,
    __NR_open_by_handle_at,
    __NR_name_to_handle_at,
#ifdef __NR_renameat
    __NR_renameat,
#endif
#ifdef __NR_io_uring_setup
    __NR_io_uring_setup,
#endif
#ifdef __NR_userfaultfd
    __NR_userfaultfd,
#endif
#ifdef __x86_64__
    __NR_fork,
    __NR_vfork,
    __NR_creat,
    __NR_unlink,
    __NR_rename,
    __NR_mkdir,
    __NR_rmdir,
    __NR_mknod,
    __NR_symlink,
    __NR_link,
    __NR_chmod,
    __NR_chown,
    __NR_lchown,
    __NR_utime,
    __NR_utimes,
    __NR_futimesat,
#endif
};
/// Newer ways whose arguments a filter cannot see: the C library falls back to the older ones.
constexpr int kUnknown[] = {
#ifdef __NR_clone3
    __NR_clone3,
#endif
#ifdef __NR_openat2
    __NR_openat2,
#endif
};

constexpr std::uint32_t kWriting = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC;

#if defined(__x86_64__)
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_AARCH64;
#else
constexpr std::uint32_t kArchitecture = 0; // no filter there
#endif

sock_filter load(std::size_t at) { return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, std::uint32_t(at)); }
sock_filter answer(std::uint32_t with) { return BPF_STMT(BPF_RET | BPF_K, with); }
constexpr std::uint32_t refusal(int error) { return SECCOMP_RET_ERRNO | (std::uint32_t(error) & SECCOMP_RET_DATA); }
/// Both are small-endian: the lower half of an argument comes first.
constexpr std::size_t argument(std::size_t number) { return offsetof(seccomp_data, args) + 8 * number; }

std::vector<sock_filter> filter()
{
    std::vector<sock_filter> f;
    const auto ifEqual = [&f](std::uint32_t value, std::uint32_t with) {
        f.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, value, 0, 1));
        f.push_back(answer(with));
    };
    /// When call @p number has any of @p bits (or, @p any false, not all) in its argument.
    const auto ifBits = [&f](int number, std::size_t which, std::uint32_t bits, bool any, int error) {
        f.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, std::uint32_t(number), 0, 4));
        f.push_back(load(argument(which)));
        f.push_back(BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, bits, std::uint8_t(any ? 0 : 1), std::uint8_t(any ? 1 : 0)));
        f.push_back(answer(refusal(error)));
        f.push_back(answer(SECCOMP_RET_ALLOW));
    };
    f.push_back(load(offsetof(seccomp_data, arch)));
    f.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, kArchitecture, 1, 0));
    f.push_back(answer(SECCOMP_RET_KILL_PROCESS));
    f.push_back(load(offsetof(seccomp_data, nr)));
#ifdef __x86_64__
    f.push_back(BPF_JUMP(BPF_JMP | BPF_JGE | BPF_K, 0x40000000u, 0, 1)); // the other numbering
    f.push_back(answer(refusal(ENOSYS)));
    ifBits(__NR_open, 1, kWriting, true, EACCES);
#endif
    ifBits(__NR_openat, 2, kWriting, true, EACCES);
    ifBits(__NR_clone, 0, CLONE_THREAD, false, EPERM);
    for (const int number : kForbidden) ifEqual(std::uint32_t(number), refusal(EPERM));
    for (const int number : kUnknown) ifEqual(std::uint32_t(number), refusal(ENOSYS));
    f.push_back(answer(SECCOMP_RET_ALLOW));
    return f;
}

} // namespace

void buildWalls()
{
    beTheFirstToGo();
    bound(RLIMIT_CORE, 0);
    bound(RLIMIT_CPU, kMostSeconds);
    bound(RLIMIT_NOFILE, kMostFiles);
    bound(RLIMIT_FSIZE, 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    bound(RLIMIT_AS, mostMemory());
#endif
    if (kArchitecture == 0 || prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return;
    std::vector<sock_filter> list = filter();
    const sock_fprog program{static_cast<unsigned short>(list.size()), list.data()};
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program, 0, 0);
}

} // namespace zp::codec
