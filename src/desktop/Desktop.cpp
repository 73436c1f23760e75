// SPDX-License-Identifier: GPL-3.0-or-later
/// Settings, remembered window frames, and paths as bytes on either side of Qt's texts.
#include "desktop/Desktop.h"
#include "base/Folders.h"
#include "desktop/Settings.h"
#include <QEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>
#include <QUrl>
#include <QWidget>

namespace zp
{

namespace
{

constexpr const char* kKeptSetting = "windows/kept";
/// On a window whose frame is kept already.
constexpr const char* kKeptProperty = "frameIsKept";

/// Saves the window's frame each time it goes out of sight, the end of the program included.
class FrameKeeper : public QObject
{
public:
    FrameKeeper(QWidget* window, QString key) : QObject(window), mWindow(window), mKey(std::move(key))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == mWindow && (event->type() == QEvent::Hide || event->type() == QEvent::Close))
            settings().setValue(mKey, mWindow->saveGeometry());
        return false;
    }

private:
    QWidget* mWindow;
    QString mKey;
};

constexpr int kTitleBar = 40; ///< the highest that desktops draw, in pixels before scaling
constexpr int kPanels = 64;   ///< one at the top and one at the bottom, or a large one

bool liesOnAScreen(const QRect& frame)
{
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect shown = screen->availableGeometry().intersected(frame);
        if (shown.width() >= 64 && shown.height() >= 32) return true;
    }
    return false;
}

} // namespace

bool setFrameAutosaveName(QWidget* window, const QString& name)
{
    const QString key = "frames/" + name;
    const QByteArray saved = settings().value(key).toByteArray();
    const QSize before = window->size();
    bool restored = !saved.isEmpty() && window->restoreGeometry(saved);
    if (restored && !liesOnAScreen(window->geometry())) {
        window->resize(before);
        window->move(0, 0);
        restored = false;
    }
    new FrameKeeper(window, key);
    window->setProperty(kKeptProperty, restored || window->property(kKeptProperty).toBool());
    return restored;
}

QSize sizeOnScreen(const QWidget* window, QSize wanted)
{
    // Without a screen there is nothing to leave room for, and pictures of windows must be the same everywhere.
    if (QGuiApplication::platformName() == "offscreen" || !window->screen()) return wanted;
    // Where a compositor places windows the panels of the desktop are in what it calls the screen.
    const bool panelsToo = QGuiApplication::platformName().startsWith("wayland");
    const QSize taken(0, panelsToo ? kTitleBar + kPanels : kTitleBar);
    return wanted.boundedTo(window->screen()->availableSize() - taken);
}

bool windowsAreKept() { return settings().value(kKeptSetting, false).toBool(); }

void setWindowsKept(bool on) { settings().setValue(kKeptSetting, on); }

bool placeWhereKept(QWidget* window)
{
    if (!windowsAreKept() || window->objectName().isEmpty()) return false;
    if (window->isVisible()) return true; // it stands where it stands
    if (window->property(kKeptProperty).toBool()) return true;
    window->setProperty(kKeptProperty, true);
    return setFrameAutosaveName(window, window->objectName());
}

QString textFromPath(const std::string& path) { return QString::fromStdString(displayName(path)); }

std::string pathFromText(const QString& text) { return text.toStdString(); }

std::string pathFromUrl(const QUrl& url)
{
    if (!url.isLocalFile()) return {};
    // Percent signs stand for the very bytes; Qt's own decoding would replace those that are not UTF-8.
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    return QByteArray::fromPercentEncoding(encoded).toStdString();
}

QUrl urlFromPath(const std::string& path)
{
    // As the other programs of a desktop spell it: lists and caches that are shared are searched for these very bytes.
    static const QByteArray kAsItIs = "/!$&'()*+,:=@";
    return QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding(kAsItIs), QUrl::StrictMode);
}

bool hasPaths(const QMimeData* data) { return data && data->hasUrls() && !pathsFromMimeData(data).empty(); }

std::vector<std::string> pathsFromMimeData(const QMimeData* data)
{
    std::vector<std::string> paths;
    if (!data) return paths;
    for (const QUrl& url : data->urls())
        if (std::string path = pathFromUrl(url); !path.empty()) paths.push_back(std::move(path));
    return paths;
}

} // namespace zp
