// SPDX-License-Identifier: GPL-3.0-or-later
/// The program while the process that reads a picture for it dies or hangs.
#include "support/ProcessLook.h"
#include "support/Samples.h"
#include "support/Session.h"
#include <csignal>
#include <unistd.h>

using zp::test::sample;
using zp::test::Session;

namespace
{

QList<pid_t> decoders(Session& s) { return zp::test::decodersOf(s.process().processId()); }

QString openBase(const char* name) { return QString("open ") + QString::fromStdString(sample("made/valid/")) + name; }

/// Of the alert that comes up.
QString message(Session& s)
{
    for (int i = 0; i < 300; ++i) {
        const QJsonObject alert = s.must("alert")["alert"].toObject();
        if (!alert.isEmpty()) return alert["message"].toString();
        s.must("sleep 0.1");
    }
    return {};
}

class Decoding : public testing::Test
{
protected:
    Session s;
    pid_t decoder = 0;

    void SetUp() override
    {
        s.must(openBase("base.gif"));
        // On a busy machine the answer is that of a window with Cancel, and the image is still to come.
        for (int i = 0; i < 300 && !s.ask("pixel 3 3")["ok"].toBool(); ++i) s.must("sleep 0.1");
        const QList<pid_t> all = decoders(s);
        ASSERT_EQ(all.size(), 1) << "it was not read in a process of its own";
        decoder = all[0];
    }
    void expectGoesOn()
    {
        s.must("answer OK");
        EXPECT_TRUE(s.must("state").contains("ok"));
        s.must(openBase("base.bmp"));
        EXPECT_TRUE(s.must("alert")["alert"].isNull());
        EXPECT_EQ(s.end(), 0);
    }
};

TEST_F(Decoding, IsDoneByOneProcessForOnePictureAfterTheOther)
{
    s.must(openBase("base.bmp"));
    s.must(openBase("base.psd"));
    EXPECT_EQ(decoders(s), QList<pid_t>{decoder});
    EXPECT_EQ(s.end(), 0);
    for (int i = 0; i < 100 && ::kill(decoder, 0) == 0; ++i) usleep(20'000);
    EXPECT_NE(::kill(decoder, 0), 0) << "it outlives the program";
}

TEST_F(Decoding, ThatWasKilledWhileIdleIsStartedAnew)
{
    ::kill(decoder, SIGKILL);
    s.must(openBase("base.bmp"));
    EXPECT_TRUE(s.must("alert")["alert"].isNull());
    EXPECT_EQ(s.end(), 0);
}

TEST_F(Decoding, ThatHangsIsEndedByEscape)
{
    ::kill(decoder, SIGSTOP);
    s.must(openBase("base.bmp")); // answered when the window with Cancel comes up
    s.must("key Escape");
    EXPECT_EQ(message(s), "base.bmp: Reading was stopped.");
    expectGoesOn();
}

using DecodingLong = Decoding;
TEST_F(DecodingLong, ThatHangsIsEndedAfterAWhile)
{
    ::kill(decoder, SIGSTOP);
    s.must(openBase("base.bmp"));
    EXPECT_EQ(message(s), "base.bmp: The BMP image cannot be read: its reader did not come to an end.");
    expectGoesOn();
}

} // namespace
