// SPDX-License-Identifier: GPL-3.0-or-later
/// Blending of premultiplied pixels.
#include "drawing/ImageDrawingBlend.h"
#include <algorithm>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/ImageDrawingBlend.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// d = f(tag, place, what is there) for every pixel of a run.
template <class F>
HWY_INLINE void change(std::uint32_t* pixels, int count, F&& f)
{
    forEachVector<std::uint32_t>(std::size_t(count), [&](auto d, std::size_t at) ZP_LANES {
        const auto there = widen(d, hn::LoadU(d, pixels + at));
        hn::StoreU(narrow(d, f(d, at, there)), d, pixels + at);
    });
}

template <class D>
HWY_INLINE hn::Vec<Wide16<D>> rest(D, hn::Vec<Wide16<D>> weight)
{
    return hn::Sub(hn::Set(Wide16<D>(), 255), weight);
}

template <class D>
HWY_INLINE hn::Vec<Wide16<D>> all(D, unsigned value)
{
    return hn::Set(Wide16<D>(), std::uint16_t(value));
}

/// The source of a run at a place, faded.
struct Source {
    const std::uint32_t* pixels; ///< null: word everywhere
    std::uint32_t word;          ///< faded already
    unsigned opacity;            ///< of the pixels

    template <class D>
    HWY_INLINE hn::Vec<D> at(D d, std::size_t place) const
    {
        return pixels ? hn::LoadU(d, pixels + place) : hn::Set(d, word);
    }
    template <class D>
    HWY_INLINE Samples<D> faded(D d, std::size_t place) const
    {
        const auto samples = widen(d, at(d, place));
        return pixels && opacity != 255 ? scaled(d, samples, all(d, opacity)) : samples;
    }
};

/// Source-over, every pixel's source weighed by @p weight(tag, place).
template <class Weight>
HWY_INLINE void over(std::uint32_t* pixels, const Source& source, int count, Weight&& weight)
{
    change(pixels, count, [&](auto d, std::size_t at, const auto& there) ZP_LANES {
        const auto from = source.at(d, at);
        const auto share = weight(d, at);
        const auto kept = rest(d, divide255(Wide16<decltype(d)>(), hn::Mul(alphaOf(d, from), share)));
        return mixed(d, widen(d, from), share, there, kept);
    });
}

/// Source-over at full cover.
void overWhole(std::uint32_t* pixels, const std::uint32_t* source, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        storeOver(d, hn::LoadU(d, source + at), pixels + at);
    });
}

void sourceOver(const BlendRun& r, std::uint32_t word, unsigned opacity)
{
    const Source source{r.source, word, 255}; // the weights do the fading of pixels
    if (!r.source && (word & 255) == 0) return;
    if (r.cover) {
        const std::uint8_t* const cover = r.cover;
        if (!r.source || opacity == 255)
            return over(r.destination, source, r.count,
                        [=](auto d, std::size_t at) ZP_LANES { return loadSpread(d, cover + at); });
        return over(r.destination, source, r.count, [=](auto d, std::size_t at) ZP_LANES {
            return divide255(Wide16<decltype(d)>(), hn::Mul(loadSpread(d, cover + at), all(d, opacity)));
        });
    }
    if (!r.source && (word & 255) == 255) {
        std::fill_n(r.destination, r.count, word);
        return;
    }
    if (r.source && opacity == 255) return overWhole(r.destination, r.source, r.count);
    const unsigned weight = r.source ? opacity : 255;
    over(r.destination, source, r.count, [=](auto d, std::size_t) ZP_LANES { return all(d, weight); });
}

void copy(const BlendRun& r, std::uint32_t word, unsigned opacity)
{
    const Source source{r.source, word, opacity};
    if (r.cover) {
        const std::uint8_t* const cover = r.cover;
        return change(r.destination, r.count, [=](auto d, std::size_t at, const auto& there) ZP_LANES {
            const auto share = loadSpread(d, cover + at);
            return mixed(d, source.faded(d, at), share, there, rest(d, share));
        });
    }
    if (!r.source)
        std::fill_n(r.destination, r.count, word);
    else if (opacity == 255)
        std::memmove(r.destination, r.source, std::size_t(r.count) * 4);
    else
        change(r.destination, r.count,
               [=](auto d, std::size_t at, const auto&) ZP_LANES { return source.faded(d, at); });
}

