#pragma once

#include "panel/pages/PanelPage.h"
#include "plugins/PluginLoader.h"

#include <QLabel>
#include <QPointer>

namespace vantorel {

/// The page of a plug-in.
class PluginPage final : public PanelPage {
    Q_OBJECT

public:
    /// `plugin` must outlive the page.
    PluginPage(const LoadedPlugin& plugin, LoadedPlugin::Picker picker);
    ~PluginPage() override;

    /// The plug-in's identifier, such as "org.vantorel.hex".
    [[nodiscard]] QString identifier() const override;
    /// The last part of the identifier: "hex" of "org.vantorel.hex".
    [[nodiscard]] QString key() const override;
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void show(HostView& holder) override;
    void hide() override;
    void didAppear() override;
    void didDisappear() override;
    void resize(HostSize size) override;
    [[nodiscard]] bool takesWideGamut() const override { return _picker->takesWideGamut(); }
    void setColor(const HostColor& color) override;
    void finishEditing() override;
    [[nodiscard]] std::vector<ShortcutRow> shortcuts() const override;
    [[nodiscard]] HostColorPicker* picker() const override { return _picker.get(); }
    [[nodiscard]] HostView* view() const override { return _view; }

private:
    const LoadedPlugin& _plugin;
    LoadedPlugin::Picker _picker;
    bool _viewWasAskedFor = false;
    HostView* _view = nullptr;
    /// Replaces a view that could not be created.
    QPointer<QLabel> _message;
};

}  // namespace vantorel
