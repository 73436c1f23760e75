// SPDX-License-Identifier: GPL-3.0-or-later
/// Numbers and counted texts one behind the other. Both sides are the same program: the order is all the format there
/// is.
#include "codecs/DecoderMessage.h"
#include <cstring>

namespace zp::codec
{

namespace
{

class Packing
{
public:
    explicit Packing(std::vector<std::uint8_t>& out) : mOut(out) {}
    template <class T>
    void number(T value)
    {
        const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&value);
        mOut.insert(mOut.end(), bytes, bytes + sizeof value);
    }
    template <class Text>
    void text(const Text& value)
    {
        number(std::uint32_t(value.size()));
        mOut.insert(mOut.end(), value.begin(), value.end());
    }

private:
    std::vector<std::uint8_t>& mOut;
};

class Unpacking
{
public:
    explicit Unpacking(Bytes bytes) : mBytes(bytes) {}
    template <class T>
    void number(T& value)
    {
        if (!has(sizeof value)) return;
        std::memcpy(&value, mBytes.data() + mAt, sizeof value);
        mAt += sizeof value;
    }
    template <class Text>
    void text(Text& value)
    {
        std::uint32_t count = 0;
        number(count);
        if (!has(count)) return;
        value.assign(mBytes.begin() + std::ptrdiff_t(mAt), mBytes.begin() + std::ptrdiff_t(mAt + count));
        mAt += count;
    }
    bool isWhole() const { return mRight && mAt == mBytes.size(); }
    bool isRight() const { return mRight; }

private:
    bool has(std::size_t count) { return mRight = mRight && count <= mBytes.size() - mAt; }

    Bytes mBytes;
    std::size_t mAt = 0;
    bool mRight = true;
};

/// Both directions in one list: they cannot disagree about the order.
template <class Side, class Rest>
void eachField(Side& side, Rest& rest)
{
    side.text(rest.error);
    side.number(rest.orientation);
    side.number(rest.bits);
    side.number(rest.damaged);
    side.number(rest.inks);
    auto& p = rest.properties;
    side.text(p.exif);
    side.text(p.xmp);
    side.text(p.iptc);
    side.text(p.iccProfile);
    side.number(p.xDpi);
    side.number(p.yDpi);
    side.text(p.userComment);
}

} // namespace

std::vector<std::uint8_t> packed(const DecodedRest& rest)
{
    std::vector<std::uint8_t> bytes;
    Packing side(bytes);
    eachField(side, rest);
    for (const auto* list : {&rest.properties.comments, &rest.properties.warnings}) {
        side.number(std::uint32_t(list->size()));
        for (const std::string& text : *list) side.text(text);
    }
    if (bytes.size() <= kMostBlockBytes) return bytes;
    DecodedRest without = rest; // no picture of a sensible kind has so much beside its pixels
    without.properties = {};
    return packed(without);
}

std::optional<DecodedRest> unpacked(Bytes bytes)
{
    DecodedRest rest;
    Unpacking side(bytes);
    eachField(side, rest);
    for (auto* list : {&rest.properties.comments, &rest.properties.warnings}) {
        std::uint32_t count = 0;
        side.number(count);
        for (; count > 0 && side.isRight(); --count) side.text(list->emplace_back());
    }
    if (!side.isWhole() || rest.orientation < 1 || rest.orientation > 8) return std::nullopt;
    return rest;
}

} // namespace zp::codec
