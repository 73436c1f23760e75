// SPDX-License-Identifier: GPL-3.0-or-later
/// Takes EXIF blocks and the heads of TIFF files apart and puts blocks together.
#include "codecs/MetadataBlocks.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr std::size_t kMaxEntries = 1000;         // per directory; cameras write about sixty
constexpr std::size_t kMaxNoteEnd = 60'000;       // beyond, a block that keeps the place would not fit a JPEG file
constexpr std::size_t kMaxBlockBytes = 16 << 20;  // of all values together
constexpr std::uint64_t kMaxValueBytes = 4 << 20; // a maker note of a few hundred kilobytes is the largest known

std::size_t sizeOfType(std::uint16_t type)
{
    static constexpr std::array<std::uint8_t, 14> kSizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < kSizes.size() ? kSizes[type] : 0;
}

/// Numbers out of a block, in its byte order; outside of it everything is zero.
struct Reader {
    std::span<const std::uint8_t> bytes;
    bool bigEndian = false;
    bool bigFile = false; ///< BigTIFF: counts and offsets of 64 bits

    bool holds(std::uint64_t offset, std::uint64_t count) const
    {
        return offset <= bytes.size() && count <= bytes.size() - offset;
    }
    std::uint64_t number(std::uint64_t offset, unsigned size) const
    {
        if (!holds(offset, size)) return 0;
        std::uint64_t value = 0;
        for (unsigned i = 0; i < size; ++i)
            value |= std::uint64_t{bytes[offset + i]} << (bigEndian ? 8 * (size - 1 - i) : 8 * i);
        return value;
    }
    unsigned word() const { return bigFile ? 8 : 4; }

    /// The offset of the first directory, 0 when this is no TIFF structure.
    std::uint64_t open()
    {
        if (bytes.size() < 8) return 0;
        if (std::memcmp(bytes.data(), "II", 2) != 0 && std::memcmp(bytes.data(), "MM", 2) != 0) return 0;
        bigEndian = bytes[0] == 'M';
        const auto magic = number(2, 2);
        if (magic != 42 && magic != 43) return 0;
        bigFile = magic == 43;
        return bigFile ? number(8, 8) : number(4, 4);
    }
};

/// Entries of a directory's pixels, which belong to the file and not to the picture; and those kept elsewhere.
bool describesFile(std::uint16_t tag)
{
    static constexpr std::uint16_t kTags[] = {
        254, 255, 256, 257, 258, 259, 262, 263,   264,   265,   266,   273,   277,   278,   279,   280,  281, 284, 288,
        289, 290, 291, 292, 293, 301, 317, 318,   319,   320,   321,   322,   323,   324,   325,   326,  327, 328, 330,
        332, 333, 334, 336, 337, 338, 339, 340,   341,   342,   343,   347,   512,   513,   514,   515,  517, 518, 519,
        520, 521, 529, 530, 531, 532, 700, 32995, 32996, 34377, 34665, 34675, 34853, 37439, 37724, 40965};
    return std::binary_search(std::begin(kTags), std::end(kTags), tag);
}

std::uint64_t pointerIn(const Reader& in, std::uint64_t directory, std::uint16_t wanted)
{
    const unsigned head = in.bigFile ? 8 : 2, size = in.bigFile ? 20 : 12;
    const std::uint64_t count = std::min<std::uint64_t>(in.number(directory, head), kMaxEntries);
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t at = directory + head + i * size;
        if (!in.holds(at, size)) return 0;
        if (in.number(at, 2) == wanted) return in.number(at + (in.bigFile ? 12 : 8), in.word());
    }
    return 0;
}

void readDirectory(const Reader& in, std::uint64_t offset, ExifDirectory& out, std::size_t& budget, bool& damaged)
{
    const unsigned head = in.bigFile ? 8 : 2, size = in.bigFile ? 20 : 12;
    if (!in.holds(offset, head)) {
        damaged = true;
        return;
    }
    std::uint64_t count = in.number(offset, head);
    if (count > kMaxEntries) {
        damaged = true;
        return;
    }
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t at = offset + head + i * size;
        if (!in.holds(at, size)) {
            damaged = true;
            return;
        }
        ExifEntry entry;
        entry.tag = std::uint16_t(in.number(at, 2));
        entry.type = std::uint16_t(in.number(at + 2, 2));
        if (describesFile(entry.tag) || entry.tag == tag::InteropIFD) continue;
        const std::uint64_t values = in.number(at + 4, in.word());
        const std::size_t each = sizeOfType(entry.type);
        if (each == 0 || values == 0 || values > kMaxValueBytes / each) {
            damaged |= values != 0;
            continue;
        }
        const std::uint64_t length = values * each;
        std::uint64_t from = at + 4 + in.word();
        if (length > in.word()) {
            from = in.number(from, in.word());
            entry.offset = from <= UINT32_MAX ? std::uint32_t(from) : 0;
        }
        if (!in.holds(from, length) || length > budget || ExifBlock::find(out, entry.tag)) {
            damaged = true;
            continue;
        }
        budget -= length;
        entry.count = std::uint32_t(values);
        entry.value.assign(in.bytes.begin() + std::ptrdiff_t(from), in.bytes.begin() + std::ptrdiff_t(from + length));
        out.push_back(std::move(entry));
    }
}

