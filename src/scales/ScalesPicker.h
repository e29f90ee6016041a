#pragma once

#include "host/HostColorPicker.h"
#include "host/HostControls.h"
#include "pageparts/Segments.h"
#include "scales/ScalesLayout.h"
#include "scales/ScalesModel.h"
#include "scales/ScalesSection.h"
#include "settings/SettingsInFile.h"

#include <memory>
#include <optional>
#include <vector>

namespace vantorel {

/// The page that makes other colours from the panel's colour: scales, schemes, gradients, and
/// colours that can be read; and that shows how people see them who do not see all colours.
class ScalesPicker final : public HostColorPicker, private ScalesPage {
public:
    static constexpr int scalesMode = 16;

    using HostColorPicker::HostColorPicker;
    ~ScalesPicker() override;
    ScalesPicker(const ScalesPicker&) = delete;
    ScalesPicker& operator=(const ScalesPicker&) = delete;

    HostView* provideNewView(bool initialRequest) override;
    [[nodiscard]] bool supportsMode(int mode) const override { return mode == scalesMode; }
    [[nodiscard]] int currentMode() const override { return scalesMode; }
    [[nodiscard]] std::u16string buttonToolTip() const override;
    [[nodiscard]] std::string buttonImage() const override;
    [[nodiscard]] HostSize minContentSize() const override { return leastScalesPage; }
    [[nodiscard]] HostSize preferredContentSize() const override { return {300, 292}; }
    [[nodiscard]] bool takesWideGamut() const override { return true; }
    void setColor(const std::optional<HostColor>& color) override;
    void colorPairDidChange() override { showSections(); }
    void viewSizeChanged(HostView* sender) override;
    void pageDidAppear() override;
    void pageDidDisappear() override;
    bool performAction(std::string_view name, HostControl* sender) override;

private:
    // What the sections need.
    HostColorPanel& panel() override { return colorPanel(); }
    ScalesModel& model() override { return _model; }
    [[nodiscard]] std::u16string hexCode(const HostColor& color) override;
    void choose(const HostColor& color) override { colorPanel().setColor(color); }
    void modelDidChange() override;

    void makeSections();
    void makeChoice();
    void chooseSection(std::size_t section);
    void layOut();
    /// Writes the page's memory after a while, because a number can change in many steps.
    void rememberSoon();
    void remember();
    /// Shows the colour in the sections that can be seen.
    void showSections();

    ScalesModel _model;
    SettingsInFile _settings{colorPanel().desktop().files()};
    std::unique_ptr<HostView> _page;
    std::vector<std::unique_ptr<ScalesSection>> _sections;
    std::size_t _chosen = 0;
    Segments _segments;
    /// In place of the segments where there is no room for their titles.
    std::unique_ptr<HostPopUpButton> _popUp;
    /// As it was before the page appeared.
    std::optional<bool> _acceptedMouseMoved;
    /// Until the memory is written.
    std::unique_ptr<HostTimer> _memoryTimer;
};

}  // namespace vantorel
