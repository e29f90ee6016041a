#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Finds items by letters that the user types, the prefix of a title. A letter after a pause begins
/// a new search. Repeating one letter goes to the next item with this letter.
class TypeAhead {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    explicit TypeAhead(Clock clock = std::chrono::steady_clock::now) : _clock(std::move(clock)) {}

    /// Whether the text of a key belongs to a search: printable characters, but not a blank that
    /// would begin one.
    [[nodiscard]] bool takes(std::u16string_view typed) const;
    /// Returns the index of the next item, after `current` (-1 for none) and around the end, for
    /// which `isNamed` is true of the typed prefix; -1 if there is none.
    [[nodiscard]] int find(
        std::u16string_view typed, int current, int count,
        const std::function<bool(int index, const std::u16string& prefix)>& isNamed);

private:
    [[nodiscard]] bool isSearching() const;

    Clock _clock;
    std::u16string _typed;
    std::optional<std::chrono::steady_clock::time_point> _lastLetter;
};

}  // namespace vantorel
