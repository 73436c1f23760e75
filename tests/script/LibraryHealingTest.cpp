// SPDX-License-Identifier: GPL-3.0-or-later
/// Moved pictures and duplicates of the library, through the window of the real program as a script sees it.
#include "support/Session.h"
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

using zp::test::Session;

namespace
{

const QString kPictures = QString(ZP_TESTDATA) + "/images/";

TEST(LibraryHealing, AScriptFindsAMovedPictureAndDuplicates)
{
    Session session;
    session.newImage(64, 48);
    const QString before = session.file("photos/trip"), after = session.file("photos/journey");
    for (const QString& folder : {before, after}) ASSERT_TRUE(QDir().mkpath(folder));
    for (const char* name : {"/a.jpg", "/b.jpg"})
        ASSERT_TRUE(QFile::copy(kPictures + "photos/tahoe-gps.jpg", before + name));
    const auto settled = [&] {
        QElapsedTimer clock;
        QJsonObject table;
        for (clock.start(); (table = session.must("table"))["busy"].toBool() && clock.elapsed() < 60'000;)
            session.must("sleep 0.1");
        return table;
    };
    const auto label = [&] { return session.must("get mHealLabel")["value"].toString(); };
    session.must("menu fileManager:");
    session.must("drop \"" + before + "/a.jpg\" \"" + before + "/b.jpg\"");
    const int rows = int(settled()["rows"].toArray().size());
    EXPECT_EQ(session.must("get mDuplicatesButton")["value"].toInt(), 0) << "off as given";
    session.must("click mDuplicatesButton");
    const QJsonObject doubles = settled();
    EXPECT_EQ(doubles["columns"].toArray().last().toString(), "LIKENESS");
    ASSERT_EQ(doubles["rows"].toArray().size(), 2);
    for (const auto& row : doubles["rows"].toArray())
        EXPECT_EQ(row.toArray().last().toString().toStdString(), "1 · same content");
    session.must("click mDuplicatesButton");
    EXPECT_EQ(settled()["rows"].toArray().size(), rows);

    ASSERT_TRUE(QFile::rename(before + "/b.jpg", after + "/lake.jpg"));
    ASSERT_TRUE(QFile::remove(before + "/a.jpg"));
    session.must("menu fileManager:");
    settled();
    session.must("select-row 0");
    settled();
    EXPECT_EQ(label().toStdString(), ("Found again: “lake.jpg” in " + after).toStdString());
    session.must("click mRelinkButton");
    EXPECT_EQ(settled()["rows"].toArray()[0].toArray()[5].toString().toStdString(),
              (after + "/lake.jpg [alias •]").toStdString());
}

} // namespace
