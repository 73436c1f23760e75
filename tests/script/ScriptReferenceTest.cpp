// SPDX-License-Identifier: GPL-3.0-or-later
/// The page about scripts is whole, and its examples run.
#include "app/CommandTable.h"
#include "support/Samples.h"
#include "support/Session.h"
#include <QRegularExpression>
#include <set>

using namespace zp;
using zp::test::Session;

namespace
{

QStringList page()
{
    QFile file(QString(ZP_SOURCE) + "/docs/scripting.md");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).split('\n');
}

/// The first words of what stands in backquotes of a line.
std::set<std::string> quotedWords(const QString& line)
{
    std::set<std::string> words;
    static const QRegularExpression quoted("`([^`]+)`");
    for (auto matches = quoted.globalMatch(line); matches.hasNext();)
        words.insert(matches.next().captured(1).section(' ', 0, 0).toStdString());
    return words;
}

TEST(ScriptReference, TellsOfEveryCommandTheDriverKnowsAndNoOther)
{
    Session session;
    std::set<std::string> known, told;
    for (const QJsonValue& word : session.must("commands")["commands"].toArray())
        known.insert(word.toString().toStdString());
    for (const QString& line : page())
        if (line.startsWith("### ")) told.merge(quotedWords(line));
    EXPECT_EQ(known, told);
    EXPECT_GT(known.size(), 40u);
}

TEST(ScriptReference, TellsOfEveryOperationAndMenuItemAndNoOther)
{
    std::set<std::string> operations, actions, toldOperations, toldActions;
    for (const Command& row : commandTable()) {
        if (row.parameters) operations.insert(row.action);
        if (row.menu && std::string_view(row.action) != kSeparator && std::string_view(row.action) != kRecentMenu)
            actions.insert(row.action);
    }
    // Those that a menu item reaches by the same name stand there; none is in no table.
    std::set<std::string>* told = nullptr;
    for (const QString& line : page()) {
        if (line.startsWith("## Menu actions")) told = &toldActions;
        if (line.startsWith("## Operations of")) told = &toldOperations;
        if (told && line.startsWith("| ") && told == &toldActions) told->merge(quotedWords(line));
        if (told && line.startsWith("| ") && told == &toldOperations) told->merge(quotedWords(line.section('|', 1, 1)));
    }
    toldOperations.erase("operation");
    EXPECT_EQ(actions, toldActions);
    EXPECT_EQ(operations, toldOperations);
}

TEST(ScriptReference, EveryCommandHasAnExampleAndTheExamplesRun)
{
    Session session;
    ASSERT_TRUE(QFile::copy(QString(ZP_TESTDATA) + "/images/photos/seeding-600-grey.jpg", session.file("photo.jpg")));
    QString command;
    std::set<std::string> without;
    int examples = 0;
    for (const QString& line : page()) {
        if (line.startsWith("### ")) {
            command = QString::fromStdString(*quotedWords(line).begin());
            without.insert(command.toStdString());
        }
        if (line.startsWith("## ")) command.clear();
        if (!line.startsWith("    ") || command.isEmpty()) continue;
        const QString word = line.trimmed().section(' ', 0, 0);
        without.erase((word.startsWith('-') ? word.mid(1) : word).toStdString());
        const bool mayFail = word.startsWith('-');
        const QJsonObject reply = session.ask(line.trimmed());
        EXPECT_TRUE(reply["ok"].toBool() || mayFail)
            << line.toStdString() << ": " << reply["error"].toString().toStdString();
        ++examples;
    }
    EXPECT_TRUE(without.empty()) << "no example of " << *without.begin();
    EXPECT_GT(examples, 45);
    EXPECT_EQ(session.end(), 0);
}

} // namespace
