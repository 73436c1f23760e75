// SPDX-License-Identifier: GPL-3.0-or-later
/// Small services of the desktop for windows: remembered frames, and paths that cross between Qt and bytes.
#pragma once
#include <QSize>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

class QMimeData;
class QUrl;
class QWidget;

namespace zp
{

/// Restores the frame that was saved under @p name, and saves it from now on whenever the window is hidden. A frame
/// that lies on no screen is not restored. @return whether a frame was restored
bool setFrameAutosaveName(QWidget* window, const QString& name);
/// Whether windows come back where a person put them instead of being centred; the setting "windows/kept".
bool windowsAreKept();
void setWindowsKept(bool on);
/// When windows are kept: brings the window's last frame back, known by its object name, and keeps it from now on.
/// @return whether it stands where it was put
bool placeWhereKept(QWidget* window);

/// @return the size, lowered where the window's screen is smaller than it with a title bar and the desktop's panels
QSize sizeOnScreen(const QWidget* window, QSize wanted);

/// A path for Qt and for people; bytes that are not UTF-8 are shown as replacements, so it may not lead back.
QString textFromPath(const std::string& path);
/// The bytes of a text that a person typed.
std::string pathFromText(const QString& text);
/// The file system's own bytes of a local file's address, whatever their encoding; empty for other addresses.
std::string pathFromUrl(const QUrl& url);
QUrl urlFromPath(const std::string& path);
/// Local files of a drop or a paste (text/uri-list), in their order, other addresses left out.
std::vector<std::string> pathsFromMimeData(const QMimeData* data);
/// Whether pathsFromMimeData would give any.
bool hasPaths(const QMimeData* data);

} // namespace zp
