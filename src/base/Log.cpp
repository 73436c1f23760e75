// SPDX-License-Identifier: GPL-3.0-or-later
/// The log's two ends: a ring of the latest lines, and a writer that never makes the logging thread wait.
#include "base/Log.h"
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <memory>
#include <mutex>
#include <poll.h>
#include <string_view>
#include <thread>
#include <unistd.h>

namespace zp
{

namespace
{
constexpr std::size_t kLineBytes = 1000;
constexpr std::size_t kKeptLines = 200'000;
constexpr std::size_t kChunkBytes = std::size_t{1} << 18;
/// Lines waiting for a slow terminal or pipe; what does not fit is counted and left out there, but kept in the ring.
constexpr std::size_t kPendingBytes = std::size_t{256} << 10;
/// The least time between two batches for standard error: a thread that logs without end fills no disk.
constexpr std::chrono::milliseconds kBatchPause{100};
constexpr int kPatienceAtExit = 500; ///< milliseconds to wait for a reader that does not read

/// Packed lines: two bytes of length, then the text. Chunks are made as lines come and used again when they grow old.
class Ring
{
public:
    void add(const char* text, std::size_t length)
    {
        if (mChunks.empty() || mChunks.back().used + length + 2 > kChunkBytes) next();
        Chunk& chunk = mChunks.back();
        const auto size = std::uint16_t(length);
        std::memcpy(chunk.bytes.get() + chunk.used, &size, 2);
        std::memcpy(chunk.bytes.get() + chunk.used + 2, text, length);
        chunk.used += length + 2;
        ++chunk.lines;
        ++mLines;
    }

    std::vector<std::string> take()
    {
        std::vector<std::string> lines;
        std::size_t skip = mLines > kKeptLines ? mLines - kKeptLines : 0;
        lines.reserve(mLines - skip);
        for (const Chunk& chunk : mChunks) {
            for (std::size_t at = 0; at < chunk.used;) {
                std::uint16_t size;
                std::memcpy(&size, chunk.bytes.get() + at, 2);
                if (skip > 0)
                    --skip;
                else
                    lines.emplace_back(chunk.bytes.get() + at + 2, size);
                at += std::size_t{2} + size;
            }
        }
        mChunks.clear();
        mLines = 0;
        return lines;
    }

private:
    struct Chunk {
        std::unique_ptr<char[]> bytes;
        std::size_t used = 0, lines = 0;
    };

    void next()
    {
        if (!mChunks.empty() && mLines - mChunks.front().lines >= kKeptLines) {
            Chunk old = std::move(mChunks.front());
            mChunks.pop_front();
            mLines -= old.lines;
            old.used = old.lines = 0;
            mChunks.push_back(std::move(old));
            return;
        }
        mChunks.push_back({std::make_unique_for_overwrite<char[]>(kChunkBytes), 0, 0});
    }

    std::deque<Chunk> mChunks;
    std::size_t mLines = 0;
};

class Log
{
public:
    /// ZELPANE_LOG=0 keeps the lines off standard error; they can still be taken.
    Log()
    {
        const char* const setting = std::getenv("ZELPANE_LOG");
        mQuiet = setting && std::string_view(setting) == "0";
    }

    static Log& shared()
    {
        static Log log;
        return log;
    }

    ~Log()
    {
        {
            const std::scoped_lock lock(mMutex);
            mStopping = true;
        }
        mWork.notify_one();
        if (mWriter.joinable()) mWriter.join();
    }

    void add(const char* text, std::size_t length)
    {
        const std::scoped_lock lock(mMutex);
        mRing.add(text, length);
        if (mQuiet) return;
        if (mPending.size() + length + 1 > kPendingBytes) {
            ++mLeftOut;
            return;
        }
        const bool wasEmpty = mPending.empty();
        mPending.append(text, length);
        mPending.push_back('\n');
        if (!mStarted) {
            mStarted = true;
            mWriter = std::thread([this] { write(); });
        }
        if (wasEmpty) mWork.notify_one();
    }

    std::vector<std::string> take()
    {
        const std::scoped_lock lock(mMutex);
        return mRing.take();
    }

private:
    void write()
    {
        // A reader that went away must not end the program: the write then fails instead.
        sigset_t brokenPipe;
        sigemptyset(&brokenPipe);
        sigaddset(&brokenPipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
        std::string batch;
        std::unique_lock lock(mMutex);
        for (;;) {
            mWork.wait(lock, [&] { return mStopping || !mPending.empty(); });
            if (mPending.empty()) return;
            batch.clear();
            batch.swap(mPending);
            if (mLeftOut) batch += "(" + std::to_string(mLeftOut) + " more lines left out)\n";
            mLeftOut = 0;
            lock.unlock();
            const bool written = send(batch);
            lock.lock();
            if (!written && mStopping) return;
            mWork.wait_for(lock, kBatchPause, [&] { return mStopping; });
        }
    }

    /// @return false when nobody reads any more
    bool send(const std::string& bytes)
    {
        for (std::size_t at = 0; at < bytes.size();) {
            pollfd ready{STDERR_FILENO, POLLOUT, 0};
            if (poll(&ready, 1, kPatienceAtExit) == 0) {
                const std::scoped_lock lock(mMutex);
                if (mStopping) return false;
                continue;
            }
            // At most what a pipe takes at once, so that the write itself does not wait.
            const ssize_t n = ::write(STDERR_FILENO, bytes.data() + at, std::min<std::size_t>(bytes.size() - at, 4096));
            if (n < 0 && errno != EINTR && errno != EAGAIN) return false;
            if (n > 0) at += std::size_t(n);
        }
        return true;
    }

    std::mutex mMutex; ///< guards all below but the thread
    std::condition_variable mWork;
    Ring mRing;
    std::string mPending;
    std::size_t mLeftOut = 0;
    bool mStarted = false, mStopping = false, mQuiet = false;
    std::thread mWriter;
};
} // namespace

void logLine(const char* format, ...)
{
    char line[kLineBytes + 1];
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    if (length < 0) return;
    try {
        Log::shared().add(line, std::min(std::size_t(length), kLineBytes));
    } catch (...) {
        // Out of memory or threads: a line of diagnosis is not worth the caller's work.
    }
}

std::vector<std::string> takeLogLines() { return Log::shared().take(); }

} // namespace zp
