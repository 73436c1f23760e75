// SPDX-License-Identifier: GPL-3.0-or-later
/// The corpora of all fuzzers run through without a fuzzer, and each input cut and changed in a few places.
#include "Fuzz.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace zp::fuzz
{

std::vector<Fuzzer>& fuzzers()
{
    static std::vector<Fuzzer> all;
    return all;
}

namespace
{

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestSeed = 40'000;
constexpr int kChangesAnInput = 6;

std::vector<fs::path> inputsOf(const Fuzzer& fuzzer)
{
    std::vector<fs::path> inputs;
    const fs::path own = fs::path(ZP_FUZZ_FOLDER) / "corpus" / fuzzer.name;
    if (fs::exists(own))
        for (const auto& entry : fs::directory_iterator(own)) inputs.push_back(entry.path());
    std::istringstream endings(fuzzer.seeds);
    for (std::string ending; endings >> ending;)
        for (const auto& entry : fs::recursive_directory_iterator(ZP_TESTDATA))
            if (entry.is_regular_file() && entry.path().extension() == "." + ending &&
                entry.file_size() <= kLargestSeed)
                inputs.push_back(entry.path());
    std::sort(inputs.begin(), inputs.end());
    return inputs;
}

class Replay : public testing::TestWithParam<Fuzzer>
{
};

TEST_P(Replay, OfItsInputsHolds)
{
    const auto inputs = inputsOf(GetParam());
    ASSERT_FALSE(inputs.empty());
    std::mt19937 random(20);
    for (const fs::path& input : inputs) {
        std::ifstream file(input, std::ios::binary);
        const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(file), {}};
        // Said before it is run: an input that ends the program is the last one named.
        std::printf("%s\n", input.c_str());
        std::fflush(stdout);
        GetParam().run(bytes);
        for (int i = 0; i < kChangesAnInput && !bytes.empty(); ++i) {
            std::vector<std::uint8_t> changed = bytes;
            if (i % 2 == 0) changed.resize(random() % bytes.size());
            for (std::size_t k = 0; k < 1 + random() % 4 && !changed.empty(); ++k)
                changed[random() % changed.size()] = std::uint8_t(random());
            GetParam().run(changed);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Fuzzers, Replay, testing::ValuesIn(fuzzers()), [](const auto& one) { return one.param.name; });

} // namespace
} // namespace zp::fuzz
