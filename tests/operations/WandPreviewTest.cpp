// SPDX-License-Identifier: GPL-3.0-or-later
/// The wand that explains itself: what it shows is what it takes, a drag is a tolerance, a reason is true.
#include "operations/WandPreview.h"
#include "base/PathText.h"
#include "support/ToolFixture.h"
#include "tools/PixelCompare.h"
#include <deque>
#include <map>

namespace
{

using namespace zp;
using namespace zp::test;
using namespace std::chrono_literals;

class WandPreviewTest : public ToolTest
{
protected:
    void SetUp() override
    {
        ToolTest::SetUp();
        choose(Tool::Wand);
        newImage(150, 90);
        // Hills of grey with noise and a clear corner: partly, wholly and not at all matching tiles.
        std::mt19937 random(5);
        paintImage([&](int x, int y) {
            if (x > 140 && y > 80) return 0u;
            const int grey = 128 + int(60 * std::sin(x / 19.0) * std::cos(y / 13.0)) + int(random() % 9);
            return word(255, grey, std::min(255, grey + x / 3), 255 - grey);
        });
    }
    std::vector<std::uint8_t> allMask() const
    {
        std::vector<std::uint8_t> all;
        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 150; ++x) all.push_back(mask(x, y));
        return all;
    }
    bool bitOf(const WandPreview& preview, std::size_t i) const
    {
        return preview.found().contains(int(i % 150), int(i / 150));
    }
};

struct Press {
    const char* name;
    std::uint32_t keys;
    bool selected;     ///< a rectangle is, before
    bool maskRendered; ///< and its mask is made
    int tolerance;
    Point at;
    bool asks = true; ///< a press there selects
};

class WhatThePressTakes : public WandPreviewTest, public testing::WithParamInterface<Press>
{
};

TEST_P(WhatThePressTakes, IsWhatThePreviewFound)
{
    const Press& c = GetParam();
    if (c.selected) {
        select(makeRect(40, 20, 60, 50));
        if (c.maskRendered) renderMask();
    }
    document->setToleranceSetting(c.tolerance);
    hold(c.keys);
    const bool masked = c.selected && c.maskRendered;
    const std::optional<WandQuestion> question = wandQuestion(*document, c.at, c.keys);
    ASSERT_EQ(question.has_value(), c.asks);
    WandPreview preview;
    if (question) {
        EXPECT_TRUE(preview.prepare(*document, 1h));
        preview.start(*document, *question);
        ASSERT_TRUE(preview.goOn(1h));
    }
    EXPECT_EQ(selection().mask().shows(selection().version()), masked) << "a look changes nothing";
    if (c.selected) renderMask();
    const std::vector<std::uint8_t> before = allMask();
    press(c.at.x, c.at.y);
    EXPECT_EQ(gesture().isMoving(), !c.asks);
    release(c.at.x, c.at.y);
    const std::vector<std::uint8_t> after = allMask();
    std::size_t taken = 0;
    for (std::size_t i = 0; i < after.size() && c.asks; ++i) {
        const bool found = bitOf(preview, i), was = c.selected && before[i] == 0;
        const bool expected = c.keys & kShiftKey                  ? was || found
                              : c.keys & kOptionKey && c.selected ? was && !found
                                                                  : found;
        ASSERT_EQ(after[i] == 0, expected) << i % 150 << ' ' << i / 150;
        taken += found;
    }
    EXPECT_EQ(preview.found().count(), taken);
}

