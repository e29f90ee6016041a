#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// Converts between the core's values and Qt's.
namespace vantorel {

class HostColor;
struct HostControlDescription;
struct HostText;

/// Channels are clamped to 0..1. A pattern gives an invalid colour, a NaN channel 0.
[[nodiscard]] QColor qColorFrom(const HostColor& color);
[[nodiscard]] HostColor hostColorFrom(const QColor& color);

[[nodiscard]] QString qStringFrom(std::u16string_view text);
[[nodiscard]] std::u16string u16From(const QString& text);

/// The desktop's sans-serif font. A point of the core is `textScale()` device-independent pixels.
[[nodiscard]] QFont fontOfSize(double points);
/// The font in which a text is measured and drawn.
[[nodiscard]] QFont fontOf(const HostText& text);

/// The font of a control: 11 points unless its description has a size.
[[nodiscard]] QFont fontOf(const HostControlDescription& description);

/// The palette for what lies on a ground that a page paints itself (`HostView::groundColor`): the
/// program's palette unless it is made for the opposite, dark or light; then one of the ground's.
[[nodiscard]] QPalette paletteOnGround(const std::optional<HostColor>& groundColor);

}  // namespace vantorel
