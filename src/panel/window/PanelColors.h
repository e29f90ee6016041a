#pragma once

#include "panel/window/ColorHistory.h"

#include <QElapsedTimer>
#include <QObject>

namespace vantorel {

/// The colours that the panel works with: the colour and its background, of which one is edited,
/// the steps to undo, the last colours, and those of them that are pinned. "The panel's colour" is
/// the edited one: pages show and change it, and it is copied.
class PanelColors final : public QObject {
    Q_OBJECT

public:
    PanelColors() { _clock.start(); }

    /// The colour of the first start. Nobody has chosen it.
    [[nodiscard]] static HostColor firstColor();

    /// The panel's colour: one of the two below.
    [[nodiscard]] const HostColor& color() const { return _colors.of(_edited); }
    [[nodiscard]] const HostColor& foreground() const { return _colors.color; }
    [[nodiscard]] const HostColor& background() const { return _colors.background; }
    [[nodiscard]] EditedColor edited() const { return _edited; }
    [[nodiscard]] bool canUndo() const { return _history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _history.canRedo(); }
    /// Each colour once, the newest first.
    [[nodiscard]] const std::vector<HostColor>& recent() const { return _history.recent(); }
    [[nodiscard]] const std::vector<HostColor>& pinned() const { return _pinned; }

    /// Starts anew with the colours of an earlier start, of which the first is edited. There is
    /// nothing to undo, and the colour until now, which nobody has chosen, does not become a recent
    /// one.
    void startWith(const ColorPair& colors, const std::vector<HostColor>& recent,
                   const std::vector<HostColor>& pinned = {});
    /// Makes the colour the most recent one, because it was used.
    void rememberColor();
    /// All changes between these two are one step to undo, however long they take.
    void beginStep() { _history.beginStep(); }
    void endStep() { _history.endStep(); }
    /// Removes the last change from the history, as if the colour had not changed.
    void forgetLastChange();

public slots:
    /// Selects which of the two colours is the panel's.
    void edit(vantorel::EditedColor which);
    /// Sets the panel's colour.
    void setColor(const HostColor& color);
    /// Sets one of the two.
    void set(vantorel::EditedColor which, const HostColor& color);
    void setBackground(const HostColor& color) { set(EditedColor::background, color); }
    void setOpacity(int percent);
    void undo();
    void redo();
    /// Exchanges the colour and the background.
    void swap();
    void pin(const HostColor& color, bool isPinned);
    /// Sets all pinned colours in their order.
    void setPinned(const std::vector<HostColor>& colors);
    /// Forgets the last colours, but not those that are pinned.
    void clearRecent();

signals:
    /// The panel's colour was set, possibly to the same value. Pages show it again even then, for
    /// example in place of a typed text.
    void colorSet(const HostColor& color);
    /// The panel's colour has changed.
    void colorChanged(const HostColor& color);
    /// The colour, the background, or which of them is edited has changed.
    void colorsChanged();
    /// The last colours, the pinned ones or the steps to undo have changed.
    void historyChanged();

private:
    void take(const ColorPair& colors);
    void announce(const HostColor& colorBefore);

    ColorPair _colors{firstColor()};
    EditedColor _edited = EditedColor::color;
    ColorHistory _history{_colors, ColorHistory::First::given};
    std::vector<HostColor> _pinned;
    QElapsedTimer _clock;
};

}  // namespace vantorel
