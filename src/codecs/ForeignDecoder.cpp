// SPDX-License-Identifier: GPL-3.0-or-later
/// The program's side: decoders are started when they are needed, kept for the next picture, and ended when they give
/// no sign of life.
#include "codecs/ForeignDecoder.h"
#include "base/Translation.h"
#include "codecs/DecoderMessage.h"
#include "codecs/DecoderRows.h"
#include "codecs/MagickReader.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

extern char** environ;

namespace zp::codec
{

namespace
{

using Clock = std::chrono::steady_clock;

/// How often whoever waits is asked whether to go on.
constexpr int kSliceMilliseconds = 50;
/// Pictures of a folder are read several at a time.
constexpr std::size_t kMostIdle = 8;
/// Of a file of which only parts were taken, what was not is left out.
constexpr std::size_t kHoleBytes = std::size_t{64} << 10;

class Descriptor
{
public:
    explicit Descriptor(int number = -1) : mNumber(number) {}
    Descriptor(Descriptor&& other) noexcept : mNumber(std::exchange(other.mNumber, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(mNumber, other.mNumber);
        return *this;
    }
    ~Descriptor()
    {
        if (mNumber >= 0) ::close(mNumber);
    }
    operator int() const { return mNumber; }

private:
    int mNumber;
};

/// A running decoder. Going away ends it.
struct Decoder {
    Descriptor jobs, results;
    SharedRows rows;
    pid_t process = 0;
    bool isUsed = false;

    Decoder() = default;
    Decoder(Decoder&& other) noexcept
        : jobs(std::move(other.jobs)),
          results(std::move(other.results)),
          rows(std::move(other.rows)),
          process(std::exchange(other.process, 0)),
          isUsed(other.isUsed)
    {
    }
    Decoder& operator=(Decoder&& other) noexcept
    {
        std::swap(jobs, other.jobs);
        std::swap(results, other.results);
        std::swap(rows, other.rows);
        std::swap(process, other.process);
        std::swap(isUsed, other.isUsed);
        return *this;
    }
    /// Whether it went home, or died. Cheap.
    bool isGone() const
    {
        pollfd there{results, 0, 0};
        return ::poll(&there, 1, 0) != 0;
    }
    ~Decoder()
    {
        if (process <= 0) return;
        ::kill(process, SIGKILL);
        while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
};

struct State {
    std::mutex mutex;
    ForeignDecoding how;
    std::vector<Decoder> idle;
};

State& state()
{
    // Never destroyed: a thread may still be reading when the program ends. Decoders end when their socket does.
    static auto& all = *new State;
    return all;
}

Decoder start(const ForeignDecoding& how)
{
    Decoder decoder;
    int socket[2], pipe[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, socket) != 0) return decoder;
    decoder.jobs = Descriptor(socket[0]);
    const Descriptor jobs(socket[1]), rows(makeSharedRows());
    if (rows < 0) return decoder;
    decoder.rows = SharedRows(rows, false);
    if (!decoder.rows.isThere()) return decoder;
    if (::pipe2(pipe, O_CLOEXEC) != 0) return decoder;
    decoder.results = Descriptor(pipe[0]);
    const Descriptor results(pipe[1]);
    ::fcntl(decoder.results, F_SETFL, O_NONBLOCK);

    std::vector<char*> words{const_cast<char*>("zelpane")};
    for (const std::string& argument : how.arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_adddup2(&files, jobs, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, results, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, rows, kRowsDescriptor);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0); // the library's chatter
    // The decoder dies of what the program survives, and a terminal's keys are not meant for it.
    sigset_t usual, none;
    sigemptyset(&none);
    sigemptyset(&usual);
    sigaddset(&usual, SIGPIPE);
    sigaddset(&usual, SIGXFSZ);
    posix_spawnattr_setsigdefault(&attributes, &usual);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP);
    pid_t process = 0;
    const int failure = posix_spawn(&process, how.program.c_str(), &files, &attributes, words.data(), environ);
    if (failure == 0) decoder.process = process;
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    errno = failure;
    return decoder;
}

Decoder takeOrStart(const ForeignDecoding& how)
{
    {
        State& all = state();
        const std::lock_guard lock(all.mutex);
        if (!all.idle.empty()) {
            Decoder decoder = std::move(all.idle.back());
            all.idle.pop_back();
            return decoder;
        }
    }
    return start(how);
}

void keep(Decoder decoder)
{
    decoder.isUsed = true;
    State& all = state();
    const std::lock_guard lock(all.mutex);
    if (all.idle.size() < kMostIdle) all.idle.push_back(std::move(decoder));
}

/// A file without a name that holds the bytes, and can no longer be changed by anybody.
Descriptor fileOf(Bytes bytes)
{
    Descriptor file(::memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (file < 0 || ::ftruncate(file, off_t(bytes.size())) != 0) return Descriptor();
    for (std::size_t at = 0; at < bytes.size();) {
        const Bytes part = bytes.subspan(at, std::min(kHoleBytes, bytes.size() - at));
        const bool hole = part.front() == 0 && std::memcmp(part.data(), part.data() + 1, part.size() - 1) == 0;
        const ssize_t n = hole ? ssize_t(part.size()) : ::pwrite(file, part.data(), part.size(), off_t(at));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return Descriptor();
        at += std::size_t(n);
    }
    ::fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL);
    return file;
}

bool give(const Decoder& decoder, DecoderJob job, int file)
{
    JobMessage message(job);
    cmsghdr* const with = CMSG_FIRSTHDR(&message.head);
    with->cmsg_level = SOL_SOCKET;
    with->cmsg_type = SCM_RIGHTS;
    with->cmsg_len = CMSG_LEN(sizeof file);
    std::memcpy(CMSG_DATA(with), &file, sizeof file);
    return ::sendmsg(decoder.jobs, &message.head, MSG_NOSIGNAL) == ssize_t(sizeof job);
}

/// What comes back from one job.
class Answer
{
public:
    enum class End { Whole, Died, Hung, GivenUp, NoMemory };

