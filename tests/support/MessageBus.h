// SPDX-License-Identifier: GPL-3.0-or-later
/// A message bus of a test's own, with what a desktop's portal sends over it.
#pragma once
#include "support/TemporaryFolder.h"
#include <QDBusArgument>
#include <QDBusConnection>
#include <QProcess>
#include <QStandardPaths>
#include <QVariant>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace zp::test
{

/// A daemon as long as the test runs; where none is installed the test is skipped.
class MessageBus : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString program = QStandardPaths::findExecutable("dbus-daemon");
        if (program.isEmpty()) GTEST_SKIP() << "there is no message bus";
        // Of the machine's services it starts none.
        const std::string path = mFolder.path().string(), configuration = path + "/bus.conf";
        std::ofstream(configuration) << "<busconfig><type>session</type><listen>unix:dir=" << path
                                     << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                        "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                                        "<allow own=\"*\"/></policy></busconfig>";
        mDaemon.start(program,
                      {"--config-file=" + QString::fromStdString(configuration), "--nofork", "--print-address=1"});
        ASSERT_TRUE(mDaemon.waitForReadyRead()) << "dbus-daemon did not start";
        mAddress = QString::fromUtf8(mDaemon.readLine()).trimmed();
    }
    void TearDown() override
    {
        for (const QString& name : mNames) QDBusConnection::disconnectFromBus(name);
        mDaemon.kill();
        mDaemon.waitForFinished();
    }
    /// A program's place on the bus, another with each call.
    QDBusConnection connection()
    {
        static int number = 0;
        mNames << QString("test-%1").arg(++number);
        return QDBusConnection::connectToBus(mAddress, mNames.last());
    }

private:
    TemporaryFolder mFolder;
    QProcess mDaemon;
    QString mAddress;
    QStringList mNames;
};

/// A colour as portals send it.
inline QVariant portalColorValue(double red, double green, double blue)
{
    QDBusArgument argument;
    argument.beginStructure();
    argument << red << green << blue;
    argument.endStructure();
    return QVariant::fromValue(argument);
}

} // namespace zp::test
