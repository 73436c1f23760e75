// SPDX-License-Identifier: GPL-3.0-or-later
/// The line of sentences.
#include "document/Notices.h"
#include <algorithm>

namespace zp
{

bool Notices::add(Notice notice)
{
    const auto isSame = [&notice](const Notice& other) { return other.text == notice.text; };
    if (notice.text.isEmpty() || std::ranges::any_of(mLine, isSame)) return false;
    mLine.push_back(std::move(notice));
    return mLine.size() == 1;
}

void Notices::closeFront()
{
    if (!mLine.empty()) mLine.pop_front();
}

void Notices::dropThoseOfPicture()
{
    std::erase_if(mLine, [](const Notice& notice) { return notice.ofPicture; });
}

} // namespace zp
