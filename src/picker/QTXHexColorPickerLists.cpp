#include "colorlists/ColorListsPopUp.h"
#include "colorlists/ColorNamesPopUp.h"
#include "picker/ControlWriting.h"
#include "picker/QTXHexColorPicker.h"

#include <algorithm>

/// The list pop-up and the name pop-up.
namespace vantorel {

std::shared_ptr<HostColorList> QTXHexColorPicker::namingList() const
{
    const auto& name = _hexSettings.hexColorList();
    return name ? colorPanel().desktop().colorLists().colorListNamed(*name) : nullptr;
}

void QTXHexColorPicker::buildColorListsPopup()
{
    if (hexColorsListPopUp == nullptr) return;
    buildColorListsPopUp(
        *hexColorsListPopUp, _hexSettings.activeColorLists(), colorPanel().desktop().colorLists(),
        {.add = [this](const std::u16string& title) { addToActiveColorListsAction(title); },
         .remove =
             [this](const std::u16string& title) { removeFromActiveColorListsAction(title); }});
}

void QTXHexColorPicker::syncListColorNames()
{
    if (hexColorNamePopUp != nullptr) _colorNamesFiller.fill(*hexColorNamePopUp, namingList());
}

void QTXHexColorPicker::syncListColor()
{
    if (hexColorNamePopUp != nullptr) hexColorNamePopUp->setWillPopUp({});
    const auto list = namingList();
    if (!list || list->allKeys().empty()) {
        __holdCloseMatchColors.clear();
        return;
    }

    _namingIndex.update(list);
    const ColorNameMatch match = matchColorName(_hexColorSpec, *list, _namingIndex);
    // Overwrite the old keys in place: a long list has dozens of close ones, and every step of a
    // drag runs this.
    __holdCloseMatchColors.resize(match.closePlaces.size());
    for (std::size_t i = 0; i < match.closePlaces.size(); ++i)
        __holdCloseMatchColors[i] = list->allKeys()[match.closePlaces[i]];
    _noMatchString = closeTitle(__holdCloseMatchColors);
    if (hexColorNamePopUp == nullptr) return;
    hexColorNamePopUp->setTitleOfItem(0, _noMatchString);
    if (match.exactPlace) {
        _colorNamesFiller.selectEntry(*hexColorNamePopUp, *list, *match.exactPlace);
        return;
    }
    if (!__holdCloseMatchColors.empty()) {
        hexColorNamePopUp->setWillPopUp([this] { closeColorMenuPoppingUp(); });
    }
    hexColorNamePopUp->selectItemAtIndex(0);
}

void QTXHexColorPicker::closeColorMenuPoppingUp()
{
    const auto list = namingList();
    if (!list) return;
    _colorNamesFiller.moveCloseEntriesUp(*hexColorNamePopUp, *list, __holdCloseMatchColors);
}

void QTXHexColorPicker::addToActiveColorListsAction(const std::u16string& title)
{
    _hexSettings.activeColorLists().push_back(title);
    buildColorListsPopup();
    syncPanel();
    storeDefaults();
}

void QTXHexColorPicker::removeFromActiveColorListsAction(const std::u16string& title)
{
    auto& active = _hexSettings.activeColorLists();
    if (active.size() < 2) {
        colorPanel().desktop().beep();
        return;
    }
    const auto found = std::find(active.begin(), active.end(), title);
    if (found != active.end()) active.erase(found);
    if (_hexSettings.hexColorList() == title) {
        _hexSettings.setHexColorList(namingListAfterRemoval(title, active));
    }
    buildColorListsPopup();
    syncPanel();
    storeDefaults();
}

void QTXHexColorPicker::colorListHexAction(HostControl*)
{
    if (__holdOffSync) return;
    if (const auto title = selectedTitle(hexColorsListPopUp)) {
        _hexSettings.setHexColorList(title);
        syncPanel();
    }
    storeDefaults();
}

void QTXHexColorPicker::colorNameHexAction(HostControl*)
{
    if (__holdOffSync) return;
    const auto title = selectedTitle(hexColorNamePopUp);
    if (!title || title == _noMatchString) return;
    const auto list = namingList();
    const auto color = list ? list->colorWithKey(*title) : std::nullopt;
    if (!color) return;
    colorPanel().setColor(*color);
    setColor(color);
}

}  // namespace vantorel
