#pragma once

#include "colormath/ColorVision.h"

#include <QMenu>

#include <optional>

namespace vantorel {

/// Shows a window as people with a colour blindness see it. This ends with the program, because a
/// start in wrong colours would be a riddle.
class VisionMenu final : public QMenu {
    Q_OBJECT

public:
    /// The menu belongs to the window.
    explicit VisionMenu(QWidget& window);

private:
    void fill();
    void choose(std::optional<ColorVision> vision, const QString& name);

    QWidget& _window;
    QString _title;
};

}  // namespace vantorel
