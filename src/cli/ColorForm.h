#pragma once

#include "cli/Output.h"
#include "csscolor/CSSColorReader.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Writes colours in a form of `--to`, one per line, each after its patch on a terminal that shows
/// patches. A form that holds only sRGB gets other colours as CSS maps them.
class ColorFormWriter {
public:
    /// Without a form, hex codes are written.
    explicit ColorFormWriter(const std::optional<std::string>& form);

    /// Writes a colour as it was read. `end` is written before the line feed.
    void write(Output& output, const CSSColor& color, std::string_view end = {}) const;
    /// Writes a computed colour.
    void write(Output& output, const CSSColorValue& color, std::string_view end = {}) const;

private:
    std::string _form;
    /// The space of a form that can hold colours outside sRGB.
    std::optional<ColorSpace> _wideSpace;
    bool _showsSwatches;
};

}  // namespace vantorel
