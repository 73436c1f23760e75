// SPDX-License-Identifier: GPL-3.0-or-later
/// The modifier keys held at this moment, read from the keyboard's state and never from an event.
#pragma once
#include <QString>
#include <cstdint>
#include <optional>

namespace zp
{

inline constexpr std::uint32_t kCommandKey = 0x0100;
inline constexpr std::uint32_t kShiftKey = 0x0200;
inline constexpr std::uint32_t kOptionKey = 0x0800;
inline constexpr std::uint32_t kControlKey = 0x1000;

/// The held bits. By default Alt is Option, Ctrl is Control, Super is Command; the preferences may exchange them, and a
/// switch on screen counts as its key. Main thread: asks the keyboard; any other thread: the state the main thread
/// last saw (an atomic load).
std::uint32_t currentKeyModifiers();

/// Exactly these keys are held from now on, whatever the keyboard says; nothing: the keyboard again. Main thread.
void setScriptedKeyModifiers(std::optional<std::uint32_t> bits);
/// What a script or a program holds instead of the keyboard; nothing: the keyboard is asked.
std::optional<std::uint32_t> scriptedKeyModifiers();
/// Bits that are held by switches on screen, or-ed to the keyboard's. Main thread.
void setSwitchedKeyModifiers(std::uint32_t bits);
std::uint32_t switchedKeyModifiers();
/// What Qt's modifier flags mean in this program's roles, by the preferences. Main thread.
std::uint32_t keyModifiersFromQt(int qtModifiers);
/// Which key plays which role: each of "alt", "ctrl", "meta", stored in the preferences. Main thread.
void setKeyRoles(const char* option, const char* control, const char* command);
/// The keyboard's name of the key that has this role now: "Shift", "Alt", "Ctrl", "Super". Main thread.
QString keyNameOf(std::uint32_t bit);
/// Starts watching the application's events, so that other threads see changes at once. Main thread, once.
void installKeyModifierWatch();

} // namespace zp
