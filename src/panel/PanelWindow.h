#pragma once

#include "hosts/qt/QtColorPanel.h"
#include "hosts/qt/QtView.h"
#include "panel/ColorWell.h"
#include "panel/PanelPages.h"

#include <QButtonGroup>
#include <QLabel>
#include <QSlider>
#include <QWidget>

#include <memory>
#include <vector>

namespace vantorel {

/// The colour panel: a bar of page icons with the current page's name, the page, and a bar with the
/// colour and its opacity.
class PanelWindow final : public QWidget, private QtColorPanel {
public:
    using ColorObserver = std::function<void(const QColor&)>;

    /// Makes a page for each plug-in, and the panel's own. All must outlive the window. `problems`
    /// gets a line for each plug-in that makes no page.
    PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                std::vector<std::string>& problems);
    ~PanelWindow() override;

    /// Shows what went wrong while the plug-ins were loaded, one a line.
    void showProblems(const std::vector<std::string>& problems);
    void showPage(int index);
    [[nodiscard]] int pageCount() const { return static_cast<int>(_pages.size()); }
    /// The picker of the page on show; null for the panel's own pages.
    [[nodiscard]] HostColorPicker* currentPicker() const;
    /// Changes the colour as the user does, the alpha included.
    void chooseColor(const HostColor& color);
    [[nodiscard]] QColor chosenColor() const;
    void setColorObserver(ColorObserver observer) { _colorObserver = std::move(observer); }
    void resizeToPage(QSize page);
    [[nodiscard]] HostColorPanel& hostPanel() { return *this; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] std::optional<HostColor> color() const override { return _color; }
    void setColor(const HostColor& color) override;
    [[nodiscard]] HostRect frame() const override;
    void setFrame(HostRect frame, bool display) override;
    [[nodiscard]] HostView* pageView() const override;

    void makeBars();
    void addPage(std::unique_ptr<PanelPage> page);
    void layOut();
    void showColor();
    void opacityChosen(int percent);
    [[nodiscard]] PanelPage* currentPage() const;

    HostColor _color = HostColor::whiteColor();
    ColorObserver _colorObserver;

    QWidget* _topBar = nullptr;
    QButtonGroup* _pageButtons = nullptr;
    QLabel* _pageName = nullptr;
    QWidget* _bottomBar = nullptr;
    ColorWell* _well = nullptr;
    QSlider* _opacity = nullptr;
    QLabel* _opacityText = nullptr;
    QLabel* _problems = nullptr;

    std::unique_ptr<QtMirrored<HostView>> _holder;
    std::vector<std::unique_ptr<PanelPage>> _pages;
    int _currentPage = -1;
};

}  // namespace vantorel
