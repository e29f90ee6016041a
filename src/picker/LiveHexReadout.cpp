#include "picker/LiveHexReadout.h"

#include "color/QTXHexColorSpec.h"
#include "snippets/FormatString.h"

#include <array>
#include <cstdint>

namespace vantorel {
namespace {

/// Indexed by the number of characters typed.
constexpr std::array<std::u16string_view, 7> progressFormats{
    u"R:---  G:---  B:---",     u"%d: R:%03d* G:--- B:---", u"%d: R:%3d G:--- B:---",
    u"%d: R:%3d G:%03d* B:---", u"%d: R:%3d G:%3d B:---",   u"%d: R:%3d G:%3d B:%03d*",
    u"%d: R:%3d G:%3d B:%3d",
};
constexpr std::u16string_view errorFormat = u"%d: ";

}  // namespace

std::u16string liveHexReadout(std::u16string_view typed, std::u16string_view error)
{
    if (typed.starts_with(u'#')) typed.remove_prefix(1);
    const std::size_t count = typed.size();
    QTXHexColorSpec spec;
    spec.setWithString(typed);
    const std::array arguments{
        FormatArgument{std::uint64_t{count}}, FormatArgument{spec.redHexComp()},
        FormatArgument{spec.greenHexComp()}, FormatArgument{spec.blueHexComp()}};
    if (count < progressFormats.size()) return formatted(progressFormats[count], arguments);
    return formatted(errorFormat, arguments).append(error);
}

}  // namespace vantorel
