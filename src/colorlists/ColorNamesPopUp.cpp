#include "colorlists/ColorNamesPopUp.h"

namespace vantorel {
namespace {

constexpr HostSize swatchSize{22, 14};
constexpr double swatchInset = 2;

}  // namespace

HostImage swatchImage(const HostColor& color)
{
    return {swatchSize, [color](HostCanvas& canvas) {
                HostBezierPath path;
                path.appendBezierPathWithRect(insetRect({0, 0, swatchSize.width, swatchSize.height},
                                                        swatchInset, swatchInset));
                canvas.fill(path, color);
                path.setLineWidth(2);
                canvas.stroke(path, HostColor::whiteColor());
                path.setLineWidth(1);
                canvas.stroke(path, HostColor::blackColor());
            }};
}

std::optional<HostImage> menuImageWithColorList(const HostColorList& list,
                                                const std::u16string& colorName)
{
    const auto color = list.colorWithKey(colorName);
    if (!color) return std::nullopt;
    return swatchImage(*color);
}

std::u16string ColorNameMatch::closeTitle() const
{
    if (closeKeys.empty()) return noMatchTitle;
    std::u16string title = u"* " + closeKeys.front();
    for (std::size_t i = 1; i < closeKeys.size(); ++i)
        title += u", " + closeKeys[i];
    return title;
}

ColorNameMatch matchColorName(const QTXHexColorSpec& color, const HostColorList& list)
{
    ColorNameMatch match;
    const auto& keys = list.allKeys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (color.isEqualToColor(list.colorAtIndex(i))) {
            match.exactKey = keys[i];
            return match;
        }
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (color.isCloseToColor(list.colorAtIndex(i))) match.closeKeys.push_back(keys[i]);
    }
    return match;
}

void ColorNamesPopUpFiller::fill(HostPopUpButton& popUp, const std::shared_ptr<HostColorList>& list)
{
    if (list && list == _filledWith && list->revision() == _revision && _inListOrder) {
        popUp.setTitleOfItem(0, noMatchTitle);
        popUp.selectItemAtIndex(0);
        return;
    }
    popUp.removeAllItems();
    _filledWith = list;
    if (!list) {
        popUp.addItemWithTitle(u"Empty");
        return;
    }
    _revision = list->revision();
    _inListOrder = true;
    popUp.addItemWithTitle(noMatchTitle);
    popUp.addItem(HostMenuItem::separatorItem());
    const auto& keys = list->allKeys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        HostMenuItem item;
        item.title = keys[i];
        item.image = swatchImage(list->colorAtIndex(i));
        popUp.addItem(std::move(item));
    }
}

void ColorNamesPopUpFiller::moveCloseEntriesUp(HostPopUpButton& popUp, const HostColorList& list,
                                               const std::vector<std::u16string>& closeKeys)
{
    if (closeKeys.empty() || list.allKeys().empty()) return;
    const int first = popUp.indexOfItemWithTitle(list.allKeys().front());
    if (first <= 0) return;
    int insertion = first - 1;
    for (const std::u16string& key : closeKeys) {
        const int index = popUp.indexOfItemWithTitle(key);
        if (index <= first) continue;
        if (auto item = popUp.takeItem(index)) {
            popUp.insertItem(std::move(*item), insertion++);
            _inListOrder = false;
        }
    }
}

}  // namespace vantorel
