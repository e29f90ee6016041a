#pragma once

#include "host/HostColor.h"

#include <string>
#include <string_view>

namespace vantorel {

/// A run of text to be measured or drawn in the desktop's sans-serif face.
struct HostText {
    std::u16string string;
    double pointSize = 12;
    HostColor color = HostColor::blackColor();
};

/// UTF-8 to UTF-16; each byte that is not part of a well-formed sequence becomes U+FFFD. A
/// byte-order mark is kept as the character it is.
[[nodiscard]] std::u16string utf16FromUtf8(std::string_view utf8);

/// Whether a text is well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isWellFormedUtf8(std::string_view utf8);

/// UTF-16 to UTF-8; an unpaired surrogate becomes U+FFFD.
[[nodiscard]] std::string utf8FromUtf16(std::u16string_view utf16);

}  // namespace vantorel
