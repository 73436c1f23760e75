// SPDX-License-Identifier: GPL-3.0-or-later
/// Digests of files.
#include "library/PictureMark.h"
#include "base/Folders.h"
#include "codecs/ImageImporter.h"
#include "library/Digest.h"
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace zp
{

namespace
{

/// Eight blocks: two scans of one size may have the same header and the same white margins, but not the same middle
/// too.
constexpr int kBlocks = 8;
constexpr std::int64_t kBlockBytes = 16 * 1024;
constexpr std::int64_t kWholePiece = 1 << 20;
/// Enough for the look's waves at every size that JPEG decodes to.
constexpr int kLookSide = 128;

class OpenFile
{
public:
    explicit OpenFile(const std::string& path)
        : mFile(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {
        if (mFile >= 0 && (::fstat(mFile, &mFacts) != 0 || !S_ISREG(mFacts.st_mode))) {
            ::close(mFile);
            mFile = -1;
        }
    }
    ~OpenFile()
    {
        if (mFile >= 0) ::close(mFile);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    bool isOpen() const { return mFile >= 0; }
    std::int64_t size() const { return mFacts.st_size; }
    std::int64_t modified() const
    {
        return std::int64_t(mFacts.st_mtim.tv_sec) * 1'000'000'000 + mFacts.st_mtim.tv_nsec;
    }
    /// @return whether all of it could be read
    bool read(std::int64_t offset, char* bytes, std::int64_t count) const
    {
        while (count > 0) {
            const ssize_t got = ::pread(mFile, bytes, std::size_t(count), offset);
            if (got < 0 && errno == EINTR) continue;
            if (got <= 0) return false;
            offset += got, bytes += got, count -= got;
        }
        return true;
    }

private:
    struct stat mFacts {
    };
    int mFile;
};

} // namespace

std::optional<PictureMark> markOfFile(const std::string& path)
{
    const OpenFile file(path);
    if (!file.isOpen()) return std::nullopt;
    PictureMark mark{.size = file.size(), .modified = file.modified()};
    std::vector<char> block(std::size_t(kBlocks * kBlockBytes));
    Digest digest;
    if (mark.size <= kBlocks * kBlockBytes) {
        if (!file.read(0, block.data(), mark.size)) return std::nullopt;
        digest.add(block.data(), std::size_t(mark.size));
    } else {
        for (int i = 0; i < kBlocks; ++i) {
            if (!file.read((mark.size - kBlockBytes) * i / (kBlocks - 1), block.data(), kBlockBytes))
                return std::nullopt;
            digest.add(block.data(), std::size_t(kBlockBytes));
        }
    }
    mark.samples = digest.value();
    return mark;
}

std::optional<std::uint64_t> digestOfFile(const std::string& path, const std::stop_token& stop)
{
    const OpenFile file(path);
    if (!file.isOpen()) return std::nullopt;
    std::vector<char> piece(std::size_t(std::min(kWholePiece, file.size())));
    Digest digest;
    for (std::int64_t at = 0; at < file.size(); at += kWholePiece) {
        const std::int64_t count = std::min(kWholePiece, file.size() - at);
        if (stop.stop_requested() || !file.read(at, piece.data(), count)) return std::nullopt;
        digest.add(piece.data(), std::size_t(count));
    }
    return digest.value();
}

std::optional<PictureLook> lookOfFile(const std::string& path)
{
    const ImportedImage read =
        importImageFile(path, {.atLeastWidth = kLookSide, .atLeastHeight = kLookSide, .properties = false});
    return read.bitmap ? lookOfPicture(read.bitmap->view()) : std::nullopt;
}

} // namespace zp
