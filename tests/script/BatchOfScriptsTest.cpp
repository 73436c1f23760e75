// SPDX-License-Identifier: GPL-3.0-or-later
/// A run over a folder that plays a script on each picture, by the real program.
#include "support/Samples.h"
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

class BatchOfScripts : public testing::Test
{
protected:
    BatchOfScripts()
    {
        for (const QString& name : {source(), QString("plain"), QString("played")}) QDir(mFolder.path()).mkdir(name);
        const QString photos = QString(ZP_TESTDATA) + "/images/exif-orientation/";
        for (const QString& name : {QString("hopper_orientation_3.jpg"), QString("hopper_orientation_6.jpg")})
            EXPECT_TRUE(QFile::copy(photos + name, path(source() + "/" + name)));
        // A name that would end its line, and open a quote, in a script.
        EXPECT_TRUE(QFile::copy(photos + "hopper_orientation_8.jpg", path(source() + "/a \"b\nc.jpg")));
    }
    static QString source() { return "source"; }
    QString path(const QString& name) const { return mFolder.path() + "/" + name; }
    QString script(const QByteArray& lines)
    {
        QFile file(path("script"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
        return file.fileName();
    }
    /// @return the exit status, with what was said in mErrors
    int run(const QString& destination, const QStringList& options)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ZELPANE_TMP", mFolder.path());
        environment.insert("HOME", mFolder.path());
        process.setProcessEnvironment(environment);
        process.start(ZP_PROGRAM, QStringList{"--batch", path(source()), path(destination)} + options);
        EXPECT_TRUE(process.waitForFinished(120'000));
        mErrors = process.readAllStandardError();
        return process.exitCode();
    }
    QStringList results(const QString& folder) const { return QDir(path(folder)).entryList(QDir::Files); }
    QByteArray bytes(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QTemporaryDir mFolder;
    QByteArray mErrors;
};

TEST_F(BatchOfScripts, AnEmptyScriptMakesTheBytesOfARunWithoutOne)
{
    ASSERT_EQ(run("plain", {"--tiff", "--jpeg", "--fit", "64x64"}), 0);
    ASSERT_EQ(run("played", {"--tiff", "--jpeg", "--fit", "64x64", "--script", script("# nothing\n")}), 0);
    ASSERT_EQ(results("played").size(), 6);

    for (const QString& name : results("played"))
        EXPECT_EQ(bytes("plain/" + name), bytes("played/" + name)) << name.toStdString();
}

TEST_F(BatchOfScripts, EachPictureIsPlayedByItselfBeforeItIsFitted)
{
    const QString lines = script("menu selectAll:\nset mColorWell ${COLOUR}\nmenu fill:\nmenu selectNone:\n"
                                 "send setImageSize:scale: 100 40 1\n");
    ASSERT_EQ(run("played", {"--jpeg", "--script", lines, "--set", "COLOUR=#ff0000", "--fit", "50x50", "--jobs", "3"}),
              0)
        << mErrors.toStdString();
    for (const QString& name : results("played")) {
        const QImage image(path("played/" + name));
        EXPECT_EQ(image.size(), QSize(50, 20)) << name.toStdString();
        EXPECT_TRUE(image.valid(10, 10) && qRed(image.pixel(10, 10)) > 250 && qBlue(image.pixel(10, 10)) < 5)
            << name.toStdString();
    }
    EXPECT_EQ(results("played").size(), 3);
    EXPECT_TRUE(QDir(mFolder.path()).entryList({"zelpane-script-*"}).isEmpty());
}

TEST_F(BatchOfScripts, AFailureIsOfOnePictureAndNamesTheLine)
{
    ASSERT_EQ(run("played", {"--tiff", "--script", script("# first\n\nmenu cut:\n")}), 1);
    EXPECT_EQ(mErrors.count("The script could not be played: line 3: disabled."), 3) << mErrors.toStdString();
    EXPECT_TRUE(results("played").isEmpty());
    ASSERT_EQ(run("played", {"--tiff", "--script", script("-menu cut:\nmenu openDocument:\n")}), 1);
    EXPECT_EQ(mErrors.count("it opened a file panel"), 3) << mErrors.toStdString();
    EXPECT_TRUE(results("played").isEmpty());
    ASSERT_EQ(run("played", {"--tiff", "--script", script("open /a.tif\n")}), 2);
    EXPECT_TRUE(mErrors.contains("script:1: a run over a folder has no place for \"open\"")) << mErrors.toStdString();
    ASSERT_EQ(run("played", {"--tiff", "--script", script("menu selectAll:\n"), "--shard", "1/3"}), 0);
    EXPECT_EQ(results("played").size(), 1);
}

} // namespace
