// SPDX-License-Identifier: GPL-3.0-or-later
/// What every fuzzer shares: how it is named, what it is handed, how it says that something is wrong.
#pragma once
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace zp::fuzz
{

using Bytes = std::span<const std::uint8_t>;

/// Not an assertion that a build may leave out: the fuzzer takes the end of the program for a finding.
inline void require(bool holds, const char* what)
{
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

struct Fuzzer {
    const char* name;
    void (*run)(Bytes);
    const char*
        seeds; ///< endings of the test pictures that it begins with, between blanks; "" for its own folder alone
};

/// All fuzzers of a program that holds several: the replay of their corpora.
std::vector<Fuzzer>& fuzzers();

struct Registered {
    explicit Registered(Fuzzer fuzzer) { fuzzers().push_back(fuzzer); }
};

} // namespace zp::fuzz

#ifdef ZP_FUZZING
#define ZP_FUZZ(name, seeds, bytes)                                                                                    \
    static void name(zp::fuzz::Bytes bytes);                                                                           \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)                                  \
    {                                                                                                                  \
        name({data, size});                                                                                            \
        return 0;                                                                                                      \
    }                                                                                                                  \
    static void name(zp::fuzz::Bytes bytes)
#else
#define ZP_FUZZ(name, seeds, bytes)                                                                                    \
    static void name(zp::fuzz::Bytes bytes);                                                                           \
    static const zp::fuzz::Registered registered##name{{#name, name, seeds}};                                          \
    static void name(zp::fuzz::Bytes bytes)
#endif
