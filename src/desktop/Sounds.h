// SPDX-License-Identifier: GPL-3.0-or-later
/// Short cues by name. Never blocks, never fails aloud.
#pragma once
#include <string>
#include <vector>

namespace zp
{

/// "Frog", "Pop", "Ping", "Glass": WAV files of the program's resources. An unknown name or a machine without sound
/// plays nothing. Any thread.
void playSound(const std::string& name);
/// The plain beep of a command that cannot act. Any thread.
void beep();
/// Off: nothing is played any more; takeSounds() tells of the cues all the same. On at start. Any thread.
void setSoundsAudible(bool on);
/// The sounds asked for since the last call, "beep" for the plain beep; at most the latest 10,000. Any thread.
std::vector<std::string> takeSounds();

} // namespace zp
