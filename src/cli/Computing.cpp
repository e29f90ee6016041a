#include "cli/Computing.h"

#include "cli/Failure.h"

namespace vantorel {
namespace {

class ColorComputer final : public ColorTextUser {
public:
    ColorComputer(const CommandLine& commandLine, ColorTextReader& reader,
                  const Computation& computation)
        : _writer(commandLine.form), _reader(reader), _computation(computation)
    {
    }

    Status use(Output& output, std::string_view text, bool) override
    {
        const Result<CSSColor> color = _reader.readUnrounded(text);
        if (!color) return color.error();
        for (const CSSColorValue& computed : _computation(color->value))
            _writer.write(output, computed);
        return {};
    }

private:
    ColorFormWriter _writer;
    ColorTextReader& _reader;
    const Computation& _computation;
};

class ColorCollector final : public ColorTextUser {
public:
    ColorCollector(ColorTextReader& reader, std::vector<CSSColor>& colors)
        : _reader(reader), _colors(colors)
    {
    }

    Status use(Output&, std::string_view text, bool) override
    {
        const Result<CSSColor> color = _reader.readUnrounded(text);
        if (!color) return color.error();
        _colors.push_back(*color);
        return {};
    }

private:
    ColorTextReader& _reader;
    std::vector<CSSColor>& _colors;
};

}  // namespace

std::vector<std::string> operandsAfter(std::size_t count, const CommandLine& commandLine)
{
    const auto& operands = commandLine.operands;
    return {operands.begin() + static_cast<std::ptrdiff_t>(count), operands.end()};
}

CSSColorValue requiredFirstColor(const CommandLine& commandLine, ColorTextReader& reader)
{
    const Result<CSSColor> color = reader.readUnrounded(commandLine.operands.front());
    if (!color) throw Failure{color.error()};
    return color->value;
}

int computeColors(Session& session, const CommandLine& commandLine, ColorTextReader& reader,
                  const std::vector<std::string>& operands, const Computation& computation)
{
    ColorComputer computer(commandLine, reader, computation);
    return useColorTexts(operands, computer, session.output()) ? 0 : failureStatus;
}

bool collectColors(Session& session, ColorTextReader& reader,
                   const std::vector<std::string>& operands, std::vector<CSSColor>& colors)
{
    ColorCollector collector(reader, colors);
    return useColorTexts(operands, collector, session.output());
}

}  // namespace vantorel
