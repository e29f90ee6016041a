#pragma once

#include "host/HostControls.h"
#include "scales/ScalesModel.h"
#include "scales/ScalesSection.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A row in which one of the installed colour lists is chosen, to compare its colours with each
/// other.
class ContrastList {
public:
    /// In points.
    static constexpr double height = 28;

    /// Adds the row to `parent`, parked. `page` and `parent` must outlive it.
    ContrastList(ScalesPage& page, HostView& parent, const std::string& identifier);

    void layOut(HostRect place);
    void setParked(bool flag);
    /// Looks which lists are installed. Until the user chooses one, or when it has gone, the first
    /// one is shown.
    void readLists();
    /// Whether no list was found.
    [[nodiscard]] bool isEmpty() const { return _names.empty(); }
    /// Returns the colours of the list with their names, as it is now. Patterns and keys without a
    /// colour are left out, and what follows after the first hundred.
    [[nodiscard]] Swatches colors() const;
    /// Says how many of the colours are shown.
    void showCount(std::size_t shown, std::size_t all);

private:
    [[nodiscard]] std::u16string chosenName() const;
    [[nodiscard]] HostDesktop& desktop() const { return _page.panel().desktop(); }

    ScalesPage& _page;
    std::vector<std::u16string> _names;
    std::unique_ptr<HostPopUpButton> _popUp;
    std::unique_ptr<HostTextField> _count;
};

}  // namespace vantorel
