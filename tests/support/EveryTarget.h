// SPDX-License-Identifier: GPL-3.0-or-later
/// Runs a test's body on every kind of vector unit that this machine can be taken for.
#pragma once
#include <cstdint>
#include <gtest/gtest.h>
#include <hwy/targets.h>

namespace zp::test
{

/// While it lives, the machine counts as one whose best vector target is the lowest bit of @p targets.
class LimitedTo
{
public:
    explicit LimitedTo(std::int64_t targets) { hwy::SetSupportedTargetsForTest(targets); }
    ~LimitedTo() { hwy::SetSupportedTargetsForTest(0); }
    LimitedTo(const LimitedTo&) = delete;
    LimitedTo& operator=(const LimitedTo&) = delete;
};

/// Calls body() once for each vector target of this machine, the best first, as if nothing better were there. The test
/// must not have other threads at kernels meanwhile.
template <class Body>
void onEveryTarget(Body&& body)
{
    const std::int64_t all = hwy::SupportedTargets() & ~HWY_SCALAR; // compiled nowhere; EMU128 is the plain one
    ASSERT_NE(all, 0);
    // A better target is a lower bit.
    for (std::int64_t left = all; left != 0; left &= left - 1) {
        const std::int64_t target = left & -left;
        SCOPED_TRACE(hwy::TargetName(target));
        const LimitedTo machine(left);
        body();
        if (testing::Test::HasFatalFailure()) return;
    }
}

} // namespace zp::test
