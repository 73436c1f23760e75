// SPDX-License-Identifier: GPL-3.0-or-later
/// The desktop's portal: how it is called, the colours it sends, and file panels by it.
#pragma once
#include <array>
#include <optional>
#include <string>
#include <vector>

class QDBusConnection;
class QVariant;

namespace zp
{

inline constexpr const char* kPortalName = "org.freedesktop.portal.Desktop";
inline constexpr const char* kPortalObject = "/org/freedesktop/portal/desktop";

/// Red, green and blue as a portal sends a colour: 0 to 1, others as they come. @return nothing when it is no colour
std::optional<std::array<double, 3>> portalColor(const QVariant& sent);

/// Whether a portal can be started there, by what it left among the bus's services.
bool hasPortal(const std::vector<std::string>& dataFolders);

/// Before the application object: from here on file panels are the portal's where there is one and Qt can talk to it.
/// What the person chose by QT_QPA_PLATFORMTHEME stays. @return whether they are
bool usePortalPanels();

/// Once file panels are the portal's: asks it whether it has any, without waiting. Main thread.
void askForPortalPanels();
void askForPortalPanels(QDBusConnection bus);
/// False when the portal was asked for its file panels and has none, or does not answer: a panel of the toolkit must
/// be shown, because the portal's would never appear. Waits for the answer, some seconds at most. Main thread.
bool desktopHasFilePanels();

} // namespace zp
