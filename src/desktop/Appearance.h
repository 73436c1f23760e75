// SPDX-License-Identifier: GPL-3.0-or-later
/// What the desktop wants windows to look like, followed while it changes.
#pragma once
#include <QColor>
#include <functional>
#include <optional>

namespace zp
{

struct Appearance {
    std::optional<bool> dark;     ///< nothing: the desktop has no preference, or does not say
    std::optional<QColor> accent; ///< of what is chosen and has the focus
    bool operator==(const Appearance&) const = default;
};

/// The last that a follower heard; empty before. Main thread.
const Appearance& desktopAppearance();

/// Asks the desktop for its settings and hears of changes from here on. Nothing waits: where there is no portal,
/// nothing is heard.
/// @param changed  after desktopAppearance() became another
void followDesktopAppearance(std::function<void()> changed);

} // namespace zp
