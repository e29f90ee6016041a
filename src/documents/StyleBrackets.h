#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <vector>

namespace vantorel {

/// The open brackets of a statement of a style sheet.
class StyleBrackets {
public:
    struct Bracket {
        /// "(" or "[", or "{" of an interpolation.
        char kind;
        /// Whether it is one of those whose arguments are words.
        bool hidesNames;
        bool usesVariables;
        /// The index of the function among the candidates, or `notInDocument`.
        std::uint32_t candidate;
    };

    [[nodiscard]] bool isEmpty() const { return _open.empty(); }
    /// Whether the next bracket would be too deep. Such brackets are only counted, and contain no
    /// colours.
    [[nodiscard]] bool isFull() const { return _open.size() == mostNested; }
    /// Whether names in the innermost bracket are words.
    [[nodiscard]] bool areNamesHidden() const
    {
        return _deeper > 0 || (!_open.empty() && _open.back().hidesNames);
    }

    void open(const Bracket& bracket)
    {
        if (isFull()) {
            ++_deeper;
        } else {
            _open.push_back(bracket);
        }
    }
    /// Closes the innermost bracket and returns it. Returns `std::nullopt` if it was only counted,
    /// and if there is none or it is an interpolation, which stays open.
    std::optional<Bracket> close()
    {
        if (_deeper > 0) {
            --_deeper;
            return std::nullopt;
        }
        if (_open.empty() || _open.back().kind == '{') return std::nullopt;
        const Bracket bracket = _open.back();
        _open.pop_back();
        if (bracket.usesVariables) addVariable();
        return bracket;
    }
    /// Closes "#{" if there is one. Unclosed parentheses in it are closed, too.
    bool closeInterpolation()
    {
        const auto interpolation =
            std::ranges::find(_open.rbegin(), _open.rend(), '{', &Bracket::kind);
        if (interpolation == _open.rend()) return false;
        _deeper = 0;
        _open.erase(std::prev(interpolation.base()), _open.end());
        addVariable();
        return true;
    }
    /// Notes a variable in the innermost bracket.
    void addVariable()
    {
        if (!_open.empty()) _open.back().usesVariables = true;
    }
    void clear()
    {
        _open.clear();
        _deeper = 0;
    }

private:
    static constexpr std::size_t mostNested = 48;

    std::vector<Bracket> _open;
    /// How many brackets are open within the deepest one in `_open`.
    std::size_t _deeper = 0;
};

}  // namespace vantorel
