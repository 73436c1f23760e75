// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures that are there more than once.
#pragma once
#include "base/Folders.h"
#include "library/PictureMark.h"
#include <span>
#include <vector>

namespace zp
{

/// One entry of the library that leads to a file.
struct ComparedPicture {
    FileStamp stamp{}; ///< of the file
    PictureMark mark{};
};

enum class DuplicateKind { SameLook, SameContent, SameFile }; // the stronger the later

struct Duplicate {
    std::size_t index = 0; ///< in the span that was given
    DuplicateKind why{};   ///< the strongest that it shares with another of its group
    bool operator==(const Duplicate&) const = default;
};

/// Those files of which the whole digest is needed to tell whether they are copies: size and samples are another's.
std::vector<std::size_t> copiesToConfirm(std::span<const ComparedPicture> pictures);

/// Groups of two and more, each in the order of @p pictures, the groups in the order of their first ones. The same file
/// (by whichever name), files of the same bytes (by their whole digests), pictures that look the same.
/// Any thread; each look is compared with each other one.
std::vector<std::vector<Duplicate>> duplicatesAmong(std::span<const ComparedPicture> pictures,
                                                    const std::stop_token& stop = {});

} // namespace zp
