#pragma once

#include "hosts/qt/QtColors.h"
#include "panel/preferences/ConfigurationFile.h"
#include "panel/window/PanelWindow.h"
#include "plugins/PluginLoader.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A colour by its channels of 0 to 255 and an alpha of 0 to 1.
inline HostColor rgb(int red, int green, int blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

/// The panel with the real picker, off screen.
class PanelWindowFixture : public testing::Test {
protected:
    // Preferences are read from there.
    PanelWindowFixture() { setConfigurationFolder(_configuration.path()); }
    ~PanelWindowFixture() override { setConfigurationFolder({}); }

    void SetUp() override
    {
        _search = loadPlugins({VANTOREL_PICKERS}, {});
        _window =
            std::make_unique<PanelWindow>(_desktop, _search.plugins, _problems, screenPicker());
        _window->resizeToPage({260, 340});
        _window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(_window.get()));
    }
    /// The screen picker of the panel.
    virtual std::unique_ptr<ScreenPicker> screenPicker() { return makeScreenPicker(); }
    [[nodiscard]] QColor chosenColor() const { return qColorFrom(_window->colors().color()); }
    template <class Widget>
    [[nodiscard]] Widget* child(const char* name) const
    {
        return _window->findChild<Widget*>(name);
    }
    [[nodiscard]] QString text(const char* name) const { return child<QLineEdit>(name)->text(); }

    QTemporaryDir _configuration;
    QtDesktop _desktop;
    PluginSearch _search;
    std::vector<Message> _problems;
    std::unique_ptr<PanelWindow> _window;
};

}  // namespace vantorel
