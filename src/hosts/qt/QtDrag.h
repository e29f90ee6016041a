#pragma once

#include "host/HostCanvas.h"
#include "host/HostPasteboard.h"

#include <QDrag>
#include <QWidget>

namespace vantorel {

/// Creates a drag out of a widget, ready to run. Qt deletes it when it ends, or with `source`. It
/// offers a single type: a colour as `application/x-color`, a text as `text/plain` in UTF-8. The
/// image is to the upper right of the pointer. Returns null for a colour without components, which
/// has no form that other programs could read.
[[nodiscard]] QDrag* makeDrag(QWidget& source, const HostImage& image,
                              const HostPasteboardItem& item);

}  // namespace vantorel
