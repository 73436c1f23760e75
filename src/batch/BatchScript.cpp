// SPDX-License-Identifier: GPL-3.0-or-later
/// Putting values into a script, and playing it in another process.
#include "batch/BatchScript.h"
#include "base/Folders.h"
#include "base/ScriptWords.h"
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace zp
{
namespace
{

constexpr std::string_view kCannot = "The script could not be played: ";
/// Seconds for which the end of a script waits for what it began.
constexpr const char* kPatience = "3600";
/// Lines that stand before the script's own in what is played.
constexpr int kLinesBefore = 2;

bool isNameLetter(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

/// One line with its values put in. @return a sentence when a name has none
std::string putValuesIn(std::string& line, const ScriptValues& values)
{
    std::string whole;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::size_t end = line.compare(i, 2, "${") == 0 ? line.find('}', i) : std::string::npos;
        if (end == std::string::npos) {
            if (quoted && line[i] == '\\' && i + 1 < line.size())
                whole += line[i++];
            else if (line[i] == '"')
                quoted = !quoted;
            whole += line[i];
            continue;
        }
        const std::string name = line.substr(i + 2, end - i - 2);
        const auto value = values.find(name);
        if (value == values.end()) return "the script asks for ${" + name + "}, which --set does not give";
        for (const char c : value->second) {
            if (quoted && (c == '"' || c == '\\')) whole += '\\';
            whole += c;
        }
        i = end;
    }
    line = std::move(whole);
    return {};
}

constexpr std::string_view kFolderName = "zelpane-script-";

/// Folders of runs that were killed go away with the next run.
void removeFoldersOfTheDead()
{
    for (const std::string& name : contentsOfFolder(temporaryFolder())) {
        int process = 0;
        if (!name.starts_with(kFolderName)) continue;
        const char* const first = name.data() + kFolderName.size();
        if (std::from_chars(first, name.data() + name.size(), process).ec == std::errc() && processIsGone(process))
            removeItem(temporaryFolder() + "/" + name);
    }
}

/// A folder that goes away with all that is in it.
class PrivateFolder
{
public:
    PrivateFolder() : mPath(temporaryFolder() + "/" + std::string(kFolderName) + std::to_string(getpid()) + "-XXXXXX")
    {
        if (!mkdtemp(mPath.data())) mPath.clear();
    }
    ~PrivateFolder()
    {
        if (!mPath.empty()) removeItem(mPath);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    bool exists() const { return !mPath.empty(); }
    std::string file(const char* name) const { return mPath + "/" + name; }
    const std::string& path() const { return mPath; }

private:
    std::string mPath;
};

/// This process's surroundings, but for what must not be shared with it.
std::vector<std::string> surroundings(const PrivateFolder& folder)
{
    static constexpr std::string_view kOwn[] = {
        "HOME=",           "ZELPANE_TMP=",    "TMPDIR=",  "XDG_RUNTIME_DIR=", "XDG_DATA_HOME=", "XDG_CONFIG_HOME=",
        "XDG_CACHE_HOME=", "ZELPANE_BUNDLE=", "DISPLAY=", "WAYLAND_DISPLAY="};
    std::vector<std::string> list;
    for (char** each = environ; *each; ++each)
        if (std::ranges::none_of(kOwn,
                                 [each](std::string_view name) { return std::string_view(*each).starts_with(name); }))
            list.emplace_back(*each);
    for (const char* name : {"HOME=", "ZELPANE_TMP=", "TMPDIR=", "XDG_RUNTIME_DIR="})
        list.push_back(name + folder.path());
    // Watermarks and brush tips are those of whoever started the run.
    list.push_back("ZELPANE_BUNDLE=" + bundleFolder());
    return list;
}

/// Runs a program to its end, its output in files. @return its exit status; nothing when it was killed or never began
std::optional<int> run(const std::string& program, const std::vector<std::string>& arguments,
                       const PrivateFolder& folder)
{
    std::vector<std::string> words{program}, environment = surroundings(folder);
    words.insert(words.end(), arguments.begin(), arguments.end());
    const auto pointers = [](std::vector<std::string>& from) {
        std::vector<char*> list;
        for (std::string& each : from) list.push_back(each.data());
        list.push_back(nullptr);
        return list;
    };
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const int fresh = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, folder.file("answers").c_str(), fresh, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, folder.file("errors").c_str(), fresh, 0600);
    pid_t child = 0;
    const int fault =
        posix_spawn(&child, program.c_str(), &actions, nullptr, pointers(words).data(), pointers(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (fault != 0) return std::nullopt;
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR) return std::nullopt;
    if (!WIFEXITED(status)) return std::nullopt;
    return WEXITSTATUS(status);
}

/// What the editor said of the line that failed, with the line's number in the script as it was given.
std::string failure(const PrivateFolder& folder, const std::string& script)
{
    const std::string said = readWholeFile(folder.file("errors")).value_or("");
    std::istringstream lines(said);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(script + ":")) continue;
        const char* const begin = line.data() + script.size() + 1;
        int number = 0;
        const auto [end, fault] = std::from_chars(begin, line.data() + line.size(), number);
        if (fault != std::errc() || *end != ':') continue;
        return "line " + std::to_string(number - kLinesBefore) + line.substr(std::size_t(end - line.data())) + ".";
    }
    return "its editor ended before it did.";
}

/// The words of the last answers: the script's end asks which file panel was shown last.
bool panelWasShown(const PrivateFolder& folder)
{
    const std::string answers = readWholeFile(folder.file("answers")).value_or("");
    return answers.find("{\"ok\":true,\"panel\":null}") == std::string::npos;
}

/// A picture as the editor writes its pixels for programs: a head of text lines, then A, R, G, B of each,
/// premultiplied.
std::shared_ptr<BitmapRep> readPixels(const std::string& path)
{
    const std::optional<std::string> file = readWholeFile(path, std::uint64_t(kMaxPixels) * 4 + 1024);
    if (!file) return nullptr;
    const std::size_t head = file->find("ENDHDR\n");
    if (head == std::string::npos) return nullptr;
    const auto field = [&](const char* name) {
        const std::size_t at = file->find(name);
        return at < head ? std::atoi(file->c_str() + at + std::strlen(name)) : 0;
    };
    const int width = field("\nWIDTH "), height = field("\nHEIGHT ");
    const std::size_t first = head + std::strlen("ENDHDR\n"), row = std::size_t(width) * 4;
    if (width < 1 || height < 1 || file->size() - first != row * std::size_t(height)) return nullptr;
    const std::shared_ptr<BitmapRep> picture = BitmapRep::create(width, height);
    for (int y = 0; picture && y < height; ++y)
        std::memcpy(picture->bitmapData() + y * picture->bytesPerRow(), file->data() + first + std::size_t(y) * row,
                    row);
    return picture;
}

} // namespace

