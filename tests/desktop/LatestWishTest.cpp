// SPDX-License-Identifier: GPL-3.0-or-later
/// What is heard of wishes that are replaced, forgotten, interrupted or cannot be granted.
#include "desktop/LatestWish.h"
#include <QTest>
#include <atomic>
#include <gtest/gtest.h>
#include <latch>
#include <new>
#include <pthread.h>
#include <string>
#include <vector>

using namespace zp;

namespace
{

using Numbers = std::vector<int>;

/// Grants numbers: a negative one waits until it is late, 0 fails, any other comes back.
class LatestWishOfNumbers : public testing::Test
{
protected:
    using Worker = LatestWish<int, int>;

    int grant(int wish, const Worker::Turn& turn)
    {
        granted = granted + 1;
        if (wish == 0) throw std::bad_alloc();
        if (wish < 0) {
            begun.count_down();
            while (!turn.late.stop_requested()) std::this_thread::yield();
        }
        return wish;
    }
    void finish()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return worker.isIdle(); }, 10000));
    }

    std::latch begun{1};
    std::atomic<int> granted = 0;
    Numbers taken;
    std::thread::id takenBy;
    Worker worker{[this](int wish, const Worker::Turn& turn) { return grant(wish, turn); },
                  [this](int result) {
                      taken.push_back(result);
                      takenBy = std::this_thread::get_id();
                  }};
};

TEST_F(LatestWishOfNumbers, TheResultComesToTheThreadThatAsked)
{
    EXPECT_TRUE(worker.isIdle());
    ASSERT_TRUE(worker.ask(7));
    EXPECT_FALSE(worker.isIdle());
    finish();
    EXPECT_EQ(taken, Numbers{7});
    EXPECT_EQ(takenBy, std::this_thread::get_id());
}

TEST_F(LatestWishOfNumbers, ANewWishReplacesTheOneThatWaitsAndInterruptsTheOneAtWork)
{
    ASSERT_TRUE(worker.ask(-1));
    begun.wait();
    for (const int wish : {1, 2, 3}) ASSERT_TRUE(worker.ask(wish));
    finish();
    EXPECT_EQ(taken, Numbers{3});
    EXPECT_LE(granted, 4);
}

TEST_F(LatestWishOfNumbers, AResultThatNobodyHasTakenYetGoesWithItsWish)
{
    ASSERT_TRUE(worker.ask(1));
    worker.end(); // it may have been granted by now
    EXPECT_TRUE(worker.isIdle());
    ASSERT_TRUE(worker.ask(2));
    while (granted < 1) std::this_thread::yield();
    ASSERT_TRUE(worker.ask(3));
    finish();
    EXPECT_EQ(taken, Numbers{3});
}

TEST_F(LatestWishOfNumbers, NothingIsHeardOfAForgottenWish)
{
    ASSERT_TRUE(worker.ask(-1));
    begun.wait();
    worker.forget();
    EXPECT_TRUE(worker.isIdle());
    QTest::qWait(20);
    EXPECT_EQ(taken, Numbers{});
    ASSERT_TRUE(worker.ask(4));
    finish();
    EXPECT_EQ(taken, Numbers{4});
}

TEST_F(LatestWishOfNumbers, TheEndInterruptsWhatIsAtWorkAndAnotherWishBeginsAnew)
{
    ASSERT_TRUE(worker.ask(-1));
    begun.wait();
    worker.end();
    worker.end();
    ASSERT_TRUE(worker.ask(5));
    finish();
    EXPECT_EQ(taken, Numbers{5});
}

TEST_F(LatestWishOfNumbers, AFailureIsAnEmptyResultAndTheNextWishIsGranted)
{
    for (const int wish : {0, 6}) {
        ASSERT_TRUE(worker.ask(wish));
        finish();
    }
    EXPECT_EQ(taken, (Numbers{0, 6}));
}

TEST_F(LatestWishOfNumbers, WithoutAThreadNothingFollowsUntilThereIsOne)
{
    pthread_attr_t given, vast;
    ASSERT_EQ(pthread_getattr_default_np(&given), 0);
    ASSERT_EQ(pthread_getattr_default_np(&vast), 0);
    constexpr std::size_t kMoreThanAnyMachineHas = std::size_t{1} << 50;
    ASSERT_EQ(pthread_attr_setstacksize(&vast, kMoreThanAnyMachineHas), 0);
    ASSERT_EQ(pthread_setattr_default_np(&vast), 0);
    EXPECT_FALSE(worker.ask(8));
    EXPECT_TRUE(worker.isIdle());
    ASSERT_EQ(pthread_setattr_default_np(&given), 0);
    pthread_attr_destroy(&vast);
    pthread_attr_destroy(&given);
    ASSERT_TRUE(worker.ask(9));
    finish();
    EXPECT_EQ(taken, Numbers{9});
}

TEST(LatestWish, ReportsComeBeforeTheResultAndInOrder)
{
    Numbers taken;
    std::atomic<int> seen = 0;
    using Worker = LatestWish<int, int>;
    Worker worker(
        [&](int last, const Worker::Turn& turn) {
            for (int i = 1; i < last; ++i) {
                turn.report(i);
                if (i == 1) seen.wait(0);
            }
            return last;
        },
        [&](int result) {
            EXPECT_EQ(worker.isIdle(), result == 1000);
            taken.push_back(result);
            seen = 1;
            seen.notify_one();
        });
    ASSERT_TRUE(worker.ask(1000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return worker.isIdle(); }, 10000));
    EXPECT_EQ(taken.front(), 1);
    EXPECT_EQ(taken.back(), 1000);
    EXPECT_TRUE(std::is_sorted(taken.begin(), taken.end()));
}

TEST(LatestWish, WhoeverTakesMayAskForTheNext)
{
    std::vector<std::string> left{"c", "b", "a"}, taken;
    bool asked = true;
    LatestWish<std::string, std::string> worker([](std::string wish, const auto&) { return wish + wish; },
                                                [&](std::string result) {
                                                    taken.push_back(std::move(result));
                                                    left.pop_back();
                                                    asked = asked && (left.empty() || worker.ask(left.back()));
                                                });
    ASSERT_TRUE(worker.ask(left.back()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return worker.isIdle(); }, 10000));
    EXPECT_TRUE(asked);
    EXPECT_EQ(taken, (std::vector<std::string>{"aa", "bb", "cc"}));
}

} // namespace
