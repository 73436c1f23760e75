// SPDX-License-Identifier: GPL-3.0-or-later
/// Groups of pictures that are there more than once.
#include "library/Duplicates.h"
#include <gtest/gtest.h>

using namespace zp;

namespace
{

constexpr auto kFile = DuplicateKind::SameFile, kContent = DuplicateKind::SameContent, kLook = DuplicateKind::SameLook;

/// @param whole  0: not known
ComparedPicture picture(std::uint64_t file, std::uint64_t samples, std::uint64_t whole, std::uint64_t waves)
{
    ComparedPicture made;
    made.stamp.file = file;
    made.mark.size = 100;
    made.mark.samples = samples;
    if (whole) made.mark.whole = whole;
    if (waves) made.mark.look = PictureLook{waves << 1, 0};
    return made;
}

using Groups = std::vector<std::vector<Duplicate>>;

} // namespace

TEST(Duplicates, AreGroupedByFileContentAndLook)
{
    constexpr std::uint64_t kWaves = 0x0F0F0F0F0F0F0F, kNear = kWaves ^ 0xFF, kOther = 0x33333333333333;
    struct Case {
        const char* what;
        std::vector<ComparedPicture> pictures;
        Groups groups;
    };
    const Case cases[] = {
        {"none", {}, {}},
        {"one", {picture(1, 1, 0, kWaves)}, {}},
        {"two others", {picture(1, 1, 0, kWaves), picture(2, 2, 0, kOther)}, {}},
        {"one file twice", {picture(1, 1, 0, 0), picture(1, 1, 0, 0)}, {{{0, kFile}, {1, kFile}}}},
        {"copies", {picture(1, 1, 5, 0), picture(2, 1, 5, 0)}, {{{0, kContent}, {1, kContent}}}},
        {"samples alone are not enough", {picture(1, 1, 5, 0), picture(2, 1, 6, 0)}, {}},
        {"nor are they where the whole is unknown", {picture(1, 1, 0, 0), picture(2, 1, 0, 0)}, {}},
        {"the whole alone is not either", {picture(1, 1, 5, 0), picture(2, 2, 5, 0)}, {}},
        {"looks", {picture(1, 1, 0, kWaves), picture(2, 2, 0, kNear)}, {{{0, kLook}, {1, kLook}}}},
        {"pictures without a look have none in common", {picture(1, 1, 0, 0), picture(2, 2, 0, 0)}, {}},
        {"a copy and a lookalike",
         {picture(1, 1, 5, kWaves), picture(9, 9, 0, kOther), picture(2, 1, 5, kWaves), picture(3, 3, 0, kNear)},
         {{{0, kContent}, {2, kContent}, {3, kLook}}}},
        {"groups stand by their first ones",
         {picture(1, 1, 0, kWaves), picture(2, 2, 0, kOther), picture(2, 2, 0, kOther), picture(3, 3, 0, kNear)},
         {{{0, kLook}, {3, kLook}}, {{1, kFile}, {2, kFile}}}},
    };
    for (const Case& each : cases) EXPECT_EQ(duplicatesAmong(each.pictures), each.groups) << each.what;
}

TEST(Duplicates, WholeFilesAreReadOnlyWhereSizeAndSamplesAgree)
{
    const std::vector<ComparedPicture> pictures{picture(1, 1, 0, 0), picture(2, 2, 0, 0), picture(3, 1, 7, 0),
                                                picture(4, 3, 0, 0), picture(4, 3, 0, 0), picture(5, 1, 0, 0)};
    EXPECT_EQ(copiesToConfirm(pictures), (std::vector<std::size_t>{0, 5}));
    EXPECT_TRUE(copiesToConfirm({}).empty());
}

TEST(Duplicates, ALookOfAnotherShapeIsAnotherOne)
{
    ComparedPicture wide = picture(1, 1, 0, 0xF0F0F0F0), tall = picture(2, 2, 0, 0xF0F0F0F0);
    tall.mark.look->shape = -58;
    EXPECT_TRUE(duplicatesAmong(std::vector{wide, tall}).empty());
    tall.mark.look->shape = 15;
    EXPECT_EQ(duplicatesAmong(std::vector{wide, tall}).size(), 1u);
}

TEST(Duplicates, AStopEndsTheComparison)
{
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_TRUE(
        duplicatesAmong(std::vector{picture(1, 1, 0, 0xFF00), picture(2, 2, 0, 0xFF00)}, stopped.get_token()).empty());
}
