#pragma once

#include "host/HostControls.h"

#include <optional>
#include <string>
#include <utility>
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

/// Replaces all items by the page's own words.
inline void setWords(HostPopUpButton* popUp, const std::vector<std::u16string>& words)
{
    if (popUp == nullptr) return;
    HostMenu menu;
    for (const std::u16string& word : words) {
        HostMenuItem& item = menu.emplace_back();
        item.title = word;
        item.isOwnWord = true;
    }
    popUp->setItems(std::move(menu));
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
