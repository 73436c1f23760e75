// SPDX-License-Identifier: GPL-3.0-or-later
/// The probes: the kernel's release and the processor, as the commands' own tests of them read.
#include "desktop/SystemProbes.h"
#include "base/Log.h"
#include <bit>
#include <cstdio>
#include <mutex>
#include <sys/utsname.h>

namespace zp
{

namespace
{

constexpr std::uint32_t kVersionTooOld = 0x1040;
constexpr std::uint32_t kArchitectureLittleEndian = 10;
constexpr std::uint32_t kArchitectureBigEndian = 2;
// The oldest kernel the program's system calls are all found in (renaming without replacing came with 3.15; anything
// that runs the C++ library of today is newer than 4).
constexpr int kOldestKernel = 4;

std::optional<std::uint32_t> versionOfSystem()
{
    utsname names;
    int major = 0;
    if (uname(&names) != 0 || std::sscanf(names.release, "%d", &major) != 1) return std::nullopt;
    return major >= kOldestKernel ? kVersionSnowLeopard : kVersionTooOld;
}

std::optional<std::uint32_t> architectureOfSystem()
{
    return std::endian::native == std::endian::little ? kArchitectureLittleEndian : kArchitectureBigEndian;
}

/// One probe's memory.
struct Answer {
    bool done = false, result = false;
};

std::mutex guard;
SystemQueries queries{versionOfSystem, architectureOfSystem};
Answer leopard, snowLeopardOrLater, leopardOrLater, intel;

bool versionProbe(Answer& answer, bool (*rule)(std::uint32_t), const char* yes, const char* no)
{
    const std::lock_guard hold(guard);
    if (!answer.done) {
        const auto version = queries.systemVersion();
        if (!version) return false; // asked again next time
        answer = {true, rule(*version)};
        logLine("%s", answer.result ? yes : no);
    }
    return answer.result;
}

} // namespace

bool isLeopardExactly()
{
    return versionProbe(
        leopard, [](std::uint32_t v) { return v == kVersionLeopard; }, "Mac OS X 10.5 Leopard", "not Leopard");
}

bool isSnowLeopardOrLater()
{
    return versionProbe(
        snowLeopardOrLater, [](std::uint32_t v) { return v >= kVersionSnowLeopard; },
        "Mac OS X 10.6 Snow Leopard or later", "before Snow Leopard");
}

bool isLeopardOrLater()
{
    return versionProbe(
        leopardOrLater, [](std::uint32_t v) { return v >= kVersionLeopard; }, "Mac OS X 10.5 Leopard or later",
        "before Leopard");
}

bool isIntelProcessor()
{
    const std::lock_guard hold(guard);
    // Done after the first question even when that failed.
    if (!intel.done) intel = {true, queries.systemArchitecture() == kArchitectureLittleEndian};
    return intel.result;
}

void setSystemQueries(const std::optional<SystemQueries>& replacement)
{
    const std::lock_guard hold(guard);
    queries = replacement.value_or(SystemQueries{versionOfSystem, architectureOfSystem});
    if (!queries.systemVersion) queries.systemVersion = versionOfSystem;
    if (!queries.systemArchitecture) queries.systemArchitecture = architectureOfSystem;
    leopard = snowLeopardOrLater = leopardOrLater = intel = {};
}

} // namespace zp
