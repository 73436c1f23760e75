// SPDX-License-Identifier: GPL-3.0-or-later
/// Work that may take so long that a person wants to end it.
#pragma once
#include <exception>

namespace zp
{

/// Lives while such work goes on, in the thread that waits for it.
class LongWait
{
public:
    virtual ~LongWait() = default;
    /// Asked some twenty times a second. @return false when the person does not want to wait any longer
    virtual bool goOn() = 0;
};

/// Thrown by work that was ended for that. What it was to change is as it was.
class Stopped : public std::exception
{
public:
    const char* what() const noexcept override { return "stopped"; }
};

} // namespace zp
