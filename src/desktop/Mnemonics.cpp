// SPDX-License-Identifier: GPL-3.0-or-later
/// The letters are found rather than written down: so they cannot clash, whatever the language and the menu.
#include "desktop/Mnemonics.h"
#include <QRegularExpression>
#include <QSet>

namespace zp
{

namespace
{

/// Letters and figures that every keyboard with Latin letters has.
bool isPlain(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }

/// Where the first plain letter stands that is not taken; beginnings of words first. -1: nowhere.
qsizetype freeLetter(const QString& text, const QSet<QChar>& taken)
{
    for (const bool beginning : {true, false})
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || !text[i - 1].isLetterOrNumber();
            if (isPlain(text[i]) && begins == beginning && !taken.contains(text[i].toUpper())) return i;
        }
    return -1;
}

/// A text in letters of another kind can hold single Latin words ("PNG"), whose letters nobody would look for.
bool isWrittenInLatin(const QString& text)
{
    for (const QChar c : text)
        if (c.isLetter() && c.script() != QChar::Script_Latin) return false;
    return true;
}

const QRegularExpression kBehind("\\(&[A-Z0-9]\\)");

} // namespace

QStringList withMnemonics(const QStringList& texts, const QStringList& hints)
{
    static const QString kAll = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    QSet<QChar> taken;
    QStringList marked;
    for (qsizetype k = 0; k < texts.size(); ++k) {
        QString text = texts[k];
        if (isWrittenInLatin(text)) {
            const qsizetype at = freeLetter(text, taken);
            if (at >= 0) {
                taken.insert(text[at].toUpper());
                text.insert(at, '&');
            }
            marked << text;
            continue;
        }
        const QString hint = hints.value(k) + kAll;
        const qsizetype at = freeLetter(hint, taken);
        if (at >= 0) {
            const QChar letter = hint[at].toUpper();
            taken.insert(letter);
            const qsizetype end = text.endsWith(u'…') ? text.size() - 1 : text.size();
            text.insert(end, QString("(&%1)").arg(letter));
        }
        marked << text;
    }
    return marked;
}

QString withoutMnemonic(QString text) { return text.remove(kBehind).remove('&'); }

} // namespace zp
