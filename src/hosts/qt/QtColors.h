#pragma once

#include "host/HostColor.h"
#include "host/HostInterfaceFactory.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// Between the core's values and Qt's.
namespace vantorel {

/// Channels outside 0..1 are cut; a pattern or NaN channel has no counterpart and gives an invalid
/// colour or 0.
[[nodiscard]] QColor qColorFrom(const HostColor& color);
[[nodiscard]] HostColor hostColorFrom(const QColor& color);

[[nodiscard]] QString qStringFrom(std::u16string_view text);
[[nodiscard]] std::u16string u16From(const QString& text);

/// The desktop's sans-serif face; a point of the core is `textScale()` device-independent pixels.
[[nodiscard]] QFont fontOfSize(double points);

/// The font of a control, which has 11 points where its description names no size.
[[nodiscard]] QFont fontOf(const HostControlDescription& description);

/// The palette for controls on the core's own grounds, which are light in every theme: the
/// program's where that is light, else one to match.
[[nodiscard]] QPalette paletteOnLightGround();

}  // namespace vantorel
