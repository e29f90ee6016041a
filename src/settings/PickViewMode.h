#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantorel {

/// The mode of the colours view. The numbers are fixed. Any other value may be stored; it is drawn
/// as the wheel but named "Slider".
enum class PickViewMode : std::int32_t { slider = 124, palette = 125, wheel = 126 };

/// Returns "Slider" for every value other than palette and wheel.
[[nodiscard]] std::u16string stringFromPickViewMode(PickViewMode mode);
/// Returns slider for an unknown name.
[[nodiscard]] PickViewMode pickViewModeFromString(std::u16string_view name);

}  // namespace vantorel
