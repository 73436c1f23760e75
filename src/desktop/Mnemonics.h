// SPDX-License-Identifier: GPL-3.0-or-later
/// Letters by which a menu is used without the mouse.
#pragma once
#include <QStringList>

namespace zp
{

/// Gives each text of one menu a letter of its own, marked by "&": the first one of its words where that is free, else
/// any letter of the text. A text without Latin letters gets one behind it in brackets, as is usual where such texts
/// are written.
/// @param hints  for each text one in Latin letters to choose that letter from; may be shorter than @p texts
/// @return the texts as they were where no letter was left
QStringList withMnemonics(const QStringList& texts, const QStringList& hints = {});

/// The text as it was before it got its letter.
QString withoutMnemonic(QString text);

} // namespace zp
