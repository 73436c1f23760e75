// SPDX-License-Identifier: GPL-3.0-or-later
/// The storage of the shared fill stack.
#include "tools/FillStack.h"

namespace zp
{

namespace
{
std::uint32_t storage[kFillStackSlots]; // zero-filled static storage: the system maps a page when it is first touched
}

FillStack& sharedFillStack()
{
    static FillStack stack{storage};
    return stack;
}

} // namespace zp
