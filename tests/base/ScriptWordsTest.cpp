// SPDX-License-Identifier: GPL-3.0-or-later
/// Lines of the automation language, word by word.
#include "base/ScriptWords.h"
#include <gtest/gtest.h>

using Words = std::vector<std::string>;

TEST(ScriptWords, SplitsAtBlanksQuotesAndComments)
{
    struct Case {
        const char* line;
        Words words;
    };
    const Case cases[] = {
        {"press 10 20", {"press", "10", "20"}},
        {"  answer   \"New…\"  ", {"answer", "New…"}},
        {"answer \"a b\" c", {"answer", "a b", "c"}},
        {"set mName \"\"", {"set", "mName", ""}},
        {"set x \"say \\\"hi\\\" \\\\ there\"", {"set", "x", "say \"hi\" \\ there"}},
        {"set x C:\\temp", {"set", "x", "C:\\temp"}},
        {"# only a comment", {}},
        {"press 1 2 # here", {"press", "1", "2"}},
        {"set mColorWell \"#ff0000\"", {"set", "mColorWell", "#ff0000"}},
        {"set mColorWell #ffffff", {"set", "mColorWell", "#ffffff"}},
        {"set mColorWell #FFEEDD80 # see-through", {"set", "mColorWell", "#FFEEDD80"}},
        {"set mToolPopUp #3", {"set", "mToolPopUp", "#3"}},
        {"press 1 2 #fast", {"press", "1", "2"}},
        {"#3 first", {}},
        {"key a#b", {"key", "a#b"}},
        {"", {}},
    };
    for (const Case& c : cases) {
        const auto words = zp::splitScriptLine(c.line);
        ASSERT_TRUE(words) << c.line;
        EXPECT_EQ(*words, c.words) << c.line;
    }
}

TEST(ScriptWords, RefusesAnOpenQuote) { EXPECT_FALSE(zp::splitScriptLine("answer \"New")); }

TEST(ScriptWords, AreQuotedWhereTheyMustBe)
{
    for (const std::string word : {"plain", "two words", "", "#start", "a#b", "say \"hi\"", "back\\slash", "ä…"}) {
        const auto words = zp::splitScriptLine("set " + zp::scriptWord(word));
        ASSERT_TRUE(words && words->size() == 2) << word;
        EXPECT_EQ(words->back(), word);
    }
}

TEST(ScriptWords, NumbersAreShortAndExact)
{
    struct Case {
        double number;
        const char* word;
    };
    for (const Case& c :
         {Case{0, "0"}, Case{12, "12"}, Case{-3.5, "-3.5"}, Case{0.1, "0.1"}, Case{100000000, "100000000"}})
        EXPECT_EQ(zp::scriptNumber(c.number), c.word);
    EXPECT_EQ(zp::scriptNumber(0.1f), "0.1");
    for (const double number : {1.0 / 3, 1e-9, 1234567.891, -2.5e17})
        EXPECT_EQ(std::stod(zp::scriptNumber(number)), number);
}

TEST(ScriptWords, ColoursTakeTheDigitsTheyNeed)
{
    struct Case {
        zp::Color color;
        const char* word;
    };
    const Case cases[] = {
        {{0, 0, 0, 1}, "#000000"},           {{1, 1, 1, 1}, "#ffffff"},
        {{1, 0, 51 / 255.0f, 1}, "#ff0033"}, {{1, 0, 0, 128 / 255.0f}, "#ff000080"},
        {{0.5f, 0, 0, 1}, "#800000000000"},  {{1, 1, 1, 0.25f}, "#ffffffffffff4000"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(zp::scriptColor(c.color), c.word);
        const auto color = zp::colorOfScriptWord(c.word);
        ASSERT_TRUE(color) << c.word;
        EXPECT_NEAR(color->red, c.color.red, 1e-5) << c.word;
        EXPECT_NEAR(color->green, c.color.green, 1e-5) << c.word;
        EXPECT_NEAR(color->blue, c.color.blue, 1e-5) << c.word;
        EXPECT_NEAR(color->alpha, c.color.alpha, 1e-5) << c.word;
        EXPECT_EQ(zp::scriptColor(*color), c.word);
    }
}

TEST(ScriptWords, RefuseWhatIsNoColour)
{
    for (const char* word : {"", "#", "red", "#12345", "#1234567", "#gg0000", "#ff00", "ff0000", "#-10000",
                             "#12345678901", "#0x0x0x", "#ff00001122334455667"})
        EXPECT_FALSE(zp::colorOfScriptWord(word)) << word;
}
