// SPDX-License-Identifier: GPL-3.0-or-later
/// Lifting, placing, anchoring and copying a floating picture, cutting and cropping, without a canvas.
#include "drawing/BitmapContext.h"
#include "selection/FloatingImage.h"
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace zp;

namespace
{
std::uint32_t word(int a, int r, int g, int b)
{
    return std::uint32_t(a) | std::uint32_t(r) << 8 | std::uint32_t(g) << 16 | std::uint32_t(b) << 24;
}
int channelOf(std::uint32_t w, int channel) { return int(w >> (8 * channel) & 255); }

/// Opaque pixels of every colour.
std::shared_ptr<BitmapRep> photo(int width, int height, unsigned seed = 1)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) rep->view().row(y)[x] = std::uint32_t(random()) | 255;
    return rep;
}

int greatestDifference(const BitmapRep& a, const BitmapRep& b)
{
    int worst = 0;
    for (int y = 0; y < a.pixelsHigh(); ++y)
        for (int x = 0; x < a.pixelsWide(); ++x)
            for (int c = 0; c < 4; ++c)
                worst = std::max(worst, std::abs(channelOf(a.view().row(y)[x], c) - channelOf(b.view().row(y)[x], c)));
    return worst;
}

void anchor(BitmapRep& target, const Image& floating, const _ZPTransform& record, const BezierPath& path,
            float opacity = 1)
{
    BitmapContext context(target.view());
    context.addClip(path);
    drawFloating(context, floating, record, opacity);
}

BezierPath triangle()
{
    BezierPath path;
    path.moveTo({10.3f, 5.7f});
    path.lineTo({50.9f, 22.2f});
    path.lineTo({17.6f, 48.1f});
    path.closePath();
    path.setWindingRule(WindingRule::EvenOdd);
    return path;
}
} // namespace

class Outline : public testing::TestWithParam<std::pair<const char*, BezierPath>>
{
};

TEST_P(Outline, FloatedAndAnchoredUntouchedChangesNoOpaqueByte)
{
    const auto image = photo(60, 50), before = copyOf(*image);
    const BezierPath& path = GetParam().second;
    const auto floating = liftFloatingImage(image->view(), path.bounds());
    ASSERT_TRUE(floating);
    EXPECT_EQ(floating->size(), path.bounds().size);
    anchor(*image, *floating, floatingRecord(path.bounds()), path);
    EXPECT_EQ(greatestDifference(*image, *before), 0);
}

TEST_P(Outline, AnchoredOverAnotherPictureReplacesTheInsideOnly)
{
    const auto source = photo(60, 50, 2), target = photo(60, 50, 3), before = copyOf(*target);
    const BezierPath& path = GetParam().second;
    const auto floating = liftFloatingImage(source->view(), path.bounds());
    anchor(*target, *floating, floatingRecord(path.bounds()), path);
    std::vector<std::uint8_t> cover(60 * 50);
    fillPathInMask({cover.data(), 60, 50, 60}, path, 255);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x) {
            const int c = cover[std::size_t(60 * y + x)];
            for (int k = 0; k < 4; ++k) {
                const double expected =
                    (channelOf(source->view().row(y)[x], k) * c + channelOf(before->view().row(y)[x], k) * (255 - c)) /
                    255.0;
                ASSERT_NEAR(channelOf(target->view().row(y)[x], k), expected, 0.51) << x << "," << y;
            }
        }
}

INSTANTIATE_TEST_SUITE_P(
    Floating, Outline,
    testing::Values(std::pair{"Rectangle", BezierPath::withRect(makeRect(5, 6, 31, 22))},
                    std::pair{"RectangleBetweenPixels", BezierPath::withRect(makeRect(5.4f, 6.7f, 30.3f, 21.9f))},
                    std::pair{"Oval", BezierPath::withOvalInRect(makeRect(4, 4, 41, 33))},
                    std::pair{"OvalBetweenPixels", BezierPath::withOvalInRect(makeRect(4.3f, 3.9f, 41.2f, 33.3f))},
                    std::pair{"Lasso", triangle()},
                    std::pair{"PartlyOutside", BezierPath::withRect(makeRect(-10, 30, 40, 90))},
                    std::pair{"WholeImage", BezierPath::withRect(makeRect(0, 0, 60, 50))}),
    [](const auto& row) { return std::string(row.param.first); });

