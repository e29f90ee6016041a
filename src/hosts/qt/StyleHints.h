#pragma once

#include <QStyle>

namespace vantorel {

/// A style that returns 1 for this hint paints the focus of tool buttons, and gives menus that are
/// too long for the screen a scroller. The host does that where a style does not.
inline constexpr auto stylePaintsHostControls =
    static_cast<QStyle::StyleHint>(QStyle::SH_CustomBase + 1);

}  // namespace vantorel
