// SPDX-License-Identifier: GPL-3.0-or-later
/// Settings as lines "name=value", percent signs for whatever would break a line; a list's entries between commas.
#include "desktop/Settings.h"
#include "base/Folders.h"
#include "base/Log.h"
#include <QSettings>
#include <QStringDecoder>
#include <QTimer>
#include <memory>

namespace zp
{

namespace
{

constexpr std::uint64_t kLargest = 4u << 20;
constexpr const char* kReadableName = "/";              // a bracket at the beginning would be the first version's form
constexpr const char* kReadable = " /:+@{}()[]!$&'*;?"; // beside letters and digits: what need not be encoded

QByteArray encoded(const QVariant& value)
{
    const auto part = [](const QByteArray& bytes) { return bytes.toPercentEncoding(kReadable); };
    if (value.typeId() == QMetaType::QByteArray) return part(value.toByteArray());
    if (value.typeId() != QMetaType::QStringList) return part(value.toString().toUtf8());
    QByteArray entries;
    for (const QString& entry : value.toStringList()) entries += part(entry.toUtf8()) + ',';
    return entries;
}

QVariant decoded(const QByteArray& text)
{
    if (text.endsWith(',')) {
        QStringList entries;
        for (const QByteArray& entry : text.chopped(1).split(','))
            entries << QString::fromUtf8(QByteArray::fromPercentEncoding(entry));
        return entries;
    }
    const QByteArray bytes = QByteArray::fromPercentEncoding(text);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString asText = decoder(bytes);
    return decoder.hasError() ? QVariant(bytes) : QVariant(asText);
}

} // namespace

Settings::Settings(std::string path) : mFile(std::move(path)) { load(); }

void Settings::load()
{
    // Nothing there at all, or a file that can be read; through a link, to wherever that leads.
    const auto there = fileAttributes(mFile);
    const std::optional<std::string> text = there ? readWholeFile(mFile, kLargest) : std::string();
    mWritable = text.has_value();
    if (!mWritable) return logLine("the settings in %s cannot be read; nothing is kept", displayName(mFile).c_str());
    if (text->starts_with('[')) { // of the first version
        const QSettings old(QString::fromStdString(mFile), QSettings::IniFormat);
        for (const QString& key : old.allKeys()) mValues[key] = old.value(key);
        return;
    }
    for (const QByteArray& line : QByteArray::fromStdString(*text).split('\n'))
        if (const qsizetype equals = line.indexOf('='); equals > 0)
            mValues[QString::fromUtf8(QByteArray::fromPercentEncoding(line.first(equals)))] =
                decoded(line.sliced(equals + 1));
}

QVariant Settings::value(const QString& key, const QVariant& otherwise) const
{
    const auto found = mValues.find(key);
    return found == mValues.end() ? otherwise : found->second;
}

void Settings::setValue(const QString& key, const QVariant& value)
{
    QVariant& mine = mValues[key];
    if (mine.isValid() && mine == value) return;
    mine = value;
    changed();
}

void Settings::remove(const QString& key)
{
    if (mValues.erase(key) > 0) changed();
}

void Settings::changed()
{
    mUnwritten = true;
    if (!std::exchange(mScheduled, true)) QTimer::singleShot(0, this, &Settings::save);
}

void Settings::save()
{
    mScheduled = false;
    if (!mUnwritten || !mWritable) return;
    QByteArray text;
    for (const auto& [key, value] : mValues)
        text += key.toUtf8().toPercentEncoding(kReadableName) + '=' + encoded(value) + '\n';
    createFolder(folderOfPath(mFile));
    std::string error;
    // What could not be written is tried again with the next change, and at the end.
    mUnwritten = !writeFileSafely(mFile, text.constData(), std::size_t(text.size()), &error);
    if (mUnwritten) logLine("the settings were not saved: %s", error.c_str());
}

Settings& settings()
{
    static std::unique_ptr<Settings> opened;
    const QByteArray set = qgetenv("XDG_CONFIG_HOME");
    const std::string folder = set.startsWith('/') ? set.toStdString() : pathByAppending(homeFolder(), ".config");
    std::string path = pathByAppending(folder, "zelpane/zelpane.conf");
    if (!opened || opened->path() != path) opened = std::make_unique<Settings>(std::move(path));
    return *opened;
}

} // namespace zp
