#include "listformats/ListContents.h"

#include "colortext/ByteColor.h"
#include "csscolor/CSSColorReader.h"

namespace vantorel {

std::optional<HostColor> listColorOf(std::string_view text)
{
    // In bytes. Longer texts are rejected, because reading them would only cost time.
    constexpr std::size_t longestColorText = std::size_t{64} << 10;
    if (text.size() > longestColorText) return std::nullopt;
    const Result<CSSColor> css = readCSSColor(text);
    if (!css) return std::nullopt;
    return byteColorOf(css->color).hostColor().colorWithAlphaComponent(1);
}

}  // namespace vantorel
