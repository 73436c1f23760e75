// SPDX-License-Identifier: GPL-3.0-or-later
/// What every use of the JPEG library here shares: how it fails, where its bytes go and where they come from.
#pragma once
#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <cstdio> // jpeglib.h forgets it
#include <cstdlib>
#include <jpeglib.h>
#include <span>

namespace zp::jpeg
{

/// The library's errors come back to where `setjmp(errors.jump)` stood, with their text; its warnings are counted in
/// num_warnings and nothing is ever printed. The function that sets the jump must own no object with a destructor.
struct Errors : jpeg_error_mgr {
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX] = {};

    Errors();
    Errors(const Errors&) = delete;
    Errors& operator=(const Errors&) = delete;
    /// Leaves the library with a message of our own. Only below a call of the library whose jump is set.
    [[noreturn]] void fail(const char* why);
    /// Whether the last error was that memory did not suffice.
    bool ranOutOfMemory() const;
};

/// Compressed bytes in memory that may outlive one picture, so that growing it touches fresh pages only once. The
/// library's own destination in memory frees twice what it could not enlarge.
struct Output : jpeg_destination_mgr {
    Output();
    ~Output() { std::free(mBytes); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    /// What was written so far, valid until the next write.
    std::span<const std::uint8_t> written() const { return {mBytes, mCapacity - free_in_buffer}; }

private:
    static void begin(j_compress_ptr info);
    static boolean enlarge(j_compress_ptr info);
    void grow(j_compress_ptr info, std::size_t used);

    std::uint8_t* mBytes = nullptr;
    std::size_t mCapacity = 0;
};

/// Bytes handed to the library as a few stretches of memory, nothing copied. Behind the last one stands the end marker,
/// as often as it is asked for, with a warning.
struct Input : jpeg_source_mgr {
    static constexpr std::size_t kMostStretches = 3;

    explicit Input(std::span<const std::uint8_t> first, std::span<const std::uint8_t> second = {},
                   std::span<const std::uint8_t> third = {});
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

private:
    static boolean more(j_decompress_ptr info);
    static void skip(j_decompress_ptr info, long count);

    std::span<const std::uint8_t> mStretches[kMostStretches];
    std::size_t mNext = 0;
};

} // namespace zp::jpeg