std::string takeScriptValue(std::string_view word, ScriptValues& values)
{
    const std::size_t equals = word.find('=');
    const std::string_view name = word.substr(0, std::min(equals, word.size()));
    if (equals == std::string_view::npos || name.empty() || !std::ranges::all_of(name, isNameLetter) ||
        word.find_first_of("\r\n") != std::string_view::npos)
        return "--set needs NAME=VALUE, not \"" + std::string(word) + "\".";
    values.insert_or_assign(std::string(name), std::string(word.substr(equals + 1)));
    return {};
}

std::shared_ptr<const BatchScript> BatchScript::read(const std::string& path, const ScriptValues& values,
                                                     std::string program, std::string& error)
{
    constexpr std::uint64_t kLongest = 64u << 20;
    const std::optional<std::string> file = readWholeFile(path, kLongest);
    if (!file) {
        error = "cannot read the script " + displayName(path);
        return nullptr;
    }
    removeFoldersOfTheDead();
    std::istringstream lines(*file);
    std::string text;
    int number = 0;
    for (std::string line; std::getline(lines, line); text += line + '\n') {
        ++number;
        const auto refuse = [&](const std::string& why) {
            error = displayName(path) + ":" + std::to_string(number) + ": " + why;
            return nullptr;
        };
        if (const std::string why = putValuesIn(line, values); !why.empty()) return refuse(why);
        const auto words = splitScriptLine(line.starts_with('-') ? line.substr(1) : line);
        if (!words) return refuse("unbalanced quotes");
        if (!words->empty() && (words->front() == "open" || words->front() == "choose"))
            return refuse("a run over a folder has no place for \"" + words->front() + "\"");
    }
    return std::shared_ptr<const BatchScript>(new BatchScript(std::move(text), std::move(program)));
}

std::string BatchScript::play(const std::string& file, std::shared_ptr<BitmapRep>& picture) const
{
    const PrivateFolder folder;
    const std::string script = folder.file("script"), pixels = folder.file("pixels");
    std::error_code failed;
    const std::string source = std::filesystem::absolute(file, failed).string();
    // A name may hold a line break, which ends a line of a script: the picture is opened under another.
    const std::string link = folder.file("picture");
    const std::string whole = "send setImagePath: " + scriptWord(link) + "\nwait\n" + mText + "\nwait " + kPatience +
                              "\npanel\nwrite-bitmap " + scriptWord(pixels) + "\n";
    std::string error;
    if (!folder.exists() || failed || symlink(source.c_str(), link.c_str()) != 0 ||
        !writeFileSafely(script, whole.data(), whole.size(), &error))
        return std::string(kCannot) + (error.empty() ? "no folder could be made for it." : error);
    const std::optional<int> status = run(mProgram, {"--script", script, "--offscreen", "--no-start-choice"}, folder);
    if (status != 0) return std::string(kCannot) + failure(folder, script);
    if (panelWasShown(folder))
        return std::string(kCannot) + "it opened a file panel, for which a run over a folder has no place.";
    std::shared_ptr<BitmapRep> played = readPixels(pixels);
    if (!played) return "There is not enough memory for what the script made of it.";
    played->properties = picture->properties;
    picture = std::move(played);
    return {};
}

} // namespace zp
