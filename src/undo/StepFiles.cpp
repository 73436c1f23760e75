// SPDX-License-Identifier: GPL-3.0-or-later
/// Names and seals of a step's files.
#include "undo/StepFiles.h"
#include "undo/ExactRecord.h"
#include "undo/Fingerprint.h"
#include "undo/FolderFiles.h"
#include <array>
#include <cstdio>
#include <string_view>
#include <unistd.h>

namespace zp
{

namespace
{

constexpr std::uint64_t kLargestFile = std::uint64_t{4} << 30;
constexpr std::uint64_t kLargestNote = 4096;
constexpr std::string_view kNoteHead = "Zelpane step 1\nalpha ";

/// The note's text behind its head; empty when there is none.
std::string noteBody(int folder, std::int32_t number)
{
    const auto bytes = folder::readFile(folder, stepNoteName(number), kLargestNote);
    if (!bytes) return {};
    const std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    return std::string(text.starts_with(kNoteHead) ? text.substr(kNoteHead.size()) : std::string_view());
}

bool isSound(int folder, std::int32_t number, StepHalf half, std::span<const std::uint8_t> file)
{
    if (half == StepHalf::Colour) return inspectSnapshotJPEG(file).has_value();
    const std::string body = noteBody(folder, number);
    return body.empty() || body.starts_with(sealOfAlpha(file));
}

} // namespace

std::string stepFileName(std::int32_t number, StepHalf half)
{
    return "C_" + std::to_string(number) + (half == StepHalf::Colour ? ".jpg" : ".rle");
}

std::string stepNoteName(std::int32_t number) { return ".C_" + std::to_string(number) + ".step"; }

bool belongsToSteps(const std::string& name)
{
    return name.starts_with("C_") || name.starts_with(".C_") || name.starts_with(kRecoveryName);
}

bool hasPair(int folder, std::int32_t number)
{
    return folder::isFile(folder, stepFileName(number, StepHalf::Colour)) &&
           folder::isFile(folder, stepFileName(number, StepHalf::Alpha));
}

bool hasExactRecord(int folder, std::int32_t number) { return folder::isFile(folder, ExactRecord::fileName(number)); }

std::optional<std::vector<std::uint8_t>> readHalf(int folder, std::int32_t number, StepHalf half)
{
    auto file = folder::readFile(folder, stepFileName(number, half), kLargestFile);
    if (file && !isSound(folder, number, half, *file)) file.reset();
    return file;
}

bool isDamaged(int folder, std::int32_t number, StepHalf half)
{
    return folder::isFile(folder, stepFileName(number, half)) && !readHalf(folder, number, half);
}

std::optional<SnapshotJPEGSize> pairSize(int folder, std::int32_t number)
{
    if (!hasPair(folder, number) || !readHalf(folder, number, StepHalf::Alpha)) return std::nullopt;
    const auto file = folder::readFile(folder, stepFileName(number, StepHalf::Colour), kLargestFile);
    return file ? inspectSnapshotJPEG(*file) : std::nullopt;
}

std::string sealOfAlpha(std::span<const std::uint8_t> file)
{
    const Fingerprint seal = fingerprint(file);
    std::array<char, 33> text;
    std::snprintf(text.data(), text.size(), "%016llx%016llx", static_cast<unsigned long long>(seal.low),
                  static_cast<unsigned long long>(seal.high));
    return text.data();
}

std::string stepNoteText(const StepNote& note, const std::string& alphaSeal)
{
    return std::string(kNoteHead) + alphaSeal + "\ntime " + std::to_string(note.time) + "\nname " + note.name + "\n";
}

std::optional<StepNote> readStepNote(int folder, std::int32_t number)
{
    const std::string body = noteBody(folder, number);
    const std::size_t time = body.find("\ntime "), name = body.find("\nname ");
    if (time == std::string::npos || name == std::string::npos || !body.ends_with('\n')) return std::nullopt;
    constexpr std::size_t kWord = 6;
    return StepNote{body.substr(name + kWord, body.size() - name - kWord - 1),
                    std::strtoll(body.c_str() + time + kWord, nullptr, 10)};
}

void removeStep(int folder, std::int32_t number)
{
    for (const std::string& name :
         {stepFileName(number, StepHalf::Colour), stepFileName(number, StepHalf::Alpha), stepNoteName(number)})
        unlinkat(folder, name.c_str(), 0);
}

} // namespace zp
