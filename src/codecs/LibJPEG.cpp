// SPDX-License-Identifier: GPL-3.0-or-later
/// The callbacks that the JPEG library asks of its users.
#include "codecs/LibJPEG.h"
#include <algorithm>
#include <jerror.h>

namespace zp::jpeg
{
namespace
{

[[noreturn]] void onError(j_common_ptr info)
{
    auto* errors = static_cast<Errors*>(info->err);
    errors->format_message(info, errors->message);
    std::longjmp(errors->jump, 1);
}

constexpr std::size_t kFirstCapacity = 256 * 1024;
constexpr std::uint8_t kEnd[] = {0xFF, JPEG_EOI};

} // namespace

Errors::Errors() : jpeg_error_mgr{}
{
    jpeg_std_error(this);
    error_exit = onError;
    output_message = [](j_common_ptr) {};
}

void Errors::fail(const char* why)
{
    std::snprintf(message, sizeof message, "%s", why);
    std::longjmp(jump, 1);
}

bool Errors::ranOutOfMemory() const { return msg_code == JERR_OUT_OF_MEMORY || msg_code == JERR_NO_BACKING_STORE; }

Output::Output() : jpeg_destination_mgr{}
{
    init_destination = begin;
    empty_output_buffer = enlarge;
    term_destination = [](j_compress_ptr) {};
}

void Output::begin(j_compress_ptr info)
{
    auto& output = *static_cast<Output*>(info->dest);
    if (output.mCapacity == 0) output.grow(info, 0);
    output.next_output_byte = output.mBytes;
    output.free_in_buffer = output.mCapacity;
}

boolean Output::enlarge(j_compress_ptr info)
{
    auto& output = *static_cast<Output*>(info->dest);
    output.grow(info, output.mCapacity); // the library asks when all is full
    return TRUE;
}

void Output::grow(j_compress_ptr info, std::size_t used)
{
    const std::size_t capacity = std::max(kFirstCapacity, mCapacity * 2);
    void* larger = std::realloc(mBytes, capacity);
    if (!larger) ERREXIT1(info, JERR_OUT_OF_MEMORY, 0);
    mBytes = static_cast<std::uint8_t*>(larger);
    mCapacity = capacity;
    next_output_byte = mBytes + used;
    free_in_buffer = capacity - used;
}

Input::Input(std::span<const std::uint8_t> first, std::span<const std::uint8_t> second,
             std::span<const std::uint8_t> third)
    : jpeg_source_mgr{}, mStretches{first, second, third}
{
    init_source = [](j_decompress_ptr) {};
    fill_input_buffer = more;
    skip_input_data = skip;
    resync_to_restart = jpeg_resync_to_restart;
    term_source = [](j_decompress_ptr) {};
}

boolean Input::more(j_decompress_ptr info)
{
    auto& input = *static_cast<Input*>(info->src);
    std::span<const std::uint8_t> stretch;
    while (stretch.empty() && input.mNext < kMostStretches) stretch = input.mStretches[input.mNext++];
    if (stretch.empty()) {
        WARNMS(info, JWRN_JPEG_EOF);
        stretch = kEnd;
    }
    input.next_input_byte = stretch.data();
    input.bytes_in_buffer = stretch.size();
    return TRUE;
}

void Input::skip(j_decompress_ptr info, long count)
{
    if (count <= 0) return;
    auto& input = *static_cast<Input*>(info->src);
    auto left = std::size_t(count);
    while (left > input.bytes_in_buffer) {
        left -= input.bytes_in_buffer;
        more(info);
    }
    input.next_input_byte += left;
    input.bytes_in_buffer -= left;
}

} // namespace zp::jpeg
