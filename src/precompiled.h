// SPDX-License-Identifier: GPL-3.0-or-later
/// Headers that change never and cost most, compiled once for all targets that hold widgets.
#pragma once
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>