    End take(Decoder& decoder, const ForeignDecoding& how, std::uint64_t fileBytes)
    {
        mDecoder = &decoder;
        mPatience = how.patience;
        mFileBytes = fileBytes;
        const auto wait = how.wait ? how.wait() : nullptr;
        mWait = wait.get();
        for (;;) {
            BlockHead head;
            if (!read(&head, sizeof head) || !takeBlock(head)) return mEnd;
            if (head.kind == BlockKind::End) return mEnd = End::Whole;
        }
    }
    bool wasAccepted() const { return mAccepted; }

    std::shared_ptr<BitmapRep> bitmap;
    DecodedRest rest;

private:
    /// @return false when there will be no more, mEnd says why: what is not as agreed is as good as dead
    bool takeBlock(const BlockHead& head)
    {
        mEnd = End::Died;
        switch (head.kind) {
        case BlockKind::Accepted:
            mAccepted = true;
            return head.bytes == 0;
        case BlockKind::Size:
            return takeSize(head.bytes);
        case BlockKind::Rows: {
            if (!bitmap || head.bytes > mMissing || head.bytes > kSlotBytes) return false;
            std::uint8_t* const end = bitmap->bitmapData() + bitmap->bytesPerRow() * bitmap->pixelsHigh();
            std::memcpy(end - mMissing, mDecoder->rows.slot(), head.bytes);
            mDecoder->rows.next();
            mMissing -= head.bytes;
            // Nobody hears it when these were the last rows of the decoder's last job; its end shows elsewhere.
            (void)!::send(mDecoder->jobs, &kSlotTaken, sizeof kSlotTaken, MSG_NOSIGNAL | MSG_DONTWAIT);
            return true;
        }
        case BlockKind::End: {
            if (head.bytes > kMostBlockBytes) return false;
            std::vector<std::uint8_t> bytes(head.bytes);
            if (!read(bytes.data(), bytes.size())) return false;
            auto got = unpacked(bytes);
            if (!got || (got->error.empty() && (!bitmap || mMissing > 0))) return false;
            rest = std::move(*got);
            return true;
        }
        }
        return false;
    }

    bool takeSize(std::uint32_t bytes)
    {
        std::array<std::int32_t, 2> size{};
        if (bytes != sizeof size || bitmap || !read(size.data(), sizeof size)) return false;
        std::string error;
        if (!checkSize(size[0], size[1], mFileBytes, error)) return false;
        bitmap = BitmapRep::createUninitialized(size[0], size[1]);
        mEnd = bitmap ? mEnd : End::NoMemory;
        if (bitmap) mMissing = std::size_t(bitmap->bytesPerRow()) * std::size_t(size[1]);
        return bitmap != nullptr;
    }

    bool read(void* to, std::size_t count)
    {
        auto* at = static_cast<std::uint8_t*>(to);
        auto lastSign = Clock::now();
        while (count > 0) {
            const ssize_t n = ::read(mDecoder->results, at, count);
            if (n > 0) {
                at += n;
                count -= std::size_t(n);
                lastSign = Clock::now();
                continue;
            }
            if (n == 0 || (errno != EAGAIN && errno != EINTR)) return stop(End::Died);
            pollfd there{mDecoder->results, POLLIN, 0};
            if (::poll(&there, 1, kSliceMilliseconds) != 0) continue;
            if (mWait && !mWait->goOn()) return stop(End::GivenUp);
            if (Clock::now() - lastSign > mPatience) return stop(End::Hung);
        }
        return true;
    }

