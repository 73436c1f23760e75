// SPDX-License-Identifier: GPL-3.0-or-later
/// The languages that the program speaks.
#pragma once
#include <QLocale>
#include <QStringList>

namespace zp
{

/// One that there are texts in, as files are named by it: "de", "zh_CN". Portuguese is written as in Brazil.
const QStringList& languages();

/// The one of languages() that a person who reads these languages, best first, wants. Empty: English.
QString languageFor(const QStringList& wanted);

/// The whole program, and Qt's own panels, speak this language from here on: the texts lie beside the resources. Main
/// thread, before the first window.
/// @param language  of languages(); empty: English
/// @return whether all its texts were there
bool speakLanguage(const QString& language);

/// The one that is spoken; empty: English.
QString spokenLanguage();

/// The texts below Qt alone, in a process that has no application object.
void speakWithoutApplication(const QString& language);

/// Texts as the person reads, numbers as the person writes them. Thousands are never marked: who types a number does
/// not.
void speakAsDesktop();

/// English, and numbers with a point: what a script says and reads is the same on every machine.
void speakAsScripts();

} // namespace zp
