// SPDX-License-Identifier: GPL-3.0-or-later
/// Messages by name: a list of handlers under a lock, called outside of it.
#include "base/NotificationCenter.h"
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace zp
{

struct NotificationCenter::Private {
    struct Entry {
        const void* observer;
        std::function<void(const Notification&)> handler;
        std::atomic<bool> alive{true};
    };
    std::mutex guard;
    std::map<std::string, std::vector<std::shared_ptr<Entry>>> entries;
};

NotificationCenter::NotificationCenter() : d(new Private) {}

NotificationCenter& NotificationCenter::defaultCenter()
{
    // Never destroyed: observers that live as long as the program sign off in their own destructors.
    static NotificationCenter* const center = new NotificationCenter;
    return *center;
}

void NotificationCenter::addObserver(const void* observer, const std::string& name,
                                     std::function<void(const Notification&)> handler)
{
    auto entry = std::make_shared<Private::Entry>();
    entry->observer = observer;
    entry->handler = std::move(handler);
    const std::lock_guard hold(d->guard);
    d->entries[name].push_back(std::move(entry));
}

void NotificationCenter::removeObserver(const void* observer)
{
    std::vector<std::shared_ptr<Private::Entry>> gone; // handlers are destroyed after the lock is open again
    const std::lock_guard hold(d->guard);
    for (auto& [name, list] : d->entries) {
        std::erase_if(list, [&](const std::shared_ptr<Private::Entry>& entry) {
            if (entry->observer != observer) return false;
            entry->alive.store(false, std::memory_order_release);
            gone.push_back(entry);
            return true;
        });
    }
}

void NotificationCenter::post(const std::string& name, std::any object, std::map<std::string, std::string> userInfo)
{
    std::vector<std::shared_ptr<Private::Entry>> receivers;
    {
        const std::lock_guard hold(d->guard);
        if (const auto found = d->entries.find(name); found != d->entries.end()) receivers = found->second;
    }
    const Notification notification{name, std::move(object), std::move(userInfo)};
    for (const auto& entry : receivers)
        if (entry->alive.load(std::memory_order_acquire))
            entry->handler(notification); // one before may have removed it
}

} // namespace zp
