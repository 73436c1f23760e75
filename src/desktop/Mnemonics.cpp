// SPDX-License-Identifier: GPL-3.0-or-later
/// The letters are found rather than written down: so they cannot clash, whatever the language and the menu.
#include "desktop/Mnemonics.h"
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace zp
{

namespace
{

/// Letters and figures that every keyboard with Latin letters has.
bool isPlain(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }

/// The places of a text's plain letters, beginnings of words first.
QList<qsizetype> lettersOf(const QString& text)
{
    QList<qsizetype> places;
    for (const bool beginning : {true, false})
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || !text[i - 1].isLetterOrNumber();
            if (isPlain(text[i]) && begins == beginning) places << i;
        }
    return places;
}

/// Gives out letters one by one; who comes late may move who came early to another letter.
class Letters
{
public:
    explicit Letters(const QStringList& sources) : mSources(sources), mPlaces(sources.size(), -1)
    {
        for (const QString& source : sources) mWanted << lettersOf(source);
        for (qsizetype k = 0; k < sources.size(); ++k) {
            QSet<QChar> tried;
            give(k, tried);
        }
    }
    /// Where the text's letter stands in its source. -1: it got none
    qsizetype placeOf(qsizetype k) const { return mPlaces[k]; }

private:
    bool give(qsizetype k, QSet<QChar>& tried)
    {
        for (const bool move : {false, true})
            for (const qsizetype place : mWanted[k]) {
                const QChar letter = mSources[k][place].toUpper();
                const bool isFree = !mOwners.contains(letter);
                if (!isFree && (!move || tried.contains(letter))) continue;
                tried.insert(letter);
                if (!isFree && !give(mOwners[letter], tried)) continue;
                mOwners[letter] = k;
                mPlaces[k] = place;
                return true;
            }
        return false;
    }
    const QStringList mSources;
    QList<QList<qsizetype>> mWanted;
    QList<qsizetype> mPlaces;
    QHash<QChar, qsizetype> mOwners;
};

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
    QStringList sources;
    for (qsizetype k = 0; k < texts.size(); ++k)
        sources << (isWrittenInLatin(texts[k]) ? texts[k] : hints.value(k) + kAll);
    const Letters letters(sources);
    QStringList marked = texts;
    for (qsizetype k = 0; k < texts.size(); ++k) {
        const qsizetype at = letters.placeOf(k);
        if (at < 0) continue;
        QString& text = marked[k];
        if (isWrittenInLatin(text))
            text.insert(at, '&');
        else
            text.insert(text.endsWith(u'…') ? text.size() - 1 : text.size(),
                        QString("(&%1)").arg(sources[k][at].toUpper()));
    }
    return marked;
}

QString withoutMnemonic(QString text) { return text.remove(kBehind).remove('&'); }

} // namespace zp
