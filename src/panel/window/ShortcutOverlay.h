#pragma once

#include <QLabel>

#include <utility>
#include <vector>

namespace vantorel {

/// Covers the whole panel with a list of the keyboard shortcuts. Any key or click closes and
/// deletes it.
class ShortcutOverlay final : public QLabel {
    Q_OBJECT

public:
    ShortcutOverlay(const std::vector<std::pair<QString, QString>>& rows, QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace vantorel
