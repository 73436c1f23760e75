// SPDX-License-Identifier: GPL-3.0-or-later
/// Grouping of pictures by file, content and look.
#include "library/Duplicates.h"
#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>

namespace zp
{

namespace
{

using FileKey = std::pair<std::uint64_t, std::uint64_t>;
FileKey fileOf(const ComparedPicture& picture) { return {picture.stamp.device, picture.stamp.file}; }

class Groups
{
public:
    explicit Groups(std::size_t count) : mParent(count), mWhy(count)
    {
        std::iota(mParent.begin(), mParent.end(), std::size_t{0});
    }
    void join(std::size_t a, std::size_t b, DuplicateKind why)
    {
        for (const std::size_t each : {a, b}) mWhy[each] = std::max(mWhy[each].value_or(why), why);
        const auto [first, second] = std::minmax({root(a), root(b)});
        mParent[second] = first;
    }
    std::vector<std::vector<Duplicate>> all()
    {
        std::map<std::size_t, std::vector<Duplicate>> byFirst;
        for (std::size_t i = 0; i < mParent.size(); ++i)
            if (mWhy[i]) byFirst[root(i)].push_back({i, *mWhy[i]});
        std::vector<std::vector<Duplicate>> groups;
        groups.reserve(byFirst.size());
        for (auto& [first, members] : byFirst) groups.push_back(std::move(members));
        return groups;
    }

private:
    std::size_t root(std::size_t i)
    {
        while (mParent[i] != i) i = mParent[i] = mParent[mParent[i]];
        return i;
    }
    std::vector<std::size_t> mParent; ///< towards the group's first one
    std::vector<std::optional<DuplicateKind>> mWhy;
};

} // namespace

std::vector<std::size_t> copiesToConfirm(std::span<const ComparedPicture> pictures)
{
    std::map<std::pair<std::int64_t, std::uint64_t>, std::map<FileKey, std::vector<std::size_t>>> alike;
    for (std::size_t i = 0; i < pictures.size(); ++i)
        alike[{pictures[i].mark.size, pictures[i].mark.samples}][fileOf(pictures[i])].push_back(i);
    std::vector<std::size_t> needed;
    for (const auto& [key, files] : alike)
        if (files.size() > 1)
            for (const auto& [file, indices] : files)
                for (const std::size_t i : indices)
                    if (!pictures[i].mark.whole) needed.push_back(i);
    std::ranges::sort(needed);
    return needed;
}

std::vector<std::vector<Duplicate>> duplicatesAmong(std::span<const ComparedPicture> pictures,
                                                    const std::stop_token& stop)
{
    Groups groups(pictures.size());
    std::map<FileKey, std::size_t> files;
    std::map<std::tuple<std::int64_t, std::uint64_t, std::uint64_t>, std::size_t> contents;
    std::vector<std::size_t> looks; // one for each content: its copies look like nothing else
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const PictureMark& mark = pictures[i].mark;
        if (const auto [known, isNew] = files.emplace(fileOf(pictures[i]), i); !isNew) {
            groups.join(known->second, i, DuplicateKind::SameFile);
            continue;
        }
        if (mark.whole) {
            const auto [known, isNew] = contents.emplace(std::tuple{mark.size, mark.samples, *mark.whole}, i);
            if (!isNew) {
                groups.join(known->second, i, DuplicateKind::SameContent);
                continue;
            }
        }
        if (mark.look) looks.push_back(i);
    }
    for (std::size_t a = 0; a < looks.size() && !stop.stop_requested(); ++a)
        for (std::size_t b = a + 1; b < looks.size(); ++b)
            if (looksTheSame(*pictures[looks[a]].mark.look, *pictures[looks[b]].mark.look))
                groups.join(looks[a], looks[b], DuplicateKind::SameLook);
    return groups.all();
}

} // namespace zp
