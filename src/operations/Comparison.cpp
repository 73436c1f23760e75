// SPDX-License-Identifier: GPL-3.0-or-later
/// Reads the step and shows it.
#include "operations/Comparison.h"
#include "base/BitmapRep.h"
#include "document/Document.h"
#include "document/History.h"
#include "document/Picture.h"
#include "document/View.h"
#include <QCoreApplication>
#include <algorithm>
#include <new>

namespace zp
{

namespace
{

struct CompareTexts {
    Q_DECLARE_TR_FUNCTIONS(Compare)
};

} // namespace

bool startComparison(Document& document, CompareTo to)
{
    if (!document.picture().isLoaded()) return false;
    document.endGesture();
    document.waitForWorkers();
    const History& history = document.history();
    const std::int32_t now = std::max(history.position(), 0);
    std::int32_t number = 0;
    QString before = CompareTexts::tr("as opened");
    if (to == CompareTo::Saved) {
        number = history.saved();
        before = CompareTexts::tr("as last saved");
    } else if (to == CompareTo::LastStep) {
        number = std::max(now - 1, 0);
        before = CompareTexts::tr("before the last step");
    } else if (to == CompareTo::Step) {
        number = now;
        before = CompareTexts::tr("before");
    }
    std::shared_ptr<BitmapRep> pixels;
    try {
        pixels = history.pixelsOf(number);
    } catch (const std::bad_alloc&) {
        document.say(CompareTexts::tr("There is not enough memory."));
        return false;
    }
    if (!pixels) {
        document.say(CompareTexts::tr("That state of the image cannot be read any more."));
        return false;
    }
    if (!document.compareWith(std::move(pixels))) {
        document.say(CompareTexts::tr("The image had another size then."));
        return false;
    }
    document.say(CompareTexts::tr("Left of the pointer: %1").arg(before));
    return true;
}

void endComparison(Document& document)
{
    if (!document.view().compared()) return;
    document.compareWith(nullptr);
    document.say({});
}

} // namespace zp
