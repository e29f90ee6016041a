#include "panel/widgets/ColorBand.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorBandPainter.h"

#include <QEvent>

namespace vantorel {
namespace {

/// What a screen needs to show a colour; empty for a colour of sRGB.
QString gamutNameOf(const HostColor& color)
{
    if (!isOutsideSRGB(color)) return {};
    return isOutsideDisplayP3(color) ? QStringLiteral("> P3") : QStringLiteral("P3");
}

}  // namespace

ColorBand::ColorBand(QWidget* parent)
    : QWidget(parent),
      _color(new ColorBandHalf(tr("Colour"), this)),
      _swap(new SwapButton(this)),
      _background(new ColorBandHalf(tr("Background"), this))
{
    setAccessibleName(tr("Colour and background"));
    setAccessibleRole(*this, QAccessible::ColorChooser);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    _color->setObjectName(QStringLiteral("colorWell"));
    _background->setObjectName(QStringLiteral("backgroundWell"));
    _swap->raise();
    connectHalf(*_color, EditedColor::color);
    connectHalf(*_background, EditedColor::background);
    showBackground(_background->color());
}

void ColorBand::connectHalf(ColorBandHalf& half, EditedColor which)
{
    connect(&half, &ColorBandHalf::chosen, this, [this, which] { emit editRequested(which); });
    connect(&half, &ColorBandHalf::copyRequested, this,
            [this, which] { emit copyRequested(which); });
    connect(&half, &ColorBandHalf::dropped, this,
            [this, which](const ColorOffer& offer) { emit dropped(which, offer); });
}

void ColorBand::setColor(const HostColor& color)
{
    _gamutOfColor = gamutNameOf(color);
    _color->setColor(mappedIntoSRGB(color));
    showBackground(_background->color());
}

void ColorBand::setBackground(const HostColor& color)
{
    _gamutOfBackground = gamutNameOf(color);
    showBackground(mappedIntoSRGB(color));
}

void ColorBand::showBackground(const HostColor& background)
{
    _contrast = contrastRatio(_color->color(), background);
    _background->setColor(background, _contrast ? contrastDetails(*_contrast) : QString());
    placeParts();
}

void ColorBand::setEdited(EditedColor edited)
{
    _edited = edited;
    update();
}

void ColorBand::setSwapAction(QAction& action)
{
    _swap->setAction(action);
}

QSize ColorBand::sizeHint() const
{
    return {scaled(276), scaled(64)};
}

QSize ColorBand::minimumSizeHint() const
{
    return {scaled(120), scaled(40)};
}

void ColorBand::placeParts()
{
    _layout = layoutOfBand(size(), _contrast, layoutDirection());
    _color->setGeometry(_layout.color);
    _background->setGeometry(_layout.background);
    QRect swap(QPoint(), _swap->size());
    swap.moveTopLeft(_layout.swapCenter - QPoint(swap.width(), swap.height()) / 2);
    _swap->setGeometry(swap);
    update();
}

void ColorBand::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeParts();
}

void ColorBand::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange) {
        placeParts();
    }
}

void ColorBand::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const ThemeColors theme = themeColors(palette());
    ColorBandPainter band(painter, _layout, theme);
    band.paintColors(_color->color(), _background->color());
    band.paintSample(_color->color(), _background->color());
    for (const ColorBandHalf* half : {_color, _background}) {
        if (half->dropIsNear()) band.paintDropFrame(half->geometry());
        if (half->showsFocus()) band.paintFocusRing(half->geometry());
    }
    band.paintGamutName(_gamutOfColor, _layout.color);
    band.paintGamutName(_gamutOfBackground, _layout.background);
    band.paintEditMark(_edited == EditedColor::color ? _layout.color : _layout.background);
    _swap->paintIn(painter, theme);
}

}  // namespace vantorel
