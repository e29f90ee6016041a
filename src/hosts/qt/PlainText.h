#pragma once

#include <QLabel>
#include <QString>

/// Texts as users see them are never markup. Qt takes a text for markup if it looks like it, and
/// many texts come from files and other programs: a colour called `<img src="/dev/zero">` would be
/// loaded as a picture when the pointer rests on it. `tools/check-plain-text` finds places that
/// show a text without these.
namespace vantorel {

/// Returns a tool tip that shows the text as it is written.
[[nodiscard]] QString plainToolTip(const QString& text);

/// Returns a title for actions, menus and buttons that shows the text as it is written: "&" does
/// not underline the next letter, and a tab does not move the rest into the column of shortcuts.
[[nodiscard]] QString plainTitle(const QString& text);

/// A label that shows its text as it is written.
class PlainLabel : public QLabel {
    Q_OBJECT

public:
    explicit PlainLabel(QWidget* parent = nullptr);
    explicit PlainLabel(const QString& text, QWidget* parent = nullptr);
};

}  // namespace vantorel
