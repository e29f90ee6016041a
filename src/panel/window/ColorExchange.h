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

/// Takes the panel's colour to other programs and brings colours from there: by the clipboard, by
/// drops, and from the screen.
class ColorExchange final : public QObject {
    Q_OBJECT

public:
    /// `colors`, `pages` and `window`, which picks from the screen start from, must outlive the
    /// object.
    ColorExchange(PanelColors& colors, PanelPages& pages, QWidget& window,
                  std::unique_ptr<ScreenPicker> screenPicker);

    /// The texts that stand for the colour, with the names of their forms.
    [[nodiscard]] std::vector<HostColorText> colorTexts() const;
    /// The colour as a drag out of the panel carries it: the text that the settings ask for, or
    /// the hex code.
    [[nodiscard]] QString draggedText() const;

    /// Lets the user pick from the screen. `copies` puts the colour on the clipboard at once;
    /// `done`, if there is one, gets the result.
    void pickFromScreen(bool copies, ScreenPicker::Callback done);
    /// Ends a pick that is under way as cancelled.
    void cancelPick();

public slots:
    void copy();
    void copyHexCode();
    /// Copies the colour with a text that stands for it.
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
