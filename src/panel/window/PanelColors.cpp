#include "panel/window/PanelColors.h"

#include <algorithm>

namespace vantorel {

HostColor PanelColors::firstColor()
{
    // A blue on which both black and white can be read, so that a new panel shows at once what it
    // is for.
    constexpr double largest = 255;
    return HostColor::colorWithCalibratedRed(0x3b / largest, 0x82 / largest, 0xf6 / largest, 1);
}

void PanelColors::edit(EditedColor which)
{
    if (which == _edited) return;
    const HostColor before = color();
    _edited = which;
    emit colorsChanged();
    announce(before);
}

void PanelColors::setColor(const HostColor& color)
{
    set(_edited, color);
}

void PanelColors::set(EditedColor which, const HostColor& color)
{
    const HostColor before = this->color();
    take(_colors.with(which, color));
    if (which == _edited) announce(before);
}

void PanelColors::setOpacity(int percent)
{
    setColor(color().colorWithAlphaComponent(percent / 100.0));
}

void PanelColors::undo()
{
    const HostColor before = color();
    const auto colors = _history.undo();
    if (colors) take(*colors);
    emit historyChanged();
    if (colors) announce(before);
}

void PanelColors::redo()
{
    const HostColor before = color();
    const auto colors = _history.redo();
    if (colors) take(*colors);
    emit historyChanged();
    if (colors) announce(before);
}

void PanelColors::swap()
{
    const HostColor before = color();
    take({_colors.background, _colors.color});
    announce(before);
}

void PanelColors::pin(const HostColor& color, bool isPinned)
{
    std::erase(_pinned, color);
    if (isPinned) _pinned.push_back(color);
    emit historyChanged();
}

void PanelColors::setPinned(const std::vector<HostColor>& colors)
{
    _pinned = colors;
    emit historyChanged();
}

void PanelColors::clearRecent()
{
    _history.setRecent({});
    emit historyChanged();
}

void PanelColors::startWith(const ColorPair& colors, const std::vector<HostColor>& recent,
                            const std::vector<HostColor>& pinned)
{
    _colors = colors;
    _edited = EditedColor::color;
    // A panel whose colour nobody has chosen remembers the first one, an older panel white.
    const bool isGiven = colors.color == firstColor() || colors.color == HostColor::whiteColor();
    _history =
        ColorHistory(colors, isGiven ? ColorHistory::First::given : ColorHistory::First::chosen);
    _history.setRecent(recent);
    _pinned = pinned;
    emit historyChanged();
    emit colorsChanged();
    emit colorSet(color());
    emit colorChanged(color());
}

void PanelColors::rememberColor()
{
    _history.remember(color());
    emit historyChanged();
}

void PanelColors::forgetLastChange()
{
    _history.forgetLast();
    emit historyChanged();
}

void PanelColors::take(const ColorPair& colors)
{
    if (colors == _colors) return;
    _colors = colors;
    // Has no effect on the colours of a step that was undone or redone.
    _history.record(colors, static_cast<double>(_clock.elapsed()) / 1000);
    emit historyChanged();
    emit colorsChanged();
}

void PanelColors::announce(const HostColor& colorBefore)
{
    // A copy, because receivers may set the next colour.
    const HostColor now = color();
    emit colorSet(now);
    if (now != colorBefore) emit colorChanged(now);
}

}  // namespace vantorel
