// SPDX-License-Identifier: GPL-3.0-or-later
/// A signal may do next to nothing where it strikes: it writes its number into a pipe that the event loop watches.
#include "desktop/EndSignals.h"
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace zp
{

namespace
{

int writeEnd = -1;

extern "C" void onEndSignal(int number)
{
    const int before = errno;
    const auto byte = static_cast<unsigned char>(number);
    (void)!::write(writeEnd, &byte, 1);
    std::signal(number, SIG_DFL);
    errno = before;
}

} // namespace

EndSignals::EndSignals(std::function<void(int)> ended) : mEnded(std::move(ended))
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return; // the system's own answer to signals stays
    mRead = ends[0];
    writeEnd = ends[1];
    auto* notifier = new QSocketNotifier(mRead, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &EndSignals::look);
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        if (std::signal(number, onEndSignal) == SIG_IGN) std::signal(number, SIG_IGN);
}

EndSignals::~EndSignals()
{
    // The numbers stay caught to the program's end: by now it is on its way out, and its files are to be finished.
    if (mRead >= 0) ::close(mRead);
}

void EndSignals::look()
{
    unsigned char number = 0;
    if (::read(mRead, &number, 1) == 1) mEnded(number);
}

} // namespace zp
