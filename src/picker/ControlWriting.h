#pragma once

#include "host/HostControls.h"

#include <optional>
#include <string>
#include <vector>

/// Writing into controls that may not be there: without an interface the outlets are null, and the
/// picker goes on with its colour and settings alone.
namespace vantorel {

inline void setText(HostTextField* field, const std::u16string& text)
{
    if (field != nullptr) field->setStringValue(text);
}

inline void moveTo(HostView* view, HostPoint origin)
{
    if (view != nullptr) view->setFrameOrigin(origin);
}

inline void setItems(HostPopUpButton* popUp, const std::vector<std::u16string>& titles)
{
    if (popUp == nullptr) return;
    popUp->removeAllItems();
    popUp->addItemsWithTitles(titles);
}

/// Selects nothing when there is no title or no item has it.
inline void selectTitle(HostPopUpButton* popUp, const std::optional<std::u16string>& title)
{
    if (popUp == nullptr) return;
    popUp->selectItemAtIndex(title ? popUp->indexOfItemWithTitle(*title) : HostPopUpButton::noItem);
}

[[nodiscard]] inline std::optional<std::u16string> selectedTitle(const HostPopUpButton* popUp)
{
    return popUp != nullptr ? popUp->titleOfSelectedItem() : std::nullopt;
}

}  // namespace vantorel
