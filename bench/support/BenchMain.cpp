// SPDX-License-Identifier: GPL-3.0-or-later
/// Google Benchmark's own main, and one option beside its own: --targets avx3,avx2,sse4 runs every row on each of these
/// vector targets in turn, --rounds times over (5 when not given), and prints a row's medians side by side. On a busy
/// machine ZELPANE_JOBS=1 and --cpu-time, the calling thread's own time, tell more.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <hwy/targets.h>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace
{

struct Target {
    std::string name;
    std::int64_t allowed; ///< this target and all lesser ones: what a machine with nothing better has
};

/// @return whether this machine can be taken for one of that name
bool findTarget(std::string_view name, Target& found)
{
    struct Known {
        std::string_view name;
        std::int64_t best;
    };
    // A better target is a lower bit, so "at most this" is everything from its bit upwards.
    static constexpr Known kKnown[] = {{"avx3", HWY_AVX3_DL}, {"avx2", HWY_AVX2}, {"sse4", HWY_SSE4},
                                       {"ssse3", HWY_SSSE3},  {"neon", HWY_NEON}, {"none", HWY_EMU128}};
    for (const Known& known : kKnown) {
        if (known.name != name) continue;
        found = {std::string(name), hwy::SupportedTargets() & ~(known.best - 1)};
        const std::int64_t ofTheKind = known.best == HWY_AVX3_DL ? (HWY_AVX3_DL | HWY_AVX3) : known.best;
        return (found.allowed & ofTheKind) != 0;
    }
    return false;
}

/// Keeps the times of what is run instead of printing them.
class Collector final : public benchmark::BenchmarkReporter
{
public:
    explicit Collector(bool cpu = false) : mCpu(cpu) {}
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            failed = failed || run.error_occurred;
            time = mCpu ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
            unit = benchmark::GetTimeUnitString(run.time_unit);
        }
    }
    double time = 0;
    std::string unit;
    bool failed = false;

private:
    bool mCpu;
};

/// The names of the rows that the options given choose, in their order.
std::vector<std::string> rowNames()
{
    std::string program = "bench", list = "--benchmark_list_tests=true", run = "--benchmark_list_tests=false";
    std::ostringstream text;
    Collector listing;
    listing.SetOutputStream(&text);
    char* ask[] = {program.data(), list.data(), nullptr};
    int count = 2;
    benchmark::Initialize(&count, ask);
    benchmark::RunSpecifiedBenchmarks(&listing);
    char* stop[] = {program.data(), run.data(), nullptr};
    count = 2;
    benchmark::Initialize(&count, stop);
    std::vector<std::string> names;
    std::istringstream lines(text.str());
    for (std::string line; std::getline(lines, line);) names.push_back(line);
    return names;
}

/// A pattern that only this name fits.
std::string exactly(const std::string& name)
{
    std::string pattern = "^";
    for (const char c : name) {
        if (std::string_view(".^$*+?()[]{}|\\").find(c) != std::string_view::npos) pattern += '\\';
        pattern += c;
    }
    return pattern + "$";
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.size() % 2 ? values[values.size() / 2]
                             : (values[values.size() / 2 - 1] + values[values.size() / 2]) / 2;
}

int runTargets(const std::vector<Target>& targets, int rounds, bool cpu)
{
    const std::vector<std::string> names = rowNames();
    std::map<std::string, std::vector<std::vector<double>>> times;
    std::map<std::string, std::string> units;
    std::ostringstream nowhere;
    for (int round = 0; round < rounds; ++round)
        for (const std::string& name : names) {
            auto& row = times[name];
            row.resize(targets.size());
            for (std::size_t t = 0; t < targets.size(); ++t) {
                hwy::SetSupportedTargetsForTest(targets[t].allowed);
                Collector one(cpu);
                one.SetOutputStream(&nowhere);
                one.SetErrorStream(&nowhere);
                benchmark::RunSpecifiedBenchmarks(&one, exactly(name));
                if (one.failed || one.unit.empty()) {
                    std::cerr << name << ": failed\n";
                    return EXIT_FAILURE;
                }
                row[t].push_back(one.time);
                units[name] = one.unit;
            }
        }
    std::printf("%-48s", "row (median of rounds; ratio to the first)");
    for (const Target& target : targets) std::printf("%16s", target.name.c_str());
    std::printf("\n");
    for (const std::string& name : names) {
        std::printf("%-48s", name.c_str());
        const double first = median(times[name][0]);
        for (std::size_t t = 0; t < targets.size(); ++t) {
            const double m = median(times[name][t]);
            t == 0 ? std::printf("%13.3f %s", m, units[name].c_str()) : std::printf("%9.3f %6.2f", m, m / first);
        }
        std::printf("\n");
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<Target> targets;
    int rounds = 5, kept = 1;
    bool cpu = false;
    const auto value = [&](int& i, std::string_view option, std::string& text) {
        const std::string_view given = argv[i];
        if (given.substr(0, option.size()) != option) return false;
        if (given.size() > option.size() && given[option.size()] == '=')
            text = given.substr(option.size() + 1);
        else if (given.size() == option.size() && i + 1 < argc)
            text = argv[++i];
        else
            return false;
        return true;
    };
    for (int i = 1; i < argc; ++i) {
        std::string text;
        if (value(i, "--targets", text)) {
            std::istringstream list(text);
            for (std::string name; std::getline(list, name, ',');) {
                Target target;
                if (!findTarget(name, target)) {
                    std::cerr << "no vector target \"" << name << "\" on this machine\n";
                    return EXIT_FAILURE;
                }
                targets.push_back(target);
            }
        } else if (value(i, "--rounds", text)) {
            rounds = std::max(1, std::atoi(text.c_str()));
        } else if (std::string_view(argv[i]) == "--cpu-time") {
            cpu = true;
        } else {
            argv[kept++] = argv[i];
        }
    }
    argc = kept;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
    if (!targets.empty()) return runTargets(targets, rounds, cpu);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
