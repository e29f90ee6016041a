#include "panel/widgets/QuietLabel.h"

#include "panel/widgets/ThemeColors.h"

#include <QApplication>
#include <QEvent>

namespace vantorel {

QuietLabel::QuietLabel(const QString& text, QWidget* parent) : PlainLabel(text, parent)
{
    applyColor();
}

void QuietLabel::changeEvent(QEvent* event)
{
    PlainLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !_isApplying) applyColor();
}

void QuietLabel::applyColor()
{
    _isApplying = true;
    QPalette palette;  // with this colour alone set, the rest goes on following the theme
    palette.setColor(QPalette::WindowText, themeColors(QApplication::palette(this)).text2);
    setPalette(palette);
    _isApplying = false;
}

}  // namespace vantorel
