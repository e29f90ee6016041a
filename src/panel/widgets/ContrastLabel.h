#pragma once

#include "host/HostColor.h"
#include "hosts/qt/PlainText.h"

namespace vantorel {

/// The contrast of the colour with the background colour, by WCAG 2.2: the ratio, and the best
/// level that normal text reaches. The tool tip lists all levels.
class ContrastLabel final : public PlainLabel {
    Q_OBJECT

public:
    explicit ContrastLabel(QWidget* parent = nullptr);

    void setColors(const HostColor& foreground, const HostColor& background);
};

}  // namespace vantorel