TEST(Floating, TheWholeBoxIsLiftedNotOnlyTheInside)
{
    const auto image = photo(60, 50);
    const auto floating = liftFloatingImage(image->view(), makeRect(7, 8, 20, 10));
    const BitmapRep& rep = *floating->drawn();
    ASSERT_EQ(rep.pixelsWide(), 20);
    ASSERT_EQ(rep.pixelsHigh(), 10);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(rep.view().row(y)[x], image->view().row(y + 8)[x + 7]);
    EXPECT_TRUE(floating->isFlipped());
}

TEST(Floating, WhatLiesOutsideTheImageIsTransparent)
{
    const auto image = photo(10, 10);
    const auto floating = liftFloatingImage(image->view(), makeRect(-4, 7, 8, 9));
    const ConstBitmapView rep = floating->drawn()->view();
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 8; ++x)
            ASSERT_EQ(rep.row(y)[x], x >= 4 && y < 3 ? image->view().row(y + 7)[x - 4] : 0u) << x << "," << y;
    const auto nothing = liftFloatingImage(image->view(), makeRect(100, 100, 5, 5));
    ASSERT_TRUE(nothing);
    EXPECT_EQ(nothing->drawn()->view().row(2)[2], 0u);
}

TEST(Floating, NothingIsLiftedFromNoArea)
{
    const auto image = photo(10, 10);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const Rect box :
         {Rect{}, makeRect(1, 1, 0, 5), makeRect(nan, 0, 5, 5), makeRect(0, 0, nan, 5), makeRect(1e12f, 0, 5, 5)})
        EXPECT_FALSE(liftFloatingImage(image->view(), box));
}

TEST(Floating, OfAnEnormousBoxTheImagesPartIsLifted)
{
    const auto image = photo(10, 10), before = copyOf(*image);
    const Rect box = makeRect(-40000, -40000, 80000, 80000);
    const auto floating = liftFloatingImage(image->view(), box);
    ASSERT_TRUE(floating);
    EXPECT_EQ(floating->drawn()->pixelsWide(), 10);
    anchor(*image, *floating, floatingRecord(box), BezierPath::withRect(box));
    EXPECT_EQ(greatestDifference(*image, *before), 0);
}

TEST(Floating, TheRecordStartsAtTheBoxsCentre)
{
    const _ZPTransform record = floatingRecord(makeRect(10, 20, 5, 8));
    EXPECT_EQ(record.position, (Point{12.5f, 24}));
    EXPECT_EQ(record.oldPos, (Point{10, 20}));
    EXPECT_EQ(record.oldSize, (Size{5, 8}));
    EXPECT_EQ(record.scale, 1);
    EXPECT_EQ(record.rotate, 0);
    EXPECT_FALSE(record.flipH || record.flipV);
}

TEST(Floating, PlacementTurnsAboutThePositionFromXTowardsY)
{
    _ZPTransform record = floatingRecord(makeRect(0, 0, 10, 10));
    record.position = {100, 50};
    record.rotate = 90;
    record.scale = 2;
    const AffineTransform placement = floatingPlacement(record);
    EXPECT_EQ(placement.apply(Point{0, 0}), (Point{100, 50}));
    EXPECT_EQ(placement.apply(Point{5, 0}), (Point{100, 60}));
    // The same in the rule's own words: turn first, then move by the position turned back.
    const double theta = double(record.rotate) / 360 * 2 * 3.1415926535897;
    AffineTransform rule;
    rule.rotateByRadians(theta);
    rule.translate(100 * std::cos(theta) + 50 * std::sin(theta), 50 * std::cos(theta) - 100 * std::sin(theta));
    rule.scale(2, 2);
    for (const Point p : {Point{3, 4}, Point{-5, 5}}) {
        EXPECT_NEAR(placement.apply(p).x, rule.apply(p).x, 1e-4);
        EXPECT_NEAR(placement.apply(p).y, rule.apply(p).y, 1e-4);
    }
}

