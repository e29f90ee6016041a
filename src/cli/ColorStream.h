#pragma once

#include "cli/Output.h"
#include "colortext/ColorTextReader.h"

#include <string>
#include <vector>

namespace vantorel {

/// Writes what is told of a colour. `isLine` says that it came as a line of standard input.
class ColorWriter {
public:
    virtual ~ColorWriter() = default;
    virtual void write(Output& output, const ByteColor& color, bool isLine) = 0;
};

/// Reads the colours of the arguments and hands them to a writer. "-" stands for the lines of
/// standard input, and so do no arguments at all. What is no colour is told on standard error, and
/// the rest goes on; then the result is false.
[[nodiscard]] bool writeColors(const std::vector<std::string>& arguments, ColorTextReader& reader,
                               ColorWriter& writer, Output& output);

}  // namespace vantorel
