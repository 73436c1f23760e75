// SPDX-License-Identifier: GPL-3.0-or-later
/// What the person should know and need not answer: sentences in a line, of which the first is on show.
#pragma once
#include <QString>
#include <deque>

namespace zp
{

struct Notice {
    QString text;           ///< one sentence or two
    QString button = {};    ///< the title of what it offers; empty: it can only be closed
    QString action = {};    ///< the menu command behind that button
    bool ofPicture = false; ///< about the file that was opened: it goes when another picture comes
};

/// Main thread.
class Notices
{
public:
    /// The one on show; null for none.
    const Notice* front() const { return mLine.empty() ? nullptr : &mLine.front(); }

    /// @return whether another one is on show now. A sentence that waits already is not said twice.
    bool add(Notice notice);
    void closeFront();
    /// Another picture: what was about the old one is of no use any more.
    void dropThoseOfPicture();

private:
    std::deque<Notice> mLine;
};

} // namespace zp
