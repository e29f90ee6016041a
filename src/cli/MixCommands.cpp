#include "cli/Computing.h"
#include "cli/Failure.h"
#include "cli/NumberArguments.h"
#include "colormath/Gradient.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int fewestOfGradient = 2;
constexpr int mostOfGradient = 1000000;

ColorSpace mixingSpace(const CommandLine& commandLine)
{
    return colorSpaceNamed(utf16FromUtf8(commandLine.space.value_or("oklab"))).value();
}

HueArc mixingArc(const CommandLine& commandLine)
{
    if (commandLine.hueArc && !placeOfHue(mixingSpace(commandLine))) {
        throw Failure{{phrase("\"%1\" needs a colour space with a hue", "--hue"),
                       phrase("use hsl, hwb, lch or oklch")}};
    }
    return hueArcNamed(utf16FromUtf8(commandLine.hueArc.value_or("shorter"))).value();
}

}  // namespace

int mixColors(Session& session, const CommandLine& commandLine)
{
    const ColorSpace space = mixingSpace(commandLine);
    const HueArc arc = mixingArc(commandLine);
    const double fraction = requiredFraction("--fraction", commandLine.fraction.value_or("0.5"));
    ColorTextReader reader = colorTextReader(session, commandLine);
    const CSSColorValue base = requiredFirstColor(commandLine, reader);
    return computeColors(session, commandLine, reader, operandsAfter(1, commandLine),
                         [&](const CSSColorValue& color) {
                             return std::vector{mixed(base, color, 1 - fraction, space, arc)};
                         });
}

int printGradient(Session& session, const CommandLine& commandLine)
{
    const ColorSpace space = mixingSpace(commandLine);
    const HueArc arc = mixingArc(commandLine);
    const int count = requiredCount("--number", commandLine.number.value_or("10"), fewestOfGradient,
                                    mostOfGradient);
    ColorTextReader reader = colorTextReader(session, commandLine);
    std::vector<CSSColor> colors;
    // A gradient through some of the colours would be another one.
    if (!collectColors(session, reader, commandLine.operands, colors)) return failureStatus;
    if (colors.size() < 2) {
        throw Failure{{phrase("a gradient needs at least two colours"),
                       phrase("give its first and its last colour")}};
    }
    std::vector<CSSColorValue> stops(colors.size());
    std::ranges::transform(colors, stops.begin(), &CSSColor::value);
    const ColorFormWriter writer(commandLine.form);
    for (int i = 0; i < count; ++i)
        writer.write(session.output(),
                     gradientColor(stops, static_cast<double>(i) / (count - 1), space, arc));
    return 0;
}

}  // namespace vantorel
