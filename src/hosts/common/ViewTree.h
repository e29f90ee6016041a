#pragma once

#include "host/HostView.h"

#include <vector>

namespace vantorel {

/// Visits the views of a class among a view and its descendants. `view` may be null.
template <class View, class Visit>
void forEachBelow(HostView* view, const Visit& visit)
{
    if (view == nullptr) return;
    if (auto* found = dynamic_cast<View*>(view)) visit(*found);
    for (HostView* subview : view->subviews())
        forEachBelow<View>(subview, visit);
}

/// Returns the views of a class among a view and its descendants, for visits that may change the
/// tree. `view` may be null.
template <class View>
[[nodiscard]] std::vector<View*> viewsBelow(HostView* view)
{
    std::vector<View*> views;
    forEachBelow<View>(view, [&](View& found) { views.push_back(&found); });
    return views;
}

/// Enters what the user has typed into the text fields below a view but not yet entered. `Field` is
/// the toolkit's class of fields.
template <class Field>
void finishEditingBelow(HostView* view)
{
    // Entering a text may change the views.
    for (Field* field : viewsBelow<Field>(view))
        field->finishEditing();
}

}  // namespace vantorel
