// SPDX-License-Identifier: GPL-3.0-or-later
/// Cues through the desktop's sound service, from a thread of their own, so that nobody ever waits for a sound card.
#include "desktop/Sounds.h"
#include "base/Folders.h"
#include <QByteArray>
#include <canberra.h>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <thread>

namespace zp
{

namespace
{

constexpr std::size_t kRemembered = 10000;
constexpr std::size_t kWaiting = 4; // a burst of cues is not played back long after its causes
const std::string kBeep = "beep";

/// Whether there is anything to play through. Asked first, because the sound libraries complain on standard error when
/// there is no card.
bool machineHasSound()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.startsWith("offscreen") || platform.startsWith("minimal")) return false; // nobody is there to listen
    if (!qEnvironmentVariableIsEmpty("PULSE_SERVER")) return true;
    const std::string runtime = qgetenv("XDG_RUNTIME_DIR").toStdString();
    if (!runtime.empty())
        for (const char* socket : {"pulse/native", "pipewire-0"})
            if (fileExists(pathByAppending(runtime, socket))) return true;
    const std::string cards = readWholeFile("/proc/asound/cards", 65536).value_or("");
    return !cards.empty() && cards.find("no soundcards") == std::string::npos;
}

class Player
{
public:
    void ask(const std::string& name)
    {
        try {
            const std::lock_guard hold(mGuard);
            mAsked.push_back(name);
            if (mAsked.size() > kRemembered) mAsked.pop_front();
            if (mBroken || !mAudible || mWaiting.size() >= kWaiting) return;
            if (!mStarted) {
                mStarted = true;
                if (!machineHasSound()) {
                    mBroken = true;
                    return;
                }
                std::thread([this] { run(); }).detach(); // lives as long as the program, as the player does
            }
            mWaiting.push_back(name);
        } catch (const std::exception&) { // no thread or no memory for a sound: whoever asked goes on
            const std::lock_guard hold(mGuard);
            mBroken = true;
        }
        mWake.notify_one();
    }

    void setAudible(bool on)
    {
        const std::lock_guard hold(mGuard);
        mAudible = on;
    }

    std::vector<std::string> take()
    {
        const std::lock_guard hold(mGuard);
        std::vector<std::string> asked(mAsked.begin(), mAsked.end());
        mAsked.clear();
        return asked;
    }

private:
    void run()
    {
        ca_context* context = nullptr;
        bool works = ca_context_create(&context) == CA_SUCCESS;
        if (works) {
            ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Zelpane", CA_PROP_APPLICATION_ID, "zelpane",
                                    nullptr);
        }
        while (works) {
            std::string name;
            {
                std::unique_lock hold(mGuard);
                mWake.wait(hold, [this] { return !mWaiting.empty(); });
                name = std::move(mWaiting.front());
                mWaiting.pop_front();
            }
            works = name == kBeep ? playBeep(context) : playFile(context, name);
        }
        if (context) ca_context_destroy(context);
        const std::lock_guard hold(mGuard);
        mBroken = true; // the first failure is the last: a machine without sound is not asked again
        mWaiting.clear();
    }

    static bool playFile(ca_context* context, const std::string& name)
    {
        if (name.empty() || name.find('/') != std::string::npos) return true;
        const std::string path = readableResourcePath(name + ".wav");
        if (!fileExists(path)) return true; // an unknown name is silence, not a fault of the machine
        return ca_context_play(context, 0, CA_PROP_MEDIA_FILENAME, path.c_str(), CA_PROP_EVENT_DESCRIPTION,
                               name.c_str(), CA_PROP_CANBERRA_CACHE_CONTROL, "permanent", nullptr) == CA_SUCCESS;
    }

    static bool playBeep(ca_context* context)
    {
        for (const char* event : {"bell-window-system", "bell"}) {
            const int result = ca_context_play(context, 0, CA_PROP_EVENT_ID, event, nullptr);
            if (result == CA_SUCCESS) return true;
            if (result != CA_ERROR_NOTFOUND) return false;
        }
        return playFile(context, "Pop"); // no sound theme is installed
    }

    std::mutex mGuard;
    std::condition_variable mWake;
    std::deque<std::string> mAsked, mWaiting;
    bool mStarted = false, mBroken = false, mAudible = true;
};

Player& player()
{
    // Never destroyed: its thread may still stand in the sound library when the program ends.
    static Player* const one = new Player;
    return *one;
}

} // namespace

void playSound(const std::string& name) { player().ask(name); }

void beep() { player().ask(kBeep); }

void setSoundsAudible(bool on) { player().setAudible(on); }

std::vector<std::string> takeSounds() { return player().take(); }

} // namespace zp
