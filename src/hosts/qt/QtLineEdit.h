#pragma once

#include "host/HostColor.h"
#include "hosts/qt/ClipboardLineEdit.h"
#include "hosts/qt/WheelSteps.h"

#include <optional>

namespace vantorel {

/// A line edit whose text colour follows the theme. Escape discards the entry. The font becomes a
/// little smaller if that makes room for the whole text.
///
/// A text that is pasted or dropped loses blanks, line ends and a ";" at its ends. It replaces the
/// whole text unless the user has typed, or selected a part.
class QtLineEdit final : public ClipboardLineEdit {
    Q_OBJECT

public:
    /// `font` has the full size.
    explicit QtLineEdit(const QFont& font);

    void setHostColor(const HostColor& color);
    /// Makes the Up and Down keys and the mouse wheel step the value (`stepped`).
    void setCanStep(bool flag) { _canStep = flag; }
    /// Whether the text is being changed by a key that writes nothing, such as Backspace.
    [[nodiscard]] bool isDeleting() const { return _isDeleting; }

signals:
    /// The user has pressed Escape after typing. Only the panel knows the previous text, because
    /// other fields may have followed the typing.
    void entryGivenUp();
    /// The user has left the field by Tab or by a click elsewhere.
    void left();
    /// A pasted or dropped text has become the field's whole text.
    void textBrought();
    /// The entry has ended with a text that is not meant for the field. Whoever can use the text
    /// sets `isTaken`.
    void textOffered(const QString& text, bool& isTaken);
    void stepped(int steps, Qt::KeyboardModifiers modifiers);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    void bring(const QString& text) override;

private:
    /// Chooses the font size, which does not change while the user types.
    void fit();
    void applyColor();

    QFont _font;  ///< in its full size
    std::optional<HostColor> _color;
    bool _applying = false;
    bool _canStep = false;
    bool _isDeleting = false;
    WheelSteps _wheelSteps;
};

/// Returns a text colour of the core for the background of a palette: black becomes the palette's
/// text colour, and colours too dark for a dark background are lightened.
[[nodiscard]] QColor readableTextColor(const HostColor& color, const QPalette& palette);

}  // namespace vantorel
