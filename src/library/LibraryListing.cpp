// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows and values of the image library.
#include "library/LibraryListing.h"
#include "base/Translation.h"
#include <cstdio>
#include <ctime>

namespace zp
{

namespace
{

constexpr const char* kStore = ".DS_Store";
constexpr const char* kUnknown = "\xE2\x80\x94"; // a dash
constexpr std::size_t kMostRemembered = 100000;

std::string kindOf(const std::string& extension)
{
    // The tests are case-sensitive; "JPG" is what cameras write.
    if (extension == "tiff" || extension == "tif") return "TIFF";
    if (extension == "jpeg" || extension == "jpg" || extension == "JPG") return "JPEG";
    return {};
}

} // namespace

std::vector<std::string> libraryRows(std::vector<std::string> listing)
{
    const std::size_t count = listing.empty() ? 0 : listing.size() - 1;
    if (!listing.empty() && listing.front() == kStore) listing.erase(listing.begin());
    listing.resize(count);
    return listing;
}

void keepFolderStore(const std::string& folder)
{
    const std::string store = pathByAppending(folder, kStore);
    if (isFolder(folder) && !fileAttributes(store)) writeFileSafely(store, "", 0);
}

LibraryItem libraryItem(const std::string& folder, const std::string& name)
{
    LibraryItem item;
    item.name = name;
    item.path = pathByAppending(folder, name);
    const auto own = fileAttributes(item.path);
    if (own && own->link) {
        item.target = resolveAlias(item.path);
        item.broken = !item.target;
    }
    item.attributes = (item.target ? fileAttributes(*item.target) : own).value_or(FileAttributes{});
    return item;
}

PixelDimensions DimensionsMemory::of(const std::string& file, const FileAttributes& attributes)
{
    const auto known = mEntries.find(file);
    if (known != mEntries.end() && known->second.size == attributes.size &&
        known->second.modified == attributes.modified)
        return known->second.pixels;
    if (mEntries.size() >= kMostRemembered) mEntries.clear();
    const PixelDimensions pixels = attributes.folder ? PixelDimensions{} : mRead(file);
    mEntries[file] = {attributes.size, attributes.modified, pixels};
    return pixels;
}

std::string libraryValue(const LibraryItem& item, const std::string& column, DimensionsMemory& dimensions)
{
    if (column == "FILE_NAME") return item.target ? item.name + kAliasMark : item.name;
    if (column == "KIND") return kindOf(pathExtension(item.path));
    if (column == "SIZE") return librarySizeText(item.attributes.size);
    if (column == "DIMENSIONS") {
        if (item.broken) return translated("Library", "broken link");
        const PixelDimensions pixels = dimensions.of(item.file(), item.attributes);
        if (pixels.width <= 0 || pixels.height <= 0) return kUnknown;
        return std::to_string(pixels.width) + " x " + std::to_string(pixels.height);
    }
    if (column == "MODIFIED") return libraryDateText(item.attributes.modified);
    if (column == "PATH") return item.target ? *item.target + " [alias \xE2\x80\xA2]" : item.path;
    return "NULL";
}

std::string librarySizeText(std::int64_t bytes)
{
    const float k = float(std::int32_t(std::uint32_t(bytes))) * (1.0f / 1024.0f);
    if (k > 2000.0f) return filledIn(translated("Files", "%1 MB"), {std::to_string(int(k / 1024.0f))});
    return filledIn(translated("Files", "%1 KB"), {std::to_string(int(k))});
}

std::string libraryDateText(std::int64_t secondsSince1970)
{
    const std::time_t when = secondsSince1970;
    std::tm local{};
    char text[64];
    if (!localtime_r(&when, &local) || std::strftime(text, sizeof text, "%H:%M - %d/%m/%y", &local) == 0) return {};
    return text;
}

std::vector<std::string> acceptedDrop(std::vector<std::string> files)
{
    // Taking an entry out moves the next one to its place, and the walk steps over it: deliberately kept.
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string extension = pathExtension(files[i]);
        if (extension != "tiff" && extension != "jpg") files.erase(files.begin() + std::ptrdiff_t(i));
    }
    return files;
}

std::string renamedPath(const std::string& folder, const std::string& typed, const std::string& oldName)
{
    return pathWithExtension(pathByAppending(folder, typed), pathExtension(oldName));
}

} // namespace zp
