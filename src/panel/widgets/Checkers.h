#pragma once

#include "host/HostColor.h"

#include <QPainter>
#include <QString>

/// Colours with an opacity, shown by panel and pages alike.
namespace vantorel {

/// Fills a place with the squares on which an opacity can be seen.
void paintCheckers(QPainter& painter, const QRect& place);

/// Returns "#FF8000", or "#FF8000, 50 %" unless the colour is opaque in 8 bits.
[[nodiscard]] QString codeWithOpacity(const HostColor& color);

}  // namespace vantorel
