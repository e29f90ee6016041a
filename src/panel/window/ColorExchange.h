#pragma once

#include "host/HostColorPicker.h"
#include "panel/pages/PanelPages.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelColors.h"
#include "screenpick/ScreenPicker.h"

#include <QObject>

#include <memory>
#include <vector>

namespace vantorel {

/// Exchanges colours with other programs: through the clipboard, by drops, and by picking from the
/// screen.
class ColorExchange final : public QObject {
    Q_OBJECT

public:
    /// `colors`, `pages` and `window` must outlive the object. `window` is the parent of picks from
    /// the screen.
    ColorExchange(PanelColors& colors, PanelPages& pages, QWidget& window,
                  std::unique_ptr<ScreenPicker> screenPicker);

    /// The colour's texts in every form, with the names of the forms.
    [[nodiscard]] std::vector<HostColorText> colorTexts() const;
    /// The text that a drag out of the panel carries: in the form of the settings, or the hex code.
    [[nodiscard]] QString draggedText() const;

    /// Lets the user pick from the screen. If `copies` is true, the colour is copied at once.
    /// `done` gets the result; it may be null.
    void pickFromScreen(bool copies, ScreenPicker::Callback done);
    /// Cancels the pick in progress, if any.
    void cancelPick();

public slots:
    void copy();
    void copyHexCode();
    /// Copies the colour together with this text.
    void copyText(const QString& text);
    void paste();
    void pick() { pickFromScreen(false, {}); }
    void pickAndCopy() { pickFromScreen(true, {}); }
    void takeColor(const ColorOffer& offer);
    void takeBackground(const ColorOffer& offer);

signals:
    /// Something the user should know, such as why there is no colour to paste.
    void reported(const vantorel::Message& message);

private:
    PanelColors& _colors;
    PanelPages& _pages;
    QWidget& _window;
    std::unique_ptr<ScreenPicker> _screenPicker;
};

}  // namespace vantorel
