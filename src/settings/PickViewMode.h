#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantorel {

/// The mode of the colours view. The numbers are fixed; any other value may be stored, and is drawn
/// as the wheel but named "Slider".
enum class PickViewMode : std::int32_t { slider = 124, palette = 125, wheel = 126 };

/// "Slider" for every value that is neither palette nor wheel.
[[nodiscard]] std::u16string stringFromPickViewMode(PickViewMode mode);
/// Slider for an unknown name.
[[nodiscard]] PickViewMode pickViewModeFromString(std::u16string_view name);

}  // namespace vantorel
