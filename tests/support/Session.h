// SPDX-License-Identifier: GPL-3.0-or-later
/// The real program, driven over two pipes by automation commands, in a home folder of its own.
#pragma once
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace zp::test
{

class Session
{
public:
    explicit Session(const QStringList& arguments = {"--no-start-choice"}, const QString& home = {},
                     const std::map<QString, QString>& variables = {})
    {
        if (home.isEmpty()) {
            mOwnHome = std::make_unique<QTemporaryDir>();
            mHome = mOwnHome->path();
        } else {
            mHome = home;
        }
        QDir().mkpath(mHome + "/runtime");
        QFile::setPermissions(mHome + "/runtime", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", mHome);
        environment.insert("ZELPANE_TMP", mHome);
        environment.insert("XDG_RUNTIME_DIR", mHome + "/runtime");
        for (const char* unwanted : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            environment.remove(unwanted);
        for (const auto& [name, value] : variables) environment.insert(name, value);
        mProcess.setProcessEnvironment(environment);
        mProcess.setWorkingDirectory(mHome);
        mProcess.start(ZP_PROGRAM, QStringList{"--script", "-"} + arguments);
        EXPECT_TRUE(mProcess.waitForStarted());
    }
    ~Session()
    {
        if (mProcess.state() == QProcess::NotRunning) return;
        mProcess.kill();
        mProcess.waitForFinished();
    }

    /// Sends a line and waits for its answer.
    QJsonObject ask(const QString& line, int milliseconds = 60'000)
    {
        mProcess.write(line.toUtf8() + '\n');
        while (!mProcess.canReadLine())
            if (!mProcess.waitForReadyRead(milliseconds)) {
                ADD_FAILURE() << "no answer to: " << line.toStdString() << "\n"
                              << mProcess.readAllStandardError().toStdString();
                return {};
            }
        const QByteArray reply = mProcess.readLine();
        const QJsonObject object = QJsonDocument::fromJson(reply).object();
        EXPECT_TRUE(object.contains("ok")) << reply.toStdString();
        return object;
    }
    /// The same for a command that must succeed.
    QJsonObject must(const QString& line)
    {
        const QJsonObject reply = ask(line);
        EXPECT_TRUE(reply["ok"].toBool()) << line.toStdString() << ": " << reply["error"].toString().toStdString();
        return reply;
    }
    QString failure(const QString& line)
    {
        const QJsonObject reply = ask(line);
        EXPECT_FALSE(reply["ok"].toBool()) << line.toStdString();
        return reply["error"].toString();
    }
    void play(std::initializer_list<QString> lines)
    {
        for (const QString& line : lines) must(line);
    }
    void newImage(int width, int height)
    {
        must("menu newDocument:");
        must(QString("set mNew_Width %1").arg(width));
        must(QString("set mNew_Height %1").arg(height));
        must("click new_new:");
        must("wait");
    }
    QJsonObject state() { return must("state"); }
    std::vector<int> pixel(int x, int y)
    {
        std::vector<int> bytes;
        for (const QJsonValue& v : must(QString("pixel %1 %2").arg(x).arg(y))["argb"].toArray())
            bytes.push_back(v.toInt());
        return bytes;
    }
    QStringList sounds() { return toStrings(must("sounds")["sounds"].toArray()); }
    QStringList log() { return toStrings(must("log")["lines"].toArray()); }
    /// Sends a line that may have no answer, because it ends the program.
    void send(const QString& line) { mProcess.write(line.toUtf8() + '\n'); }
    /// Waits for the answer of a line that was sent. @return false when the program is gone or does not answer
    bool takeAnswer(int milliseconds = 20'000)
    {
        while (!mProcess.canReadLine())
            if (!mProcess.waitForReadyRead(milliseconds)) return false;
        mProcess.readLine();
        return true;
    }
    /// Whether the program still answers, and ends what is at work in it.
    bool settles()
    {
        send("wait 20");
        return takeAnswer(30'000);
    }
    void terminate() { mProcess.terminate(); }
    bool finishes(int milliseconds = 20'000) { return mProcess.waitForFinished(milliseconds); }
    QProcess& process() { return mProcess; }
    bool ended() { return mProcess.waitForFinished(20'000) && mProcess.exitCode() == 0; }
    /// Ends the input. @return the exit status
    int end(int milliseconds = 60'000)
    {
        mProcess.closeWriteChannel();
        EXPECT_TRUE(mProcess.waitForFinished(milliseconds));
        return mProcess.exitCode();
    }
    void kill()
    {
        mProcess.kill();
        mProcess.waitForFinished();
    }
    QString home() const { return mHome; }
    QString file(const QString& name) const { return mHome + "/" + name; }

private:
    static QStringList toStrings(const QJsonArray& array)
    {
        QStringList list;
        for (const QJsonValue& v : array) list.append(v.toString());
        return list;
    }
    std::unique_ptr<QTemporaryDir> mOwnHome;
    QString mHome;
    QProcess mProcess;
};

} // namespace zp::test
