// SPDX-License-Identifier: GPL-3.0-or-later
/// Non-owning views of pixel and mask memory: what every algorithm takes.
#pragma once
#include "base/Geometry.h"
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace zp
{

/// 8 bits a sample, bytes A, R, G, B, colour premultiplied by alpha, row 0 on top; rows are rowBytes apart (a multiple
/// of 64, always more than 4 * width). Bytes between the end of a row and the next are spare: never read for meaning.
/// A pixel taken as one 32-bit word is in the processor's byte order (little endian: alpha in the low byte).
template <class Byte>
struct BasicBitmapView {
    Byte* data = nullptr;
    int width = 0, height = 0;
    std::ptrdiff_t rowBytes = 0;

    using Word = std::conditional_t<std::is_const_v<Byte>, const std::uint32_t, std::uint32_t>;
    Byte* rowData(int y) const { return data + rowBytes * y; }
    Word* row(int y) const { return reinterpret_cast<Word*>(rowData(y)); }
    Byte* pixel(int x, int y) const { return rowData(y) + std::ptrdiff_t{4} * x; }
    bool isEmpty() const { return !data || width <= 0 || height <= 0; }
    PixelBox box() const { return {0, 0, width, height}; }
    /// The part inside @p b, which must lie inside this view.
    BasicBitmapView part(PixelBox b) const { return {pixel(b.x0, b.y0), b.width(), b.height(), rowBytes}; }
    operator BasicBitmapView<const Byte>() const requires(!std::is_const_v<Byte>)
    {
        return {data, width, height, rowBytes};
    }
};
using BitmapView = BasicBitmapView<std::uint8_t>;
using ConstBitmapView = BasicBitmapView<const std::uint8_t>;

/// Copies the pixels of a picture of the same size.
inline void copyPixels(ConstBitmapView from, BitmapView to)
{
    for (int y = 0; y < to.height; ++y) std::memcpy(to.rowData(y), from.rowData(y), std::size_t(to.width) * 4);
}

/// One byte a pixel, row 0 on top. In the selection mask 0 is fully selected, 255 not selected, and stride = width.
template <class Byte>
struct BasicMaskView {
    Byte* data = nullptr;
    int width = 0, height = 0;
    std::ptrdiff_t stride = 0;

    Byte* row(int y) const { return data + stride * y; }
    bool isEmpty() const { return !data || width <= 0 || height <= 0; }
    PixelBox box() const { return {0, 0, width, height}; }
    operator BasicMaskView<const Byte>() const requires(!std::is_const_v<Byte>)
    {
        return {data, width, height, stride};
    }
};
using MaskView = BasicMaskView<std::uint8_t>;
using ConstMaskView = BasicMaskView<const std::uint8_t>;

} // namespace zp
