#pragma once

#include "plugins/PluginLoader.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>

namespace vantorel {

class PanelWindow;

/// A page of the panel. What is seen of it is made when it is shown first.
class PanelPage {
public:
    virtual ~PanelPage() = default;

    /// Stands for the page on the command line; the same in every language.
    [[nodiscard]] virtual QString key() const = 0;
    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QString toolTip() const = 0;
    [[nodiscard]] virtual QIcon icon() const = 0;
    /// In points.
    [[nodiscard]] virtual QSize minimumSize() const = 0;

    /// Puts the page into its place, `holder`, which has its final size.
    virtual void show(HostView& holder) = 0;
    virtual void hide() = 0;
    /// The holder has a new size.
    virtual void resize(HostSize size) = 0;
    /// The panel's colour has changed while the page is on show, also by the page itself.
    virtual void setColor(const HostColor& color) = 0;

    /// The picker behind the page; null for the panel's own pages.
    [[nodiscard]] virtual HostColorPicker* picker() const { return nullptr; }
    [[nodiscard]] virtual HostView* view() const { return nullptr; }
};

/// The page of a plug-in.
class PluginPage final : public PanelPage {
    Q_DECLARE_TR_FUNCTIONS(PluginPage)

public:
    /// `plugin` must outlive the page.
    PluginPage(const LoadedPlugin& plugin, LoadedPlugin::Picker picker);
    ~PluginPage() override;

    /// The last part of the plug-in's identifier: "hex" of "org.vantorel.hex".
    [[nodiscard]] QString key() const override;
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void show(HostView& holder) override;
    void hide() override;
    void resize(HostSize size) override;
    void setColor(const HostColor& color) override;
    [[nodiscard]] HostColorPicker* picker() const override { return _picker.get(); }
    [[nodiscard]] HostView* view() const override { return _view; }

private:
    const LoadedPlugin& _plugin;
    LoadedPlugin::Picker _picker;
    bool _viewWasAskedFor = false;
    HostView* _view = nullptr;
    /// Stands in for a view that could not be made.
    QPointer<QLabel> _message;
};

/// Qt's own colour dialog as a page.
class DialogPage final : public PanelPage {
    Q_DECLARE_TR_FUNCTIONS(DialogPage)

public:
    /// `colorChosen` is called when the user changes the colour on the page.
    explicit DialogPage(std::function<void(const QColor&)> colorChosen);
    ~DialogPage() override;

    [[nodiscard]] QString key() const override { return QStringLiteral("dialog"); }
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void show(HostView& holder) override;
    void hide() override;
    void resize(HostSize size) override;
    void setColor(const HostColor& color) override;

private:
    std::function<void(const QColor&)> _colorChosen;
    QPointer<QColorDialog> _dialog;
};

}  // namespace vantorel