void putNumber(std::uint8_t* at, std::uint64_t value, unsigned size, bool bigEndian)
{
    for (unsigned i = 0; i < size; ++i) at[i] = std::uint8_t(value >> (bigEndian ? 8 * (size - 1 - i) : 8 * i));
}

/// Hands out even offsets one behind the other, around a region that is taken.
struct Layout {
    std::uint64_t cursor = 8, takenFrom = 0, takenTo = 0;

    std::uint64_t place(std::uint64_t size)
    {
        cursor += cursor & 1;
        if (cursor < takenTo && cursor + size > takenFrom) cursor = takenTo + (takenTo & 1);
        const std::uint64_t at = cursor;
        cursor += size;
        return at;
    }
};

struct PlacedDirectory {
    ExifDirectory entries;
    std::uint64_t at = 0;
    std::vector<std::uint64_t> values{}; ///< where those too long for their entry go

    void place(Layout& layout)
    {
        std::sort(entries.begin(), entries.end(), [](const ExifEntry& a, const ExifEntry& b) { return a.tag < b.tag; });
        at = layout.place(2 + 12 * entries.size() + 4);
        for (const ExifEntry& e : entries) {
            const bool stays = e.tag == tag::MakerNote && layout.takenFrom && e.offset == layout.takenFrom;
            values.push_back(e.value.size() <= 4 ? 0 : stays ? layout.takenFrom : layout.place(e.value.size()));
        }
    }
    void write(std::vector<std::uint8_t>& out, bool bigEndian) const
    {
        putNumber(&out[at], entries.size(), 2, bigEndian);
        std::uint8_t* p = &out[at + 2];
        for (std::size_t i = 0; i < entries.size(); ++i, p += 12) {
            const ExifEntry& e = entries[i];
            putNumber(p, e.tag, 2, bigEndian);
            putNumber(p + 2, e.type, 2, bigEndian);
            putNumber(p + 4, e.count, 4, bigEndian);
            if (e.value.size() <= 4) {
                std::copy(e.value.begin(), e.value.end(), p + 8);
            } else {
                putNumber(p + 8, values[i], 4, bigEndian);
                std::copy(e.value.begin(), e.value.end(), out.begin() + std::ptrdiff_t(values[i]));
            }
        }
    }
};

} // namespace

const ExifEntry* ExifBlock::find(const ExifDirectory& directory, std::uint16_t wanted)
{
    for (const ExifEntry& e : directory)
        if (e.tag == wanted) return &e;
    return nullptr;
}

std::optional<std::uint32_t> ExifBlock::number(const ExifDirectory& directory, std::uint16_t wanted) const
{
    const ExifEntry* e = find(directory, wanted);
    if (!e || (e->type != kByte && e->type != kShort && e->type != kLong) || e->value.empty()) return std::nullopt;
    const Reader in{e->value, bigEndian};
    return std::uint32_t(in.number(0, unsigned(sizeOfType(e->type))));
}

std::optional<double> ExifBlock::rational(const ExifDirectory& directory, std::uint16_t wanted) const
{
    const ExifEntry* e = find(directory, wanted);
    if (!e || e->type != kRational || e->value.size() < 8) return std::nullopt;
    const Reader in{e->value, bigEndian};
    const auto divisor = in.number(4, 4);
    if (divisor == 0) return std::nullopt;
    return double(in.number(0, 4)) / double(divisor);
}

void ExifBlock::setBytes(ExifDirectory& directory, std::uint16_t t, std::uint16_t type, std::uint32_t count,
                         std::vector<std::uint8_t> value)
{
    erase(directory, t);
    directory.push_back({t, type, count, std::move(value), 0});
}

void ExifBlock::setNumbers(ExifDirectory& directory, std::uint16_t t, std::uint16_t type,
                           std::span<const std::uint32_t> values)
{
    const std::size_t each = sizeOfType(type);
    std::vector<std::uint8_t> bytes(each * values.size());
    for (std::size_t i = 0; i < values.size(); ++i) putNumber(&bytes[i * each], values[i], unsigned(each), bigEndian);
    setBytes(directory, t, type, std::uint32_t(values.size()), std::move(bytes));
}

void ExifBlock::setNumber(ExifDirectory& directory, std::uint16_t t, std::uint16_t type, std::uint32_t value)
{
    setNumbers(directory, t, type, {&value, 1});
}

