#pragma once

#include "scales/ScalesPicker.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "testing/headless/HeadlessColorPanel.h"
#include "testing/headless/MemoryFiles.h"
#include "text/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The page in a panel without a screen. The colour is #3b82f6 at first.
class ScalesPageTest : public testing::Test {
protected:
    ScalesPageTest() { start(); }
    void TearDown() override { leave(); }

    void leave()
    {
        panel.showPage(nullptr);
        panel.setPicker(nullptr);
        picker.reset();
    }
    /// As a new panel does.
    void start()
    {
        leave();
        picker.emplace(0, panel);
        panel.setPicker(&*picker);
        panel.showPage(picker->provideNewView(true));
        picker->viewSizeChanged(nullptr);
    }

    template <class Control>
    [[nodiscard]] Control& control(const std::string& name)
    {
        auto* found = desktop.interfaceFactory().control<Control>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    [[nodiscard]] HeadlessCustomView& view(const std::string& name)
    {
        return control<HeadlessCustomView>(name);
    }
    /// The row of colours in a view.
    [[nodiscard]] SwatchStrip& strip(const std::string& name)
    {
        return dynamic_cast<SwatchStrip&>(view(name).content());
    }
    [[nodiscard]] std::u16string codeAt(const std::string& name, std::size_t swatch)
    {
        return *hexText(mappedIntoSRGB(strip(name).swatches().at(swatch).color));
    }
    /// The middle of a colour.
    [[nodiscard]] HostPoint placeOf(const std::string& name, std::size_t swatch)
    {
        const auto& row = strip(name);
        const HostRect room =
            insetRect(view(name).bounds(), SwatchStrip::margin, SwatchStrip::margin);
        const bool isJoined = name == "scalesScaleRow1" || name == "scalesGradientRow1";
        const HostRect place =
            swatchPlaces(room, row.swatches().size(), {.isJoined = isJoined}, 0).at(swatch);
        return {place.midX(), place.midY()};
    }
    void click(const std::string& name, std::size_t swatch)
    {
        const HostPoint at = placeOf(name, swatch);
        panel.deliver({{HostEventType::leftMouseDown, at, 0}, {HostEventType::leftMouseUp, at, 0}},
                      view(name));
    }
    bool press(const std::string& name, HostKey key)
    {
        return view(name).content().keyDown({key, 0});
    }
    /// Chooses in a pop-up's menu, through submenus.
    void choose(const std::string& popUp, const std::vector<std::u16string>& path)
    {
        HostMenu menu = control<HostPopUpButton>(popUp).menu();
        for (const std::u16string& title : path) {
            const auto item = std::ranges::find(menu, title, &HostMenuItem::title);
            ASSERT_NE(item, menu.end()) << popUp;
            const HostMenuItem chosen = *item;
            if (chosen.submenu) {
                menu = chosen.submenu();
            } else {
                ASSERT_TRUE(chosen.action);
                chosen.action(chosen);
            }
        }
    }
    /// The text that was copied last.
    [[nodiscard]] std::string copied() const
    {
        return utf8FromUtf16(panel.copiedText().value_or(u""));
    }
    [[nodiscard]] std::string lastReport() const
    {
        return panel.reports().empty() ? "" : utf8FromUtf16(panel.reports().back());
    }
    [[nodiscard]] std::u16string panelCode() const { return *hexText(*panel.color()); }

    static HeadlessDesktop::Options withFiles()
    {
        HeadlessDesktop::Options options;
        options.files = std::make_unique<MemoryFiles>("/home/user");
        return options;
    }
    static HostColor rgbColor(int red, int green, int blue, double alpha = 1)
    {
        return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
    }

    HeadlessDesktop desktop{withFiles()};
    HeadlessColorPanel panel{desktop, {0, 0, 300, 324}, rgbColor(59, 130, 246)};
    std::optional<ScalesPicker> picker;
};

}  // namespace vantorel
