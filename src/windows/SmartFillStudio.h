// SPDX-License-Identifier: GPL-3.0-or-later
/// The part of the smart fill window that tries fills out: previews over the picture, the last results to choose from,
/// and where colours are taken from.
#pragma once
#include "base/Geometry.h"
#include "smartfill/SmartFillSources.h"
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <array>
#include <deque>
#include <memory>

class QAbstractButton;
class QLabel;
class QToolButton;
namespace zp
{
class Document;
struct Preview;
} // namespace zp
namespace Ui
{
class SmartFill;
}

/// What a filled picture would leave in its document: the hole's pixels, or the blocks of a faster fill.
zp::Preview previewOfFill(const zp::SmartFillPicture& filled, const zp::SmartFillArea& area);

/// Of one window, whose widgets it looks after; nothing it does touches the picture. Main thread.
class SmartFillStudio : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t kResults = 4;

    explicit SmartFillStudio(Ui::SmartFill& ui);

    /// The window opens for another hole: no results, and colours from anywhere.
    void begin(zp::Document& document);
    /// The window closes, or something else is done with the picture: nothing is shown over it, results are forgotten.
    void end();
    /// Nothing is shown over the picture; the results stay to be chosen.
    void hide();
    void setIdle(bool idle);

    const zp::SmartFillSources& sources() const { return mSources; }
    /// The result that is shown over the picture; null when none is.
    std::shared_ptr<const zp::Preview> shown() const;
    /// The newest result, when it was made with the settings as they are, is shown. @return whether there is one
    bool showNewest();
    /// What the next result is made with: @p first, or what follows on the newest one.
    std::uint64_t nextSeed(std::uint64_t first) const;
    /// Another result, which is shown; the oldest makes room for it.
    /// @param lines  of a script that makes the same
    void add(const zp::SmartFillPicture& filled, const zp::SmartFillArea& area, std::uint64_t seed, QStringList lines);
    /// Those of the result that is this preview.
    QStringList linesOf(const zp::Preview& preview) const;

private:
    struct Result {
        std::shared_ptr<const zp::Preview> preview;
        std::uint64_t seed = 0;
        QStringList lines;
    };

    void settingsChanged();
    void choose(std::size_t index);
    void showResults();
    void mark(QAbstractButton& button, QLabel& label, zp::MarkedPixels& marked, const QString& none);

    Ui::SmartFill& mUi;
    std::array<QToolButton*, kResults> mButtons{};
    QPointer<zp::Document> mDocument;
    std::deque<Result> mResults; ///< newest first
    bool mNewestIsOfSettings = false;
    zp::SmartFillSources mSources;
};
