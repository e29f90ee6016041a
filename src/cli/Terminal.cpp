#include "cli/Terminal.h"

#include "cli/Failure.h"
#include "cli/LineReader.h"
#include "colormath/Differences.h"
#include "commandline/Translations.h"
#include "csscolor/Contrast.h"
#include "text/ASCII.h"

#include <unistd.h>

#include <cstdlib>

namespace vantorel {
namespace {

std::string_view environmentValue(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::string_view(value) : std::string_view();
}

bool showsTrueColor()
{
    const std::string_view depth = environmentValue("COLORTERM");
    return depth == "truecolor" || depth == "24bit";
}

CSSColorValue valueOfBytes(int red, int green, int blue)
{
    CSSColorValue value;
    value.components = {red / 255.0, green / 255.0, blue / 255.0};
    return value;
}

/// The first of the 256 colours of terminals that is the same everywhere. Those before it are
/// chosen by the user.
constexpr std::size_t firstFixedColor = 16;

/// The fixed colours: a cube with six levels, then 24 greys.
std::vector<CSSColorValue> fixedTerminalColors()
{
    constexpr int levels[] = {0, 95, 135, 175, 215, 255};
    std::vector<CSSColorValue> colors;
    for (const int red : levels)
        for (const int green : levels)
            for (const int blue : levels)
                colors.push_back(valueOfBytes(red, green, blue));
    for (int grey = 8; grey < 248; grey += 10)
        colors.push_back(valueOfBytes(grey, grey, grey));
    return colors;
}

/// Returns the number of the nearest of the 256 colours.
std::size_t terminalColorOf(const ByteColor& color)
{
    static const NearestColor colors(fixedTerminalColors());
    return firstFixedColor + colors.placeFor(valueOfBytes(color.red, color.green, color.blue));
}

}  // namespace

bool isTerminal(int descriptor)
{
    return ::isatty(descriptor) == 1;
}

bool showsSwatches()
{
    const bool showsColors =
        showsTrueColor() || environmentValue("TERM").find("256color") != std::string_view::npos;
    return showsColors && environmentValue("NO_COLOR").empty() &&
           environmentValue("TERM") != "dumb" && isTerminal(STDOUT_FILENO);
}

std::string swatchOf(const ByteColor& color)
{
    const auto seen = composedOver(color.hostColor(), HostColor::whiteColor());
    const ByteColor bytes = byteColorOf(seen.value_or(HostColor::whiteColor()));
    if (!showsTrueColor())
        return "\x1b[48;5;" + std::to_string(terminalColorOf(bytes)) + "m      \x1b[0m ";
    return "\x1b[48;2;" + std::to_string(bytes.red) + ';' + std::to_string(bytes.green) + ';' +
           std::to_string(bytes.blue) + "m      \x1b[0m ";
}

bool canAsk()
{
    return isTerminal(STDIN_FILENO) && isTerminal(STDERR_FILENO);
}

bool confirms(const Phrase& question)
{
    if (!canAsk()) return false;
    const std::string text = inUsersWords(phrase("%1 [y/N]", question)) + " ";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text.data(), text.size());
    // A terminal returns one line per read, so no part of the next answer is lost.
    LineReader lines(STDIN_FILENO);
    std::string_view answer;
    if (lines.next(answer, [] {}) != LineReader::Result::line) return false;
    // "y" counts in every language, and so does the letter that the translation shows.
    const std::string letter = inUsersWords(phrase("y"));
    return answer == "y" || answer == "Y" || answer == "yes" ||
           lowerCased(std::string(answer)) == letter;
}

}  // namespace vantorel
