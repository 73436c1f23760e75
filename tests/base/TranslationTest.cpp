// SPDX-License-Identifier: GPL-3.0-or-later
/// Texts without and with another language.
#include "base/Translation.h"
#include <gtest/gtest.h>

using namespace zp;

namespace
{

TEST(Translation, WithoutALanguageTextsAreEnglish)
{
    EXPECT_EQ(translated("Files", "The disk is full."), "The disk is full.");
    EXPECT_EQ(translated("Files", "%n page(s)", nullptr, 1), "1 page");
    EXPECT_EQ(translated("Files", "%n page(s) of %1", nullptr, 12), "12 pages of %1");
}

TEST(Translation, ALanguageIsAskedWithContextAndCount)
{
    setTranslator([](const char* context, const char* text, const char*, int count) {
        return std::string(context) + "/" + text + "/" + std::to_string(count);
    });
    const std::string plain = translated("Files", "Save"), counted = translated("Files", "%n page(s)", nullptr, 3);
    setTranslator(nullptr);
    EXPECT_EQ(plain, "Files/Save/-1");
    EXPECT_EQ(counted, "Files/3 pages/3");
    EXPECT_EQ(translated("Files", "Save"), "Save");
}

TEST(Translation, ValuesAreFilledInOnceAndInAnyOrder)
{
    struct Case {
        const char *text, *filled;
    };
    for (const Case& c :
         {Case{"%1 of %2", "a%2 of b"}, {"%2: %1", "b: a%2"}, {"100 %", "100 %"}, {"%3 %", "%3 %"}, {"%1%1", "a%2a%2"}})
        EXPECT_EQ(filledIn(c.text, {"a%2", "b"}), c.filled);
}

} // namespace
