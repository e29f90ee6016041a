#pragma once

#include "host/HostColor.h"
#include "host/HostGeometry.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

/// A journal of the picker's effects on its surroundings, in order.
namespace vantorel {

struct PanelColorSet {
    std::optional<HostColor> color;
};
struct PanelFrameSet {
    HostRect frame;
};
struct LineLogged {
    std::u16string line;
};
struct Beeped {};
struct URLOpened {
    std::string url;
};
struct SettingsWritten {};
struct ListSaved {
    std::u16string name;
};
/// A drag of either a text or a colour.
struct Dragged {
    std::optional<std::string> text;
    std::optional<HostColor> color;
    HostSize imageSize;
    std::optional<HostColor> panelColor;
};

using JournalEntry = std::variant<PanelColorSet, PanelFrameSet, LineLogged, Beeped, URLOpened,
                                  SettingsWritten, ListSaved, Dragged>;
using HeadlessJournal = std::vector<JournalEntry>;

}  // namespace vantorel
