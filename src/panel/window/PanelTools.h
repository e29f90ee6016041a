#pragma once

#include "panel/widgets/ColorWell.h"
#include "panel/widgets/ContrastLabel.h"
#include "panel/widgets/RecentColors.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QSlider>
#include <QToolButton>

namespace vantorel {

/// What stands below every page: the colour and the background colour, the opacity, the last
/// colours, the contrast, and buttons to pick and to copy.
class PanelTools final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(PanelTools)

public:
    explicit PanelTools(QWidget* parent = nullptr);

    void setColor(const HostColor& color);
    void setBackground(const HostColor& color);

    [[nodiscard]] ColorWell& well() { return *_well; }
    [[nodiscard]] ColorWell& backgroundWell() { return *_backgroundWell; }
    [[nodiscard]] RecentColors& recentColors() { return *_recent; }
    /// Called with the percentage that the user chooses.
    void setOpacityChoice(std::function<void(int percent)> choice);
    /// The buttons show these actions; `copy` may have a menu.
    void setActions(QAction& swap, QAction& pick, QAction& copy);

private:
    void showContrast();

    HostColor _color = HostColor::whiteColor();
    HostColor _background = HostColor::whiteColor();
    ColorWell* _well;
    ColorWell* _backgroundWell;
    QToolButton* _swap;
    QSlider* _opacity;
    QLabel* _opacityText;
    RecentColors* _recent;
    ContrastLabel* _contrast;
    QToolButton* _pick;
    QToolButton* _copy;
};

}  // namespace vantorel
