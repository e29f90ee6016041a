#include "cli/Failure.h"
#include "cli/NumberArguments.h"
#include "cli/PictureFiles.h"
#include "cli/Pictures.h"
#include "cli/Terminal.h"
#include "listformats/PaletteSvg.h"
#include "result/HarmlessLine.h"
#include "text/Decimals.h"
#include "view/WheelGeometry.h"

#include <unistd.h>

namespace vantorel {
namespace {

constexpr HostSize usualPicture{640, 480};

HostSize pictureSize(const CommandLine& commandLine)
{
    if (!commandLine.size) return usualPicture;
    const std::string& text = *commandLine.size;
    const std::size_t parting = std::min(text.find('x'), text.size());
    const auto width = wholeNumber<int>(std::string_view(text).substr(0, parting));
    const auto height =
        wholeNumber<int>(std::string_view(text).substr(std::min(parting + 1, text.size())));
    const auto fits = [](std::optional<int> length) {
        return length && *length >= smallestPicture && *length <= largestPicture;
    };
    if (!fits(width) || !fits(height)) {
        throw Failure{{phrase("--size cannot be \"%1\"", excerpt(text)),
                       phrase("use a size from 8x8 to 16384x16384, such as 640x480")}};
    }
    return {static_cast<double>(*width), static_cast<double>(*height)};
}

int ringCount(Session& session, const CommandLine& commandLine)
{
    if (!commandLine.rings) return drawnRingCount(session.settings().nColorCubeRings());
    return requiredCount("--rings", *commandLine.rings, fewestDrawnRings, mostDrawnRings);
}

}  // namespace

void refuseBytesOnTerminal(const std::string& path)
{
    if (path != "-" || !isTerminal(STDOUT_FILENO)) return;
    throw Failure{{phrase("this format is binary and is not written to a terminal"),
                   phrase("give a file, or redirect the output")}};
}

void writePalettePicture(Session& session, const CommandLine& commandLine,
                         const HostColorList& list)
{
    const HostSize size = pictureSize(commandLine);
    if (commandLine.svg) {
        writeFile(session.output(), *commandLine.svg, paletteSvg(list, size));
        return;
    }
    refuseBytesOnTerminal(*commandLine.png);
    const std::string png = palettePng(list, size);
    if (png.empty())
        throw Failure{{phrase("the picture cannot be drawn"), phrase("try a smaller --size")}};
    writeFile(session.output(), *commandLine.png, png);
}

int drawWheel(Session& session, const CommandLine& commandLine)
{
    const int rings = ringCount(session, commandLine);
    writeFile(session.output(), *commandLine.svg, wheelSvg(rings, pictureSize(commandLine)));
    return 0;
}

int drawPalette(Session& session, const CommandLine& commandLine)
{
    if (!commandLine.svg && !commandLine.png)
        throw Failure{{phrase("no output file is given"), phrase("give --svg FILE or --png FILE")}};
    const auto list = session.lists().requiredList(commandLine.operands.front());
    writePalettePicture(session, commandLine, *list);
    return 0;
}

}  // namespace vantorel
