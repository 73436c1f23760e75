// SPDX-License-Identifier: GPL-3.0-or-later
/// Shares of a folder, and places from the environment of schedulers.
#include "batch/BatchShard.h"
#include "base/Folders.h"
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace zp
{
namespace
{

std::vector<std::string> folderOfSources()
{
    std::vector<std::string> names;
    for (int i = 0; i < 23; ++i) {
        const std::string base(1, char('a' + (i * 7) % 23));
        names.push_back(base + ".jpg");
        if (i % 3 == 0) names.push_back(base + ".tiff");
        if (i % 5 == 0) names.push_back(base + " 2.jpg"); // sorts between the two above
    }
    return names;
}

TEST(BatchShard, SharesTogetherAreTheWhole)
{
    const std::vector<std::string> names = folderOfSources();
    for (const unsigned count : {1u, 2u, 5u, 40u}) {
        std::multiset<std::string> all;
        for (unsigned k = 1; k <= count; ++k)
            for (const std::string& name : shardOf(names, {k, count})) all.insert(name);
        EXPECT_EQ(all, std::multiset<std::string>(names.begin(), names.end())) << count;
    }
}

TEST(BatchShard, SourcesOfOneResultAreInOneShareAndInOrder)
{
    for (const unsigned count : {2u, 3u, 7u, 40u}) {
        std::map<std::string, unsigned> placeOf;
        for (unsigned k = 1; k <= count; ++k) {
            const auto share = shardOf(folderOfSources(), {k, count});
            for (const std::string& name : share)
                EXPECT_EQ(placeOf.try_emplace(pathWithoutExtension(name), k).first->second, k) << name;
            for (std::size_t i = 1; i < share.size(); ++i) {
                if (pathWithoutExtension(share[i]) == pathWithoutExtension(share[i - 1])) {
                    EXPECT_LT(share[i - 1], share[i]);
                }
            }
        }
    }
}

TEST(BatchShard, SharesAreEvenInResults)
{
    std::map<unsigned, std::set<std::string>> results;
    for (unsigned k = 1; k <= 4; ++k)
        for (const std::string& name : shardOf(folderOfSources(), {k, 4}))
            results[k].insert(pathWithoutExtension(name));
    for (unsigned k = 1; k <= 4; ++k) EXPECT_EQ(results[k].size(), 7u) << k; // 28 in all
}

TEST(BatchShard, SharesDoNotDependOnTheOrderOfTheListing)
{
    std::vector<std::string> names = folderOfSources();
    const auto share = shardOf(names, {2, 3});
    std::reverse(names.begin(), names.end());
    EXPECT_EQ(shardOf(names, {2, 3}), share);
}

/// Sets variables for one test and takes them, and all that a scheduler around the tests may have set, away again.
class BatchShardPlace : public testing::Test
{
protected:
    BatchShardPlace() { clear(); }
    ~BatchShardPlace() override { clear(); }
    static void clear()
    {
        for (const char* name : {"SLURM_ARRAY_TASK_ID", "SLURM_ARRAY_TASK_MIN", "SLURM_ARRAY_TASK_STEP",
                                 "SLURM_ARRAY_TASK_COUNT", "JOB_COMPLETION_INDEX"})
            unsetenv(name);
    }
    /// "number/count", or the sentence.
    static std::string place(const std::string& text, const std::map<std::string, std::string>& environment = {})
    {
        clear();
        for (const auto& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
        std::string error;
        const Shard shard = parseShard(text, error);
        return error.empty() ? std::to_string(shard.number) + "/" + std::to_string(shard.count) : error;
    }
};

TEST_F(BatchShardPlace, IsWhatTheWordsOrTheEnvironmentSay)
{
    const struct {
        const char* text;
        std::map<std::string, std::string> environment;
        const char* expected;
    } rows[] = {
        {"2/5", {}, "2/5"},
        {"1/1", {{"JOB_COMPLETION_INDEX", "7"}}, "1/1"},
        {"auto/4", {{"JOB_COMPLETION_INDEX", "0"}}, "1/4"},
        {"auto/4", {{"JOB_COMPLETION_INDEX", "3"}}, "4/4"},
        {"auto/4", {{"SLURM_ARRAY_TASK_ID", "0"}, {"SLURM_ARRAY_TASK_MIN", "0"}}, "1/4"},
        {"auto/4", {{"SLURM_ARRAY_TASK_ID", "4"}, {"SLURM_ARRAY_TASK_MIN", "1"}}, "4/4"},
        {"auto/4", {{"SLURM_ARRAY_TASK_ID", "102"}, {"SLURM_ARRAY_TASK_MIN", "100"}}, "3/4"},
        {"auto/4",
         {{"SLURM_ARRAY_TASK_ID", "30"},
          {"SLURM_ARRAY_TASK_MIN", "10"},
          {"SLURM_ARRAY_TASK_STEP", "10"},
          {"SLURM_ARRAY_TASK_COUNT", "4"}},
         "3/4"},
        {"auto/4", {{"SLURM_ARRAY_TASK_ID", "1"}, {"SLURM_ARRAY_TASK_MIN", "0"}, {"JOB_COMPLETION_INDEX", "3"}}, "2/4"},
        {"auto/4", {{"SLURM_ARRAY_TASK_ID", ""}, {"JOB_COMPLETION_INDEX", "3"}}, "4/4"},
    };
    for (const auto& row : rows) EXPECT_EQ(place(row.text, row.environment), row.expected) << row.text;
}

TEST_F(BatchShardPlace, MakesNoSense)
{
    for (const char* text : {"", "/", "3", "3/2", "0/2", "1/0", "auto", "auto/", "auto/0", "auto/x", "Auto/2", "-1/2",
                             "1/2/3", "1/99999999999"})
        EXPECT_EQ(place(text, {{"JOB_COMPLETION_INDEX", "0"}}),
                  std::string("--shard does not understand \"") + text + "\".");
}

TEST_F(BatchShardPlace, CannotBeTakenFromTheEnvironment)
{
    const struct {
        std::map<std::string, std::string> environment;
        const char* expected; ///< a part of the sentence
    } rows[] = {
        {{}, "neither is set"},
        {{{"JOB_COMPLETION_INDEX", "4"}}, "is 5, of only 4"},
        {{{"JOB_COMPLETION_INDEX", "4294967295"}}, "is 4294967296, of only 4"},
        {{{"JOB_COMPLETION_INDEX", "one"}}, "JOB_COMPLETION_INDEX is \"one\""},
        {{{"JOB_COMPLETION_INDEX", "-1"}}, "JOB_COMPLETION_INDEX is \"-1\""},
        {{{"SLURM_ARRAY_TASK_ID", "x"}, {"SLURM_ARRAY_TASK_MIN", "0"}}, "SLURM_ARRAY_TASK_ID is \"x\""},
        {{{"SLURM_ARRAY_TASK_ID", "1"}}, "SLURM_ARRAY_TASK_MIN is missing"},
        {{{"SLURM_ARRAY_TASK_ID", "1"}, {"SLURM_ARRAY_TASK_MIN", "2"}}, "SLURM_ARRAY_TASK_MIN is missing or larger"},
        {{{"SLURM_ARRAY_TASK_ID", "9"}, {"SLURM_ARRAY_TASK_MIN", "1"}}, "is 9, of only 4"},
        // a single task of an array submitted anew
        {{{"SLURM_ARRAY_TASK_ID", "3"}, {"SLURM_ARRAY_TASK_MIN", "3"}, {"SLURM_ARRAY_TASK_COUNT", "1"}},
         "has 1 tasks, not 4"},
    };
    for (const auto& row : rows)
        EXPECT_NE(place("auto/4", row.environment).find(row.expected), std::string::npos)
            << place("auto/4", row.environment);
}

} // namespace
} // namespace zp
