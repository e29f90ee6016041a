#pragma once

#include "color/EntryForm.h"
#include "host/HostColorList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// The result of typing a colour name into the rgb decimal field.
struct NameCompletion {
    /// The field's new text, or `std::nullopt` to leave it unchanged.
    std::optional<std::u16string> text;
    /// The new insertion point, or `std::nullopt` to leave the selection unchanged.
    std::optional<std::size_t> insertionPoint;
    /// The candidates, one a line, for the colours view to show; empty if there are none.
    std::u16string message;
};

/// Completes the first `insertionPoint` UTF-16 units of a typed text to the names of a list,
/// ignoring case. A single matching name is filled in with its rgb text; two to seven matches are
/// listed. A text that starts with "rgb(" is not completed.
[[nodiscard]] NameCompletion completeColorName(std::u16string_view typed,
                                               std::size_t insertionPoint,
                                               const HostColorList& list, EntryForm entryForm);

}  // namespace vantorel