TEST(Floating, MovedByWholePixelsItIsAnchoredByteForByte)
{
    const auto image = photo(60, 50), before = copyOf(*image);
    BezierPath path = BezierPath::withRect(makeRect(5, 6, 20, 15));
    const auto floating = liftFloatingImage(image->view(), path.bounds());
    _ZPTransform record = floatingRecord(path.bounds());
    record.position = record.position + Point{13, 9};
    AffineTransform shift;
    shift.translate(13, 9);
    path.transform(shift);
    anchor(*image, *floating, record, path);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x) {
            const bool inside = x >= 18 && x < 38 && y >= 15 && y < 30;
            ASSERT_EQ(image->view().row(y)[x], inside ? before->view().row(y - 9)[x - 13] : before->view().row(y)[x]);
        }
}

TEST(Floating, HalfTheOpacityMixesHalfAndHalf)
{
    const auto source = photo(20, 20, 4), target = photo(20, 20, 5), before = copyOf(*target);
    const Rect box = makeRect(0, 0, 20, 20);
    const auto floating = liftFloatingImage(source->view(), box);
    anchor(*target, *floating, floatingRecord(box), BezierPath::withRect(box), 0.5f);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            for (int k = 0; k < 4; ++k)
                ASSERT_NEAR(channelOf(target->view().row(y)[x], k),
                            (channelOf(source->view().row(y)[x], k) + channelOf(before->view().row(y)[x], k)) / 2.0,
                            1.01);
}

TEST(Floating, TurnedByARightAngleItsPixelsStayExact)
{
    const auto image = photo(40, 40, 6);
    const Rect box = makeRect(10, 12, 8, 8);
    const auto floating = liftFloatingImage(image->view(), box);
    _ZPTransform record = floatingRecord(box);
    record.rotate = 90;
    const auto target = BitmapRep::create(40, 40);
    anchor(*target, *floating, record, BezierPath::withRect(box));
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            ASSERT_EQ(target->view().row(12 + y)[10 + x], image->view().row(12 + 7 - x)[10 + y]) << x << "," << y;
}

TEST(Floating, EnlargedAndTurnedItsEdgeIsTheOutlinesAlone)
{
    const auto image = BitmapRep::create(40, 40);
    for (int y = 0; y < 40; ++y) std::fill_n(image->view().row(y), 40, word(255, 10, 20, 30));
    BezierPath path = BezierPath::withRect(makeRect(10, 10, 15, 12));
    const auto floating = liftFloatingImage(image->view(), path.bounds());
    _ZPTransform record = floatingRecord(path.bounds());
    path.transform(floatingStep(record, 1.7f, 28));
    record.scale = 1.7f, record.rotate = 28;
    const auto target = BitmapRep::create(40, 40);
    anchor(*target, *floating, record, path);
    std::vector<std::uint8_t> cover(40 * 40);
    fillPathInMask({cover.data(), 40, 40, 40}, path, 255);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(channelOf(target->view().row(y)[x], 0), cover[std::size_t(40 * y + x)]) << x << "," << y;
}

TEST(Floating, StepsAreRelativeToTheRecord)
{
    const BezierPath start = BezierPath::withRect(makeRect(10, 10, 20, 10));
    _ZPTransform record = floatingRecord(start.bounds());
    BezierPath path = start;
    path.transform(floatingStep(record, 2, 0));
    EXPECT_EQ(path.bounds(), makeRect(0, 5, 40, 20));
    record.scale = 2;
    EXPECT_TRUE(floatingStep(record, 2, 0).isIdentity());
    path.transform(floatingStep(record, 2, 90));
    record.rotate = 90;
    EXPECT_EQ(path.bounds(), makeRect(10, -5, 20, 40));
    path.transform(floatingStep(record, 1, 0));
    EXPECT_EQ(path.bounds(), start.bounds());
}

