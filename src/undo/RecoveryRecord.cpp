// SPDX-License-Identifier: GPL-3.0-or-later
/// A few lines of text, and a look at the steps they speak of.
#include "undo/RecoveryRecord.h"
#include "base/BitmapRep.h"
#include "undo/ExactSteps.h"
#include "undo/FolderFiles.h"
#include "undo/StepFiles.h"
#include <algorithm>
#include <charconv>
#include <string_view>

namespace zp
{

namespace
{

constexpr const char* kRecordHead = "Zelpane recovery 1";
constexpr std::uint64_t kLargestRecord = 1 << 20;
/// A history is never longer than this between two new pictures; keeps a damaged record from sending us searching.
constexpr std::int32_t kSearchedBack = 100000;

/// "key number..." lines, and the path with its length before it because a path may hold anything.
std::string recordText(const RecoverableWork& work)
{
    std::string text = kRecordHead;
    text += "\nsize " + std::to_string(work.width) + " " + std::to_string(work.height);
    text += "\nnumber " + std::to_string(work.number) + "\nnewest " + std::to_string(work.newest);
    text += "\npath " + std::to_string(work.imagePath.size()) + "\n" + work.imagePath;
    return text + "\ntime " + std::to_string(work.time) + "\nchanged " + std::to_string(int(work.changed)) + "\n";
}

/// Takes @p word and the number behind it off the front.
template <class Number>
bool take(std::string_view& text, std::string_view word, Number& number)
{
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{}) return false;
    text.remove_prefix(std::size_t(end - text.data()));
    return true;
}

std::optional<RecoverableWork> readRecord(int folder)
{
    const auto bytes = folder::readFile(folder, kRecoveryName, kLargestRecord);
    if (!bytes) return std::nullopt;
    std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    if (!text.starts_with(kRecordHead)) return std::nullopt;
    text.remove_prefix(std::string_view(kRecordHead).size());
    RecoverableWork work;
    std::size_t length = 0;
    if (!take(text, "\nsize ", work.width) || !take(text, " ", work.height) || !take(text, "\nnumber ", work.number) ||
        !take(text, "\nnewest ", work.newest) || !take(text, "\npath ", length) || !text.starts_with("\n"))
        return std::nullopt;
    text.remove_prefix(1);
    if (text.size() < length + 1 || !isSensibleImageSize(work.width, work.height) || work.number < 0)
        return std::nullopt;
    work.imagePath = text.substr(0, length);
    text.remove_prefix(length);
    int changed = 1;
    if (take(text, "\ntime ", work.time)) take(text, "\nchanged ", changed);
    work.changed = changed != 0;
    return work;
}

} // namespace

bool writeRecoveryRecord(int folder, const RecoverableWork& work)
{
    const std::string text = recordText(work);
    std::string unused;
    return folder::replaceFile(folder, kRecoveryName, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                               unused);
}

bool hasRecoveryRecord(int folder) { return folder::isFile(folder, kRecoveryName); }

std::optional<RecoverableWork> restorableWork(int folder)
{
    auto work = readRecord(folder);
    if (!work) return std::nullopt;
    ExactSteps exact;
    exact.adopt(folder, work->number);
    const auto canBeRestored = [&](std::int32_t number) {
        if (exact.isExact(number)) {
            const TileGrid grid = *exact.gridOf(number);
            work->width = grid.width, work->height = grid.height;
            return true;
        }
        const auto size = pairSize(folder, number);
        if (size) work->width = size->width, work->height = size->height;
        return size.has_value();
    };
    const std::int32_t lowest = std::max(0, work->number - kSearchedBack);
    while (work->number >= lowest && !canBeRestored(work->number)) --work->number;
    if (work->number < lowest) return std::nullopt;
    // A step that was just being finished can be redone.
    std::int32_t last = work->number;
    while (last < INT32_MAX && (hasPair(folder, last + 1) || hasExactRecord(folder, last + 1))) ++last;
    work->newest = last;
    return work;
}

} // namespace zp
