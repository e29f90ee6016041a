#pragma once

#include "host/HostColor.h"
#include "hosts/common/FieldEntry.h"
#include "hosts/common/ScrubGesture.h"
#include "hosts/common/WheelSteps.h"
#include "hosts/qt/ClipboardLineEdit.h"

#include <optional>

namespace vantorel {

/// A line edit whose text colour follows the theme. The font becomes a little smaller if that makes
/// room for the whole text. Keys, pasted and dropped texts go to an entry.
class QtLineEdit final : public ClipboardLineEdit {
    Q_OBJECT

public:
    /// `font` has the full size.
    explicit QtLineEdit(const QFont& font);

    /// Call this before the first event. Both must outlive the widget's events.
    void setEntry(FieldEntry& entry, ScrubGesture& scrub)
    {
        _entry = &entry;
        _scrub = &scrub;
    }
    void setHostColor(const HostColor& color);
    /// Makes the Up and Down keys and the mouse wheel step the value.
    void setCanStep(bool flag) { _canStep = flag; }
    /// Makes the mouse change the value instead of editing the text, until a click begins that.
    void setCanScrub(bool flag);
    /// Whether the text is being changed by a key that writes nothing, such as Backspace.
    [[nodiscard]] bool isDeleting() const { return _isDeleting; }

signals:
    /// The user has discarded the entry. Only the panel knows the previous text, because other
    /// fields may have followed the typing.
    void entryGivenUp();
    /// The entry has ended with a text that is not meant for the field. Whoever can use the text
    /// sets `isTaken`.
    void textOffered(const QString& text, bool& isTaken);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    void bring(const QString& text) override;

private:
    /// Chooses the font size, which does not change while the user types.
    void fit();
    void applyColor();
    [[nodiscard]] static double pointsOf(const QMouseEvent& event);

    FieldEntry* _entry = nullptr;
    ScrubGesture* _scrub = nullptr;
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
