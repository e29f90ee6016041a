#pragma once

#include "cli/Output.h"
#include "colortext/ColorTextReader.h"

#include <string>
#include <vector>

namespace vantorel {

/// Writes the output for a colour. `isLine` is true for a colour from a line of standard input.
class ColorWriter {
public:
    virtual ~ColorWriter() = default;
    virtual void write(Output& output, const ByteColor& color, bool isLine) = 0;
};

/// Reads colours from the arguments and passes them to a writer. The argument "-", or an empty list
/// of arguments, reads the lines of standard input. Texts that are not colours are reported on
/// standard error and skipped. Returns false if there were any.
[[nodiscard]] bool writeColors(const std::vector<std::string>& arguments, ColorTextReader& reader,
                               ColorWriter& writer, Output& output);

}  // namespace vantorel
