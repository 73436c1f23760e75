// SPDX-License-Identifier: GPL-3.0-or-later
/// What a script of a run may say, and how values get into it.
#include "batch/BatchScript.h"
#include "base/Folders.h"
#include "batch/BatchCommandLine.h"
#include <fstream>
#include <gtest/gtest.h>

namespace zp
{
namespace
{

std::string refusal(const std::string& text, const ScriptValues& values = {})
{
    const std::string path = temporaryFolder() + "/refused.script";
    std::ofstream(path) << text;
    std::string error;
    const bool refused = BatchScript::read(path, values, "/nowhere", error) == nullptr;
    EXPECT_EQ(refused, !error.empty());
    removeItem(path);
    const std::size_t name = error.find("refused.script:");
    return name == std::string::npos ? error : error.substr(name + 15);
}

TEST(BatchScript, RefusesWhatARunHasNoPlaceFor)
{
    const struct {
        const char* text;
        const char* why;
    } rows[] = {
        {"menu rotateCW:\n", ""},
        {"", ""},
        {"# open nothing\n", ""},
        {"menu rotateCW:\nopen a.tif\n", "2: a run over a folder has no place for \"open\""},
        {"-open a.tif\n", "1: a run over a folder has no place for \"open\""},
        {"\"choose\" a.tif", "1: a run over a folder has no place for \"choose\""},
        {"set mField \"a", "1: unbalanced quotes"},
        {"set mField ${WHAT}", "1: the script asks for ${WHAT}, which --set does not give"},
        {"set mField $WHAT ${", ""},
    };
    for (const auto& row : rows) EXPECT_EQ(refusal(row.text), row.why) << row.text;
    EXPECT_EQ(refusal("menu ${A}", {{"A", "\"open"}}), "1: unbalanced quotes");
    EXPECT_EQ(refusal("${A} x", {{"A", "open"}}), "1: a run over a folder has no place for \"open\"");
    EXPECT_EQ(refusal("set f \"${A}\"", {{"A", "say \"hello\" \\"}}), ""); // as the value of one word
    std::string error;
    EXPECT_EQ(BatchScript::read("/nowhere/at all", {}, "/nowhere", error), nullptr);
    EXPECT_EQ(error, "cannot read the script /nowhere/at all");
}

TEST(BatchScript, ValuesHaveNames)
{
    const struct {
        const char* word;
        bool fine;
    } rows[] = {{"A=", true},     {"WIDTH=12", true}, {"a_1=x=y", true}, {"A", false},    {"=12", false},
                {"A B=1", false}, {"A=1\n2", false},  {"", false},       {"{A}=1", false}};
    for (const auto& row : rows) {
        ScriptValues values;
        EXPECT_EQ(takeScriptValue(row.word, values).empty(), row.fine) << row.word;
        EXPECT_EQ(values.size(), row.fine ? 1u : 0u) << row.word;
    }
    ScriptValues values;
    takeScriptValue("a=x=y", values);
    takeScriptValue("a=z", values); // the last one counts
    EXPECT_EQ(values.at("a"), "z");
}

TEST(BatchScript, AScriptThatCannotBePlayedFailsTheImageAndChangesNothing)
{
    const std::string path = temporaryFolder() + "/played.script";
    std::ofstream(path) << "menu rotateCW:\n";
    const auto picture = BitmapRep::create(3, 2);
    std::string error;
    for (const char* program : {"/nowhere/at all", "/bin/false"}) {
        const auto script = BatchScript::read(path, {}, program, error);
        ASSERT_TRUE(script) << error;
        std::shared_ptr<BitmapRep> played = picture;
        EXPECT_EQ(script->play(std::string(ZP_TESTDATA) + "/images/none.jpg", played),
                  "The script could not be played: its editor ended before it did.");
        EXPECT_EQ(played, picture);
    }
    removeItem(path);
}

TEST(BatchScript, TheCommandLineTakesAScriptAndItsValues)
{
    const auto error = [](std::vector<std::string> more) {
        std::vector<std::string> words{"zelpane", "--batch", ZP_TESTDATA, temporaryFolder(), "--tiff"};
        words.insert(words.end(), more.begin(), more.end());
        std::vector<char*> argv;
        for (std::string& word : words) argv.push_back(word.data());
        return parseBatchCommandLine(int(argv.size()), argv.data()).error;
    };
    EXPECT_EQ(error({"--script", "a", "--set", "B=1", "--set=C=2"}), "");
    EXPECT_EQ(error({"--set", "B=1"}), "--set is of use with --script only.");
    EXPECT_EQ(error({"--script", "a", "--set", "B"}), "--set needs NAME=VALUE, not \"B\".");
    EXPECT_EQ(error({"--script"}), "--script needs a value.");
}

} // namespace
} // namespace zp
