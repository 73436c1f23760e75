// SPDX-License-Identifier: GPL-3.0-or-later
/// The decoder's side: one job after the other, until one goes wrong.
#include "base/Translation.h"
#include "codecs/DecoderMessage.h"
#include "codecs/DecoderRows.h"
#include "codecs/DecoderWalls.h"
#include "codecs/ForeignDecoder.h"
#include "codecs/MagickReader.h"
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace zp::codec
{

namespace
{

constexpr int kJobs = STDIN_FILENO, kResults = STDOUT_FILENO;
/// How long one that has read waits for the next picture. One that has not is small and waits as long as the program.
constexpr int kIdleMilliseconds = 5 * 60'000, kNoEnd = -1;
/// What one process reads in all: leaks of the library end with it.
constexpr int kMostJobs = 200;
constexpr long kMostSeconds = 30;

/// @return false when nobody reads any more
bool send(const void* bytes, std::size_t count)
{
    const auto* at = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t n = ::write(kResults, at, count);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        at += n;
        count -= std::size_t(n);
    }
    return true;
}

bool sendBlock(BlockKind kind, std::size_t count = 0)
{
    const BlockHead head{kind, std::uint32_t(count)};
    return send(&head, sizeof head);
}

bool sendBlock(BlockKind kind, const void* bytes, std::size_t count)
{
    return sendBlock(kind, count) && send(bytes, count);
}

/// Rows are made in the shared memory, and taken from there while the next ones are made.
class Sending : public RowTarget
{
public:
    explicit Sending(SharedRows& rows) : mRows(rows) {}
    bool begin(int width, int height) override
    {
        const std::array<std::int32_t, 2> size{width, height};
        mRowBytes = std::size_t(BitmapRep::rowBytesForWidth(width));
        return sendBlock(BlockKind::Size, size.data(), sizeof size);
    }
    std::uint8_t* row(int) override
    {
        if (mFilled + mRowBytes > kSlotBytes) flush();
        if (mFilled == 0)
            while (mWaiting == kRowSlots) awaitTaken();
        std::uint8_t* const there = mRows.slot() + mFilled;
        std::memset(there, 0, mRowBytes);
        mFilled += mRowBytes;
        return there;
    }
    void flush()
    {
        if (mFilled == 0) return;
        if (!sendBlock(BlockKind::Rows, mFilled)) giveUp();
        ++mWaiting;
        mRows.next();
        mFilled = 0;
    }

private:
    void awaitTaken()
    {
        char answer = 0;
        if (::recv(kJobs, &answer, sizeof answer, 0) != 1 || answer != kSlotTaken) giveUp();
        --mWaiting;
    }
    /// Nobody wants the picture any more.
    [[noreturn]] static void giveUp() { std::_Exit(0); }

    SharedRows& mRows;
    std::size_t mRowBytes = 0, mFilled = 0, mWaiting = 0;
};

/// The bytes of a job, and the file that came with it.
class Input
{
public:
    Input(int file, std::uint64_t bytes) : mBytes(bytes)
    {
        if (file < 0) return;
        void* const there = mmap(nullptr, mBytes, PROT_READ, MAP_PRIVATE, file, 0);
        if (there != MAP_FAILED) mStart = static_cast<const std::uint8_t*>(there);
        ::close(file);
    }
    ~Input()
    {
        if (mStart) munmap(const_cast<std::uint8_t*>(mStart), mBytes);
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;
    bool isThere() const { return mStart != nullptr; }
    Bytes bytes() const { return {mStart, mBytes}; }

private:
    std::size_t mBytes;
    const std::uint8_t* mStart = nullptr;
};

/// Waits for a job, so many @p milliseconds at most. @return false when there will be none
bool receive(DecoderJob& job, int& file, int milliseconds)
{
    ssize_t got = 0;
    JobMessage message(job);
    do { // answers to the last job's rows come before the next job
        pollfd there{kJobs, POLLIN, 0};
        if (poll(&there, 1, milliseconds) <= 0) return false;
        message.head.msg_controllen = message.room.size();
        got = recvmsg(kJobs, &message.head, MSG_CMSG_CLOEXEC);
    } while (got == 1);
    if (got != ssize_t(sizeof job)) return false;
    const cmsghdr* const with = CMSG_FIRSTHDR(&message.head);
    if (!with || with->cmsg_type != SCM_RIGHTS) return false;
    std::memcpy(&file, CMSG_DATA(with), sizeof file);
    return true;
}

DecodedRest decode(const DecoderJob& job, const Input& input, SharedRows& rows)
{
    try {
        if (input.isThere()) {
            Sending target(rows);
            DecodedRest rest = readByMagick(input.bytes(), Format(job.format), job.properties != 0, target);
            target.flush();
            return rest;
        }
    } catch (const std::bad_alloc&) {
    }
    DecodedRest rest;
    rest.error = translated("Codecs", "There is not enough memory for this image.");
    return rest;
}

bool isTired()
{
    rusage used{};
    return getrusage(RUSAGE_SELF, &used) == 0 && used.ru_utime.tv_sec + used.ru_stime.tv_sec > kMostSeconds;
}

} // namespace

int runDecoder()
{
    SharedRows rows(kRowsDescriptor, true);
    ::close(kRowsDescriptor);
    if (!rows.isThere()) return 1;
    buildWalls();
    prepareMagick();
    for (int jobs = 0; jobs < kMostJobs && !isTired(); ++jobs) {
        DecoderJob job;
        int file = -1;
        if (!receive(job, file, jobs == 0 ? kNoEnd : kIdleMilliseconds)) break;
        const Input input(file, job.bytes);
        if (!sendBlock(BlockKind::Accepted)) break;
        const DecodedRest rest = decode(job, input, rows);
        const std::vector<std::uint8_t> bytes = packed(rest);
        if (!sendBlock(BlockKind::End, bytes.data(), bytes.size())) break;
        if (!rest.error.empty()) break; // nobody knows what is left behind in the library
    }
    return 0;
}

} // namespace zp::codec
