// SPDX-License-Identifier: GPL-3.0-or-later
/// The user's own copy of the shipped resources, so that what the program moves out of it or writes into it can be.
#include "base/Folders.h"
#include "base/Log.h"
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{

namespace
{

constexpr const char* kManifestHead = "zelpane resources 1";

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::uint64_t hashBytes(const std::string& bytes, std::uint64_t hash = 0xcbf29ce484222325u)
{
    for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
    return hash;
}

std::string hashText(std::uint64_t hash)
{
    char text[20];
    std::snprintf(text, sizeof text, "%016" PRIx64, hash);
    return text;
}

/// The shipped files, relative paths; folders that hold programs rather than resources are left out.
void collect(const std::string& root, const std::string& below, std::vector<std::string>& files, int depth)
{
    for (const std::string& name : contentsOfFolder(pathByAppending(root, below))) {
        const std::string inner = below.empty() ? name : pathByAppending(below, name);
        const auto about = fileAttributes(pathByAppending(root, inner));
        if (!about || name.starts_with('.') || name.find('\n') != std::string::npos) continue;
        if (about->folder) {
            if (inner != "make" && depth < 8) collect(root, inner, files, depth + 1);
        } else {
            files.push_back(inner);
        }
    }
}

/// Changes when a file is added, removed or replaced: names, sizes and dates. Reads no contents.
std::string stateOfShipped(const std::string& root, const std::vector<std::string>& files)
{
    std::uint64_t hash = hashBytes(root);
    for (const std::string& name : files) {
        const auto about = fileAttributes(pathByAppending(root, name));
        hash = hashBytes(name + "\n", hash);
        if (about) hash = hashBytes(std::to_string(about->size) + " " + std::to_string(about->modified) + "\n", hash);
    }
    return hashText(hash);
}

/// What was copied when: the state of the shipped folder, then each name ever copied with its contents' hash.
struct Manifest {
    std::string state;
    std::map<std::string, std::string> copied;

    static Manifest read(const std::string& path)
    {
        Manifest m;
        const std::string text = readWholeFile(path, 1u << 20).value_or("");
        std::size_t line = 0;
        for (std::size_t begin = 0; begin < text.size(); ++line) {
            const std::size_t end = std::min(text.find('\n', begin), text.size());
            const std::string entry = text.substr(begin, end - begin);
            begin = end + 1;
            if (line == 0 && entry != kManifestHead) return {};
            if (line == 1) m.state = entry;
            if (line >= 2 && entry.size() > 17) m.copied[entry.substr(17)] = entry.substr(0, 16);
        }
        return m;
    }
    void write(const std::string& path) const
    {
        std::string text = std::string(kManifestHead) + "\n" + state + "\n";
        for (const auto& [name, hash] : copied) text.append(hash).append(" ").append(name).append("\n");
        writeFileSafely(path, text.data(), text.size());
    }
};

/// One file of a newer program: a name never copied comes in; one that was moved out stays out; one that was changed
/// since (the retina flag) stays as it is; one that is as it was copied is replaced.
void refresh(const std::string& from, const std::string& to, std::string& recorded)
{
    const auto shipped = readWholeFile(from, 256u << 20);
    if (!shipped) return;
    const std::string hash = hashText(hashBytes(*shipped));
    if (!recorded.empty()) {
        const auto present = readWholeFile(to, 256u << 20);
        if (!present || hash == recorded || hashText(hashBytes(*present)) != recorded) return;
    } else if (fileExists(to)) {
        return;
    }
    std::string error;
    createFolder(folderOfPath(to));
    if (writeFileSafely(to, shipped->data(), shipped->size(), &error))
        recorded = hash;
    else
        logLine("resource %s was not copied: %s", displayName(to).c_str(), error.c_str());
}

void fillUserCopy(const std::string& copy, const std::string& shipped)
{
    const std::string resources = pathByAppending(copy, "Contents/Resources");
    if (!createFolder(resources)) {
        logLine("the folder %s cannot be made", displayName(resources).c_str());
        return;
    }
    if (shipped.empty()) return;
    // Two first starts at once take turns.
    const int lock = ::open(copy.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock >= 0) ::flock(lock, LOCK_EX);
    const std::string manifestPath = pathByAppending(copy, "resources.manifest");
    Manifest manifest = Manifest::read(manifestPath);
    std::vector<std::string> files;
    collect(shipped, "", files, 0);
    const std::string state = stateOfShipped(shipped, files);
    if (manifest.state != state) {
        for (const std::string& name : files)
            refresh(pathByAppending(shipped, name), pathByAppending(resources, name), manifest.copied[name]);
        std::erase_if(manifest.copied, [](const auto& entry) { return entry.second.empty(); });
        manifest.state = state;
        manifest.write(manifestPath);
    }
    if (lock >= 0) ::close(lock);
}

} // namespace

std::string shippedResourcesFolder()
{
    if (const std::string named = environment("ZELPANE_RESOURCES"); !named.empty()) return named;
    std::string self(4096, '\0');
    const ssize_t length = ::readlink("/proc/self/exe", self.data(), self.size());
    if (length > 0) {
        self.resize(std::size_t(length));
        const std::string beside = folderOfPath(self);
        for (const char* place : {"resources", "../share/zelpane/resources", "../resources"})
            if (const std::string folder = pathByAppending(beside, place); isFolder(folder)) return folder;
    }
#ifdef ZP_BUILD_RESOURCES
    if (isFolder(ZP_BUILD_RESOURCES)) return ZP_BUILD_RESOURCES;
#endif
    return {};
}

std::string bundleFolder()
{
    if (const std::string named = environment("ZELPANE_BUNDLE"); !named.empty()) return named;
    std::string data = environment("XDG_DATA_HOME");
    if (!data.starts_with('/')) data = pathByAppending(homeFolder(), ".local/share"); // relative ones are to be ignored
    const std::string copy = pathByAppending(data, "zelpane");

    // Looked after once a run for each place (tests change their home while they run).
    // Never destroyed: objects that live as long as the program ask for its files when they go.
    static auto& guard = *new std::mutex;
    static auto& lookedAfter = *new std::string;
    const std::lock_guard hold(guard);
    const std::string shipped = shippedResourcesFolder(), place = copy + "\n" + shipped;
    if (lookedAfter != place) {
        fillUserCopy(copy, shipped);
        lookedAfter = place;
    }
    return copy;
}

} // namespace zp
