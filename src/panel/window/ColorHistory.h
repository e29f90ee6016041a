#pragma once

#include "host/HostColor.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vantorel {

/// The colours that the panel has shown: steps to undo and redo, and the recent colours, which were
/// shown for a while. A drag changes the colour at each move of the mouse; its changes are one
/// step, as are others that follow each other within `settlingSeconds`.
class ColorHistory {
public:
    static constexpr double settlingSeconds = 0.7;
    static constexpr std::size_t mostSteps = 200;
    static constexpr std::size_t mostRecent = 24;

    /// Whether somebody has chosen the first colour. The white of a new panel does not become a
    /// recent colour.
    enum class First { chosen, given };
    explicit ColorHistory(const HostColor& first, First origin = First::chosen)
        : _steps{first}, _firstIsChosen(origin == First::chosen)
    {
    }

    /// Records that the colour has become `color`. `now` is in seconds of any monotonic clock.
    void record(const HostColor& color, double now);
    /// All changes recorded between these two are one step, and no later change belongs to it.
    void beginStep();
    void endStep();
    /// Removes the last change, as if it had not been recorded. Call it at most once after each
    /// `record`.
    void forgetLast();

    [[nodiscard]] const HostColor& current() const { return _steps[_index]; }
    [[nodiscard]] bool canUndo() const { return _index > 0; }
    [[nodiscard]] bool canRedo() const { return _index + 1 < _steps.size(); }
    /// Returns the colour to show now, or `std::nullopt` if there is no step left.
    std::optional<HostColor> undo();
    std::optional<HostColor> redo();

    /// Makes a colour the most recent one, for example because it was copied.
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
    bool _firstIsChosen;
    std::vector<HostColor> _recent;
    double _lastChange = 0;
    /// Whether the next change begins a step, however soon it comes.
    bool _settled = true;
    /// Between `beginStep` and `endStep`.
    bool _isInStep = false;
    std::optional<State> _before;
};

}  // namespace vantorel