TEST(Floating, AFilteredRepresentationIsDrawnInsteadAtItsOwnPixels)
{
    const auto image = photo(30, 30, 7), target = photo(30, 30, 8), filtered = photo(12, 9, 9);
    const Rect box = makeRect(4, 5, 12, 9);
    const auto floating = liftFloatingImage(image->view(), box);
    floating->add(filtered, true);
    anchor(*target, *floating, floatingRecord(box), BezierPath::withRect(box));
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 12; ++x) ASSERT_EQ(target->view().row(5 + y)[4 + x], filtered->view().row(y)[x]);
}

TEST(Floating, TwoClipsLetThroughWhatBothDo)
{
    const auto source = photo(40, 40, 10), target = photo(40, 40, 11), before = copyOf(*target);
    const Rect box = makeRect(10, 10, 20, 20);
    const auto floating = liftFloatingImage(source->view(), box);
    BitmapContext context(target->view());
    context.addClip(BezierPath::withRect(box));
    context.addClip(BezierPath::withRect(makeRect(0, 0, 18, 25)));
    drawFloating(context, *floating, floatingRecord(box), 1);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool inside = x >= 10 && x < 18 && y >= 10 && y < 25;
            ASSERT_EQ(target->view().row(y)[x], inside ? source->view().row(y)[x] : before->view().row(y)[x]);
        }
}

TEST(Floating, TheScreensPartIsThePictureThatAnchoringWrites)
{
    const auto image = photo(80, 70, 12), whole = photo(80, 70, 13);
    const BezierPath path = triangle();
    const auto floating = liftFloatingImage(image->view(), path.bounds());
    const _ZPTransform record = floatingRecord(path.bounds());
    const PixelBox shown{20, 15, 55, 44};
    const auto part = BitmapRep::create(shown.width(), shown.height());
    for (int y = 0; y < shown.height(); ++y)
        std::copy_n(whole->view().row(y + shown.y0) + shown.x0, shown.width(), part->view().row(y));
    BitmapContext context(part->view());
    AffineTransform shift;
    shift.translate(-shown.x0, -shown.y0);
    context.concat(shift);
    context.addClip(path);
    drawFloating(context, *floating, record, 0.7f);
    anchor(*whole, *floating, record, path, 0.7f);
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            ASSERT_EQ(part->view().row(y)[x], whole->view().row(y + shown.y0)[x + shown.x0]) << x << "," << y;
}

TEST(Floating, ACopyHasTheOutlinesBoxAndIsTransparentOutside)
{
    const auto image = photo(60, 60, 14);
    const BezierPath path = BezierPath::withOvalInRect(makeRect(10, 10, 30, 20));
    const auto floating = liftFloatingImage(image->view(), path.bounds());
    const auto copy = copyOfFloating(*floating, floatingRecord(path.bounds()), path, path.bounds(), 1);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->pixelsWide(), 30);
    EXPECT_EQ(copy->pixelsHigh(), 20);
    EXPECT_EQ(copy->view().row(0)[0], 0u);
    EXPECT_EQ(copy->view().row(10)[15], image->view().row(20)[25]);
}

TEST(Floating, ACopyOfATurnedPictureIsTheTurnedPicture)
{
    const auto image = photo(60, 60, 15);
    BezierPath path = BezierPath::withRect(makeRect(20, 20, 16, 10));
    const auto floating = liftFloatingImage(image->view(), path.bounds());
    _ZPTransform record = floatingRecord(path.bounds());
    path.transform(floatingStep(record, 1, 90));
    record.rotate = 90;
    const auto copy = copyOfFloating(*floating, record, path, path.bounds(), 1);
    ASSERT_TRUE(copy);
    ASSERT_EQ(copy->pixelsWide(), 10);
    ASSERT_EQ(copy->pixelsHigh(), 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 10; ++x)
            ASSERT_EQ(copy->view().row(y)[x], image->view().row(29 - x)[20 + y]) << x << "," << y;
    EXPECT_FALSE(copyOfFloating(*floating, record, path, makeRect(0, 0, 1e6f, 10), 1));
    EXPECT_FALSE(copyOfFloating(*floating, record, path, Rect{}, 1));
}

