// SPDX-License-Identifier: GPL-3.0-or-later
/// The files of one step in an open folder: names, looks, seals.
///
/// "C_3.jpg" and "C_3.rle" are the pair; ".C_3.step" seals the alpha file and says what the step is called;
/// ".C_3.exact" has its very pixels. Every other file there begins with a dot as well.
#pragma once
#include "undo/RecoveryRecord.h"
#include "undo/SnapshotJPEG.h"
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zp
{

enum class StepHalf { Colour, Alpha };

inline constexpr const char* kRecoveryName = ".recovery";

/// "C_3.jpg" or "C_3.rle".
std::string stepFileName(std::int32_t number, StepHalf half);
/// ".C_3.step"
std::string stepNoteName(std::int32_t number);
/// Whether @p name is that of a file of any step, or of the record of them all.
bool belongsToSteps(const std::string& name);

bool hasPair(int folder, std::int32_t number);
bool hasExactRecord(int folder, std::int32_t number);
/// Of both halves, when both are there and undamaged. Time: a read of both.
std::optional<SnapshotJPEGSize> pairSize(int folder, std::int32_t number);
/// One half; nothing when it is missing, cannot be read or is damaged (which an alpha file is told by its step's note:
/// without one it is believed). May throw std::bad_alloc.
std::optional<std::vector<std::uint8_t>> readHalf(int folder, std::int32_t number, StepHalf half);
/// Whether readHalf() would refuse a file that is there.
bool isDamaged(int folder, std::int32_t number, StepHalf half);

/// What a step's note says of its alpha file.
std::string sealOfAlpha(std::span<const std::uint8_t> file);
/// The bytes of a step's note.
std::string stepNoteText(const StepNote& note, const std::string& alphaSeal);
/// Nothing when there is none.
std::optional<StepNote> readStepNote(int folder, std::int32_t number);
/// All files of a step go; the colour file first: a pair without it is none any more.
void removeStep(int folder, std::int32_t number);

} // namespace zp
