#include "cli/Terminal.h"

#include "cli/Failure.h"
#include "cli/LineReader.h"
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

}  // namespace

bool isTerminal(int descriptor)
{
    return ::isatty(descriptor) == 1;
}

bool showsSwatches()
{
    const std::string_view depth = environmentValue("COLORTERM");
    return (depth == "truecolor" || depth == "24bit") && environmentValue("NO_COLOR").empty() &&
           environmentValue("TERM") != "dumb" && isTerminal(STDOUT_FILENO);
}

std::string swatchOf(const ByteColor& color)
{
    const auto seen = composedOver(color.hostColor(), HostColor::whiteColor());
    const ByteColor bytes = byteColorOf(seen.value_or(HostColor::whiteColor()));
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
