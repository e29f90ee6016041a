#pragma once

// Included for plug-ins, which find the conversions between UTF-8 and UTF-16 through this header.
#include "host/HostColor.h"
#include "text/Unicode.h"

#include <string>

namespace vantorel {

/// A text to measure or draw in the desktop's sans-serif font.
struct HostText {
    std::u16string string;
    double pointSize = 12;
    HostColor color = HostColor::blackColor();
    /// As in `HostMenuItem`.
    bool isOwnWord = false;
    bool isBold = false;
};

}  // namespace vantorel
