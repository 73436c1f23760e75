// SPDX-License-Identifier: GPL-3.0-or-later
/// One place that says how a pixel loop gets its vector versions.
#pragma once
#include <string>
#include <vector>

/// Before a function whose loops the compiler can vectorise: it is compiled for AVX-512, AVX2 and the base machine, and
/// the right one is chosen when the program starts. Off under the sanitizers, whose start-up comes after that choice.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(ZP_SANITIZED)
#define ZP_MULTIVERSION __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define ZP_MULTIVERSION
#endif

namespace zp
{

/// The instruction sets that pixel loops are compiled for and this machine has, best first: the first is the one in
/// use.
std::vector<std::string> vectorTargets();

} // namespace zp
