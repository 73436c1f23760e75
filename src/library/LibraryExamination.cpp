// SPDX-License-Identifier: GPL-3.0-or-later
/// What is known of the library's pictures, kept up to date.
#include "library/LibraryExamination.h"
#include "base/FoldersLinks.h"
#include "library/LibraryListing.h"
#include <utility>

namespace zp
{

LibraryExaminer::LibraryExaminer(std::string folder, std::string index)
    : mFolder(std::move(folder)), mIndex(std::move(index))
{
}

void LibraryExaminer::load()
{
    if (!std::exchange(mLoaded, true)) mMarks = readLibraryIndex(mIndex);
}

void LibraryExaminer::save()
{
    // Where it cannot be written, nothing is lost but what the next window would have known.
    if (std::exchange(mChanged, false)) writeLibraryIndex(mIndex, mMarks);
}

/// Where an entry leads to, whether or not something is there: it must be the same before and after a picture is gone.
std::string LibraryExaminer::placeOf(const std::string& name) const
{
    std::string path = pathByAppending(mFolder, name);
    finalTarget(path);
    return path;
}

PictureMark* LibraryExaminer::markOf(const std::string& path)
{
    const auto stamp = fileStamp(path);
    if (!stamp) return nullptr;
    const auto known = mMarks.find(path);
    if (known != mMarks.end() && known->second.size == stamp->size && known->second.modified == stamp->modified)
        return &known->second;
    const auto mark = markOfFile(path);
    if (!mark) return nullptr;
    mChanged = true;
    return &(mMarks[path] = *mark);
}

MovedPictures LibraryExaminer::findMoved(const std::vector<std::string>& names, const SearchLimits& limits,
                                         const std::stop_token& stop)
{
    load();
    std::vector<LostPicture> lost;
    std::vector<std::string> lostNames;
    MovedPictures moved;
    for (const std::string& name : names) {
        if (!libraryItem(mFolder, name).broken) continue;
        const std::string place = placeOf(name);
        const auto known = mMarks.find(place);
        lost.push_back({place, known == mMarks.end() ? std::nullopt : std::optional(known->second)});
        lostNames.push_back(name);
        moved[name] = {place};
    }
    auto found = lost.empty() ? std::vector<std::optional<FoundPicture>>{} : findMovedPictures(lost, limits, stop);
    for (std::size_t i = 0; i < lost.size(); ++i) moved[lostNames[i]].found = std::move(found[i]);

    std::set<std::string> places;
    for (const std::string& name : names) {
        if (stop.stop_requested()) break;
        const std::string place = placeOf(name);
        if (places.insert(place).second) markOf(place);
    }
    // An empty library may be one on a disk that is not there just now.
    if (!stop.stop_requested() && !names.empty())
        mChanged |= std::erase_if(mMarks, [&](const auto& each) { return !places.contains(each.first); }) > 0;
    save();
    return moved;
}

DuplicateGroups LibraryExaminer::findDuplicates(const std::vector<std::string>& names, const std::stop_token& stop,
                                                const std::function<void(int)>& progress)
{
    load();
    std::vector<ComparedPicture> pictures;
    std::vector<std::string> shown, places;
    for (std::size_t i = 0; i < names.size() && !stop.stop_requested(); ++i) {
        if (progress) progress(int(i));
        const std::string place = placeOf(names[i]);
        const auto stamp = fileStamp(place);
        PictureMark* mark = stamp ? markOf(place) : nullptr;
        if (!mark) continue;
        if (!mark->looked) {
            mark->look = lookOfFile(place);
            mark->looked = mChanged = true;
        }
        pictures.push_back({*stamp, *mark});
        shown.push_back(names[i]);
        places.push_back(place);
    }
    for (const std::size_t i : copiesToConfirm(pictures)) {
        if (PictureMark* mark = markOf(places[i]); mark && !mark->whole) {
            mark->whole = digestOfFile(places[i], stop);
            mChanged = true;
        }
        if (const auto known = mMarks.find(places[i]); known != mMarks.end())
            pictures[i].mark.whole = known->second.whole;
    }
    save();
    DuplicateGroups groups;
    for (const auto& group : duplicatesAmong(pictures, stop)) {
        groups.emplace_back();
        for (const Duplicate& each : group) groups.back().push_back({shown[each.index], each.why});
    }
    return stop.stop_requested() ? DuplicateGroups{} : groups;
}

void LibraryExaminer::remember(const std::string& name, const std::stop_token& stop)
{
    load();
    const std::string place = placeOf(name);
    PictureMark* mark = markOf(place);
    if (!mark || mark->whole) return;
    mark->whole = digestOfFile(place, stop);
    mChanged |= mark->whole.has_value();
    save();
}

} // namespace zp
