#pragma once

#include "host/HostControls.h"

#include <optional>
#include <string>
#include <vector>

/// Functions that write to controls that may be null. Without an interface the outlets are null,
/// and the picker keeps only its colour and settings up to date.
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

/// Selects the item with that title. Clears the selection if `title` is `std::nullopt` or no item
/// has it.
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
