// SPDX-License-Identifier: GPL-3.0-or-later
/// How the command reaches the smart fill window, which stands above the operations.
#pragma once
#include "base/BitmapView.h"
#include "base/Geometry.h"
#include <functional>

namespace zp
{

class Document;

/// Takes the document, its mask (255 inside, valid during the call only) and the selection's bounds in image pixels.
/// Called inside the gate: it copies the mask and shows a window, and runs no events.
using SmartFillHook = std::function<void(Document&, ConstMaskView, Rect)>;

/// Registered once by the application; until then the command only beeps.
void setSmartFillHook(SmartFillHook hook);

} // namespace zp
