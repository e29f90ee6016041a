#include "panel/window/PanelColors.h"

namespace vantorel {

void PanelColors::setColor(const HostColor& color)
{
    const bool changed = color != _color;
    _color = color;
    if (changed) {
        _history.record(color, static_cast<double>(_clock.elapsed()) / 1000);
        emit historyChanged();
    }
    emit colorSet(color);
    if (changed) emit colorChanged(color);
}

void PanelColors::setBackground(const HostColor& color)
{
    _background = color;
    emit backgroundChanged(color);
}

void PanelColors::setOpacity(int percent)
{
    setColor(_color.colorWithAlphaComponent(percent / 100.0));
}

void PanelColors::undo()
{
    if (const auto color = _history.undo()) setColor(*color);
    emit historyChanged();
}

void PanelColors::redo()
{
    if (const auto color = _history.redo()) setColor(*color);
    emit historyChanged();
}

void PanelColors::swap()
{
    const HostColor background = _background;
    setBackground(_color);
    setColor(background);
}

void PanelColors::startWith(const HostColor& color, const std::vector<HostColor>& recent)
{
    _color = color;
    // A panel whose colour nobody has chosen remembers white.
    const bool isGiven = color == HostColor::whiteColor();
    _history =
        ColorHistory(color, isGiven ? ColorHistory::First::given : ColorHistory::First::chosen);
    _history.setRecent(recent);
    emit historyChanged();
    emit colorSet(color);
    emit colorChanged(color);
}

void PanelColors::rememberColor()
{
    _history.remember(_color);
    emit historyChanged();
}

void PanelColors::forgetLastChange()
{
    _history.forgetLast();
    emit historyChanged();
}

}  // namespace vantorel
