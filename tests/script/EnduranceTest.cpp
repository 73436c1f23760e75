// SPDX-License-Identifier: GPL-3.0-or-later
/// The program at work for long: steps, pictures, a monkey. A short form for every day, a long one for ./test --long.
/// The curve of its memory is printed; that it does not rise is what is asserted.
#include "support/ProcessLook.h"
#include "support/Samples.h"
#include "support/Session.h"
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

using zp::test::sample;
using zp::test::Session;

namespace
{

constexpr double kMegabyte = 1 << 20;
/// The files of an hour's steps go at the end, which takes a busy disk minutes.
constexpr int kEndOfMuch = 20 * 60'000;

class Endurance : public testing::Test
{
protected:
    Session s;

    /// Answers what stands in the way.
    void answerAlerts()
    {
        for (int i = 0; i < 5; ++i) {
            const QJsonObject alert = s.must("alert")["alert"].toObject();
            if (alert.isEmpty()) return;
            s.must("answer " + alert["buttons"].toArray().last().toString());
        }
    }
    /// Many lines at once, so that the run is not spent with waiting for answers.
    void saySeveral(const QStringList& lines)
    {
        for (const QString& line : lines) s.send(line);
        for (const QString& line : lines) ASSERT_TRUE(s.takeAnswer(60'000)) << line.toStdString();
    }
    void look() { mCurve.push_back(double(zp::test::residentBytes(s.process().processId())) / kMegabyte); }
    /// The second half of the run needs no more memory than the first, but for @p megabytes.
    void expectNoRise(double megabytes)
    {
        ASSERT_GE(mCurve.size(), 8u);
        std::printf("memory, MB:");
        for (std::size_t i = 0; i < mCurve.size(); i += std::max<std::size_t>(1, mCurve.size() / 20))
            std::printf(" %.0f", mCurve[i]);
        std::printf("\n");
        if (!zp::test::kMemoryTells) return;
        const auto half = mCurve.begin() + std::ptrdiff_t(mCurve.size() / 2);
        // The first looks belong to a program that is still getting to know its work.
        EXPECT_LE(*std::max_element(half, mCurve.end()), *std::max_element(mCurve.begin(), half) + megabytes);
    }

    void takeSteps(int count)
    {
        s.newImage(60, 40);
        s.play({"menu selectAll:", "set mColorWell #ffffff", "menu fill:", "wait"});
        std::mt19937 random(1);
        const int lookEvery = std::max(1, count / 40);
        const int before = s.state()["mUndoIndex"].toInt();
        int sinceLook = 0;
        for (int done = 0; done < count;) {
            QStringList lines;
            for (int i = 0; i < 20; ++i, ++done)
                lines << QString("set mColorWell #%1").arg(random() & 0xFFFFFFu, 6, 16, QChar('0')) << "menu fill:"
                      << "wait";
            lines << "wait";
            saySeveral(lines);
            if ((sinceLook += 20) >= lookEvery) look(), sinceLook = 0;
            if (HasFatalFailure()) return;
        }
        EXPECT_EQ(s.state()["mUndoIndex"].toInt(), before + count);
        // The last steps are all there, the first as well.
        s.play({"set mColorWell #123456", "menu fill:", "wait"});
        const std::vector<int> last = s.pixel(30, 20);
        for (int i = 0; i < 10; ++i) s.must("menu undo:");
        EXPECT_NE(s.pixel(30, 20), last);
        for (int i = 0; i < 10; ++i) s.must("menu redo:");
        EXPECT_EQ(s.pixel(30, 20), last);
        EXPECT_EQ(s.end(kEndOfMuch), 0);
    }

    void openPictures(int count)
    {
        QStringList files;
        for (const char* folder : {"made/valid", "made/gif", "made/exif", "psd", "misc-wuffs", "bmp-broken"}) {
            const QString path = QString::fromStdString(sample(folder));
            for (const QString& name : QDir(path).entryList(QDir::Files)) files << path + "/" + name;
        }
        ASSERT_GT(files.size(), 30);
        const int lookEvery = std::max(1, count / 40);
        qsizetype most = 0;
        for (int i = 0; i < count; ++i) {
            s.must("open " + files[i % files.size()]);
            answerAlerts();
            if (i % lookEvery != 0) continue;
            look();
            // Pictures before this one keep theirs; ten of them at most.
            const qsizetype open = zp::test::openFiles(s.process().processId());
            if (i < count / 2)
                most = std::max(most, open);
            else
                EXPECT_LE(open, most + 8);
            if (HasFailure()) return;
        }
        EXPECT_EQ(s.end(kEndOfMuch), 0);
    }

    /// @param goesOn  asked before each gesture with their number so far
    void playTheMonkey(const std::function<bool(int)>& goesOn, int lookEvery)
    {
        const char* const commands[] = {
            "fill:",      "cut:",        "copy:",  "paste:", "rotateCW:",      "rotateCCW:", "undo:", "redo:",
            "selectAll:", "selectNone:", "flipH:", "flipV:", "selectInverse:", "undo:",      "fill:", "selectAll:"};
        std::mt19937 random(7);
        const auto upTo = [&random](int most) { return int(random() % unsigned(most)); };
        s.newImage(320, 240);
        for (int event = 0; goesOn(event); ++event) {
            if (event % lookEvery == 0) look();
            QStringList lines;
            for (int i = 0; i < 5; ++i) {
                lines << QString("set mColorWell #%1").arg(random() & 0xFFFFFFu, 6, 16, QChar('0'));
                lines << QString("set mToolPopUp #%1").arg(upTo(12));
                lines << QString("press %1 %2").arg(upTo(320)).arg(upTo(240));
                for (int k = upTo(6); k > 0; --k) lines << QString("drag %1 %2").arg(upTo(320)).arg(upTo(240));
                lines << QString("release %1 %2").arg(upTo(320)).arg(upTo(240));
                lines << QString("menu ") + commands[upTo(int(std::size(commands)))];
            }
            lines << "wait";
            saySeveral(lines);
            answerAlerts();
            if (HasFailure()) return;
        }
        EXPECT_EQ(s.end(kEndOfMuch), 0);
    }

private:
    std::vector<double> mCurve;
};
using EnduranceLong = Endurance;

TEST_F(Endurance, OfSteps)
{
    takeSteps(200);
    expectNoRise(10);
}
TEST_F(EnduranceLong, OfTwoHundredThousandSteps)
{
    takeSteps(200'000);
    expectNoRise(150); // a step's entry in the list
}

TEST_F(Endurance, OfPictures)
{
    openPictures(80);
    expectNoRise(60);
}
TEST_F(EnduranceLong, OfTenThousandPictures)
{
    openPictures(10'000);
    expectNoRise(60);
}

TEST_F(Endurance, OfAMonkey)
{
    playTheMonkey([](int event) { return event < 20; }, 2);
    expectNoRise(60);
}
TEST_F(EnduranceLong, OfAMonkeyForAnHour)
{
    QElapsedTimer clock;
    clock.start();
    constexpr qint64 kAlmostAnHour = 57 * 60 * 1000; // what is cut off after an hour has found nothing
    playTheMonkey([&clock](int event) { return event < 40 || clock.elapsed() < kAlmostAnHour; }, 100);
    expectNoRise(60);
}

} // namespace
