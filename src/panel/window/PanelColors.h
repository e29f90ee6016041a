#pragma once

#include "panel/window/ColorHistory.h"

#include <QElapsedTimer>
#include <QObject>

namespace vantorel {

/// The colours that the panel works with: the colour, the background that its contrast is measured
/// against, the steps to undo, and the recent colours.
class PanelColors final : public QObject {
    Q_OBJECT

public:
    PanelColors() { _clock.start(); }

    [[nodiscard]] const HostColor& color() const { return _color; }
    [[nodiscard]] const HostColor& background() const { return _background; }
    [[nodiscard]] bool canUndo() const { return _history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _history.canRedo(); }
    /// Each colour once, the newest first.
    [[nodiscard]] const std::vector<HostColor>& recent() const { return _history.recent(); }
    /// Starts anew with a colour and the recent colours of an earlier start. There is nothing to
    /// undo, and the colour until now, which nobody has chosen, does not become a recent one.
    void startWith(const HostColor& color, const std::vector<HostColor>& recent);
    /// Makes the colour the most recent one, because it was used.
    void rememberColor();
    /// All changes between these two are one step to undo, however long they take.
    void beginStep() { _history.beginStep(); }
    void endStep() { _history.endStep(); }
    /// Removes the last change from the history, as if the colour had not changed.
    void forgetLastChange();

public slots:
    void setColor(const HostColor& color);
    void setBackground(const HostColor& color);
    void setOpacity(int percent);
    void undo();
    void redo();
    /// Exchanges the colour and the background.
    void swap();

signals:
    /// The colour was set, possibly to the same value. Pages show it again even then, for example
    /// in place of a typed text.
    void colorSet(const HostColor& color);
    /// The colour has changed.
    void colorChanged(const HostColor& color);
    void backgroundChanged(const HostColor& color);
    /// The recent colours or the steps to undo have changed.
    void historyChanged();

private:
    HostColor _color = HostColor::whiteColor();
    HostColor _background = HostColor::whiteColor();
    ColorHistory _history{_color, ColorHistory::First::given};
    QElapsedTimer _clock;
};

}  // namespace vantorel
