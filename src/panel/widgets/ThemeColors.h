#pragma once

#include <QColor>
#include <QPalette>

namespace vantorel {

/// The colours that the panel's own parts are painted with. Greys have no hue, so that they do not
/// tint the judgement of a colour. A part never uses the user's colour for its own text, borders or
/// focus.
struct ThemeColors {
    QColor window;
    /// The ground of text fields and tool tips.
    QColor base;
    /// Buttons at rest, under the pointer, and held down or chosen.
    QColor control;
    QColor hover;
    QColor down;
    QColor text;
    /// Text that matters less; at least 4.5 to 1 on every ground above.
    QColor text2;
    /// Text of what is switched off.
    QColor textOff;
    /// The border of anything that can be operated; at least 3 to 1.
    QColor edge;
    /// Rules without a meaning.
    QColor line;
    /// Keyboard focus, selected text and the menu row under the pointer, and nothing else.
    QColor accent;
    QColor onAccent;
    QColor error;
    QColor good;
    QColor warn;
    /// Translucent, just inside the edge of every swatch, because a swatch may have its ground's
    /// colour.
    QColor swatchLine;
    /// The squares below a translucent colour.
    QColor checkA;
    QColor checkB;
    /// The ground of a plane of colours, and the translucent lines over what cannot be shown there.
    QColor plane;
    QColor hatch;
    bool isDark = false;
    /// In high contrast, borders and rules have the colour of the text, and there is no second text
    /// colour.
    bool isHighContrast = false;
};

/// Returns the colours that belong to a palette: those of the panel's themes for a palette that
/// `applyTheme` has set, otherwise colours derived from the palette. Derived colours reach the
/// contrasts above unless the palette's own text does not. Call it while painting: it is cheap.
[[nodiscard]] ThemeColors themeColors(const QPalette& palette);

}  // namespace vantorel
