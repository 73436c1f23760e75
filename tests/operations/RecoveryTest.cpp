// SPDX-License-Identifier: GPL-3.0-or-later
/// What a program that crashed was working on comes back.
#include "operations/Recovery.h"
#include "support/HistoryFixture.h"
#include "undo/AlphaRLE.h"
#include "undo/SnapshotJPEG.h"
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace zp;
using namespace zp::test;

namespace
{

class Recovery : public HistoryTest
{
};

TEST_F(Recovery, WhatACrashedProgramLeftComesBackWithItsHistory)
{
    // Another program of ours: works in the folder and dies.
    const pid_t child = fork();
    if (child == 0) {
        SnapshotStore store;
        auto rep = BitmapRep::create(50, 20);
        for (int i = 0; i < 3; ++i) {
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 50; ++x) {
                    std::uint8_t* const p = rep->view().pixel(x, y);
                    p[0] = std::uint8_t(100 + i);
                    p[1] = p[2] = p[3] = std::uint8_t(40 * i);
                }
            SnapshotEncoder encoder;
            std::string error;
            store.begin(i);
            store.stage(i, SnapshotStore::Half::Alpha, encodeAlphaRLE(rep->view()), error);
            store.stage(i, SnapshotStore::Half::Colour, encoder.encode(rep->view()), error);
            store.commit(i);
            store.record({"/pictures/lost.png", 50, 20, i, i});
        }
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);

    makeImage(10, 10); // a picture opened by the launch itself comes first
    const auto left = leftPictures();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].work.imagePath, "/pictures/lost.png");
    ASSERT_TRUE(recover(*document, left[0]));
    settle();
    EXPECT_EQ(picture().path(), "/pictures/lost.png");
    EXPECT_EQ(picture().size().width, 50);
    expectNumbers(2, 2);
    expectPicture(102, 80);
    perform("undo:");
    expectPicture(101, 40);
    change(255, 200);
    expectNumbers(2, 2);
    EXPECT_TRUE(leftPictures().empty());
    EXPECT_FALSE(recover(*document, left[0]));
    expectPicture(255, 200);
}

} // namespace
