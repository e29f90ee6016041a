#pragma once

#include "color/EntryForm.h"
#include "host/HostColorList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// What typing a colour name into the rgb decimal field leads to.
struct NameCompletion {
    /// The field's new text; nothing when it stays.
    std::optional<std::u16string> text;
    /// Where the insertion point goes; nothing when the selection stays.
    std::optional<std::size_t> insertionPoint;
    /// The candidates, one a line, to be posted in the colours view; empty for none.
    std::u16string message;
};

/// Completes the first `insertionPoint` UTF-16 units of what is typed to the names of a list,
/// ignoring case. One name that begins so is filled in with its rgb text; two to seven are listed.
/// Nothing is completed while an "rgb(" triple is being typed.
[[nodiscard]] NameCompletion completeColorName(std::u16string_view typed,
                                               std::size_t insertionPoint,
                                               const HostColorList& list, EntryForm entryForm);

}  // namespace vantorel
