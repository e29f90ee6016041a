#pragma once

// Plug-ins find the conversions between UTF-8 and UTF-16 here.
#include "host/HostColor.h"
#include "text/Unicode.h"

#include <string>

namespace vantorel {

/// A run of text to be measured or drawn in the desktop's sans-serif face.
struct HostText {
    std::u16string string;
    double pointSize = 12;
    HostColor color = HostColor::blackColor();
};

}  // namespace vantorel
