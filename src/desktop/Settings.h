// SPDX-License-Identifier: GPL-3.0-or-later
/// What the program remembers of its user, in one file.
#pragma once
#include <QObject>
#include <QVariant>
#include <map>
#include <string>

namespace zp
{

/// Values by name, as texts: whatever a text converts to can be kept, byte arrays and lists of texts too. Main thread.
///
/// The file is replaced whole or not at all. One that is there and cannot be read is never written over, because what
/// it holds would be lost: what is set then lasts as long as the program.
class Settings : public QObject
{
public:
    explicit Settings(std::string path);
    ~Settings() override { save(); }

    QVariant value(const QString& key, const QVariant& otherwise = {}) const;
    /// On the disk when the event loop next runs.
    void setValue(const QString& key, const QVariant& value);
    void remove(const QString& key);
    /// Writes what has changed, now.
    void save();
    const std::string& path() const { return mFile; }

private:
    void load();
    void changed();
    std::string mFile;
    std::map<QString, QVariant> mValues;
    bool mWritable = false, mUnwritten = false;
    bool mScheduled = false; ///< the event loop will save
};

/// The user's: "zelpane/zelpane.conf" in XDG_CONFIG_HOME, else in the home folder's ".config". Opened at first use;
/// opened anew when that is another file since.
Settings& settings();

} // namespace zp
