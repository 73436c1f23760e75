// SPDX-License-Identifier: GPL-3.0-or-later
/// The table of commands: whole, unambiguous, and every row of it carried out by somebody.
#include "app/CommandTable.h"
#include "app/ZPAppController.h"
#include <QKeySequence>
#include <QStringList>
#include <gtest/gtest.h>
#include <set>

using namespace zp;

namespace
{

/// Separators and the menu of recent files are no commands.
bool isCommand(const Command& row)
{
    return std::string_view(row.action) != kSeparator && std::string_view(row.action) != kRecentMenu;
}

QStringList words(const char* text) { return QString(text).split(' ', Qt::SkipEmptyParts); }

TEST(CommandTable, ActionsAreUniqueAmongMenusAndAmongScripts)
{
    std::set<std::string> chosen, sent;
    for (const Command& row : commandTable()) {
        if (row.menu && isCommand(row)) {
            EXPECT_TRUE(chosen.insert(row.action).second) << row.action;
        }
        if (row.parameters) {
            EXPECT_TRUE(sent.insert(row.action).second) << row.action;
        }
    }
    EXPECT_GT(chosen.size(), 40u);
    EXPECT_GT(sent.size(), 30u);
}

TEST(CommandTable, AnActionHasOneOperationOnly)
{
    // perform() by name takes the first that runs.
    std::set<std::string> running;
    for (const Command& row : commandTable())
        if (row.run) {
            EXPECT_TRUE(running.insert(row.action).second) << row.action;
        }
}

TEST(CommandTable, RowsOfAMenuHaveTitleAndTipAndStandTogether)
{
    std::set<std::string> begun;
    std::string menu;
    for (const Command& row : commandTable()) {
        if (!row.menu) continue;
        if (menu != row.menu) {
            menu = row.menu;
            EXPECT_TRUE(begun.insert(menu).second) << menu << " is taken up again at " << row.action;
        }
        if (std::string_view(row.action) != kSeparator) {
            EXPECT_STRNE(row.title, "") << row.action;
        }
        if (isCommand(row)) {
            EXPECT_STRNE(row.tip, "") << row.action;
        }
    }
    EXPECT_EQ(begun.size(), 9u);
}

TEST(CommandTable, ShortcutsAreKeysAndEachIsOneCommands)
{
    std::set<QString> taken;
    for (const Command& row : commandTable())
        for (const QString& text : words(row.shortcut)) {
            const QKeySequence keys(text);
            EXPECT_EQ(keys.count(), 1) << row.action;
            EXPECT_NE(keys[0].key(), Qt::Key_unknown) << row.action << ": " << text.toStdString();
            EXPECT_TRUE(taken.insert(keys.toString()).second) << row.action << ": " << text.toStdString();
            EXPECT_TRUE(row.menu) << row.action;
        }
    EXPECT_GT(taken.size(), 30u);
}

TEST(CommandTable, ScriptsAreToldParametersThatTheyKnow)
{
    const QStringList known{"path", "number", "[number]", "word", "pixel", "nearest", "text"};
    for (const Command& row : commandTable()) {
        if (!row.parameters) continue;
        EXPECT_TRUE(row.run) << row.action;
        for (const QString& word : words(row.parameters)) EXPECT_TRUE(known.contains(word)) << row.action;
    }
}

TEST(CommandTable, StepsHaveNamesAndWhatWritesPixelsMindsThePiece)
{
    // Those that mean the piece itself, or bring another step, keep it.
    const std::set<std::string> keepers{"cut:", "delete:", "anchorSelection", "anchorSelection:", "newImageWithSize:"};
    for (const Command& row : commandTable()) {
        if (row.step == StepRule::Never) continue;
        EXPECT_TRUE(row.name && *row.name) << row.action;
        EXPECT_GE(row.effect, Effect::Select) << row.action;
        EXPECT_EQ(row.onFloat, keepers.contains(row.action) ? OnFloat::Keep : OnFloat::Settle) << row.action;
    }
}

TEST(CommandTable, EveryRowIsCarriedOutBySomebody)
{
    const ZPAppController application;
    for (const Command& row : commandTable()) {
        if (!isCommand(row)) continue;
        const bool shell = application.carriesOut(row.action);
        if (!row.menu) {
            EXPECT_TRUE(row.run) << row.action << " is reached by name alone";
        } else {
            EXPECT_NE(row.run != nullptr, shell) << row.action << " has exactly one that does it";
        }
    }
}

} // namespace
