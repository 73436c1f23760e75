// SPDX-License-Identifier: GPL-3.0-or-later
/// What a program that crashed was working on comes back.
#include "operations/Recovery.h"
#include "support/AlertWatch.h"
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
protected:
    /// Another program of ours works in the folder and dies.
    static void leaveWork(int steps)
    {
        const pid_t child = fork();
        if (child == 0) {
            SnapshotStore store;
            auto rep = BitmapRep::create(50, 20);
            for (int i = 0; i < steps; ++i) {
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
    }
};

TEST_F(Recovery, WhatACrashedProgramLeftComesBackWithItsHistory)
{
    leaveWork(3);
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
    AlertWatch watch;
    EXPECT_FALSE(recover(*document, left[0]));
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].message, "Its steps are gone from the folder of temporary files.");
    expectPicture(255, 200);
}

TEST_F(Recovery, WhatCannotBeReadIsLeftForTheNextStart)
{
    leaveWork(2);
    makeImage(10, 10);
    change(255, 100);
    change(255, 200);
    const auto left = leftPictures();
    ASSERT_EQ(left.size(), 1u);
    ASSERT_EQ(left[0].work.number, 1);
    // Whole when it was looked for, unreadable when it is needed.
    const auto colours = std::filesystem::path(left[0].folder) / left[0].name / "C_1.jpg";
    const Bytes whole = bytes(colours);
    std::filesystem::resize_file(colours, 20);
    AlertWatch watch;
    EXPECT_FALSE(recover(*document, left[0]));
    settle();
    ASSERT_EQ(watch.seen.size(), 1u);
    EXPECT_EQ(watch.seen[0].title, "The image could not be brought back.");
    EXPECT_EQ(watch.seen[0].message, "Its steps could not be read. It will be offered again at the next start.");
    // What was there is there, with its steps.
    EXPECT_EQ(picture().size().width, 10);
    expectPicture(255, 200);
    perform("undo:");
    expectPicture(255, 100);

    canvas.reset();
    document.reset(); // the program quits
    SnapshotStore::shared().remove();
    ASSERT_EQ(leftPictures().size(), 1u);
    const auto there = std::filesystem::path(leftPictures()[0].folder) / leftPictures()[0].name / "C_1.jpg";
    std::ofstream(there, std::ios::binary).write(reinterpret_cast<const char*>(whole.data()), long(whole.size()));
    const auto again = leftPictures(); // readable again
    ASSERT_EQ(again.size(), 1u);
    EXPECT_EQ(again[0].work.imagePath, "/pictures/lost.png");
    EXPECT_EQ(again[0].work.number, 1);
    discard(again[0]);
    EXPECT_TRUE(leftPictures().empty());
}

} // namespace
