// SPDX-License-Identifier: GPL-3.0-or-later
/// The boundary around all events: whatever runs out inside one is said, and the program goes on.
#pragma once
#include <QApplication>

namespace zp
{

/// An event whose handling ends by an exception leaves it here: the person is told that there is not enough memory, or
/// threads, and the loop takes the next event. What the handler began is its own to take back; the document's gate
/// does. A window behind one that asks hands the keyboard on to it.
class Application : public QApplication
{
public:
    Application(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace zp
