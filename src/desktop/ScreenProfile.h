// SPDX-License-Identifier: GPL-3.0-or-later
/// The colour profile of the screen, where the desktop states one.
#pragma once
#include <cstdint>
#include <vector>

class QWidget;

namespace zp
{

/// Of the screen that @p window is on: under X11 the property _ICC_PROFILE of the root window, with a number for
/// further screens. Empty elsewhere and where none is stated: the screen counts as sRGB. Main thread. Cost: a question
/// to the display server.
std::vector<std::uint8_t> screenProfile(const QWidget& window);

} // namespace zp
