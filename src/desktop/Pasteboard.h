// SPDX-License-Identifier: GPL-3.0-or-later
/// The general pasteboard: TIFF data, and what other desktop programs offer in its stead.
#pragma once
#include <QStringList>
#include <cstdint>
#include <string>
#include <vector>

namespace zp
{

/// Main thread only.
class Pasteboard
{
public:
    static Pasteboard& general();
    /// Offers image/tiff, and the same picture as PNG for programs that read only that (made when asked for).
    void setTIFF(std::vector<std::uint8_t> tiff);
    /// TIFF bytes offered, or image bytes of another kind (PNG, BMP, JPEG), as they came; empty when none.
    /// Decode by content.
    std::vector<std::uint8_t> imageData() const;
    /// Data of type TIFF, or image data that is accepted in its stead.
    bool hasImageData() const;
    QStringList types() const;
    void clear();

private:
    Pasteboard() = default;
};

} // namespace zp
