#pragma once

#include "host/HostColor.h"

#include <QLineEdit>

#include <optional>

namespace vantorel {

/// A line edit whose text colour follows the theme, which can be left by Escape, and which writes a
/// little smaller where that makes room for the whole text.
class QtLineEdit final : public QLineEdit {
    Q_OBJECT

public:
    /// `font` has the full size of the letters.
    explicit QtLineEdit(const QFont& font);

    void setHostColor(const HostColor& color);

signals:
    /// The user has pressed Escape after typing. The text before is the panel's to know: other
    /// fields may have followed the typing.
    void entryGivenUp();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Chooses the size of the letters; it stays while the user types.
    void fit();
    void applyColor();

    QFont _font;  ///< in its full size
    std::optional<HostColor> _color;
    bool _applying = false;
};

/// A text colour of the core on the ground that a palette gives: black becomes the palette's own
/// text colour, and what would be too dark on a dark ground is lightened.
[[nodiscard]] QColor readableTextColor(const HostColor& color, const QPalette& palette);

}  // namespace vantorel