void ExifBlock::setRational(ExifDirectory& directory, std::uint16_t t, double value)
{
    std::vector<std::uint8_t> bytes(8);
    const bool whole = value == std::floor(value) && value < 4e9;
    const std::uint32_t divisor = whole ? 1 : value < 40'000 ? 100'000 : 1;
    putNumber(bytes.data(), std::uint32_t(std::clamp(std::round(value * divisor), 0.0, 4294967295.0)), 4, bigEndian);
    putNumber(bytes.data() + 4, divisor, 4, bigEndian);
    setBytes(directory, t, kRational, 1, std::move(bytes));
}

void ExifBlock::erase(ExifDirectory& directory, std::uint16_t t)
{
    std::erase_if(directory, [t](const ExifEntry& e) { return e.tag == t; });
}

std::optional<ExifBlock> parseExif(std::span<const std::uint8_t> bytes)
{
    Reader in{bytes};
    const std::uint64_t first = in.open();
    if (first < 8 || !in.holds(first, 2)) return std::nullopt;

    ExifBlock block;
    block.bigEndian = in.bigEndian;
    std::size_t budget = kMaxBlockBytes;
    readDirectory(in, first, block.image, budget, block.damaged);
    const std::uint64_t photo = pointerIn(in, first, tag::ExifIFD);
    const std::uint64_t gps = pointerIn(in, first, tag::GPSIFD);
    const auto usable = [&](std::uint64_t offset, std::initializer_list<std::uint64_t> others) {
        if (offset == 0) return false;
        const bool met = std::find(others.begin(), others.end(), offset) != others.end();
        block.damaged |= met;
        return !met;
    };
    if (usable(photo, {first})) {
        readDirectory(in, photo, block.photo, budget, block.damaged);
        const std::uint64_t interop = pointerIn(in, photo, tag::InteropIFD);
        if (usable(interop, {first, photo, gps})) readDirectory(in, interop, block.interop, budget, block.damaged);
    }
    if (usable(gps, {first, photo})) readDirectory(in, gps, block.gps, budget, block.damaged);
    return block;
}

std::vector<std::uint8_t> serialiseExif(const ExifBlock& block)
{
    if (block.isEmpty()) return {};
    Layout layout;
    if (const ExifEntry* note = ExifBlock::find(block.photo, tag::MakerNote);
        note && note->offset >= 8 && note->offset + note->value.size() < kMaxNoteEnd && note->value.size() > 4) {
        layout.takenFrom = note->offset;
        layout.takenTo = note->offset + note->value.size();
    }
    ExifBlock whole = block; // for the byte order; pointers are added to the directories below
    PlacedDirectory image{block.image}, photo{block.photo}, gps{block.gps}, interop{block.interop};
    if (!interop.entries.empty()) whole.setNumber(photo.entries, tag::InteropIFD, kLong, 0);
    if (!photo.entries.empty()) whole.setNumber(image.entries, tag::ExifIFD, kLong, 0);
    if (!gps.entries.empty()) whole.setNumber(image.entries, tag::GPSIFD, kLong, 0);
    for (PlacedDirectory* d : {&image, &photo, &gps, &interop})
        if (!d->entries.empty()) d->place(layout);
    const auto point = [&](PlacedDirectory& from, std::uint16_t t, const PlacedDirectory& to) {
        for (ExifEntry& e : from.entries)
            if (e.tag == t) putNumber(e.value.data(), to.at, 4, block.bigEndian);
    };
    point(photo, tag::InteropIFD, interop);
    point(image, tag::ExifIFD, photo);
    point(image, tag::GPSIFD, gps);

    std::vector<std::uint8_t> out(std::max(layout.cursor, layout.takenTo));
    out[0] = out[1] = block.bigEndian ? 'M' : 'I';
    putNumber(&out[2], 42, 2, block.bigEndian);
    putNumber(&out[4], image.at, 4, block.bigEndian);
    for (const PlacedDirectory* d : {&image, &photo, &gps, &interop})
        if (!d->entries.empty()) d->write(out, block.bigEndian);
    return out;
}

int exifOrientation(std::span<const std::uint8_t> exif)
{
    Reader in{exif};
    const std::uint64_t first = in.open();
    if (first < 8) return 1;
    const unsigned head = in.bigFile ? 8 : 2, size = in.bigFile ? 20 : 12;
    const std::uint64_t count = std::min<std::uint64_t>(in.number(first, head), kMaxEntries);
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t at = first + head + i * size;
        if (!in.holds(at, size)) return 1;
        if (in.number(at, 2) != tag::Orientation) continue;
        const auto type = in.number(at + 2, 2);
        if ((type != kShort && type != kLong) || in.number(at + 4, in.word()) != 1) return 1;
        const auto value = in.number(at + 4 + in.word(), type == kShort ? 2 : 4);
        return value >= 1 && value <= 8 ? int(value) : 1;
    }
    return 1;
}

} // namespace zp::codec
