#pragma once

#include "picker/QTXHexColorPicker.h"
#include "testing/headless/HeadlessColorPanel.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>

namespace vantorel {

/// A panel that writes down when a change in steps begins and ends, and can do something else when
/// it is asked for its colour.
class LoggingPanel final : public HeadlessColorPanel {
public:
    using HeadlessColorPanel::HeadlessColorPanel;

    [[nodiscard]] std::optional<HostColor> color() const override
    {
        if (whenAsked) whenAsked();
        return HeadlessColorPanel::color();
    }
    void setColor(const std::optional<HostColor>& color) override
    {
        log += "set ";
        if (echoes) HeadlessColorPanel::setColor(color);
    }
    void continuousChangeDidBegin() override { log += "begin "; }
    void continuousChangeDidEnd() override { log += "end "; }
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override
    {
        log += "drag ";
        HeadlessColorPanel::dragImage(image, item, event, source);
    }

    HostFieldEditor* fieldEditor(HostTextField& field) override
    {
        return editor != nullptr ? editor : HeadlessColorPanel::fieldEditor(field);
    }

    std::string log;
    /// Whether the panel takes the page's colours and passes them to the page.
    bool echoes = true;
    /// Edits all fields, unless null.
    HostFieldEditor* editor = nullptr;
    std::function<void()> whenAsked;
};

/// A picker of the shipped interface file, in a headless panel.
class PickerPage : public testing::Test {
protected:
    class Bundle final : public HostBundle {
    public:
        [[nodiscard]] std::optional<std::string> resource(const std::string& name) const override
        {
            std::ifstream file(VANTOREL_RESOURCES "/" + name, std::ios::binary);
            if (!file) return std::nullopt;
            return std::string{std::istreambuf_iterator<char>(file), {}};
        }
        [[nodiscard]] std::optional<std::string> pathOfResource(const std::string&) const override
        {
            return std::nullopt;
        }
    };

    PickerPage()
    {
        _page = _picker.provideNewView(true);
        _panel.setPicker(&_picker);
    }
    ~PickerPage() override { _panel.setPicker(nullptr); }

    [[nodiscard]] HostView& control(const std::string& name)
    {
        return *_desktop.interfaceFactory().control<HostView>(name);
    }

    Bundle _bundle;
    HeadlessDesktop _desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    LoggingPanel _panel{_desktop, {200, 400, 260, 340}, HostColor::whiteColor()};
    QTXHexColorPicker _picker{0, _panel, _bundle};
    HostView* _page = nullptr;
};

}  // namespace vantorel
