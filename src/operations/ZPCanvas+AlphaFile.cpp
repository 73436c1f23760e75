// SPDX-License-Identifier: GPL-3.0-or-later
/// The alpha plane as a run-length file, and a byte at a time.
#include "base/Folders.h"
#include "base/Log.h"
#include "document/Picture.h"
#include "operations/AlphaBytes.h"
#include "operations/Commands.h"
#include "undo/AlphaRLE.h"
#include <optional>
#include <string_view>

namespace zp
{

namespace
{

/// Paths of the alpha file operations go through a buffer of this size, its closing zero included.
constexpr std::size_t kPathBuffer = 512;

/// What the path becomes when it is printed as a format with the one argument 0: "%%" is a per-cent sign and a
/// conversion of an integer is "0". Others would read arguments that are not there; they stay as they are.
/// @return nothing when the result does not fit the buffer
std::optional<std::string> formattedPath(const std::string& path)
{
    std::string result;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const std::size_t letter =
            path[i] == '%' ? path.find_first_not_of("0123456789+- #.hlqjzt", i + 1) : std::string::npos;
        if (letter == std::string::npos) {
            result += path[i];
            continue;
        }
        const bool plain = letter == i + 1;
        if (path[letter] == '%' && plain) {
            result += '%';
            i = letter;
        } else if (plain && std::string_view("diuoxX").find(path[letter]) != std::string_view::npos) {
            result += '0';
            i = letter;
        } else {
            result += '%';
        }
    }
    if (result.size() >= kPathBuffer) return std::nullopt;
    return result;
}

/// The process-wide state of one byte cursor. The picture is held weakly: a cursor left standing in a picture that was
/// replaced meanwhile finds the rows exhausted.
struct ProcessCursor {
    AlphaCursor cursor;
    std::weak_ptr<BitmapRep> picture;

    void reset(const std::shared_ptr<BitmapRep>& bitmap)
    {
        cursor = bitmap ? AlphaCursor(bitmap->view()) : AlphaCursor();
        picture = bitmap;
    }
};
ProcessCursor gReadCursor;  ///< getc; whoever encodes
ProcessCursor gWriteCursor; ///< putc; the main thread

} // namespace

int getc(Edit& edit, bool reset)
{
    if (reset) {
        gReadCursor.reset(edit.picture().writableBitmap());
        return -1;
    }
    const auto held = gReadCursor.picture.lock();
    return held ? gReadCursor.cursor.get() : -1;
}

void putc(Edit& edit, int value)
{
    if (value == AlphaCursor::kPutReset) return gWriteCursor.reset(edit.picture().writableBitmap());
    const auto held = gWriteCursor.picture.lock();
    if (!held) return;
    edit.writeAll();
    gWriteCursor.cursor.put(value);
}

void operations::writeAlphaRLEToFile(Edit& edit, const Arguments& to)
{
    const auto target = formattedPath(to.path);
    if (!target) return logLine("writeAlphaRLEToFile: the path is too long");
    const std::vector<std::uint8_t> bytes = encodeAlphaRLE(edit.picture().pixels());
    std::string error;
    if (!writeFileSafely(*target, bytes.data(), bytes.size(), &error))
        logLine("writeAlphaRLEToFile: %s", error.c_str());
}

void operations::readAlphaRLEFile(Edit& edit, const Arguments& from)
{
    const auto source = formattedPath(from.path);
    const auto bytes = source && edit.picture().bitmap() ? readWholeFile(*source) : std::nullopt;
    if (!bytes) return;
    decodeAlphaRLE({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()}, edit.writeAll());
}

} // namespace zp
