// SPDX-License-Identifier: GPL-3.0-or-later
/// Letters for menus.
#include "desktop/Mnemonics.h"
#include <gtest/gtest.h>

using namespace zp;

namespace
{

TEST(Mnemonics, BeginningsOfWordsComeFirstAndNoLetterTwice)
{
    struct Case {
        QStringList texts, marked;
    };
    const Case cases[] = {
        {{"Save", "Save as"}, {"&Save", "Save &as"}},
        {{"Cut", "Copy", "Crop"}, {"&Cut", "C&opy", "C&rop"}},
        {{"Öffnen", "Über"}, {"Ö&ffnen", "Ü&ber"}},
        {{"Ab", "A"}, {"A&b", "&A"}}, // the first makes room
        {{"A", "A"}, {"&A", "A"}},
        {{}, {}},
    };
    for (const Case& c : cases) EXPECT_EQ(withMnemonics(c.texts), c.marked) << qUtf8Printable(c.texts.join(", "));
}

TEST(Mnemonics, TextsInOtherLettersGetTheEnglishOnesBehindThem)
{
    EXPECT_EQ(withMnemonics({"保存", "PNG で保存…", "終了"}, {"Save", "Save as PNG…", "Quit"}),
              QStringList({"保存(&S)", "PNG で保存(&A)…", "終了(&Q)"}));
    EXPECT_EQ(withMnemonics({"保存"}), QStringList({"保存(&A)"}));
}

TEST(Mnemonics, AreTakenOutAgain)
{
    for (const QStringList& texts : {QStringList{"Save", "Save as", "Cut (x)"}, {"保存", "PNG で保存…", "終了"}}) {
        QStringList again;
        for (const QString& text : withMnemonics(texts)) again << withoutMnemonic(text);
        EXPECT_EQ(again, texts);
    }
}

} // namespace
