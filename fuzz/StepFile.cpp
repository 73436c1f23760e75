// SPDX-License-Identifier: GPL-3.0-or-later
/// The files of steps as a program left them that did not quit: any of them may hold anything.
#include "Fuzz.h"
#include "undo/ExactRecord.h"
#include "undo/FolderFiles.h"
#include "undo/PicturesAside.h"
#include "undo/RecoveryRecord.h"
#include "undo/SnapshotJPEG.h"
#include "undo/StepFiles.h"
#include "undo/TileCodec.h"
#include <fcntl.h>
#include <unistd.h>

namespace
{

/// In memory where the system has a place for that.
int emptyFolder()
{
    static const int handle = [] {
        for (const char* const where : {"/dev/shm/zelpane-fuzz-XXXXXX", "/tmp/zelpane-fuzz-XXXXXX"}) {
            std::string name = where;
            if (!::mkdtemp(name.data())) continue;
            const int folder = ::open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            static std::string made;
            made = name;
            std::atexit([] { ::rmdir(made.c_str()); });
            return folder;
        }
        return -1;
    }();
    zp::fuzz::require(handle >= 0, "a folder can be made");
    zp::folder::removeContents(handle);
    return handle;
}

} // namespace

ZP_FUZZ(StepFile, "", bytes)
{
    using namespace zp;
    if (bytes.empty()) return;
    const int folder = emptyFolder();
    const std::string names[] = {kRecoveryName, stepNoteName(0), ExactRecord::fileName(0),
                                 stepFileName(0, StepHalf::Colour), stepFileName(0, StepHalf::Alpha)};
    std::string error;
    const fuzz::Bytes content = bytes.subspan(1);
    // All of the kind the first byte says, so that what reads several together has its chance as well.
    for (std::size_t i = 0; i < std::size(names); ++i)
        if (bytes[0] % 8 == i || bytes[0] % 8 > 5) folder::writeFile(folder, names[i], content, error);
    if (const auto work = restorableWork(folder)) {
        fuzz::require(work->width > 0 && work->height > 0 && work->number >= 0, "work that can be restored has a size");
        fuzz::require(writeRecoveryRecord(folder, *work), "and can be recorded");
    }
    readStepNote(folder, 0);
    pairSize(folder, 0);
    if (const auto colour = readHalf(folder, 0, StepHalf::Colour))
        if (const auto size = inspectSnapshotJPEG(*colour); size && size->width <= 512 && size->height <= 512) {
            std::vector<std::uint8_t> pixels(std::size_t(size->width) * std::size_t(size->height) * 4);
            decodeSnapshotJPEG(*colour, {pixels.data(), size->width, size->height, std::ptrdiff_t{4} * size->width});
        }
    if (const auto record = readExactRecord(folder, 0)) {
        ExactReader reader(folder, *record);
        TileCodec codec;
        std::vector<std::uint8_t> pixels(std::size_t{TileGrid::kSide} * TileGrid::kSide * 4);
        for (const ExactTile& tile : record->tiles) {
            const PixelBox box = record->grid.box(tile.tile);
            codec.unpack(reader.read(tile),
                         {pixels.data(), box.width(), box.height(), std::ptrdiff_t{4} * box.width()});
        }
    }
    folder::removeContents(folder);
}
