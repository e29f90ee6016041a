#pragma once

#include <QLabel>

#include <utility>
#include <vector>

namespace vantorel {

/// A sheet over the whole panel that lists the keyboard shortcuts. Any key or click closes it; it
/// ends itself then.
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
