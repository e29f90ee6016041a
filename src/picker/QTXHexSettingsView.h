#pragma once

#include "host/HostControls.h"

namespace vantorel {

/// The ground of the settings face.
class QTXHexSettingsView final : public HostViewContent {
public:
    /// The desktop's view that shows this one. It must be detached (null) before it ends.
    void attachToView(HostCustomView* view) { _view = view; }
    [[nodiscard]] HostCustomView* view() const { return _view; }

    void drawRect(HostCanvas& canvas) override;

private:
    HostCustomView* _view = nullptr;
    HostBezierPath __bPth;
};

}  // namespace vantorel
