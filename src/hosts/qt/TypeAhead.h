#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace vantorel {

/// Letters that are typed to find an item by the beginning of its title. After a pause they begin a
/// new search; one letter again and again goes from each such item to the next.
class TypeAhead {
public:
    [[nodiscard]] bool isSearching() const;
    /// The index of the next item, after `current` (-1 for none) and around the end, for which
    /// `isNamed` tells that it begins with a text; -1 when there is none.
    [[nodiscard]] int find(const QString& typed, int current, int count,
                           const std::function<bool(int index, const QString& start)>& isNamed);

private:
    QString _typed;
    QElapsedTimer _time;
};

}  // namespace vantorel
