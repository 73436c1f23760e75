// SPDX-License-Identifier: GPL-3.0-or-later
/// What another program offers on an X server's clipboard, asked for by ourselves: the toolkit takes as much as the
/// other program sends, and counts it in 31 bits.
#pragma once
#include <QByteArray>
#include <chrono>
#include <cstddef>
#include <functional>

namespace zp
{

struct ClipboardQuestion {
    QByteArray kind{};                    ///< "image/png"; "TARGETS" for the kinds there are
    std::size_t most = 0;                 ///< bytes; of more nothing is kept
    std::chrono::milliseconds patience{}; ///< how long the other program may give no sign
    std::function<bool()> goOn{};         ///< asked some twenty times a second while nothing comes; none: nobody is
    const char* display = nullptr;        ///< null: as the environment says
};
struct ClipboardAnswer {
    enum class End { Whole, Refused, Silent, TooLarge, GivenUp };
    End end = End::Refused;
    QByteArray bytes{}; ///< of End::Whole alone; atoms' numbers in turn, 32 bits each, for "TARGETS"
};

/// Any thread; a connection of its own. Memory that cannot be had throws bad_alloc.
ClipboardAnswer askX11Clipboard(const ClipboardQuestion& question);
/// The names of the kinds that are offered, image/png and the like; empty when the owner gives no answer in
/// @p patience.
QList<QByteArray> kindsOnX11Clipboard(std::chrono::milliseconds patience, const char* display = nullptr);

} // namespace zp
