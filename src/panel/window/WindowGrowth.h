#pragma once

#include <QSize>

#include <optional>

namespace vantorel {

/// A window that grows for a page, and goes back to the size that the user gave it when another
/// page needs less.
class WindowGrowth {
public:
    /// Returns the size for a window whose least size is now `least`.
    [[nodiscard]] QSize sizeFor(QSize current, QSize least)
    {
        // If the user has resized the window since, that is the size to keep.
        const bool isStillGrown = _growth && current == _growth->to;
        const QSize own = isStillGrown ? _growth->from : current;
        const QSize wanted = own.expandedTo(least);
        _growth.reset();
        if (wanted != own) _growth = {own, wanted};
        return wanted;
    }

private:
    struct Growth {
        QSize from;
        QSize to;
    };
    std::optional<Growth> _growth;
};

}  // namespace vantorel
