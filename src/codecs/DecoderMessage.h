// SPDX-License-Identifier: GPL-3.0-or-later
/// What the program and its decoder say to each other: jobs one way, what becomes of them the other.
#pragma once
#include "codecs/Codec.h"
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/socket.h>
#include <sys/uio.h>
#include <vector>

namespace zp::codec
{

/// With it goes the open file that holds the picture's bytes.
struct DecoderJob {
    std::uint64_t bytes = 0;
    std::uint32_t format = 0;
    std::uint32_t properties = 0; ///< whether they are wanted
};

/// The head of a socket's message that carries a job, with room for the one file beside it. Both sides use it.
struct JobMessage {
    explicit JobMessage(DecoderJob& job) : part{&job, sizeof job}
    {
        head.msg_iov = &part;
        head.msg_iovlen = 1;
        head.msg_control = room.data();
        head.msg_controllen = room.size();
    }
    JobMessage(const JobMessage&) = delete; // the head points into it
    JobMessage& operator=(const JobMessage&) = delete;

    iovec part;
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> room{};
    msghdr head{};
};

enum class BlockKind : std::uint32_t {
    Accepted = 1, ///< the job has arrived; no content
    Size,         ///< two numbers, width and height; once, before the rows
    Rows,         ///< so many bytes lie in the next slot (DecoderRows.h), in the order of the bitmap's memory
    End,          ///< packed(): the job is done
};

struct BlockHead {
    BlockKind kind = BlockKind::End;
    std::uint32_t bytes = 0; ///< that follow, but for rows
};

/// Everything of a result but its pixels.
struct DecodedRest {
    std::string error; ///< a sentence when there is no picture
    int orientation = 1, bits = 8;
    bool damaged = false, inks = false;
    ImageProperties properties{};
};

/// Larger blocks than this nobody sends: a profile and the like that do not fit are left out.
inline constexpr std::uint32_t kMostBlockBytes = 64u << 20;

std::vector<std::uint8_t> packed(const DecodedRest& rest);
/// Nothing when the bytes are not what packed() makes.
std::optional<DecodedRest> unpacked(Bytes bytes);

} // namespace zp::codec
