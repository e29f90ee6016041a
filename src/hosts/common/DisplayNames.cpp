#include "hosts/common/DisplayNames.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

// tools/update-translations reads this table.
constexpr std::array<std::string_view, 13> names{
    "Add",         "Code Snippet", "Color",     "Empty",    "Fraction", "Hex",       "Hex Code",
    "Input Error", "Integer",      "Lowercase", "No Match", "Remove",   "Uppercase",
};

}  // namespace

const char* displayNameKey(std::u16string_view text)
{
    const auto* const found = std::find_if(names.begin(), names.end(), [&](std::string_view name) {
        return std::equal(name.begin(), name.end(), text.begin(), text.end(),
                          [](char a, char16_t b) { return static_cast<char16_t>(a) == b; });
    });
    return found != names.end() ? found->data() : nullptr;
}

}  // namespace vantorel
