// SPDX-License-Identifier: GPL-3.0-or-later
/// A thread that computes only what was asked for last: what stands behind a preview, a search, a small picture.
#pragma once
#include "desktop/MainThreadWake.h"
#include <condition_variable>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace zp
{

/// Grants wishes one at a time on a thread of its own, and gives the main thread what comes of them. A new wish
/// replaces the one that waits and makes the one that is being granted late; of a replaced or a forgotten wish nothing
/// is heard any more. Whoever wants several things granted keeps them and asks for the next when one has been taken.
///
/// All is called on the main thread. The owner declares it after whatever its grant uses, so that it ends first.
/// @tparam Wish    moved to the worker
/// @tparam Result  moved to the main thread; default-made when there is none
template <typename Wish, typename Result>
class LatestWish
{
public:
    /// What a grant, on the worker, knows of its own wish.
    class Turn
    {
    public:
        /// Stopped as soon as nobody waits for this result any more: the grant then returns soon, with anything.
        const std::stop_token late;
        /// What there is so far. The main thread sees the latest that is there when it looks, and may miss earlier
        /// ones.
        void report(Result soFar) const { mOwner.leave(late, std::move(soFar), false); }

    private:
        friend LatestWish;
        Turn(LatestWish& owner, std::stop_token stop) : late(std::move(stop)), mOwner(owner) {}
        LatestWish& mOwner;
    };
    using Grant = std::function<Result(Wish, const Turn&)>;
    using Take = std::function<void(Result)>;

    /// Starts nothing yet.
    /// @param grant  runs on the worker, one call at a time. What it throws, if memory fails, becomes an empty result.
    /// @param take   runs on the main thread, from its event loop: after a report, and after the grant, when isIdle()
    /// is
    ///               true again. It may ask and forget, but not destroy this.
    LatestWish(Grant grant, Take take) : mGrant(std::move(grant)), mTake(std::move(take)), mWake([this] { takeNews(); })
    {
    }
    ~LatestWish() { end(); }
    LatestWish(const LatestWish&) = delete;
    LatestWish& operator=(const LatestWish&) = delete;

    /// Forgets the former wish; the first one starts the thread.
    /// @return false when there was no thread or no memory to be had: nothing will follow. The next try may fare
    /// better.
    [[nodiscard]] bool ask(Wish wish)
    {
        forget();
        try {
            mTurn = std::stop_source();
            if (!mWorker.joinable()) mWorker = std::jthread([this](const std::stop_token& stop) { work(stop); });
        } catch (const std::exception&) { // a system_error of the thread, or bad_alloc
            return false;
        }
        mWanted = true;
        {
            const std::lock_guard hold(mGuard);
            mAsked.emplace(Asked{std::move(wish), mTurn.get_token()});
        }
        mCome.notify_one();
        return true;
    }
    /// Nothing is wanted any more. Does not wait for the worker.
    void forget()
    {
        mWanted = false;
        mTurn.request_stop();
        const std::lock_guard hold(mGuard);
        mAsked.reset();
        mNews.reset();
    }
    /// No result is to come.
    bool isIdle() const { return !mWanted; }
    /// Forgets, and waits until the thread has ended. Another wish starts another thread.
    void end()
    {
        forget();
        mWorker = {};
    }

private:
    struct Asked {
        Wish wish;
        std::stop_token late;
    };
    struct News {
        Result result;
        bool whole;
    };
    void work(const std::stop_token& stop)
    {
        std::unique_lock hold(mGuard);
        while (mCome.wait(hold, stop, [this] { return mAsked.has_value(); })) {
            Asked asked = std::move(*mAsked);
            mAsked.reset();
            hold.unlock();
            grant(std::move(asked));
            hold.lock();
        }
    }
    void grant(Asked asked)
    {
        const Turn turn(*this, std::move(asked.late));
        Result result{};
        try {
            result = mGrant(std::move(asked.wish), turn);
        } catch (const std::exception&) {
            result = {};
        }
        leave(turn.late, std::move(result), true);
    }
    void leave(const std::stop_token& late, Result result, bool whole)
    {
        const std::lock_guard hold(mGuard); // a stop before it is seen here, one after it clears what is left here
        if (late.stop_requested()) return;
        mNews.emplace(News{std::move(result), whole});
        mWake.wake();
    }
    void takeNews()
    {
        std::optional<News> news;
        {
            const std::lock_guard hold(mGuard);
            news.swap(mNews);
        }
        if (!news) return; // forgotten since
        mWanted = !news->whole;
        mTake(std::move(news->result));
    }

    const Grant mGrant;
    const Take mTake;
    MainThreadWake mWake;
    bool mWanted = false; ///< the main thread's, as is the next
    std::stop_source mTurn{std::nostopstate};
    std::mutex mGuard; ///< of the next two
    std::optional<Asked> mAsked;
    std::optional<News> mNews;
    std::condition_variable_any mCome;
    std::jthread mWorker; ///< last: started after, and joined before, what it uses
};

} // namespace zp
