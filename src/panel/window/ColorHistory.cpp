#include "panel/window/ColorHistory.h"

#include <algorithm>

namespace vantorel {

void ColorHistory::record(const ColorPair& colors, double now)
{
    _before = State{_steps, _index, _recent, _lastChange, _settled, _lastChanged};
    if (colors == current()) return;
    const bool isSoon = _isInStep || now - _lastChange < settlingSeconds;
    const Changed changed{colors.color != current().color,
                          colors.background != current().background};
    const bool sameStep = !_settled && isSoon && _index > 0 && changed == _lastChanged;
    _lastChange = now;
    _lastChanged = changed;
    _settled = false;
    _steps.resize(_index + 1, colors);
    if (sameStep) {
        _steps.back() = colors;
        return;
    }
    rememberReplaced(colors);
    _steps.push_back(colors);
    if (_steps.size() > mostSteps) {
        _steps.erase(_steps.begin());
        _firstIsChosen = true;
    }
    _index = _steps.size() - 1;
}

void ColorHistory::rememberReplaced(const ColorPair& next)
{
    // The first background is the window's white, or was remembered by an earlier start.
    if (next.background != current().background && _index > 0) remember(current().background);
    if (next.color != current().color && (_index > 0 || _firstIsChosen)) remember(current().color);
}

void ColorHistory::beginStep()
{
    _settled = true;
    _isInStep = true;
}

void ColorHistory::endStep()
{
    _settled = true;
    _isInStep = false;
}

void ColorHistory::forgetLast()
{
    if (!_before) return;
    _steps = std::move(_before->steps);
    _index = _before->index;
    _recent = std::move(_before->recent);
    _lastChange = _before->lastChange;
    _settled = _before->settled;
    _lastChanged = _before->changed;
    _before.reset();
}

std::optional<ColorPair> ColorHistory::undo()
{
    if (!canUndo()) return std::nullopt;
    _before.reset();
    _settled = true;
    return _steps[--_index];
}

std::optional<ColorPair> ColorHistory::redo()
{
    if (!canRedo()) return std::nullopt;
    _before.reset();
    _settled = true;
    return _steps[++_index];
}

void ColorHistory::remember(const HostColor& color)
{
    std::erase(_recent, color);
    _recent.insert(_recent.begin(), color);
    if (_recent.size() > mostRecent) _recent.resize(mostRecent, color);
}

void ColorHistory::setRecent(const std::vector<HostColor>& colors)
{
    _recent.clear();
    for (const HostColor& color : colors) {
        const bool isNew = std::find(_recent.begin(), _recent.end(), color) == _recent.end();
        if (isNew && _recent.size() < mostRecent) _recent.push_back(color);
    }
}

}  // namespace vantorel
