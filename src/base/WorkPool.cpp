// SPDX-License-Identifier: GPL-3.0-or-later
/// The standing workers: one queue of passes, each pass a counter that caller and workers draw parts from.
#include "base/WorkPool.h"
#include "base/CpuHints.h"
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace zp
{

namespace
{
/// Set while a thread runs a body: passes started from inside one run right there, or workers could wait for each
/// other.
thread_local bool insideBody = false;

struct Pass {
    const std::function<void(int)>* body = nullptr;
    int count = 0;
    std::atomic<int> next{0};
    std::atomic<int> done{0};
    std::mutex mutex;
    std::condition_variable finished;
    std::exception_ptr failure; ///< the first; guarded by mutex

    /// Runs parts until none is left to start. The pass may be over (and the body gone) once the last is counted.
    void work()
    {
        for (;;) {
            const int part = next.fetch_add(1, std::memory_order_relaxed);
            if (part >= count) return;
            try {
                (*body)(part);
            } catch (...) {
                const std::scoped_lock lock(mutex);
                if (!failure) failure = std::current_exception();
            }
            if (done.fetch_add(1, std::memory_order_acq_rel) + 1 == count) {
                const std::scoped_lock lock(mutex);
                finished.notify_all();
            }
        }
    }
};

class Workers
{
public:
    static Workers& shared()
    {
        static Workers workers;
        return workers;
    }

    explicit Workers() : mCount(wantedCount())
    {
        try {
            for (int i = 1; i < mCount; ++i) mThreads.emplace_back([this] { run(); });
        } catch (const std::system_error&) {
            mCount = int(mThreads.size()) + 1; // the system allows no more; the caller always works itself
        }
    }

    ~Workers()
    {
        {
            const std::scoped_lock lock(mMutex);
            mStopping = true;
        }
        mWork.notify_all();
        for (std::thread& thread : mThreads) thread.join();
    }

    int count() const { return mCount; }

    void submit(const std::shared_ptr<Pass>& pass)
    {
        {
            const std::scoped_lock lock(mMutex);
            mPasses.push_back(pass);
        }
        if (pass->count > 2)
            mWork.notify_all();
        else
            mWork.notify_one();
    }

    void withdraw(const std::shared_ptr<Pass>& pass)
    {
        const std::scoped_lock lock(mMutex);
        std::erase(mPasses, pass);
    }

private:
    static int wantedCount()
    {
        if (const char* jobs = std::getenv("ZELPANE_JOBS"))
            if (const int n = std::atoi(jobs); n >= 1) return std::min(n, 64);
        return std::clamp(int(std::thread::hardware_concurrency()), 1, 64);
    }

    void run()
    {
        insideBody = true;
        std::unique_lock lock(mMutex);
        for (;;) {
            mWork.wait(lock, [&] { return mStopping || !mPasses.empty(); });
            if (mPasses.empty()) return;
            const std::shared_ptr<Pass> pass = mPasses.front();
            if (pass->next.load(std::memory_order_relaxed) >= pass->count) {
                mPasses.pop_front();
                continue;
            }
            lock.unlock();
            pass->work();
            lock.lock();
        }
    }

    int mCount;
    std::vector<std::thread> mThreads;
    std::mutex mMutex;
    std::condition_variable mWork;
    std::deque<std::shared_ptr<Pass>> mPasses; ///< guarded by mMutex
    bool mStopping = false;
};

struct InsideBody {
    InsideBody() { insideBody = true; }
    ~InsideBody() { insideBody = false; }
};

void runAlone(int count, const std::function<void(int)>& body)
{
    std::exception_ptr failure;
    for (int i = 0; i < count; ++i) {
        try {
            body(i);
        } catch (...) {
            if (!failure) failure = std::current_exception();
        }
    }
    if (failure) std::rethrow_exception(failure);
}
} // namespace

int workerCount() { return Workers::shared().count(); }

int workersHere() { return insideBody ? 1 : workerCount(); }

void parallelFor(int count, const std::function<void(int)>& body)
{
    if (count <= 0) return;
    if (count == 1 || workersHere() == 1) return runAlone(count, body);
    std::shared_ptr<Pass> pass;
    try {
        pass = std::make_shared<Pass>();
        pass->body = &body;
        pass->count = count;
        Workers::shared().submit(pass);
    } catch (const std::bad_alloc&) {
        return runAlone(count, body); // whatever is half done can then be done to its end
    }
    {
        const InsideBody mark;
        pass->work();
    }
    Workers::shared().withdraw(pass);
    // The others' last parts mostly end within microseconds: look a little before going to sleep.
    for (int spins = 0; spins < 2000 && pass->done.load(std::memory_order_acquire) < count; ++spins) pauseSpinning();
    std::unique_lock lock(pass->mutex);
    pass->finished.wait(lock, [&] { return pass->done.load(std::memory_order_acquire) == count; });
    if (pass->failure) std::rethrow_exception(pass->failure);
}

void parallelThreads(int count, const std::function<void(int)>& body)
{
    if (count <= 0) return;
    std::mutex mutex;
    std::exception_ptr failure; // the first; guarded by mutex
    const auto run = [&](int i) {
        const bool outer = std::exchange(insideBody, true);
        try {
            body(i);
        } catch (...) {
            const std::scoped_lock lock(mutex);
            if (!failure) failure = std::current_exception();
        }
        insideBody = outer;
    };
    std::vector<std::jthread> threads;
    int started = 1;
    try {
        for (; started < count; ++started) threads.emplace_back(run, started);
    } catch (const std::system_error&) {
        // the caller takes over below
    }
    run(0);
    for (int i = started; i < count; ++i) run(i);
    threads.clear(); // joins
    if (failure) std::rethrow_exception(failure);
}

void parallelBands(int rows, int grain, const std::function<void(int, int)>& body)
{
    if (rows <= 0) return;
    // A few bands a worker even out what the machine's other work takes from one of them.
    const int most = workerCount() == 1 ? 1 : 4 * workerCount();
    const int bands = std::clamp(rows / std::max(grain, 1), 1, most);
    if (bands == 1) return body(0, rows);
    const auto runBand = [&](int band) {
        const auto edge = [&](int b) { return int(static_cast<long long>(rows) * b / bands); };
        body(edge(band), edge(band + 1));
    };
    parallelFor(bands, std::ref(runBand)); // a copy might need memory
}

} // namespace zp
