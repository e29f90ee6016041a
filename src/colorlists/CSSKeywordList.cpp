#include "colorlists/BuiltInListData.h"

#include <array>

namespace vantorel {
namespace {

// The value of "orange" differs from the CSS standard. It is kept because saved lists and matched
// names depend on it.
constexpr std::array cssEntries{
    BuiltInColor{u"maroon", 0x800000}, BuiltInColor{u"red", 0xFF0000},
    BuiltInColor{u"yellow", 0xFFFF00}, BuiltInColor{u"olive", 0x808000},
    BuiltInColor{u"purple", 0x800080}, BuiltInColor{u"fuchsia", 0xFF00FF},
    BuiltInColor{u"white", 0xFFFFFF},  BuiltInColor{u"lime", 0x00FF00},
    BuiltInColor{u"green", 0x008000},  BuiltInColor{u"navy", 0x000080},
    BuiltInColor{u"blue", 0x0000FF},   BuiltInColor{u"aqua", 0x00FFFF},
    BuiltInColor{u"teal", 0x008080},   BuiltInColor{u"black", 0x000000},
    BuiltInColor{u"silver", 0xC0C0C0}, BuiltInColor{u"gray", 0x808080},
    BuiltInColor{u"orange", 0xFFA580},
};
// clang-format on

}  // namespace

std::span<const BuiltInColor> cssKeywordColors()
{
    return cssEntries;
}

}  // namespace vantorel
