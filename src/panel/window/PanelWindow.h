#pragma once

#include "panel/widgets/MessageLabel.h"
#include "panel/widgets/PanelSettings.h"
#include "panel/window/ColorEntry.h"
#include "panel/window/PanelCommands.h"
#include "panel/window/PanelHost.h"
#include "panel/window/PanelMemory.h"
#include "panel/window/PanelParts.h"
#include "panel/window/WindowGrowth.h"
#include "plugins/PluginLoader.h"
#include "result/Message.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace vantorel {

class PalettesPage;

/// The window of the colour panel: the colours and their texts, the pages, of which one is shown,
/// and the last colours.
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
    [[nodiscard]] PanelPages& pages() { return _parts.pages; }
    [[nodiscard]] ColorExchange& exchange() { return _exchange; }
    [[nodiscard]] PanelCommands& commands() { return _commands; }
    [[nodiscard]] PalettesPage& palettes() { return *_palettes; }

    /// Shows the problems with plug-ins, one per line.
    void showProblems(const std::vector<Message>& problems);
    /// Shows a message in place of the last one, and of the lines below the field. An empty message
    /// only ends the one that is shown.
    void showMessage(const Message& message, MessageLabel::Kind kind = MessageLabel::Kind::news);
    /// Puts a bar below everything else. Call it at most once, before the window is shown.
    void setFoot(QWidget& foot);

    /// Sets whether closing the window only hides it. At first it ends the program.
    void setStaysResident(bool stays) { _staysResident = stays; }
    /// Closes the window and ends the program.
    void quit();
    /// Returns the icon of the program.
    [[nodiscard]] QIcon icon() const;

    /// Resizes the window so that the page has this size, in points.
    void resizeToPage(QSize points);
    /// Resizes the window and its contents, in pixels. Also works for a hidden window, which Qt
    /// would lay out only when it is shown.
    void resizeAtOnce(QSize size);
    /// Resizes the window so that the page grows by this much, in pixels, where there is room.
    void growPage(QSize growth);

    /// Enters texts that were typed but not entered yet, on the page and in the field. Returns
    /// false if the field's text is not a colour, which is then reported.
    [[nodiscard]] bool finishEditing();

    // The state that is kept between starts.

    void recall(const PanelMemory& memory);
    enum class Place { included, leftOut };
    /// The geometry is empty if it is left out, and if the window has never been shown.
    [[nodiscard]] PanelMemory memory(Place place = Place::included) const;

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void connectParts();
    void addPages(const std::vector<LoadedPlugin>& plugins, std::vector<Message>& problems);
    void addPage(std::unique_ptr<PanelPage> page);
    void adaptToPage(int index);
    void adaptToMessage();

    PanelSettings _settings;
    PanelColors _colors;
    PanelParts _parts;
    PanelHost _host;
    ColorExchange _exchange;
    PanelCommands _commands;
    ColorNames _names;
    ColorEntry _entry;
    WindowGrowth _growth;
    PalettesPage* _palettes = nullptr;
    bool _isPainted = false;
    bool _staysResident = false;
};

}  // namespace vantorel
