// SPDX-License-Identifier: GPL-3.0-or-later
/// One running editor a user: a later start hands its files to the first.
#pragma once
#include <QLocalServer>
#include <QObject>
#include <functional>
#include <string>
#include <vector>

/// Talks over a local socket in the user's runtime folder, and with programs of the same user alone: where that folder
/// is missing the socket lies where everybody can put one. Main thread.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    SingleInstance();
    /// Hands the files to the program that runs, or becomes that program: of several starts at once one does.
    /// @return whether a running program took the files
    bool handOver(const std::vector<std::string>& files);
    /// Takes files from later starts from here on, and those that have come since handOver().
    void listen(std::function<void(const std::vector<std::string>&)> open);

private:
    bool askRunning(const std::vector<std::string>& files) const;
    void take();
    QString mName;
    QLocalServer mServer;
    std::function<void(const std::vector<std::string>&)> mOpen;
};
