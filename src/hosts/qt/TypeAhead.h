#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace vantorel {

/// Finds items by letters that the user types, the prefix of a title. A letter after a pause begins
/// a new search. Repeating one letter goes to the next item with this letter.
class TypeAhead {
public:
    [[nodiscard]] bool isSearching() const;
    /// The index of the next item, after `current` (-1 for none) and around the end, for which
    /// `isNamed` is true of the typed prefix; -1 if there is none.
    [[nodiscard]] int find(const QString& typed, int current, int count,
                           const std::function<bool(int index, const QString& start)>& isNamed);

private:
    QString _typed;
    QElapsedTimer _time;
};

}  // namespace vantorel
