#pragma once

#include "host/HostCanvas.h"
#include "host/HostPasteboard.h"

#include <QDrag>
#include <QWidget>

namespace vantorel {

/// A drag out of a widget, ready to run; Qt deletes it when it has ended, or with `source`. It
/// offers one type alone: a colour as `application/x-color`, a text as `text/plain` in UTF-8. The
/// image stands at the upper right of the pointer. Null for a colour without components, which has
/// no form that others could read.
[[nodiscard]] QDrag* makeDrag(QWidget& source, const HostImage& image,
                              const HostPasteboardItem& item);

}  // namespace vantorel
