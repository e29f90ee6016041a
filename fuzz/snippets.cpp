#include "FuzzTexts.h"
#include "snippets/FormatString.h"
#include "snippets/QTXCodeSnippet.h"

#include <array>

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
    require(snippet.codeSnippetWithColorSpec(spec).size() <= longestFormatResult);
    const std::array<FormatArgument, 3> arguments{std::uint64_t{data[0]}, -1.5,
                                                  std::u16string(u"text")};
    require(formatted(unitsFrom(bytesFrom(data + 1, size - 1)), arguments).size() <=
            longestFormatResult);
    return 0;
}
