#pragma once

#include "panel/widgets/MessageLabel.h"
#include "panel/window/PanelCommands.h"
#include "panel/window/PanelHost.h"
#include "panel/window/PanelMemory.h"
#include "panel/window/PanelTools.h"
#include "panel/window/PanelTopBar.h"
#include "plugins/PluginLoader.h"
#include "result/Message.h"

#include <QLabel>
#include <QWidget>

#include <memory>
#include <vector>

namespace vantorel {

/// The window of the colour panel: a bar of pages and commands, the page, and the tools that every
/// page shares.
class PanelWindow final : public QWidget {
    Q_OBJECT

public:
    /// Creates a page for each plug-in, and the panel's own. All arguments must outlive the window.
    /// A message is added to `problems` for each plug-in that fails to create its page.
    PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                std::vector<Message>& problems,
                std::unique_ptr<ScreenPicker> screenPicker = makeScreenPicker());
    ~PanelWindow() override;

    [[nodiscard]] PanelColors& colors() { return _colors; }
    [[nodiscard]] PanelPages& pages() { return _pages; }
    [[nodiscard]] ColorExchange& exchange() { return _exchange; }
    [[nodiscard]] PanelCommands& commands() { return _commands; }

    /// Shows the problems with plug-ins, one per line.
    void showProblems(const std::vector<Message>& problems);
    /// Shows a message in place of the last one: in the bar if it is short news, otherwise in full
    /// below the page. An empty message only ends the one that is shown.
    void showMessage(const Message& message, MessageLabel::Kind kind = MessageLabel::Kind::news);
    /// Puts a bar below everything else. Call it at most once, before the window is shown.
    void setFoot(QWidget& foot);

    /// Resizes the window so that the page has this size, in points.
    void resizeToPage(QSize points);
    /// Resizes the window and its contents, in pixels. Also works for a hidden window, which Qt
    /// would lay out only when it is shown.
    void resizeAtOnce(QSize size);

    // The state that is kept between starts.

    void recall(const PanelMemory& memory);
    enum class Place { included, leftOut };
    /// The geometry is empty if it is left out, and if the window has never been shown.
    [[nodiscard]] PanelMemory memory(Place place = Place::included) const;

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectParts();
    void addPages(const std::vector<LoadedPlugin>& plugins, std::vector<Message>& problems);
    void addPage(std::unique_ptr<PanelPage> page);
    void adaptToPage(int index);
    /// Sets the window's minimum size. What it grew for a page before, it loses again.
    void growTo(QSize least);
    void showHistory();
    void makeRoomForMessage();
    void loadIcon();
    void orderTabs();
    void layOut();
    /// The size of everything but the page, in points.
    [[nodiscard]] QSize barsPoints() const;

    PanelColors _colors;
    // In the order in which assistive technology finds them.
    PanelTopBar* _topBar;
    QLabel* _problems;
    PanelPages _pages;
    MessageLabel* _message;
    PanelTools* _tools;
    PanelHost _host;
    ColorExchange _exchange;
    PanelCommands _commands;
    /// Null if there is none.
    QWidget* _foot = nullptr;
    /// By how much the window's minimum height has grown for the message, in pixels.
    int _messageHeight = 0;
    bool _isPainted = false;
    /// Set while the window is wider or higher than the user left it, for the sake of a page.
    struct Growth {
        QSize from;
        QSize to;
    };
    std::optional<Growth> _growth;
};

}  // namespace vantorel
