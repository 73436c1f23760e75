// SPDX-License-Identifier: GPL-3.0-or-later
/// The decoder's side: one job after the other, until one goes wrong.
#include "base/Translation.h"
#include "codecs/DecoderMessage.h"
#include "codecs/DecoderWalls.h"
#include "codecs/ForeignDecoder.h"
#include "codecs/MagickReader.h"
#include <algorithm>
#include <cerrno>
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
/// A program that opens one picture after the other finds the decoder still there.
constexpr int kIdleMilliseconds = 10'000;
/// What one process reads in all: leaks of the library end with it.
constexpr int kMostJobs = 200;
constexpr long kMostSeconds = 30;
constexpr std::size_t kBlockBytes = std::size_t{256} << 10;

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

bool sendBlock(BlockKind kind, const void* bytes = nullptr, std::size_t count = 0)
{
    const BlockHead head{kind, std::uint32_t(count)};
    return send(&head, sizeof head) && (count == 0 || send(bytes, count));
}

/// Rows leave in blocks while the next ones are made.
class Sending : public RowTarget
{
public:
    bool begin(int width, int height) override
    {
        const std::array<std::int32_t, 2> size{width, height};
        mRowBytes = std::size_t(BitmapRep::rowBytesForWidth(width));
        mBlock.reserve(std::max(kBlockBytes, mRowBytes));
        return sendBlock(BlockKind::Size, size.data(), sizeof size);
    }
    std::uint8_t* row(int) override
    {
        if (mBlock.size() + mRowBytes > mBlock.capacity()) flush();
        mBlock.resize(mBlock.size() + mRowBytes, 0);
        return mBlock.data() + mBlock.size() - mRowBytes;
    }
    void flush()
    {
        if (!mBlock.empty()) sendBlock(BlockKind::Rows, mBlock.data(), mBlock.size());
        mBlock.clear();
    }

private:
    std::size_t mRowBytes = 0;
    std::vector<std::uint8_t> mBlock;
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

/// Waits for a job. @return false when there will be none
bool receive(DecoderJob& job, int& file)
{
    pollfd there{kJobs, POLLIN, 0};
    if (poll(&there, 1, kIdleMilliseconds) <= 0) return false;
    JobMessage message(job);
    if (recvmsg(kJobs, &message.head, MSG_CMSG_CLOEXEC) != ssize_t(sizeof job)) return false;
    const cmsghdr* const with = CMSG_FIRSTHDR(&message.head);
    if (!with || with->cmsg_type != SCM_RIGHTS) return false;
    std::memcpy(&file, CMSG_DATA(with), sizeof file);
    return true;
}

DecodedRest decode(const DecoderJob& job, const Input& input)
{
    try {
        if (input.isThere()) {
            Sending target;
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
    buildWalls();
    prepareMagick();
    for (int jobs = 0; jobs < kMostJobs && !isTired(); ++jobs) {
        DecoderJob job;
        int file = -1;
        if (!receive(job, file)) break;
        const Input input(file, job.bytes);
        if (!sendBlock(BlockKind::Accepted)) break;
        const DecodedRest rest = decode(job, input);
        const std::vector<std::uint8_t> bytes = packed(rest);
        if (!sendBlock(BlockKind::End, bytes.data(), bytes.size())) break;
        if (!rest.error.empty()) break; // nobody knows what is left behind in the library
    }
    return 0;
}

} // namespace zp::codec
