// SPDX-License-Identifier: GPL-3.0-or-later
/// The general pasteboard: TIFF data, and what other desktop programs offer in its stead.
#pragma once
#include "base/BitmapRep.h"
#include <QStringList>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class QMimeData;

namespace zp
{

/// What a drag out of the program carries: the picture as PNG and as a file that is made when somebody asks for it.
std::unique_ptr<QMimeData> dataForDrag(std::shared_ptr<const BitmapRep> picture);

/// Main thread only.
class Pasteboard
{
public:
    static Pasteboard& general();
    /// Offers image/tiff, and the same picture as PNG for programs that read only that (made when asked for).
    void setTIFF(std::vector<std::uint8_t> tiff);
    /// TIFF bytes offered, or image bytes of another kind (PNG, BMP, JPEG), as they came; empty when none.
    /// Decode by content. An owner that gives no sign for five seconds is not waited for, nor more taken from it than a
    /// gigabyte. @param why  becomes a sentence where there is one to say why nothing came
    std::vector<std::uint8_t> imageData(std::string* why = nullptr) const;
    /// Data of type TIFF, or image data that is accepted in its stead.
    bool hasImageData() const;
    QStringList types() const;
    void clear();

private:
    Pasteboard() = default;
};

} // namespace zp
