// SPDX-License-Identifier: GPL-3.0-or-later
/// Opens picture files: reads the bytes, finds their kind, hands them to its reader, turns the result upright.
#include "codecs/ImageImporter.h"
#include "base/PixelMemory.h"
#include "base/Translation.h"
#include "codecs/Codec.h"
#include "codecs/FileWindow.h"
#include "codecs/ForeignDecoder.h"
#include "codecs/MagickReader.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace zp
{
namespace
{

using codec::Bytes;
using codec::Decoded;
using codec::Format;

constexpr std::int64_t kMaxFileBytes = std::int64_t{4} << 30;
/// Up to this a file is read as it is; of a larger one, what its picture needs.
constexpr std::uint64_t kReadWhole = std::uint64_t{64} << 20;
/// Enough to tell the kind of a file.
constexpr std::size_t kHeadBytes = 72u << 10;

/// @param sealed  as decodeForeign() takes it
Decoded decodeAs(Format format, Bytes bytes, const ImportOptions& options, int sealed)
{
    switch (format) {
    case Format::Unknown:
        return Decoded::failure(translated("Codecs", "It is not an image of a kind that can be opened."));
    case Format::JPEG:
        return codec::decodeJPEG(bytes, options);
    case Format::PNG:
        return codec::decodePNG(bytes, options);
    case Format::TIFF:
        return codec::decodeTIFF(bytes, options);
    case Format::PSD:
        if (codec::isIndexedPSD(bytes)) return codec::decodeIndexedPSD(bytes, options);
        [[fallthrough]];
    default:
        return codec::decodeForeign(bytes, format, options, sealed);
    }
}

Decoded decode(Bytes bytes, const ImportOptions& options, int sealed)
{
    if (bytes.empty()) return Decoded::failure(translated("Codecs", "The file is empty."));
    std::size_t start = 0;
    const Format format = codec::sniffFormat(bytes, &start);
    bytes = bytes.subspan(start);
    Decoded decoded = decodeAs(format, bytes, options, start == 0 ? sealed : -1);
    if (decoded.bitmap) codec::readFacts(bytes, format, decoded.facts);
    return decoded;
}

/// A reduction whose picture is turned upright along with the pixels.
Reduction turnedUpright(const Reduction& stored, int orientation)
{
    Reduction r = stored;
    if (r.divisor == 1) return r;
    const bool mirrorsX = orientation == 2 || orientation == 3 || orientation == 6 || orientation == 7;
    const bool mirrorsY = orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8;
    if (codec::swapsSides(orientation)) std::swap(r.width, r.height);
    const auto beyond = [&](int size) { return (r.divisor - size % r.divisor) % r.divisor; };
    r.left = mirrorsX ? beyond(r.width) : 0;
    r.top = mirrorsY ? beyond(r.height) : 0;
    return r;
}

std::string sentenceFor(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return translated("Codecs", "The file does not exist.");
    case EACCES:
    case EPERM:
        return translated("Codecs", "There is no permission to read the file.");
    case ELOOP:
        return translated("Codecs", "The file is a link that leads nowhere.");
    case ENAMETOOLONG:
        return translated("Codecs", "The file's name is too long.");
    default:
        return filledIn(translated("Codecs", "The file cannot be read: %1."),
                        {codec::tidyMessage(std::strerror(error))});
    }
}

class OpenFile
{
public:
    explicit OpenFile(const std::string& path) : mFd(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {
    }
    ~OpenFile()
    {
        if (mFd >= 0) close(mFd);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    int fd() const { return mFd; }

private:
    int mFd;
};

ImportedImage import(Bytes bytes, const ImportOptions& options, int sealed = -1)
{
    ImportedImage image;
    try {
        Decoded decoded = decode(bytes, options, sealed);
        if (decoded.bitmap && decoded.orientation > 1) {
            decoded.bitmap = codec::turnedUpright(*decoded.bitmap, decoded.orientation);
            if (!decoded.bitmap) decoded.error = translated("Codecs", "There is not enough memory for this image.");
        }
        image.bitmap = std::move(decoded.bitmap);
        image.error = std::move(decoded.error);
        image.damaged = decoded.damaged;
        image.reduction = turnedUpright(decoded.reduction, decoded.orientation);
        image.facts = decoded.facts;
        image.facts.endedEarly = image.damaged;
    } catch (const std::bad_alloc&) {
        image = {.error = translated("Codecs", "There is not enough memory for this image.")};
    } catch (const std::exception& e) {
        image = {.error =
                     filledIn(translated("Codecs", "The image cannot be read: %1."), {codec::tidyMessage(e.what())})};
    }
    if (!image.bitmap && image.error.empty()) image.error = translated("Codecs", "The image cannot be read.");
    return image;
}

/// Whether another process reads that kind. If so, it begins now.
bool isReadApart(Format format) { return codec::magickName(format) && codec::readyForeignDecoder(); }

/// A large file, of which only parts are needed, or one that another process reads.
ImportedImage importByWindow(const OpenFile& file, const std::string& path, std::uint64_t size, Bytes head,
                             const ImportOptions& options)
{
    std::size_t start = 0;
    const Format format = codec::sniffFormat(head, &start);
    if (format == Format::Unknown)
        return {.error = translated("Codecs", "It is not an image of a kind that can be opened.")};
    const bool whole = size <= kReadWhole;
    PixelDimensions dimensions;
    std::string error;
    if (!whole) dimensions = imageFileDimensions(path);
    if (dimensions.width > 0 && !codec::checkSize(dimensions.width, dimensions.height, size, error))
        return {.error = error};
    const std::uint64_t most = whole ? size : codec::mostBytesFor(format, dimensions.width, dimensions.height);
    codec::FileWindow window(file.fd(), size, most, isReadApart(format));
    if (!window.isOpen()) return {.error = translated("Codecs", "There is not enough memory to read the file.")};
    whole ? window.take(0, size) : codec::takeNeededParts(window, format, start);
    return import(window.bytes().first(window.end()), options, window.sealed());
}

} // namespace

ImportedImage importImage(std::span<const std::uint8_t> bytes, const ImportOptions& options)
{
    return import(bytes, options);
}

ImportedImage importImageFile(const std::string& path, const ImportOptions& options)
try {
    const OpenFile file(path);
    if (file.fd() < 0) return {.error = sentenceFor(errno)};
    struct stat facts {
    };
    if (fstat(file.fd(), &facts) != 0) return {.error = sentenceFor(errno)};
    if (S_ISDIR(facts.st_mode)) return {.error = translated("Codecs", "It is a folder, not an image.")};
    if (!S_ISREG(facts.st_mode)) return {.error = translated("Codecs", "It is not an ordinary file.")};
    if (facts.st_size == 0) return {.error = translated("Codecs", "The file is empty.")};
    if (facts.st_size > kMaxFileBytes) return {.error = translated("Codecs", "The file is larger than 4 GiB.")};

    const auto size = std::uint64_t(facts.st_size);
    std::vector<std::uint8_t> head(std::min<std::uint64_t>(kHeadBytes, size));
    const ssize_t ofHead = pread(file.fd(), head.data(), head.size(), 0);
    if (ofHead < 0) return {.error = sentenceFor(errno)};
    head.resize(std::size_t(ofHead));
    if (size > kReadWhole || isReadApart(codec::sniffFormat(head)))
        return importByWindow(file, path, size, head, options);
    // Read, not mapped: a mapped file that shrinks meanwhile would take the program down.
    const auto wanted = std::size_t(size);
    auto memory = allocatePixelsUninitialized(wanted);
    if (!memory) return {.error = translated("Codecs", "There is not enough memory to read the file.")};
    std::size_t got = 0;
    while (got < wanted) {
        const ssize_t n = pread(file.fd(), memory.get() + got, wanted - got, off_t(got));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return {.error = sentenceFor(errno)};
        if (n == 0) break; // it shrank: what is left may still be a picture
        got += std::size_t(n);
    }
    return importImage({memory.get(), got}, options);
} catch (const std::exception&) {
    return {.error = translated("Codecs", "There is not enough memory to read the file.")};
}

} // namespace zp
