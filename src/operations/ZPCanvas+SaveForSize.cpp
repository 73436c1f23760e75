// SPDX-License-Identifier: GPL-3.0-or-later
/// Copies of the picture that are as large as they may be, or as small as looks the same.
#include "base/Translation.h"
#include "document/Document.h"
#include "operations/Commands.h"
#include "operations/Files.h"
#include "operations/SizeSearch.h"
#include <algorithm>

namespace zp
{

namespace
{

void saveSized(Edit& edit, const std::string& path, const SizeGoal& goal)
{
    Document& document = edit.document();
    const SaveFormat format = formatOfExtension(pathExtension(path));
    const std::shared_ptr<const BitmapRep> shown = pictureAsShown(document);
    if (!shown) return edit.refuse();
    const SizedFile found = SizeSearch(shown, format).find(goal, {});
    if (!found.bytes.empty()) {
        writeAndTell(edit, found.bytes, shown->properties, path, formatTitle(format, found.quality));
        return;
    }
    document.setLastFileError(found.error);
    tellNotSaved(edit, path);
}

} // namespace

void operations::saveImageAtMost(Edit& edit, const Arguments& to)
{
    constexpr double kKilo = 1024, kMost = 1e15; // beyond any file
    const double bytes = std::clamp(to.numbers.empty() ? 0 : to.numbers[0] * kKilo, 0.0, kMost);
    saveSized(edit, to.path, {.kind = SizeGoal::AtMost, .bytes = std::size_t(bytes)});
}

void operations::saveImageLookingTheSame(Edit& edit, const Arguments& to)
{
    saveSized(edit, to.path, {.kind = SizeGoal::LooksSame});
}

} // namespace zp
