#pragma once

#include "hosts/qt/PlainText.h"
#include "panel/widgets/ColorWell.h"
#include "panel/widgets/ContrastLabel.h"
#include "panel/widgets/RecentColors.h"

#include <QAction>
#include <QSlider>
#include <QToolButton>

namespace vantorel {

/// The controls below every page: the colour and the background colour, the opacity, the recent
/// colours, the contrast, and buttons to pick and to copy.
class PanelTools final : public QWidget {
    Q_OBJECT

public:
    explicit PanelTools(QWidget* parent = nullptr);

    void setColor(const HostColor& color);
    void setBackground(const HostColor& color);

    void setRecentColors(const std::vector<HostColor>& colors);
    /// The buttons show these actions; an arrow beside the button of `copy` opens `copyMenu`.
    void setActions(QAction& swap, QAction& pick, QAction& copy, QMenu& copyMenu);

signals:
    void opacityChosen(int percent);
    /// The user has selected one of the recent colours.
    void recentColorChosen(const HostColor& color);
    /// A colour, or data that is not one, was dropped on the colour well.
    void colorDropped(const ColorOffer& offer);
    /// The same for the well of the background.
    void backgroundDropped(const ColorOffer& offer);

private:
    void showContrast();

    HostColor _color = HostColor::whiteColor();
    HostColor _background = HostColor::whiteColor();
    // In the order of reading, in which Tab visits them.
    ColorWell* _well;
    QToolButton* _swap;
    ColorWell* _backgroundWell;
    QSlider* _opacity;
    PlainLabel* _opacityText;
    RecentColors* _recent;
    ContrastLabel* _contrast;
    QToolButton* _pick;
    QToolButton* _copy;
};

}  // namespace vantorel
