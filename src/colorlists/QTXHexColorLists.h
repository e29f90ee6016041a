#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The three lists that come with the picker. They are saved among the user's colour lists at the
/// first start, and are ordinary lists from then on: one that is installed is used as it is, so the
/// user's edits stay.
///
/// Tokens stand for the lists: 12 "Browser Safe", 13 and 15 "CSS Keyword", 14 "SVG Keyword".
namespace vantorel {

/// The list as it was found or built in this process; null until then, and for any other token.
[[nodiscard]] std::shared_ptr<HostColorList> hexColorListWithToken(int token);

/// Nothing for any other token.
[[nodiscard]] std::optional<std::u16string> nameFromHexColorList(int token);

/// 13 for a name that is none of the three.
[[nodiscard]] int hexColorListFromString(std::u16string_view name);

[[nodiscard]] const std::vector<std::u16string>& allHexColorListNames();

// Each finds its list in the store, or builds and saves it there, once in a process. A save that
// fails is ignored: the list then serves this process alone.
void buildCSSKeywordList(HostColorListStore& store);
void buildWebSafeList(HostColorListStore& store);
void buildSVGKeywordList(HostColorListStore& store);

/// All three.
void checkAndInstallColorLists(HostColorListStore& store);

}  // namespace vantorel
