#include "FuzzTexts.h"
#include "snippets/FormatString.h"
#include "snippets/QTXCodeSnippet.h"
#include "snippets/SnippetLimits.h"

#include <array>

namespace {

using namespace vantorel;

/// A line is found where it is in a text, with a colour that can be written. The format itself is a
/// text as well, and a line that the format nearly wrote.
void readBack(const QTXCodeSnippet& snippet, const std::u16string& line)
{
    const SnippetReaders readers({snippet});
    for (const std::u16string& text :
         {line, std::u16string(u"x ").append(line).append(u"\n").append(line),
          *snippet.formatStringSnippet()}) {
        std::size_t end = 0;
        for (const SnippetMatch& match : readers.matchesIn(text)) {
            require(match.begin >= end && match.end <= text.size());
            end = match.end;
            const auto color = match.color.calibratedRGB();
            require(color && color->red >= 0 && color->red <= 1 && color->alpha >= 0 &&
                    color->alpha <= 1);
        }
    }
    // The limits are found by a hundred trials, so that only some inputs get them.
    if (line.size() % 16 != 0) return;
    // Without a limit, the colour that was written is read.
    const auto limits = snippetLimits(readers, 0);
    QTXHexColorSpec spec;
    spec.setHexRed(line.size() & 0xFF, 128, 7);
    spec.setAlphaComp(1);
    const auto match = readers.matchOf(snippet.codeSnippetWithColorSpec(spec));
    if (limits.empty()) require(match && match->color == spec.colorHexColorSpec());
}

}  // namespace

/// A format is the rest of the input; its first byte chooses the variable form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    if (size == 0) return 0;
    constexpr std::array forms{u"rgbaFloats", u"rgbFloats",    u"rgbFixedAlphaFloat", u"rgbFixed",
                               u"rgbaFixed",  u"rgbPackedInt", u"rgbaPackedInt",      u"none"};
    QTXCodeSnippet snippet(u"name", unitsFrom(bytesFrom(data + 1, size - 1)),
                           forms[data[0] % forms.size()]);
    QTXHexColorSpec spec;
    spec.setHexRed(data[0], 128, ~std::uint64_t{0});
    spec.setAlphaComp(data[0] % 3 == 0 ? 1e300 : 0.5);
    const std::u16string line = snippet.codeSnippetWithColorSpec(spec);
    require(line.size() <= longestFormatResult);
    readBack(snippet, line);
    const std::array<FormatArgument, 3> arguments{std::uint64_t{data[0]}, -1.5,
                                                  std::u16string(u"text")};
    require(formatted(unitsFrom(bytesFrom(data + 1, size - 1)), arguments).size() <=
            longestFormatResult);
    return 0;
}
