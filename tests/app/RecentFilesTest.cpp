// SPDX-License-Identifier: GPL-3.0-or-later
/// Recent files: the program's list, and the desktop's, in which others write too.
#include "app/RecentFiles.h"
#include "support/TemporaryFolder.h"
#include <QByteArray>
#include <QFile>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace
{

class RecentFilesTest : public testing::Test
{
protected:
    RecentFilesTest() { clearRecentFiles(); }
    QString path() const { return QString::fromStdString((folder.path() / "recently-used.xbel").string()); }
    QByteArray shared() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray& bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    const TemporaryFolder folder;
    const TemporaryVariable data{"XDG_DATA_HOME", folder.path().string()};
};

const QByteArray kOthers =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n>\n"
    "  <bookmark href=\"file:///home/a/b%C3%A4r%20&amp;%20co.odt\" added=\"2026-01-01T00:00:00Z\" "
    "modified=\"2026-01-01T00:00:00Z\" visited=\"2026-01-01T00:00:00Z\">\n    <info>\n"
    "      <metadata owner=\"http://freedesktop.org\">\n        <mime:mime-type type=\"text/plain\"/>\n"
    "        <bookmark:applications>\n          <bookmark:application name=\"Writer\" exec=\"&apos;writer %u&apos;\" "
    "modified=\"2026-01-01T00:00:00Z\" count=\"1\"/>\n        </bookmark:applications>\n      </metadata>\n"
    "    </info>\n  </bookmark>";

TEST_F(RecentFilesTest, TheNewestStandsFirstAndTenAreKept)
{
    for (int i = 0; i < 12; ++i) noteRecentFile("/p/" + std::to_string(i) + ".png");
    noteRecentFile("/p/5.png");
    const auto files = recentFiles();
    ASSERT_EQ(files.size(), 10u);
    EXPECT_EQ(files[0], "/p/5.png");
    EXPECT_EQ(files[1], "/p/11.png");
}

TEST_F(RecentFilesTest, TheDesktopsListGetsOneBookmarkAFile)
{
    noteRecentFile("/p/a b.png");
    noteRecentFile("/p/a b.png");
    EXPECT_EQ(shared().count("<bookmark href"), 1);
    EXPECT_TRUE(shared().contains("href=\"file:///p/a%20b.png\""));
    EXPECT_TRUE(shared().contains("type=\"image/png\""));
    EXPECT_TRUE(shared().contains("name=\"Zelpane\""));
}

TEST_F(RecentFilesTest, WhatOthersWroteStaysByteForByte)
{
    write(kOthers + "\n</xbel>\n");
    noteRecentFile("/p/a.png");
    EXPECT_TRUE(shared().startsWith(kOthers));
    EXPECT_EQ(shared().count("<bookmark href"), 2);
    noteRecentFile("/p/b.png");
    EXPECT_TRUE(shared().startsWith(kOthers));
    EXPECT_EQ(shared().count("<bookmark href"), 3);
    clearRecentFiles();
    EXPECT_EQ(shared(), kOthers + "\n</xbel>\n");
    EXPECT_TRUE(recentFiles().empty());
}

TEST_F(RecentFilesTest, AFileThatIsNoSuchListIsLeftAlone)
{
    for (const QByteArray& bytes :
         {QByteArray("words"), QByteArray("<html></html>"), kOthers, QByteArray("<xbel version=\"1.0\"></xbel>")}) {
        write(bytes);
        noteRecentFile("/p/a.png");
        EXPECT_EQ(shared(), bytes);
        clearRecentFiles();
        EXPECT_EQ(shared(), bytes);
    }
}

} // namespace
