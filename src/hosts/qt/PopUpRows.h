#pragma once

#include "hosts/qt/TextScale.h"

#include <QFontMetrics>

#include <algorithm>

namespace vantorel {

/// The height of the rows of every pop-up, in device-independent pixels: in lists and in menus,
/// with pictures or without.
[[nodiscard]] inline int popUpRowHeight(const QFontMetrics& metrics)
{
    constexpr double smallestContent = 16;
    constexpr int padding = 3;
    return std::max(metrics.height(), scaled(smallestContent)) + 2 * padding;
}

}  // namespace vantorel
