// SPDX-License-Identifier: GPL-3.0-or-later
/// The words that the program is started with.
#include "app/CommandLine.h"
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace
{

zp::CommandLine parse(std::vector<std::string> words)
{
    std::vector<char*> argv{const_cast<char*>("zelpane")};
    for (std::string& word : words) argv.push_back(word.data());
    return zp::parseCommandLine(int(argv.size()), argv.data());
}

TEST(CommandLine, KnowsFilesFromOptions)
{
    const auto line = parse({"a.jpg", "--no-start-choice", "/b c.png", "--", "--new"});
    EXPECT_EQ(line.error, "");
    ASSERT_EQ(line.files.size(), 3u);
    EXPECT_TRUE(line.files[0].starts_with('/') && line.files[0].ends_with("/a.jpg"));
    EXPECT_EQ(line.files[1], "/b c.png");
    EXPECT_TRUE(line.files[2].ends_with("/--new"));
    EXPECT_FALSE(line.startChoice);
    EXPECT_EQ(line.request, "");
}

TEST(CommandLine, SaysWhatToBeginWith)
{
    for (const char* request : {"--new", "--open", "--image-processor"}) {
        const auto line = parse({request});
        EXPECT_EQ(line.error, "");
        EXPECT_EQ(line.request, request);
    }
    EXPECT_EQ(parse({"--new", "--open"}).error, "--new and --open cannot be combined.");
}

TEST(CommandLine, RefusesWhatItDoesNotKnow)
{
    EXPECT_EQ(parse({"--what"}).error, "unknown option --what");
    EXPECT_EQ(parse({"--script"}).error, "--script needs a file.");
}

TEST(CommandLine, TheVersionNamesLibrariesAndVectorTargets)
{
    const QStringList lines = QString::fromStdString(parse({"--version"}).answer).split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(QRegularExpression("^Zelpane \\d+\\.\\d+\\.\\d+$").match(lines[0]).hasMatch()) << qPrintable(lines[0]);
    EXPECT_TRUE(lines[1].startsWith(QString("Libraries: Qt (%1), ").arg(qVersion()))) << qPrintable(lines[1]);
    for (const char* library : {"Highway", "AGG", "libjpeg", "libtiff", "zlib", "libdeflate", "ImageMagick"})
        EXPECT_TRUE(QRegularExpression(QString(", %1 \\(\\d+\\.\\d").arg(library)).match(lines[1]).hasMatch())
            << library;
    EXPECT_TRUE(QRegularExpression("^Vector targets: [^ ,]+ \\(in use\\)(, [^ ,]+)*$").match(lines[2]).hasMatch())
        << qPrintable(lines[2]);
    EXPECT_EQ(lines[3], "");
}

} // namespace
