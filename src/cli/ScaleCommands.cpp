#include "cli/Computing.h"
#include "cli/Failure.h"
#include "cli/NumberArguments.h"
#include "colormath/ColorVision.h"
#include "colormath/Differences.h"
#include "colormath/Scales.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int mostInScale = 10000;
constexpr int mostDistinct = 1000;

ColorVision visionNamed(std::string_view name)
{
    if (name == "protanopia") return ColorVision::protanopia;
    if (name == "deuteranopia") return ColorVision::deuteranopia;
    return name == "tritanopia" ? ColorVision::tritanopia : ColorVision::grey;
}

Computation scaleOfSteps(const CommandLine& commandLine)
{
    if (commandLine.number) {
        throw Failure{{phrase("a scale always has %1 colours", scaleSteps.size()),
                       phrase("leave out --number, or add --kind tints, shades or tones")}};
    }
    return [](const CSSColorValue& color) {
        const ColorScale scale = colorScale(color);
        return std::vector(scale.colors.begin(), scale.colors.end());
    };
}

Computation scaleOf(const CommandLine& commandLine)
{
    const std::string kind = commandLine.kind.value_or("steps");
    if (kind == "steps") return scaleOfSteps(commandLine);
    const auto count = static_cast<std::size_t>(
        requiredCount("--number", commandLine.number.value_or("10"), 1, mostInScale));
    const auto series = kind == "tints" ? tintsOf : kind == "shades" ? shadesOf : tonesOf;
    return [=](const CSSColorValue& color) { return series(color, count); };
}

}  // namespace

int printScales(Session& session, const CommandLine& commandLine)
{
    ColorTextReader reader = colorTextReader(session, commandLine);
    return computeColors(session, commandLine, reader, commandLine.operands, scaleOf(commandLine));
}

int simulateVision(Session& session, const CommandLine& commandLine)
{
    const ColorVision vision = visionNamed(commandLine.operands.front());
    ColorTextReader reader = colorTextReader(session, commandLine);
    return computeColors(
        session, commandLine, reader, operandsAfter(1, commandLine),
        [=](const CSSColorValue& color) { return std::vector{seenWith(vision, color)}; });
}

int printDistinctColors(Session& session, const CommandLine& commandLine)
{
    const int count = requiredCount("N", commandLine.operands.front(), 1, mostDistinct);
    ColorTextReader reader = colorTextReader(session, commandLine);
    const std::vector<std::string> operands = operandsAfter(1, commandLine);
    std::vector<CSSColor> given;
    // Without colours, none are read from standard input, because none are needed.
    if (!operands.empty() && !collectColors(session, reader, operands, given)) return failureStatus;
    std::vector<CSSColorValue> colors(given.size());
    std::ranges::transform(given, colors.begin(), &CSSColor::value);
    colors = withDistinctColors(std::move(colors), static_cast<std::size_t>(count));
    const ColorFormWriter writer(commandLine.form);
    for (const CSSColorValue& color : colors)
        writer.write(session.output(), color);
    return 0;
}

}  // namespace vantorel
