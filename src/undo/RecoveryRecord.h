// SPDX-License-Identifier: GPL-3.0-or-later
/// What is kept beside the steps of a picture so that another run of the program can go on with it.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

namespace zp
{

/// What a program that ended without quitting was working on.
struct RecoverableWork {
    std::string imagePath;     ///< the picture's file, empty for one that was never saved
    int width = 0, height = 0; ///< of the step
    std::int32_t number = -1;  ///< the step that was on screen, or the last whole one before it
    std::int32_t newest = -1;  ///< the end of what can be redone
    std::int64_t time = 0;     ///< when it was on screen last, in milliseconds since 1970
    bool changed = true;       ///< since it was opened or saved
};

/// What is known of a step beside its pixels.
struct StepNote {
    std::string name;      ///< the command's, untranslated; may be empty
    std::int64_t time = 0; ///< milliseconds since 1970
};

/// The record in the open folder @p folder takes the place of the one before it. @return false when it could not be
/// written: the old one stands. May throw std::bad_alloc.
bool writeRecoveryRecord(int folder, const RecoverableWork& work);
bool hasRecoveryRecord(int folder);
/// The recorded work as far as its steps are there: a crash in the midst of writing one leaves those before it. Nothing
/// when there is no step that can be restored. May throw std::bad_alloc.
std::optional<RecoverableWork> restorableWork(int folder);

} // namespace zp
