// SPDX-License-Identifier: GPL-3.0-or-later
/// Candidates raced by a coarse distance: on every vector target against one after the other, and never at the cost of
/// one that is better.
#include "smartfill/SmartFillRace.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace
{

using namespace zp;

int coarse(const CoarseDistance& distance, int a, int b) { return distance.of[std::min(std::abs(a - b), 127) / 4]; }

constexpr std::int32_t kErrors[] = {1, 2, 255, 256, 5000, 65536, 300000, 1000000, 29 * 4 * 65536};

TEST(SmartFillRace, WhoeverFallsOutIsNotBetter)
{
    std::mt19937 random(51);
    for (const std::int32_t error : kErrors) {
        const CoarseDistance distance(error);
        ASSERT_GE(distance.limit, 1);
        ASSERT_LE(distance.limit, 255);
        for (int round = 0; round < 2000; ++round) {
            std::int64_t exact = 0, roughly = 0;
            for (int i = 0, count = 1 + int(random() % 90); i < count; ++i) {
                const int a = test::extremeByte(random), b = random() % 2 ? a + int(random() % 9) : int(random() % 256);
                exact += robustDistanceTable()[std::abs(a - b) & 255];
                roughly += coarse(distance, 0, std::abs(a - b) & 255);
            }
            if (roughly >= distance.limit) {
                ASSERT_GE(exact, error);
            }
        }
    }
}

TEST(SmartFillRace, StreamsKeepWhatIsBelowTheLimit)
{
    test::onEveryTarget([] {
        std::mt19937 random(52);
        constexpr std::size_t kBytes = kRandomTries + 64;
        std::vector<std::int32_t> place(kRandomTries);
        std::iota(place.begin(), place.end(), 1000);
        for (const std::int32_t error : kErrors)
            for (const int count : {1, 3, DrawnSources::kAround}) {
                const CoarseDistance distance(error);
                NeighbourStreams streams;
                streams.count = count;
                streams.channels = 1 + int(random() % 4);
                std::vector<std::vector<std::uint8_t>> bytes;
                for (int k = 0; k < count; ++k)
                    for (int c = 0; c < streams.channels; ++c) {
                        auto& stream = bytes.emplace_back(test::extremeBytes(random, kBytes));
                        streams.value[k][c] = test::extremeByte(random);
                        // Some tries are close.
                        for (std::size_t i = 0; i < kBytes; ++i)
                            if (i % 7 < 2) stream[i] = std::uint8_t(streams.value[k][c] ^ (random() % 4));
                    }
                for (int k = 0, i = 0; k < count; ++k)
                    for (int c = 0; c < streams.channels; ++c) streams.bytes[k][c] = bytes[std::size_t(i++)].data();
                Contenders contenders;
                const int depth = raceStreams(streams, distance, place.data(), contenders);

                std::vector<std::int32_t> wantPlace, wantError;
                int wantDepth = 0;
                for (std::vector<int> sums(kRandomTries); wantDepth < count;) {
                    wantPlace.clear(), wantError.clear();
                    for (std::size_t i = 0; i < kRandomTries; ++i) {
                        for (int c = 0; c < streams.channels; ++c)
                            sums[i] = std::min(255, sums[i] + coarse(distance, streams.bytes[wantDepth][c][i],
                                                                     streams.value[wantDepth][c]));
                        if (sums[i] >= distance.limit) continue;
                        wantPlace.push_back(place[i]);
                        wantError.push_back(sums[i]);
                    }
                    ++wantDepth;
                    if (wantPlace.size() <= kFewContenders) break;
                }
                ASSERT_EQ(depth, wantDepth);
                ASSERT_EQ(std::vector(contenders.place, contenders.place + contenders.count), wantPlace);
                ASSERT_EQ(std::vector(contenders.error, contenders.error + contenders.count), wantError);
            }
    });
}

TEST(SmartFillRace, PairsOfNeighboursDropThoseAtTheLimitUntilFewAreLeft)
{
    test::onEveryTarget([] {
        std::mt19937 random(53);
        constexpr int kMost = 7;
        const auto pixels = test::extremePixels(random, 500 + kMost);
        std::vector<std::uint32_t> value;
        for (int k = 0; k < kMost; ++k) value.push_back(pixels[random() % 500]);
        const std::vector<std::int32_t> delta{3, 0, 5, 1, 6, 2, 4};
        for (const std::int32_t error : kErrors)
            for (const int count : {1, 3, 7, 16, 33, kRandomTries})
                for (const auto& [first, end] : {std::pair{0, 1}, {0, 2}, {1, 4}, {0, kMost}}) {
                    const CoarseDistance distance(error);
                    Contenders contenders;
                    contenders.count = count;
                    std::vector<std::int32_t> wantPlace, wantError;
                    for (int i = 0; i < count; ++i) {
                        wantPlace.push_back(std::int32_t(random() % 500));
                        wantError.push_back(std::int32_t(random() % unsigned(distance.limit)));
                    }
                    std::copy(wantPlace.begin(), wantPlace.end(), contenders.place);
                    std::copy(wantError.begin(), wantError.end(), contenders.error);
                    for (int k = first; k + 1 < end && wantPlace.size() > kFewContenders; k += 2) {
                        std::vector<std::int32_t> places, errors;
                        for (std::size_t i = 0; i < wantPlace.size(); ++i) {
                            int sum = wantError[i];
                            for (const int j : {k, k + 1})
                                for (int shift = 0; shift < 32; shift += 8)
                                    sum +=
                                        coarse(distance,
                                               pixels[std::size_t(wantPlace[i] + delta[std::size_t(j)])] >> shift & 255,
                                               value[std::size_t(j)] >> shift & 255);
                            if (sum >= distance.limit) continue;
                            places.push_back(wantPlace[i]);
                            errors.push_back(sum);
                        }
                        wantPlace = places, wantError = errors;
                    }
                    raceOn({pixels.data(), delta.data(), value.data(), first, end}, distance, contenders);
                    ASSERT_EQ(std::vector(contenders.place, contenders.place + contenders.count), wantPlace);
                    ASSERT_EQ(std::vector(contenders.error, contenders.error + contenders.count), wantError);
                }
    });
}

} // namespace
