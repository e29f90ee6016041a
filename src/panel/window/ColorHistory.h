#pragma once

#include "host/HostColor.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vantorel {

/// The colours that the panel has shown: steps to undo and redo, and a row of the last colours that
/// stayed. A drag changes the colour at each move of the mouse; changes that follow each other
/// within `settlingSeconds` are one step.
class ColorHistory {
public:
    static constexpr double settlingSeconds = 0.7;
    static constexpr std::size_t mostSteps = 200;
    static constexpr std::size_t mostRecent = 24;

    explicit ColorHistory(const HostColor& first) : _steps{first} {}

    /// The colour has become `color`; `now` is in seconds of any clock that never goes back.
    void record(const HostColor& color, double now);
    /// Takes back what was recorded last, as if it had not happened. Once for each `record`.
    void forgetLast();

    [[nodiscard]] const HostColor& current() const { return _steps[_index]; }
    [[nodiscard]] bool canUndo() const { return _index > 0; }
    [[nodiscard]] bool canRedo() const { return _index + 1 < _steps.size(); }
    /// The colour to show now; nothing where there is no step to go.
    std::optional<HostColor> undo();
    std::optional<HostColor> redo();

    /// Puts a colour first in the row, e.g. one that was copied.
    void remember(const HostColor& color);
    /// Each colour once, the newest first.
    [[nodiscard]] const std::vector<HostColor>& recent() const { return _recent; }
    void setRecent(const std::vector<HostColor>& colors);

private:
    struct State {
        std::vector<HostColor> steps;
        std::size_t index;
        std::vector<HostColor> recent;
        double lastChange;
        bool settled;
    };

    std::vector<HostColor> _steps;
    std::size_t _index = 0;
    std::vector<HostColor> _recent;
    double _lastChange = 0;
    /// Whether the next change begins a step, however soon it comes.
    bool _settled = true;
    std::optional<State> _before;
};

}  // namespace vantorel
