#pragma once

#include "panel/window/ColorPair.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vantorel {

/// The colours that the panel has shown: steps to undo and redo, and the recent colours, which were
/// shown for a while. A drag changes a colour at each move of the mouse; its changes are one step,
/// as are others of the same colour that follow each other within `settlingSeconds`.
class ColorHistory {
public:
    static constexpr double settlingSeconds = 0.7;
    static constexpr std::size_t mostSteps = 200;
    static constexpr std::size_t mostRecent = 24;

    /// Whether somebody has chosen the first colour. The colour of a new panel does not become a
    /// recent one.
    enum class First { chosen, given };
    explicit ColorHistory(const ColorPair& first, First origin = First::chosen)
        : _steps{first}, _firstIsChosen(origin == First::chosen)
    {
    }

    /// Records that the colours have become `colors`. `now` is in seconds of any monotonic clock.
    void record(const ColorPair& colors, double now);
    /// All changes recorded between these two are one step, and no later change belongs to it.
    void beginStep();
    void endStep();
    /// Removes the last change, as if it had not been recorded. Call it at most once after each
    /// `record`.
    void forgetLast();

    [[nodiscard]] const ColorPair& current() const { return _steps[_index]; }
    [[nodiscard]] bool canUndo() const { return _index > 0; }
    [[nodiscard]] bool canRedo() const { return _index + 1 < _steps.size(); }
    /// Returns the colours to show now, or `std::nullopt` if there is no step left.
    std::optional<ColorPair> undo();
    std::optional<ColorPair> redo();

    /// Makes a colour the most recent one, for example because it was copied.
    void remember(const HostColor& color);
    /// Each colour once, the newest first.
    [[nodiscard]] const std::vector<HostColor>& recent() const { return _recent; }
    void setRecent(const std::vector<HostColor>& colors);

private:
    /// Which of the two colours a change concerns.
    struct Changed {
        bool color = false;
        bool background = false;

        bool operator==(const Changed&) const = default;
    };
    struct State {
        std::vector<ColorPair> steps;
        std::size_t index;
        std::vector<HostColor> recent;
        double lastChange;
        bool settled;
        Changed changed;
    };

    /// Makes a colour that `next` replaces a recent one.
    void rememberReplaced(const ColorPair& next);

    std::vector<ColorPair> _steps;
    std::size_t _index = 0;
    bool _firstIsChosen;
    std::vector<HostColor> _recent;
    double _lastChange = 0;
    Changed _lastChanged;
    /// Whether the next change begins a step, however soon it comes.
    bool _settled = true;
    /// Between `beginStep` and `endStep`.
    bool _isInStep = false;
    std::optional<State> _before;
};

}  // namespace vantorel
