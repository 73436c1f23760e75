// SPDX-License-Identifier: GPL-3.0-or-later
/// Which language is spoken to whom, and by what texts.
#include "desktop/Languages.h"
#include "base/Translation.h"
#include <QCoreApplication>
#include <QLocale>
#include <gtest/gtest.h>

using namespace zp;

namespace
{

class Languages : public testing::Test
{
protected:
    ~Languages() override
    {
        speakLanguage({});
        QLocale::setDefault(QLocale::c());
    }
};

TEST_F(Languages, ThePersonsBestOneThatThereIsIsSpoken)
{
    struct Case {
        QStringList wanted;
        const char* spoken;
    };
    const Case cases[] = {
        {{"de-AT"}, "de"},
        {{"de"}, "de"},
        {{"pt-PT"}, "pt_BR"},
        {{"fr-CA", "en"}, "fr"},
        {{"en-GB", "de"}, ""}, // English is understood better
        {{"nl", "fr"}, "fr"},
        {{"zh-CN"}, "zh_CN"},
        {{"zh-SG"}, "zh_CN"},
        {{"zh-TW"}, ""},
        {{"zh-Hant-HK", "ja"}, "ja"},
        {{"C"}, ""},
        {{}, ""},
    };
    for (const Case& c : cases) EXPECT_EQ(languageFor(c.wanted), c.spoken) << qUtf8Printable(c.wanted.join(", "));
}

TEST_F(Languages, EachHasItsTextsWithPlurals)
{
    struct Case {
        const char *language, *open, *one, *many;
    };
    const Case cases[] = {
        {"", "Open…", "1 image", "7 images"},         {"de", "Öffnen …", "1 Bild", "7 Bilder"},
        {"fr", "Ouvrir…", "1 image", "7 images"},     {"es", "Abrir…", "1 imagen", "7 imágenes"},
        {"pt_BR", "Abrir…", "1 imagem", "7 imagens"}, {"ja", "開く…", "1 枚の画像", "7 枚の画像"},
        {"zh_CN", "打开…", "1 张图片", "7 张图片"},
    };
    EXPECT_EQ(int(std::size(cases)), languages().size() + 1);
    for (const Case& c : cases) {
        ASSERT_TRUE(speakLanguage(c.language)) << c.language;
        EXPECT_EQ(QCoreApplication::translate("Menu", "Open…"), c.open);
        EXPECT_EQ(translated("Menu", "Open…"), c.open);
        EXPECT_EQ(translated("ZPFileManager", "%n image(s)", nullptr, 1), c.one);
        EXPECT_EQ(translated("ZPFileManager", "%n image(s)", nullptr, 7), c.many);
    }
}

TEST_F(Languages, ScriptsAreSpokenToInEnglishWithPoints)
{
    QLocale::setDefault(QLocale("de_DE"));
    ASSERT_TRUE(speakLanguage("de"));
    speakAsScripts();
    EXPECT_EQ(translated("Menu", "Open…"), "Open…");
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 2), "1234.50");
}

} // namespace
