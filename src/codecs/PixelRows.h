// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of pixels between the editor's order and alpha and those of the files. Pixels are bytes A, R, G, B,
/// premultiplied, unless said; any thread.
#pragma once
#include "base/BitmapView.h"
#include <cstddef>
#include <cstdint>

namespace zp::codec
{

/// Multiplies colour by alpha, rounded, in place.
void premultiplyRow(std::uint8_t* argb, std::size_t count);
/// Straight-alpha bytes R, G, B, A, rounded; colour under zero alpha becomes 0, colour above alpha 255.
void unpremultiplyRowToRGBA(const std::uint8_t* argb, std::uint8_t* rgba, std::size_t count);
/// Premultiplied pixels over an opaque background (a word as pixels are), rounded.
void composeRow(const std::uint8_t* argb, std::uint8_t* to, std::size_t count, std::uint32_t background);
/// Colour that lies above its alpha is lowered to it, in place.
void limitRowToAlpha(std::uint8_t* argb, std::size_t count);
/// Bytes R, G, B to opaque pixels; and the colours of pixels, alpha not looked at.
void rgbToARGB(const std::uint8_t* rgb, std::uint8_t* argb, std::size_t count);
void argbToRGB(const std::uint8_t* argb, std::uint8_t* rgb, std::size_t count);
/// The same bytes in the other order.
void rgbaToARGB(const std::uint8_t* rgba, std::uint8_t* argb, std::size_t count);
void argbToRGBA(const std::uint8_t* argb, std::uint8_t* rgba, std::size_t count);
/// The red of each pixel.
void argbToGrey(const std::uint8_t* argb, std::uint8_t* grey, std::size_t count);
bool isOpaqueRow(const std::uint8_t* argb, std::size_t count);
/// Whether red, green and blue are the same in each pixel.
bool isGreyRow(const std::uint8_t* argb, std::size_t count);

/// Whether every pixel is opaque, or grey.
bool isOpaque(ConstBitmapView pixels);
bool isGrey(ConstBitmapView pixels);

} // namespace zp::codec
