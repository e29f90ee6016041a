#pragma once

#include "host/HostColor.h"

#include <QLineEdit>

#include <optional>

namespace vantorel {

/// A line edit whose text colour follows the theme. Escape discards the entry. The font becomes a
/// little smaller if that makes room for the whole text.
class QtLineEdit final : public QLineEdit {
    Q_OBJECT

public:
    /// `font` has the full size.
    explicit QtLineEdit(const QFont& font);

    void setHostColor(const HostColor& color);

signals:
    /// The user has pressed Escape after typing. Only the panel knows the previous text, because
    /// other fields may have followed the typing.
    void entryGivenUp();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Chooses the font size, which does not change while the user types.
    void fit();
    void applyColor();

    QFont _font;  ///< in its full size
    std::optional<HostColor> _color;
    bool _applying = false;
};

/// Returns a text colour of the core for the background of a palette: black becomes the palette's
/// text colour, and colours too dark for a dark background are lightened.
[[nodiscard]] QColor readableTextColor(const HostColor& color, const QPalette& palette);

}  // namespace vantorel
