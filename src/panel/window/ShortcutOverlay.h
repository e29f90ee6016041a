#pragma once

#include "panel/pages/PanelPage.h"

#include <QScrollArea>

#include <vector>

namespace vantorel {

/// The keys of a page, or of the panel if there is no title.
struct ShortcutSection {
    QString title;
    std::vector<ShortcutRow> rows;
};

/// Covers the whole panel with a list of the keyboard shortcuts. The arrow and page keys scroll it;
/// any other key or a click closes and deletes it.
class ShortcutOverlay final : public QScrollArea {
    Q_OBJECT

public:
    ShortcutOverlay(const std::vector<ShortcutSection>& sections, QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace vantorel
