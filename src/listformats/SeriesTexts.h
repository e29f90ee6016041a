#pragma once

#include "color/HexForm.h"
#include "host/HostColor.h"

#include <string>
#include <vector>

/// Series of colours as declarations for style sheets and design tools. Colours outside sRGB are
/// mapped into it as CSS does, and an opacity is written. Each text ends with a line break.
namespace vantorel {

struct ColorSeries {
    struct Entry {
        /// What follows the name of the series, e.g. "500"; empty for the colour of that name.
        std::string label;
        HostColor color = HostColor::blackColor();
    };

    /// The name of the series, e.g. "tomato". Names and labels must be CSS identifiers, except that
    /// labels may begin with a digit.
    std::string name;
    std::vector<Entry> entries;
};

/// Returns custom properties in a `:root` rule: "--tomato-500: #ff6347;".
[[nodiscard]] std::string customPropertiesText(const ColorSeries& series);
/// Returns SCSS variables: "$tomato-500: #ff6347;".
[[nodiscard]] std::string scssVariablesText(const ColorSeries& series);
/// Returns theme variables of Tailwind CSS 4: "--color-tomato-500: #ff6347;" in an `@theme` rule.
[[nodiscard]] std::string tailwindThemeText(const ColorSeries& series);
/// Returns a group of colour tokens as JSON (Design Tokens Community Group, format and color module
/// 2025.10).
[[nodiscard]] std::string designTokensText(const ColorSeries& series);
/// Returns a line for each colour: its hex code in the form that the user wants.
[[nodiscard]] std::string hexCodesText(const ColorSeries& series, const HexForm& form);

}  // namespace vantorel
