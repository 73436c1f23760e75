// SPDX-License-Identifier: GPL-3.0-or-later
/// Notifications reach their observers in order, on the posting thread, and no longer than they are wanted.
#include "base/NotificationCenter.h"
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using zp::Notification;
using zp::NotificationCenter;

TEST(NotificationCenter, DeliversAtOnceInTheOrderAddedWithWhatWasPosted)
{
    auto& center = NotificationCenter::defaultCenter();
    int a = 0;
    std::vector<std::string> seen;
    center.addObserver(&a, "order",
                       [&](const Notification& n) { seen.push_back("1" + std::any_cast<std::string>(n.object)); });
    center.addObserver(&a, "order", [&](const Notification& n) { seen.push_back("2" + n.userInfo.at("key")); });
    center.addObserver(&a, "other", [&](const Notification&) { seen.push_back("wrong"); });
    center.post("order", std::string("x"), {{"key", "y"}});
    EXPECT_EQ(seen, (std::vector<std::string>{"1x", "2y"}));
    center.post("nobody listens");
    center.removeObserver(&a);
    center.post("order", std::string("x"));
    EXPECT_EQ(seen.size(), 2u);
}

TEST(NotificationCenter, AHandlerMayRemoveAddAndPost)
{
    auto& center = NotificationCenter::defaultCenter();
    int a = 0, b = 0, calls = 0;
    center.addObserver(&a, "nest", [&](const Notification&) {
        ++calls;
        center.removeObserver(&a);
        center.removeObserver(&b); // stands behind in the same round and is not called any more
        center.addObserver(&a, "inner", [&](const Notification&) { calls += 10; });
        center.post("inner");
    });
    center.addObserver(&b, "nest", [&](const Notification&) { calls += 100; });
    center.post("nest");
    center.post("nest");
    EXPECT_EQ(calls, 11);
    center.removeObserver(&a);
}

TEST(NotificationCenter, ThreadsPostAndSignOnSideBySide)
{
    auto& center = NotificationCenter::defaultCenter();
    std::atomic<int> received{0};
    int key = 0;
    center.addObserver(&key, "many", [&](const Notification&) { ++received; });
    std::thread poster([&] {
        for (int i = 0; i < 2000; ++i) center.post("many");
    });
    for (int i = 0; i < 500; ++i) {
        int other = 0;
        center.addObserver(&other, "many", [](const Notification&) {});
        center.removeObserver(&other);
    }
    poster.join();
    EXPECT_EQ(received, 2000);
    center.removeObserver(&key);
}
