// SPDX-License-Identifier: GPL-3.0-or-later
/// Messages by name between windows that do not know each other; delivered at once, on the posting thread.
#pragma once
#include <any>
#include <functional>
#include <map>
#include <string>

namespace zp
{

struct Notification {
    std::string name;
    std::any object;                             ///< what the sender hands over, empty for none
    std::map<std::string, std::string> userInfo; ///< named texts that travel with it
};

/// Thread-safe; a handler runs on the thread that posts, and may add, remove and post itself.
class NotificationCenter
{
public:
    static NotificationCenter& defaultCenter();
    /// @p observer is only a key for removeObserver. Several handlers a name are called in the order added.
    void addObserver(const void* observer, const std::string& name, std::function<void(const Notification&)> handler);
    void removeObserver(const void* observer);
    void post(const std::string& name, std::any object = {}, std::map<std::string, std::string> userInfo = {});

private:
    NotificationCenter();
    struct Private;
    Private* d;
};

} // namespace zp
