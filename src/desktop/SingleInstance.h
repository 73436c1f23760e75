// SPDX-License-Identifier: GPL-3.0-or-later
/// One running editor a user: a second start hands its files to the first.
#pragma once
#include <QLocalServer>
#include <QObject>
#include <functional>
#include <string>
#include <vector>

/// Talks over a local socket in the user's runtime folder. Main thread.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    SingleInstance();
    /// @return whether a running program took the files
    bool handOver(const std::vector<std::string>& files);
    /// Takes files from later starts. A socket left by a program that is gone is replaced.
    void listen(std::function<void(const std::vector<std::string>&)> open);

private:
    void take();
    QString mName;
    QLocalServer mServer;
    std::function<void(const std::vector<std::string>&)> mOpen;
};
