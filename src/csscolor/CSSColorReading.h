#pragma once

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSParser.h"

#include <optional>

/// The readers of the forms of colours, for each other. Each begins at the parser's token and ends
/// at the token after the colour.
namespace vantorel {

struct CSSColorFunction;

struct CSSColorReading {
    CSSColorValue value;
    CSSColorForm form = CSSColorForm::named;
    /// Whether the colour is in sRGB by definition, so that its channels are clamped instead of
    /// mapped. Relative and mixed colours are not.
    bool isSRGB = true;
};

/// Reads a colour of any form, except for hex codes without "#".
[[nodiscard]] std::optional<CSSColorReading> readColor(CSSParser& parser, CSSTheme theme);

/// Reads rgb(), hsl(), ... color(), with values or relative to another colour.
[[nodiscard]] std::optional<CSSColorReading> readColorFunction(CSSParser& parser, CSSTheme theme,
                                                               const CSSColorFunction& function);

/// Reads color-mix() (CSS Color 5, section 3).
[[nodiscard]] std::optional<CSSColorReading> readColorMix(CSSParser& parser, CSSTheme theme);

/// Reads light-dark() (CSS Color 5, section 7).
[[nodiscard]] std::optional<CSSColorReading> readLightDark(CSSParser& parser, CSSTheme theme);

}  // namespace vantorel
