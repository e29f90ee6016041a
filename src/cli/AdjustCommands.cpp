#include "cli/Computing.h"
#include "cli/NumberArguments.h"
#include "colormath/Adjustments.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

using Adjustment = CSSColorValue (*)(const CSSColorValue& color, double amount, ColorSpace space);

ColorSpace adjustingSpace(const CommandLine& commandLine)
{
    return colorSpaceNamed(utf16FromUtf8(commandLine.space.value_or("hsl"))).value();
}

int adjustColors(Session& session, const CommandLine& commandLine,
                 const std::vector<std::string>& operands, Adjustment adjustment, double amount)
{
    const ColorSpace space = adjustingSpace(commandLine);
    ColorTextReader reader = colorTextReader(session, commandLine);
    return computeColors(session, commandLine, reader, operands, [&](const CSSColorValue& color) {
        return std::vector{adjustment(color, amount, space)};
    });
}

/// `direction` is 1 to add, and -1 to subtract.
int adjustByAmount(Session& session, const CommandLine& commandLine, Adjustment adjustment,
                   int direction)
{
    const double amount = requiredFraction("AMOUNT", commandLine.operands.front());
    return adjustColors(session, commandLine, operandsAfter(1, commandLine), adjustment,
                        direction * amount);
}

}  // namespace

int lightenColors(Session& session, const CommandLine& commandLine)
{
    return adjustByAmount(session, commandLine, lightened, 1);
}

int darkenColors(Session& session, const CommandLine& commandLine)
{
    return adjustByAmount(session, commandLine, lightened, -1);
}

int saturateColors(Session& session, const CommandLine& commandLine)
{
    return adjustByAmount(session, commandLine, saturated, 1);
}

int desaturateColors(Session& session, const CommandLine& commandLine)
{
    return adjustByAmount(session, commandLine, saturated, -1);
}

int rotateColors(Session& session, const CommandLine& commandLine)
{
    const double degrees = requiredDegrees("DEGREES", commandLine.operands.front());
    return adjustColors(session, commandLine, operandsAfter(1, commandLine), rotated, degrees);
}

int complementColors(Session& session, const CommandLine& commandLine)
{
    return adjustColors(session, commandLine, commandLine.operands, rotated, 180);
}

int printGray(Session& session, const CommandLine& commandLine)
{
    const double lightness = requiredFraction("LIGHTNESS", commandLine.operands.front());
    const CSSColorValue black;
    const ColorFormWriter writer(commandLine.form);
    writer.write(session.output(), lightened(black, lightness, adjustingSpace(commandLine)));
    return 0;
}

}  // namespace vantorel
