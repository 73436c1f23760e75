// SPDX-License-Identifier: GPL-3.0-or-later
/// What the wand would take before it is pressed, and why it left a pixel out.
#pragma once
#include "base/PixelMemory.h"
#include "tools/TileBounds.h"
#include "tools/TileRegion.h"
#include <QString>
#include <chrono>
#include <cstdint>
#include <optional>

namespace zp
{

class Document;

/// All that decides what a press selects.
struct WandQuestion {
    PixelPoint seed;
    std::uint32_t target = 0;
    int tolerance = 0;
    bool adding = false;       ///< what is selected is a wall
    std::uint64_t outline = 0; ///< version of the selection
    std::uint64_t pixels = 0;  ///< Picture::writes()
    friend bool operator==(const WandQuestion&, const WandQuestion&) = default;
};

/// What a press of the wand at @p point (image coordinates) with @p keys held would look for; nothing where it would
/// move the selection, and outside the picture.
std::optional<WandQuestion> wandQuestion(const Document& document, Point point, std::uint32_t keys);

/// The search of that press without the press: it marks nothing, and can be done in steps. A picture of 24 megapixels
/// takes 6.5 MB of work space. Main thread; nobody may paint meanwhile.
class WandPreview
{
public:
    /// Looks over the picture, so that a search need not read where all is alike. Again after each change of the
    /// picture.
    /// @return whether it is done
    bool prepare(const Document& document, std::chrono::nanoseconds budget);
    bool isPrepared(const Document& document) const;
    /// Begins another search. @throw std::bad_alloc
    void start(const Document& document, const WandQuestion& question);
    /// Goes on with it for as long as the budget lasts, at least a little; it is over the budget by a tile at most.
    /// @return whether it is at its end
    bool goOn(std::chrono::nanoseconds budget);
    /// What was found so far.
    const TileRegion& found() const { return mFound; }

private:
    void takeNoteOf(const Document& document);
    ConstMaskView wallsOf(const Document& document);

    TileRegion mFound;
    TileBounds mTileBounds;
    bool mAllKnown = false;
    std::uint64_t mKnownWrites = 0;
    int mKnownWidth = 0, mKnownHeight = 0;
    PixelMemory mWalls;
    std::size_t mWallBytes = 0;
};

/// Whether the pixel under the point is in what the wand has just selected, and if not, why: the channel in which it
/// differs most, or that nothing connects it. Empty when the wand's press was not the last thing that selected, when it
/// took away, and when the picture has changed since.
QString wandReason(const Document& document, Point point);

/// The tolerance (slider) that a drag of the wand by @p points to the right, on screen, makes of @p before.
int toleranceOfDrag(int before, double points);

} // namespace zp