    bool stop(End end)
    {
        mEnd = end;
        return false;
    }

    Decoder* mDecoder = nullptr;
    std::chrono::milliseconds mPatience{};
    std::uint64_t mFileBytes = 0;
    LongWait* mWait = nullptr;
    bool mAccepted = false;
    std::size_t mMissing = 0; ///< bytes of rows
    End mEnd = End::Died;
};

Decoded result(Answer& answer, Answer::End end, Format format)
{
    switch (end) {
    case Answer::End::Whole:
        break;
    case Answer::End::Died:
        return Decoded::failure(filledIn(
            translated("Codecs", "The %1 image cannot be read: its reader ended unexpectedly."), {magickName(format)}));
    case Answer::End::Hung:
        return Decoded::failure(
            filledIn(translated("Codecs", "The %1 image cannot be read: its reader did not come to an end."),
                     {magickName(format)}));
    case Answer::End::GivenUp:
        return Decoded::failure(translated("Codecs", "Reading was stopped."));
    case Answer::End::NoMemory:
        return Decoded::failure(translated("Codecs", "There is not enough memory for this image."));
    }
    Decoded decoded;
    DecodedRest& rest = answer.rest;
    decoded.error = std::move(rest.error);
    if (!decoded.error.empty()) return decoded;
    decoded.bitmap = std::move(answer.bitmap);
    decoded.bitmap->properties = std::move(rest.properties);
    decoded.orientation = rest.orientation;
    decoded.damaged = rest.damaged;
    decoded.facts.bits = rest.bits;
    decoded.facts.inks = rest.inks;
    return decoded;
}

/// Straight into a bitmap.
class InThisProcess : public RowTarget
{
public:
    bool begin(int width, int height) override { return (bitmap = BitmapRep::create(width, height)) != nullptr; }
    std::uint8_t* row(int y) override { return bitmap->bitmapData() + y * bitmap->bytesPerRow(); }
    std::shared_ptr<BitmapRep> bitmap;
};

} // namespace

void setForeignDecoding(ForeignDecoding how)
{
    State& all = state();
    std::vector<Decoder> before;
    const std::lock_guard lock(all.mutex);
    before.swap(all.idle);
    all.how = std::move(how);
}

bool readyForeignDecoder()
{
    State& all = state();
    ForeignDecoding how;
    {
        const std::lock_guard lock(all.mutex);
        if (all.how.program.empty()) return false;
        std::erase_if(all.idle, [](const Decoder& one) { return one.isGone(); });
        if (!all.idle.empty()) return true;
        how = all.how;
    }
    Decoder decoder = start(how);
    if (decoder.process > 0) keep(std::move(decoder));
    return true;
}

void readyForeignDecoder(const std::string& path)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat facts {
    };
    if (file < 0 || ::fstat(file, &facts) != 0 || !S_ISREG(facts.st_mode)) return;
    std::array<std::uint8_t, 512> head{};
    const ssize_t got = ::pread(file, head.data(), head.size(), 0);
    if (got > 0 && magickName(sniffFormat({head.data(), std::size_t(got)}))) readyForeignDecoder();
}

Decoded decodeForeign(Bytes bytes, Format format, const ImportOptions& options, int sealed)
{
    if (!magickName(format))
        return Decoded::failure(translated("Codecs", "It is not an image of a kind that can be opened."));
    ForeignDecoding how;
    {
        const std::lock_guard lock(state().mutex);
        how = state().how;
    }
    if (how.program.empty()) {
        InThisProcess target;
        Answer answer;
        answer.rest = readByMagick(bytes, format, options.properties, target);
        answer.bitmap = std::move(target.bitmap);
        return result(answer, Answer::End::Whole, format);
    }
    if (sealed < 0) readyForeignDecoder(); // it begins while the bytes are copied
    const Descriptor copy = sealed < 0 ? fileOf(bytes) : Descriptor();
    const int file = sealed < 0 ? int(copy) : sealed;
    if (file < 0) return Decoded::failure(translated("Codecs", "There is not enough memory to read the file."));
    const DecoderJob job{bytes.size(), std::uint32_t(format), options.properties};
    for (;;) {
        Decoder decoder = takeOrStart(how);
        if (decoder.process <= 0)
            return Decoded::failure(
                filledIn(translated("Codecs", "The image cannot be read: %1."), {tidyMessage(std::strerror(errno))}));
        Answer answer;
        const Answer::End end = give(decoder, job, file) ? answer.take(decoder, how, bytes.size()) : Answer::End::Died;
        // One that was kept may have gone home meanwhile.
        if (end == Answer::End::Died && !answer.wasAccepted() && decoder.isUsed) continue;
        if (end == Answer::End::Whole && answer.rest.error.empty()) keep(std::move(decoder));
        return result(answer, end, format);
    }
}

} // namespace zp::codec
