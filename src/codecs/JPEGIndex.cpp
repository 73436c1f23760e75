// SPDX-License-Identifier: GPL-3.0-or-later
/// Stepping over codes, several at a look, and writing a run of rows anew so that it depends on nothing before it.
#include "codecs/JPEGIndex.h"
#include "codecs/JPEGSegments.h"
#include <algorithm>
#include <bit>
#include <cstdlib>

namespace zp::jpeg
{
namespace
{

constexpr int kCoefficients = DCTSIZE2;
/// A code of what is not the mean names how many zeros come before a value, and the value's bits.
constexpr int runOf(int symbol) { return symbol >> 4; }
constexpr int bitsOf(int symbol) { return symbol & 15; }
constexpr bool isEnd(int symbol) { return bitsOf(symbol) == 0 && runOf(symbol) != 15; }

/// Of each number of bits the lower half of the values stands for the negative ones.
constexpr int differenceOf(int value, int bits)
{
    return bits == 0 || value >> (bits - 1) ? value : value - (1 << bits) + 1;
}

using Writer = codec::BitWriter<codec::BitOrder::HighFirstStuffed>;

/// What @p from has before that position, which is behind it.
void copyUntil(CodeReader& from, std::int64_t position, Writer& to)
{
    constexpr std::int64_t kStep = 32;
    for (std::int64_t left = position - from.position(); left > 0;) {
        const int count = int(std::min(left, kStep));
        from.refill();
        to.put(from.peek(count), unsigned(count));
        to.drain();
        from.skip(count);
        left -= count;
    }
}

} // namespace

// ---- bits and codes -------------------------------------------------------------------------------------------------

void CodeReader::refillSlowly()
{
    while (mCount < 56) {
        std::uint64_t byte = 0;
        if (mNext == mEnd || (*mNext == kMark && (mEnd - mNext < 2 || mNext[1] != 0))) {
            mZeros += 8;
        } else {
            byte = *mNext;
            mNext += byte == kMark ? 2 : 1;
        }
        mBits |= byte << (56 - mCount);
        mCount += 8;
        mTaken += 8;
    }
}

bool CodeReader::isAtEndMarker()
{
    refill();
    return mCount >= mZeros && mCount - mZeros < 8 && mEnd - mNext >= 2 && mNext[0] == kMark && mNext[1] == kEndOfImage;
}

bool CodeTable::make(const JHUFF_TBL& table)
{
    int code = 0, count = 0;
    for (int length = 1; length <= kLongest; ++length) {
        const auto l = std::size_t(length);
        mOffset[l] = count - code;
        code += table.bits[l];
        count += table.bits[l];
        if (code > 1 << length || count > int(mSymbols.size())) return false;
        mEnd[l] = code << (kLongest - length);
        code *= 2;
    }
    std::copy_n(std::begin(table.huffval), mSymbols.size(), mSymbols.begin());
    for (std::uint32_t look = 0; look < mShort.size(); ++look) {
        const Code found = longCode(look << (kLongest - kLookBits));
        mShort[look] = found.length <= kLookBits ? found : Code{};
    }
    return true;
}

CodeTable::Code CodeTable::longCode(std::uint32_t sixteenBits) const
{
    for (int length = 1; length <= kLongest; ++length) {
        const auto l = std::size_t(length);
        if (int(sixteenBits) < mEnd[l])
            return {std::uint8_t(length), mSymbols[std::size_t(mOffset[l] + int(sixteenBits >> (kLongest - length)))]};
    }
    return {};
}

// ---- tables ---------------------------------------------------------------------------------------------------------

std::unique_ptr<RowIndex> RowIndex::make(std::span<const std::uint8_t> data, const jpeg_decompress_struct& info,
                                         int rows, int across)
{
    if (info.restart_interval != 0 || info.progressive_mode || info.arith_code || info.data_precision != 8)
        return nullptr;
    if (info.comps_in_scan != info.num_components || info.num_components > kMostComponents) return nullptr;
    if (info.Ss != 0 || info.Se != kCoefficients - 1 || info.Ah != 0 || info.Al != 0) return nullptr;
    std::unique_ptr<RowIndex> index(new RowIndex(data, rows, across));
    return index->takeTables(info) ? std::move(index) : nullptr;
}

RowIndex::RowIndex(std::span<const std::uint8_t> data, int rows, int across)
    : mRows(rows),
      mAcross(across),
      mMeans(NUM_HUFF_TBLS),
      mDetails(NUM_HUFF_TBLS),
      mPlaces(std::size_t(rows) + 1, Place{CodeReader(data)})
{
}

bool RowIndex::takeTables(const jpeg_decompress_struct& info)
{
    std::array<bool, NUM_HUFF_TBLS> haveMeans{}, haveDetails{};
    for (int i = 0; i < info.comps_in_scan; ++i) {
        const jpeg_component_info& c = *info.cur_comp_info[i];
        for (const int number : {c.dc_tbl_no, c.ac_tbl_no})
            if (number < 0 || number >= NUM_HUFF_TBLS) return false;
        const Component component{info.comps_in_scan == 1 ? 1 : c.h_samp_factor * c.v_samp_factor,
                                  std::size_t(c.dc_tbl_no), std::size_t(c.ac_tbl_no), 0};
        const JHUFF_TBL *const means = info.dc_huff_tbl_ptrs[component.means],
                               *const details = info.ac_huff_tbl_ptrs[component.details];
        if (!means || !details) return false;
        if (!haveMeans[component.means] && !(mMeans[component.means].make(*means) && extend(*means, component.means)))
            return false;
        if (!haveDetails[component.details] && !mDetails[component.details].make(*details)) return false;
        haveMeans[component.means] = haveDetails[component.details] = true;
        mComponents.push_back(component);
    }
    for (Component& component : mComponents) {
        const auto first = std::ranges::find_if(mComponents, [&](const Component& other) {
            return other.means == component.means && other.details == component.details;
        });
        if (&*first != &component) {
            component.strides = first->strides;
            continue;
        }
        component.strides = mStrides.size();
        Strides& strides = mStrides.emplace_back();
        for (std::uint32_t look = 0; look < strides.begin.size(); ++look) {
            strides.begin[look] = strideAt(component, look, true);
            strides.within[look] = strideAt(component, look, false);
        }
    }
    return true;
}

/// Codes that are missing come last and are as long as can be, so that all others stay what they are.
bool RowIndex::extend(const JHUFF_TBL& table, std::size_t slot)
{
    JHUFF_TBL all = table;
    std::size_t count = 0;
    for (int length = 1; length <= CodeTable::kLongest; ++length) count += all.bits[length];
    for (int bits = 0; bits <= kMostBitsOfMean; ++bits) {
        if (std::find(all.huffval, all.huffval + count, UINT8(bits)) != all.huffval + count) continue;
        if (count == std::size(all.huffval)) return false;
        all.huffval[count++] = UINT8(bits);
        ++all.bits[CodeTable::kLongest];
    }
    int code = 0;
    std::size_t at = 0;
    for (int length = 1; length <= CodeTable::kLongest; ++length) {
        for (int i = 0; i < all.bits[length]; ++i, ++at, ++code)
            if (all.huffval[at] <= kMostBitsOfMean)
                mWords[slot][all.huffval[at]] = {std::uint16_t(code), std::uint8_t(length)};
        if (code >= 1 << length) return false; // the code of ones alone must stay free
        code *= 2;
    }
    constexpr std::size_t kCounts = CodeTable::kLongest;
    const std::size_t begin = mTables.size(), size = 2 + 1 + kCounts + count;
    mTables.resize(begin + 2 + size);
    std::uint8_t* const to = mTables.data() + begin;
    to[0] = kMark;
    to[1] = kHuffmanTables;
    write16(to + 2, int(size));
    to[4] = std::uint8_t(slot);
    std::copy_n(all.bits + 1, kCounts, to + 5);
    std::copy_n(all.huffval, count, to + 5 + kCounts);
    return true;
}

Stride RowIndex::strideAt(const Component& component, std::uint32_t lookBits, bool atBegin) const
{
    constexpr int kMost = CodeTable::kLookBits;
    int bits = 0, advance = 0, difference = 0;
    const auto codeHere = [&](const CodeTable& table) {
        return table.shortCode((lookBits << bits) & ((1u << kMost) - 1));
    };
    const auto stride = [&](int behind, int to) {
        return Stride{std::int16_t(difference), std::uint8_t(behind), std::uint8_t(to)};
    };
    if (atBegin) {
        const CodeTable::Code mean = codeHere(mMeans[component.means]);
        bits = mean.length + mean.symbol;
        if (mean.length == 0 || mean.symbol > kMostBitsOfMean || bits > kMost) return {};
        difference = differenceOf(int((lookBits >> (kMost - bits)) & ((1u << mean.symbol) - 1)), mean.symbol);
        advance = 1;
    }
    for (;;) {
        const CodeTable::Code next = codeHere(mDetails[component.details]);
        const int behind = bits + next.length + bitsOf(next.symbol), to = advance + runOf(next.symbol) + 1;
        if (next.length == 0 || behind > kMost) break;
        if (isEnd(next.symbol)) return stride(behind, advance + Stride::kEnd);
        if (to >= kCoefficients) break;
        bits = behind;
        advance = to;
    }
    return bits == 0 ? Stride{} : stride(bits, advance);
}

// ---- rows -----------------------------------------------------------------------------------------------------------

/// Takes one code of a block of which @p next coefficients are there. @return how many there are behind it; more than a
/// block has when it is no code
int RowIndex::stepOverCode(CodeReader& reader, const Component& component, int next, int& mean) const
{
    constexpr int kNoCode = kCoefficients + 1;
    reader.refill();
    const CodeTable& table = next == 0 ? mMeans[component.means] : mDetails[component.details];
    const CodeTable::Code code = table.code(reader.peek(CodeTable::kLongest));
    if (code.length == 0) return kNoCode;
    reader.skip(code.length);
    if (next == 0) {
        if (code.symbol > kMostBitsOfMean) return kNoCode;
        if (code.symbol > 0) mean += differenceOf(int(reader.peek(code.symbol)), code.symbol);
        reader.skip(code.symbol);
        return 1;
    }
    reader.skip(bitsOf(code.symbol));
    return isEnd(code.symbol) ? kCoefficients : next + runOf(code.symbol) + 1;
}

bool RowIndex::walkRow(Place& place) const
{
    struct Block {
        const Stride* strides[2]; ///< at its beginning, within it
        std::size_t component, following;
    };
    std::array<Block, MAX_SAMP_FACTOR * MAX_SAMP_FACTOR * kMostComponents> blocks;
    std::size_t count = 0;
    for (std::size_t i = 0; i < mComponents.size(); ++i)
        for (int block = 0; block < mComponents[i].blocks; ++block, ++count)
            blocks[count] = {
                {mStrides[mComponents[i].strides].begin.data(), mStrides[mComponents[i].strides].within.data()},
                i,
                count + 1};
    blocks[count - 1].following = 0;

    // Where a stride leads: below kCoefficients the block goes on, at it or between these it ends, all else must be
    // looked at code by code.
    constexpr unsigned kFirstEnd = Stride::kEnd + 1, kLastEnd = Stride::kEnd + kCoefficients - 1;
    constexpr int kStridesOfRefill = 56 / CodeTable::kLookBits;
    CodeReader reader = place.reader;
    std::array<int, kMostComponents> means = place.means;
    const Block* block = blocks.data();
    unsigned next = 0;
    for (std::int64_t left = std::int64_t(mAcross) * std::int64_t(count); left > 0;) {
        reader.refill();
        for (int i = 0; i < kStridesOfRefill; ++i) {
            const Stride stride = block->strides[next != 0][reader.peek(CodeTable::kLookBits)];
            unsigned behind = next + stride.advance;
            if (behind > kLastEnd || (behind > kCoefficients && behind < kFirstEnd)) {
                behind =
                    unsigned(stepOverCode(reader, mComponents[block->component], int(next), means[block->component]));
                if (behind > kCoefficients) return false;
                i = kStridesOfRefill; // there may be too few bits for another one
            } else {
                reader.skip(stride.bits);
                means[block->component] += stride.difference;
            }
            next = behind;
            if (behind < kCoefficients) continue;
            next = 0;
            block = &blocks[block->following];
            if (--left == 0) break;
        }
    }
    place = {reader, means};
    return !reader.isBeyondEnd() &&
           std::ranges::all_of(means, [](int mean) { return std::abs(mean) < 1 << kMostBitsOfMean; });
}

bool RowIndex::findRows()
{
    bool sound = true;
    for (int row = 0; sound && row < mRows; ++row) {
        Place& behind = mPlaces[std::size_t(row) + 1] = mPlaces[std::size_t(row)];
        sound = walkRow(behind);
        if (row + 1 == mRows) sound = sound && CodeReader(behind.reader).isAtEndMarker();
        const std::scoped_lock lock(mMutex);
        mUnsound = !sound;
        mFound = row + 1;
        mProgressed.notify_all();
    }
    return sound;
}

bool RowIndex::awaitRows(int last)
{
    std::unique_lock lock(mMutex);
    mProgressed.wait(lock, [&] { return mUnsound || mFound >= last; });
    return !mUnsound;
}

CodedRows RowIndex::coded(int first, int last) const
{
    const Place& from = mPlaces[std::size_t(first)];
    const std::int64_t end = mPlaces[std::size_t(last)].reader.position();
    // Every byte may need a zero behind it. The first means take a few bytes more than they did.
    constexpr std::size_t kMore = 64;
    const std::size_t most = 2 * (std::size_t(end - from.reader.position()) / 8 + kMore);
    CodedRows rows{std::make_unique_for_overwrite<std::uint8_t[]>(most), 0};
    Writer writer(rows.memory.get());
    CodeReader reader = from.reader, copied = reader;
    for (std::size_t i = 0; i < mComponents.size(); ++i) {
        const Component& component = mComponents[i];
        copyUntil(copied, reader.position(), writer);
        // What was told as a difference from the row before is told in full.
        int mean = from.means[i], next = stepOverCode(reader, component, 0, mean);
        const auto bits = unsigned(std::bit_width(unsigned(std::abs(mean))));
        const Word& word = mWords[component.means][bits];
        writer.put(word.code, word.length);
        writer.put(unsigned(mean < 0 ? mean + (1 << bits) - 1 : mean), bits);
        writer.drain();
        copied = reader;
        for (int block = 0; block < component.blocks; ++block, next = 0)
            while (next < kCoefficients) next = stepOverCode(reader, component, next, mean);
    }
    copyUntil(copied, end, writer);
    rows.count = std::size_t(writer.finish() - rows.memory.get());
    return rows;
}

} // namespace zp::jpeg