TEST(ClearInside, ErasesTheInsideAndPartOfTheEdge)
{
    const auto image = photo(20, 20, 16), before = copyOf(*image);
    clearInside(image->view(), BezierPath::withRect(makeRect(3.5f, 4, 10, 10)));
    EXPECT_EQ(image->view().row(5)[4], 0u);
    EXPECT_NEAR(channelOf(image->view().row(5)[3], 0), 127, 1);
    EXPECT_NEAR(channelOf(image->view().row(5)[13], 0), 127, 1);
    EXPECT_EQ(image->view().row(5)[14], before->view().row(5)[14]);
    EXPECT_EQ(image->view().row(3)[6], before->view().row(3)[6]);
}

TEST(Crop, TakesWholePixelsAndTruncatesTheSize)
{
    const auto image = photo(50, 50, 17);
    image->properties.xDpi = 300;
    for (const auto& [box, x, y, w, h] :
         {std::tuple{makeRect(10, 11, 20, 21), 10, 11, 20, 21}, {makeRect(10.4f, 11.6f, 20.9f, 4.2f), 10, 12, 20, 4}}) {
        const auto cropped = croppedImage(*image, box);
        ASSERT_TRUE(cropped);
        EXPECT_EQ(cropped->pixelsWide(), w);
        EXPECT_EQ(cropped->pixelsHigh(), h);
        EXPECT_EQ(cropped->properties.xDpi, 300);
        for (int v = 0; v < h; ++v)
            for (int u = 0; u < w; ++u) ASSERT_EQ(cropped->view().row(v)[u], image->view().row(v + y)[u + x]);
    }
}

TEST(Crop, BeyondTheImageIsTransparent)
{
    const auto image = photo(10, 10, 18);
    const auto cropped = croppedImage(*image, makeRect(-5, 5, 10, 10));
    ASSERT_TRUE(cropped);
    EXPECT_EQ(cropped->view().row(0)[4], 0u);
    EXPECT_EQ(cropped->view().row(0)[5], image->view().row(5)[0]);
    EXPECT_EQ(cropped->view().row(5)[5], 0u);
    EXPECT_FALSE(croppedImage(*image, makeRect(0, 0, 1e6f, 10)));
    EXPECT_FALSE(croppedImage(*image, Rect{}));
}

TEST(CleanUp, TranslucentPixelsBecomeNothing)
{
    const auto image = BitmapRep::create(5, 2);
    const std::uint32_t before[] = {word(255, 1, 2, 3), word(254, 1, 2, 3), word(0, 0, 0, 0), word(1, 1, 1, 1),
                                    word(255, 0, 0, 0)};
    const std::uint32_t after[] = {before[0], 0, 0, 0, before[4]};
    for (int y = 0; y < 2; ++y) std::copy_n(before, 5, image->view().row(y));
    clearTranslucentPixels(image->view());
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(image->view().row(y)[x], after[x]);
}

TEST(CleanUp, ExactlyOpaqueBlackBecomesNothing)
{
    const auto image = BitmapRep::create(5, 2);
    const std::uint32_t before[] = {word(255, 0, 0, 0), word(255, 0, 0, 1), word(254, 0, 0, 0), word(255, 255, 0, 255),
                                    word(255, 0, 0, 0)};
    const std::uint32_t after[] = {0, before[1], before[2], before[3], 0};
    for (int y = 0; y < 2; ++y) std::copy_n(before, 5, image->view().row(y));
    clearBlackPixels(image->view());
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(image->view().row(y)[x], after[x]);
}

