// SPDX-License-Identifier: GPL-3.0-or-later
/// Where things are: home, temporary files, the program's bundle; and the few file operations that are needed.
///
/// Paths are the file system's own bytes, never converted: names that are not UTF-8 work. Functions of this header use
/// no Qt and may be called from any thread; none throws.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zp
{

/// HOME, else the user's entry in the system.
std::string homeFolder();
/// ZELPANE_TMP, else "/tmp".
std::string temporaryFolder();
/// ZELPANE_BUNDLE; else the user's own copy, "$XDG_DATA_HOME/zelpane" (by default ~/.local/share/zelpane), made from
/// the shipped resources at first use; a newer program refreshes it without bringing back what was moved out of it.
std::string bundleFolder();
/// bundleFolder() + "/Contents/Resources/" + name
std::string resourcePath(const std::string& name);
/// Where to read a resource that is never moved or changed (a brush tip, a sound): in the bundle, or, when that was
/// made without it, among the shipped ones.
std::string readableResourcePath(const std::string& name);
/// The resources that ship with the program (read-only): ZELPANE_RESOURCES, else beside the binary, else installed.
std::string shippedResourcesFolder();
/// home + "Library/Application Support/Zelpane"
std::string applicationSupportFolder();
/// home + "Pictures/Zelpane Image Library"
std::string libraryFolder();

std::string pathByAppending(const std::string& folder, const std::string& name);
std::string lastPathComponent(const std::string& path);
std::string folderOfPath(const std::string& path);
/// Behind the last dot of the last component, without the dot; empty for none and for a leading dot only.
std::string pathExtension(const std::string& path);
std::string pathWithoutExtension(const std::string& path);
/// Extension replaced (or appended, when there was none). A path without a name ("/") stays as it is.
std::string pathWithExtension(const std::string& path, const std::string& extension);
/// "~" and "~/..." become the home folder.
std::string pathWithTildeExpanded(const std::string& path);

bool fileExists(const std::string& path); ///< through links
bool isFolder(const std::string& path);
/// With all folders above it. @return whether it exists afterwards
bool createFolder(const std::string& path, unsigned mode = 0777);
/// A file, a link (never its target), or a folder with its contents; links inside are removed, not followed.
bool removeItem(const std::string& path);
/// By renaming, or by copying where that is impossible; never over an item that is there. @return success
bool moveItem(const std::string& from, const std::string& to);
bool copyItem(const std::string& from, const std::string& to);
/// Names of the entries, "." and ".." left out, sorted without regard to case, dot files first. Empty when unreadable.
std::vector<std::string> contentsOfFolder(const std::string& path);
/// The same for whoever must tell an empty folder from one that cannot be listed. @return why it cannot, in the
/// system's words, with @p names empty; empty when it can
std::string listFolder(const std::string& path, std::vector<std::string>& names);

struct FileAttributes {
    std::int64_t size = 0;
    std::int64_t modified = 0; ///< seconds since 1970
    bool folder = false, link = false;
};
/// Of the path itself; links are not followed. Nothing when there is none.
std::optional<FileAttributes> fileAttributes(const std::string& path);

/// What tells one state of a file from the next: another file in its place, or other bytes in it.
struct FileStamp {
    std::uint64_t device = 0, file = 0;  ///< which file it is, whatever its name
    std::int64_t size = 0, modified = 0; ///< bytes; nanoseconds since 1970
    bool isSameFile(const FileStamp& other) const { return device == other.device && file == other.file; }
    bool operator==(const FileStamp&) const = default;
};
/// Of what the path leads to; nothing when there is none.
std::optional<FileStamp> fileStamp(const std::string& path);

/// The whole file, or nothing when it cannot be read or is larger than @p limit.
std::optional<std::string> readWholeFile(const std::string& path, std::uint64_t limit = std::uint64_t{4} << 30);
/// Writes beside the target and takes its place when complete (through a symbolic link, the link's target): a failure
/// leaves what was there. An existing file keeps its permissions, owner, extended attributes and access control list;
/// where it would lose one of them, has other names (hard links), or its folder takes no new file, it is written in
/// place, with its old bytes kept aside until the new ones are safe. A write-protected file is left alone; a device is
/// written to. Bytes and name are on the disk when it returns. The first write into a folder removes what killed
/// programs left there. @param error why it failed, in plain words, if given
bool writeFileSafely(const std::string& path, const void* bytes, std::size_t count, std::string* error = nullptr);

/// Whether the process that a leftover is named after has ended; false for a number that is no process's.
bool processIsGone(int process);

/// Removes the half-written files that killed programs of this machine left in a folder, and those of other machines
/// that are a week old.
void removeLeftovers(const std::string& folder);
/// Files that a killed program was writing in place hold their old bytes again. To be called at start-up.
void restoreKeptAside();

/// The file a link points to, chains resolved; nothing when the path is no link or the chain is broken or endless.
std::optional<std::string> resolveAlias(const std::string& path);
/// A link named @p name in @p folder that points to @p target; a name that is taken gets a number. @return success
bool makeAlias(const std::string& target, const std::string& folder, const std::string& name);

/// For people: bytes that are not UTF-8 shown as their replacement. Not to be used to open a file.
std::string displayName(const std::string& path);

} // namespace zp
