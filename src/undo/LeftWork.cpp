// SPDX-License-Identifier: GPL-3.0-or-later
/// Looking for folders that nobody has locked.
#include "undo/LeftWork.h"
#include "base/Folders.h"
#include "undo/FolderFiles.h"
#include "undo/PicturesAside.h"
#include "undo/SnapshotStore.h"
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{

namespace
{

/// Left folders that one folder of temporary files has at most; the next one stays where it is.
constexpr int kMostLeft = 1000;

class Handle
{
public:
    explicit Handle(int handle) : mHandle(handle) {}
    ~Handle()
    {
        if (mHandle >= 0) ::close(mHandle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    operator int() const { return mHandle; }

private:
    int mHandle;
};

int openFolder(const std::string& path) { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }

std::string leftName(int number) { return std::string(kUndoFolderName) + ".left-" + std::to_string(number); }

/// The left folder goes when nothing is left in it.
void removeIfEmpty(int parent, const std::string& name, int folder)
{
    if (!hasLeftWork(folder)) folder::removeWithContents(parent, name);
}

} // namespace

std::string runtimeUndoParent()
{
    const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
    if (!runtime || *runtime != '/' || !isFolder(runtime)) return {};
    const std::string parent = pathByAppending(runtime, "zelpane");
    return createFolder(parent, 0700) ? parent : std::string();
}

bool hasLeftWork(int folder) { return hasRecoveryRecord(folder) || !aside::numbers(folder).empty(); }

bool moveLeftFolderAside(int parent, const std::string& name)
{
    for (int i = 1; i <= kMostLeft; ++i) {
        const std::string to = leftName(i);
        struct stat there {
        };
        if (fstatat(parent, to.c_str(), &there, AT_SYMLINK_NOFOLLOW) == 0) continue;
        if (renameat(parent, name.c_str(), parent, to.c_str()) == 0) return true;
    }
    return false;
}

bool leaveBehind(int parent, int from, const std::string& picture)
{
    for (int i = 1; i <= kMostLeft; ++i) {
        const std::string to = leftName(i);
        if (mkdirat(parent, to.c_str(), 0700) != 0) {
            if (errno == EEXIST) continue;
            return false;
        }
        const Handle left(folder::openExistingInner(parent, to));
        if (left >= 0 && renameat(from, picture.c_str(), left, picture.c_str()) == 0) return true;
        unlinkat(parent, to.c_str(), AT_REMOVEDIR);
        return false;
    }
    return false;
}

std::vector<LeftPicture> leftPictures()
{
    std::vector<LeftPicture> all;
    for (const std::string& parentPath : {temporaryFolder(), runtimeUndoParent()}) {
        const Handle parent(parentPath.empty() ? -1 : openFolder(parentPath));
        if (parent < 0) continue;
        for (const std::string& name : folder::names(parent)) {
            if (!name.starts_with(kUndoFolderName)) continue;
            const Handle left(folder::openExisting(parent, name));
            if (left < 0 || !hasLeftWork(left)) continue;
            aside::finishMove(left);
            if (hasRecoveryRecord(left)) aside::putAside(left);
            for (const int number : aside::numbers(left)) {
                const Handle picture(folder::openExistingInner(left, aside::folderName(number)));
                if (const auto work = picture < 0 ? std::nullopt : restorableWork(picture))
                    all.push_back({*work, pathByAppending(parentPath, name), aside::folderName(number)});
            }
        }
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const LeftPicture& a, const LeftPicture& b) { return a.work.time > b.work.time; });
    return all;
}

std::optional<int> takeOver(SnapshotStore& store, const LeftPicture& picture)
{
    const Handle parent(openFolder(folderOfPath(picture.folder)));
    const std::string name = lastPathComponent(picture.folder);
    const Handle left(parent < 0 ? -1 : folder::openExisting(parent, name));
    if (left < 0) return std::nullopt;
    const auto number = store.takeOver(left, picture.name);
    if (number) removeIfEmpty(parent, name, left);
    return number;
}

void discard(const LeftPicture& picture)
{
    const Handle parent(openFolder(folderOfPath(picture.folder)));
    const std::string name = lastPathComponent(picture.folder);
    const Handle left(parent < 0 ? -1 : folder::openExisting(parent, name));
    if (left < 0) return;
    folder::removeWithContents(left, picture.name);
    removeIfEmpty(parent, name, left);
}

} // namespace zp
