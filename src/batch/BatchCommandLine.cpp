// SPDX-License-Identifier: GPL-3.0-or-later
/// Words into settings, settings into a run, its outcome into lines and an exit status.
#include "batch/BatchCommandLine.h"
#include "base/Folders.h"
#include "base/WorkPool.h"
#include "batch/BatchRules.h"
#include "batch/BatchScript.h"
#include "batch/Watermarks.h"
#include "codecs/ImageImporter.h"
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace zp
{
namespace
{

constexpr const char* kHelp = R"(Usage: zelpane --batch SRC DST [OPTION…]

Converts every .tiff and .jpg image of the folder SRC into the folder DST.

  --script FILE       play the automation commands of FILE on each image, in an
                      editor of its own, before what follows
  --set NAME=VALUE    what ${NAME} stands for in FILE; may be repeated
  --tiff              write NAME.tiff (LZW)
  --jpeg              write NAME.jpg (quality 70); one of the two is needed
  --fit WxH           resize to fit W by H pixels; smaller images are enlarged
  --watermark FILE    lay FILE over each image: a path, or a name in the
                      watermark folder
  --at X,Y            where its lower left corner goes, Y upwards (0,0)
  --place CORNER[+N]  instead: lower-left, lower-right, upper-left, upper-right
                      or centre, in each image by its own size, N pixels away
                      from the edges of its corner (0)
  --relative P        as large as the image asks for: its longer side is P percent
                      of the image's shorter side (1 to 100); X, Y and N above
                      are percents of that side then
  --tile GAP          repeat it over the whole image, from its place on; GAP is
                      between them, in percent of its longer side (0 to 400)
  --turn DEGREES      turn it, and the rows of --tile, against the clock
  --opacity P         in percent (100)
  --strip private     leave place, device and names out of what is written
  --jobs N            images at a time (as many as there are processors)
  --shard K/N         only every N-th image by name, beginning with the K-th;
                      sources of one result go together
  --shard auto/N      the same; K comes from SLURM_ARRAY_TASK_ID (counted from
                      SLURM_ARRAY_TASK_MIN) or from JOB_COMPLETION_INDEX
  --keep-damaged      write what can be read of a damaged source, which is a
                      failure all the same
  --skip-existing     leave images alone whose results exist
  --dry-run           print what would be written, in order; write nothing
  --help              this text

Exit status: 0 all done, 1 some images failed (a line each on standard error)
or SRC cannot be listed, 2 wrong usage. A source that ends too early or can be
read in part only is a failure.
)";

std::optional<int> number(std::string_view text)
{
    int value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

struct Pair {
    int first, second;
};
std::optional<Pair> pairOf(std::string_view text, char separator)
{
    const auto at = text.find(separator);
    if (at == std::string_view::npos) return std::nullopt;
    const auto first = number(text.substr(0, at)), second = number(text.substr(at + 1));
    if (!first || !second) return std::nullopt;
    return Pair{*first, *second};
}

struct Placing {
    WatermarkPlace place;
    int margin = 0;
};
std::optional<Placing> placingOf(std::string_view text)
{
    static constexpr std::pair<std::string_view, WatermarkPlace> kNames[] = {
        {"lower-left", WatermarkPlace::LowerLeft}, {"lower-right", WatermarkPlace::LowerRight},
        {"upper-left", WatermarkPlace::UpperLeft}, {"upper-right", WatermarkPlace::UpperRight},
        {"centre", WatermarkPlace::Center},        {"center", WatermarkPlace::Center},
    };
    const auto plus = text.find('+');
    const auto margin = plus == std::string_view::npos ? std::optional(0) : number(text.substr(plus + 1));
    if (!margin || *margin < 0 || *margin > kMaxPixelsPerSide) return std::nullopt;
    for (const auto& [name, place] : kNames)
        if (text.substr(0, plus) == name) return Placing{place, *margin};
    return std::nullopt;
}

/// Takes one option that has a value. @return a sentence when the value makes no sense
std::string takeValue(BatchCommandLine& line, const std::string& option, const std::string& value)
{
    BatchSettings& s = line.settings;
    const std::string wrong = option + " does not understand \"" + value + "\".";
    if (option == "--fit") {
        const auto box = pairOf(value, 'x');
        if (!box || box->first < 1 || box->second < 1 || box->first > kMaxPixelsPerSide ||
            box->second > kMaxPixelsPerSide)
            return wrong;
        s.fitWidth = box->first;
        s.fitHeight = box->second;
    } else if (option == "--script") {
        line.scriptPath = value;
    } else if (option == "--set") {
        return takeScriptValue(value, line.scriptValues);
    } else if (option == "--watermark") {
        line.watermarkPath = value;
    } else if (option == "--at") {
        const auto point = pairOf(value, ',');
        if (!point) return wrong;
        s.watermarkPoint = {float(point->first), float(point->second)};
    } else if (option == "--place") {
        const auto placing = placingOf(value);
        if (!placing) return wrong;
        s.watermarkPlace = placing->place;
        s.watermarkMargin = placing->margin;
    } else if (option == "--relative") {
        const auto percent = number(value);
        if (!percent || *percent < 1 || *percent > kLargestWatermark) return wrong;
        s.watermarkLayout.relative = true;
        s.watermarkLayout.size = *percent;
    } else if (option == "--tile") {
        const auto percent = number(value);
        if (!percent || *percent < 0 || *percent > kLargestWatermarkGap) return wrong;
        s.watermarkLayout.tiled = true;
        s.watermarkLayout.gap = *percent;
    } else if (option == "--turn") {
        const auto degrees = number(value);
        if (!degrees || std::abs(*degrees) > kLargestWatermarkTurn) return wrong;
        s.watermarkLayout.turn = *degrees;
    } else if (option == "--opacity") {
        const auto percent = number(value);
        if (!percent || *percent < 0) return wrong;
        s.watermarkAlpha = float(*percent) / 100.0f;
    } else if (option == "--jobs") {
        const auto jobs = number(value);
        if (!jobs || *jobs < 1 || *jobs > 256) return wrong;
        s.jobs = *jobs;
    } else if (option == "--strip") {
        if (value != "private") return wrong;
        s.stripPrivate = true;
    } else {
        std::string error;
        s.shard = parseShard(value, error);
        return error;
    }
    return {};
}

bool hasValue(const std::string& option)
{
    for (const char* known : {"--script", "--set", "--fit", "--watermark", "--at", "--place", "--relative", "--tile",
                              "--turn", "--opacity", "--jobs", "--shard", "--strip"})
        if (option == known) return true;
    return false;
}

volatile std::sig_atomic_t interrupted = 0;
void onInterrupt(int) { interrupted = 1; }

/// A name for one line of a terminal: control characters and what is not UTF-8 are replaced.
std::string printable(const std::string& name)
{
    std::string out = displayName(name);
    for (char& c : out)
        if (std::uint8_t(c) < 0x20 || c == 0x7F) c = '?';
    return out;
}

std::string loadWatermark(BatchCommandLine& line)
{
    std::string path = line.watermarkPath;
    if (!fileExists(path) && path.find('/') == std::string::npos) path = pathByAppending(watermarkFolder(), path);
    ImportedImage watermark = importImageFile(path);
    if (!watermark.bitmap) return "the watermark " + printable(line.watermarkPath) + ": " + watermark.error;
    line.settings.watermark = std::move(watermark.bitmap);
    return {};
}

} // namespace

BatchCommandLine parseBatchCommandLine(int argc, char** argv)
{
    BatchCommandLine line;
    std::vector<std::string> folders;
    bool optionsEnded = false, jobsGiven = false, pointGiven = false;
    for (int i = 2; i < argc; ++i) {
        std::string word = argv[i];
        if (optionsEnded || word.empty() || word[0] != '-') {
            folders.push_back(std::move(word));
            continue;
        }
        std::string value;
        const auto equals = word.find('=');
        const bool inOne = word.starts_with("--") && equals != std::string::npos;
        if (inOne) {
            value = word.substr(equals + 1);
            word.erase(equals);
        }
        if (hasValue(word)) {
            if (!inOne && ++i >= argc) {
                line.error = word + " needs a value.";
                return line;
            }
            if (!inOne) value = argv[i];
            jobsGiven |= word == "--jobs";
            pointGiven |= word == "--at";
            if (line.error = takeValue(line, word, value); !line.error.empty()) return line;
        } else if (inOne) {
            line.error = "unknown option " + word;
            return line;
        } else if (word == "--tiff") {
            line.settings.tiff = true;
        } else if (word == "--jpeg") {
            line.settings.jpeg = true;
        } else if (word == "--keep-damaged") {
            line.settings.keepDamaged = true;
        } else if (word == "--skip-existing") {
            line.settings.skipExisting = true;
        } else if (word == "--dry-run") {
            line.dryRun = true;
        } else if (word == "--help" || word == "-h") {
            line.help = true;
            return line;
        } else if (word == "--") {
            optionsEnded = true;
        } else {
            line.error = "unknown option " + word;
            return line;
        }
    }
    if (folders.size() > 2) {
        line.error = "more than two folders given: " + folders[2];
        return line;
    }
    if (!folders.empty()) line.settings.source = folders[0];
    if (folders.size() > 1) line.settings.destination = folders[1];
    line.error = batchFaultText(checkBatchFolders(line.settings.source, line.settings.destination));
    if (line.error.empty() && !line.settings.tiff && !line.settings.jpeg) line.error = "choose --tiff, --jpeg or both.";
    if (line.error.empty() && pointGiven && line.settings.watermarkPlace != WatermarkPlace::Custom)
        line.error = "--at and --place say the same thing twice.";
    if (line.error.empty() && line.scriptPath.empty() && !line.scriptValues.empty())
        line.error = "--set is of use with --script only.";
    if (line.error.empty() && line.watermarkPath.empty() && !line.settings.watermarkLayout.isAsGiven())
        line.error = "--relative, --tile and --turn are of use with --watermark only.";
    line.settings.watermarkLayout.margin = line.settings.watermarkMargin;
    if (!jobsGiven) line.settings.jobs = 0; // as many as the machine has processors
    return line;
}

int runBatchCommandLine(int argc, char** argv)
{
    BatchCommandLine line = parseBatchCommandLine(argc, argv);
    if (line.help) {
        std::fputs(kHelp, stdout);
        return 0;
    }
    if (line.error.empty() && !line.watermarkPath.empty()) line.error = loadWatermark(line);
    if (line.error.empty() && !line.scriptPath.empty()) {
        // This very program, even if its file is replaced while the run lasts.
        line.settings.script = BatchScript::read(line.scriptPath, line.scriptValues, "/proc/self/exe", line.error);
    }
    if (!line.error.empty()) {
        std::fprintf(stderr, "zelpane: %s\nTry \"zelpane --batch --help\".\n", line.error.c_str());
        return 2;
    }
    std::vector<std::string> names;
    if (const std::string why = batchNames(line.settings, names); !why.empty()) {
        std::fprintf(stderr, "zelpane: the folder %s cannot be listed: %s.\n", printable(line.settings.source).c_str(),
                     why.c_str());
        return 1;
    }
    if (line.dryRun) {
        for (const std::string& file : batchPlan(line.settings, names)) std::printf("%s\n", printable(file).c_str());
        return 0;
    }
    if (line.settings.jobs == 0) line.settings.jobs = workerCount();

    const bool terminal = isatty(STDOUT_FILENO) != 0;
    std::signal(SIGINT, onInterrupt);
    std::signal(SIGTERM, onInterrupt);
    std::size_t skipped = 0, superseded = 0, done = 0;
    const auto failures = runBatch(line.settings, names, [&](const BatchOutcome& outcome, std::size_t count) {
        done = count;
        skipped += outcome.skipped;
        superseded += outcome.superseded;
        const std::string name = printable(outcome.name);
        if (terminal) std::printf("\r\033[K");
        if (!outcome.error.empty()) {
            std::fflush(stdout);
            std::fprintf(stderr, "%s: %s\n", name.c_str(), outcome.error.c_str());
        }
        if (terminal) {
            std::printf("%zu of %zu  %.60s", count, names.size(), name.c_str());
            std::fflush(stdout);
        }
        return !interrupted;
    });
    if (terminal) {
        std::printf("\r\033[K%zu of %zu done, %zu skipped, %zu failed", done - failures.size() - skipped - superseded,
                    names.size(), skipped, failures.size());
        if (superseded > 0) std::printf(", %zu superseded by a later source of the same name", superseded);
        std::printf("\n");
    }
    if (done < names.size()) std::fprintf(stderr, "zelpane: interrupted after %zu of %zu images\n", done, names.size());
    return failures.empty() && done == names.size() ? 0 : 1;
}

} // namespace zp
