// SPDX-License-Identifier: GPL-3.0-or-later
/// One running editor a user: a later start hands its files to the first.
#pragma once
#include <QLocalServer>
#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zp
{
class BusInstance;
/// The program's name among the desktop's: on the bus, and that of its menu entry.
inline constexpr const char* kDesktopName = "com.orvanta.zelpane";
} // namespace zp

/// Talks over the session's bus, and where there is none over a local socket in the user's runtime folder, with
/// programs of the same user alone: where that folder is missing the socket lies where everybody can put one. Main
/// thread.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    SingleInstance();
    ~SingleInstance() override;
    /// Hands the files to the program that runs, or becomes that program: of several starts at once one does.
    /// @return whether a running program took the files
    bool handOver(const std::vector<std::string>& files);
    /// Takes files from later starts from here on, and those that have come since handOver().
    void listen(std::function<void(const std::vector<std::string>&)> open);

private:
    bool askRunning(const std::vector<std::string>& files) const;
    void take();
    std::unique_ptr<zp::BusInstance> mBus;
    QString mName;
    QLocalServer mServer;
    std::function<void(const std::vector<std::string>&)> mOpen;
};
