// SPDX-License-Identifier: GPL-3.0-or-later
/// Qt's theme of the portal brings the desktop's own theme with it and changes the file panels alone.
#include "desktop/Portal.h"
#include "base/Folders.h"
#include "base/Log.h"
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QFile>
#include <QLibraryInfo>

namespace zp
{

namespace
{

/// Milliseconds for a portal that is started by the question; one that runs answers in a few.
constexpr int kPatience = 3000;

/// The question for file panels, once it was asked. Not finished: the answer is under way.
std::optional<QDBusPendingCall> asked;

} // namespace

std::optional<std::array<double, 3>> portalColor(const QVariant& sent)
{
    if (!sent.canConvert<QDBusArgument>()) return {};
    const auto structure = sent.value<QDBusArgument>();
    if (structure.currentSignature() != "(ddd)") return {};
    std::array<double, 3> color{};
    structure.beginStructure();
    for (double& part : color) structure >> part;
    structure.endStructure();
    return color;
}

bool hasPortal(const std::vector<std::string>& dataFolders)
{
    const std::string service = std::string("dbus-1/services/") + kPortalName + ".service";
    for (const std::string& folder : dataFolders)
        if (fileExists(pathByAppending(folder, service))) return true;
    return false;
}

bool usePortalPanels()
{
    // The bus cannot be asked before there is an application, and the theme cannot be chosen after: files must tell.
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME")) return false;
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platformthemes/libqxdgdesktopportal.so"))
        return false;
    std::vector<std::string> folders;
    for (const QString& folder : qEnvironmentVariable("XDG_DATA_DIRS", "/usr/local/share:/usr/share").split(':'))
        folders.push_back(QFile::encodeName(folder).toStdString());
    if (!hasPortal(folders)) return false;
    qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
    return true;
}

void askForPortalPanels() { askForPortalPanels(QDBusConnection::sessionBus()); }

void askForPortalPanels(QDBusConnection bus)
{
    // A portal shows those interfaces alone that some part of the desktop stands behind.
    QDBusMessage call =
        QDBusMessage::createMethodCall(kPortalName, kPortalObject, "org.freedesktop.DBus.Properties", "Get");
    call << QString("org.freedesktop.portal.FileChooser") << QString("version");
    asked = bus.asyncCall(call, kPatience);
}

bool desktopHasFilePanels()
{
    if (!asked) return true;
    if (!asked->isFinished()) {
        asked->waitForFinished();
        if (asked->isError()) logLine("no file panels from the portal: %s", qUtf8Printable(asked->error().message()));
    }
    return !asked->isError();
}

} // namespace zp
