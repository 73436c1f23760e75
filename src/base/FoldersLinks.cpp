// SPDX-License-Identifier: GPL-3.0-or-later
/// Symbolic links: where they lead, and how they are made.
#include "base/FoldersLinks.h"
#include "base/Folders.h"
#include <cerrno>
#include <string>
#include <unistd.h>

namespace zp
{

namespace
{
constexpr int kMostLinks = 40; // what the kernel allows in one look-up
} // namespace

int finalTarget(std::string& path)
{
    for (int links = 0; links <= kMostLinks; ++links) {
        std::string next(4096, '\0');
        const ssize_t length = ::readlink(path.c_str(), next.data(), next.size());
        if (length < 0) return 0; // no link, or nothing there: the writing itself will tell
        if (std::size_t(length) == next.size()) return ENAMETOOLONG;
        next.resize(std::size_t(length));
        path = next.starts_with('/') ? next : pathByAppending(folderOfPath(path), next);
    }
    return ELOOP;
}

std::optional<std::string> resolveAlias(const std::string& path)
{
    std::string target = path;
    char probe[1];
    if (::readlink(path.c_str(), probe, sizeof probe) < 0) return std::nullopt;
    if (finalTarget(target) != 0 || !fileExists(target)) return std::nullopt;
    // The path people gave the link is kept; only detours in it are taken out, by asking the file system.
    if (target.find("/../") != std::string::npos || target.find("/./") != std::string::npos ||
        target.ends_with("/..")) {
        if (char* real = ::realpath(target.c_str(), nullptr)) {
            target = real;
            ::free(real);
        }
    }
    return target;
}

bool makeAlias(const std::string& target, const std::string& folder, const std::string& name)
{
    if (target.empty() || name.empty() || name.find('/') != std::string::npos || name == "." || name == "..")
        return false;
    std::string absolute = target;
    if (!absolute.starts_with('/')) {
        char* here = ::getcwd(nullptr, 0);
        if (!here) return false;
        absolute = pathByAppending(here, target);
        ::free(here);
    }
    const std::string extension = pathExtension(name), dotted = extension.empty() ? "" : "." + extension;
    const std::string stem = pathWithoutExtension(name);
    constexpr std::size_t kLongestName = 255;
    for (int number = 1; number < 100000; ++number) {
        std::string tail = dotted;
        if (number > 1) tail.insert(0, std::to_string(number)).insert(0, 1, ' ');
        std::string first = stem;
        while (first.size() > 1 && first.size() + tail.size() > kLongestName) {
            // Whole characters only: the bytes that follow a first one go with it.
            while (first.size() > 1 && (static_cast<unsigned char>(first.back()) & 0xC0u) == 0x80u) first.pop_back();
            first.pop_back();
        }
        if (::symlink(absolute.c_str(), pathByAppending(folder, first + tail).c_str()) == 0) return true;
        if (errno != EEXIST) return false;
    }
    return false;
}

} // namespace zp