const Press kPresses[] = {
    {"Plain", 0, false, false, 20, {30.5f, 40.25f}},
    {"ExactlyAlike", 0, false, false, 1, {75, 33}},
    {"NearlyAll", 0, false, false, 100, {75, 33}},
    {"NothingAtZero", 0, false, false, 0, {75, 33}},
    {"TheLastPixel", 0, false, false, 10, {149.9f, 89.9f}},
    {"BesideASelection", 0, true, true, 30, {10, 10}},
    {"InsideASelectionItMoves", 0, true, true, 30, {50, 30}, false},
    {"ShiftAddsUpToWalls", kShiftKey, true, true, 40, {10, 10}},
    {"ShiftAddsAlsoWithoutAMask", kShiftKey, true, false, 40, {10, 10}},
    {"ShiftFromInsideAddsNothing", kShiftKey, true, true, 40, {50, 30}},
    {"ShiftWithoutASelection", kShiftKey, false, false, 25, {10, 10}},
    {"OptionCutsThroughWalls", kOptionKey, true, true, 40, {10, 10}},
    {"OptionFromInside", kOptionKey, true, false, 40, {50, 30}},
    {"OptionWithoutASelection", kOptionKey, false, false, 25, {10, 10}},
    {"CommandInsideMoves", kCommandKey | kShiftKey, true, true, 30, {50, 30}, false},
};
INSTANTIATE_TEST_SUITE_P(Presses, WhatThePressTakes, testing::ValuesIn(kPresses),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(WandPreviewTest, AsksNothingOutsideThePicture)
{
    EXPECT_FALSE(wandQuestion(*document, {-3, 5}, 0));
    EXPECT_FALSE(wandQuestion(*document, {150, 5}, 0));
    EXPECT_TRUE(wandQuestion(*document, {0, 0}, 0));
}

TEST_F(WandPreviewTest, AShortBudgetFindsAPartAndGoesOnWithIt)
{
    document->setToleranceSetting(100);
    WandPreview preview;
    preview.start(*document, *wandQuestion(*document, {75, 33}, 0));
    ASSERT_FALSE(preview.goOn(0ns));
    const std::size_t part = preview.found().count();
    EXPECT_GT(part, 0u);
    while (!preview.goOn(0ns)) {
    }
    EXPECT_GT(preview.found().count(), part);
    EXPECT_FALSE(preview.isPrepared(*document));
    while (!preview.prepare(*document, 0ns)) {
    }
    EXPECT_TRUE(preview.isPrepared(*document));
    setPixel(3, 3, kRedWord);
    EXPECT_FALSE(preview.isPrepared(*document)) << "of other pixels";
}

// ---- reasons --------------------------------------------------------------------------------------------------------

/// The region by a plain walk.
std::vector<bool> regionOf(const std::vector<std::uint32_t>& pixels, int width, int height, PixelPoint seed, int t)
{
    std::vector<bool> region(pixels.size());
    const auto at = [width](int x, int y) { return std::size_t(y) * std::size_t(width) + std::size_t(x); };
    const std::uint32_t target = pixels[at(seed.x, seed.y)];
    std::deque<PixelPoint> todo{seed};
    while (!todo.empty()) {
        const auto [x, y] = todo.front();
        todo.pop_front();
        if (x < 0 || y < 0 || x >= width || y >= height || region[at(x, y)] || !wordsMatch(pixels[at(x, y)], target, t))
            continue;
        region[at(x, y)] = true;
        for (const auto& [dx, dy] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}}) todo.push_back({x + dx, y + dy});
    }
    return region;
}

TEST_F(WandPreviewTest, TheReasonIsTrueForEveryPixel)
{
    document->setExplainsWand(true);
    const int width = 31, height = 23;
    newImage(width, height);
    std::mt19937 random(3);
    paintImage([&](int x, int) {
        const int alpha = x > 24 ? 200 : 255;
        const auto colour = [&] { return 100 + int(random() % 60); };
        const int red = colour(), green = colour();
        return word(alpha, red, green, colour());
    });
    const int setting = 24, t = toleranceForSlider(setting);
    document->setToleranceSetting(setting);
    press(12, 11);
    release(12, 11);
    const std::vector<std::uint32_t> pixels = allPixels();
    const std::vector<bool> region = regionOf(pixels, width, height, {12, 11}, t);
    const std::uint32_t target = pixels[11 * 31 + 12];
    const char* const names[] = {"opacity", "red", "green", "blue"};
    std::map<std::string, int> seen;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const std::size_t i = std::size_t(y * width + x);
            // The first of the farthest, colours before opacity.
            int channel = 1;
            std::array<int, 4> distance{};
            for (int c = 0; c < 4; ++c)
                distance[std::size_t(c)] = std::abs(channelOf(pixels[i], c) - channelOf(target, c));
            for (const int c : {2, 3, 0})
                if (distance[std::size_t(c)] > distance[std::size_t(channel)]) channel = c;
            const int most = distance[std::size_t(channel)];
            std::string expected = "Inside", kind = expected;
            if (!region[i]) {
                kind = expected = "Outside: within the tolerance, but not connected";
                if (most >= t) {
                    kind = names[channel];
                    expected = "Outside: " + kind + " differs by " + std::to_string(most) + ", the tolerance allows " +
                               std::to_string(t - 1);
                }
            }
            ++seen[kind];
            ASSERT_EQ(wandReason(*document, {float(x) + 0.7f, float(y)}).toStdString(), expected) << x << ' ' << y;
        }
    EXPECT_EQ(seen.size(), 6u) << "every kind of reason is there";
    EXPECT_TRUE(wandReason(*document, {-1, 3}).isEmpty());
    EXPECT_TRUE(wandReason(*document, {float(width), 3}).isEmpty());
}