/// The source where the destination is: faded by its alpha.
void sourceIn(const BlendRun& r, std::uint32_t word, unsigned opacity)
{
    const unsigned fade = r.source ? opacity : 255;
    const Source source{r.source, word, 255};
    const std::uint8_t* const cover = r.cover;
    change(r.destination, r.count, [=](auto d, std::size_t at, const auto& there) ZP_LANES {
        const Wide16<decltype(d)> d16;
        const auto alpha = alphaOf(d, narrow(d, there));
        const auto inside = scaled(d, widen(d, source.at(d, at)), divide255(d16, hn::Mul(alpha, all(d, fade))));
        if (!cover) return inside;
        const auto share = loadSpread(d, cover + at);
        return mixed(d, inside, share, there, rest(d, share));
    });
}

void clear(const BlendRun& r)
{
    if (!r.cover) {
        std::fill_n(r.destination, r.count, 0u);
        return;
    }
    const std::uint8_t* const cover = r.cover;
    change(r.destination, r.count, [=](auto d, std::size_t at, const auto& there) ZP_LANES {
        return scaled(d, there, rest(d, loadSpread(d, cover + at)));
    });
}

void blendRun(const BlendRun& r, CompositingOperation operation, unsigned opacity)
{
    std::uint32_t word = r.word;
    if (!r.source && opacity != 255) {
        const hn::CappedTag<std::uint32_t, 1> one;
        word = hn::GetLane(narrow(one, scaled(one, widen(one, hn::Set(one, r.word)), all(one, opacity))));
    }
    switch (operation) {
    case CompositingOperation::Clear:
        return clear(r);
    case CompositingOperation::Copy:
        return copy(r, word, opacity);
    case CompositingOperation::SourceOver:
        if (opacity != 0) sourceOver(r, word, opacity);
        return;
    case CompositingOperation::SourceIn:
        return sourceIn(r, word, opacity);
    }
}

/// cover = cover * (other ^ flip) / 255.
HWY_INLINE void multiply(std::uint8_t* cover, const std::uint8_t* other, int count, std::uint8_t flip)
{
    forEachVector<std::uint16_t>(std::size_t(count), [&](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::uint8_t, decltype(d)> bytes;
        const auto by = hn::Xor(hn::LoadU(bytes, other + at), hn::Set(bytes, flip));
        const auto product = hn::Mul(hn::PromoteTo(d, hn::LoadU(bytes, cover + at)), hn::PromoteTo(d, by));
        const hn::RebindToSigned<decltype(d)> whole;
        hn::StoreU(hn::DemoteTo(bytes, hn::BitCast(whole, divide255(d, product))), bytes, cover + at);
    });
}

void multiplyCover(std::uint8_t* cover, const std::uint8_t* other, int count) { multiply(cover, other, count, 0); }
void multiplyCoverByMask(std::uint8_t* cover, const std::uint8_t* mask, int count)
{
    multiply(cover, mask, count, 255);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(blendRun);
HWY_EXPORT(multiplyCover);
HWY_EXPORT(multiplyCoverByMask);

void blendRun(const BlendRun& run, CompositingOperation operation, unsigned opacity)
{
    if (run.count > 0) HWY_DYNAMIC_DISPATCH(blendRun)(run, operation, opacity);
}

void multiplyCover(std::uint8_t* cover, const std::uint8_t* other, int count)
{
    HWY_DYNAMIC_DISPATCH(multiplyCover)(cover, other, count);
}

void multiplyCoverByMask(std::uint8_t* cover, const std::uint8_t* mask, int count)
{
    HWY_DYNAMIC_DISPATCH(multiplyCoverByMask)(cover, mask, count);
}

} // namespace zp
#endif
