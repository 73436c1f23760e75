// SPDX-License-Identifier: GPL-3.0-or-later
/// Recent files in the settings, and as bookmarks in recently-used.xbel, which other programs read and write too: what
/// is not ours there is copied as it stands.
#include "app/RecentFiles.h"
#include "base/Folders.h"
#include "desktop/Desktop.h"
#include "desktop/Settings.h"
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <optional>

namespace zp
{

namespace
{

constexpr int kRecentFiles = 10;
constexpr const char* kSetting = "recentFiles";
constexpr const char* kProgram = "Zelpane";
/// The shared list has a few hundred entries; a file far larger than they can be is none of that format.
constexpr qint64 kLargestSharedList = 8 << 20;
constexpr const char* kBookmarkSpace = "http://www.freedesktop.org/standards/desktop-bookmarks";
constexpr const char* kMimeSpace = "http://www.freedesktop.org/standards/shared-mime-info";
constexpr const char* kMetadataOwner = "http://freedesktop.org";

// Kept as percent-encoded bytes, so that names that are not UTF-8 survive.
QString encoded(const std::string& path)
{
    return QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/"));
}

/// One <bookmark> as it stands in the shared list.
struct Bookmark {
    QString address, added;
    bool ours = false, othersToo = false;
    QByteArray bytes; ///< the element and what lies before it
};

struct SharedList {
    QByteArray head, tail; ///< before the first bookmark and after the last
    std::vector<Bookmark> bookmarks;
};

QString sharedListPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/recently-used.xbel";
}

/// @return nothing when there is a file that is not such a list: it is left alone
std::optional<SharedList> readSharedList()
{
    SharedList list;
    if (!QFile::exists(sharedListPath())) {
        list.head =
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"\n      xmlns:bookmark=\"") +
            kBookmarkSpace + "\"\n      xmlns:mime=\"" + kMimeSpace + "\"\n>";
        list.tail = "\n</xbel>\n";
        return list;
    }
    // Never a pipe, whose opening would wait for its writer.
    const std::optional<std::string> bytes = readWholeFile(pathFromText(sharedListPath()), kLargestSharedList);
    if (!bytes) return std::nullopt;
    const QString text = QString::fromStdString(*bytes);
    QXmlStreamReader xml(text);
    qint64 copied = 0, before = 0;
    const auto piece = [&](qint64 to) { return text.mid(std::exchange(copied, to), to - copied).toUtf8(); };
    Bookmark open;
    bool inside = false, root = false;
    while (!xml.atEnd()) {
        before = xml.characterOffset();
        xml.readNext();
        if (xml.isStartElement()) {
            if (!root) {
                if (xml.name() != QString("xbel")) return std::nullopt;
                root = true;
            }
            if (xml.name() == QString("bookmark") && !inside) {
                if (list.bookmarks.empty()) list.head = piece(before);
                inside = true;
                open = {};
                open.address = xml.attributes().value("href").toString();
                open.added = xml.attributes().value("added").toString();
            }
            if (inside && xml.name() == QString("application"))
                (xml.attributes().value("name") == QString(kProgram) ? open.ours : open.othersToo) = true;
        }
        if (xml.isEndElement() && inside && xml.name() == QString("bookmark") && xml.namespaceUri().isEmpty()) {
            inside = false;
            open.bytes = piece(xml.characterOffset());
            list.bookmarks.push_back(std::exchange(open, {}));
        } else if (xml.isEndElement() && xml.name() == QString("xbel")) {
            if (list.bookmarks.empty()) list.head = piece(before);
            list.tail = text.mid(copied).toUtf8();
        }
    }
    // Bookmarks of ours need these names.
    const bool named = list.head.contains("xmlns:bookmark") && list.head.contains("xmlns:mime");
    if (xml.hasError() || !root || !named) return std::nullopt;
    return list;
}

void writeSharedList(const SharedList& list)
{
    QSaveFile file(sharedListPath());
    if (!file.open(QIODevice::WriteOnly)) return; // a list that cannot be kept is no matter to stop for
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(list.head);
    for (const Bookmark& bookmark : list.bookmarks) file.write(bookmark.bytes);
    file.write(list.tail);
    file.commit();
}

QByteArray newBookmark(const QString& address, const std::string& path, const QString& added)
{
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    const QString type = QMimeDatabase().mimeTypeForFile(textFromPath(path)).name();
    const auto quoted = [](const QString& text) { return text.toHtmlEscaped(); };
    return QString("\n  <bookmark href=\"%1\" added=\"%2\" modified=\"%3\" visited=\"%3\">\n    <info>\n"
                   "      <metadata owner=\"%4\">\n        <mime:mime-type type=\"%5\"/>\n"
                   "        <bookmark:applications>\n"
                   "          <bookmark:application name=\"%6\" exec=\"&apos;zelpane %u&apos;\" modified=\"%3\" "
                   "count=\"1\"/>\n"
                   "        </bookmark:applications>\n      </metadata>\n    </info>\n  </bookmark>")
        .arg(quoted(address), added.isEmpty() ? now : added, now, kMetadataOwner, quoted(type), kProgram)
        .toUtf8();
}

} // namespace

std::vector<std::string> recentFiles()
{
    std::vector<std::string> files;
    for (const QString& entry : settings().value(kSetting).toStringList())
        files.push_back(QByteArray::fromPercentEncoding(entry.toLatin1()).toStdString());
    return files;
}

void noteRecentFile(const std::string& path)
{
    QStringList recent = settings().value(kSetting).toStringList();
    recent.removeAll(encoded(path));
    recent.prepend(encoded(path));
    while (recent.size() > kRecentFiles) recent.removeLast();
    settings().setValue(kSetting, recent);

    std::optional<SharedList> list = readSharedList();
    if (!list) return;
    const QString address = QString::fromLatin1(urlFromPath(path).toEncoded());
    QString added;
    std::erase_if(list->bookmarks, [&](const Bookmark& b) {
        if (b.address != address) return false;
        added = b.added;
        return true;
    });
    list->bookmarks.push_back({address, added, true, false, newBookmark(address, path, added)});
    writeSharedList(*list);
}

void clearRecentFiles()
{
    settings().remove(kSetting);
    std::optional<SharedList> list = readSharedList();
    if (!list) return;
    if (std::erase_if(list->bookmarks, [](const Bookmark& b) { return b.ours && !b.othersToo; }) > 0)
        writeSharedList(*list);
}

} // namespace zp
