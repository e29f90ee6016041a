#pragma once

#include "panel/pages/PanelPages.h"
#include "panel/widgets/ColorBand.h"
#include "panel/widgets/ColorFacts.h"
#include "panel/widgets/ColorField.h"
#include "panel/widgets/FormList.h"
#include "panel/widgets/LastColors.h"
#include "panel/widgets/MessageLabel.h"
#include "panel/window/PageBar.h"
#include "panel/window/PanelLayout.h"

#include <QLabel>
#include <QSize>
#include <QToolButton>
#include <QWidget>

namespace vantorel {

/// What the panel's window shows, and where it shows it. The widgets belong to the window.
class PanelParts {
public:
    explicit PanelParts(QWidget& window);
    PanelParts(const PanelParts&) = delete;
    PanelParts& operator=(const PanelParts&) = delete;
    ~PanelParts() = default;

    /// Lays the parts out in the window's present size, and gives the window its least size.
    void layOut();
    /// Returns the room that the parts would have in a window of this size, in pixels.
    [[nodiscard]] PanelRoom roomIn(QSize window) const;
    /// Has the Tab key go through the parts in the order in which one reads them. Pages move their
    /// controls, so call it before each step.
    void orderTabs() const;

    // In the order in which assistive technology finds them.
    ColorBand* const band;
    ColorField* const field;
    /// Picks from the screen.
    QToolButton* const pick;
    ColorFacts* const facts;
    /// In the place of the facts while there is a message.
    MessageLabel* const message;
    FormList* const forms;
    PageBar* const pageBar;
    PanelPages pages;
    LastColors* const lastColors;
    /// The line about plug-ins that were left out.
    QLabel* const problems;
    /// A bar below everything else. Null if there is none.
    QWidget* foot = nullptr;

private:
    QWidget& _window;
};

}  // namespace vantorel