// ---- pulled corners
// --------------------------------------------------------------------------------------------------

namespace
{

BezierPath polygon(std::initializer_list<Point> corners)
{
    BezierPath path;
    for (const Point p : corners) path.isEmpty() ? path.moveTo(p) : path.lineTo(p);
    path.closePath();
    return path;
}

/// Each side by that many lines.
BezierPath subdivided(std::array<Point, 4> corners, int lines)
{
    BezierPath path;
    for (std::size_t i = 0; i < 4; ++i)
        for (int k = 0; k < lines; ++k) {
            const Point a = corners[i], b = corners[(i + 1) % 4];
            const float at = float(k) / float(lines);
            const Point p{a.x + (b.x - a.x) * at, a.y + (b.y - a.y) * at};
            path.isEmpty() ? path.moveTo(p) : path.lineTo(p);
        }
    path.closePath();
    return path;
}

struct Shape {
    const char* name;
    BezierPath path;
    bool hasFour;
};
class FourCorners : public testing::TestWithParam<Shape>
{
};
TEST_P(FourCorners, AreThoseOfFourStraightSides)
{
    EXPECT_EQ(fourCorners(GetParam().path).has_value(), GetParam().hasFour);
}
INSTANTIATE_TEST_SUITE_P(
    Shapes, FourCorners,
    testing::Values(
        Shape{"rectangle", BezierPath::withRect(makeRect(1, 2, 30, 40)), true},
        Shape{"quadrangle", polygon({{10, 10}, {90, 20}, {80, 70}, {5, 60}}), true},
        Shape{"closed_by_a_click", polygon({{10, 10}, {90, 20}, {80, 70}, {5, 60}, {10, 10}}), true},
        Shape{"clicked_twice", polygon({{10, 10}, {90, 20}, {90, 20}, {80, 70}, {5, 60}}), true},
        Shape{"with_a_corner_on_a_side", polygon({{10, 10}, {50, 15.2f}, {90, 20}, {80, 70}, {5, 60}}), true},
        Shape{"with_many_on_its_sides", subdivided({Point{10, 10}, {90, 20}, {80, 70}, {5, 60}}, 5), true},
        Shape{"with_more_than_a_person_clicks", subdivided({Point{10, 10}, {90, 20}, {80, 70}, {5, 60}}, 20), false},
        Shape{"dented", polygon({{0, 0}, {100, 0}, {20, 20}, {0, 60}}), false},
        Shape{"crossing_itself", polygon({{0, 0}, {100, 60}, {100, 0}, {0, 50}}), false},
        Shape{"triangle", polygon({{10, 10}, {90, 20}, {80, 70}}), false},
        Shape{"pentagon", polygon({{10, 10}, {50, 0}, {90, 20}, {80, 70}, {5, 60}}), false},
        Shape{"oval", BezierPath::withOvalInRect(makeRect(0, 0, 30, 30)), false}, Shape{"nothing", {}, false}),
    [](const auto& test) { return std::string(test.param.name); });

BezierPath outlineOf(const std::array<Point, 4>& corners)
{
    return polygon({corners[0], corners[1], corners[2], corners[3]});
}

TEST(OwnCorners, AreTheOutlinesWhereItHasFourAndTheBoxesElsewhere)
{
    const _ZPTransform record = floatingRecord(makeRect(0, 0, 100, 60));
    const auto first = [&](const BezierPath& outline) {
        const CurvePoint p = ownCorners(record, outline)[0];
        return Point{float(p.x), float(p.y)};
    };
    EXPECT_EQ(first(BezierPath::withRect(makeRect(0, 0, 100, 60))), (Point{-50, -30}));
    EXPECT_EQ(first(BezierPath::withOvalInRect(makeRect(0, 0, 100, 60))), (Point{-50, -30}));
    EXPECT_EQ(first(polygon({{100, 60}, {0, 50}, {10, 0}, {90, 10}})), (Point{-40, -30}));
    EXPECT_EQ(first(polygon({{0, 0}, {100, 0}, {20, 20}, {0, 60}})), (Point{-50, -30})) << "dented";
}

TEST(StraighteningCorners, MakeAnyQuadrangleAnUprightRectangleOfItsMeanSides)
{
    const std::array<Point, 4> quad{Point{20, 15}, {95, 30}, {90, 82}, {12, 70}};
    std::array<Point, 4> turned = quad;
    for (int round = 0; round < 8; ++round) {
        if (round == 4) std::reverse(turned.begin(), turned.end()); // drawn the other way round
        _ZPTransform record = floatingRecord(makeRect(12, 15, 83, 67));
        const auto pulls = straighteningPulls(record, ownCorners(record, outlineOf(turned)));
        ASSERT_TRUE(pulls);
        record.corners = *pulls;
        const auto placement = pulledPlacement(record);
        ASSERT_TRUE(placement);
        const auto at = [&](Point p) {
            const Point c = record.position;
            return placement->apply(CurvePoint{double(p.x - c.x), double(p.y - c.y)});
        };
        const CurvePoint a = at(quad[0]), b = at(quad[1]), c = at(quad[2]), d = at(quad[3]);
        EXPECT_NEAR(a.y, b.y, 1e-3);
        EXPECT_NEAR(c.y, d.y, 1e-3);
        EXPECT_NEAR(a.x, d.x, 1e-3);
        EXPECT_NEAR(b.x, c.x, 1e-3);
        EXPECT_NEAR(b.x - a.x, (std::hypot(75, 15) + std::hypot(78, 12)) / 2, 1e-3);
        EXPECT_NEAR(d.y - a.y, (std::hypot(5, 52) + std::hypot(8, 55)) / 2, 1e-3);
        EXPECT_NEAR((a.x + c.x) / 2, (20 + 95 + 90 + 12) / 4.0, 1e-3);
        std::rotate(turned.begin(), turned.begin() + 1, turned.end());
    }
}

TEST(StraighteningCorners, AreRefusedForWhatCannotBeLookedAt)
{
    const _ZPTransform record = floatingRecord(makeRect(0, 0, 100, 100));
    EXPECT_FALSE(straighteningPulls(record, {CurvePoint{-50, -50}, {50, -50}, {-30, -30}, {-50, 50}})) << "dented";
    EXPECT_FALSE(straighteningPulls(record, {CurvePoint{-0.2, -50}, {0.2, -50}, {50, 50}, {-50, 50}})) << "too slanted";
}

TEST(PulledCorners, ShowAndAnchorTheSamePixels)
{
    const auto image = photo(120, 90);
    const Rect box = makeRect(20, 15, 60, 50);
    const auto lifted = liftFloatingImage(std::as_const(*image).view(), box);
    _ZPTransform record = floatingRecord(box);
    record.corners = {Point{5, 3}, {-8, 4}, {6, -5}, {0, 9}};
    const auto placement = pulledPlacement(record);
    ASSERT_TRUE(placement);
    AffineTransform back;
    back.translate(-double(record.position.x), -double(record.position.y));
    const BezierPath outline = placement->after(ProjectiveTransform(back)).apply(BezierPath::withRect(box));
    const auto whole = copyOf(*image);
    anchor(*whole, *lifted, record, outline);
    const auto copied = copyOfFloating(*lifted, record, outline, outline.bounds(), 1);
    ASSERT_TRUE(copied);
    const Rect at = integralRect(outline.bounds());
    for (int y = 0; y < copied->pixelsHigh(); ++y)
        for (int x = 0; x < copied->pixelsWide(); ++x) {
            if (copied->view().pixel(x, y)[0] != 255) continue;
            EXPECT_EQ(copied->view().row(y)[x], whole->view().row(y + int(at.origin.y))[x + int(at.origin.x)]);
        }
    // Far from the outline nothing has changed.
    EXPECT_EQ(whole->view().row(2)[2], image->view().row(2)[2]);
}

} // namespace
