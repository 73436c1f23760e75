// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures read by a process of their own: the same as ever, and nothing that happens there happens here.
#include "codecs/ForeignDecoder.h"
#include "codecs/DecoderWalls.h"
#include "support/Samples.h"
#include "support/TemporaryFolder.h"
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace zp
{
namespace
{

namespace fs = std::filesystem;
using codec::setForeignDecoding;

/// An emulator follows into no other program, and has no filter of system calls.
#ifdef ZP_EMULATED
constexpr bool kEmulated = true;
#else
constexpr bool kEmulated = false;
#endif
constexpr const char* kNotEmulated = "needs this machine's own kernel";

class ForeignDecoder : public testing::Test
{
protected:
    void SetUp() override
    {
        if (kEmulated) GTEST_SKIP() << kNotEmulated;
    }
    ~ForeignDecoder() override { setForeignDecoding({}); }
    static void byProgram() { setForeignDecoding({.program = ZP_PROGRAM, .arguments = {"--decode"}}); }
    static void byShell(const std::string& commands, int milliseconds = 20'000)
    {
        setForeignDecoding(
            {.program = "/bin/sh", .arguments = {"-c", commands}, .patience = std::chrono::milliseconds(milliseconds)});
    }
    static ImportedImage readGIF() { return importImageFile(test::sample("made/valid/base.gif")); }
};

bool isForeign(const fs::path& path)
{
    static const std::vector<std::string> all{".gif", ".bmp", ".psd", ".webp", ".jp2", ".j2k",  ".ppm", ".pgm",
                                              ".pbm", ".sgi", ".pcx", ".ico",  ".cur", ".pict", ".tga"};
    return std::ranges::find(all, path.extension().string()) != all.end();
}

/// Each picture below @p folders is read here, then by the decoder.
void expectTheSame(const std::vector<const char*>& folders, void (*byProgram)())
{
    std::vector<std::pair<std::string, ImportedImage>> all;
    for (const char* folder : folders)
        for (const auto& entry : fs::recursive_directory_iterator(test::sample(folder)))
            if (isForeign(entry.path())) all.emplace_back(entry.path(), importImageFile(entry.path()));
    byProgram();
    for (const auto& [path, here] : all) {
        SCOPED_TRACE(path);
        const ImportedImage there = importImageFile(path);
        EXPECT_EQ(there.error, here.error);
        ASSERT_EQ(bool(there.bitmap), bool(here.bitmap));
        if (!here.bitmap) continue;
        EXPECT_EQ(there.damaged, here.damaged);
        EXPECT_EQ(there.facts, here.facts);
        ASSERT_EQ(there.bitmap->pixelsWide(), here.bitmap->pixelsWide());
        ASSERT_EQ(there.bitmap->pixelsHigh(), here.bitmap->pixelsHigh());
        for (int y = 0; y < here.bitmap->pixelsHigh(); ++y)
            ASSERT_EQ(std::memcmp(there.bitmap->view().pixel(0, y), here.bitmap->view().pixel(0, y),
                                  std::size_t(here.bitmap->pixelsWide()) * 4),
                      0);
        const ImageProperties &a = here.bitmap->properties, &b = there.bitmap->properties;
        EXPECT_EQ(std::tie(a.exif, a.xmp, a.iptc, a.comments, a.iccProfile, a.xDpi, a.yDpi, a.userComment, a.warnings),
                  std::tie(b.exif, b.xmp, b.iptc, b.comments, b.iccProfile, b.xDpi, b.yDpi, b.userComment, b.warnings));
    }
    const auto pictures = std::ranges::count_if(all, [](const auto& one) { return one.second.bitmap != nullptr; });
    EXPECT_GT(pictures, 10);
    EXPECT_GT(std::ssize(all) - pictures, 3) << "those that cannot be read";
}

TEST_F(ForeignDecoder, GivesWhatTheReaderGivesInThisProcess)
{
    expectTheSame({"made/valid", "psd", "bmp-broken", "misc-wuffs"}, byProgram);
}

using ForeignDecoderLong = ForeignDecoder;
TEST_F(ForeignDecoderLong, GivesWhatTheReaderGivesInThisProcess) { expectTheSame({""}, byProgram); }

TEST_F(ForeignDecoder, ReadsSeveralAtOnce)
{
    byProgram();
    std::atomic<int> read = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 6; ++i)
        threads.emplace_back([&] {
            for (int k = 0; k < 5; ++k) read += bool(readGIF().bitmap);
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(read, 30);
}

/// A picture of that size whose pixels all differ from their neighbours, below @p folder.
std::string noise(const fs::path& folder, int width, int height)
{
    const std::string path = folder / (std::to_string(width) + ".ppm");
    std::ofstream file(path, std::ios::binary);
    file << "P6\n" << width << ' ' << height << "\n255\n";
    std::string pixels(std::size_t(width) * std::size_t(height) * 3, '\0');
    for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = char(i * 2654435761u >> 24);
    file << pixels;
    return path;
}

TEST_F(ForeignDecoder, TakesPicturesLargerThanTheMemoryBothShare)
{
    const test::TemporaryFolder folder;
    for (const auto& [width, height] : {std::pair{1501, 1201}, {1500, 900}, {15'000, 40}, {7, 3}}) {
        SCOPED_TRACE(width);
        const std::string path = noise(folder.path(), width, height);
        setForeignDecoding({});
        const ImportedImage here = importImageFile(path);
        ASSERT_TRUE(here.bitmap) << here.error;
        byProgram();
        for (int time = 0; time < 3; ++time) { // the second begins at another slot
            const ImportedImage there = importImageFile(path);
            ASSERT_TRUE(there.bitmap) << there.error;
            EXPECT_EQ(std::memcmp(there.bitmap->bitmapData(), here.bitmap->bitmapData(),
                                  std::size_t(here.bitmap->bytesPerRow()) * std::size_t(height)),
                      0);
        }
    }
}

TEST_F(ForeignDecoder, IsFollowedByAnotherWhenItHasReadEnough)
{
    const test::TemporaryFolder folder;
    const std::string path = noise(folder.path(), 9, 5);
    byProgram();
    for (int i = 0; i < 450; ++i) {
        const ImportedImage image = importImageFile(path);
        ASSERT_TRUE(image.bitmap) << i << ": " << image.error;
    }
}

TEST_F(ForeignDecoder, IsReadyBeforeThePictureWhereOneIsExpected)
{
    EXPECT_FALSE(codec::readyForeignDecoder()) << "images are read in this very process";
    const test::TemporaryFolder folder;
    const std::string begun = folder.path() / "begun";
    const auto appears = [&begun](int times) {
        for (int i = 0; i < times && !fs::exists(begun); ++i) usleep(20'000);
        return fs::exists(begun);
    };
    byShell("touch " + begun + "; exec sleep 100");
    codec::readyForeignDecoder(test::sample("photos/seeding-600-grey.jpg"));
    codec::readyForeignDecoder(folder.path());
    codec::readyForeignDecoder("/no/such/file");
    EXPECT_FALSE(appears(10));
    codec::readyForeignDecoder(test::sample("made/valid/base.gif"));
    EXPECT_TRUE(appears(1000));
    fs::remove(begun);
    EXPECT_TRUE(codec::readyForeignDecoder());
    EXPECT_FALSE(appears(10)) << "one is enough";
}

TEST_F(ForeignDecoder, ThatWentHomeIsFollowedByAnother)
{
    const test::TemporaryFolder folder;
    const std::string starts = folder.path() / "starts";
    byShell("echo >> " + starts);
    const auto isStarted = [&starts](std::uintmax_t times) {
        for (int i = 0; i < 1000; ++i) {
            std::error_code missing;
            codec::readyForeignDecoder();
            if (const auto size = fs::file_size(starts, missing); !missing && size >= times) return true;
            usleep(20'000);
        }
        return false;
    };
    EXPECT_TRUE(isStarted(3));
}

struct Failure {
    const char *name, *commands, *sentence;
};
class FailingDecoder : public ForeignDecoder, public testing::WithParamInterface<Failure>
{
};

TEST_P(FailingDecoder, IsSaidAndTheNextPictureIsRead)
{
    byShell(GetParam().commands, 300);
    const ImportedImage image = readGIF();
    EXPECT_EQ(image.bitmap, nullptr);
    EXPECT_EQ(image.error, GetParam().sentence);
    byProgram();
    EXPECT_NE(readGIF().bitmap, nullptr);
}

constexpr const char* kDied = "The GIF image cannot be read: its reader ended unexpectedly.";
INSTANTIATE_TEST_SUITE_P(
    OfKinds, FailingDecoder,
    testing::Values(
        Failure{"EndsAtOnce", "exit 1", kDied}, Failure{"IsKilled", "kill -9 $$", kDied},
        Failure{"WritesRubbish", "head -c 100000 /dev/urandom", kDied},
        // As agreed until the rows, of which there are fewer, or more, than there should be.
        Failure{"StopsInTheRows", R"(printf '\1\0\0\0\0\0\0\0\2\0\0\0\10\0\0\0\3\0\0\0\2\0\0\0')", kDied},
        Failure{"GivesTooManyRows",
                R"(printf '\2\0\0\0\10\0\0\0\3\0\0\0\2\0\0\0\3\0\0\0\377\377\377\177'; cat /dev/zero)", kDied},
        Failure{"GivesMoreThanASlotHolds",
                R"(printf '\2\0\0\0\10\0\0\0\0\4\0\0\0\4\0\0\3\0\0\0\0\0\20\0'; exec sleep 100)", kDied},
        Failure{"ClaimsAnAbsurdSize", R"(printf '\2\0\0\0\10\0\0\0\377\377\377\177\377\377\377\177')", kDied},
        Failure{"EndsWithoutRows", R"(printf '\2\0\0\0\10\0\0\0\3\0\0\0\2\0\0\0\4\0\0\0\0\0\0\0')", kDied},
        Failure{"Hangs", "exec sleep 100", "The GIF image cannot be read: its reader did not come to an end."}),
    [](const auto& one) { return std::string(one.param.name); });

TEST_F(ForeignDecoder, ThatCannotBeStartedIsSaid)
{
    setForeignDecoding({.program = "/no/such/program"});
    EXPECT_EQ(readGIF().error, "The image cannot be read: No such file or directory.");
}

TEST_F(ForeignDecoder, IsEndedWhenNobodyWantsToWait)
{
    struct Impatient : LongWait {
        bool goOn() override { return false; }
    };
    setForeignDecoding({.program = "/bin/sh", .arguments = {"-c", "exec sleep 100"}, .wait = [] {
                            return std::unique_ptr<LongWait>(new Impatient);
                        }});
    EXPECT_EQ(readGIF().error, "Reading was stopped.");
}

/// @return what @p attempt gave in a process behind the walls: 0 when it was done, else errno
int behindWalls(const std::function<bool()>& attempt)
{
    const pid_t child = fork();
    if (child == 0) {
        codec::buildWalls();
        errno = 0;
        _exit(attempt() ? 0 : errno);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

TEST(DecoderWalls, StandBeforeFilesNetworkAndPrograms)
{
    if (kEmulated) GTEST_SKIP() << kNotEmulated;
    const test::TemporaryFolder folder;
    const std::string there = folder.path() / "there", other = folder.path() / "other";
    std::ofstream(there) << "there";
    EXPECT_EQ(behindWalls([&] { return ::open(there.c_str(), O_RDONLY) >= 0; }), 0) << "reading is what it is for";
    EXPECT_EQ(behindWalls([&] { return ::open(there.c_str(), O_RDWR) >= 0; }), EACCES);
    EXPECT_EQ(behindWalls([&] { return ::open(other.c_str(), O_WRONLY | O_CREAT, 0600) >= 0; }), EACCES);
    EXPECT_EQ(behindWalls([&] { return ::unlink(there.c_str()) == 0; }), EPERM);
    EXPECT_EQ(behindWalls([&] { return ::rename(there.c_str(), other.c_str()) == 0; }), EPERM);
    EXPECT_EQ(behindWalls([&] { return ::mkdir(other.c_str(), 0700) == 0; }), EPERM);
    EXPECT_EQ(behindWalls([&] { return ::chmod(there.c_str(), 0777) == 0; }), EPERM);
    EXPECT_EQ(behindWalls([] { return ::socket(AF_INET, SOCK_STREAM, 0) >= 0; }), EPERM);
    EXPECT_EQ(behindWalls([] { return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }), EPERM);
    EXPECT_EQ(behindWalls([] { return ::execl("/bin/true", "true", nullptr) == 0; }), EPERM);
    EXPECT_EQ(behindWalls([] { return ::fork() >= 0; }), EPERM);
    EXPECT_EQ(behindWalls([] { return ::kill(::getppid(), 0) == 0; }), EPERM);
    EXPECT_TRUE(fs::exists(there));
    EXPECT_FALSE(fs::exists(other));
}

TEST(DecoderWalls, BoundMemory)
{
    if (kEmulated) GTEST_SKIP() << kNotEmulated;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "sanitizers need terabytes of addresses";
#endif
    constexpr std::size_t kSevenGigabytes = std::size_t{7} << 30;
    EXPECT_EQ(behindWalls([] {
                  return ::mmap(nullptr, kSevenGigabytes, PROT_READ | PROT_WRITE,
                                MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0) != MAP_FAILED;
              }),
              ENOMEM);
}

} // namespace
} // namespace zp
