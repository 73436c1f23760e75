// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures of kinds that a foreign library reads, in a process of their own: whatever the library does there, the
/// program goes on.
#pragma once
#include "base/LongWait.h"
#include "codecs/Codec.h"
#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace zp::codec
{

struct ForeignDecoding {
    /// A program that runs runDecoder() when it is started with these words. Empty: pictures are read in this very
    /// process (tests, fuzzers, measurements).
    std::string program{};
    std::vector<std::string> arguments{};
    /// How long the decoder may give no sign of life.
    std::chrono::milliseconds patience{20'000};
    std::unique_ptr<LongWait> (*wait)() = nullptr; ///< null: nobody interrupts
};
/// Before the first picture is read, and again when something of it becomes known. Main thread.
void setForeignDecoding(ForeignDecoding how);

/// Starts a decoder where none is waiting, so that the next picture does not wait for its beginnings: when a panel for
/// files comes up, a file is about to be read, and now and then while the program has a window, since pictures also
/// come unannounced. Comes back at once. Any thread. @return whether pictures are read by another process at all
bool readyForeignDecoder();
/// The same if the file at @p path begins as one that a decoder reads.
void readyForeignDecoder(const std::string& path);

/// The picture, or a sentence why not, which also stands for a decoder that died, hung or was
/// given up. Any thread. @param sealed  a file without a name that begins with just these bytes and that nobody can
/// change (FileWindow::sealed()), which spares a copy; -1 when there is none
Decoded decodeForeign(Bytes bytes, Format format, const ImportOptions& options, int sealed = -1);

/// What the decoder's program does: takes jobs from standard input, a local socket, and writes what becomes of them
/// to standard output, behind walls (DecoderWalls.h), until the other side is gone or, after the first one, has had
/// nothing to do for some minutes. @return the exit status
int runDecoder();

} // namespace zp::codec
