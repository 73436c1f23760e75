// SPDX-License-Identifier: GPL-3.0-or-later
/// Moving the files of a picture's steps in and out.
#include "undo/PicturesAside.h"
#include "undo/FolderFiles.h"
#include "undo/StepFiles.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace zp::aside
{

namespace
{

constexpr std::string_view kPrefix = ".picture-";
constexpr const char* kMoveName = ".moving";

/// @return false when a file could not be moved
bool moveSteps(int from, int to)
{
    bool all = true;
    for (const std::string& name : folder::names(from))
        if (belongsToSteps(name)) all &= renameat(from, name.c_str(), to, name.c_str()) == 0;
    return all;
}

/// As the target of a link, which is made in one step and needs no room on a full disk; nobody follows it.
bool noteMove(int folder, char direction, int number)
{
    unlinkat(folder, kMoveName, 0);
    return symlinkat((direction + std::to_string(number)).c_str(), folder, kMoveName) == 0;
}

/// 'o' for out of the current picture's place, 'i' for in.
bool move(int folder, char direction, int number)
{
    const std::string name = folderName(number);
    const int inner = direction == 'o' ? folder::openInner(folder, name) : folder::openExistingInner(folder, name);
    if (inner < 0) return false;
    const bool moved = direction == 'o' ? moveSteps(folder, inner) : moveSteps(inner, folder);
    ::close(inner);
    if (direction == 'i' && moved) unlinkat(folder, name.c_str(), AT_REMOVEDIR);
    return moved;
}

} // namespace

std::string folderName(int number) { return std::string(kPrefix) + std::to_string(number); }

std::optional<int> numberOf(const std::string& name)
{
    if (!name.starts_with(kPrefix)) return std::nullopt;
    int number = 0;
    const char* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data() + kPrefix.size(), end, number);
    return error == std::errc{} && stop == end && number >= 0 ? std::optional(number) : std::nullopt;
}

std::vector<int> numbers(int folder)
{
    std::vector<int> all;
    for (const std::string& name : folder::names(folder))
        if (const auto number = numberOf(name)) all.push_back(*number);
    std::sort(all.begin(), all.end());
    return all;
}

std::optional<int> putAside(int folder)
{
    const std::vector<int> others = numbers(folder);
    const int number = others.empty() ? 1 : others.back() + 1;
    if (!noteMove(folder, 'o', number)) return std::nullopt;
    if (!move(folder, 'o', number)) {
        // What has left comes back.
        if (noteMove(folder, 'i', number)) move(folder, 'i', number);
        unlinkat(folder, kMoveName, 0);
        return std::nullopt;
    }
    unlinkat(folder, kMoveName, 0);
    return number;
}

bool bringBack(int folder, int number)
{
    if (!noteMove(folder, 'i', number)) return false;
    const bool moved = move(folder, 'i', number);
    // What has come goes back: the picture's steps are never in two places. Where even that fails, the note stays, and
    // whoever takes this folder over ends the move.
    if (!moved && (!noteMove(folder, 'o', number) || !move(folder, 'o', number))) return false;
    unlinkat(folder, kMoveName, 0);
    return moved;
}

void drop(int folder, int number) { folder::removeWithContents(folder, folderName(number)); }

void finishMove(int folder)
{
    std::array<char, 32> text{};
    const ssize_t length = readlinkat(folder, kMoveName, text.data(), text.size());
    if (length < 0) return;
    int number = 0;
    if (length > 1 && std::from_chars(text.data() + 1, text.data() + length, number).ec == std::errc{})
        move(folder, text[0], number);
    unlinkat(folder, kMoveName, 0);
}

} // namespace zp::aside
