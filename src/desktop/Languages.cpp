// SPDX-License-Identifier: GPL-3.0-or-later
/// Finds and loads the texts of the person's language.
#include "desktop/Languages.h"
#include "base/Folders.h"
#include "base/Log.h"
#include "base/Translation.h"
#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

namespace zp
{

namespace
{

std::string byQt(const char* context, const char* text, const char* comment, int count)
{
    return QCoreApplication::translate(context, text, comment, count).toStdString();
}

/// Ours and that of Qt's own panels.
QTranslator texts, panelTexts;
QString spoken;

bool loadTexts(const QString& language)
{
    const QString name = "zelpane_" + language;
    bool ours = texts.load(name, QFile::decodeName((shippedResourcesFolder() + "/../translations").c_str()));
#ifdef ZP_BUILD_TRANSLATIONS
    ours = ours || texts.load(name, ZP_BUILD_TRANSLATIONS);
#endif
    return ours;
}

} // namespace

const QStringList& languages()
{
    static const QStringList all{"de", "es", "fr", "ja", "pt_BR", "zh_CN"};
    return all;
}

QString languageFor(const QStringList& wanted)
{
    for (const QString& name : wanted) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C) return {};
        // Who reads traditional characters is not served by simplified ones.
        if (locale.language() == QLocale::Chinese) {
            if (locale.script() == QLocale::SimplifiedChineseScript) return "zh_CN";
            continue;
        }
        const QString code = QLocale::languageToCode(locale.language());
        for (const QString& language : languages())
            if (language.section('_', 0, 0) == code) return language;
    }
    return {};
}

bool speakLanguage(const QString& language)
{
    QCoreApplication::removeTranslator(&texts);
    QCoreApplication::removeTranslator(&panelTexts);
    setTranslator(nullptr);
    spoken.clear();
    if (language.isEmpty()) return true;
    const bool ours = loadTexts(language);
    const bool panels = panelTexts.load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!ours) logLine("the texts of %s are missing", qUtf8Printable(language));
    if (panels) QCoreApplication::installTranslator(&panelTexts);
    if (ours) QCoreApplication::installTranslator(&texts);
    if (ours) setTranslator(byQt);
    if (ours) spoken = language;
    return ours;
}

QString spokenLanguage() { return spoken; }

void speakWithoutApplication(const QString& language)
{
    if (!loadTexts(language)) return;
    setTranslator([](const char* context, const char* text, const char* comment, int count) {
        const QString said = texts.translate(context, text, comment, count);
        return said.isEmpty() ? std::string(text) : said.toStdString();
    });
}

void speakAsDesktop()
{
    QLocale numbers = QLocale::system();
    numbers.setNumberOptions(numbers.numberOptions() | QLocale::OmitGroupSeparator);
    QLocale::setDefault(numbers);
    speakLanguage(languageFor(QLocale::system().uiLanguages()));
}

void speakAsScripts()
{
    QLocale::setDefault(QLocale::c());
    speakLanguage({});
}

} // namespace zp
