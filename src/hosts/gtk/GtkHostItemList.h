#pragma once

#include "host/HostMenu.h"
#include "hosts/gtk/GtkHostMenu.h"

namespace vantorel {

/// Opens items as a scrolling list beside a widget. Tens of thousands of items open as fast as ten,
/// because only the visible rows are painted; a GtkMenu makes widgets for each.
///
/// Keyboard: arrows, page keys, Home and End move; letters go to the next item with this prefix;
/// Return, Enter or Space select; Escape closes. Mouse: a click selects, as does a release after
/// the press that opened the list. No item may have a submenu. The list belongs to the widget, and
/// is destroyed when it closes. Returns its window, or null if another program has the pointer.
GtkWidget* openListBeside(GtkWidget* widget, const HostMenu& items, int selected,
                          const GtkMenuChoice& choose);

}  // namespace vantorel
