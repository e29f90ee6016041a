#include "scales/ContrastList.h"

#include "host/HostColorList.h"
#include "host/HostInterfaceFactory.h"
#include "text/Decimals.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double countWidth = 64;
constexpr double gap = 8;

/// Far more than any window has room for.
constexpr std::size_t mostColors = 100;

}  // namespace

ContrastList::ContrastList(ScalesPage& page, HostView& parent, const std::string& identifier)
    : _page(page)
{
    HostInterfaceFactory& factory = desktop().interfaceFactory();
    HostControlDescription popUp;
    popUp.identifier = identifier;
    popUp.pointSize = scalesTextSize;
    popUp.accessibleName = desktop().localizedString(u"Colour list");
    _popUp = factory.makePopUpButton(popUp);
    _popUp->setAction([this](HostControl&) {
        const int index = _popUp->indexOfSelectedItem();
        if (index < 0) return;
        _page.model().setContrastList(_names.at(static_cast<std::size_t>(index)));
        _page.modelDidChange();
    });
    _popUp->setWillPopUp([this] { readLists(); });
    parent.addSubview(*_popUp);

    HostControlDescription count;
    count.identifier = identifier + "Count";
    count.pointSize = scalesTextSize;
    count.accessibleName = desktop().localizedString(u"Number of colours");
    count.editable = false;
    _count = factory.makeTextField(count);
    parent.addSubview(*_count);
    setParked(true);
}

void ContrastList::layOut(HostRect place)
{
    const double popUpWidth = _names.empty() ? 0 : place.width - countWidth - gap;
    _popUp->setFrame({place.x, place.y, popUpWidth, place.height});
    const double left = _names.empty() ? 0 : popUpWidth + gap;
    _count->setFrame({place.x + left, place.y, place.width - left, place.height});
}

void ContrastList::setParked(bool flag)
{
    _popUp->setParked(flag || _names.empty());
    _count->setParked(flag);
}

void ContrastList::readLists()
{
    auto names = desktop().colorLists().availableColorLists();
    if (names != _names) {
        _names = std::move(names);
        _popUp->removeAllItems();
        _popUp->addItemsWithTitles(_names);
    }
    const auto found = std::ranges::find(_names, chosenName());
    _popUp->selectItemAtIndex(static_cast<int>(found - _names.begin()));
}

std::u16string ContrastList::chosenName() const
{
    const std::u16string& wanted = _page.model().contrastList();
    if (_names.empty() || std::ranges::find(_names, wanted) != _names.end()) return wanted;
    return _names.front();
}

Swatches ContrastList::colors() const
{
    Swatches swatches;
    const auto list =
        _names.empty() ? nullptr : desktop().colorLists().colorListNamed(chosenName());
    if (!list) return swatches;
    for (std::size_t i = 0; i < list->allKeys().size() && swatches.size() < mostColors; ++i) {
        const HostColor& color = list->colorAtIndex(i);
        if (color.isPattern()) continue;
        swatches.push_back({color, list->allKeys()[i]});
    }
    return swatches;
}

void ContrastList::showCount(std::size_t shown, std::size_t all)
{
    if (_names.empty()) {
        _count->setStringValue(
            desktop().localizedString(u"No colour lists. Make one on the page Palettes"));
    } else if (shown < all) {
        const std::u16string some = decimalText(shown) + u" / " + decimalText(all);
        _count->setStringValue(all < mostColors ? some : some + u"+");
        _count->setToolTip(
            desktop().localizedString(u"A larger window shows more colours of the list"));
        return;
    } else {
        _count->setStringValue(decimalText(all));
    }
    _count->setToolTip(std::nullopt);
}

}  // namespace vantorel
