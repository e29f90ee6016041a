#pragma once

#include <QLabel>
#include <QTimer>

namespace vantorel {

/// The line in which the page says what a step has led to. News disappear after a while; a failure
/// stays until something else is done.
class PaletteRemarkLabel final : public QLabel {
    Q_OBJECT

public:
    enum class Kind { news, failure };

    explicit PaletteRemarkLabel(QWidget* parent);

    /// Shows a remark, and announces it to assistive technology. An empty one hides the line.
    void showRemark(const QString& text, Kind kind);

private:
    QTimer _timer;
};

}  // namespace vantorel
