// SPDX-License-Identifier: GPL-3.0-or-later
/// The size of a picture from the first kilobytes of its file.
#include "codecs/Codec.h"
#include "codecs/MetadataBlocks.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{
namespace
{

using codec::Bytes;
using codec::Format;

/// A file read piece by piece; what lies behind its end is zero.
class HeaderFile
{
public:
    explicit HeaderFile(const std::string& path) : mFd(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {
        struct stat facts {
        };
        if (mFd < 0 || fstat(mFd, &facts) != 0 || !S_ISREG(facts.st_mode)) return;
        mFileSize = std::uint64_t(facts.st_size);
        mHead.resize(std::min<std::uint64_t>(mFileSize, kHead));
        mHead.resize(std::size_t(std::max<ssize_t>(0, pread(mFd, mHead.data(), mHead.size(), 0))));
    }
    ~HeaderFile()
    {
        if (mFd >= 0) close(mFd);
    }
    HeaderFile(const HeaderFile&) = delete;
    HeaderFile& operator=(const HeaderFile&) = delete;

    Bytes head() const { return mHead; }
    std::uint64_t size() const { return mFileSize; }
    /// @return how many of the @p count bytes were there
    std::size_t read(std::uint64_t offset, std::uint8_t* to, std::size_t count) const
    {
        if (count == 0) return 0;
        std::memset(to, 0, count);
        if (offset <= mHead.size() && count <= mHead.size() - offset) {
            std::memcpy(to, mHead.data() + offset, count);
            return count;
        }
        const ssize_t n = offset < mFileSize ? pread(mFd, to, count, off_t(offset)) : 0;
        return n > 0 ? std::size_t(n) : 0;
    }
    std::uint32_t number(std::uint64_t offset, unsigned size, bool bigEndian) const
    {
        std::uint8_t b[8] = {};
        read(offset, b, size);
        std::uint32_t value = 0;
        for (unsigned i = 0; i < size; ++i) value |= std::uint32_t{b[i]} << (bigEndian ? 8 * (size - 1 - i) : 8 * i);
        return value;
    }
    std::uint32_t big(std::uint64_t offset, unsigned size) const { return number(offset, size, true); }
    std::uint32_t little(std::uint64_t offset, unsigned size) const { return number(offset, size, false); }

private:
    static constexpr std::uint64_t kHead = 4096;
    int mFd;
    std::uint64_t mFileSize = 0;
    std::vector<std::uint8_t> mHead;
};

struct Found {
    std::int64_t width = 0, height = 0;
    int orientation = 1;
};

Found fromJPEG(const HeaderFile& file, std::uint64_t at)
{
    Found found;
    bool oriented = false;
    at += 2;
    for (int markers = 0; markers < 2000; ++markers) {
        std::uint8_t b[4];
        if (file.read(at, b, 4) < 4) break;
        if (b[0] != 0xFF) { // bytes between segments are passed over by the decoder too
            ++at;
            continue;
        }
        const unsigned marker = b[1];
        if (marker == 0xFF) {
            ++at;
            continue;
        }
        if (marker == 0xD8 || marker == 0x01 || marker == 0x00 || (marker >= 0xD0 && marker <= 0xD7)) {
            at += 2;
            continue;
        }
        if (marker == 0xD9 || marker == 0xDA) break;
        const unsigned length = unsigned(b[2]) << 8 | b[3];
        if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
            found.height = file.big(at + 5, 2);
            found.width = file.big(at + 7, 2);
            return found;
        }
        if (marker == 0xE1 && !oriented && length > 8) {
            std::vector<std::uint8_t> segment(length - 2);
            segment.resize(file.read(at + 4, segment.data(), segment.size()));
            if (segment.size() > 6 && std::memcmp(segment.data(), "Exif\0", 5) == 0) {
                found.orientation = codec::exifOrientation(Bytes(segment).subspan(6));
                oriented = true;
            }
        }
        at += 2 + std::max(2u, length);
    }
    return found;
}

Found fromPNG(const HeaderFile& file)
{
    Found found;
    found.width = file.big(16, 4);
    found.height = file.big(20, 4);
    std::uint64_t at = 8;
    for (int chunks = 0; chunks < 1000 && at < file.size(); ++chunks) {
        std::uint8_t b[8];
        if (file.read(at, b, 8) < 8) break;
        const std::uint64_t length = file.big(at, 4);
        if (std::memcmp(b + 4, "IEND", 4) == 0) break;
        if (std::memcmp(b + 4, "eXIf", 4) == 0 && length < 1 << 20) {
            std::vector<std::uint8_t> block(length);
            block.resize(file.read(at + 8, block.data(), block.size()));
            found.orientation = codec::exifOrientation(block);
            break;
        }
        at += 12 + length;
    }
    return found;
}

Found fromTIFF(const HeaderFile& file)
{
    const bool bigEndian = file.head()[0] == 'M', bigFile = file.number(2, 2, bigEndian) == 43;
    const auto word = [&](std::uint64_t offset) -> std::uint64_t {
        if (!bigFile) return file.number(offset, 4, bigEndian);
        const std::uint64_t first = file.number(offset, 4, bigEndian), second = file.number(offset + 4, 4, bigEndian);
        return bigEndian ? first << 32 | second : second << 32 | first;
    };
    const std::uint64_t directory = word(bigFile ? 8 : 4);
    const unsigned head = bigFile ? 8 : 2, size = bigFile ? 20 : 12, value = bigFile ? 12 : 8;
    if (directory < 8) return {};
    const std::uint64_t count =
        std::min<std::uint64_t>(bigFile ? word(directory) : file.number(directory, 2, bigEndian), 1000);
    std::vector<std::uint8_t> entries(count * size);
    entries.resize(file.read(directory + head, entries.data(), entries.size()) / size * size);
    Found found;
    for (std::size_t at = 0; at < entries.size(); at += size) {
        const auto number = [&](std::size_t offset, unsigned bytes) {
            std::uint32_t n = 0;
            for (unsigned i = 0; i < bytes; ++i)
                n |= std::uint32_t{entries[at + offset + i]} << (bigEndian ? 8 * (bytes - 1 - i) : 8 * i);
            return n;
        };
        const std::uint32_t tag = number(0, 2), type = number(2, 2);
        const std::uint32_t n = type == 3    ? number(value, 2)
                                : type == 16 ? number(value + (bigEndian ? 4 : 0), 4)
                                : type == 1  ? number(value, 1)
                                             : number(value, 4);
        if (tag == 256 && !found.width) found.width = n;
        if (tag == 257 && !found.height) found.height = n;
        if (tag == 274 && n >= 1 && n <= 8) found.orientation = int(n);
    }
    return found;
}

Found fromWebP(const HeaderFile& file)
{
    const Bytes b = file.head();
    if (b.size() < 30) return {};
    switch (b[15]) {
    case ' ':
        return {file.little(26, 2) & 0x3FFF, file.little(28, 2) & 0x3FFF};
    case 'L': {
        const std::uint32_t bits = file.little(21, 4);
        return {std::int64_t(bits & 0x3FFF) + 1, std::int64_t(bits >> 14 & 0x3FFF) + 1};
    }
    case 'X': {
        Found found{std::int64_t(file.little(24, 3)) + 1, std::int64_t(file.little(27, 3)) + 1};
        std::uint64_t at = 12;
        for (int chunks = 0; chunks < 1000 && at + 8 <= file.size(); ++chunks) {
            std::uint8_t name[4];
            file.read(at, name, 4);
            const std::uint64_t length = file.little(at + 4, 4);
            if (std::memcmp(name, "EXIF", 4) == 0 && length > 8 && length < 1 << 20) {
                std::vector<std::uint8_t> block(length);
                block.resize(file.read(at + 8, block.data(), block.size()));
                Bytes exif = block;
                if (exif.size() > 6 && std::memcmp(exif.data(), "Exif\0", 5) == 0) exif = exif.subspan(6);
                found.orientation = codec::exifOrientation(exif);
                break;
            }
            at += 8 + length + (length & 1);
        }
        return found;
    }
    default:
        return {};
    }
}

Found fromJP2(const HeaderFile& file, bool codestream)
{
    if (codestream)
        return {std::int64_t(file.big(8, 4)) - file.big(16, 4), std::int64_t(file.big(12, 4)) - file.big(20, 4)};
    const Bytes b = file.head();
    static constexpr std::uint8_t kBox[] = {'i', 'h', 'd', 'r'};
    const auto found = std::search(b.begin(), b.end(), std::begin(kBox), std::end(kBox));
    if (found == b.end()) return {};
    const auto at = std::uint64_t(found - b.begin());
    return {file.big(at + 8, 4), file.big(at + 4, 4)};
}

Found fromPNM(Bytes b)
{
    std::size_t at = 2;
    if (b[1] == '7') { // "WIDTH n" and "HEIGHT n" on lines of their own
        const std::string text(b.begin(), b.end());
        const auto field = [&](const char* name) {
            const auto p = text.find(name);
            return p == std::string::npos ? 0L : std::strtol(text.c_str() + p + std::strlen(name), nullptr, 10);
        };
        return {field("\nWIDTH"), field("\nHEIGHT")};
    }
    std::int64_t numbers[2] = {};
    for (std::int64_t& n : numbers) {
        while (at < b.size() && !std::isdigit(b[at])) {
            if (b[at] == '#')
                while (at < b.size() && b[at] != '\n') ++at;
            else
                ++at;
        }
        for (; at < b.size() && std::isdigit(b[at]) && n < 1'000'000'000; ++at) n = n * 10 + (b[at] - '0');
    }
    return {numbers[0], numbers[1]};
}

Found fromPICT(const HeaderFile& file)
{
    std::uint8_t version[4];
    file.read(522, version, 4);
    const bool withHead = (version[0] == 0 && version[1] == 0x11) || (version[0] == 0x11 && version[1] == 1);
    const std::uint64_t at = withHead ? 514 : 2;
    const auto side = [&](unsigned offset) { return std::int64_t(std::int16_t(file.big(at + offset, 2))); };
    return {side(6) - side(2), side(4) - side(0)};
}

Found headerOf(const HeaderFile& file)
{
    const Bytes b = file.head();
    std::size_t start = 0;
    switch (codec::sniffFormat(b, &start)) {
    case Format::JPEG:
        return fromJPEG(file, start);
    case Format::PNG:
        return fromPNG(file);
    case Format::TIFF:
        return fromTIFF(file);
    case Format::GIF:
        return {file.little(6, 2), file.little(8, 2)};
    case Format::BMP:
        if (file.little(14, 4) == 12) return {file.little(18, 2), file.little(20, 2)};
        return {std::int32_t(file.little(18, 4)), std::abs(std::int64_t(std::int32_t(file.little(22, 4))))};
    case Format::PSD:
        return {file.big(18, 4), file.big(14, 4)};
    case Format::WebP:
        return fromWebP(file);
    case Format::JP2:
        return fromJP2(file, false);
    case Format::J2K:
        return fromJP2(file, true);
    case Format::PNM:
        return fromPNM(b);
    case Format::SGI:
        return {file.big(6, 2), file.big(8, 2)};
    case Format::PCX:
        return {std::int64_t(file.little(8, 2)) - file.little(4, 2) + 1,
                std::int64_t(file.little(10, 2)) - file.little(6, 2) + 1};
    case Format::ICO:
    case Format::CUR:
        return {b[6] ? b[6] : 256, b[7] ? b[7] : 256};
    case Format::TGA:
        return {file.little(12, 2), file.little(14, 2)};
    case Format::PICT:
        return fromPICT(file);
    case Format::Unknown:
        break;
    }
    return {};
}

} // namespace

PixelDimensions imageFileDimensions(const std::string& path)
{
    const HeaderFile file(path);
    if (file.head().size() < 8) return {};
    Found found = headerOf(file);
    if (found.width <= 0 || found.height <= 0 || found.width > INT32_MAX || found.height > INT32_MAX) return {};
    if (codec::swapsSides(found.orientation)) std::swap(found.width, found.height);
    return {int(found.width), int(found.height)};
}

} // namespace zp
