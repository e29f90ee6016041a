#pragma once

#include "colorlists/BuiltInList.h"
#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The three lists that come with the picker. They are saved among the user's colour lists at the
/// first start, and are ordinary lists from then on: one that is installed is used as it is, so the
/// user's edits stay.
namespace vantorel {

/// The list as it was found or built in this process; null until then, and for any other number.
[[nodiscard]] std::shared_ptr<HostColorList> hexColorListWithToken(BuiltInList token);

/// "Browser Safe", "CSS Keyword" or "SVG Keyword"; `std::nullopt` for any other number.
[[nodiscard]] std::optional<std::u16string> nameFromHexColorList(BuiltInList token);

/// The CSS keywords for a name that is none of the three.
[[nodiscard]] BuiltInList hexColorListFromString(std::u16string_view name);

[[nodiscard]] const std::vector<std::u16string>& allHexColorListNames();

// Each finds its list in the store, or builds and saves it there, once in a process. A save that
// fails is ignored: the list then serves this process alone.
void buildCSSKeywordList(HostColorListStore& store);
void buildWebSafeList(HostColorListStore& store);
void buildSVGKeywordList(HostColorListStore& store);

/// All three.
void checkAndInstallColorLists(HostColorListStore& store);

}  // namespace vantorel
