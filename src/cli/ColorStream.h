#pragma once

#include "cli/Output.h"
#include "colortext/ColorTextReader.h"
#include "result/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// Reads a colour and writes something about it.
class ColorTextUser {
public:
    virtual ~ColorTextUser() = default;
    /// `isLine` is true for a line of standard input. Fails if the text is not a colour.
    [[nodiscard]] virtual Status use(Output& output, std::string_view text, bool isLine) = 0;
};

/// Passes the arguments, one after the other. The argument "-", or an empty list of arguments,
/// stands for the lines of standard input that are not blank. Texts that are not colours are
/// reported on standard error and skipped. Returns false if there were any.
[[nodiscard]] bool useColorTexts(const std::vector<std::string>& arguments, ColorTextUser& user,
                                 Output& output);

/// Writes the output for colours in 8 bits.
class ColorWriter : public ColorTextUser {
public:
    /// `reader` must outlive the writer.
    explicit ColorWriter(ColorTextReader& reader) : _reader(reader) {}
    [[nodiscard]] Status use(Output& output, std::string_view text, bool isLine) final;

protected:
    virtual void write(Output& output, const ByteColor& color, bool isLine) = 0;

private:
    /// Uses a text that is not a plain hex code.
    [[nodiscard]] Status useOther(Output& output, std::string_view text, bool isLine);

    ColorTextReader& _reader;
};

}  // namespace vantorel
