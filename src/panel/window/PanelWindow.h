#pragma once

#include "hosts/qt/QtColorPanel.h"
#include "hosts/qt/QtView.h"
#include "panel/pages/PanelPages.h"
#include "panel/window/ChoiceBar.h"
#include "panel/window/ColorHistory.h"
#include "panel/window/PanelCommands.h"
#include "panel/window/PanelMemory.h"
#include "panel/window/PanelTools.h"
#include "panel/window/PanelTopBar.h"
#include "screenpick/ScreenPicker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace vantorel {

/// The colour panel: a bar of pages and commands, the page, and the tools that every page shares.
class PanelWindow final : public QWidget, private QtColorPanel {
    Q_DECLARE_TR_FUNCTIONS(PanelWindow)

public:
    using ColorObserver = std::function<void(const HostColor&)>;

    /// Makes a page for each plug-in, and the panel's own. All must outlive the window. `problems`
    /// gets a line for each plug-in that makes no page.
    PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                std::vector<std::string>& problems);
    ~PanelWindow() override;

    /// Shows what went wrong while the plug-ins were loaded, one a line.
    void showProblems(const std::vector<std::string>& problems);
    /// Says something in one sentence for a while.
    void showRemark(const QString& remark);

    void showPage(int index);
    /// False when there is no page of that key.
    bool showPageWithKey(const QString& key);
    [[nodiscard]] QStringList pageKeys() const;
    [[nodiscard]] int pageCount() const { return static_cast<int>(_pages.size()); }
    [[nodiscard]] int currentPageIndex() const { return _currentPage; }
    /// The picker of the page on show; null for the panel's own pages.
    [[nodiscard]] HostColorPicker* currentPicker() const;
    void resizeToPage(QSize points);

    /// Changes the colour as the user does, the alpha included.
    void chooseColor(const HostColor& color);
    [[nodiscard]] HostColor chosenHostColor() const { return _color; }
    [[nodiscard]] QColor chosenColor() const;
    void setBackground(const HostColor& color);
    [[nodiscard]] HostColor background() const { return _background; }
    /// Is told each change of the colour.
    void addColorObserver(ColorObserver observer)
    {
        _colorObservers.push_back(std::move(observer));
    }

    /// Makes the panel a dialog for one colour, with buttons to choose and to cancel. Its window
    /// closes with either. To be called once, before the window is shown.
    void askForChoice();
    /// What a drag would carry, if the user has chosen; nothing while that is open, or when the
    /// window was closed without.
    [[nodiscard]] const std::optional<QString>& choice() const { return _choice; }

    // What the commands do (PanelWindowCommands.cpp).

    /// The colour as a drag out of the panel carries it: the text that the settings ask for, or
    /// the hex code.
    [[nodiscard]] QString draggedText() const;
    void copyColor();
    void copyHexCode();
    void copyText(const QString& text);
    void pasteColor();
    void undo();
    void redo();
    void swapColors();
    void setStaysOnTop(bool flag);
    void showShortcuts();
    /// Lets the user pick from the screen. `copies` puts the colour on the clipboard at once;
    /// `done`, if there is one, is told how it ended.
    void pickFromScreen(bool copies = false, ScreenPicker::Callback done = {});
    /// Ends a pick that is under way as cancelled.
    void cancelPick();
    /// The texts that stand for the colour, with the names of their forms.
    [[nodiscard]] std::vector<HostColorText> colorTexts() const;
    /// In place of the one for this desktop.
    void setScreenPicker(std::unique_ptr<ScreenPicker> picker);

    // What is kept from one start to the next.

    void recall(const PanelMemory& memory);
    [[nodiscard]] PanelMemory memory() const;

    [[nodiscard]] HostColorPanel& hostPanel() { return *this; }
    [[nodiscard]] const PanelCommands& commands() const { return *_commands; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void loadIcon();
    [[nodiscard]] std::optional<HostColor> color() const override { return _color; }
    void setColor(const std::optional<HostColor>& color) override;
    [[nodiscard]] HostRect frame() const override;
    void setFrame(HostRect wanted, bool display) override;
    [[nodiscard]] HostView* pageView() const override;
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override;

    void makeCommands();
    void makeTools();
    void addPages(const std::vector<LoadedPlugin>& plugins, std::vector<std::string>& problems);
    void addPage(std::unique_ptr<PanelPage> page);
    [[nodiscard]] PanelPage* currentPage() const;
    void stepPage(int step);
    void orderTabs();
    void layOut();
    /// What the window has besides the page, in points.
    [[nodiscard]] QSize barsPoints() const;
    void choose();
    void showHistory();
    void takeOffer(const ColorOffer& offer, const std::function<void(const HostColor&)>& take);
    void fillCopyMenu(QMenu& menu);

    HostColor _color = HostColor::whiteColor();
    HostColor _background = HostColor::whiteColor();
    ColorHistory _history{_color};
    QElapsedTimer _clock;
    std::vector<ColorObserver> _colorObservers;

    PanelTopBar* _topBar = nullptr;
    PanelTools* _tools = nullptr;
    QLabel* _problems = nullptr;
    /// Null in a panel that is no dialog.
    ChoiceBar* _choiceBar = nullptr;
    std::optional<QString> _choice;
    std::unique_ptr<PanelCommands> _commands;
    std::unique_ptr<ScreenPicker> _screenPicker;

    std::unique_ptr<QtMirrored<HostView>> _holder;
    std::vector<std::unique_ptr<PanelPage>> _pages;
    int _currentPage = -1;
    bool _isPainted = false;
};

}  // namespace vantorel
