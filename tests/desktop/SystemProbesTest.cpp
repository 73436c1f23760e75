// SPDX-License-Identifier: GPL-3.0-or-later
/// The probes ask once, remember, log once, and ask again only after a question that failed.
#include "desktop/SystemProbes.h"
#include "base/Log.h"
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class Probes : public testing::Test
{
protected:
    void SetUp() override { takeLogLines(); }
    void TearDown() override { setSystemQueries(std::nullopt); }
    void answer(std::optional<std::uint32_t> version, std::optional<std::uint32_t> architecture = 10)
    {
        setSystemQueries(SystemQueries{[this, version] {
                                           ++mAsked;
                                           return version;
                                       },
                                       [this, architecture] {
                                           ++mAsked;
                                           return architecture;
                                       }});
    }
    int mAsked = 0;
};

} // namespace

TEST_F(Probes, AnswerByTheVersionAndSaySoOnce)
{
    struct Case {
        std::uint32_t version;
        bool exactly, snow, leopard;
    };
    for (const Case& c : {Case{0x1049, false, false, false},
                          {0x1050, true, false, true},
                          {0x1051, false, false, true},
                          {0x1060, false, true, true},
                          {0x1070, false, true, true}}) {
        answer(c.version);
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(isLeopardExactly(), c.exactly) << c.version;
            EXPECT_EQ(isSnowLeopardOrLater(), c.snow) << c.version;
            EXPECT_EQ(isLeopardOrLater(), c.leopard) << c.version;
        }
        EXPECT_EQ(takeLogLines(),
                  (std::vector<std::string>{c.exactly ? "Mac OS X 10.5 Leopard" : "not Leopard",
                                            c.snow ? "Mac OS X 10.6 Snow Leopard or later" : "before Snow Leopard",
                                            c.leopard ? "Mac OS X 10.5 Leopard or later" : "before Leopard"}));
    }
    EXPECT_EQ(mAsked, 15);
}

TEST_F(Probes, AFailedVersionQuestionIsAskedAgain)
{
    answer(std::nullopt);
    EXPECT_FALSE(isLeopardOrLater());
    EXPECT_FALSE(isLeopardOrLater());
    EXPECT_EQ(mAsked, 2);
    EXPECT_TRUE(takeLogLines().empty());
}

TEST_F(Probes, TheArchitectureIsAskedOnceEvenWhenThatFails)
{
    answer(0x1060, std::nullopt);
    EXPECT_FALSE(isIntelProcessor());
    EXPECT_FALSE(isIntelProcessor());
    EXPECT_EQ(mAsked, 1);
    answer(0x1060, 2);
    EXPECT_FALSE(isIntelProcessor());
    answer(0x1060, 10);
    EXPECT_TRUE(isIntelProcessor());
    EXPECT_TRUE(takeLogLines().empty());
}

TEST_F(Probes, TheRunningSystemIsNewEnough)
{
    setSystemQueries(std::nullopt);
    EXPECT_TRUE(isLeopardOrLater());
    EXPECT_TRUE(isSnowLeopardOrLater());
    EXPECT_FALSE(isLeopardExactly());
}
