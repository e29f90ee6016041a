#pragma once

#include "panel/window/PanelWindow.h"

#include <QObject>
#include <QString>

#include <optional>

namespace vantorel {

/// Makes a panel a dialog for one colour, with buttons to choose and to cancel. Either closes the
/// window.
class ColorChoice final : public QObject {
    Q_OBJECT

public:
    /// `window` must outlive this object, and must not have been shown.
    explicit ColorChoice(PanelWindow& window);

    /// The text of the chosen colour, in the form that a drag would carry. `std::nullopt` while the
    /// window is open or if the user has cancelled.
    [[nodiscard]] const std::optional<QString>& text() const { return _text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose();

    PanelWindow& _window;
    std::optional<QString> _text;
};

}  // namespace vantorel
