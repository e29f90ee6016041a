#pragma once

#include "host/HostMenu.h"
#include "hosts/common/PixelFrames.h"

#include <optional>
#include <vector>

/// The list that a pop-up opens. Tens of thousands of items open as fast as ten if only the visible
/// rows are laid out and painted. All lengths are device-independent pixels.
namespace vantorel {

/// Returns the height of the rows of every pop-up, in lists and in menus, with pictures or without.
/// `scale` is the number of pixels per point.
[[nodiscard]] int popUpRowHeight(int textHeight, double scale);

inline constexpr int widestPopUpList = 420;

/// Returns the items among which the one with the widest title is. Measuring every title would take
/// too long for a long list; the longest few are enough, and of each the first `widestPopUpList`
/// letters.
[[nodiscard]] std::vector<const HostMenuItem*> itemsToMeasure(const HostMenu& menu);

struct PopUpListRequest {
    PixelRect button;  ///< on the screen, y down
    PixelRect room;    ///< the part of the screen that a list may cover
    int rows = 0;
    int rowHeight = 1;
    int width = 0;   ///< that the titles need
    int frames = 0;  ///< the height of what is above and below the rows
};

/// Returns the place of a list: below its button, or above if there is more room. Longer lists
/// scroll.
[[nodiscard]] PixelRect placeOfPopUpList(const PopUpListRequest& request);

/// Whether the release of a button chooses the row below the pointer. The release that follows the
/// press which opened the list does so only after a drag: a desktop may have moved the list below
/// the pointer.
class ReleaseRule {
public:
    /// `dragDistance` is how far the pointer moves before a desktop calls it a drag.
    explicit ReleaseRule(int dragDistance) : _dragDistance(dragDistance) {}

    void pointerMovedInside(PixelPoint place);
    void buttonWasPressed() { _releaseChooses = true; }
    [[nodiscard]] bool releaseChooses() const { return _releaseChooses; }

private:
    int _dragDistance;
    bool _releaseChooses = false;
    std::optional<PixelPoint> _firstPlace;
};

}  // namespace vantorel
