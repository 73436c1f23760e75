// SPDX-License-Identifier: GPL-3.0-or-later
/// A document with the program's own commands and a canvas over it, for tests that go through the gate.
#pragma once
#include "app/CommandTable.h"
#include "canvas/ZPCanvas.h"
#include "document/Document.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <gtest/gtest.h>
#include <memory>
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

/// The words of a pixel as stored: alpha, red, green, blue in memory.
inline std::uint32_t word(std::uint8_t a, std::uint8_t r, std::uint8_t g, std::uint8_t b)
{
    return std::uint32_t(a) | std::uint32_t(r) << 8 | std::uint32_t(g) << 16 | std::uint32_t(b) << 24;
}

class DocumentTest : public testing::Test
{
protected:
    /// @param strokeCapacity  points a brush stroke can have
    explicit DocumentTest(std::uint32_t strokeCapacity = BrushStroke::kCapacity)
        : document(std::make_unique<Document>(commandTable(), strokeCapacity)),
          canvas(std::make_unique<ZPCanvas>(*document))
    {
    }
    ~DocumentTest() override
    {
        if (document) settle();
        canvas.reset();
    }

    /// A new image; its first step is written before this returns.
    void makeImage(int width, int height)
    {
        perform("newImageWithSize:", {{double(width), double(height)}, {}});
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

    // ---- looking ---------------------------------------------------------------------------------------------------
    const Picture& picture() const { return document->picture(); }
    const Selection& selection() const { return document->selection(); }
    const Gesture& gesture() const { return document->gesture(); }
    const History& history() const { return document->history(); }
    const Paint& paint() const { return document->paint(); }
    const BezierPath* outline() const { return document->selection().outline(); }
    const Floating* floating() const { return document->selection().floating(); }
    const _ZPTransform& record() const { return document->selection().record(); }
    std::uint32_t pixel(int x, int y) const { return picture().pixels().row(y)[x]; }
    std::uint8_t mask(int x, int y) const { return selection().mask().at(x, y); }

    // ---- setting up --------------------------------------------------------------------------------------------------
    void setPixel(int x, int y, std::uint32_t w)
    {
        edit([&](Edit& e) { e.write({x, y, x + 1, y + 1}).row(y)[x] = w; });
    }
    void fillImage(std::uint32_t w)
    {
        edit([&](Edit& e) {
            const BitmapView v = e.writeAll();
            for (int y = 0; y < v.height; ++y) std::fill_n(v.row(y), v.width, w);
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
    void select(BezierPath path)
    {
        edit([&](Edit& e) { e.selection().select(std::move(path)); });
    }
    void select(Rect r) { select(BezierPath::withRect(r)); }
    void dropSelection()
    {
        edit([](Edit& e) { e.selection().drop(); });
    }

    std::unique_ptr<Document> document;
    std::unique_ptr<ZPCanvas> canvas;
};

} // namespace zp::test
