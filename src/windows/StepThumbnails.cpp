// SPDX-License-Identifier: GPL-3.0-or-later
/// Decoding the pair of a step at a fraction of its size.
#include "windows/StepThumbnails.h"
#include "undo/AlphaRLE.h"
#include "undo/SnapshotStore.h"
#include <QBuffer>
#include <QImageReader>
#include <algorithm>

using namespace zp;

namespace
{

/// Null when a half is missing or damaged.
QImage thumbnail(std::int32_t number, int side)
try {
    SnapshotStore& store = SnapshotStore::shared();
    const auto colour = store.read(number, SnapshotStore::Half::Colour);
    const auto alpha = colour ? store.read(number, SnapshotStore::Half::Alpha) : std::nullopt;
    if (!alpha) return {};
    QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(colour->data()), qsizetype(colour->size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    const QSize whole = reader.size();
    if (whole.isEmpty()) return {};
    reader.setScaledSize(whole.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}).boundedTo(whole));
    QImage image = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {};
    const int step = std::max(1, std::max(whole.width(), whole.height()) / (2 * side));
    const std::vector<std::uint8_t> samples = sampleAlphaRLE(*alpha, whole.width(), whole.height(), step);
    const int columns = (whole.width() + step - 1) / step, rows = (whole.height() + step - 1) / step;
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const std::uint8_t* const row = samples.data() + std::ptrdiff_t(y) * rows / image.height() * columns;
        for (int x = 0; x < image.width(); ++x) {
            // The colour file holds colours multiplied by their alpha; what its losses add beyond is cut.
            const int a = row[std::ptrdiff_t(x) * columns / image.width()];
            line[x] = qRgba(std::min(qRed(line[x]), a), std::min(qGreen(line[x]), a), std::min(qBlue(line[x]), a), a);
        }
    }
    return image;
} catch (const std::bad_alloc&) {
    return {};
}

} // namespace

StepThumbnails::StepThumbnails(int side, QObject* parent)
    : QObject(parent),
      mWorker([side](const Wish& wish, const auto&) { return thumbnail(wish.number, side); },
              [this](QImage image) { keep(std::move(image)); })
{
}

QImage StepThumbnails::of(std::int32_t number, std::int64_t time)
{
    const Wish wish{number, time};
    if (const auto made = mMade.find(wish); made != mMade.end()) return made->second;
    if (!isIdle() && mMaking == wish) return {};
    std::erase(mWishes, wish);
    mWishes.push_back(wish);
    if (isIdle()) next();
    return {};
}

void StepThumbnails::clear()
{
    mMade.clear();
    mWishes.clear();
    mWorker.forget();
}

void StepThumbnails::next()
{
    mMaking = mWishes.back();
    mWishes.pop_back();
    if (!mWorker.ask(mMaking)) mWishes.clear(); // the list does without; the next look tries again
}

void StepThumbnails::keep(QImage image)
{
    mMade[mMaking] = std::move(image);
    if (!mWishes.empty()) next();
    if (isIdle()) emit made();
}
