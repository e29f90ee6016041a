#include "panel/window/PanelTools.h"

#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>

namespace vantorel {
namespace {

constexpr int wellHeight = 20;
constexpr int iconSize = 16;

QToolButton* newToolsButton(QWidget* parent)
{
    auto* button = new QtToolButton(parent);
    button->setIconSize(QSize(iconSize, iconSize));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    return button;
}

QHBoxLayout* newRow(QVBoxLayout& rows)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    rows.addLayout(row);
    return row;
}

}  // namespace

PanelTools::PanelTools(QWidget* parent)
    : QWidget(parent),
      _well(new ColorWell(tr("Colour"), this)),
      _swap(newToolsButton(this)),
      _backgroundWell(new ColorWell(tr("Background"), this)),
      _opacity(new QSlider(Qt::Horizontal, this)),
      _opacityText(new PlainLabel(this)),
      _recent(new RecentColors(this)),
      _contrast(new ContrastLabel(this)),
      _pick(newToolsButton(this)),
      _copy(newToolsButton(this))
{
    _well->setObjectName(QStringLiteral("colorWell"));
    _backgroundWell->setObjectName(QStringLiteral("backgroundWell"));
    _recent->setObjectName(QStringLiteral("recentColors"));
    _contrast->setObjectName(QStringLiteral("contrast"));
    const double scale = textScale();
    _well->setFixedSize(qRound(38 * scale), qRound(wellHeight * scale));
    _backgroundWell->setFixedSize(qRound(24 * scale), qRound(wellHeight * scale));
    _opacity->setRange(0, 100);
    _opacity->setMinimumWidth(24);
    _opacity->setToolTip(tr("Opacity"));
    _opacity->setAccessibleName(tr("Opacity"));
    const QFont small = fontOfSize(11);
    _opacityText->setFont(small);
    _opacityText->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    _opacityText->setFixedWidth(QFontMetrics(small).horizontalAdvance(QStringLiteral("100 %")) + 2);
    _contrast->setFont(small);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(10, 2, 10, 6);
    rows->setSpacing(3);
    QHBoxLayout* colors = newRow(*rows);
    colors->setSpacing(4);
    colors->addWidget(_well);
    colors->addWidget(_swap);
    colors->addWidget(_backgroundWell);
    colors->addWidget(_opacity, 1);
    colors->addWidget(_opacityText);
    QHBoxLayout* others = newRow(*rows);
    others->addWidget(_recent, 1);
    others->addWidget(_contrast);
    others->addWidget(_pick);
    others->addWidget(_copy);

    setAccessibleRole(*_well, QAccessible::Graphic);
    setAccessibleRole(*_backgroundWell, QAccessible::Graphic);
    setAccessibleRole(*_recent, QAccessible::ColorChooser);
    connect(_opacity, &QSlider::valueChanged, this, &PanelTools::opacityChosen);
    connect(_recent, &RecentColors::chosen, this, &PanelTools::recentColorChosen);
    connect(_well, &ColorWell::dropped, this, &PanelTools::colorDropped);
    connect(_backgroundWell, &ColorWell::dropped, this, &PanelTools::backgroundDropped);
    setColor(_color);
    setBackground(_background);
}

void PanelTools::setActions(QAction& swap, QAction& pick, QAction& copy, QMenu& copyMenu)
{
    _swap->setDefaultAction(&swap);
    _pick->setDefaultAction(&pick);
    _copy->setDefaultAction(&copy);
    _copy->setMenu(&copyMenu);
    _copy->setPopupMode(QToolButton::MenuButtonPopup);
    for (QToolButton* button : {_swap, _pick, _copy})
        button->setAccessibleName(button->defaultAction()->text());
}

void PanelTools::setColor(const HostColor& color)
{
    _color = color;
    _well->setColor(color);
    const int percent = static_cast<int>(std::lround(qColorFrom(color).alphaF() * 100));
    const QSignalBlocker blocker(_opacity);
    _opacity->setValue(percent);
    _opacityText->setText(QStringLiteral("%1 %").arg(percent));
    showContrast();
}

void PanelTools::setBackground(const HostColor& color)
{
    _background = color;
    _backgroundWell->setColor(color);
    showContrast();
}

void PanelTools::setRecentColors(const std::vector<HostColor>& colors)
{
    _recent->setColors(colors);
}

void PanelTools::showContrast()
{
    _contrast->setColors(_color, _background);
}

}  // namespace vantorel