TEST_F(WandPreviewTest, ThereIsAReasonOnlyForWhatTheWandHasJustSelected)
{
    const auto reason = [this] { return wandReason(*document, {140, 5}).toStdString(); };
    press(12, 11);
    release(12, 11);
    EXPECT_EQ(reason(), "") << "off as given";
    document->setExplainsWand(true);
    const auto select = [&] {
        dropSelection();
        press(12, 11);
        release(12, 11);
        EXPECT_NE(reason(), "");
    };
    select();
    performNumbers("nudge", {1, 0});
    EXPECT_EQ(reason(), "");
    select();
    setPixel(5, 5, kRedWord);
    EXPECT_EQ(reason(), "");
    select();
    hold(kShiftKey);
    press(100, 80);
    EXPECT_EQ(reason(), "") << "the button is down";
    release(100, 80);
    EXPECT_NE(reason(), "");
    hold(kOptionKey);
    press(100, 80);
    release(100, 80);
    EXPECT_EQ(reason(), "") << "what was cut away need not be unlike";
    hold(0);
    document->setToleranceSetting(0);
    select();
    EXPECT_EQ(reason(), "Outside: a tolerance of 0 takes nothing");
}

// ---- the drag -------------------------------------------------------------------------------------------------------

TEST(ToleranceOfDrag, GrowsToTheRight)
{
    struct Case {
        int before;
        double points;
        int after;
    };
    for (const auto& [before, points, after] : {Case{20, 0, 20},
                                                {20, 6, 20},
                                                {20, -6, 20},
                                                {20, 7, 21},
                                                {20, 10, 21},
                                                {20, 10.5, 22},
                                                {20, -7, 19},
                                                {20, 46, 30},
                                                {20, -46, 10},
                                                {20, -1000, 1},
                                                {20, 1000, 100},
                                                {0, -50, 0},
                                                {0, 7, 1},
                                                {100, 50, 100}})
        EXPECT_EQ(toleranceOfDrag(before, points), after) << before << ' ' << points;
}

struct Dragging {
    const char* name;
    std::uint32_t keys;
    bool selected;
};

class ADrag : public WandPreviewTest, public testing::WithParamInterface<Dragging>
{
protected:
    void prepare(int tolerance)
    {
        hold(0);
        dropSelection();
        if (GetParam().selected) select(makeRect(40, 20, 60, 50));
        document->setToleranceSetting(tolerance);
        hold(GetParam().keys);
    }
};

TEST_P(ADrag, LeavesWhatAPressWithThatToleranceLeaves)
{
    for (const int zoom : {1, 2}) {
        document->setZoom(float(zoom));
        prepare(30);
        press(10, 10);
        release(10, 10);
        const std::string expected = textOfPath(*outline());
        const std::vector<std::uint8_t> expectedMask = allMask();
        document->setExplainsWand(true);
        prepare(20);
        const auto to = [zoom](float points) { return 10 + points / float(zoom); };
        press(10, 10);
        drag(to(90), 10);
        EXPECT_EQ(paint().toleranceSetting(), 41);
        drag(to(-20), 15);
        EXPECT_EQ(paint().toleranceSetting(), 16);
        drag(to(46), 60);
        release(to(46), 60);
        EXPECT_EQ(paint().toleranceSetting(), 30);
        EXPECT_EQ(textOfPath(*outline()), expected);
        EXPECT_EQ(allMask(), expectedMask);
        document->setExplainsWand(false);
    }
}

const Dragging kDraggings[] = {{"Plain", 0, false},
                               {"InPlaceOfASelection", 0, true},
                               {"ShiftWithASelection", kShiftKey, true},
                               {"ShiftWithoutOne", kShiftKey, false},
                               {"Option", kOptionKey, true}};
INSTANTIATE_TEST_SUITE_P(Draggings, ADrag, testing::ValuesIn(kDraggings),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(WandPreviewTest, ADragDoesNothingUnlessTheWandExplains)
{
    document->setToleranceSetting(20);
    press(10, 10);
    const std::string selected = textOfPath(*outline());
    drag(100, 10);
    release(100, 10);
    EXPECT_EQ(paint().toleranceSetting(), 20);
    EXPECT_EQ(textOfPath(*outline()), selected);
}

TEST_F(WandPreviewTest, EscapeTakesToleranceAndSelectionBack)
{
    document->setExplainsWand(true);
    document->setToleranceSetting(20);
    select(makeRect(40, 20, 60, 50));
    press(10, 10);
    drag(80, 10);
    EXPECT_NE(paint().toleranceSetting(), 20);
    key(Qt::Key_Escape);
    EXPECT_EQ(paint().toleranceSetting(), 20);
    EXPECT_EQ(outlineBounds(), makeRect(40, 20, 60, 50));
    release(80, 10);
    EXPECT_EQ(paint().toleranceSetting(), 20);
    expectNumbers(0, 0);
}

TEST_F(WandPreviewTest, ADragInsideTheSelectionMovesIt)
{
    document->setExplainsWand(true);
    document->setToleranceSetting(20);
    select(makeRect(40, 20, 60, 50));
    gestureThrough({{50, 30}, {55, 31}, {60, 32}});
    EXPECT_EQ(outlineBounds(), makeRect(50, 22, 60, 50));
    EXPECT_EQ(paint().toleranceSetting(), 20);
}

} // namespace
