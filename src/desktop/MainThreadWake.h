// SPDX-License-Identifier: GPL-3.0-or-later
/// A worker's tap on the main thread's shoulder: no memory changes hands, only a kernel event.
#pragma once
#include <QSocketNotifier>
#include <cstdint>
#include <functional>
#include <memory>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace zp
{

/// Made and destroyed on the main thread, where @p action runs from the event loop some time after a wake(); several
/// wakes before that are one. Everything the worker did before wake() is visible to the action. Beside a queued call it
/// allocates nothing on the worker, and a thread checker can follow it (it sees the kernel event, but not the locks
/// inside Qt's event queue).
class MainThreadWake
{
public:
    explicit MainThreadWake(std::function<void()> action)
        : mAction(std::move(action)), mEvent(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    {
        if (mEvent < 0) return;
        mNotifier = std::make_unique<QSocketNotifier>(mEvent, QSocketNotifier::Read);
        QObject::connect(mNotifier.get(), &QSocketNotifier::activated, mNotifier.get(), [this] {
            std::uint64_t count = 0;
            if (read(mEvent, &count, sizeof count) == ssize_t(sizeof count)) mAction();
        });
    }
    ~MainThreadWake()
    {
        mNotifier.reset();
        if (mEvent >= 0) close(mEvent);
    }
    MainThreadWake(const MainThreadWake&) = delete;
    MainThreadWake& operator=(const MainThreadWake&) = delete;

    /// Any thread, while the object lives.
    void wake() noexcept
    {
        const std::uint64_t one = 1;
        // The only failure left is a counter that is full: then a wake is pending anyway.
        [[maybe_unused]] const ssize_t written = write(mEvent, &one, sizeof one);
    }

private:
    std::function<void()> mAction;
    int mEvent;
    std::unique_ptr<QSocketNotifier> mNotifier;
};

} // namespace zp
