// SPDX-License-Identifier: GPL-3.0-or-later
/// A document with the program's own commands and a canvas over it, for tests that go through the gate.
#pragma once
#include "app/CommandTable.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "codecs/TestPictures.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/Shelf.h"
#include "document/View.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>

namespace zp::test
{

/// Handles events until @p done or the time is over. @return done
template <class F>
bool eventually(F&& done, int milliseconds = 20'000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > milliseconds) return false;
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

inline constexpr std::uint32_t kWhiteWord = word(255, 255, 255, 255), kBlackWord = word(255, 0, 0, 0),
                               kRedWord = word(255, 255, 0, 0);

using Lines = std::vector<std::string>;
inline bool has(const Lines& lines, const std::string& line) { return std::ranges::count(lines, line) > 0; }

class DocumentTest : public testing::Test
{
protected:
    /// @param strokeCapacity  points a brush stroke can have
    explicit DocumentTest(std::uint32_t strokeCapacity = BrushStroke::kCapacity)
        : document(std::make_unique<Document>(commandTable(), strokeCapacity)),
          canvas(std::make_unique<ZPCanvas>(*document))
    {
        hold(0);
    }
    ~DocumentTest() override
    {
        if (document) settle();
        canvas.reset();
        setScriptedKeyModifiers(std::nullopt);
    }

    /// A new image; its first step is written before this returns.
    void makeImage(int width, int height)
    {
        performNumbers("newImageWithSize:", {double(width), double(height)});
        perform("setImagePath:");
        settle();
    }
    /// No worker at work, no timer pending.
    void settle()
    {
        const auto quiet = [this] { return !document->anyWorkerRunning() && !document->firstStepPending(); };
        for (int round = 0; round < 2; ++round) {
            ASSERT_TRUE(eventually(quiet)) << "workers never came to rest";
            QApplication::processEvents();
        }
    }

    Outcome perform(std::string_view action, const Arguments& arguments = {})
    {
        return document->perform(action, arguments);
    }
    Outcome performPath(std::string_view action, const std::string& path) { return perform(action, {{}, path}); }
    Outcome performNumbers(std::string_view action, std::vector<double> numbers)
    {
        return perform(action, {std::move(numbers), {}});
    }
    /// Changes the document as a command without a step would, through its own transitions.
    Outcome edit(const std::function<void(Edit&)>& body)
    {
        static constexpr Command kTest{.action = "test", .effect = Effect::Paint};
        return document->perform(kTest, body);
    }
    bool allows(const char* action) { return document->allows(*document->menuCommand(action)); }
    void hold(std::uint32_t keys) { setScriptedKeyModifiers(keys); }

    // ---- looking ---------------------------------------------------------------------------------------------------
    const Picture& picture() const { return document->picture(); }
    const zp::Selection& selection() const { return document->selection(); }
    const zp::Gesture& gesture() const { return document->gesture(); }
    const History& history() const { return document->history(); }
    const Paint& paint() const { return document->paint(); }
    const BezierPath* outline() const { return document->selection().outline(); }
    /// Bounds of the outline; a rectangle that no outline has when there is none.
    Rect outlineBounds() const { return outline() ? outline()->bounds() : makeRect(-1, -1, -1, -1); }
    const Floating* floating() const { return document->selection().floating(); }
    const _ZPTransform& record() const { return document->selection().record(); }
    std::uint32_t pixel(int x, int y) const { return picture().pixels().row(y)[x]; }
    std::vector<std::uint32_t> allPixels() const
    {
        const ConstBitmapView v = picture().pixels();
        std::vector<std::uint32_t> all;
        for (int y = 0; y < v.height; ++y) all.insert(all.end(), v.row(y), v.row(y) + v.width);
        return all;
    }
    std::size_t countPixels(std::uint32_t value) const { return std::size_t(std::ranges::count(allPixels(), value)); }
    /// All pixels: the alpha exactly, the colours as far as a step keeps them.
    void expectPicture(int alpha, int grey) const
    {
        for (const std::uint32_t w : allPixels()) {
            ASSERT_EQ(channelOf(w, 0), alpha);
            for (int c = 1; c < 4; ++c) ASSERT_NEAR(channelOf(w, c), grey, 3);
        }
    }
    std::uint8_t mask(int x, int y) const { return selection().mask().at(x, y); }
    std::size_t countMask(std::uint8_t value) const
    {
        std::size_t count = 0;
        for (int y = 0; y < selection().mask().height(); ++y)
            for (int x = 0; x < selection().mask().width(); ++x) count += mask(x, y) == value;
        return count;
    }
    void expectNumbers(int position, int newest) const
    {
        EXPECT_EQ(history().position(), position);
        EXPECT_EQ(history().newest(), newest);
    }

    // ---- setting up -----------------------------------------------------------------------------------------------
    void setPixel(int x, int y, std::uint32_t w)
    {
        edit([&](Edit& e) { e.write({x, y, x + 1, y + 1}).row(y)[x] = w; });
    }
    void fillImage(std::uint32_t w)
    {
        paintImage([w](int, int) { return w; });
    }
    void fillBox(PixelBox box, std::uint32_t w)
    {
        edit([&](Edit& e) {
            const BitmapView v = e.write(box);
            for (int y = box.y0; y < box.y1; ++y) std::fill(v.row(y) + box.x0, v.row(y) + box.x1, w);
        });
    }
    /// Calls @p set(x, y) for every pixel's word.
    template <class F>
    void paintImage(F&& set)
    {
        edit([&](Edit& e) {
            const BitmapView v = e.writeAll();
            for (int y = 0; y < v.height; ++y)
                for (int x = 0; x < v.width; ++x) v.row(y)[x] = set(x, y);
        });
    }
    /// Opaque pixels of any colour.
    void paintNoise(unsigned seed = 1)
    {
        std::mt19937 random(seed);
        paintImage([&random](int, int) { return std::uint32_t(random()) | 255u; });
    }
    /// The outline alone; its mask is rendered when somebody needs it.
    void select(BezierPath path)
    {
        edit([&](Edit& e) { e.selection().select(std::move(path)); });
    }
    void select(Rect r) { select(BezierPath::withRect(r)); }
    void renderMask()
    {
        edit([](Edit& e) { e.selection().renderedMask(); });
    }
    void dropSelection()
    {
        edit([](Edit& e) { e.selection().drop(); });
    }
    /// What is selected floats, without the sound.
    void lift()
    {
        edit([](Edit& e) { ASSERT_TRUE(e.selection().lift(e.picture())); });
    }

    /// A red piece floats at @p box as after a paste, or a paste into what is selected.
    void placePiece(Rect box, bool into = false)
    {
        edit([box, into](Edit& e) {
            auto image = std::make_shared<Image>(box.size);
            image->setFlipped(true);
            image->add(zp::test::picture(int(box.size.width), int(box.size.height), kRedWord));
            e.selection().place(std::move(image), box, into);
        });
    }

    std::unique_ptr<Document> document;
    std::unique_ptr<ZPCanvas> canvas;
};

} // namespace zp::test
