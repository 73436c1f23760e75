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
