// SPDX-License-Identifier: GPL-3.0-or-later
/// Texts for people, in the language of the person where the program knows it; for rooms that know no toolkit.
#pragma once
#include <initializer_list>
#include <string>

namespace zp
{

/// Marks a text that is translated where it is shown, by the context it is written with.
#define ZP_TEXT(context, text) text

/// The text in the person's language; the English one, as it is written, until there is another. From any thread.
/// @param context  where the text stands, for those who translate
/// @param comment  what they cannot see from the text
/// @param count  stands for %n and chooses the plural; "(s)" is the English one's. -1: the text counts nothing
std::string translated(const char* context, const char* text, const char* comment = nullptr, int count = -1);

/// %1 to %9 replaced by the values; what stands in a value is never replaced in turn.
std::string filledIn(const std::string& text, std::initializer_list<std::string> values);

/// Where translations come from: the same parameters and the same text back where there is none. Called from any
/// thread.
using Translator = std::string (*)(const char* context, const char* text, const char* comment, int count);
/// Main thread, before others ask. Null: texts are English again.
void setTranslator(Translator translator);

} // namespace zp
