#pragma once

#include "host/HostControls.h"
#include "host/HostDesktop.h"
#include "mix/MixChannels.h"
#include "mix/MixLayout.h"

#include <array>
#include <functional>
#include <memory>

namespace vantorel {

/// The buttons that choose the space, in one frame.
class MixSegments final : public HostViewContent {
public:
    using Chosen = std::function<void(MixSpace)>;

    /// Call it once. `chosen` is called for each click, also on the space that is chosen.
    void makeViews(HostDesktop& desktop, Chosen chosen);
    [[nodiscard]] HostView& view() const { return *_frame; }
    /// Shows which space is chosen.
    void show(MixSpace space);
    void layOut(const MixFrames& frames);

    void drawRect(HostCanvas& canvas) override;

private:
    Chosen _chosen;
    std::unique_ptr<HostCustomView> _frame;
    std::array<std::unique_ptr<HostButton>, mixSpaces.size()> _buttons;
};

}  // namespace vantorel
