// SPDX-License-Identifier: GPL-3.0-or-later
/// A file without a name, mapped by both sides.
#include "codecs/DecoderRows.h"
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace zp::codec
{

namespace
{

constexpr std::size_t kAll = kRowSlots * kSlotBytes;

} // namespace

int makeSharedRows()
{
    const int file = ::memfd_create("rows", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (file < 0) return -1;
    // A decoder that made it shorter would take the program down with it.
    if (::ftruncate(file, off_t(kAll)) == 0 &&
        ::fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0)
        return file;
    ::close(file);
    return -1;
}

SharedRows::SharedRows(int descriptor, bool writable)
{
    void* const there = ::mmap(nullptr, kAll, writable ? PROT_READ | PROT_WRITE : PROT_READ, MAP_SHARED, descriptor, 0);
    if (there != MAP_FAILED) mStart = static_cast<std::uint8_t*>(there);
}

SharedRows::SharedRows(SharedRows&& other) noexcept : mStart(std::exchange(other.mStart, nullptr)), mTurn(other.mTurn)
{
}

SharedRows& SharedRows::operator=(SharedRows&& other) noexcept
{
    std::swap(mStart, other.mStart);
    std::swap(mTurn, other.mTurn);
    return *this;
}

SharedRows::~SharedRows()
{
    if (mStart) ::munmap(mStart, kAll);
}

} // namespace zp::codec
