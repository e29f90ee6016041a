#include "hosts/common/PageSize.h"

#include "hosts/common/ViewTree.h"

namespace vantorel {

void reportPageSize(HostColorPicker& picker, HostView& view)
{
    const auto before = viewsBelow<HostView>(&view);
    picker.viewSizeChanged(&view);
    // A picker that lays out its page by the place of a face has only now put another face there.
    if (viewsBelow<HostView>(&view) != before) picker.viewSizeChanged(&view);
}

}  // namespace vantorel
