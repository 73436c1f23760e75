// SPDX-License-Identifier: GPL-3.0-or-later
/// Where things are, and what can be said about a path by looking at its text alone.
#include "base/Folders.h"
#include <algorithm>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace zp
{

namespace
{

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string withoutTrailingSlashes(std::string path)
{
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

/// Where the last component begins and ends; trailing slashes do not belong to it.
std::pair<std::size_t, std::size_t> lastComponentSpan(const std::string& path)
{
    std::size_t end = path.size();
    while (end > 1 && path[end - 1] == '/') --end;
    const std::size_t slash = end == 0 ? std::string::npos : path.rfind('/', end - 1);
    const std::size_t begin = slash == std::string::npos || end == 1 ? 0 : slash + 1;
    return {begin, end};
}

/// Position of the dot that begins the extension in the last component, or nothing.
std::optional<std::size_t> extensionDot(const std::string& path)
{
    const auto [begin, end] = lastComponentSpan(path);
    for (std::size_t i = end; i > begin + 1; --i)
        if (path[i - 1] == '.') return i == end ? std::nullopt : std::optional(i - 1);
    return std::nullopt;
}

} // namespace

std::string homeFolder()
{
    const std::string home = environment("HOME");
    if (!home.empty()) return withoutTrailingSlashes(home);
    std::vector<char> room(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, room.data(), room.size(), &found) == 0 && found && found->pw_dir && *found->pw_dir)
        return withoutTrailingSlashes(found->pw_dir);
    return "/";
}

std::string temporaryFolder()
{
    const std::string folder = environment("ZELPANE_TMP");
    return folder.empty() ? "/tmp" : withoutTrailingSlashes(folder);
}

std::string resourcePath(const std::string& name)
{
    return pathByAppending(bundleFolder(), "Contents/Resources/" + name);
}

std::string readableResourcePath(const std::string& name)
{
    const std::string own = resourcePath(name);
    return fileExists(own) ? own : pathByAppending(shippedResourcesFolder(), name);
}

std::string applicationSupportFolder() { return pathByAppending(homeFolder(), "Library/Application Support/Zelpane"); }

std::string libraryFolder() { return pathByAppending(homeFolder(), "Pictures/Zelpane Image Library"); }

std::string pathByAppending(const std::string& folder, const std::string& name)
{
    if (folder.empty()) return name;
    if (name.empty()) return folder;
    const bool slash = folder.back() == '/';
    const std::size_t skip = std::min(name.find_first_not_of('/'), name.size());
    return folder + (slash ? "" : "/") + name.substr(skip);
}

std::string lastPathComponent(const std::string& path)
{
    const auto [begin, end] = lastComponentSpan(path);
    return path.substr(begin, end - begin);
}

std::string folderOfPath(const std::string& path)
{
    const auto [begin, end] = lastComponentSpan(path);
    if (begin == 0) return !path.empty() && path[0] == '/' ? "/" : "";
    return withoutTrailingSlashes(path.substr(0, begin));
}

std::string pathExtension(const std::string& path)
{
    const auto dot = extensionDot(path);
    if (!dot) return {};
    return path.substr(*dot + 1, lastComponentSpan(path).second - *dot - 1);
}

std::string pathWithoutExtension(const std::string& path)
{
    const auto dot = extensionDot(path);
    return dot ? path.substr(0, *dot) : withoutTrailingSlashes(path);
}

std::string pathWithExtension(const std::string& path, const std::string& extension)
{
    const std::string base = pathWithoutExtension(path);
    if (base.empty() || base == "/") return base; // no name to extend
    return extension.empty() ? base : base + "." + extension;
}

std::string pathWithTildeExpanded(const std::string& path)
{
    if (path == "~") return homeFolder();
    if (path.starts_with("~/")) return pathByAppending(homeFolder(), path.substr(2));
    return path;
}

std::string displayName(const std::string& path)
{
    // Well-formed UTF-8 passes; every other byte becomes one replacement character.
    std::string shown;
    shown.reserve(path.size());
    for (std::size_t i = 0; i < path.size();) {
        const auto byte = [&](std::size_t k) {
            return k < path.size() ? static_cast<unsigned char>(path[k]) : static_cast<unsigned char>(0);
        };
        const unsigned lead = byte(i);
        const std::size_t length = lead < 0x80                   ? 1
                                   : lead >= 0xC2 && lead < 0xE0 ? 2
                                   : lead >= 0xE0 && lead < 0xF0 ? 3
                                   : lead >= 0xF0 && lead < 0xF5 ? 4
                                                                 : 0;
        bool good = length > 0;
        for (std::size_t k = 1; k < length && good; ++k) good = (byte(i + k) & 0xC0u) == 0x80u;
        // Overlong forms, surrogates and what lies beyond the last code point.
        if (good && lead == 0xE0) good = byte(i + 1) >= 0xA0;
        if (good && lead == 0xED) good = byte(i + 1) < 0xA0;
        if (good && lead == 0xF0) good = byte(i + 1) >= 0x90;
        if (good && lead == 0xF4) good = byte(i + 1) < 0x90;
        if (good) {
            shown.append(path, i, length);
            i += length;
        } else {
            shown += "\xEF\xBF\xBD";
            ++i;
        }
    }
    return shown;
}

} // namespace zp
