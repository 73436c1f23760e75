// SPDX-License-Identifier: GPL-3.0-or-later
/// What a screen reader is told of widgets that the toolkit does not know: the picture and the two tool bars.
#pragma once

class MainWindow;
class QWidget;

/// Once, before the first window: the picture is a graphic with a value, tool bars are tool bars.
void installAccessibleWidgets();
/// The widget is a tool bar for screen readers.
void makeAccessibleToolBar(QWidget& bar);
/// A command may have said what it did: those who listen to the screen are told once. Costs nothing when nobody does.
void announceMessage(QWidget& canvas);
/// Size, zoom, tool or selection may be others now; told when they are. Costs nothing when nobody listens.
void announceValue(QWidget& canvas);
