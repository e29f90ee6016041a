#pragma once

#include "host/HostColor.h"
#include "host/HostGeometry.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What has left the picker, in order.
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
/// One of text and color is there.
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
