// SPDX-License-Identifier: GPL-3.0-or-later
/// The search for moved pictures: breadth first, within limits, sizes before contents.
#include "library/MovedPictures.h"
#include "base/Folders.h"
#include "base/FoldersLinks.h"
#include <algorithm>
#include <filesystem>
#include <queue>
#include <set>
#include <sys/stat.h>

namespace zp
{

namespace
{

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

class Search
{
public:
    Search(const std::vector<LostPicture>& lost, const SearchLimits& limits, const std::stop_token& stop)
        : mLost(lost), mLimits(limits), mStop(stop), mEnd(Clock::now() + limits.time), mFound(lost.size())
    {
        for (std::size_t i = 0; i < lost.size(); ++i) {
            if (lost[i].mark)
                mBySize.emplace(lost[i].mark->size, i);
            else
                mByName.emplace(lastPathComponent(lost[i].oldPath), i);
        }
    }

    std::vector<std::optional<FoundPicture>> run()
    {
        // All old folders before any place beside one: what is near is found however large the rest is.
        std::set<std::string> old;
        for (const LostPicture& each : mLost) old.insert(folderOfPath(each.oldPath));
        for (const std::string& folder : old) below(folder);
        for (const std::string& folder : old) {
            std::string beside = folderOfPath(folder);
            while (beside.size() > 1 && !isFolder(beside)) beside = folderOfPath(beside);
            if (beside.size() > 1) below(beside);
        }
        return std::move(mFound);
    }

private:
    struct Place {
        std::string folder;
        int level = 0;
    };

    bool ended() const { return mStop.stop_requested() || Clock::now() >= mEnd || mSettled == mLost.size(); }

    void below(const std::string& root)
    {
        struct stat facts {
        };
        if (::stat(root.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode)) return;
        const dev_t disk = facts.st_dev;
        int left = mLimits.entries;
        std::queue<Place> places;
        places.push({root, 0});
        while (!places.empty() && left > 0 && !ended()) {
            const Place place = std::move(places.front());
            places.pop();
            std::vector<fs::directory_entry> entries = entriesOf(place.folder, left);
            left -= int(entries.size());
            for (const fs::directory_entry& entry : entries) {
                if (ended()) return;
                std::error_code error;
                const fs::file_status status = entry.symlink_status(error);
                if (error) continue;
                if (fs::is_regular_file(status)) {
                    if (mSeen.insert(entry.path().native()).second) consider(entry);
                } else if (fs::is_directory(status) && place.level < mLimits.levels &&
                           ::lstat(entry.path().c_str(), &facts) == 0 && facts.st_dev == disk) {
                    places.push({entry.path().native(), place.level + 1});
                }
            }
        }
    }

    /// Those that are not hidden, in the order of their names, @p most at most.
    static std::vector<fs::directory_entry> entriesOf(const std::string& folder, int most)
    {
        std::vector<fs::directory_entry> entries;
        std::error_code error;
        for (fs::directory_iterator at(folder, error), end; !error && at != end && int(entries.size()) < most;
             at.increment(error))
            if (!at->path().filename().native().starts_with('.')) entries.push_back(*at);
        std::ranges::sort(entries);
        return entries;
    }

    void consider(const fs::directory_entry& entry)
    {
        const std::string& path = entry.path().native();
        const std::string name = entry.path().filename().native();
        const auto offer = [&](std::size_t i, bool sameContent) {
            const bool sameName = lastPathComponent(mLost[i].oldPath) == name;
            if (mFound[i] && (!sameName || lastPathComponent(mFound[i]->path) == name)) return;
            mFound[i] = FoundPicture{path, sameContent};
            mSettled += sameName ? 1 : 0;
        };
        for (auto [each, end] = mByName.equal_range(name); each != end; ++each) offer(each->second, false);
        if (mBySize.empty()) return;
        std::error_code error;
        const auto size = std::int64_t(entry.file_size(error));
        std::optional<PictureMark> mark;
        std::optional<std::uint64_t> whole;
        for (auto [each, end] = mBySize.equal_range(size); !error && each != end; ++each) {
            const PictureMark& wanted = *mLost[each->second].mark;
            if (!mark) mark = markOfFile(path);
            if (!mark || mark->size != wanted.size || mark->samples != wanted.samples) continue;
            if (wanted.whole && !whole) whole = digestOfFile(path, mStop);
            if (!wanted.whole || whole == wanted.whole) offer(each->second, true);
        }
    }

    const std::vector<LostPicture>& mLost;
    const SearchLimits& mLimits;
    const std::stop_token& mStop;
    const Clock::time_point mEnd;
    std::vector<std::optional<FoundPicture>> mFound;
    std::multimap<std::int64_t, std::size_t> mBySize; ///< those that are known by a mark
    std::multimap<std::string, std::size_t> mByName;  ///< those that are not
    std::set<std::string> mSeen; ///< files, which lie below their old folder and below what is beside it
    std::size_t mSettled = 0;    ///< found under their own names: nothing better can come
};

} // namespace

std::vector<std::optional<FoundPicture>> findMovedPictures(const std::vector<LostPicture>& lost,
                                                           const SearchLimits& limits, const std::stop_token& stop)
{
    return Search(lost, limits, stop).run();
}

bool relink(const std::string& folder, const std::string& name, const std::string& oldPath, const std::string& found)
{
    const std::string path = pathByAppending(folder, name);
    std::string target = path;
    const auto own = fileAttributes(path);
    if (!own || !own->link || finalTarget(target) != 0 || target != oldPath) return false;
    return !fileExists(path) && fileExists(found) && replaceLink(path, found);
}

} // namespace zp
