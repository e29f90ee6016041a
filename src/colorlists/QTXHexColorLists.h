#pragma once

#include "colorlists/BuiltInList.h"
#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The three lists supplied with the picker. They are saved among the user's colour lists at the
/// first start and are ordinary lists from then on: an installed list is used unchanged, which
/// preserves the user's edits.
namespace vantorel {

/// Returns the list if it has been found or built in this process; null before that, and for any
/// other number.
[[nodiscard]] std::shared_ptr<HostColorList> hexColorListWithToken(BuiltInList token);

/// Returns "Browser Safe", "CSS Keyword" or "SVG Keyword"; `std::nullopt` for any other number.
[[nodiscard]] std::optional<std::u16string> nameFromHexColorList(BuiltInList token);

/// Returns the list of that name, or the CSS keywords if the name is not one of the three.
[[nodiscard]] BuiltInList hexColorListFromString(std::u16string_view name);

[[nodiscard]] const std::vector<std::u16string>& allHexColorListNames();

// Each finds its list in the store, or builds and saves it there, once per process. If saving
// fails, the list is available in this process only; the error is ignored.
void buildCSSKeywordList(HostColorListStore& store);
void buildWebSafeList(HostColorListStore& store);
void buildSVGKeywordList(HostColorListStore& store);

/// Installs all three lists.
void checkAndInstallColorLists(HostColorListStore& store);

}  // namespace vantorel
