#pragma once

/// What the loader and the dialog library agree on.
namespace vantorel {

/// The name of the selector's icon, which the dialog library adds to GTK's.
inline constexpr const char* selectorIconName = "vantorel-page";

/// Data of a selector: not null if it has a page.
inline constexpr const char* selectorPageKey = "vantorel-page";

}  // namespace vantorel
