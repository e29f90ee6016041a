#pragma once

#include "panel/window/PanelWindow.h"

#include <QObject>
#include <QString>

#include <optional>

namespace vantorel {

/// Makes a panel a dialog for one colour, with buttons to choose and to cancel. Its window closes
/// with either.
class ColorChoice final : public QObject {
    Q_OBJECT

public:
    /// `window` must outlive the choice, and must not be shown yet.
    explicit ColorChoice(PanelWindow& window);

    /// What a drag would carry, if the user has chosen; `std::nullopt` while the window is open,
    /// or if it was closed without a choice.
    [[nodiscard]] const std::optional<QString>& text() const { return _text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose();

    PanelWindow& _window;
    std::optional<QString> _text;
};

}  // namespace vantorel
