#pragma once

#include "color/EntryForm.h"

namespace vantorel {

/// How the user wants hex codes that are copied on their own. Texts of other languages have their
/// own rules: in a style sheet, a code begins with "#" whatever the user prefers.
struct HexForm {
    EntryForm entryForm = EntryForm::uppercase;
    bool poundSign = true;

    bool operator==(const HexForm&) const = default;
};

}  // namespace vantorel
