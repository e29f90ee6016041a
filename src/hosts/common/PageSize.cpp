#include "hosts/common/PageSize.h"

#include "hosts/common/ViewTree.h"

#include <algorithm>

namespace vantorel {

void reportPageSize(HostColorPicker& picker, HostView& view)
{
    const auto before = viewsBelow<HostView>(&view);
    picker.viewSizeChanged(&view);
    // A picker that lays out its page by the place of a face has only now put another face there.
    if (viewsBelow<HostView>(&view) != before) picker.viewSizeChanged(&view);
}

HostSize pageSizeWithin(HostSize spare, HostSize wanted, HostSize needed)
{
    const auto within = [](double room, double most, double least) {
        return std::max(least, most + std::min(0.0, room));
    };
    return {within(spare.width, wanted.width, needed.width),
            within(spare.height, wanted.height, needed.height)};
}

}  // namespace vantorel
